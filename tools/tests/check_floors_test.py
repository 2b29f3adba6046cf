"""A tree that keeps the order passes; one breach of each rule is found."""

import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import check_floors  # noqa: E402


class CheckFloors(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.write("src/base/Text.h", "#pragma once\n#include <string>\n")
        self.write("src/core/Menu.h", '#pragma once\n#include "base/Text.h"\n')
        self.write("src/toolbar/strip/Strip.cpp", '#include "toolbar/strip/Strip.h"\n#include "core/Menu.h"\n')
        self.write("src/toolbar/strip/Strip.h", "#pragma once\n")
        self.write("src/win32/Window.cpp", '#include <windows.h>\n#include "base/Text.h"\n')
        self.write("src/main.cpp", '#include "toolbar/strip/Strip.h"\n#include "win32/Window.h"\n')
        self.write("src/win32/Window.h", "#pragma once\n")
        self.write("tests/CMakeLists.txt", "  corvelle_tests(base LINKS corvelle_base)\n")
        self.write("tests/base/Text_test.cpp", '#include "base/Text.h"\n')

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def assert_one(self, *parts):
        breaches = check_floors.check(self.root)
        self.assertEqual(len(breaches), 1, breaches)
        for part in parts:
            self.assertIn(part, breaches[0])

    def test_a_scale_that_belongs_to_no_window_is_found(self):
        for text in ("int dpi = GetDeviceCaps(dc, LOGPIXELSX);", "int dpi = windows.DpiAt({});", "return kPlainDpi;",
                     "float twips = 1440.0F / dpi;", "int width = GetSystemMetrics(SM_CXSIZE);",
                     "UINT dpi = GetDpiForSystem();"):
            with self.subTest(text):
                self.write("src/toolbar/strip/Strip.cpp", f"// the strip\n{text}\n")
                self.assert_one("src/toolbar/strip/Strip.cpp:2", "the scale of no window")

    def test_the_window_system_may_ask_for_scales(self):
        self.write("src/forms/Form.cpp", "int dpi = windows.DpiAt(bounds);\n")
        self.write("src/win32/MonitorScale.cpp", "int dpi = GetDeviceCaps(dc, LOGPIXELSX);\n")
        self.write("src/toolbar/strip/Strip.cpp", "// not kPlainDpi\nint width = GetSystemMetrics(SM_CXSCREEN);\n")
        self.assertEqual(check_floors.check(self.root), [])

    def test_an_orderly_tree_passes(self):
        self.assertEqual(check_floors.check(self.root), [])

    def test_an_include_of_a_higher_floor_is_found_with_its_line(self):
        self.write("src/base/Text.h", '#pragma once\n#include <string>\n#include "core/Menu2.h"\n')
        self.write("src/core/Menu2.h", "#pragma once\n")
        self.assert_one("src/base/Text.h:3", "core/Menu2.h")

    def test_rooms_of_one_floor_do_not_include_each_other(self):
        self.write("src/menus/window/Menu.cpp", '#include "toolbar/strip/Strip.h"\n')
        self.assert_one("menus/window may not include")

    def test_floors_of_a_folder_have_their_order(self):
        self.write("src/toolbar/layout/Rules.h", "#pragma once\n")
        self.write("src/toolbar/strip/Strip.h", '#pragma once\n#include "toolbar/layout/Rules.h"\n')
        self.assertEqual(check_floors.check(self.root), [])
        self.write("src/toolbar/layout/Rules.cpp", '#include "toolbar/strip/Strip.h"\n')
        self.assert_one("src/toolbar/layout/Rules.cpp:1", "toolbar/layout may not include")

    def test_a_file_beside_the_floors_of_its_folder_is_found(self):
        self.write("src/toolbar/Loose.h", "#pragma once\n")
        self.assert_one("src/toolbar/Loose.h", "toolbar is no floor")

    def test_the_windows_side_sees_no_core(self):
        self.write("src/win32/Peer.cpp", '#include "core/Menu.h"\n')
        self.assert_one("win32 may not include")

    def test_an_include_of_a_missing_file_is_found(self):
        self.write("src/core/Menu.h", '#pragma once\n#include "Text.h"\n')
        self.assert_one("src/core/Menu.h:2", "not a file below src/")

    def test_a_file_that_is_made_from_a_template_has_its_place(self):
        self.write("src/core/Menu.h", '#pragma once\n#include "base/Version.h"\n')
        self.write("src/base/Version.h.in", "#pragma once\n")
        self.assertEqual(check_floors.check(self.root), [])
        self.write("src/base/Text.h", '#pragma once\n#include "core/About.h"\n')
        self.write("src/core/About.h.in", "#pragma once\n")
        self.assert_one("base may not include")

    def test_an_include_that_climbs_is_found(self):
        self.write("src/core/Menu.h", '#pragma once\n#include "core/../base/Text.h"\n')
        self.assert_one("not written from src/")

    def test_a_folder_that_is_no_floor_is_found(self):
        self.write("src/misc/Things.h", "#pragma once\n")
        self.assert_one("misc is no floor")

    def test_a_circle_of_includes_is_found_once(self):
        self.write("src/core/A.h", '#include "core/B.h"\n')
        self.write("src/core/B.h", '#include "core/C.h"\n')
        self.write("src/core/C.h", '#include "core/A.h"\n')
        self.assert_one("circle", "core/A.h -> core/B.h -> core/C.h -> core/A.h")

    def test_a_file_that_includes_itself_is_a_circle(self):
        self.write("src/core/A.h", '#include "core/A.h"\n')
        self.assert_one("core/A.h -> core/A.h")

    def test_windows_headers_are_found_outside_their_place(self):
        for place in ("src/core/Menu.cpp", "tests/base/Text_test.cpp", "fuzz/a.cpp"):
            with self.subTest(place):
                old = (self.root / place).read_text() if (self.root / place).exists() else None
                self.write(place, "#include <Windows.h>\n")
                self.assert_one(place, "Windows.h")
                if old is None:
                    (self.root / place).unlink()
                else:
                    self.write(place, old)

    def test_tests_that_run_on_windows_may_include_its_headers(self):
        self.write("tests/windows.cmake", "corvelle_windows_tests(e2e)\n")
        self.write("tests/e2e/Start_test.cpp", "#include <windows.h>\n")
        self.assertEqual(check_floors.check(self.root), [])

    def test_a_test_in_a_folder_without_a_program_is_found(self):
        self.write("tests/lost/Lost_test.cpp", "")
        self.assert_one("tests/lost/Lost_test.cpp", "no test program")

    def test_a_tree_without_sources_does_not_pass(self):
        empty = self.root / "empty"
        empty.mkdir()
        self.assertEqual(len(check_floors.check(empty)), 1)


if __name__ == "__main__":
    unittest.main()
