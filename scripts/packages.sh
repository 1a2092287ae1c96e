# Sourced by ./play and ./check: sees to it that Debian packages are installed. "a|b" is met by either; the first one that
# the system knows is installed. A package that another one provides counts as installed.

play_packages="g++ cmake ninja-build qt6-base-dev qt6-svg-dev|libqt6svg6-dev libxcb1-dev libsdl2-dev libsdl2-mixer-dev
  nlohmann-json3-dev pkg-config|pkgconf qt6-qpa-plugins fonts-dejavu-core fonts-open-sans timgm6mb-soundfont"
check_packages="$play_packages clang libclang-rt-dev llvm clang-format libgtest-dev libbenchmark-dev python3 xvfb xauth
  dbus-daemon at-spi2-core"
web_packages="cmake ninja-build clang-22 lld-22 llvm libc++-22-dev-wasm32 libc++abi-22-dev-wasm32 libclang-rt-22-dev-wasm32 wasi-libc
  nlohmann-json3-dev python3 python3-fonttools python3-brotli opus-tools fonts-open-sans"
web_host_packages="nodejs npm"
web_check_packages="$web_host_packages chromium firefox-esr webkit2gtk-driver xvfb"
package_packages="$play_packages debhelper dpkg-dev"

# Prints those of the named packages that aren't installed. Asks the local list only: every start comes through here.
missing_packages() {
  dpkg-query -W -f '${db:Status-Status} ${Package}, ${Provides}\n' | awk -v wanted="$*" '
    $1 == "installed" {
      sub(/^installed /, "")
      gsub(/\([^)]*\)/, "")
      count = split($0, names, /[ ,]+/)
      for (i = 1; i <= count; i++) here[names[i]] = 1
    }
    END {
      count = split(wanted, packages, " ")
      for (i = 1; i <= count; i++) {
        alternatives = split(packages[i], names, "|")
        found = 0
        for (j = 1; j <= alternatives; j++) if (names[j] in here) found = 1
        if (!found) print packages[i]
      }
    }'
}

# Installs what is missing of the named packages, or says what is missing and fails.
need_packages() {
  command -v dpkg-query >/dev/null || return 0 # another system: its own package manager has to do
  missing=$(missing_packages "$@")
  [ -z "$missing" ] && return 0
  plain=$(for package in $missing; do printf ' %s' "${package%%|*}"; done)
  if [ "$(id -u)" = 0 ]; then
    as_root=""
  elif command -v sudo >/dev/null && sudo -n true 2>/dev/null || { command -v sudo >/dev/null && [ -t 0 ]; }; then
    as_root="sudo"
  else
    echo "These packages are missing, and I may not install them:$plain" >&2
    echo "Please have them installed: apt-get install$plain" >&2
    return 1
  fi
  echo "Installing:$plain"
  $as_root apt-get update -qq &&
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get satisfy -y -qq --no-install-recommends \
      "$(echo $missing | sed 's/ /, /g')" >/dev/null || {
    echo "The packages couldn't be installed:$plain" >&2
    return 1
  }
}
