"""Tests of the icon library's packer and of the pictures' drawing."""

import pathlib
import sys
import tempfile
import unittest
import xml.etree.ElementTree

TOOLS = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(TOOLS))

import draw_icons  # noqa: E402
import pack_library  # noqa: E402
from iconart import CATEGORIES  # noqa: E402

ASSETS = TOOLS.parent / "assets" / "icons"

# Names that entries of the program's own and of its default menus refer to.
NAMED = """W95MBX02.ICO filefind.ico comp02.ico Explorer.ico netsrch.ico MyComp.ico desktop.ico
PROGRAMS.ICO FOLDER21.ICO clip01.ico settings.ico ctrpanel.ico PRINTFLD.ICO app02.ico taskbar.ico
Windows.ico delfile.ico delfiles.ico Recycle2.ico""".split()


class Packing(unittest.TestCase):
    def test_the_container_is_the_one_that_the_program_reads(self):
        # The program's own test unpacks these very bytes.
        self.assertEqual(pack_library.pack([("a.ico", b"first"), ("W95MBX02.ICO", b"\0\xff")]),
                         b"a.ico               \4\0\0\0first"
                         b"W95MBX02.ICO        \1\0\0\0\0\xff"
                         b"                    \0\0\0\0")

    def test_a_name_may_fill_its_field_and_no_more(self):
        pack_library.entry("abcdefghijklmnop.ico", b"xx")
        with self.assertRaises(pack_library.PackError):
            pack_library.entry("abcdefghijklmnopq.ico", b"xx")

    def test_what_would_end_the_container_is_refused(self):
        for data in (b"", b"x"):
            with self.assertRaises(pack_library.PackError):
                pack_library.entry("a.ico", data)

    def test_names_that_lead_elsewhere_are_refused(self):
        for name in ("", "a/b.ico", "a\\b.ico", "c:a.ico", "nul.ico", "COM1", "a.", " a", "\u0416.ico"):
            with self.assertRaises(pack_library.PackError, msg=name):
                pack_library.entry(name, b"xx")

    def test_a_name_comes_once_case_apart(self):
        with self.assertRaises(pack_library.PackError):
            pack_library.pack([("a.ico", b"xx"), ("A.ICO", b"xx")])

    def test_a_name_in_capitals_has_its_ending_in_capitals(self):
        self.assertEqual(pack_library.entry_name("x/W95MBX02.ico"), "W95MBX02.ICO")
        self.assertEqual(pack_library.entry_name("x/MyComp.ico"), "MyComp.ico")

    def test_the_program_writes_a_container_and_says_what_it_cannot_pack(self):
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder)
            (place / "a.ico").write_bytes(b"first")
            (place / "one.ico").write_bytes(b"x")
            self.assertEqual(pack_library.main([f"{folder}/lib", f"{folder}/a.ico"]), 0)
            self.assertEqual((place / "lib").read_bytes(), pack_library.pack([("a.ico", b"first")]))
            self.assertEqual(pack_library.main([f"{folder}/lib", f"{folder}/one.ico"]), 1)
            self.assertEqual(pack_library.main([f"{folder}/lib", f"{folder}/none.ico"]), 1)
            self.assertEqual(pack_library.main([]), 2)


class Drawing(unittest.TestCase):
    def test_the_pictures_of_the_house_are_as_they_are_drawn(self):
        self.assertEqual(draw_icons.main(["--check", str(ASSETS)]), 0)

    def test_the_check_says_what_is_stale(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(draw_icons.main([folder]), 0)
            self.assertEqual(draw_icons.main(["--check", folder]), 0)
            (pathlib.Path(folder) / "folder.svg").write_text("<svg/>", encoding="ascii")
            self.assertEqual(draw_icons.main(["--check", folder]), 1)

    def test_every_name_that_entries_use_has_its_picture(self):
        drawn = {draw_icons.file_name(name) for icons in CATEGORIES.values() for name in icons}
        self.assertEqual([name for name in NAMED if name not in drawn], [])

    def test_a_name_is_drawn_once_case_apart(self):
        names = [name.lower() for icons in CATEGORIES.values() for name in icons]
        self.assertEqual(len(names), len(set(names)))
        self.assertGreaterEqual(len(names), 120)

    def test_no_two_pictures_are_the_same(self):
        bodies = [body for icons in CATEGORIES.values() for body in icons.values()]
        self.assertEqual(len(bodies), len(set(bodies)))

    def test_every_picture_is_well_formed_and_fits_the_container(self):
        for icons in CATEGORIES.values():
            for name, body in icons.items():
                root = xml.etree.ElementTree.fromstring(draw_icons.svg(body))
                self.assertGreater(len(root), 0, name)
                pack_library.entry(draw_icons.file_name(name), b"xx")

    def test_a_category_lists_its_pictures_in_order(self):
        lines = draw_icons.all_files()["Arrows.ini"].split("\r\n")
        self.assertEqual(lines.pop(), "")
        self.assertEqual(lines, sorted(lines, key=str.lower))
        self.assertEqual(len(lines), len(CATEGORIES["Arrows"]))


if __name__ == "__main__":
    unittest.main()
