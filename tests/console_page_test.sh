#!/bin/sh
# The session in the console's manual is what happens to those who copy it.
#
#   console_page_test.sh CONSOLE-PROGRAM PAGE
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export PATH="$(dirname "$1"):$PATH" TMPDIR="$folder"

# The blocks between the fences: the first is for the shell, the second what it answers.
awk -v folder="$folder" '/^```/ { if (open = !open) ++count; next } open { print > (folder "/block" count) }' "$2"
[ -s "$folder/block1" ] && [ -s "$folder/block2" ] || { echo "the page has lost its session" >&2; exit 1; }
sh "$folder/block1" >"$folder/said"
diff -u --label "the page" "$folder/block2" --label "the program" "$folder/said"
