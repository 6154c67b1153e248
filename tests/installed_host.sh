#!/usr/bin/env bash
# usage: installed_host.sh BUILD_TREE PREFIX
# Installs into an empty prefix and starts the installed host elsewhere: it must load the installed plug-in.
set -euo pipefail
build=$(realpath "$1")
rm -rf "$2"
mkdir -p "$2"
prefix=$(realpath "$2")

fail() {
    echo "installed_host: $*" >&2
    exit 1
}

cmake --install "$build" --prefix "$prefix" >/dev/null
controller=$prefix/share/synccard-host/controllers/locked.json
for file in "$prefix/share/applications/synccard-host.desktop" "$controller"; do
    [ -f "$file" ] || fail "$file is missing"
done

cd /
"$prefix/bin/synccard-host" --controller "$controller" &
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
