#!/bin/bash
# A signal or a lost display ends the program within a moment, and what closing it would have kept is kept.
#
#   leaving_test.sh DESKTOP-PROGRAM
set -u
program=$1
folder=$(mktemp -d)
child=
server=
trap 'kill $child $server 2>/dev/null; rm -rf "$folder"' EXIT
export SDL_AUDIODRIVER=dummy

fail() {
  echo "$*" >&2
  cat "$folder/said" >&2
  exit 1
}
# Opens Sumfall, has a score wait for its name; what follows `ready` in the output is over.
start() {
  rm -rf "$folder/own"
  mkdir -p "$folder/own"
  printf 'A, 1\r\nB, 0\r\n\r\n' >"$folder/own/HiScores30_11.Txt"
  mkfifo "$folder/own/lines"
  "$program" --console --speed 2000 --folder "$folder/own" <"$folder/own/lines" >"$folder/said" 2>&1 &
  child=$!
  exec 3>"$folder/own/lines"
  printf 'click frmSelect.cmdSumfall\nclick frmSumfall.mnu30\nclick frmSumfall.mnuHot\n' >&3
  printf 'click frmSumfall.cmdPlay\nclick frmSumfall.cmdTakeScore\nclick frmSumfall.cmdTakeScore\ntime\n' >&3
  for _ in $(seq 200); do
    grep -q "show frmHiScoreName" "$folder/said" && return
    sleep 0.1
  done
  fail "no score waits"
}
# HOW, the exit status that is expected
check() {
  started=$(date +%s%N)
  wait "$child"
  status=$?
  exec 3>&-
  [ "$status" = "$2" ] || fail "$1: ended with $status"
  # Ten times what it takes: this tells an end from a wait, and measures nothing.
  [ $((($(date +%s%N) - started) / 1000000)) -lt 2000 ] || fail "$1: didn't go"
  grep -q "^Unknown User, [0-9]*" "$folder/own/HiScores30_11.Txt" || fail "$1: the score is lost"
  tr -d '\r' <"$folder/own/Sumfall.Ini" | grep -A1 "Deck" | grep -q 4 || fail "$1: the settings are lost"
}

for signal in TERM HUP INT; do
  QT_QPA_PLATFORM=offscreen start
  kill -$signal "$child"
  check "SIG$signal" 0
done

coproc Xvfb { exec Xvfb -displayfd 1 -screen 0 1024x768x24 2>/dev/null; }
server=$Xvfb_PID
read -r number <&"${Xvfb[0]}"
export DISPLAY=:$number
unset WAYLAND_DISPLAY
QT_QPA_PLATFORM=xcb start
kill -KILL "$server"
check "a lost display" 1
