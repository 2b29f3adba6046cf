#!/usr/bin/env python3
"""Runs the fuzz targets with clang's fuzzer, each for a time of the processor, and keeps what it learned.

  tools/fuzz.py run [--minutes 30] [--jobs 2] [targets...]   fuzzes; exit status 1 when a target found a fault
  tools/fuzz.py keep [targets...]                            writes the smallest corpus to fuzz/corpus/TARGET

The targets are built by `cmake --preset libfuzzer && cmake --build --preset libfuzzer`. They begin with the inputs of
fuzz/corpus/TARGET and with what an earlier run left. Everything a run makes is below build/fuzz: TARGET/
(inputs), TARGET.log, and TARGET.found/ (inputs that break a property; run the target on such a file to see the fault).
A target that finds a fault stops there. The processes run at the lowest priority. Several targets write files
below $TMPDIR: with that on a disk in memory they do not wait for it.
"""

import argparse
import concurrent.futures
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
TARGETS = ("records", "settings", "links", "engines", "edits", "iconlib", "drafts", "folders", "wire")
# Seconds of the wall clock that one input may take. Other programs may be using the machine.
INPUT_TIMEOUT = 120


def cpu_seconds(process):
    """Processor time that a running process has used, or 0 when it has just ended."""
    try:
        # The second field is a name in parentheses, which may hold blanks.
        fields = pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()
    except OSError:
        return 0.0
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def run_for(command, seconds, log, poll=1.0):
    """Runs the command until it has used that much processor time, then asks it to end.

    Returns (exit status, processor seconds). The status is that of a fuzzer: 0 when it was asked to end."""
    with open(log, "ab") as out:
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=out, stderr=out,
                                   preexec_fn=lambda: os.nice(19))
        used = 0.0
        asked = False
        while process.poll() is None:
            used = max(used, cpu_seconds(process.pid))
            if used >= seconds and not asked:
                # The fuzzer ends after the input it is at. Asked again on its way out, it would be killed.
                process.send_signal(signal.SIGUSR1)
                asked = True
            time.sleep(poll)
    return process.returncode, used


def fuzz(programs, work, corpus, target, seconds):
    """Fuzzes one target. Returns the line to print, and whether it found nothing."""
    inputs, found = work / target, work / f"{target}.found"
    inputs.mkdir(parents=True, exist_ok=True)
    found.mkdir(exist_ok=True)
    command = [str(programs / f"{target}_fuzz"), f"-artifact_prefix={found}/",
               f"-timeout={INPUT_TIMEOUT}", "-print_final_stats=1", "-use_value_profile=1",
               "-max_len=8192", str(inputs)]
    if (corpus / target).is_dir():
        command.append(str(corpus / target))
    status, used = run_for(command, seconds, work / f"{target}.log")
    ok = status == 0 and used >= seconds
    what = "no fault" if ok else f"ENDED EARLY with status {status}, see {work / target}.log"
    return f"{target}: {used / 60:.1f} minutes of processor time, {count(inputs)} inputs, {what}", ok


def count(folder):
    return sum(1 for path in folder.iterdir() if path.is_file()) if folder.is_dir() else 0


def keep(programs, work, corpus, target):
    """Replaces the target's corpus in the tree by the fewest and shortest inputs that run the same code."""
    kept = corpus / target
    with tempfile.TemporaryDirectory() as folder:
        chosen = pathlib.Path(folder)
        # Counters and compared values matter while fuzzing only: the tests want each branch once.
        command = [str(programs / f"{target}_fuzz"), "-merge=1", "-set_cover_merge=1", "-use_counters=0",
                   f"-timeout={INPUT_TIMEOUT}", str(chosen)]
        command += [str(path) for path in (work / target, kept) if path.is_dir()]
        with open(work / f"{target}.merge.log", "wb") as log:
            if subprocess.run(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                              preexec_fn=lambda: os.nice(19)).returncode != 0 or not count(chosen):
                return f"{target}: could not be merged, see {log.name}", False
        shutil.rmtree(kept, ignore_errors=True)
        shutil.copytree(chosen, kept)
    size = sum(path.stat().st_size for path in kept.iterdir())
    return f"{target}: {count(kept)} inputs, {size} bytes", True


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=("run", "keep"))
    parser.add_argument("targets", nargs="*", metavar="target", help=", ".join(TARGETS))
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "libfuzzer")
    parser.add_argument("--work", type=pathlib.Path, default=ROOT / "build" / "fuzz")
    parser.add_argument("--corpus", type=pathlib.Path, default=ROOT / "fuzz" / "corpus")
    parser.add_argument("--minutes", type=float, default=30)
    parser.add_argument("--jobs", type=int, default=2)
    args = parser.parse_args()
    targets = args.targets or TARGETS
    programs = args.build / "fuzz"
    for target in targets:
        if not (programs / f"{target}_fuzz").is_file():
            parser.error(f"{programs}/{target}_fuzz is not built")
    args.work.mkdir(parents=True, exist_ok=True)

    def work_on(target):
        if args.what == "run":
            return fuzz(programs, args.work, args.corpus, target, args.minutes * 60)
        return keep(programs, args.work, args.corpus, target)

    ok = True
    with concurrent.futures.ThreadPoolExecutor(args.jobs) as pool:
        for line, good in pool.map(work_on, targets):
            print(line, flush=True)
            ok &= good
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main())
