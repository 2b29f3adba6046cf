#!/usr/bin/env python3
"""Sums up a run of ctest, test case by test case.

  tools/totals.py CTEST_XML GTEST_FOLDER

CTEST_XML is what `ctest --output-junit` wrote, GTEST_FOLDER holds the results of the GoogleTest programs
(GTEST_OUTPUT). The ctest entry NAME counts with the cases of NAME_tests.xml where there is that file, and
as one case otherwise. An entry that failed counts at least one failure, whatever its cases say: a
sanitizer can speak up at the very end. The last line is `native: N passed, M failed`.
"""

import pathlib
import sys
import xml.etree.ElementTree


def cases(result):
    """(passed, failed, skipped) of a GoogleTest result file."""
    root = xml.etree.ElementTree.parse(result).getroot()
    passed = failed = skipped = 0
    for case in root.iter("testcase"):
        if case.find("failure") is not None:
            failed += 1
        elif case.find("skipped") is not None or case.get("status") != "run":
            skipped += 1
        else:
            passed += 1
    return passed, failed, skipped


def entries(ctest_xml):
    """(name, ok) of each ctest entry."""
    root = xml.etree.ElementTree.parse(ctest_xml).getroot()
    return [(case.get("name"), case.get("status") == "run" and case.find("failure") is None)
            for case in root.iter("testcase")]


def total(ctest_xml, folder):
    """The lines to print, and (passed, failed)."""
    lines, passed, failed = [], 0, 0
    for name, ok in entries(ctest_xml):
        result = pathlib.Path(folder, f"{name}_tests.xml")
        good, bad = (1, 0) if ok else (0, 1)
        if result.is_file():
            try:
                good, bad, skipped = cases(result)
                # What was left out was not seen to work.
                bad += skipped
            except xml.etree.ElementTree.ParseError:
                good, bad = 0, 1
            if not ok and bad == 0:
                bad = 1
        passed, failed = passed + good, failed + bad
        lines.append(f"  {name}: {good} passed, {bad} failed")
    return lines, passed, failed


def main():
    try:
        lines, passed, failed = total(sys.argv[1], sys.argv[2])
    except (OSError, xml.etree.ElementTree.ParseError) as error:
        print(f"totals: {error}")
        lines, passed, failed = [], 0, 1
    if not lines and not failed:
        failed = 1
    for line in lines:
        print(line)
    print(f"native: {passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
