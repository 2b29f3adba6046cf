"""What a session does around Wine: a prefix of its own, and no process that outlives it."""

import concurrent.futures
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import wine_session  # noqa: E402


class InAFolder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)


class CopyPrefix(InAFolder):
    def setUp(self):
        super().setUp()
        self.source = self.folder / "template"
        (self.source / "drive_c" / "windows").mkdir(parents=True)
        (self.source / "dosdevices").mkdir()
        (self.source / "dosdevices" / "c:").symlink_to("../drive_c")
        (self.source / "user.reg").write_text("old")
        (self.source / "drive_c" / "windows" / "win.ini").write_text("old")
        (self.source / "drive_c" / "windows" / "notepad.exe").write_text("program")
        self.target = self.folder / "copy"
        wine_session.copy_prefix(self.source, self.target)

    def test_what_a_program_writes_stays_in_the_copy(self):
        for name in ("user.reg", "drive_c/windows/win.ini"):
            with open(self.target / name, "r+") as file:
                file.write("new")
            self.assertEqual((self.source / name).read_text(), "old")

    def test_programs_are_shared(self):
        name = "drive_c/windows/notepad.exe"
        self.assertTrue((self.source / name).samefile(self.target / name))

    def test_drives_lead_into_the_copy(self):
        drive = self.target / "dosdevices" / "c:"
        self.assertTrue(drive.is_symlink())
        self.assertTrue(drive.samefile(self.target / "drive_c"))


class ClaimFolder(InAFolder):
    def test_sessions_that_begin_at_once_leave_each_other_their_folders(self):
        sessions = [wine_session.Session(cache=self.folder) for _ in range(40)]
        with concurrent.futures.ThreadPoolExecutor(8) as pool:
            list(pool.map(lambda session: session._claim_folder(), sessions))
        for session in sessions:
            self.assertTrue((session.folder / "lock").is_file())
            session.lock.close()

    def test_a_folder_that_was_left_behind_is_swept(self):
        left = wine_session.Session(cache=self.folder)
        left._claim_folder()
        left.lock.close()
        new = wine_session.Session(cache=self.folder)
        new._claim_folder()
        self.assertFalse(left.folder.exists())
        new.lock.close()


class FixAddresses(unittest.TestCase):
    @staticmethod
    def heap_of_a_child():
        maps = subprocess.run(["cat", "/proc/self/maps"], capture_output=True, text=True, check=True).stdout
        return next(line.split()[0] for line in maps.splitlines() if line.endswith("[heap]"))

    def test_programs_that_are_started_then_have_their_heap_at_one_place(self):
        def try_it():
            fixed = wine_session.fix_addresses()
            return fixed, {self.heap_of_a_child() for _ in range(4)}

        # It holds for the thread that asked.
        with concurrent.futures.ThreadPoolExecutor(1) as pool:
            fixed, heaps = pool.submit(try_it).result()
        self.assertEqual(len(heaps) == 1, fixed)


class ReplaceIn(InAFolder):
    def test_a_setting_that_is_not_there_is_an_error_and_not_a_silence(self):
        path = self.folder / "user.reg"
        path.write_text('"LogPixels"=dword:00000060')
        wine_session.replace_in(path, "00000060", "00000078")
        self.assertEqual(path.read_text(), '"LogPixels"=dword:00000078')
        with self.assertRaises(wine_session.SessionError):
            wine_session.replace_in(path, "00000060", "00000078")


class EndMarked(unittest.TestCase):
    @staticmethod
    def sleeper(token, code="import time; time.sleep(60)"):
        return subprocess.Popen([sys.executable, "-c", code], stdout=subprocess.PIPE,
                                env=dict(os.environ, CORVELLE_SESSION=token))

    @staticmethod
    def wait_until_marked(token):
        deadline = time.monotonic() + 10
        while not wine_session.processes_marked(token) and time.monotonic() < deadline:
            time.sleep(0.01)

    def test_only_processes_with_the_token_are_ended(self):
        mine, other = self.sleeper("a" * 16), self.sleeper("b" * 16)
        for process in (mine, other):
            self.addCleanup(process.stdout.close)
            self.addCleanup(process.wait)
            self.addCleanup(process.kill)
        self.wait_until_marked("a" * 16)
        self.wait_until_marked("b" * 16)
        wine_session.end_marked("a" * 16)
        self.assertLess(mine.wait(10), 0)
        self.assertIsNone(other.poll())

    def test_a_process_that_does_not_listen_is_ended_all_the_same(self):
        token = "c" * 16
        deaf = self.sleeper(token, "import signal, time; signal.signal(signal.SIGTERM, signal.SIG_IGN);"
                                   "print('ready', flush=True); time.sleep(60)")
        self.addCleanup(deaf.stdout.close)
        self.addCleanup(deaf.wait)
        self.addCleanup(deaf.kill)
        self.assertEqual(deaf.stdout.readline(), b"ready\n")
        wine_session.end_marked(token)
        self.assertEqual(deaf.wait(10), -9)


class Sweep(InAFolder):
    def test_what_a_killed_runner_left_is_removed_and_a_running_session_is_not(self):
        import fcntl
        for name in ("gone", "running"):
            (self.folder / name).mkdir()
            (self.folder / name / "lock").touch()
        with open(self.folder / "running" / "lock", "w") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            wine_session.Session._sweep(self.folder)
            self.assertEqual([path.name for path in self.folder.iterdir()], ["running"])


if __name__ == "__main__":
    unittest.main()
