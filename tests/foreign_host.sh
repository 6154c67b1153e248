#!/usr/bin/env bash
# usage: foreign_host.sh SOURCES FOLDER OTHER_PLUGIN CMAKE_ARGUMENT...
# Builds the plug-in and the minimal host against headers that differ from libs/include like a real host's headers, and
# runs them. The module must find the host's operations and members at any position.
set -euo pipefail
sources=$1 folder=$2 other=$3
arguments=("${@:4}")
headers=$folder/include
plugin=$folder/plugin/lib/synccard-host/modules/libSynccardSettingsModule.so
host=$folder/host/minimal-host
rm -rf "$folder"
mkdir -p "$folder"

fail() {
    echo "foreign_host: $*" >&2
    exit 1
}

# Applies the sed EXPRESSION to the HEADER, and expects it to add or change COUNT lines.
change() {
    local header=$headers/$1 count=$2 expression=$3 found
    sed -E "$expression" "$header" >"$folder/changed.h"
    found=$(diff "$header" "$folder/changed.h" | grep -c '^>') || true
    [ "$found" = "$count" ] || fail "$1: expected $count changes by $expression, found $found"
    mv "$folder/changed.h" "$header"
}

configure() {
    cmake -S "$1" -B "$2" -DHOST_INCLUDE_DIR="$headers" "${arguments[@]}" "${@:3}" >"$folder/log.txt" 2>&1
}

build() {
    configure "$@" && cmake --build "$2" --parallel 2 >"$folder/log.txt" 2>&1 && return
    cat "$folder/log.txt" >&2
    fail "$1 does not build"
}

cp -r "$sources/libs/include" "$headers"
change IOManager.h 7 's/^    virtual (int|void) (\w+)\(.*/    virtual int before_\2() { return -1; }\n&/'
change IOManager.h 1 's/^    virtual void reportError\(.*/&\n    virtual int last() { return -1; }/'
change ModuleInterface.h 1 's/^    virtual void set_param\(.*/&\n    virtual void last() {}/'
change ModuleInterface.h 5 's/^(    (int|Q\w+\*) \w+) = \w+;/\1;/'
change ModuleInterface.h 6 's/^    (int|Q\w+\*?) (\w+);/    QString before_\2;\n&/'
change BackendVersions.h 4 's/^    (VersionInfo|QString) (\w+);/    QString before_\2;\n&/'
change BackendVersions.h 4 's/\(\) const \{/() {/'
change VersionInfo.h 3 's/^    int (\w+);/    QString before_\1;\n&/'
change VersionInfo.h 4 's/\(\) const \{/() {/'

build "$sources" "$folder/plugin"
build "$sources/examples/minimal-host" "$folder/host" -DCMAKE_CXX_FLAGS="-Wall -Wextra -Werror"
status=0
LC_ALL=de_DE.UTF-8 timeout 20 "$host" "$plugin" --once >"$folder/commands.txt" 2>"$folder/warnings.txt" || status=$?
# The commands from the failed one on. The dialog gets there only after successful int and raw commands.
sed -n '/ failed$/,$p' "$folder/commands.txt" | diff -u "$sources/tests/data/minimal-host.txt" - >&2 || fail "other commands; status $status"
[ "$status" = 0 ] || fail "expected status 0, found $status"
! grep -v 'propagateSizeHints' "$folder/warnings.txt" >&2 || fail "unexpected warnings"

build "$sources" "$folder/plugin" -DHOST_DOMAIN=com.example
grep -q 'com\.example\.Zorvan2\.SnyccardSettingsModule' "$plugin" || fail "HOST_DOMAIN is not in the plug-in's metadata"

for file in "$plugin" "$folder/missing.so" "$sources/README.md" "$other"; do
    status=0
    said=$("$host" "$file" 2>&1) || status=$?
    [[ "$status $said" = "2 minimal-host: no module plug-in: $file: "* && $said != *$'\n'* ]] \
        || fail "$file: expected status 2 and one line, found $status $said"
done

for header in ModuleInterface.h IOManager.h BackendVersions.h VersionInfo.h; do
    mv "$headers/$header" "$folder"
    ! configure "$sources" "$folder/plugin" || fail "$header is missing, but configuration succeeds"
    grep -qx " *HOST_INCLUDE_DIR: no $header in $headers" "$folder/log.txt" \
        || fail "$header is missing, but configuration says $(cat "$folder/log.txt")"
    mv "$folder/$header" "$headers"
done
