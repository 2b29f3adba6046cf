#!/bin/bash
# tools/wine32_root.sh FOLDER, from the root of the sources: makes a small 32-bit Debian with a 32-bit Wine below FOLDER, for
# `tools/run_release_tests.py --wine32 FOLDER`. Needs root, the package debootstrap, the network and 1.5 GB.
set -euo pipefail
mkdir -p "$1"
folder=$(realpath "$1")
command -v debootstrap >/dev/null || { echo "wine32_root.sh: debootstrap is missing" >&2; exit 1; }
[ "$(id -u)" -eq 0 ] || { echo "wine32_root.sh: only root can make a root folder" >&2; exit 1; }
if [ ! -x "$folder/root/usr/bin/wine" ]; then
  rm -rf "$folder/root"
  debootstrap --arch=i386 --variant=minbase --include=wine32,wine,fonts-wine bookworm "$folder/root" \
    http://deb.debian.org/debian
fi
# Wine runs in there, with the folders of out here. Each process has mounts of its own, which end with it.
mkdir -p "$folder/bin" "$folder/root$PWD"
for program in wine wineserver; do
  cat >"$folder/bin/$program" <<WRAPPER
#!/bin/bash
exec unshare --mount bash -c '
  for shared in /proc /dev /tmp "$PWD"; do mount --bind "\$shared" "$folder/root\$shared" || exit 1; done
  here=\$PWD
  [ -d "$folder/root\$here" ] || here=/
  exec chroot "$folder/root" /usr/bin/env -C "\$here" $program "\$@"' $program "\$@"
WRAPPER
  chmod +x "$folder/bin/$program"
done
