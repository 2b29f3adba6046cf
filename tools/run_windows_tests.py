#!/usr/bin/env python3
"""Runs the tests that need Windows in Wine desktops of their own.

  tools/run_windows_tests.py --build build/windows [--filter PATTERN] [--jobs N] [contract] [e2e]

contract: windows_contract_tests.exe as a whole, in one session.
e2e: each test of e2e_tests.exe in a fresh session, beside a fresh copy of the program's folder
     (BUILD/package). Tests whose suite ends in AtEachScale run at 96 and at 120 dpi. Logs and pictures
     go below --out (build/e2e), one folder for each test.

Ends with the line `wine: N passed, M failed`; exit code 0 only if nothing failed and something ran.
"""

import argparse
import concurrent.futures
import pathlib
import re
import shutil
import signal
import sys
import threading
import time
import xml.etree.ElementTree

from wine_session import ROOT, Session, SessionError, end_quietly

E2E_SECONDS = 90
CONTRACT_SECONDS = 300
SCALES = (96, 120)
printing = threading.Lock()


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


def run_program(session, folder, command, log, seconds, pictures=None):
    with open(log, "wb") as output:
        process = session.start([f"C:\\{folder}\\{command[0]}", *command[1:]], stdout=output, stderr=output)
        code = wait(session, process, seconds, pictures)
    return code, log.read_text(encoding="utf-8", errors="replace")


# ---- the contract suites ----

def run_contract(arguments):
    """(passed, failed)"""
    program = arguments.build / "windows_contract_tests.exe"
    if not program.is_file():
        say(f"wine: {program} is not there")
        return 0, 1
    arguments.out.mkdir(parents=True, exist_ok=True)
    log = arguments.out / "contract.txt"
    with Session() as session:
        place = session.drive / "tests"
        place.mkdir()
        shutil.copy2(program, place)
        code, text = run_program(session, "tests",
                                 [program.name, f"--gtest_filter={arguments.filter}",
                                  "--gtest_output=xml:C:\\tests\\result.xml"], log, CONTRACT_SECONDS)
        if code is None:
            session.picture(arguments.out / "contract.png")
        result = place / "result.xml"
        counts = counts_of(result) if result.is_file() else None
    if counts is None:
        # It died or hung before it could sum up: what it said so far counts, and the end is a failure.
        passed = len(re.findall(r"^\[       OK \]", text, re.MULTILINE))
        failed = len(set(re.findall(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", text, re.MULTILINE))) + 1
        counts = (passed, failed)
    passed, failed = counts
    if code != 0 and failed == 0:
        failed = 1
    if failed:
        say(text[-6000:])
        say(f"contract: exit code {'none, the time ran out' if code is None else code}")
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
    log = arguments.out / "list.txt"
    with Session() as session:
        place = session.drive / "e2e"
        place.mkdir()
        shutil.copy2(arguments.build / "e2e_tests.exe", place)
        code, text = run_program(session, "e2e", ["e2e_tests.exe", f"--gtest_filter={arguments.filter}",
                                                  "--gtest_list_tests"], log, 60)
    if code != 0:
        raise SessionError(f"the tests could not be listed (exit code {code}): {text[-500:]}")
    names, suite = [], ""
    for line in text.splitlines():
        line = line.split("#")[0].rstrip()
        if line.endswith(".") and not line.startswith(" "):
            suite = line
        elif line.startswith("  ") and suite:
            names.append(suite + line.strip())
    return names


def run_road(arguments, name, dpi):
    """True if the test passed."""
    folder = arguments.out / (name if dpi == 96 else f"{name}-{dpi}dpi")
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    began = time.monotonic()
    try:
        with Session(dpi=dpi) as session:
            shutil.copytree(arguments.build / "package", session.drive / "Corvelle",
                            ignore=shutil.ignore_patterns("Menus", "ShellLink"))
            for place, program in (("witness", "witness.exe"), ("e2e", "e2e_tests.exe")):
                (session.drive / place).mkdir()
                shutil.copy2(arguments.build / program, session.drive / place)
            requests = session.drive / "e2e" / "pictures"
            requests.mkdir()
            code, text = run_program(session, "e2e", ["e2e_tests.exe", f"--gtest_filter={name}"],
                                     folder / "log.txt", E2E_SECONDS, (requests, folder))
            passed = code == 0 and "[  PASSED  ] 1 test." in text
            if not passed:
                session.picture(folder / "at-the-end.png")
    except (OSError, SessionError) as error:
        passed, code, text = False, None, str(error)
    with printing:
        scale = "" if dpi == 96 else f" at {dpi} dpi"
        print(f"  {'ok    ' if passed else 'FAILED'} {name}{scale} ({time.monotonic() - began:.1f} s)",
              flush=True)
        if not passed:
            print(f"  exit code {'none, the time ran out' if code is None else code}; pictures in {folder}")
            print(text[-3000:], flush=True)
    return passed


def run_e2e(arguments):
    """(passed, failed)"""
    for needed in ("e2e_tests.exe", "witness.exe", "package/corvelle.exe"):
        if not (arguments.build / needed).is_file():
            say(f"wine: {arguments.build / needed} is not there")
            return 0, 1
    arguments.out.mkdir(parents=True, exist_ok=True)
    runs = []
    for name in list_tests(arguments):
        scales = SCALES if name.split(".")[0].endswith("AtEachScale") else SCALES[:1]
        runs += [(name, dpi) for dpi in scales]
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        waiting = [pool.submit(run_road, arguments, name, dpi) for name, dpi in runs]
        try:
            results = [future.result() for future in waiting]
        except BaseException:
            pool.shutdown(wait=True, cancel_futures=True)
            raise
    passed = sum(results)
    say(f"e2e: {passed} passed, {len(results) - passed} failed")
    return passed, len(results) - passed


def main():
    parser = argparse.ArgumentParser(description="Run the tests that need Windows under Wine.")
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "windows")
    parser.add_argument("--out", type=pathlib.Path, default=ROOT / "build" / "e2e")
    parser.add_argument("--filter", default="*", help="as GoogleTest has it")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("which", nargs="*", choices=["contract", "e2e", []], default=[])
    arguments = parser.parse_args()
    for sign in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(sign, end_quietly)
    which = arguments.which or ["contract", "e2e"]
    passed = failed = 0
    try:
        for kind, run in (("contract", run_contract), ("e2e", run_e2e)):
            if kind in which:
                more = run(arguments)
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
