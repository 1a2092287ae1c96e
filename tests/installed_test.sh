#!/bin/sh
# The desktop program finds its pictures and its sound module wherever it was installed or built; where there are none it
# says so once.
#
#   installed_test.sh CMAKE BUILD-FOLDER     what that build installs
#   installed_test.sh TREE                   what a package holds, without its folder usr
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
unset DESTDIR
export SDL_AUDIODRIVER=dummy XDG_DATA_HOME="$folder/data home"

fail() {
  echo "$*" >&2
  exit 1
}
# Opens the real selector and closes it again; prints what the program says on standard error.
run() {
  echo "close frmSelect" | xvfb-run -a "$1" --console --folder "$folder/own" 2>&1 >/dev/null ||
    echo "$1 ended with $?"
}
expect() { # PROGRAM, how many lines it says
  said=$(run "$1")
  [ "$(printf %s "$said" | grep -c .)" = "$2" ] || fail "$1 said:
$said
where $2 lines were expected"
}

prefix="$folder/a prefix"
if [ $# = 1 ]; then cp -R "$1" "$prefix"; else "$1" --install "$2" --prefix "$prefix" >/dev/null; fi
program=$(find "$prefix" -path "$prefix/bin/cardhaven" -o -path "$prefix/games/cardhaven")
pictures=$folder/pictures
cp -R "$prefix/share/card-haven/pictures" "$pictures"
expect "$program" 0
[ -n "$(find "$prefix" -path '*/lib*/card-haven/cardhaven-sound.so')" ] || fail "no sound module is installed"
for page in cardhaven cardhaven-console; do
  manual="$prefix/share/man/man6/$page.6"
  [ ! -f "$manual.gz" ] || gunzip "$manual.gz"
  [ -f "$manual" ] || fail "no manual page is installed for $page"
  command -v mandoc >/dev/null || continue
  mandoc -Tlint -Wwarning "$manual" || fail "the manual page of $page has faults"
done
[ -n "$(find "$prefix/share/doc" -name 'console.md*')" ] || fail "the console's lines aren't documented"

# A build folder that doesn't lie in the source tree.
if [ $# = 2 ]; then
  mkdir -p "$folder/elsewhere/app"
  cp "$2/app/cardhaven" "$folder/elsewhere/app"
  cp -R -P "$2/share" "$folder/elsewhere"
  expect "$folder/elsewhere/app/cardhaven" 0
fi

# A player's own pictures will do; without any there is one line, that names the folder.
rm -r "$prefix/share/card-haven"
expect "$program" 1
case $said in
*"$prefix/share/card-haven"*) ;;
*) fail "the missing folder isn't named: $said" ;;
esac
cp "$pictures/"*.svg "$folder/own"
expect "$program" 0
