#!/usr/bin/env python3
"""Checks that every C++ file of the house is as clang-format would write it.

  tools/check_format.py [--fix]

Says the files that differ and ends with 1; with --fix it rewrites them.
"""

import concurrent.futures
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLACES = ("src", "tests", "bench", "fuzz", "tools")


def main():
    files = sorted(path for place in PLACES for path in (ROOT / place).rglob("*")
                   if path.suffix in {".h", ".cpp"} and path.is_file())
    if not files:
        print("format: there is nothing to check")
        return 1
    fix = "--fix" in sys.argv[1:]
    mode = ["-i"] if fix else ["--dry-run", "--Werror"]

    def differ(paths):
        """Those among the paths that clang-format would write otherwise."""
        done = subprocess.run(["clang-format", "--style=file", *mode, *map(str, paths)], cwd=ROOT, check=False,
                              capture_output=True, text=True)
        if done.returncode == 0:
            return []
        # It names them in words only; one by one its exit status does.
        return paths if len(paths) == 1 else [each for path in paths for each in differ([path])]

    size = 40
    parts = [files[start:start + size] for start in range(0, len(files), size)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        differing = [path.relative_to(ROOT) for part in pool.map(differ, parts) for path in part]
    for path in differing:
        print(f"{path}: run tools/check_format.py --fix")
    print(f"format: {len(files)} files, {len(differing)} differ")
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
