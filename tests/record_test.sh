#!/bin/sh
# What `--record` writes and when, and what `--verify` says of it.
#
#   record_test.sh CONSOLE-PROGRAM
set -eu
console=$1
folder=$(mktemp -d)
trap 'chmod -R u+w "$folder"; rm -rf "$folder"' EXIT
cd "$folder"
fail() { echo "$*" >&2; exit 1; }
play() { "$console" --folder suite --seed 3 --start 2024-02-29T23:59:50 "$@"; }

cat >game <<'END'
click frmSelect.cmdSumfall
click frmSumfall.cmdPlay
advance 20000
click frmSumfall.PlayCardPicture
click frmSumfall.cmdPlay
END
{ cat game; echo 'answer "Yes"'; } >ended
{ cat ended; sed 1d game; echo quit; } >cut

play <ended >plain
rm -r suite
play --record one <ended >recorded 2>errors
cmp plain recorded || fail "a record changes what is said"
[ ! -s errors ] || fail "errors: $(cat errors)"
[ "$("$console" --verify one)" = "holds Sumfall 90_11 -100 0 2024-03-01T00:00:10+00:00" ] ||
  fail "said: $("$console" --verify one)"
rm -r suite
play --record two <cut >/dev/null
grep -c '^ *end ' two | grep -qx 1 || fail "what was cut off is in the record"

# A game that gets into its table: the place is known before the name is.
for place in 1 2 3 4 5 6 7 8 9 10; do printf 'Nobody, %d\r\n' $((900 - place * 400)); done >suite/HiScores90_11.Txt
{ head -n 2 game; echo 'advance 300000'; } >played
play --record placed <played >/dev/null
"$console" --verify placed | grep -qx 'holds Sumfall 90_11 0 3 2024-03-01T[0-9:]*+00:00' || fail "said: $("$console" --verify placed)"

# The same record proves an entry of its table, and no better one.
mkdir suite/records
cp placed suite/records/a.record
for score in 0 500; do
  printf 'Ada, %d\r\nNobody, -300\r\n' $score >suite/HiScores90_11.Txt
  printf 'table,record,score,name\r\nHiScores90_11.Txt,a.record,%d,Ada\r\n' $score >suite/records/Entries.csv
  status=0
  "$console" --folder suite --verify-tables >said || status=$?
  grep -qx 'HiScores90_11.Txt 2 Nobody, -300: unproved' said || fail "said: $(cat said)"
  if [ $score = 0 ]; then wanted='holds Sumfall'; else wanted='fails: it is of another game'; fi
  grep -q "^HiScores90_11.Txt 1 Ada, $score: $wanted" said || fail "said: $(cat said)"
  [ $status = $((score > 0)) ] || fail "status $status"
done

rm said
# A line a file, in order, and the worst status; nothing is written beside.
sed 's/^ *click 0 frmSumfall.PlayCardPicture$//;/^$/d' one >changed
echo nonsense >nonsense
head -c 1100000 /dev/zero >large
ls >before
status=0
"$console" --verify one changed two >said || status=$?
[ $status = 1 ] || fail "status $status"
sed 's/\(holds\|fails:\).*/\1/' said | tr '\n' ' ' | grep -qx 'holds fails: holds ' || fail "said: $(cat said)"
status=0
"$console" --verify nonsense changed large none . >said || status=$?
[ $status = 2 ] || fail "status $status"
[ "$(grep -c '^no record: ' said)" = 4 ] || fail "said: $(cat said)"
rm said
ls | cmp - before || fail "something was written"

# What can't be written costs only the record.
rm -r suite
play --record nowhere/one <ended >recorded 2>errors
cmp plain recorded || fail "a record that can't be written changes what is said"
[ "$(wc -l <errors)" = 1 ] || fail "errors: $(cat errors)"
rm -r suite
play --record=. <ended >recorded 2>errors
[ "$(wc -l <errors)" = 1 ] || fail "errors: $(cat errors)"
for wrong in '--verify' '--record' '--record='; do
  status=0
  "$console" $wrong </dev/null >/dev/null 2>&1 || status=$?
  [ $status = 2 ] || fail "$wrong: status $status"
done
