#!/bin/bash
# A signal, the session's end or a lost display ends the program within a moment, and what closing it would have kept is kept.
#
#   leaving_test.sh CONSOLE-PROGRAM FAULTS-SHIM [DESKTOP-PROGRAM]
set -u
console=$1
shim=$2
desktop=${3:-}
folder=$(mktemp -d)
own=$folder/own
child=
server=
manager=
trap 'kill $child $server $manager 2>/dev/null; rm -rf "$folder"' EXIT
export SDL_AUDIODRIVER=dummy ASAN_OPTIONS=verify_asan_link_order=0
unset SESSION_MANAGER

fail() {
  echo "$*" >&2
  cat "$folder/said" >&2
  exit 1
}
# Whether a line with that text comes in the output.
says() {
  for _ in $(seq 200); do
    grep -q "$1" "$folder/said" && return
    sleep 0.1
  done
  fail "never said: $1"
}
# Opens Sumfall with that program, has a score wait for its name.
start() {
  rm -rf "$own"
  mkdir -p "$own"
  printf 'A, 1\r\nB, 0\r\n\r\n' >"$own/HiScores30_11.Txt"
  mkfifo "$own/lines"
  "$@" --folder "$own" <"$own/lines" >"$folder/said" 2>&1 &
  child=$!
  exec 3>"$own/lines"
  printf 'click frmSelect.cmdSumfall\nclick frmSumfall.mnu30\nclick frmSumfall.mnuHot\n' >&3
  printf 'click frmSumfall.cmdPlay\nclick frmSumfall.cmdTakeScore\nclick frmSumfall.cmdTakeScore\ntime\n' >&3
  says "show frmHiScoreName"
}
# HOW, the exit status that is expected
gone() {
  # A hundred times what it takes, since the machine may be at work elsewhere: this tells an end from a wait.
  for _ in $(seq 300); do
    kill -0 "$child" 2>/dev/null || break
    sleep 0.1
  done
  kill -0 "$child" 2>/dev/null && fail "$1: didn't go"
  wait "$child"
  status=$?
  child=
  exec 3>&-
  [ "$status" = "$2" ] || fail "$1: ended with $status"
}
settings() { tr -d '\r' <"$own/Sumfall.Ini" 2>/dev/null | grep -A1 "Deck" | grep -q 4 || fail "$1: the settings are lost"; }
score() { [ "$(grep -c "^Unknown User, [0-9]*" "$own/HiScores30_11.Txt")" = 1 ] || fail "$1: the score is lost"; }
check() {
  gone "$@"
  score "$1"
  settings "$1"
}

programs=("$console")
[ -z "$desktop" ] || programs+=("$desktop --console --speed 2000")
export QT_QPA_PLATFORM=offscreen
for program in "${programs[@]}"; do
  for signal in TERM HUP INT; do
    start $program
    kill -$signal "$child"
    check "SIG$signal" 0
  done

  # A disk on which each file takes a minute isn't waited for.
  start env FAULT_FOLDER="$own" FAULT_SYNC=60000 FAULT_LATER="$folder/slow" LD_PRELOAD="$shim" $program
  touch "$folder/slow"
  kill -TERM "$child"
  check "a slow disk" 0
  rm "$folder/slow"

  # Nor another copy that has the table: the entry is added by the next that looks at it.
  start $program
  flock -o "$own" sleep 100 >/dev/null 2>&1 &  # its end is nobody's to wait for
  other=$!
  sleep 0.3
  kill -TERM "$child"
  gone "a busy table" 0
  kill "$other"
  wait "$other" 2>/dev/null
  settings "a busy table"
  grep -q "^Unknown" "$own/HiScores30_11.Txt" && fail "the table was written without the lock"
  for _ in 1 2; do printf 'click frmSelect.cmdSumfall\nclick frmSumfall.mnu30\n' | "$console" --folder "$own" >/dev/null; done
  score "a busy table"
  [ -z "$(find "$own" -name '*.late-*')" ] || fail "notes are left"
done

# A reader that has stopped reading doesn't make the console deaf, nor does a command that takes for ever.
rm -rf "$own"
mkdir "$own"
mkfifo "$folder/unread"
(
  printf 'click frmSelect.cmdSumfall\nclick frmSumfall.mnuHot\n'
  yes 'dump frmSumfall'
) | "$console" --folder "$own" >"$folder/unread" 2>"$folder/said" &
child=$!
exec 4<"$folder/unread"
sleep 1
kill -TERM "$child"
gone "an unread output" 0
exec 4<&-
settings "an unread output"
start "$console"
printf 'type frmHiScoreName.lblPlayerName "Unknown User"\nclick frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone\n' >&3
printf 'advance 2000000000\n' >&3
says "unload frmHighScores"
kill -TERM "$child"
check "a long command" 0

[ -n "$desktop" ] || exit 0
coproc Xvfb { exec Xvfb -displayfd 1 -screen 0 1024x768x24 2>/dev/null; }
server=$Xvfb_PID
read -r number <&"${Xvfb[0]}"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

# The session asks first; then it may end, or go on.
mkfifo "$folder/session"
python3 "$(dirname "$0")/session_manager.py" "$folder/socket" <"$folder/session" >"$folder/managed" &
manager=$!
exec 5>"$folder/session"
until read -r _ SESSION_MANAGER <"$folder/managed"; do sleep 0.1; done
export SESSION_MANAGER
start "$desktop" --console --speed 2000
rm "$own/Sumfall.Ini"
for _ in $(seq 100); do [ "$(grep -c kept "$folder/managed")" = 1 ] && break; sleep 0.1; done
echo save >&5
for _ in $(seq 100); do [ "$(grep -c kept "$folder/managed")" = 2 ] && break; sleep 0.1; done
settings "a session that asks"
grep -q "^Unknown" "$own/HiScores30_11.Txt" && fail "a session that may go on has ended the game"
echo end >&5
check "the session's end" 0
unset SESSION_MANAGER

start "$desktop" --console --speed 2000
kill -KILL "$server"
check "a lost display" 1
