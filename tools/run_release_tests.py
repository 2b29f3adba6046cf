#!/usr/bin/env python3
"""Tests what is handed out: the headers of the programs, and installation, start, upgrade and removal under Wine.

  tools/run_release_tests.py --release DIST [--x64 BUILD] [--x86 BUILD]

Each check is one line. Ends with `release: N passed, M failed`; exit code 0 only if nothing failed and something
was checked. Installer and program of --width are run (x64 unless told otherwise). Those of x86 need a 32-bit Wine:
  tools/wine32.sh tools/run_release_tests.py --only wine --width x86
"""

import argparse
import hashlib
import os
import pathlib
import re
import signal
import subprocess
import sys
import time
import zipfile

from make_release import MARK, WIDTHS, files_below, version
from wine_session import ROOT, Session, SessionError, end_quietly

# A fifth of the 32-bit programs are tables for exceptions.
MOST_BYTES = {"corvelle.exe": {"x64": 1_665_000, "x86": 1_780_000},
              "corvelle-shell.exe": {"x64": 600_000, "x86": 700_000}}
TOOLS = {"x64": "x86_64-w64-mingw32-", "x86": "i686-w64-mingw32-"}
# Libraries that every Windows keeps a list of, so that nobody can put another in their place.
KNOWN_LIBRARIES = {"advapi32.dll", "comdlg32.dll", "gdi32.dll", "imm32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
                   "oleaut32.dll", "shell32.dll", "shlwapi.dll", "user32.dll"}
FLAGS = {"x64": {"HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT", "TERMINAL_SERVICE_AWARE"},
         "x86": {"DYNAMIC_BASE", "NX_COMPAT", "TERMINAL_SERVICE_AWARE"}}
# The headers in which the functions of those libraries are declared.
HEADERS = ("windows.h", "commdlg.h", "ddeml.h", "imm.h", "ole2.h", "oleauto.h", "shellapi.h", "shlobj.h", "shlwapi.h",
           "tlhelp32.h", "process.h", "stdio.h", "stdlib.h", "string.h", "wchar.h", "signal.h", "math.h", "time.h",
           "locale.h", "io.h", "conio.h", "setjmp.h", "sys/stat.h", "sys/timeb.h", "ctype.h", "errno.h", "fcntl.h",
           "malloc.h", "mbstring.h")
# Of the C library, which has them all in every Windows: what start-up code and compiler use without a header.
PRIVATE_C = re.compile(r"^(_|__)\w+$")
# What the check of the stack says when it fails.
GUARD = b"stack smashing detected"
# As objdump shows it.
NO_TIME = "Thu Jan  1 00:00:00 1970"
INSTALLED_FLAGS = "11000000100000000010000101000001"


class Checks:
    """Counts what held and what did not."""

    def __init__(self):
        self.passed = self.failed = 0

    def check(self, name, holds, detail=""):
        """Prints and counts one check; its answer is handed back."""
        if holds:
            self.passed += 1
            print(f"  ok     {name}", flush=True)
        else:
            self.failed += 1
            print(f"  FAILED {name} {detail}", flush=True)
        return bool(holds)


# ---- the headers of the programs ----

def parse_headers(text):
    """(flags, {library: functions}) of what objdump -p says of a program."""
    flags = set(re.findall(r"^\t+([A-Z_]+)$", text, re.MULTILINE))
    imports, names = {}, None
    for line in text.splitlines():
        library = re.match(r"\s*DLL Name: (\S+)", line)
        if library:
            names = imports.setdefault(library[1].lower(), set())
        elif names is not None:
            function = re.match(r"\s+[0-9a-f]+\s+\d+\s+(\w+)$", line)
            if function:
                names.add(function[1])
            elif not line.strip():
                names = None
    return flags, imports


def declared(width):
    """Every word in the headers of the system, as they are for Windows 7."""
    source = "".join(f"#include <{name}>\n" for name in HEADERS)
    done = subprocess.run([TOOLS[width] + "gcc-posix", "-E", "-x", "c", "-D_WIN32_WINNT=0x0601", "-DWINVER=0x0601",
                           "-DUNICODE", "-"], input=source, text=True, check=True, stdout=subprocess.PIPE)
    return set(re.findall(r"\w+", done.stdout))


def unknown_functions(imports, words):
    """Imported functions that Windows 7 does not declare."""
    return sorted(f"{library}:{name}" for library, names in imports.items() for name in names
                  if name not in words and not (library == "msvcrt.dll" and PRIVATE_C.match(name)))


def check_headers(checks, build, width):
    words = declared(width)
    for name, most in MOST_BYTES.items():
        check_program(checks, build, width, name, most[width], words)
    checks.check(f"{width}: the functions of the program, and not only of its libraries, guard the stack",
                 guards_stack(build, width))
    symbols = subprocess.run([TOOLS[width] + "objdump", "-p", build / "corvelle.debug"], text=True, check=True,
                             stdout=subprocess.PIPE).stdout
    checks.check(f"{width}: the symbols have no time of the build", NO_TIME in symbols)


def check_program(checks, build, width, name, most, words):
    """The headers, the imports and the size of one program."""
    what = f"{width}: {name}"
    program = build / name
    text = subprocess.run([TOOLS[width] + "objdump", "-p", program], text=True, check=True,
                          stdout=subprocess.PIPE).stdout
    flags, imports = parse_headers(text)
    checks.check(f"{what}: protected against common attacks", FLAGS[width] <= flags, FLAGS[width] - flags)
    if width == "x86":
        checks.check(f"{what}: may use all of its addresses", "large address aware" in text)
    checks.check(f"{what}: no debug information, no time of the build", NO_TIME in text)
    others = set(imports) - KNOWN_LIBRARIES
    checks.check(f"{what}: only known libraries of the system are loaded at once", imports and not others, others)
    unknown = unknown_functions(imports, words)
    checks.check(f"{what}: Windows 7 has every function",
                 not unknown and sum(map(len, imports.values())) > 100, unknown)
    content = program.read_bytes()
    checks.check(f"{what}: the stack is protected", GUARD in content)
    told = version_told(content)
    checks.check(f"{what}: its properties and its manifest tell the version", told == version_wanted(), told)
    checks.check(f"{what}: {len(content)} bytes are fewer than {most}", len(content) < most)


def version_wanted():
    """The version as the properties of a file and as a manifest write it."""
    shown = version()
    return shown, ".".join((shown.split(".") + ["0", "0", "0"])[:4])


def version_told(content):
    """The same of a program's bytes; empty where they tell none."""
    wide = content.decode("utf-16-le", errors="replace")
    if "ProductVersion" not in wide:  # the texts may lie at an odd place
        wide = content[1:].decode("utf-16-le", errors="replace")
    shown = re.search("ProductVersion\0+([0-9.]+)\0", wide)
    manifest = re.search(rb'name="Corvelle" version="([0-9.]+)"', content)
    return shown[1] if shown else "", manifest[1].decode("ascii") if manifest else ""


def guards_stack(build, width):
    """True if the functions of the program, and not only of the libraries in it, call the check."""
    symbols = subprocess.run([TOOLS[width] + "nm", build / "corvelle.debug"], text=True, check=True,
                             stdout=subprocess.PIPE).stdout
    return "__stack_chk_fail" in symbols


# ---- the files of the release ----

def check_files(checks, release):
    shown = version()
    sums = dict(reversed(line.split("  ")) for line in (release / "SHA256SUMS").read_text().splitlines())
    wanted = {f"corvelle-{shown}-{width}-{kind}" for width in WIDTHS
              for kind in ("portable.zip", "symbols.zip", "setup.exe")}
    checks.check("the sums name every file", set(sums) == wanted, set(sums) ^ wanted)
    wrong = [name for name, value in sums.items()
             if hashlib.sha256((release / name).read_bytes()).hexdigest() != value]
    checks.check("the sums are right", not wrong, wrong)
    for width in WIDTHS:
        told = version_told((release / f"corvelle-{shown}-{width}-setup.exe").read_bytes())[0]
        checks.check(f"{width}: the installer tells the version", told == shown, told)
        names = zipfile.ZipFile(release / f"corvelle-{shown}-{width}-portable.zip").namelist()
        needed = {f"Corvelle/{name}" for name in ("corvelle.exe", "corvelle-shell.exe", "icon.lib", "LICENSE.txt", MARK)}
        checks.check(f"{width}: the zip holds the program and its mark", needed <= set(names), names)
    manifest = (release / f"corvelle-{shown}-winget" / "Corvelle.Corvelle.installer.yaml").read_text()
    for width in WIDTHS:
        checks.check(f"{width}: the manifest has the sum of the installer",
                     sums[f"corvelle-{shown}-{width}-setup.exe"].upper() in manifest)
    checks.check("the manifest has the version", f"\nPackageVersion: {shown}\n" in manifest)


# ---- installation, start, upgrade, removal ----

def wait_for(condition, seconds=20):
    """True if the condition came to hold."""
    deadline = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > deadline:
            return False
        time.sleep(0.1)
    return True


class Machine:
    """A Windows with a user, as the installer sees it."""

    def __init__(self, session, setup):
        self.session, self.setup = session, setup
        user = next(path for path in (session.drive / "users").iterdir() if path.name != "Public")
        self.data = user / "AppData" / "Roaming" / "Corvelle"
        self.local = user / "AppData" / "Local" / "Corvelle"
        start_menu = user / "AppData" / "Roaming" / "Microsoft" / "Windows" / "Start Menu" / "Programs"
        self.menu_link = start_menu / "Corvelle.lnk"
        self.startup_link = start_menu / "StartUp" / "Corvelle.lnk"
        self.folder = session.drive / "My Tools" / "Corvelle"

    def run(self, *command, seconds=90):
        """The exit code of a Windows program; None when the time ran out."""
        # Of an installer's folder with a blank the words come one by one: quotes would be a part of its name.
        words = [word for part in command for word in part.split(" ")]
        process = self.session.start(words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None

    def install(self, *arguments, setup=None):
        (self.session.drive / "setup.exe").write_bytes((setup or self.setup).read_bytes())
        return self.run("C:\\setup.exe", "/S", *arguments)

    def uninstall(self, *arguments):
        """Runs the uninstaller itself: the installed one starts a copy of itself and returns at once."""
        copy = self.session.drive / "uninstall.exe"
        copy.write_bytes((self.folder / "uninstall.exe").read_bytes())
        return self.run("C:\\uninstall.exe", "/S", *arguments, "_?=C:\\My Tools\\Corvelle")

    def registry(self):
        """The values of the entry in "Installed apps"; none without the entry."""
        done = subprocess.run(
            ["wine", "reg", "query", r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Corvelle"],
            env=self.session.environment(), check=False, text=True, stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL, errors="replace", timeout=60)
        return dict(re.findall(r"^ +(\w+) +REG_\w+ +(.*?)\r?$", done.stdout, re.MULTILINE))

    def programs(self):
        """The processes of corvelle.exe."""
        mark = f"CORVELLE_SESSION={self.session.token}".encode()
        found = []
        for process in pathlib.Path("/proc").iterdir():
            try:
                if process.name.isdigit() and b"corvelle.exe" in (process / "cmdline").read_bytes() and \
                        mark in (process / "environ").read_bytes():
                    found.append(int(process.name))
            except OSError:
                pass
        return found

    def start(self):
        """Starts the program and waits until its strip stands."""
        self.session.start(["C:\\My Tools\\Corvelle\\corvelle.exe"], stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL)
        return wait_for(self.strip_stands)

    def strip_stands(self):
        return bool(self.programs()) and (self.data / "ShellLink").is_dir() and self.windows() > 0

    def windows(self):
        tree = subprocess.run(["xwininfo", "-root", "-tree"], env=self.session.environment(), check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              timeout=20, text=True).stdout
        return tree.count('"corvelle.exe"')

    def end(self):
        for _ in range(5):  # a start that unpacks its icons does not listen yet
            self.run("taskkill", "/im", "corvelle.exe")
            if wait_for(lambda: not self.programs(), 6):
                return True
        return False

    def crashes(self):
        """The reports of crashes."""
        return sorted(path.name for path in self.local.glob("Crashes/*"))

    def installed(self):
        return files_below(self.folder) if self.folder.is_dir() else []


def menu_bytes():
    """A menu with one entry."""
    record = "Ann's menu".ljust(50) + " " * 260 + " " * 260
    return (record + "An entry".ljust(50) + " " * 260 + "C:\\windows\\notepad.exe".ljust(260)).encode("cp1252")


def prepare_user(machine):
    """A user who has used the program before: nothing is asked at a start."""
    (machine.data / "Menus").mkdir(parents=True)
    (machine.data / "tmenu425.dat").write_bytes(INSTALLED_FLAGS.encode())
    (machine.data / "Menus" / "BMENU001.MNU").write_bytes(menu_bytes())


def check_damaged(checks, machine, setup, work):
    whole = setup.read_bytes()
    middle = len(whole) // 2
    broken = {"damaged": whole[:middle] + bytes([whole[middle] ^ 0x55]) + whole[middle + 1:],
              "cut": whole[:len(whole) * 3 // 4]}
    for name, content in broken.items():
        bad = work / f"{name}-setup.exe"
        bad.write_bytes(content)
        code = machine.install("/D=C:\\My Tools\\Corvelle", setup=bad)
        checks.check(f"a {name} installer refuses", code not in (0, None) and not machine.installed(), code)


def check_install(checks, machine, wanted):
    code = machine.install("/D=C:\\My Tools\\Corvelle")
    checks.check("it installs silently", code == 0, code)
    checks.check("every file is there, and no mark", machine.installed() == wanted, machine.installed())
    values = machine.registry()
    checks.check('"Installed apps" has it', values.get("DisplayName") == "Corvelle" and
                 values.get("DisplayVersion") == version() and
                 values.get("InstallLocation") == "C:\\My Tools\\Corvelle", values)
    checks.check("the Start Menu has it", machine.menu_link.is_file())
    checks.check("it starts with Windows only if asked", not machine.startup_link.exists())


def check_start(checks, machine, wanted):
    checks.check("it starts", machine.start())
    checks.check("the menu is the user's", (machine.data / "Menus" / "BMENU001.MNU").read_bytes() == menu_bytes())
    checks.check("nothing is written beside the program", machine.installed() == wanted, machine.installed())
    checks.check("it has not crashed", not machine.crashes(), machine.crashes())


def check_upgrade(checks, machine, wanted):
    """Over the running program, into the remembered folder."""
    before = machine.programs()
    (machine.folder / "icon.lib").write_bytes(b"an older library")
    flags = machine.data / "tmenu425.dat"
    flags.unlink()
    code = machine.install("/STARTUP")
    checks.check("it upgrades over the running program", code == 0, code)
    checks.check("the new files are there", machine.installed() == wanted and
                 (machine.folder / "icon.lib").stat().st_size > 100, machine.installed())
    # The flags were gone: only the end of the program writes them.
    checks.check("the program saved before it ended", wait_for(flags.is_file))
    checks.check("it runs again", wait_for(lambda: machine.strip_stands() and not set(machine.programs()) & set(before)),
                 (before, machine.programs()))
    checks.check("the menu is kept", (machine.data / "Menus" / "BMENU001.MNU").read_bytes() == menu_bytes())
    checks.check("it starts with Windows when asked", machine.startup_link.is_file())


def check_frozen(checks, machine, wanted):
    """An upgrade over a program that does not answer."""
    # At rest it has its window, which is asked; and the process that looks for icons is up, which goes on.
    time.sleep(3)
    frozen = machine.programs()
    for process in frozen:
        os.kill(process, signal.SIGSTOP)
    (machine.folder / "icon.lib").write_bytes(b"an older library")
    began = time.monotonic()
    code = machine.install()
    took = time.monotonic() - began
    checks.check("it upgrades over a frozen program", code == 0, code)
    # Five seconds for its answer, ten in which it could end, two for its helper; asked ten times it would be a minute.
    checks.check("it asks a frozen program once", took < 45, took)
    aside = ["corvelle-old1.exe", "corvelle-shell-old1.exe"]
    checks.check("the frozen one and its helper are put aside", machine.installed() == sorted([*wanted, *aside]),
                 machine.installed())
    for process in frozen:
        os.kill(process, signal.SIGCONT)
    checks.check("it goes on, and ends when asked", machine.end())


def check_refused(checks, machine, wanted):
    """An upgrade that may not write, and one that a file stops: the program runs on, or again."""
    machine.start()
    before = machine.programs()
    # Rights do not stop the user that tests run as: what is in the way is a folder of the name that is tried.
    (machine.folder / "~setup.tmp").mkdir()
    code = machine.install()
    checks.check("without the right to write it refuses", code == 4, code)
    checks.check("the program runs on", machine.programs() == before, (before, machine.programs()))
    (machine.folder / "~setup.tmp").rmdir()
    stop = machine.folder / "LICENSE.txt"
    stop.unlink()
    stop.mkdir()
    code = machine.install()
    checks.check("it says so when a file cannot be written", code == 4, code)
    checks.check("the program that it ended runs again",
                 wait_for(lambda: machine.strip_stands() and not set(machine.programs()) & set(before)),
                 (before, machine.programs()))
    stop.rmdir()
    checks.check("the next one goes through", machine.install() == 0 and machine.installed() == wanted,
                 machine.installed())
    checks.check("it ends once more", machine.end())


def check_frozen_removal(checks, machine):
    """A removal while the program does not answer."""
    machine.start()
    time.sleep(3)
    frozen = machine.programs()
    for process in frozen:
        os.kill(process, signal.SIGSTOP)
    code = machine.uninstall()
    checks.check("it removes itself while the program is frozen", code == 0, code)
    checks.check("nothing of the frozen program stays in the folder", not machine.folder.exists(), machine.installed())
    for process in frozen:
        os.kill(process, signal.SIGCONT)
    checks.check("the frozen one ends when asked", machine.end())
    machine.install("/STARTUP", "/D=C:\\My Tools\\Corvelle")


def check_removal(checks, machine):
    machine.start()
    code = machine.uninstall()
    checks.check("it removes itself while the program runs", code == 0, code)
    checks.check("no program is left running", wait_for(lambda: not machine.programs()))
    checks.check("all that it brought is gone", not machine.folder.exists(), machine.installed())
    checks.check("its entries are gone", not machine.registry() and not machine.menu_link.exists() and
                 not machine.startup_link.exists(), machine.registry())
    checks.check("the menus stay", (machine.data / "Menus" / "BMENU001.MNU").read_bytes() == menu_bytes())


def check_purge(checks, machine):
    machine.install("/D=C:\\My Tools\\Corvelle")
    own = machine.folder / "notes.txt"
    own.write_bytes(b"the user's own")
    (machine.local / "Crashes").mkdir(parents=True, exist_ok=True)
    code = machine.uninstall("/PURGE")
    checks.check("it purges when asked", code == 0 and not machine.data.exists() and not machine.local.exists(), code)
    checks.check("what the user put beside the program stays", machine.installed() == ["notes.txt"],
                 machine.installed())


def check_portable(checks, machine, archive_path):
    """The zip, unpacked anywhere."""
    with zipfile.ZipFile(archive_path) as archive:
        archive.extractall(machine.session.drive / "Stick")
    folder = machine.session.drive / "Stick" / "Corvelle"
    (folder / "tmenu425.dat").write_bytes(INSTALLED_FLAGS.encode())
    (folder / "Menus").mkdir()
    (folder / "Menus" / "BMENU001.MNU").write_bytes(menu_bytes())
    machine.session.start(["C:\\Stick\\Corvelle\\corvelle.exe"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    checks.check("the zip runs where it was unpacked", wait_for(lambda: machine.windows() > 0 and
                                                               (folder / "ShellLink").is_dir()))
    checks.check("it ends", machine.end())
    checks.check("the one from the zip has not crashed", not machine.crashes(), machine.crashes())
    checks.check("its data lies beside it", (folder / "tmenu425.dat").is_file() and (folder / "Icons").is_dir() and
                 not machine.data.exists())


def check_installation(checks, release, work, width):
    shown = version()
    setup = release / f"corvelle-{shown}-{width}-setup.exe"
    archive = release / f"corvelle-{shown}-{width}-portable.zip"
    names = zipfile.ZipFile(archive).namelist()
    print(f"  {width}, installed and run:", flush=True)
    brought = [name.removeprefix("Corvelle/") for name in names]
    wanted = sorted([name for name in brought if name != MARK] + ["uninstall.exe"])
    work.mkdir(parents=True, exist_ok=True)
    with Session() as session:
        machine = Machine(session, setup)
        check_damaged(checks, machine, setup, work)
        prepare_user(machine)
        check_install(checks, machine, wanted)
        check_start(checks, machine, wanted)
        check_upgrade(checks, machine, wanted)
        check_frozen(checks, machine, wanted)
        check_refused(checks, machine, wanted)
        check_frozen_removal(checks, machine)
        check_removal(checks, machine)
        check_purge(checks, machine)
        check_portable(checks, machine, archive)


def main():
    parser = argparse.ArgumentParser(description="Test what is handed out.")
    parser.add_argument("--release", type=pathlib.Path, default=ROOT / "dist")
    parser.add_argument("--x64", type=pathlib.Path, default=ROOT / "build" / "windows")
    parser.add_argument("--x86", type=pathlib.Path, default=ROOT / "build" / "windows32")
    parser.add_argument("--only", choices=["headers", "files", "wine"])
    parser.add_argument("--width", choices=WIDTHS, default="x64", help="what is installed and run")
    arguments = parser.parse_args()
    for sign in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(sign, end_quietly)
    checks = Checks()
    work = ROOT / "build" / "release-tests"
    try:
        if arguments.only in (None, "headers"):
            for width in WIDTHS:
                check_headers(checks, getattr(arguments, width), width)
        if arguments.only in (None, "files"):
            check_files(checks, arguments.release)
        if arguments.only in (None, "wine"):
            check_installation(checks, arguments.release, work, arguments.width)
    except (OSError, SessionError, subprocess.SubprocessError) as error:
        checks.check("the tests came to their end", False, error)
    if checks.passed + checks.failed == 0:
        checks.failed = 1
    print(f"release: {checks.passed} passed, {checks.failed} failed")
    return 1 if checks.failed else 0


if __name__ == "__main__":
    sys.exit(main())
