"""Mutants are found where they are, change one thing each, and are noticed only by tests that fail."""

import pathlib
import stat
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import mutants  # noqa: E402
import mutate  # noqa: E402

SOURCE = """
constexpr int kLimit = 10;  // never "if (x)"

struct Scene {
  int A = 0;
  int B = 0;
};

// A comment: if (a && b) f();
int Rule(const Scene& s) {
  int sum = 0;
  if (s.A < kLimit && !(s.B == 3)) return 1;
  for (int i = 0; i < s.B; ++i) {
    sum = sum + s.A;
    if (sum > 50) break;
  }
  return sum;
}
"""


def changes(text):
    return [(m.kind, m.before, m.changed) for m in mutants.find(text)]


def body(statements):
    return changes(f"void F() {{\n{statements}\n}}\n")


class Finding(unittest.TestCase):
    def test_a_condition_is_turned_round_as_a_whole_and_in_its_parts(self):
        found = [change for kind, _, change in body("if (a && !b) f();") if kind in ("flip", "swap")]
        self.assertCountEqual(found, ["!(a && !b)", "!a", "b", "a || !b"])

    def test_operators_become_their_neighbours(self):
        found = {before: change for kind, before, change in body("x = a < b; y = c - d * e;") if kind == "swap"}
        self.assertEqual(found, {"a < b": "a <= b", "c - d * e": "c + d * e", "d * e": "d / e"})

    def test_statements_are_left_out_but_declarations_are_not(self):
        dropped = [before for kind, before, _ in body(
            "int a = f(); std::string b(a); const auto c = a; T& d = a; std::vector<int> e; G g{1};"
            "call(a); a = 2; ++a; p->q(1).r = 3; *s = 1; if (a) return;") if kind == "drop"]
        self.assertEqual(dropped, ["call(a);", "a = 2;", "++a;", "p->q(1).r = 3;", "*s = 1;", "return;"])

    def test_a_return_with_a_value_is_left_out_only_where_another_follows(self):
        def returns(text):
            return [before for kind, before, _ in changes(text) if kind == "drop"]
        self.assertEqual(returns("int F() { if (a) return 1; return 2; }"), ["return 1;"])
        self.assertEqual(returns("int F() { if (a) return 1; else return 2; }"), [])

    def test_numbers_and_named_constants_are_shifted_where_the_program_computes(self):
        found = [before for kind, before, _ in changes(
            "constexpr int kA = 4;\nconstexpr char kText[] = \"7\";\n"
            "int F(int n) { switch (n) { case 3: return n + kA; } constexpr int k = 9; "
            "std::array<int, kA> a{}; return true ? 5 : 0; }") if kind == "shift"]
        self.assertEqual(found, ["n + kA", "; return true", "true ? 5", "5 : 0"])

    def test_templates_comments_and_texts_hold_no_operators(self):
        self.assertEqual([kind for kind, _, _ in body(
            "std::map<int, T> a; auto&& b = f<int>(x); /* a && b */ const char* c = \"a < b && 3\";")], [])

    def test_lambdas_in_tables_are_gone_through(self):
        found = changes("constexpr Rule kRules[] = {{\"A\", [](const Facts& f) { return f.a && f.b; }}};")
        self.assertEqual([change for kind, _, change in found if kind == "swap"], ["f.a || f.b"])

    def test_the_lines_are_those_of_the_source(self):
        found = mutants.find(SOURCE)
        self.assertEqual({m.line for m in found if m.changed == "sum >= 50"}, {15})
        written = mutants.render(SOURCE, found)
        self.assertEqual(written.count("\n"), SOURCE.count("\n"))


class Rendering(unittest.TestCase):
    """The written copy, compiled: without a mutant it is the same program, with one it is that mutant."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        folder = pathlib.Path(cls.folder.name)
        cls.found = mutants.find(SOURCE)
        for number, mutant in enumerate(cls.found, 1):
            mutant.id = number
        (folder / "mutant.h").write_text(mutants.HEADER)
        (folder / "a.cpp").write_text(mutants.render(SOURCE, cls.found) + """
#include <cstdio>
int main() { for (int a = 8; a < 12; ++a) for (int b = 0; b < 6; ++b) std::printf("%d ", Rule({a, b})); }
""")
        cls.program = folder / "a"
        subprocess.run(["c++", "-std=c++20", "-w", "-include", folder / "mutant.h", folder / "a.cpp", "-o",
                        cls.program], check=True)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @staticmethod
    def rule(a, b, limit=10, three=3, most=50, both=lambda x, y: x and y):
        if both(a < limit, b != three):
            return 1
        total = 0
        for _ in range(b):
            total += a
            if total > most:
                break
        return total

    def output(self, number):
        return subprocess.run([self.program], env={"CORVELLE_MUTANT": str(number)}, stdout=subprocess.PIPE,
                              check=True, timeout=20).stdout.decode()

    def expected(self, **changed):
        return "".join(f"{self.rule(a, b, **changed)} " for a in range(8, 12) for b in range(6))

    def number(self, kind, before, changed):
        return next(m.id for m in self.found if (m.kind, m.before, m.changed) == (kind, before, changed))

    def test_without_a_mutant_it_is_the_same_program(self):
        self.assertEqual(self.output(0), self.expected())

    def test_each_mutant_changes_its_own_place(self):
        rows = [("shift", "A < kLimit", "A < kLimit + 1", {"limit": 11}),
                ("shift", "B == 3", "B == 3 + 1", {"three": 4}),
                ("swap", "sum > 50", "sum >= 50", {"most": 49}),
                ("drop", "break;", ";", {"most": 1000}),
                ("swap", "s.A < kLimit && !(s.B == 3)", "s.A < kLimit || !(s.B == 3)",
                 {"both": lambda x, y: x or y})]
        for kind, before, changed, means in rows:
            with self.subTest(before=before):
                self.assertEqual(self.output(self.number(kind, before, changed)), self.expected(**means))

    def test_a_mutant_that_does_not_compile_is_found_by_its_column(self):
        line = "  x = (::mutant::On(5) ? (a - b) : (::mutant::On(6) ? (c(d) - e) : (a + b)));"
        self.assertEqual(mutate.blamed(line, line.index("a - b") + 3), 5)
        self.assertEqual(mutate.blamed(line, line.index("- e") + 1), 6)
        self.assertIsNone(mutate.blamed(line, line.index("a + b") + 3))

    def test_lines_that_are_alike_are_told_by_the_one_above(self):
        lines = ["case 1:", "  break;", "case 2:", "  break;", "f();"]
        self.assertEqual(mutate.told_line(lines, 4), "case 2: / break;")
        self.assertEqual(mutate.told_line(lines, 5), "f();")

    def test_places_are_read_from_a_log(self):
        log = ("In file included from U.cxx:3:\n/t/src/core/A.cpp: In function 'f':\n"
               "/t/src/core/A.cpp:12:7: error: no match\n"
               "In file included from /usr/include/x:1:\n/usr/include/x: In instantiation of 'g':\n"
               "/t/src/core/B.cpp:4:9:   required from here\n/usr/include/x:9:1: error: no member\n")
        self.assertEqual(mutate.places_in_error(log), {("src/core/A.cpp", 12, 7), ("src/core/B.cpp", 4, 9)})


class Running(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def suite(self, name, trace, script):
        program = self.folder / f"{name}_tests"
        program.write_text("#!/bin/sh\n[ -n \"$CORVELLE_MUTANT_TRACE\" ] && { printf '" + trace +
                           "' > \"$CORVELLE_MUTANT_TRACE\"; exit 0; }\necho \"" + name + " $CORVELLE_MUTANT $GTEST_FILTER\" >> "
                           + str(self.folder / "runs") + "\n" + script)
        program.chmod(program.stat().st_mode | stat.S_IXUSR)

    def runs(self):
        path = self.folder / "runs"
        return path.read_text().splitlines() if path.exists() else []

    def traced(self):
        tests = mutate.Tests(self.folder, self.folder)
        tests.trace()
        return tests

    @staticmethod
    def mutant(number, folder="core"):
        return mutants.Mutant("flip", 0, 1, "x", id=number, file=f"src/{folder}/A.cpp", line=1)

    def test_only_tests_that_reach_the_place_run_and_the_own_folder_comes_first(self):
        self.suite("core", "*\\nA.a 1 2\\nA.b 2\\n", "exit 0")
        self.suite("base", "*\\nB.a 1\\nB.b 3\\n", "[ \"$CORVELLE_MUTANT\" != 1 ]")
        tests = self.traced()
        self.assertEqual(tests.killer(self.mutant(1)), "base")
        self.assertEqual(self.runs(), ["core 1 A.a", "base 1 B.a"])

    def test_what_no_test_reaches_survives_without_a_run(self):
        self.suite("core", "*\\nA.a 1\\n", "exit 1")
        self.assertEqual(self.traced().killer(self.mutant(9)), "")
        self.assertEqual(self.runs(), [])

    def test_what_is_reached_before_the_tests_is_reached_by_all(self):
        self.suite("core", "* 7\\nA.a 1\\nA.b\\n", "exit 0")
        self.assertEqual(self.traced().killer(self.mutant(7)), "")
        self.assertEqual(self.runs(), ["core 7 *"])

    def test_a_test_program_that_fails_without_a_mutant_is_told(self):
        self.suite("core", "*\\nA.a 1\\n", "")
        program = self.folder / "core_tests"
        program.write_text("#!/bin/sh\nexit 1\n")
        with self.assertRaises(SystemExit):
            self.traced()

    def test_the_seed_draws_the_same_ones_each_time(self):
        drawn = mutate.draw(list(range(1000)), 3, 20)
        self.assertEqual(drawn, mutate.draw(list(range(1000)), 3, 20))
        self.assertNotEqual(drawn, mutate.draw(list(range(1000)), 4, 20))
        self.assertEqual(len(set(drawn)), 20)
        self.assertEqual(mutate.draw([1, 2], 3, 0), [1, 2])

    def test_the_same_program_needs_a_reason(self):
        path = self.folder / "same.txt"
        path.write_text("# told\nsrc/a.cpp\n  if (a) b();\n  a => !a\n  Nobody\n  sees it.\n")
        self.assertEqual(mutate.read_same(path), {("src/a.cpp", "if (a) b();", "a => !a"): "Nobody sees it."})
        path.write_text("src/a.cpp\n  if (a) b();\n  a => !a\n")
        with self.assertRaises(ValueError):
            mutate.read_same(path)


if __name__ == "__main__":
    unittest.main()
