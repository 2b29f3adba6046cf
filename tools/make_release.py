#!/usr/bin/env python3
"""Makes what is handed out, from programs that are built already.

  tools/make_release.py [--x64 BUILD] [--x86 BUILD] --out DIST [--work DIR]

The folder of each width that is named is staged once, by `cmake --install`; from it come a portable zip, an
installer and a zip of symbols. Beside them: SHA256SUMS and a winget manifest. Every file in them has the time of
the version, which CHANGELOG.md gives, and the order of its name, so that the same sources give the same bytes.
"""

import argparse
import calendar
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
WIDTHS = ("x64", "x86")
# Where the files will be found; the manifest must name a place.
URL = os.environ.get("CORVELLE_RELEASE_URL", "https://corvelle.example/releases")
MARK = "portable"


class ReleaseError(Exception):
    """Why there is no release."""


def version():
    """The version, from the one place that holds it."""
    found = re.search(r"^project\(Corvelle VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"),
                      re.MULTILINE)
    return found[1]


def day_of(wanted, text):
    """(day, seconds): when a version came out, as the text of CHANGELOG.md says."""
    found = re.search(rf"^## {re.escape(wanted)} \((\d{{4}}-\d\d-\d\d)\)$", text, re.MULTILINE)
    if not found:
        raise ReleaseError(f"CHANGELOG.md has no line '## {wanted} (year-month-day)'")
    return found[1], calendar.timegm(time.strptime(found[1], "%Y-%m-%d"))


def files_below(folder):
    """Paths from the folder, with slashes, in the order of their letters."""
    return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*") if path.is_file())


def stage(build, folder, seconds):
    """Lays out the folder of one width."""
    shutil.rmtree(folder, ignore_errors=True)
    subprocess.run(["cmake", "--install", str(build), "--prefix", str(folder)], check=True,
                   stdout=subprocess.DEVNULL)
    # The user's own list of search engines is made at the first start; unpacked over an older folder, this one
    # would take its place.
    (folder / "netsrch.ini").unlink(missing_ok=True)
    for path in [folder, *folder.rglob("*")]:
        os.chmod(path, 0o755 if path.is_dir() else 0o644)
        os.utime(path, (seconds, seconds))


def zip_files(target, files, seconds):
    """Packs (name, path) pairs."""
    when = time.gmtime(seconds)[:6]
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name, path in sorted(files):
            entry = zipfile.ZipInfo(name, when)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0
            archive.writestr(entry, path.read_bytes())


def removal_list(folder):
    """The lines of the installer's script that take away what it brought, and the folders that are empty then."""
    names = [name for name in files_below(folder) if name != MARK]
    folders = {parent.as_posix() for name in names for parent in pathlib.PurePosixPath(name).parents} - {"."}
    lines = [f'Delete "$INSTDIR\\{name}"' for name in names]
    lines += [f'RMDir "$INSTDIR\\{name}"' for name in sorted(folders, key=len, reverse=True)]
    return "".join(line.replace("/", "\\") + "\n" for line in lines)


def make_setup(width, folder, icon, target, seconds, work):
    """The installer of one width."""
    listing = work / f"files-{width}.nsh"
    listing.write_text(removal_list(folder), encoding="ascii")
    shown = version()
    four = ".".join((shown.split(".") + ["0", "0", "0"])[:4])
    here = ROOT / "tools" / "installer"
    defines = {"VERSION": shown, "VERSION_FOUR": four, "ARCH": width, "STAGE": folder, "FILES": listing,
               "ICON": icon, "OUT": target}
    command = ["makensis", "-V2", "-WX", "-NOCD", *[f"-D{name}={value}" for name, value in defines.items()],
               str(here / "corvelle.nsi")]
    done = subprocess.run(command, check=False, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          env=dict(os.environ, SOURCE_DATE_EPOCH=str(seconds), LC_ALL="C.UTF-8"))
    if done.returncode != 0:
        raise ReleaseError(f"makensis: {done.stdout}")


def sum_of(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def winget(shown, day, setups):
    """The three files of a winget manifest: {name: text}."""
    head = f"PackageIdentifier: Corvelle.Corvelle\nPackageVersion: {shown}\n"
    installers = "".join(
        f"  - Architecture: {width}\n    InstallerUrl: {URL}/{shown}/{path.name}\n"
        f"    InstallerSha256: {sum_of(path).upper()}\n" for width, path in setups)
    return {
        "Corvelle.Corvelle.yaml": head + "DefaultLocale: en-US\nManifestType: version\nManifestVersion: 1.6.0\n",
        "Corvelle.Corvelle.installer.yaml": head +
        "InstallerType: nullsoft\nScope: user\nUpgradeBehavior: install\nMinimumOSVersion: 6.1.7601.0\n"
        f"ReleaseDate: {day}\nInstallers:\n{installers}ManifestType: installer\nManifestVersion: 1.6.0\n",
        "Corvelle.Corvelle.locale.en-US.yaml": head +
        "PackageLocale: en-US\nPublisher: the Corvelle authors\nPackageName: Corvelle\nLicense: MIT\n"
        "ShortDescription: A strip of menus of your programs, documents, folders and addresses.\n"
        "ManifestType: defaultLocale\nManifestVersion: 1.6.0\n",
    }


def make(builds, out, work):
    shown = version()
    day, seconds = day_of(shown, (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"))
    work.mkdir(parents=True, exist_ok=True)
    out.mkdir(parents=True, exist_ok=True)
    for old in out.glob("corvelle-*"):
        shutil.rmtree(old) if old.is_dir() else old.unlink()
    setups = []
    for width, build in builds.items():
        folder = work / width / "Corvelle"
        stage(build, folder, seconds)
        zip_files(out / f"corvelle-{shown}-{width}-portable.zip",
                  [(f"Corvelle/{name}", folder / name) for name in files_below(folder)], seconds)
        zip_files(out / f"corvelle-{shown}-{width}-symbols.zip",
                  [("corvelle.debug", build / "corvelle.debug")], seconds)
        setup = out / f"corvelle-{shown}-{width}-setup.exe"
        make_setup(width, folder, build / "icons" / "corvelle.ico", setup, seconds, work)
        setups.append((width, setup))
    manifest = out / f"corvelle-{shown}-winget"
    manifest.mkdir()
    for name, text in winget(shown, day, setups).items():
        (manifest / name).write_text(text, encoding="ascii")
    names = [path for path in sorted(out.glob(f"corvelle-{shown}-*")) if path.is_file()]
    (out / "SHA256SUMS").write_text("".join(f"{sum_of(path)}  {path.name}\n" for path in names), encoding="ascii")
    return names


def main():
    parser = argparse.ArgumentParser(description="Make what is handed out from programs that are built.")
    for width in WIDTHS:
        parser.add_argument(f"--{width}", type=pathlib.Path, metavar="BUILD")
    parser.add_argument("--out", type=pathlib.Path, default=ROOT / "dist")
    parser.add_argument("--work", type=pathlib.Path, default=ROOT / "build" / "release")
    arguments = parser.parse_args()
    try:
        named = {width: getattr(arguments, width) for width in WIDTHS}
        builds = {width: build.resolve() for width, build in named.items() if build}
        if not builds:
            raise ReleaseError("no build is named")
        names = make(builds, arguments.out.resolve(),
                     arguments.work.resolve())
    except (OSError, ReleaseError, subprocess.SubprocessError) as error:
        print(f"release: {error}", file=sys.stderr)
        return 1
    for path in names:
        print(f"release: {path.name} ({path.stat().st_size} bytes)")
    return 0


if __name__ == "__main__":
    sys.exit(main())
