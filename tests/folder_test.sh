#!/bin/bash
# Where the program keeps its files, and that those of earlier versions move there.
#
#   folder_test.sh CONSOLE-PROGRAM
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_DATA_HOME="$folder/data" HOME="$folder/home"
mkdir "$folder/app"
cp "$1" "$folder/app/program"
kept="$folder/data/card-haven"
table=HiScores90_11.Txt

fail() {
  echo "$*" >&2
  ls -lR "$folder" >&2
  exit 1
}
run() { echo "click frmSelect.cmdSumfall" | "$folder/app/program" "$@" >/dev/null; }
is() { [ "$(cat "$1")" = "$2" ] || fail "$1 doesn't hold $2"; }

# Files of an earlier version move, but none over another.
echo "A, 70000" >"$folder/app/$table"
echo older >"$folder/app/mine.sfl"
echo stays >"$folder/app/notes.Txt"
mkdir -p "$kept"
echo newer >"$kept/mine.sfl"
inode=$(stat -c %i "$folder/app/$table")
echo list >"$folder/HiScores60.Txt"
ln -s ../HiScores60.Txt "$folder/app/HiScores60.Txt"
run
is "$kept/$table" "A, 70000"
[ "$(stat -c %i "$kept/$table")" = "$inode" ] || fail "a table was copied, and is lost if the power fails before it is written"
is "$kept/HiScores60.Txt" list
is "$kept/mine.sfl" newer
is "$folder/app/mine.sfl" older
is "$folder/app/notes.Txt" stays
[ ! -e "$folder/app/$table" ] || fail "the table was left beside the program"
[ -f "$kept/Sumfall.Ini" ] && [ ! -e "$folder/app/Sumfall.Ini" ] || fail "settings are in the wrong folder"

# A new folder is the player's alone.
rm -r "$folder/data"
run
[ "$(stat -c %a "$kept")" = 700 ] || fail "others can look into $kept"
unset XDG_DATA_HOME
run
[ -f "$HOME/.local/share/card-haven/Sumfall.Ini" ] || fail "nothing is kept in the home folder"

# A stick, and a folder that is named.
touch "$folder/app/portable"
run
[ -f "$folder/app/Sumfall.Ini" ] || fail "a portable program keeps its files elsewhere"
run --folder "$folder/named"
[ -f "$folder/named/Sumfall.Ini" ] || fail "the named folder isn't used"

# Output that nobody gets is a failure.
status=0
echo "get frmSelect.Caption" | "$folder/app/program" --folder "$folder/named" >/dev/full 2>"$folder/said" || status=$?
[ "$status" = 1 ] && grep -q "output can't be written" "$folder/said" || fail "a full disk ended with $status"
status=$( (
  (yes "dump frmSelect" | "$folder/app/program" --folder "$folder/named" 2>"$folder/said"
    echo "${PIPESTATUS[1]}" >&3) | head -n 1 >/dev/null
) 3>&1)
[ "$status" = 1 ] && grep -q "output can't be written" "$folder/said" || fail "a reader that has gone ended it with $status"
