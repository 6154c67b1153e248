#!/usr/bin/env bash
# usage: installed_host.sh BUILD_TREE PREFIX VERSION IDENTIFIER OTHER_PLUGIN NO_MODULE
# Installs into an empty prefix and starts the installed host elsewhere. The host must:
# - list the installed controllers, each of which has a row in tests/data/commands.txt
# - refuse the mistakes in tests/data/options.txt
# - load the installed plug-in and find the installed translation
set -euo pipefail
build=$(realpath "$1")
data=$(realpath "$(dirname "$0")/data")
known=$(sed -n 's/^use \([^;]*\);.*/\1/p' "$data/commands.txt" | grep -v '\.txt$' | LC_ALL=C sort -u)
rm -rf "$2"
mkdir -p "$2"
prefix=$(realpath "$2")
version=$3 identifier=$4 other=$5 no_module=$6
host=$prefix/bin/synccard-host

fail() {
    echo "installed_host: $*" >&2
    exit 1
}

# Runs the host with the options ARGUMENTS. The host must print only LINE and end with STATUS.
expect() {
    local status=$1 line=$2 found=0 said
    shift 2
    said=$(timeout 20 "$host" "$@" 2>&1) || found=$?
    [ "$found $said" = "$status $line" ] || fail "$*: expected status $status and $line, found status $found and $said"
}

cmake --install "$build" --prefix "$prefix" >/dev/null
desktop=$prefix/share/applications/synccard-host.desktop
[ -f "$desktop" ] || fail "$desktop is missing"

cd /
expect 0 "synccard-host $version" --version
rows=0
while read -r row; do
    [[ $row != "#"* ]] || continue
    [[ $row = *" -> "* ]] || fail "options.txt: no mistake and message: $row"
    rows=$((rows + 1))
    row=$(sed "s|PROGRAM|$host|g; s|OTHER_PLUGIN|$other|g; s|NO_MODULE|$no_module|g; s|MODULE_IDENTIFIER|$identifier|" <<<"$row")
    read -ra arguments <<<"${row%% -> *}"
    expect 2 "synccard-host: ${row#* -> }" "${arguments[@]}"
done <"$data/options.txt"
[ "$rows" != 0 ] || fail "options.txt: no rows"

# The host lists its controllers without a display.
list=$("$host" -platform none --list)
[ "$(cut -d ' ' -f 1 <<<"$list")" = "$known" ] || fail "expected the controllers $known, found $list"
grep -qxF 'locked           The configuration is locked' <<<"$list" || fail "expected locked in a row, found $list"
broken=$prefix/share/synccard-host/controllers/broken.txt
echo 'config is_changeable' >"$broken"
expect 2 "synccard-host: $broken:1: \"COMMAND = ANSWER\" is expected" --list

env -u DISPLAY -u QT_QPA_PLATFORM "$host" -platform offscreen --controller locked --language de &
process=$!
trap 'kill $process 2>/dev/null || true' EXIT
for ((tries = 0; tries < 300; ++tries)); do
    loaded=$(grep -o '/.*libSynccardSettingsModule.so$' "/proc/$process/maps" | sort -u) \
        || { kill -0 $process || fail "the host has ended"; }
    [ -z "$loaded" ] || break
    sleep 0.1
done
expected=$prefix/lib/synccard-host/modules/libSynccardSettingsModule.so
[ "$loaded" = "$expected" ] || fail "expected $expected to be loaded, found '$loaded'"
