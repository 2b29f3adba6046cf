#!/usr/bin/env python3
"""Runs the benchmarks and prints each beside its floor: time, floor and their ratio.

    tools/bench_ratios.py build/native/bench/corvelle_bench [options of the benchmarks]
    tools/bench_ratios.py --repetitions 11 build/native/bench/corvelle_bench   # medians of 11

Fails when a measurement has no floor, or nothing was measured.
"""
import argparse
import json
import subprocess
import sys

FLOOR = "/floor"


def times(report):
    """Microseconds of each measurement of a report in JSON; of several repetitions the median."""
    found = {}
    for run in report["benchmarks"]:
        if run.get("aggregate_name", "median") != "median":
            continue
        scale = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}[run["time_unit"]]
        name = run["run_name"]
        if run.get("run_type") == "aggregate" or name not in found:
            found[name] = run["real_time"] * scale
    return found


def table(found):
    """Rows of (name, time, floor, ratio), and the names that lack a floor."""
    rows, without = [], []
    for name, time in found.items():
        if name.endswith(FLOOR):
            continue
        floor = found.get(name + FLOOR)
        if not floor:
            without.append(name)
        else:
            rows.append((name, time, floor, time / floor))
    return rows, without


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--repetitions", type=int, default=1)
    parser.add_argument("program")
    parser.add_argument("options", nargs=argparse.REMAINDER)
    wish = parser.parse_args(arguments)
    run = subprocess.run(
        [wish.program, "--benchmark_format=json", f"--benchmark_repetitions={wish.repetitions}", *wish.options],
        stdout=subprocess.PIPE, check=False)
    if run.returncode != 0:
        return run.returncode
    rows, without = table(times(json.loads(run.stdout)))
    print(f"{'':40} {'time':>15} {'floor':>15} {'ratio':>9}")
    for name, time, floor, ratio in rows:
        print(f"{name:40} {time:12.3f} us {floor:12.3f} us {ratio:9.1f}")
    for name in without:
        print(f"{name}: no floor was measured", file=sys.stderr)
    return 0 if rows and not without else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
