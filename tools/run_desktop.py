#!/usr/bin/env python3
"""Starts the program of dist/Corvelle in a Wine desktop.

On the display of $DISPLAY it stays until the program is closed. Without one it uses a display of its own,
leaves build/screen.png (the strip) and build/screen-menu.png (the menu of its second button), and ends the
program as a user would. What the program writes into its folder stays in dist/Corvelle.
"""

import os
import re
import signal
import subprocess
import sys
import time

from wine_session import ROOT, Session, SessionError, end_quietly

FOLDER = ROOT / "dist" / "Corvelle"
PICTURES = ROOT / "build"


def say(text):
    print(f"run.sh: {text}", flush=True)


def display_works(name):
    """True if an X server answers there."""
    if not name:
        return False
    return subprocess.run(["xdotool", "getdisplaygeometry"], env=dict(os.environ, DISPLAY=name), check=False,
                          stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          timeout=20).returncode == 0


def wait_for_end(process, seconds):
    try:
        return process.wait(seconds)
    except subprocess.TimeoutExpired:
        return None


def second_button(session):
    """The middle of the strip's second button, as xdotool takes it; nothing when no strip is to be seen."""
    tree = subprocess.run(["xwininfo", "-root", "-tree"], env=session.environment(), check=False,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          timeout=20, text=True).stdout
    rectangles = [tuple(map(int, found)) for found in
                  re.findall(r'"corvelle\.exe"\)\s+(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)', tree)]
    strips = [window for window in rectangles if 20 <= min(window[:2]) <= 60]
    if not strips:
        return None
    width, height, left, top = max(strips, key=lambda window: window[0] * window[1])
    # Buttons follow one another at a distance that is the strip's thickness but for one pixel.
    along, across = (min(width, height) - 1) * 3 // 2 + 1, min(width, height) // 2
    x, y = (along, across) if width > height else (across, along)
    return [str(left + x), str(top + y)]


def answer_first_question(session):
    """A first start asks whether to run at each login. There is nobody to ask here: no."""
    deadline = time.monotonic() + 20
    # The first of the flags is set once the question has its answer.
    while not (FOLDER / "tmenu425.dat").read_bytes().startswith(b"1"):
        if time.monotonic() > deadline:
            raise SessionError("the question of the first start could not be answered")
        session.tool(["xdotool", "key", "n"])
        time.sleep(0.5)


def show_on_own_display(session, process):
    """Takes the pictures and ends the program; its exit code, or None if it would not end."""
    deadline = time.monotonic() + 20
    while not (FOLDER / "tmenu425.dat").exists() and time.monotonic() < deadline and process.poll() is None:
        time.sleep(0.1)
    time.sleep(4)
    if process.poll() is not None:
        return process.returncode
    answer_first_question(session)
    if not session.picture(PICTURES / "screen.png"):
        raise SessionError("the picture of the screen could not be taken")
    say(f"a picture of the screen is in {PICTURES / 'screen.png'}")
    button = second_button(session)
    if button:
        session.tool(["xdotool", "mousemove", *button, "click", "1"])
        time.sleep(2)
        if session.picture(PICTURES / "screen-menu.png"):
            say(f"and one with a menu open in {PICTURES / 'screen-menu.png'}")
        session.tool(["xdotool", "mousemove", *button, "click", "1"])
        time.sleep(1)
    return close_program(session, process)


def close_program(session, process):
    """Closes the program's windows, so that it saves what it has to; its exit code, None if it stays."""
    session.start(["taskkill", "/im", "corvelle.exe"], stdout=subprocess.DEVNULL,
                  stderr=subprocess.DEVNULL).wait(30)
    return wait_for_end(process, 15)


def stay_on_display(session, process):
    """Waits until the program has ended; a signal to this script closes it."""
    try:
        return process.wait()
    except SystemExit:
        say("closing the program")
        close_program(session, process)
        raise


def run():
    display = os.environ.get("DISPLAY", "")
    if display and not display_works(display):
        say(f"nothing answers on the display {display}; using one of its own")
        display = ""
    with Session(display=display or None, verbose=True) as session:
        (session.drive / "Corvelle").symlink_to(FOLDER)
        say(f"starting {FOLDER / 'corvelle.exe'} " + (f"on the display {display}; Ctrl+C here closes it"
                                                     if display else "on a display of its own"))
        process = session.start([r"C:\Corvelle\corvelle.exe"], cwd=session.drive / "Corvelle")
        code = stay_on_display(session, process) if display else show_on_own_display(session, process)
    if code is None:
        raise SessionError("the program did not end when it was asked to")
    if code != 0:
        raise SessionError(f"the program ended with exit code {code}")
    say("the program has ended; nothing is left running")
    return 0


def main():
    for sign in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(sign, end_quietly)
    if not (FOLDER / "corvelle.exe").is_file():
        say(f"{FOLDER / 'corvelle.exe'} is not there; run ./run.sh, which builds it")
        return 1
    try:
        return run()
    except (OSError, SessionError, subprocess.SubprocessError) as error:
        print(f"run.sh: {error}", file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
