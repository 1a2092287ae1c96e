#!/bin/sh
# ./play and the packages: nothing is asked of the network once they are there. Works on copies, with commands of its own
# before those of the machine.
set -eu
source=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder/bin" "$folder/suite/scripts"
cp "$source/play" "$folder/suite"
cp "$source/scripts/packages.sh" "$folder/suite/scripts"
calls=$folder/calls

fake() { # NAME, and what it does
  { echo '#!/bin/sh'; cat; } >"$folder/bin/$1"
  chmod +x "$folder/bin/$1"
}
fail() {
  echo "$*" >&2
  cat "$folder/output" "$folder/errors" "$calls" >&2 || true
  exit 1
}
fake apt-get <<END
echo "apt-get \$*" >>"$calls"
END
fake sudo <<'END'
[ "$1" = -n ] || exec "$@"
END
# A build that makes a program which prints its arguments.
fake cmake <<'END'
mkdir -p build/release/app
printf '#!/bin/sh\necho "started $*"\n' >build/release/app/cardhaven
chmod +x build/release/app/cardhaven
END

always="g++ cmake ninja-build qt6-base-dev libxcb1-dev libsdl2-dev libsdl2-mixer-dev nlohmann-json3-dev pkg-config
  qt6-qpa-plugins fonts-dejavu-core fonts-open-sans timgm6mb-soundfont"
list() { # "NAME..." and the line of one package more with what it provides
  { for name in $1; do echo "installed $name, "; done; echo "$2"; } >"$folder/installed"
}
fake dpkg-query <<END
cat "$folder/installed"
END
play() { (cd "$folder/suite" && PATH="$folder/bin:$PATH" ./play "$@") >"$folder/output" 2>"$folder/errors"; }

for last in 'installed qt6-svg-dev, libqt6svg6-dev (= 6.4.2-2)' 'installed qt6-svg-dev, ' \
  'installed libqt6svg6-dev, ' 'installed another, thing (= 1), libqt6svg6-dev (= 6.8)'; do
  list "$always" "$last"
  for start in first second; do
    : >"$calls"
    play --folder "a b" || fail "the $start start failed with: $last"
    [ "$(cat "$folder/output")" = "started --folder a b" ] || fail "the $start start said something with: $last"
    [ ! -s "$calls" ] || fail "the $start start asked for packages with: $last"
  done
done

# What is missing is installed, whatever its name is there; a package that was removed is missing.
for last in 'installed libqt6svg6, ' 'config-files qt6-svg-dev, libqt6svg6-dev (= 6.4.2-2)'; do
  list "$always" "$last"
  : >"$calls"
  play || fail "no start after the installation with: $last"
  [ "$(grep -c . "$calls")" = 2 ] && tail -n 1 "$calls" | grep -q ' qt6-svg-dev|libqt6svg6-dev$' ||
    fail "not the right packages were asked for with: $last"
done

# The machine itself, on which all was installed to build this.
rm "$folder/bin/dpkg-query"
: >"$calls"
command -v dpkg-query >/dev/null || exit 0
play || fail "no start with this machine's packages"
[ ! -s "$calls" ] || fail "packages are asked for which this machine has"
