#!/usr/bin/env python3
"""Asks the native tests whether they notice small faults (mutants) in src/, and lists those that they do not notice.

  tools/mutate.py                                  400 mutants, drawn by --seed
  tools/mutate.py --file 'src/toolbar/layout/Strip*' --count 0     every mutant of these files
  tools/mutate.py --again                          those that survived the last time

A copy of the sources below build/mutants holds all mutants at once (tools/mutants.py) and is built only once. A mutant
then costs the run of the tests that reach its place: those of its own folder first, up to the first that fails. The
exit status is 0 when none survives. What is the same program as before is listed, with the reason, in
tools/mutants_same.txt, and does not count. win32/ and main.cpp have no native tests and no mutants.
"""

import argparse
import concurrent.futures
import fnmatch
import hashlib
import json
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys

import mutants

ROOT = pathlib.Path(__file__).resolve().parent.parent
SUITES = ("base", "platform", "forms", "core", "launch", "icons", "shell", "about", "toolbar", "menus", "tools",
          "scenario")
COPIED = ("CMakeLists.txt", "cmake", "src", "tests", "tools/CMakeLists.txt", "tools/menutext")
# The tests that reach the fewest mutants know most about them; so many of them go first.
FIRST_TESTS = 40
MEMORY = 4 << 30  # bytes that a test program with a mutant may take

TRACE = """#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

// Notes which mutants' places each test reaches.
namespace {

class Trace : public ::testing::EmptyTestEventListener {
  void OnTestProgramStart(const ::testing::UnitTest&) override { Write("*"); }
  void OnTestEnd(const ::testing::TestInfo& test) override {
    Write(std::string(test.test_suite_name()) + "." + test.name());
  }
  void Write(const std::string& name) {
    std::FILE* const file = std::fopen(std::getenv("CORVELLE_MUTANT_TRACE"), "a");
    std::fprintf(file, "%s", name.c_str());
    for (int id = 1; id <= mutant::kMost; ++id) {
      if (mutant::seen[id]) std::fprintf(file, " %d", id);
    }
    std::fprintf(file, "\\n");
    std::fclose(file);
    std::fill(std::begin(mutant::seen), std::end(mutant::seen), false);
  }
};

const bool listens = [] {
  if (mutant::traced) ::testing::UnitTest::GetInstance()->listeners().Append(new Trace);
  return true;
}();

}  // namespace
"""

def write_if_new(path, text):
    """Keeps the time of a file that stays the same, so that nothing is built without need."""
    data = text.encode() if isinstance(text, str) else text
    if not path.is_file() or path.read_bytes() != data:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def is_mutated(path):
    return path.parts[0] == "src" and path.suffix in (".cpp", ".h") and "win32" not in path.parts \
        and path.name != "main.cpp"


def places_in_error(log):
    """(file, line, column) of each place in src that a compiler's log complains about. Places that only led to an
    error in a header of the system count where nothing else is told."""
    found = set()
    for block in re.split(r"(?=^\S.*?: In |^In file included)", log, flags=re.MULTILINE):
        errors, ways = set(), set()
        for file, line, column, what in re.findall(
                r"(?:^|/)(src/[\w/]+\.(?:cpp|h)):(\d+):(\d+):\s+(error|required)", block, re.MULTILINE):
            (errors if what == "error" else ways).add((file, int(line), int(column)))
        found |= errors or ways
    return found


def blamed(line, column):
    """The number of the mutant whose own text stands at the column of a written line, or None."""
    for match in reversed(list(re.finditer(r"::mutant::On\((\d+)\) \? \(", line[:column]))):
        depth, at = 1, match.end()
        while at < len(line) and depth:
            depth += {"(": 1, ")": -1}.get(line[at], 0)
            at += 1
        if column <= at:
            return int(match.group(1))
    return None


def told_line(lines, number):
    """The source line, after the one above it where the file has several lines like it."""
    line = lines[number - 1].strip()
    alone = sum(1 for other in lines if other.strip() == line) == 1
    return line if alone else f"{lines[number - 2].strip()} / {line}"


class Tree:
    """The copy of the sources with the mutants in it, and its build."""

    def __init__(self, root, work):
        self.root, self.work = root, work
        self.tree = work / "tree"
        self.build_folder = work / "build"
        self.broken_file = work / "broken.json"
        self.mutants = []  # all, each with its id

    def broken(self):
        return json.loads(self.broken_file.read_text()) if self.broken_file.is_file() else {}

    def write(self):
        """Finds the mutants and writes the copy. Mutants that did not compile are left out."""
        files = [path for name in COPIED
                 for path in ([self.root / name] if (self.root / name).is_file()
                              else sorted((self.root / name).rglob("*")))
                 if path.is_file() and "__pycache__" not in path.parts]
        names = {path.relative_to(self.root) for path in files}
        sources = {name: (self.root / name).read_text() for name in sorted(names) if is_mutated(name)}
        constants = set().union(*(mutants.constants_of(text) for text in sources.values()))
        broken = self.broken()
        self.mutants = []
        for name in sorted(names):
            if name not in sources:
                write_if_new(self.tree / name, (self.root / name).read_bytes())
                continue
            text = sources[name]
            found = mutants.without_crossings(mutants.find(text, constants))
            known = broken.get(str(name), {})
            used = constants & set(re.findall(r"\bk[A-Z]\w*", text))
            sha = hashlib.sha256((text + " ".join(sorted(used))).encode()).hexdigest()
            if known.get("sha") != sha:
                known = {}
            lines = text.split("\n")
            here = []
            for number, mutant in enumerate(found):
                mutant.id = len(self.mutants) + len(here) + 1
                mutant.file, mutant.number, mutant.sha = str(name), number, sha
                mutant.last_line = mutant.line + text[mutant.start:mutant.end].count("\n")
                mutant.source = told_line(lines, mutant.line)
                if number not in known.get("numbers", ()):
                    here.append(mutant)
            self.mutants += here
            write_if_new(self.tree / name, mutants.render(text, here))
        traces = {pathlib.Path("tests", suite, "mutants_trace.cpp") for suite in SUITES
                  if any(name.parts[:2] == ("tests", suite) for name in names)}
        for name in traces:
            write_if_new(self.tree / name, TRACE)
        write_if_new(self.tree / "mutant.h", mutants.HEADER)
        for path in sorted(self.tree.rglob("*")):
            name = path.relative_to(self.tree)
            if path.is_file() and name not in names | traces | {pathlib.Path("mutant.h")}:
                path.unlink()

    def leave_out(self, places):
        """Leaves out from now on the mutants at these places of the copy. Returns how many that are."""
        bad = set()
        for file, line, column in places:
            written = (self.tree / file).read_bytes().split(b"\n")[line - 1].decode("latin-1")
            number = blamed(written, column)
            # Where no one is to blame for sure, all on that line go.
            bad |= {number} if number else {m.id for m in self.mutants if m.file == file and
                                            (m.line == line or m.kind != "drop" and m.line <= line <= m.last_line)}
        broken = self.broken()
        for mutant in self.mutants:
            if mutant.id in bad:
                entry = broken.get(mutant.file)
                if entry is None or entry["sha"] != mutant.sha:
                    entry = broken[mutant.file] = {"sha": mutant.sha, "numbers": []}
                entry["numbers"].append(mutant.number)
        self.broken_file.write_text(json.dumps(broken))
        return len(bad)

    def build(self, jobs):
        """Builds the test programs; leaves out mutants until it succeeds."""
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        flags = f"-std=c++20 -O1 -w -Wno-narrowing -D_GLIBCXX_ASSERTIONS -include {self.tree}/mutant.h"
        configure = ["cmake", "-G", "Ninja", "-S", str(self.tree), "-B", str(self.build_folder),
                     "-DCMAKE_BUILD_TYPE=None", f"-DCMAKE_CXX_FLAGS={flags}", "-DCMAKE_UNITY_BUILD=ON",
                     "-DCORVELLE_BENCH=OFF", "-DCORVELLE_FUZZ=OFF", *launcher]
        tests = [f"{suite}_tests" for suite in SUITES if (self.root / "tests" / suite).is_dir()]
        log = self.work / "build.log"
        # The tests include headers with mutants: they are compiled when all of those compile.
        for targets in (["corvelle_program", "corvelle_menutext"], tests):
            while True:
                self.write()
                with open(log, "w") as out:
                    if subprocess.run(configure, stdout=out, stderr=out).returncode != 0:
                        sys.exit(f"the copy could not be configured, see {log}")
                    done = subprocess.run(["nice", "cmake", "--build", str(self.build_folder), "-j", str(jobs),
                                           "--target", *targets, "--", "-k", "0"], stdout=out, stderr=out)
                if done.returncode == 0:
                    break
                left_out = self.leave_out(places_in_error(log.read_text()))
                print(f"{left_out} mutants do not compile", flush=True)
                if not left_out:
                    sys.exit(f"the copy cannot be built, see {log}")


class Tests:
    """The test programs, and which tests of theirs reach which mutant."""

    def __init__(self, programs, work):
        self.programs = {suite: programs / f"{suite}_tests" for suite in SUITES
                         if (programs / f"{suite}_tests").is_file()}
        self.work = work
        self.seconds = {}  # processor time of a suite
        self.count = {}  # tests of a suite
        self.reach = {}  # id -> {suite: [tests]}, the most special tests first

    def trace(self):
        """Runs every test once without a mutant. All have to pass."""
        for suite, program in self.programs.items():
            file = self.work / f"{suite}.trace"
            file.unlink(missing_ok=True)
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            done = subprocess.run([program, "--gtest_brief=1"], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                  env=os.environ | {"CORVELLE_MUTANT_TRACE": str(file)})
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            self.seconds[suite] = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
            print(f"{suite}_tests: {self.seconds[suite]:.1f} s", flush=True)
            if done.returncode != 0:
                sys.exit(f"{suite}_tests fail without a mutant:\n" + done.stdout.decode(errors="replace")[-2000:])
            self.read_trace(suite, file)

    def read_trace(self, suite, file):
        tests, always = {}, []
        for line in file.read_text().splitlines():
            name, *ids = line.split()
            if name == "*":
                always = ids
            else:
                tests[name] = set(ids) | set(always)
        self.count[suite] = len(tests)
        for name, ids in sorted(tests.items(), key=lambda item: len(item[1])):
            for number in ids:
                self.reach.setdefault(int(number), {}).setdefault(suite, []).append(name)

    def suites_for(self, mutant):
        """The suites that reach a mutant: its own folder's first, then the cheap ones."""
        folder = pathlib.Path(mutant.file).parts[1]
        return sorted(self.reach.get(mutant.id, {}), key=lambda suite: (suite != folder, self.seconds[suite]))

    def killer(self, mutant):
        """The suite that notices the mutant, or "" when none does."""
        for suite in self.suites_for(mutant):
            names = self.reach[mutant.id][suite]
            for batch in (names[:FIRST_TESTS], names[FIRST_TESTS:]):
                if batch and not self.passes(suite, mutant.id, batch):
                    return suite
        return ""

    def passes(self, suite, number, names):
        limit = int(3 + 3 * self.seconds[suite])

        def lower():
            os.nice(10)
            resource.setrlimit(resource.RLIMIT_CPU, (limit, limit))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        everything = len(names) == self.count[suite]
        env = os.environ | {"CORVELLE_MUTANT": str(number), "GTEST_FILTER": "*" if everything else ":".join(names)}
        env.pop("CORVELLE_MUTANT_TRACE", None)
        try:
            return subprocess.run([self.programs[suite], "--gtest_fail_fast", "--gtest_brief=1"], env=env,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  preexec_fn=lower, timeout=60 * limit).returncode == 0
        except subprocess.TimeoutExpired:
            return False


def read_same(path):
    """The mutants that are the same program: (file, line, change) -> reason. An entry is a block of four lines."""
    same = {}
    if not path.is_file():
        return same
    text = "\n".join(line for line in path.read_text().splitlines() if not line.startswith("#"))
    for block in re.split(r"\n\s*\n", text.strip()):
        if not block.strip():
            continue
        file, line, change, *reason = [part.strip() for part in block.splitlines()]
        if not reason:
            raise ValueError(f"{path}: no reason is given for {file}: {change}")
        same[(file, line, change)] = " ".join(reason)
    return same


def change_of(mutant):
    return f"{mutant.before} => {mutant.changed}"


def draw(candidates, seed, count):
    """`count` of them by the seed, in their order; all for 0."""
    if count == 0 or count >= len(candidates):
        return list(candidates)
    chosen = random.Random(seed).sample(range(len(candidates)), count)
    return [candidates[i] for i in sorted(chosen)]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=400, help="0 for all")
    parser.add_argument("--file", action="append", help="only mutants of files whose path matches")
    parser.add_argument("--line", help="only mutants of these lines: 12 or 12-40")
    parser.add_argument("--again", action="store_true", help="those that survived the last run")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--work", type=pathlib.Path, default=ROOT / "build" / "mutants")
    args = parser.parse_args()
    args.work = args.work.resolve()
    args.work.mkdir(parents=True, exist_ok=True)

    tree = Tree(ROOT, args.work)
    tree.build(args.jobs)
    tests = Tests(args.work / "build" / "tests", args.work)
    tests.trace()
    print(f"{len(tree.mutants)} mutants", flush=True)

    candidates = tree.mutants
    if args.file:
        candidates = [m for m in candidates if any(fnmatch.fnmatch(m.file, pattern) for pattern in args.file)]
    if args.line:
        first, _, last = args.line.partition("-")
        candidates = [m for m in candidates if int(first) <= m.line <= int(last or first)]
    results = args.work / "survivors.json"
    if args.again:
        last = {tuple(entry) for entry in json.loads(results.read_text())}
        candidates = [m for m in candidates if (m.file, m.source, change_of(m)) in last]
        args.count = 0
    chosen = draw(candidates, args.seed, args.count)
    same = read_same(ROOT / "tools" / "mutants_same.txt")
    for entry in same.keys() - {(m.file, m.source, change_of(m)) for m in tree.mutants}:
        print("in mutants_same.txt, but there is no such mutant: " + " | ".join(entry))
    known = [m for m in chosen if (m.file, m.source, change_of(m)) in same]
    chosen = [m for m in chosen if (m.file, m.source, change_of(m)) not in same]

    survivors, killed = [], 0
    print(f"{len(chosen)} of them are tried", flush=True)
    with concurrent.futures.ThreadPoolExecutor(args.jobs) as pool:
        for done, (mutant, suite) in enumerate(zip(chosen, pool.map(tests.killer, chosen)), 1):
            if done % 50 == 0:
                print(f"{done} tried", flush=True)
            if suite:
                killed += 1
                continue
            survivors.append(mutant)
            reached = sum(len(names) for names in tests.reach.get(mutant.id, {}).values())
            print(f"{mutant.file}:{mutant.line}: {mutant.kind}: {change_of(mutant)}\n    {mutant.source}\n    "
                  + (f"{reached} tests reach it" if reached else "no test reaches it"), flush=True)
    results.write_text(json.dumps([(m.file, m.source, change_of(m)) for m in survivors], indent=1))
    print(f"{len(chosen) + len(known)} mutants: {killed} noticed, {len(survivors)} survive, "
          f"{len(known)} are the same program")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
