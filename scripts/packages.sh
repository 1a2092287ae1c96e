# Sourced by ./play and ./check: sees to it that Debian packages are installed.

play_packages="g++ cmake ninja-build qt6-base-dev libqt6svg6-dev libsdl2-dev libsdl2-mixer-dev nlohmann-json3-dev
  qt6-qpa-plugins fonts-dejavu-core timgm6mb-soundfont"
check_packages="$play_packages libgtest-dev libbenchmark-dev xvfb xauth clang-format"

# Installs what is missing of the named packages, or says what is missing and fails.
need_packages() {
  command -v dpkg-query >/dev/null || return 0 # another system: its own package manager has to do
  missing=""
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q '^install ok installed' || missing="$missing $package"
  done
  [ -z "$missing" ] && return 0
  if [ "$(id -u)" = 0 ]; then
    as_root=""
  elif command -v sudo >/dev/null && sudo -n true 2>/dev/null || { command -v sudo >/dev/null && [ -t 0 ]; }; then
    as_root="sudo"
  else
    echo "These packages are missing, and I may not install them:$missing" >&2
    echo "Please have them installed: apt-get install$missing" >&2
    return 1
  fi
  echo "Installing:$missing"
  $as_root apt-get update -qq &&
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null || {
    echo "The packages couldn't be installed:$missing" >&2
    return 1
  }
}
