#!/usr/bin/env bash
# usage: installed_host.sh BUILD_TREE PREFIX
# Installs into an empty prefix and starts the installed host elsewhere: it must load the installed plug-in, and
# find the installed translation, and list the installed controllers, each of which tests/data/controllers.txt knows.
set -euo pipefail
build=$(realpath "$1")
known=$(sed -n 's/^\([^#]*\) ->.*/\1/p' "$(dirname "$0")/data/controllers.txt" | LC_ALL=C sort -u)
rm -rf "$2"
mkdir -p "$2"
prefix=$(realpath "$2")

fail() {
    echo "installed_host: $*" >&2
    exit 1
}

cmake --install "$build" --prefix "$prefix" >/dev/null
desktop=$prefix/share/applications/synccard-host.desktop
[ -f "$desktop" ] || fail "$desktop is missing"

cd /
list=$("$prefix/bin/synccard-host" --list)
[ "$(cut -d ' ' -f 1 <<<"$list")" = "$known" ] || fail "expected the controllers $known, found $list"
grep -qxF 'locked           The configuration is locked' <<<"$list" || fail "expected locked in a row, found $list"
broken=$prefix/share/synccard-host/controllers/broken.txt
echo 'config is_changeable' >"$broken"
status=0
said=$("$prefix/bin/synccard-host" --list 2>&1) || status=$?
[ "$status $said" = "2 synccard-host: $broken:1: \"COMMAND = ANSWER\" is expected" ] || fail "$status $said"

"$prefix/bin/synccard-host" --controller locked --language de &
host=$!
trap 'kill $host 2>/dev/null || true' EXIT
for ((tries = 0; tries < 300; ++tries)); do
    loaded=$(grep -o '/.*libSynccardSettingsModule.so$' "/proc/$host/maps" | sort -u) \
        || { kill -0 $host || fail "the host has ended"; }
    [ -z "$loaded" ] || break
    sleep 0.1
done
expected=$prefix/lib/synccard-host/modules/libSynccardSettingsModule.so
[ "$loaded" = "$expected" ] || fail "expected $expected to be loaded, found '$loaded'"
