#!/bin/bash
# ./release.sh [--only x64|x86] [FOLDER]
# Builds the program for 64-bit and 32-bit Windows and leaves in dist/ (or in FOLDER) what is handed out: portable
# zips, installers, symbols, a winget manifest and SHA256SUMS.
set -euo pipefail
widths="x64 x86"
if [ "${1:-}" = --only ]; then
  widths=$2
  shift 2
fi
out=$(realpath -m "${1:-$(dirname "$0")/dist}")
cd "$(dirname "$0")"
. tools/setup.sh
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-2}"

# shellcheck disable=SC2086
install_packages $CORVELLE_BUILD_PACKAGES $CORVELLE_RELEASE_PACKAGES
mkdir -p build
builds=()
for width in $widths; do
  case $width in
    x64) preset=windows ;;
    x86) preset=windows32 ;;
    *) die "$width is neither x64 nor x86" ;;
  esac
  say "building corvelle.exe ($width)"
  configure "$preset" || die "the build could not be prepared"
  build "$preset" corvelle_package || die "corvelle.exe was not built"
  builds+=("--$width" "build/$preset")
done
say "packing"
python3 tools/make_release.py "${builds[@]}" --out "$out" || die "there is no release"
say "all of it is in $out"
