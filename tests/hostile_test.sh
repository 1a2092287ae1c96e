#!/bin/bash
# Pictures from a player's folder that are refused are replaced by the suite's own, with one line on standard error.
#
#   hostile_test.sh DESKTOP-PROGRAM
set -u
program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export SDL_AUDIODRIVER=dummy QT_QPA_PLATFORM=offscreen
own=$folder/own
picture=$own/back1-full.svg
open='<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="76" height="98">'
square='<rect id="a0" width="76" height="98" fill="red"/>'

fail() {
  echo "$*" >&2
  cat "$folder/said" >&2
  exit 1
}
# Looks at the pile of a game; NAME of the screenshot.
look() {
  printf '%s\n' 'click frmSelect.cmdSumfall' 'click frmSumfall.cmdPlay' "screenshot frmSumfall \"$folder/$1.png\"" quit |
    timeout 60 "$program" --console --seed 1 --speed 1000 --folder "$own" >/dev/null 2>"$folder/said" || fail "$1 ended with $?"
  [ -s "$folder/$1.png" ] || fail "$1: nothing to look at"
}
refused() { # NAME, why
  look "$1"
  [ "$(grep -c "back1-full.svg isn't used: $2" "$folder/said")" = 1 ] && [ "$(wc -l <"$folder/said")" = 1 ] ||
    fail "$1 should be refused: $2"
  cmp -s "$folder/none.png" "$folder/$1.png" || fail "$1 doesn't look like the suite's own"
  rm -rf "$picture"
}

look none
[ ! -s "$folder/said" ] || fail "something is said where nothing is wrong"
echo "$open$square<use xlink:href='#a0'/></svg>" >"$picture"
look mine
cmp -s "$folder/none.png" "$folder/mine.png" && fail "the player's own picture isn't shown"

echo "$open<image href='/etc/passwd' width='9' height='9'/></svg>" >"$picture"
refused file "it refers to another file"
echo "$open<rect width='9' height='9' style='fill:url(file:///etc/passwd#x)'/></svg>" >"$picture"
refused style "it refers to another file"
echo "<!DOCTYPE svg [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;'>]>$open<text>&b;</text></svg>" >"$picture"
refused entities "it declares entities"
{
  echo "$open<defs>$square"
  for level in $(seq 30); do
    echo "<g id='a$level'><use xlink:href='#a$((level - 1))'/><use xlink:href='#a$((level - 1))'/></g>"
  done
  echo "</defs><use xlink:href='#a30'/></svg>"
} >"$picture"
refused doubling "it repeats too much"
echo "$open<g id='b'><use xlink:href='#b'/></g></svg>" >"$picture"
refused circle "it repeats too much"
{
  echo "$open"
  for _ in $(seq 300); do printf '<g>'; done
} >"$picture"
refused deep "it is nested too deeply"
{
  echo "$open"
  head -c 1100000 /dev/zero | tr '\0' ' '
  echo "</svg>"
} >"$picture"
refused large "it is too large"
echo rubbish >"$picture"
refused rubbish "it is no picture"
mkfifo "$picture"
refused pipe "it is no plain file"

# A picture that takes for ever to draw doesn't make the program deaf.
{
  echo "$open"
  for _ in $(seq 4000); do
    echo "<path d='M0 0H76V98H0Z' stroke='red' stroke-dasharray='0.05 0.05' stroke-width='3'/>"
  done
  echo "</svg>"
} >"$picture"
(
  echo 'click frmSelect.cmdSumfall'
  echo 'click frmSumfall.cmdPlay'
  sleep 5
) | "$program" --console --seed 1 --speed 1000 --folder "$own" >/dev/null 2>&1 &
sleep 2
kill -TERM $! 2>/dev/null
for _ in $(seq 15); do
  kill -0 $! 2>/dev/null || exit 0
  sleep 0.1
done
fail "a picture made the program deaf"
