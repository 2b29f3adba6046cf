#!/bin/bash
# tools/check_reproducible.sh RELEASE [WIDTHS]
# Builds the release once more from a copy of the sources in another folder, without a compiler cache, and compares
# it byte by byte with RELEASE. WIDTHS: "x64" (the default), "x86" or "x64 x86". The last line tells the total.
set -uo pipefail
release=$(realpath "$1")
widths=${2:-x64}
cd "$(dirname "$0")/.." || exit 1
copy=$PWD/build/another-folder/with/a-longer-name
rm -rf build/another-folder
mkdir -p "$copy"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$copy" || exit 1
passed=0
failed=0
for width in $widths; do
  CCACHE_DISABLE=1 "$copy/release.sh" --only "$width" "$copy/dist-$width" || exit 1
  for file in "$copy/dist-$width"/corvelle-*.zip "$copy/dist-$width"/corvelle-*.exe; do
    if cmp "$file" "$release/$(basename "$file")"; then
      passed=$((passed + 1))
    else
      failed=$((failed + 1))
    fi
  done
done
echo "reproducible: $passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
