#!/usr/bin/env python3
"""A Wine desktop of one's own: a private prefix, a private display, and nothing left behind.

A template prefix is made once below build/wine and kept as long as Wine and this file stay the same. A
session copies it (the big files as hard links, which takes a moment), starts a display, and ends every
process that it started when it is left, whatever happened in between.

As a command:

  tools/wine_session.py [options] -- 'C:\\windows\\notepad.exe' [arguments]

runs one Windows program in a fresh session and gives back its exit code (124 when the time ran out).
"""

import argparse
import ctypes
import fcntl
import hashlib
import os
import pathlib
import secrets
import shutil
import signal
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
WINE_FONTS = pathlib.Path("/usr/share/wine/fonts")
# What a program may write to is copied; the rest of the template is shared by hard links.
SHARED_SUFFIXES = {".dll", ".exe", ".drv", ".sys", ".ttf", ".fon", ".nls", ".ocx", ".cpl", ".acm", ".ax",
                   ".tlb", ".vxd", ".drv16", ".exe16", ".dll16", ".mod16", ".manifest", ".cat", ".msc"}
DESKTOP = "corvelle"
TIMED_OUT = 124

# Everything here goes into the template. Associations must stand below HKEY_LOCAL_MACHINE: Wine does
# not look for them below HKEY_CURRENT_USER.
REGISTRY = r"""REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="corvelle"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"corvelle"="1024x768"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops\corvelle]
"EnableShell"=dword:00000001

[HKEY_CURRENT_USER\Control Panel\Desktop]
"LogPixels"=dword:00000060

[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\ThemeManager]
"ThemeActive"="0"

[HKEY_CURRENT_USER\Control Panel\Colors]
"ActiveBorder"="212 208 200"
"ActiveTitle"="10 36 106"
"AppWorkSpace"="128 128 128"
"Background"="58 110 165"
"ButtonAlternateFace"="181 181 181"
"ButtonDkShadow"="64 64 64"
"ButtonFace"="212 208 200"
"ButtonHilight"="255 255 255"
"ButtonLight"="212 208 200"
"ButtonShadow"="128 128 128"
"ButtonText"="0 0 0"
"GradientActiveTitle"="166 202 240"
"GradientInactiveTitle"="192 192 192"
"GrayText"="128 128 128"
"Hilight"="10 36 106"
"HilightText"="255 255 255"
"InactiveBorder"="212 208 200"
"InactiveTitle"="128 128 128"
"InactiveTitleText"="212 208 200"
"InfoText"="0 0 0"
"InfoWindow"="255 255 225"
"Menu"="212 208 200"
"MenuBar"="212 208 200"
"MenuHilight"="10 36 106"
"MenuText"="0 0 0"
"Scrollbar"="212 208 200"
"TitleText"="255 255 255"
"Window"="255 255 255"
"WindowFrame"="0 0 0"
"WindowText"="0 0 0"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\AeDebug]
"Auto"="1"
"Debugger"=""

[HKEY_LOCAL_MACHINE\Software\Classes\.txt]
@="txtfile"

[HKEY_LOCAL_MACHINE\Software\Classes\txtfile]
@="Text Document"

[HKEY_LOCAL_MACHINE\Software\Classes\txtfile\DefaultIcon]
@="C:\\windows\\notepad.exe,0"

[HKEY_LOCAL_MACHINE\Software\Classes\txtfile\shell\open\command]
@="C:\\windows\\notepad.exe \"%1\""

[HKEY_LOCAL_MACHINE\Software\Classes\.ini]
@="txtfile"

[HKEY_LOCAL_MACHINE\Software\Classes\.exe]
@="exefile"

[HKEY_LOCAL_MACHINE\Software\Classes\exefile]
@="Application"

[HKEY_LOCAL_MACHINE\Software\Classes\exefile\DefaultIcon]
@="%1"

[HKEY_LOCAL_MACHINE\Software\Classes\exefile\shell\open\command]
@="\"%1\" %*"

[HKEY_LOCAL_MACHINE\Software\Classes\.ico]
@="icofile"

[HKEY_LOCAL_MACHINE\Software\Classes\icofile]
@="Icon"

[HKEY_LOCAL_MACHINE\Software\Classes\icofile\DefaultIcon]
@="%1"

[HKEY_LOCAL_MACHINE\Software\Classes\.wit]
@="witnessfile"

[HKEY_LOCAL_MACHINE\Software\Classes\witnessfile]
@="Witness Document"

[HKEY_LOCAL_MACHINE\Software\Classes\witnessfile\shell\open\command]
@="C:\\witness\\witness.exe \"%1\""

[HKEY_LOCAL_MACHINE\Software\Classes\search-ms]
@="URL:search-ms"
"URL Protocol"=""

[HKEY_LOCAL_MACHINE\Software\Classes\search-ms\shell\open\command]
@="C:\\witness\\witness.exe \"%1\""
"""


class SessionError(Exception):
    """What went wrong, in words for the person at the terminal."""


def fix_addresses():
    """Lets what this thread starts from now on lie at the same addresses each time; false when the system
    refuses that.

    Wine needs the page at 0x7ffe0000, and its loader lies right before it. Where Linux puts the heap behind
    a program at random, within a gigabyte, one Windows program in some ten thousand finds that page taken
    and ends with exit code 1 before its first line.
    """
    query, no_randomizing = 0xffffffff, 0x0040000
    personality = ctypes.CDLL(None).personality
    personality.argtypes = [ctypes.c_ulong]
    now = personality(query)
    return now != -1 and personality(now | no_randomizing) != -1


def wine_version():
    try:
        answer = subprocess.run(["wine", "--version"], capture_output=True, text=True, timeout=60,
                                check=True, env={"PATH": os.environ.get("PATH", ""), "HOME": "/nonexistent"})
    except (OSError, subprocess.SubprocessError) as error:
        raise SessionError(f"Wine does not start: {error}") from error
    return answer.stdout.strip()


class Display:
    """An X server without a screen, on the next free number."""

    def __init__(self, size, environment):
        reader, writer = os.pipe()
        try:
            self.process = subprocess.Popen(
                ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
                 "-noreset", "-dpi", "96"],
                pass_fds=[writer], env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL, start_new_session=True)
        except OSError as error:
            os.close(reader)
            raise SessionError(f"Xvfb does not start: {error}") from error
        finally:
            os.close(writer)
        with os.fdopen(reader) as answer:
            number = answer.readline().strip()
        if not number:
            self.stop()
            raise SessionError("Xvfb ended before it had a display")
        self.name = f":{number}"

    def stop(self):
        self.process.terminate()
        try:
            self.process.wait(5)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()


def processes_marked(token):
    """The ids of the processes that carry this session's token in their environment."""
    wanted = f"CORVELLE_SESSION={token}".encode()
    found = []
    for entry in os.listdir("/proc"):
        if not entry.isdigit() or int(entry) == os.getpid():
            continue
        try:
            content = pathlib.Path("/proc", entry, "environ").read_bytes()
        except OSError:
            continue  # It ended meanwhile, or belongs to someone else.
        if wanted in content.split(b"\0"):
            found.append(int(entry))
    return found


def end_marked(token):
    """Ends what still carries the token, by id; asks first and then insists."""
    for sign in (signal.SIGTERM, signal.SIGKILL):
        deadline = time.monotonic() + 2
        while True:
            left = processes_marked(token)
            if not left:
                return
            for process in left:
                try:
                    os.kill(process, sign)
                except ProcessLookupError:
                    continue
            if time.monotonic() > deadline:
                break
            time.sleep(0.05)


def copy_prefix(source, target):
    """A prefix of its own: registry and settings copied, programs and libraries linked."""
    for folder, names, files in os.walk(source):
        here = pathlib.Path(folder)
        there = target / here.relative_to(source)
        there.mkdir(exist_ok=True)
        for name in list(names):
            if (here / name).is_symlink():
                (there / name).symlink_to(os.readlink(here / name))
                names.remove(name)
        for name in files:
            old, new = here / name, there / name
            if old.is_symlink():
                new.symlink_to(os.readlink(old))
            elif old.suffix.lower() in SHARED_SUFFIXES:
                os.link(old, new)
            else:
                shutil.copy2(old, new)


def replace_in(path, old, new):
    text = path.read_text(encoding="utf-8", errors="surrogateescape")
    if old not in text:
        raise SessionError(f"{path} does not hold {old}")
    path.write_text(text.replace(old, new), encoding="utf-8", errors="surrogateescape")


class Session:
    """One Wine desktop. Use with `with`; everything in it ends there.

    display: the name of a display to use instead of one of its own.
    """

    def __init__(self, size="1024x768", dpi=96, display=None, cache=None, verbose=False):
        self.size = size
        self.dpi = dpi
        self.given_display = display
        self.cache = pathlib.Path(cache or os.environ.get("CORVELLE_WINE_FOLDER") or ROOT / "build" / "wine")
        self.verbose = verbose
        self.token = secrets.token_hex(8)
        self.display = None
        self.folder = None
        self.lock = None

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self._stop()
            raise
        return self

    def __exit__(self, *_):
        self._stop()

    # ---- what a test or a person does in it ----

    @property
    def drive(self):
        """The folder that Windows programs see as C:."""
        return self.folder / "prefix" / "drive_c"

    def environment(self, prefix=None):
        environment = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "LANG": "C.UTF-8",
            "HOME": str(self.folder / "home"),
            "TMPDIR": str(self.folder / "home"),
            "WINEPREFIX": str(prefix or self.folder / "prefix"),
            "WINEDEBUG": os.environ.get("CORVELLE_WINEDEBUG", "-all"),
            "WINEDLLOVERRIDES": "mscoree=;mshtml=;winemenubuilder.exe=d",
            "CORVELLE_SESSION": self.token,
        }
        # How much longer than usual a test goes on.
        if "CORVELLE_TEST_TIMES" in os.environ:
            environment["CORVELLE_TEST_TIMES"] = os.environ["CORVELLE_TEST_TIMES"]
        if self.given_display:
            environment["DISPLAY"] = self.given_display
            if "XAUTHORITY" in os.environ:
                environment["XAUTHORITY"] = os.environ["XAUTHORITY"]
            elif "HOME" in os.environ:
                environment["XAUTHORITY"] = os.path.join(os.environ["HOME"], ".Xauthority")
        elif self.display:
            environment["DISPLAY"] = self.display.name
        return environment

    def start(self, command, **more):
        """Starts a Windows program (its path on the Windows side, then arguments)."""
        return subprocess.Popen(["wine", *command], env=self.environment(), stdin=subprocess.DEVNULL,
                                start_new_session=True, **more)

    def tool(self, command):
        """Runs a program of this side on the session's display; its exit code."""
        return subprocess.run(command, env=self.environment(), stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=30,
                              check=False).returncode

    def picture(self, path):
        """Saves what the display shows; false when that failed."""
        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        return self.tool(["import", "-window", "root", str(path)]) == 0

    def serve_pictures(self, requests, target):
        """Takes the pictures that a program inside asks for: NAME.request becomes NAME.done."""
        for request in sorted(requests.glob("*.request")):
            name = request.stem
            took = self.picture(target / f"{name}.png")
            request.rename(requests / (f"{name}.done" if took else f"{name}.failed"))

    # ---- beginning and end ----

    def _say(self, text):
        if self.verbose:
            print(f"wine: {text}", flush=True)

    def _start(self):
        # Where that is refused a program fails to start now and then, as it does for anybody there.
        fix_addresses()
        self._claim_folder()
        (self.folder / "home").mkdir()
        prefix = self.folder / "prefix"
        with open(self.cache / "template.lock", "w") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            copy_prefix(self._template(), prefix)
        if self.dpi != 96:
            replace_in(prefix / "user.reg", '"LogPixels"=dword:00000060',
                       f'"LogPixels"=dword:{self.dpi:08x}')
        if self.size != "1024x768":
            replace_in(prefix / "user.reg", f'"{DESKTOP}"="1024x768"', f'"{DESKTOP}"="{self.size}"')
        if not self.given_display:
            self.display = Display(self.size, self.environment())
        subprocess.run(["wineserver", "-p"], env=self.environment(), timeout=30, check=True,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def _claim_folder(self):
        """A folder of its own, whose lock says that it is in use."""
        sessions = self.cache / "sessions"
        sessions.mkdir(parents=True, exist_ok=True)
        # One at a time: a folder whose lock is not held yet looks like one that was left behind.
        with open(self.cache / "sessions.lock", "w") as turn:
            fcntl.flock(turn, fcntl.LOCK_EX)
            self._sweep(sessions)
            folder = sessions / self.token
            folder.mkdir()
            self.lock = open(folder / "lock", "w")
            fcntl.flock(self.lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
            self.folder = folder

    def _stop(self):
        if self.folder and (self.folder / "prefix").exists():
            self._end_wine()
        if self.display:
            self.display.stop()
            self.display = None
        end_marked(self.token)
        if self.folder:
            shutil.rmtree(self.folder, ignore_errors=True)
        if self.lock:
            self.lock.close()
            self.lock = None

    def _end_wine(self, prefix=None):
        try:
            subprocess.run(["wineserver", "-k"], env=self.environment(prefix), timeout=20, check=False,
                           stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        except (OSError, subprocess.TimeoutExpired):
            return  # What is left carries the token and is ended by its id.

    @staticmethod
    def _sweep(sessions):
        """Removes what sessions left whose runner was killed."""
        for folder in sessions.iterdir():
            try:
                with open(folder / "lock", "r+") as lock:
                    fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
                    end_marked(folder.name)
                    shutil.rmtree(folder, ignore_errors=True)
            except OSError:
                continue  # It is in use, or just being made or removed.

    def _template(self):
        """The template's folder; makes it when there is none for this Wine and this file."""
        source = pathlib.Path(__file__).read_bytes()
        key = hashlib.sha256(wine_version().encode() + b"\0" + source).hexdigest()[:16]
        template = self.cache / f"template-{key}"
        if not template.exists():
            for old in self.cache.glob("template-*"):
                shutil.rmtree(old, ignore_errors=True)
            self._say("making the template prefix (once, some ten seconds)")
            making = self.folder / "template"
            self._make_template(making)
            making.rename(template)
        return template

    def _make_template(self, prefix):
        environment = self.environment(prefix)
        quiet = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        display = Display("1024x768", environment)
        environment["DISPLAY"] = display.name
        try:
            subprocess.run(["wine", "wineboot", "-i"], env=environment, timeout=300, check=True, **quiet)
            subprocess.run(["wineserver", "-w"], env=environment, timeout=120, check=True, **quiet)
            fonts = prefix / "drive_c" / "windows" / "Fonts"
            fonts.mkdir(exist_ok=True)
            for font in WINE_FONTS.glob("*.*"):
                if not (fonts / font.name).exists():
                    shutil.copy2(font, fonts)
            settings = self.folder / "settings.reg"
            settings.write_text(REGISTRY.replace("\n", "\r\n"), encoding="ascii")
            subprocess.run(["wine", "regedit", "/S", f"Z:{settings}"], env=environment, timeout=120, check=True,
                           **quiet)
            subprocess.run(["wineserver", "-w"], env=environment, timeout=120, check=True, **quiet)
            if '"LogPixels"=dword:00000060' not in (prefix / "user.reg").read_text(errors="replace"):
                raise SessionError("the registry of the Wine prefix did not take its settings")
        except (OSError, subprocess.SubprocessError) as error:
            self._end_wine(prefix)
            raise SessionError(f"the Wine prefix could not be made: {error}") from error
        finally:
            display.stop()
        # The user's folders lead out of the prefix into the caller's home; they become real ones.
        for folder, names, _ in os.walk(prefix / "drive_c" / "users"):
            for name in names:
                path = pathlib.Path(folder, name)
                if path.is_symlink():
                    path.unlink()
                    path.mkdir()


def end_quietly(*_):
    raise SystemExit(130)


def run(arguments):
    with Session(size=arguments.size, dpi=arguments.dpi, display=arguments.display, verbose=True) as session:
        for place in arguments.link:
            windows, _, here = place.partition("=")
            target = session.drive / windows.replace("C:\\", "").replace("\\", "/")
            target.symlink_to(pathlib.Path(here).resolve())
        process = session.start(arguments.command)
        deadline = time.monotonic() + arguments.timeout if arguments.timeout else None
        if arguments.picture:
            time.sleep(arguments.after)
            session.picture(arguments.picture)
            if arguments.end:
                return 0
        while process.poll() is None:
            if deadline and time.monotonic() > deadline:
                print("wine: the time ran out", file=sys.stderr)
                return TIMED_OUT
            time.sleep(0.02)
        return process.returncode


def main():
    parser = argparse.ArgumentParser(description="Run a Windows program in a Wine desktop of its own.")
    parser.add_argument("--size", default="1024x768")
    parser.add_argument("--dpi", type=int, default=96, choices=[96, 120, 144])
    parser.add_argument("--display", help="use this display instead of one of its own")
    parser.add_argument("--link", action="append", default=[], metavar="C:\\Folder=HERE",
                        help="show a folder of this machine below C:")
    parser.add_argument("--picture", help="save a picture of the display there")
    parser.add_argument("--after", type=float, default=3, help="seconds before the picture")
    parser.add_argument("--end", action="store_true", help="end the session after the picture")
    parser.add_argument("--timeout", type=float, default=0, help="seconds; 0 waits for ever")
    parser.add_argument("command", nargs="+")
    for sign in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(sign, end_quietly)
    try:
        return run(parser.parse_args())
    except SessionError as error:
        print(f"wine: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
