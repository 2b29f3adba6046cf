"""Sample menus hold what is there, in the text that menutext packs."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import sample_menus  # noqa: E402


class SampleMenus(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.drive = pathlib.Path(folder.name)

    def put(self, windows_path):
        path = sample_menus.place_of(self.drive, windows_path)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.touch()

    def test_only_what_is_there_gets_an_entry(self):
        self.put(r"C:\windows\notepad.exe")
        self.put(r"C:\windows\system32\cmd.exe")
        programs = sample_menus.menus(self.drive)[0]
        self.assertEqual(programs,
                         "title: Programs\nicon: \\\\icons\\\\programs.ico\ncommand: \n\n"
                         "title: Notepad\nicon: C:\\\\windows\\\\notepad.exe\n"
                         "command: C:\\\\windows\\\\notepad.exe\n\n"
                         "title: Separator\nicon: MenuLineSeparator\ncommand: \n\n"
                         "title: Command Prompt\nicon: C:\\\\windows\\\\system32\\\\cmd.exe\n"
                         "command: C:\\\\windows\\\\system32\\\\cmd.exe\n")

    def test_a_button_without_entries_and_a_separator_without_neighbours_are_left_out(self):
        self.put(r"C:\windows\system32\winecfg.exe")
        texts = sample_menus.menus(self.drive)
        self.assertFalse(any("title: Programs\n" in text for text in texts))
        settings = next(text for text in texts if "title: Settings\n" in text)
        self.assertNotIn("MenuLineSeparator", settings)

    def test_the_long_menu_lists_every_program_by_name(self):
        for name in ("b.exe", "A.exe", "c.dll"):
            self.put("C:\\windows\\system32\\" + name)
        long_menu = sample_menus.menus(self.drive)[-1]
        self.assertIn("title: All Programs\n", long_menu)
        self.assertLess(long_menu.index("title: A\n"), long_menu.index("title: b\n"))
        self.assertNotIn("c.dll", long_menu)


if __name__ == "__main__":
    unittest.main()
