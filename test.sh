#!/bin/bash
# Installs what is missing, builds and runs every test: natively with the sanitizers on the simulated
# desktop, then the Windows side and the real corvelle.exe under Wine. The last line tells the totals.
# A release is made and tested too. With CORVELLE_RELEASE=1 it is also built once more in another folder, to compare its
# bytes, and the 32-bit one is installed and run, with all the tests that run on Windows.
set -uo pipefail
cd "$(dirname "$0")" || exit 1
. tools/setup.sh
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-2}"
export LC_ALL=C.UTF-8

passed=0
failed=0

# add "N passed, M failed": takes a stage's figures into the totals.
add() {
  local figures=$1
  if [[ $figures =~ ([0-9]+)\ passed,\ ([0-9]+)\ failed ]]; then
    passed=$((passed + BASH_REMATCH[1]))
    failed=$((failed + BASH_REMATCH[2]))
  else
    failed=$((failed + 1))
  fi
}

# stage NAME COMMAND...: runs it; what fails without figures of its own counts as one failure.
stage() {
  local name=$1 began=$SECONDS
  shift
  say "$name"
  if "$@"; then
    say "$name: done in $((SECONDS - began)) s"
  else
    say "$name: FAILED after $((SECONDS - began)) s"
    failed=$((failed + 1))
    return 1
  fi
}

build_native() { configure asan && build asan; }
build_windows() {
  # What an earlier layout left in the folder is no part of this one.
  configure windows && build windows && rm -rf build/windows/package &&
    cmake --install build/windows --prefix build/windows/package >build/windows-install.log
}
build_windows32() { configure windows32 && build windows32 corvelle_package; }

# The system lays programs out at random addresses, and where it does so over 32 bits the address sanitizer of this
# compiler dies at its start now and then.
at_fixed_addresses() {
  if setarch "$(uname -m)" -R true 2>/dev/null; then
    setarch "$(uname -m)" -R "$@"
  else
    "$@"
  fi
}

# Where tests write their files: in memory where it has a gigabyte to spare, since a disk is waited for.
memory_or_disk() {
  local free
  free=$(df --output=avail -k /dev/shm 2>/dev/null | tail -n 1)
  if [ -w /dev/shm ] && [ "${free:-0}" -gt 1000000 ]; then
    echo /dev/shm
  else
    echo "${TMPDIR:-/tmp}"
  fi
}

run_native() {
  # Beside the fixed ones, two monkeys of each run have seeds of their own: this number and 1 or 2.
  export CORVELLE_MONKEY_SEED="${CORVELLE_MONKEY_SEED:-$(date +%s)}"
  say "the monkeys' own seeds: $((CORVELLE_MONKEY_SEED + 1)) and $((CORVELLE_MONKEY_SEED + 2))"
  rm -rf build/asan/results build/asan/ctest.xml
  local files
  files=$(mktemp -d "$(memory_or_disk)/corvelle-tests.XXXXXX") || return 1
  TMPDIR=$files GTEST_OUTPUT="xml:$PWD/build/asan/results/" at_fixed_addresses ctest --test-dir build/asan \
    -j "$CMAKE_BUILD_PARALLEL_LEVEL" --output-on-failure --no-tests=error \
    --output-junit "$PWD/build/asan/ctest.xml" >build/asan-tests.log 2>&1 || cat build/asan-tests.log
  rm -rf "$files"
  python3 tools/totals.py build/asan/ctest.xml build/asan/results | tee build/native-totals.txt
  add "$(tail -n 1 build/native-totals.txt)"
}

run_wine() {
  python3 tools/run_windows_tests.py | tee build/wine-totals.txt
  add "$(tail -n 1 build/wine-totals.txt)"
}

build_release() {
  python3 tools/make_release.py --x64 build/windows --x86 build/windows32 --out build/release/dist
}

run_release() {
  python3 tools/run_release_tests.py --release build/release/dist | tee build/release-totals.txt
  add "$(tail -n 1 build/release-totals.txt)"
}

run_reproducible() {
  tools/check_reproducible.sh build/release/dist x64 >build/reproducible.txt 2>&1 || cat build/reproducible.txt
  add "$(tail -n 1 build/reproducible.txt)"
}

# What needs a 32-bit Wine; what was not run is not counted.
run_32bits() {
  build windows32 && rm -rf build/windows32/package &&
    cmake --install build/windows32 --prefix build/windows32/package >build/windows32-install.log || return 1
  local code
  tools/wine32.sh wine --version
  code=$?
  if [ "$code" -eq 77 ]; then
    say "NOT RUN: the 32-bit program, installed or not"
    return 0
  fi
  [ "$code" -eq 0 ] || return 1
  tools/wine32.sh tools/run_release_tests.py --release build/release/dist --only wine --width x86 |
    tee build/release32-totals.txt
  add "$(tail -n 1 build/release32-totals.txt)"
  tools/wine32.sh tools/run_windows_tests.py --build build/windows32 --out build/wine32/out | tee build/wine32-totals.txt
  add "$(tail -n 1 build/wine32-totals.txt)"
}

# shellcheck disable=SC2086
install_packages $CORVELLE_BUILD_PACKAGES $CORVELLE_WINE_PACKAGES $CORVELLE_RELEASE_PACKAGES $CORVELLE_TEST_PACKAGES
mkdir -p build
stage "native build, with the address and undefined behaviour sanitizers" build_native &&
  stage "native tests" run_native
stage "build for Windows" build_windows && stage "tests under Wine" run_wine
stage "build for 32-bit Windows" build_windows32 && stage "release" build_release &&
  stage "tests of the release" run_release && if [ -n "${CORVELLE_RELEASE:-}" ]; then
  stage "the same release from another folder" run_reproducible
  stage "the 32-bit program" run_32bits
fi

say "$SECONDS s"
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
