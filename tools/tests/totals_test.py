"""The totals say what ctest and the test programs said, and never less."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import totals  # noqa: E402


class Totals(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def ctest(self, **states):
        body = "".join(f'<testcase name="{name}" status="{"run" if ok else "fail"}">'
                       + ("" if ok else '<failure message=""/>') + "</testcase>"
                       for name, ok in states.items())
        (self.folder / "ctest.xml").write_text(f"<testsuite>{body}</testsuite>")

    def program(self, name, *bodies):
        body = "".join(f'<testcase name="t" status="run">{inner}</testcase>' for inner in bodies)
        (self.folder / f"{name}_tests.xml").write_text(
            f"<testsuites><testsuite>{body}</testsuite></testsuites>")

    def total(self):
        _, passed, failed = totals.total(self.folder / "ctest.xml", self.folder)
        return passed, failed

    def test_a_program_counts_by_its_cases_and_a_script_as_one(self):
        self.ctest(base=True, floors=True)
        self.program("base", "", "", "")
        self.assertEqual(self.total(), (4, 0))

    def test_a_failed_case_and_a_failed_script_count(self):
        self.ctest(base=False, floors=False)
        self.program("base", "", "<failure/>")
        self.assertEqual(self.total(), (1, 2))

    def test_a_program_that_fails_after_its_cases_counts_as_failed(self):
        self.ctest(base=False)
        self.program("base", "", "")
        self.assertEqual(self.total(), (2, 1))

    def test_a_program_that_dies_before_its_result_counts_as_failed(self):
        self.ctest(base=False)
        self.assertEqual(self.total(), (0, 1))
        (self.folder / "base_tests.xml").write_text("<testsuites>")
        self.assertEqual(self.total(), (0, 1))

    def test_a_skipped_case_counts_as_failed(self):
        self.ctest(base=True)
        self.program("base", "", "<skipped/>")
        self.assertEqual(self.total(), (1, 1))


if __name__ == "__main__":
    unittest.main()
