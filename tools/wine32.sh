#!/bin/bash
# tools/wine32.sh COMMAND...
# Runs a command in which `wine` is a 32-bit Wine: Debian cannot install one beside the 64-bit one, so it lies in a small
# i386 system below build/wine32, which the first call makes (as root, some two minutes), and runs there by chroot. So
# does `cc`, for the library that is loaded into Wine's processes.
# Exit code 77, with a word, where such a system cannot be had; else that of the command.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
. tools/setup.sh
here=$PWD
system=$here/build/wine32/system

cannot() {
  say "there is no 32-bit Wine: $*"
  exit 77
}

[ $# -gt 0 ] || die "which command?"
[ "$(id -u)" -eq 0 ] || cannot "only root may change the root folder"
if [ ! -e "$system/made" ] || [ ! -e "$system/usr/bin/cc" ]; then
  say "making a small i386 system"
  install_packages debootstrap
  rm -rf --one-file-system "$system"
  mkdir -p "$system"
  debootstrap --arch=i386 --variant=minbase --include=wine,wine32,gcc,libc6-dev bookworm "$system" >build/wine32.log 2>&1 ||
    cannot "debootstrap failed, see build/wine32.log"
  touch "$system/made"
fi
mkdir -p build/wine32/bin
for program in wine wineserver cc; do
  printf '#!/bin/sh\nexec %s "%s" env PATH=/usr/bin:/bin %s "$@"\n' "$(command -v chroot)" "$system" "$program" >"build/wine32/bin/$program"
  chmod +x "build/wine32/bin/$program"
done
# What is mounted here is seen by the command alone and ends with it. The folders keep their names inside.
export CORVELLE_WINE_FOLDER=$here/build/wine32/sessions PATH=$here/build/wine32/bin:$PATH
unshare --mount true || cannot "nothing may be mounted"
# shellcheck disable=SC2016
exec unshare --mount sh -ec '
  system=$1; here=$2; shift 2
  for folder in /proc /dev /tmp "$here"; do
    mkdir -p "$system$folder"
    mount --rbind "$folder" "$system$folder"
  done
  exec "$@"' sh "$system" "$here" "$@"
