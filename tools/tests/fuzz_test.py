"""The fuzzing ends after its processor time, tells of what ended it before, and keeps what the merge chose."""

import pathlib
import stat
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import fuzz  # noqa: E402

# Ends like the fuzzer when it is asked to; uses the processor until then.
BUSY = "import signal, sys\nsignal.signal(signal.SIGUSR1, lambda *_: sys.exit(0))\nwhile True: pass\n"
FINDS = "import sys\nprint('does not hold')\nsys.exit(77)\n"
MERGES = ("import pathlib, sys\nfolders = [a for a in sys.argv[1:] if not a.startswith('-')]\n"
          "assert '-merge=1' in sys.argv\n"
          "every = {p.read_bytes() for f in folders[1:] for p in pathlib.Path(f).iterdir()}\n"
          "pathlib.Path(folders[0], 'best').write_bytes(min(every, key=len))\n")


class Fuzz(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.work, self.corpus = self.folder / "work", self.folder / "corpus"
        self.work.mkdir()

    def target(self, script):
        program = self.folder / "edits_fuzz"
        program.write_text(f"#!{sys.executable}\n{script}")
        program.chmod(program.stat().st_mode | stat.S_IXUSR)

    def put(self, folder, name, content):
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(content)

    def test_a_target_ends_after_its_processor_time(self):
        self.target(BUSY)
        status, used = fuzz.run_for([str(self.folder / "edits_fuzz")], 2, self.work / "log", poll=0.05)
        self.assertEqual(status, 0)
        self.assertGreaterEqual(used, 2)

    def test_a_target_that_ends_early_has_found_something(self):
        self.target(FINDS)
        line, ok = fuzz.fuzz(self.folder, self.work, self.corpus, "edits", 60)
        self.assertFalse(ok)
        self.assertIn("status 77", line)
        self.assertIn("does not hold", (self.work / "edits.log").read_text())

    def test_a_target_that_ends_early_without_a_fault_is_told_too(self):
        self.target("")
        self.assertFalse(fuzz.fuzz(self.folder, self.work, self.corpus, "edits", 60)[1])

    def test_the_corpus_becomes_what_the_merge_chose_of_old_and_new(self):
        self.target(MERGES)
        self.put(self.corpus / "edits", "old", b"long input")
        self.put(self.work / "edits", "new", b"short")
        line, ok = fuzz.keep(self.folder, self.work, self.corpus, "edits")
        self.assertTrue(ok, line)
        self.assertEqual([(p.name, p.read_bytes()) for p in (self.corpus / "edits").iterdir()], [("best", b"short")])

    def test_a_merge_that_fails_leaves_the_corpus(self):
        self.target(FINDS)
        self.put(self.corpus / "edits", "old", b"x")
        self.assertFalse(fuzz.keep(self.folder, self.work, self.corpus, "edits")[1])
        self.assertEqual((self.corpus / "edits" / "old").read_bytes(), b"x")


if __name__ == "__main__":
    unittest.main()
