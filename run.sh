#!/bin/bash
# Builds Corvelle, lays out its folder under dist/Corvelle and starts it in a Wine desktop: on the display
# there is, until it is closed, or else on a display of its own, leaving pictures of the screen in build/.
set -euo pipefail
cd "$(dirname "$0")"
. tools/setup.sh
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-2}"

# shellcheck disable=SC2086
install_packages $CORVELLE_BUILD_PACKAGES $CORVELLE_WINE_PACKAGES
mkdir -p build
say "building corvelle.exe"
configure windows || die "the build could not be prepared"
build windows corvelle_package || die "corvelle.exe was not built"
say "laying out dist/Corvelle"
cmake --install build/windows --prefix dist/Corvelle >build/install.log ||
  die "the folder could not be laid out: see build/install.log"
exec python3 tools/run_desktop.py
