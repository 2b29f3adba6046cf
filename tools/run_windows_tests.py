#!/usr/bin/env python3
"""Runs the tests that need Windows in Wine desktops of their own.

  tools/run_windows_tests.py --build build/windows [--filter PATTERN] [--jobs N] [--times N] [contract] [e2e]

contract: windows_contract_tests.exe as a whole, in one session, beside the first roads.
e2e: each test of e2e_tests.exe in a fresh session, beside a fresh copy of the program's folder
     (BUILD/package). Tests whose suite ends in AtEachScale run at 96 and at 120 dpi. Logs and pictures
     go below --out (build/e2e), one folder for each test. --times 10 lets the tests that repeat an act
     (QuickMenus, Choices, DamagedMenus, WindowCost) go on ten times as long, and lets MenuFigures measure
     all menus. --tell prints the tables of the roads that measure.

A session in which the test program did not come to its first line tells nothing of Corvelle: another one
takes its place, and the run says so.

The desktops of a run share the processor, while the pauses of a hand are real time. One or two roads that
failed beside others are therefore walked once more by themselves; what fails there too, and anything
beyond two, has failed. Both walks are printed, and the road counts as unsteady in the last lines.

Ends with the line `wine: N passed, M failed`; exit code 0 only if nothing failed and something ran.
"""

import argparse
import concurrent.futures
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import threading
import time
import typing
import xml.etree.ElementTree

from wine_session import ROOT, Session, SessionError, end_quietly

E2E_SECONDS = 90
CONTRACT_SECONDS = 300
SCALES = (96, 120)
PROGRAMS = (("witness", "witness.exe"), ("e2e", "e2e_tests.exe"), ("e2e", "planted.dll"), ("e2e", "naive.exe"),
            ("e2e", "bare.exe"), ("e2e", "bareshell.exe"))
# Of the library of C++: it throws because there is no memory.
THROWING = "_ZSt17__throw_bad_allocv"
SESSIONS = 3  # for one test program to come to its first line
UNSTEADY = 2  # roads that may be walked once more
# Wine's own errors go to a log of their own.
os.environ.setdefault("CORVELLE_WINEDEBUG", "-all,err+all")
printing = threading.Lock()


HANGING = ROOT / "tests" / "e2e" / "hanging" / "hanging.c"


class RoadSession(Session):
    """A session in which a folder can stop answering; see tests/e2e/hanging."""
    library = None

    def environment(self, prefix=None):
        environment = super().environment(prefix)
        if self.library and self.folder:
            environment["LD_PRELOAD"] = str(self.library)
            environment["CORVELLE_HANG"] = str(self.folder / "prefix" / "drive_c" / "e2e" / "hang")
        return environment


def build_hanging(folder):
    """Compiles the library that makes a folder hang, for the machine that Wine runs on."""
    library = folder / "hanging.so"
    subprocess.run(["cc", "-shared", "-fPIC", "-O1", "-Wall", "-Wextra", "-Werror", "-o", library, HANGING],
                   check=True)
    return library


def say(text):
    with printing:
        print(text, flush=True)


def wait(session, process, seconds, pictures=None):
    """Waits for a Windows program and serves its requests for pictures. Its exit code, or None when the
    time ran out."""
    deadline = time.monotonic() + seconds
    while process.poll() is None:
        if time.monotonic() > deadline:
            return None
        if pictures:
            session.serve_pictures(*pictures)
        time.sleep(0.02)
    return process.returncode


class Run(typing.NamedTuple):
    """What a test program left: its exit code (None when the time ran out or nothing started), what it
    said, and what Wine said beside it."""
    code: int | None
    text: str
    errors: str

    def tell(self, most):
        """The end of both, for whoever looks for the reason."""
        code = "none, the time ran out or nothing started" if self.code is None else self.code
        return f"exit code {code}\n{self.errors[-1000:]}\n{self.text[-most:]}"


def run_program(session, folder, command, log, seconds, pictures=None):
    errors = log.with_name(f"{log.stem}-wine.txt")
    with open(log, "wb") as output, open(errors, "wb") as beside:
        process = session.start([f"C:\\{folder}\\{command[0]}", *command[1:]], stdout=output, stderr=beside)
        code = wait(session, process, seconds, pictures)
    return Run(code, log.read_text(encoding="utf-8", errors="replace"),
               errors.read_text(encoding="utf-8", errors="replace"))


def in_session(what, run, dpi=96):
    """What run(session) gives, in the first session in which the program comes to its first line."""
    for _ in range(SESSIONS):
        try:
            with RoadSession(dpi=dpi) as session:
                outcome = run(session)
        except (OSError, SessionError) as error:
            outcome = Run(None, "", str(error))
        if outcome.text:
            break
        say(f"  again  {what}: the session did not come up, {outcome.tell(0)}")
    return outcome


# ---- the contract suites ----

def run_contract(arguments):
    """(passed, failed)"""
    program = arguments.build / "windows_contract_tests.exe"
    if not program.is_file():
        say(f"wine: {program} is not there")
        return 0, 1
    arguments.out.mkdir(parents=True, exist_ok=True)
    counts = None

    def run(session):
        nonlocal counts
        place = session.drive / "tests"
        place.mkdir()
        for name in (program.name, "corvelle-shell.exe"):
            shutil.copy2(arguments.build / name, place)
        outcome = run_program(session, "tests",
                              [program.name, f"--gtest_filter={arguments.filter}",
                               "--gtest_output=xml:C:\\tests\\result.xml"],
                              arguments.out / "contract.txt", CONTRACT_SECONDS)
        if outcome.code is None:
            session.picture(arguments.out / "contract.png")
        result = place / "result.xml"
        counts = counts_of(result) if result.is_file() else None
        return outcome

    outcome = in_session("contract", run)
    if counts is None:
        # It died or hung before it could sum up: what it said so far counts, and the end is a failure.
        passed = len(re.findall(r"^\[       OK \]", outcome.text, re.MULTILINE))
        failed = len(set(re.findall(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", outcome.text, re.MULTILINE))) + 1
        counts = (passed, failed)
    passed, failed = counts
    if outcome.code != 0 and failed == 0:
        failed = 1
    if failed:
        say(f"contract: {outcome.tell(6000)}")
    say(f"contract: {passed} passed, {failed} failed")
    return passed, failed


def counts_of(result):
    """(passed, failed) of a GoogleTest result; nothing when it is not whole."""
    try:
        suites = xml.etree.ElementTree.parse(result).getroot()
    except xml.etree.ElementTree.ParseError:
        return None
    passed = failed = 0
    for case in suites.iter("testcase"):
        if case.get("status") != "run":
            continue
        if case.find("failure") is None:
            passed += 1
        else:
            failed += 1
    return passed, failed


# ---- the roads ----

def list_tests(arguments):
    """The names of the tests, in the order of the program."""
    def run(session):
        place = session.drive / "e2e"
        place.mkdir()
        shutil.copy2(arguments.build / "e2e_tests.exe", place)
        return run_program(session, "e2e", ["e2e_tests.exe", f"--gtest_filter={arguments.filter}",
                                            "--gtest_list_tests"], arguments.out / "list.txt", 60)

    outcome = in_session("the list of roads", run)
    if outcome.code != 0:
        raise SessionError(f"the tests could not be listed: {outcome.tell(500)}")
    names, suite = [], ""
    for line in outcome.text.splitlines():
        line = line.split("#")[0].rstrip()
        if line.endswith(".") and not line.startswith(" "):
            suite = line
        elif line.startswith("  ") and suite:
            names.append(suite + line.strip())
    return names


def place_of(function, symbols):
    """Where a function lies in the program, from the program's beginning. In 32 bits names have one more underscore."""
    def read(*command):
        return subprocess.run([f"x86_64-w64-mingw32-{command[0]}", *command[1:], symbols], check=True, text=True,
                              stdout=subprocess.PIPE).stdout

    base = int(re.search(r"^ImageBase\s+(\w+)", read("objdump", "-p"), re.MULTILINE)[1], 16)
    found = re.search(rf"^(\w+) T _?{function}$", read("nm"), re.MULTILINE)
    if not found:
        raise SessionError(f"{symbols} does not know {function}")
    return int(found[1], 16) - base


class Road(typing.NamedTuple):
    name: str
    dpi: int

    def __str__(self):
        return self.name if self.dpi == 96 else f"{self.name} at {self.dpi} dpi"

    def folder(self):
        return self.name if self.dpi == 96 else f"{self.name}-{self.dpi}dpi"


def walk(arguments, road, mark=""):
    """True if the test passed. Its log and pictures lie in a folder of its own."""
    folder = arguments.out / (road.folder() + mark)
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    began = time.monotonic()

    def passed(outcome):
        return outcome.code == 0 and "[  PASSED  ] 1 test." in outcome.text

    def run(session):
        shutil.copytree(arguments.build / "package", session.drive / "Corvelle",
                        ignore=shutil.ignore_patterns("Menus", "ShellLink"))
        for place, program in PROGRAMS:
            (session.drive / place).mkdir(exist_ok=True)
            shutil.copy2(arguments.build / program, session.drive / place)
        (session.drive / "e2e" / "throw-place.txt").write_text(f"{arguments.throw_place:x}", encoding="ascii")
        requests = session.drive / "e2e" / "pictures"
        requests.mkdir()
        outcome = run_program(session, "e2e", ["e2e_tests.exe", f"--gtest_filter={road.name}"],
                              folder / "log.txt", E2E_SECONDS * arguments.times, (requests, folder))
        if not passed(outcome):
            session.picture(folder / "at-the-end.png")
        return outcome

    outcome = in_session(str(road), run, road.dpi)
    good = passed(outcome)
    with printing:
        print(f"  {'ok    ' if good else 'FAILED'} {road} ({time.monotonic() - began:.1f} s)", flush=True)
        if arguments.tell:
            print("\n".join(line for line in outcome.text.splitlines() if line.startswith("|")), flush=True)
        if not good:
            print(f"  pictures in {folder}; {outcome.tell(3000)}", flush=True)
    return good


def walk_once_more(failed, walk_alone):
    """(unsteady, failed): the roads that failed beside others, parted by a walk of their own."""
    if len(failed) > UNSTEADY:
        return [], failed
    unsteady = [road for road in failed if walk_alone(road)]
    return unsteady, [road for road in failed if road not in unsteady]


def run_e2e(arguments):
    """(passed, failed)"""
    packaged = ["package/corvelle.exe", "package/corvelle-shell.exe", "corvelle.debug"]
    for needed in [program for _, program in PROGRAMS] + packaged:
        if not (arguments.build / needed).is_file():
            say(f"wine: {arguments.build / needed} is not there")
            return 0, 1
    arguments.out.mkdir(parents=True, exist_ok=True)
    arguments.throw_place = place_of(THROWING, arguments.build / "corvelle.debug")
    RoadSession.library = build_hanging(arguments.out.resolve())
    roads = []
    for name in list_tests(arguments):
        scales = SCALES if name.split(".")[0].endswith("AtEachScale") else SCALES[:1]
        roads += [Road(name, dpi) for dpi in scales]
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        waiting = [pool.submit(walk, arguments, road) for road in roads]
        try:
            good = [future.result() for future in waiting]
        except BaseException:
            pool.shutdown(wait=True, cancel_futures=True)
            raise
    first = [road for road, passed in zip(roads, good) if not passed]
    unsteady, failed = walk_once_more(first, lambda road: walk(arguments, road, "-alone"))
    for road in unsteady:
        say(f"e2e: unsteady: {road} failed beside others and passed alone")
    for road in failed:
        say(f"e2e: failed: {road}")
    say(f"e2e: {len(roads) - len(failed)} passed, {len(failed)} failed")
    return len(roads) - len(failed), len(failed)


def main():
    parser = argparse.ArgumentParser(description="Run the tests that need Windows under Wine.")
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "windows")
    parser.add_argument("--out", type=pathlib.Path, default=ROOT / "build" / "e2e")
    parser.add_argument("--filter", default="*", help="as GoogleTest has it")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--times", type=int, default=1, help="how often tests repeat what they repeat")
    parser.add_argument("--tell", action="store_true", help="print the tables of what was measured")
    parser.add_argument("which", nargs="*", choices=["contract", "e2e", []], default=[])
    arguments = parser.parse_args()
    for sign in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(sign, end_quietly)
    os.environ["CORVELLE_TEST_TIMES"] = str(arguments.times)
    which = arguments.which or ["contract", "e2e"]
    passed = failed = 0
    try:
        # Side by side: the contract suites are one program, which waits most of its time.
        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            running = [pool.submit(run, arguments) for kind, run in (("contract", run_contract), ("e2e", run_e2e))
                       if kind in which]
        for one in running:
            more = one.result()
            passed, failed = passed + more[0], failed + more[1]
    except SessionError as error:
        say(f"wine: {error}")
        failed += 1
    if passed + failed == 0:
        say("wine: no test ran")
        failed = 1
    say(f"wine: {passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
