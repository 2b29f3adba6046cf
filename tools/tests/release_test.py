#!/usr/bin/env python3
"""Tests of the scripts that make and test a release; they need no compiled program."""

import pathlib
import sys
import tempfile
import unittest
import zipfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

import make_release as make
import run_release_tests as tests

HEADERS = """
corvelle.exe:     file format pei-x86-64
Characteristics 0x22e
\tlarge address aware
DllCharacteristics\t00008160
\t\t\t\t\tHIGH_ENTROPY_VA
\t\t\t\t\tNX_COMPAT

\tDLL Name: KERNEL32.dll
\tvma:  Hint/Ord Member-Name Bound-To
\t104d74\t  282  CloseHandle
\t104d82\t 1183  SetDefaultDllDirectories

\tDLL Name: msvcrt.dll
\tvma:  Hint/Ord Member-Name Bound-To
\t104e00\t   59  __getmainargs
"""


def script():
    """The script of the installer."""
    return (make.ROOT / "tools" / "installer" / "corvelle.nsi").read_text(encoding="utf-8")


class Headers(unittest.TestCase):
    def test_flags_and_imports_are_read(self):
        flags, imports = tests.parse_headers(HEADERS)
        self.assertEqual(flags, {"HIGH_ENTROPY_VA", "NX_COMPAT"})
        self.assertEqual(imports, {"kernel32.dll": {"CloseHandle", "SetDefaultDllDirectories"},
                                   "msvcrt.dll": {"__getmainargs"}})

    def test_a_function_that_windows_7_lacks_is_named(self):
        _, imports = tests.parse_headers(HEADERS)
        self.assertEqual(tests.unknown_functions(imports, {"CloseHandle"}),
                         ["kernel32.dll:SetDefaultDllDirectories"])

    def test_the_version_is_read_from_properties_and_manifest(self):
        text = "ProductVersion\0\0004.25\0".encode("utf-16-le")
        manifest = b'<assemblyIdentity type="win32" name="Corvelle" version="4.25.0.0"/>'
        for start in (b"", b"x"):
            self.assertEqual(tests.version_told(start + text + manifest), ("4.25", "4.25.0.0"))
        self.assertEqual(tests.version_told(b"nothing"), ("", ""))


class Release(unittest.TestCase):
    def test_the_day_is_that_of_the_version(self):
        text = "# What\n\n## 4.26 (2027-01-02)\n\n## 4.25 (2026-11-22)\n"
        self.assertEqual(make.day_of("4.25", text), ("2026-11-22", 1795305600))
        with self.assertRaises(make.ReleaseError):
            make.day_of("4.2", text)

    def test_what_has_changed_in_this_version_is_told(self):
        make.day_of(make.version(), (make.ROOT / "CHANGELOG.md").read_text(encoding="utf-8"))

    def test_all_but_the_mark_is_removed_and_the_inner_folders_first(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "help" / "pictures").mkdir(parents=True)
            for name in ("corvelle.exe", "portable", "help/index.html", "help/pictures/a.png"):
                (root / name).write_bytes(b"x")
            self.assertEqual(make.removal_list(root).splitlines(), [
                'Delete "$INSTDIR\\corvelle.exe"', 'Delete "$INSTDIR\\help\\index.html"',
                'Delete "$INSTDIR\\help\\pictures\\a.png"', 'RMDir "$INSTDIR\\help\\pictures"',
                'RMDir "$INSTDIR\\help"'])

    def test_a_zip_depends_on_names_bytes_and_the_given_time_only(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "a").write_bytes(b"one")
            (root / "b").write_bytes(b"two")
            files = [("x/a", root / "a"), ("x/b", root / "b")]
            make.zip_files(root / "1.zip", files, 1795305600)
            (root / "a").touch()
            make.zip_files(root / "2.zip", reversed(files), 1795305600)
            self.assertEqual((root / "1.zip").read_bytes(), (root / "2.zip").read_bytes())
            self.assertEqual(zipfile.ZipFile(root / "1.zip").infolist()[0].date_time, (2026, 11, 22, 0, 0, 0))

    def test_the_manifest_is_for_one_user_and_has_both_widths(self):
        with tempfile.TemporaryDirectory() as folder:
            setup = pathlib.Path(folder, "corvelle-4.25-x64-setup.exe")
            setup.write_bytes(b"setup")
            text = make.winget("4.25", "2026-11-22", [("x64", setup), ("x86", setup)])[
                "Corvelle.Corvelle.installer.yaml"]
        for line in ("InstallerType: nullsoft", "Scope: user", "  - Architecture: x64", "  - Architecture: x86",
                     "ReleaseDate: 2026-11-22"):
            self.assertIn(line, text.splitlines())

    def test_a_silent_installer_has_an_answer_to_each_of_its_questions(self):
        asked = [line for line in script().splitlines() if line.strip().startswith("MessageBox")]
        self.assertTrue(asked)
        for line in asked:
            self.assertIn(" /SD ID", line)

    def test_the_32_bit_installer_alone_asks_on_a_64_bit_windows_before_it_does_anything(self):
        begins = script().split("Function .onInit\n")[1].split("FunctionEnd")[0]
        narrow, _, rest = begins.partition("!endif\n")
        self.assertTrue(narrow.startswith('!if "${ARCH}" == "x86"\n  ;'), narrow)
        self.assertIn("${If} ${IsNativeAMD64}", narrow)
        self.assertIn("/SD IDYES IDYES", narrow)
        self.assertNotIn("MessageBox", rest)


if __name__ == "__main__":
    unittest.main()
