#!/bin/sh
# The desktop program finds its pictures and its sound module wherever it was installed or built; where there are none it
# says so once.
#
#   installed_test.sh CMAKE BUILD-FOLDER
set -eu
cmake=$1
build=$2
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

"$cmake" --install "$build" --prefix "$folder/a prefix" >/dev/null
expect "$folder/a prefix/bin/cardhaven" 0
[ -n "$(find "$folder/a prefix" -path '*/lib*/card-haven/cardhaven-sound.so')" ] || fail "no sound module is installed"
for page in cardhaven cardhaven-console; do
  manual="$folder/a prefix/share/man/man6/$page.6"
  [ -f "$manual" ] || fail "no manual page is installed for $page"
  command -v mandoc >/dev/null || continue
  mandoc -Tlint -Wwarning "$manual" || fail "the manual page of $page has faults"
done
[ -f "$folder/a prefix/share/doc/card-haven/console.md" ] || fail "the console's lines aren't documented"

# A build folder that doesn't lie in the source tree.
mkdir -p "$folder/elsewhere/app"
cp "$build/app/cardhaven" "$folder/elsewhere/app"
cp -R -P "$build/share" "$folder/elsewhere"
expect "$folder/elsewhere/app/cardhaven" 0

# A player's own pictures will do; without any there is one line, that names the folder.
rm -r "$folder/a prefix/share/card-haven"
expect "$folder/a prefix/bin/cardhaven" 1
case $said in
*"$folder/a prefix/share/card-haven"*) ;;
*) fail "the missing folder isn't named: $said" ;;
esac
cp "$build/share/card-haven/pictures/"*.svg "$folder/own"
expect "$folder/a prefix/bin/cardhaven" 0
