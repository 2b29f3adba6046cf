"""What the runner makes of sessions that do not come up and of roads that fail."""

import pathlib
import sys
import unittest
from unittest import mock

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import run_windows_tests  # noqa: E402
from run_windows_tests import Road, Run  # noqa: E402
from wine_session import SessionError  # noqa: E402


class InSession(unittest.TestCase):
    def setUp(self):
        self.said = []
        self.runs = []
        for name, double in (("Session", mock.MagicMock()), ("say", self.said.append)):
            patch = mock.patch.object(run_windows_tests, name, double)
            patch.start()
            self.addCleanup(patch.stop)

    def give(self, *outcomes):
        left = list(outcomes)

        def run(_):
            self.runs.append(left[0])
            outcome = left.pop(0)
            if isinstance(outcome, Exception):
                raise outcome
            return outcome

        return run_windows_tests.in_session("a road", run)

    def test_a_program_that_spoke_is_believed_whatever_it_said(self):
        failed = Run(1, "[  FAILED  ]", "")
        self.assertEqual(self.give(failed), failed)
        self.assertEqual(len(self.runs), 1)
        self.assertEqual(self.said, [])

    def test_a_session_that_stayed_silent_gets_another_and_is_told_of(self):
        good = Run(0, "[  PASSED  ] 1 test.", "")
        self.assertEqual(self.give(Run(1, "", "no server"), good), good)
        self.assertEqual(len(self.said), 1)
        self.assertIn("no server", self.said[0])

    def test_a_session_that_does_not_start_gets_another(self):
        good = Run(0, "[  PASSED  ] 1 test.", "")
        self.assertEqual(self.give(SessionError("no display"), OSError("no room"), good), good)
        self.assertEqual(len(self.said), 2)

    def test_three_silent_sessions_are_a_failure(self):
        silent = Run(0, "", "")
        self.assertEqual(self.give(silent, silent, silent, Run(0, "late", "")), silent)
        self.assertEqual(len(self.runs), 3)


class WalkOnceMore(unittest.TestCase):
    ROADS = [Road("A.One", 96), Road("A.One", 120), Road("B.Two", 96)]

    def test_what_passes_alone_is_unsteady_and_what_does_not_has_failed(self):
        one, two = self.ROADS[:2]
        self.assertEqual(run_windows_tests.walk_once_more([one, two], lambda road: road == two),
                         ([two], [one]))

    def test_more_than_two_have_failed_without_another_walk(self):
        walked = []
        unsteady, failed = run_windows_tests.walk_once_more(self.ROADS, walked.append)
        self.assertEqual((unsteady, failed, walked), ([], self.ROADS, []))

    def test_nothing_failed(self):
        self.assertEqual(run_windows_tests.walk_once_more([], lambda _: False), ([], []))


if __name__ == "__main__":
    unittest.main()
