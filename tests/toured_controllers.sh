#!/usr/bin/env bash
# usage: toured_controllers.sh TOUR_PROGRAM FOLDER
# On each named controller, and with some protocols, the tour leaves out this many of its seven visits, and succeeds.
set -euo pipefail
tour=$1 folder=$2
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"

# shellcheck disable=SC2016 # the inner shell expands them
{ "$tour" --list | sed 's/ .*//; s/^/--controller /' && printf -- '--protocol %s\n' 0.7.9 0.12.7 1.1 1.10; } \
    | xargs -P 4 -I ARGUMENTS bash -c '"$0" $1 >"$1" || { echo "$1: status $?" >&2; exit 1; }' "$tour" ARGUMENTS
diff - <(for output in ./*; do echo "${output#./}: $(grep -c '^left out' "$output") of $(grep -c '^$' "$output")"; done) <<'END'
--controller external-ttl: 1 of 7
--controller fixed-idle: 0 of 7
--controller full: 0 of 7
--controller legacy: 4 of 7
--controller locked: 4 of 7
--controller many: 0 of 7
--controller no-synccard: 6 of 7
--controller one-output: 1 of 7
--controller quillstone: 1 of 7
--controller refuses-sources: 3 of 7
--controller v1.1: 4 of 7
--controller v1.15: 1 of 7
--controller v1.22: 0 of 7
--controller v1.4: 2 of 7
--protocol 0.12.7: 4 of 7
--protocol 0.7.9: 5 of 7
--protocol 1.1: 4 of 7
--protocol 1.10: 0 of 7
END
