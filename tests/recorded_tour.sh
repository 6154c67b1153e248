#!/usr/bin/env bash
# usage: recorded_tour.sh TOUR_PROGRAM FOLDER
# ./dev records a tour where ./dev is called. The recording must replay to its end. If a line is edited, missing, added
# or damaged, the tour must print where it stops. On each named controller the tour must end with status 0.
set -euo pipefail
tour=$1 folder=$2
rm -rf "$folder"
mkdir -p "$folder"
whole=$folder/whole.txt

# Replays the recording FILE, or runs the tour with the options ARGUMENTS, and expects STATUS and, on standard error,
# the MESSAGE.
expect() {
    local file=$1 status=$2 message=$3 found=0
    shift 3
    [ $# -gt 0 ] || set -- --replay "$file"
    "$tour" "$@" >/dev/null 2>"$folder/errors" || found=$?
    [ "$found" = "$status" ] && { [ -z "$message" ] || grep -qF -- "$message" "$folder/errors"; } && return
    echo "recorded_tour: $file: expected status $status and \"$message\", found status $found and:" >&2
    cat "$folder/errors" >&2
    exit 1
}

# A repository whose ./dev builds nothing and finds the program under test.
mkdir -p "$folder/repository/build/dev/bin"
sed 's/^build() {/&\n    return/' "$(dirname "$0")/../dev" >"$folder/repository/dev"
ln -s "$tour" "$folder/repository/build/dev/bin/synccard-tour"
(cd "$folder" && bash repository/dev tour --record whole.txt --pictures pictures >/dev/null)
ls "$folder/pictures/workbench.png" >/dev/null
expect "$whole" 0 ""
expect "a delay that fails" 1 "expected synccard output_delay d01 ch01 = 1.234, found synccard output_delay d01 ch01 = 0" \
    --fail 'output_delay d01 ch01 1'
sed 's/d01 61\.000000/d01 62.000000/' "$whole" >"$folder/edited.txt"
line=$(grep -n -m1 'd01 62\.000000' "$folder/edited.txt" | cut -d: -f1)
expect "$folder/edited.txt" 1 "edited.txt:$line: expected \"set synccard internal_frequency d01 62.000000\", found"
sed '9d' "$whole" >"$folder/missing.txt"
expect "$folder/missing.txt" 1 "missing.txt:9: expected"
(cat "$whole" && echo '99.9 get synccard available -> yes') >"$folder/more.txt"
expect "$folder/more.txt" 1 "the recording goes on after the tour's end"
sed '9s/.*/hello/' "$whole" >"$folder/damaged.txt"
expect "$folder/damaged.txt" 2 "damaged.txt:9: "
expect "a full disk" 2 "/dev/full: No space left on device" --record /dev/full
# A recording that is limited to a kilobyte ends with its last whole line, and replays.
(trap '' XFSZ && ulimit -f 1 && expect "a full disk later" 1 "cut.txt: File too large" --record "$folder/cut.txt")
expect "$folder/cut.txt" 1 "cut.txt: expected the end of the recording, found"

names=$("$tour" --list | cut -d ' ' -f 1)
for name in $names; do
    recording=$folder/$name.txt
    expect "$name" 0 "" --controller "$name" --record "$recording"
    # The first two lines name the format and the controller.
    [ "$(wc -l <"$recording")" -gt 2 ] || { echo "recorded_tour: $name: no command was asked" >&2; exit 1; }
done
expect "$folder/nonsense.txt" 0 "" --controller nonsense --replay "$folder/nonsense.txt"
# The recording of an opening, used as a controller, answers another opening in the same way.
for name in nonsense quillstone; do
    expect "$name" 0 "" --controller "$folder/$name.txt" --record "$folder/$name-again.txt"
    diff -u <(cut -d ' ' -f 2- "$folder/$name.txt") <(cut -d ' ' -f 2- "$folder/$name-again.txt") >&2
done
