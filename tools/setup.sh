# shellcheck shell=bash
# shellcheck disable=SC2034  # The lists are for whoever sources this.
# Sourced by run.sh and test.sh: the packages of the system that they need, and how they build.

# Debian packages that build corvelle.exe, that run it under Wine, and that the tests want besides.
CORVELLE_BUILD_PACKAGES="cmake ninja-build g++-mingw-w64-x86-64-posix googletest python3 librsvg2-bin icoutils"
CORVELLE_WINE_PACKAGES="wine wine64 fonts-wine xvfb xdotool x11-utils imagemagick"
# What a release needs besides, and what the tests want besides.
CORVELLE_RELEASE_PACKAGES="nsis g++-mingw-w64-i686-posix"
CORVELLE_TEST_PACKAGES="g++ libgtest-dev libbenchmark-dev clang-format"

say() { printf '%s: %s\n' "$(basename "$0")" "$*"; }

die() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

# missing_packages NAMES...: those that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    # The state is empty for a package that was never heard of.
    case "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" in
      installed) ;;
      *) printf '%s ' "$package" ;;
    esac
  done
}

# install_packages NAMES...: installs what is missing, or says what that is and stops.
install_packages() {
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    die "this is no Debian system; install by hand what these packages hold: $*"
  fi
  local missing runner=()
  missing=$(missing_packages "$@")
  [ -z "$missing" ] && return 0
  say "installing $missing"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || die "missing packages: $missing(neither root nor sudo is at hand)"
    runner=(sudo)
  fi
  runner+=(env DEBIAN_FRONTEND=noninteractive)
  "${runner[@]}" apt-get update -q >/dev/null || die "the package lists could not be read"
  # Word by word on purpose: the list is names and blanks.
  # shellcheck disable=SC2086
  "${runner[@]}" apt-get install -y -q --no-install-recommends $missing >/dev/null ||
    die "these packages could not be installed: $missing"
}

# A compiler cache that shares what it keeps between folders names files from the folder of the build, which the
# symbols of a release would tell.
export CCACHE_BASEDIR=

# configure PRESET: prepares build/PRESET; a compiler cache is used where there is one.
configure() {
  local launcher=()
  command -v ccache >/dev/null && launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  cmake --preset "$1" "${launcher[@]}" >"build/$1-configure.log" 2>&1 ||
    { cat "build/$1-configure.log"; return 1; }
}

# build PRESET TARGETS...: builds them (all without a name); the log is shown when that fails.
build() {
  local preset=$1
  shift
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build "build/$preset" "${targets[@]}" >"build/$preset-build.log" 2>&1 ||
    { tail -n 60 "build/$preset-build.log"; return 1; }
}
