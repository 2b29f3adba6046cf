"""Tests of tools/build_help.py."""

import pathlib
import re
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(TOOLS))

import build_help  # noqa: E402

PAGES = TOOLS.parent / "docs" / "help"


class Convert(unittest.TestCase):
    def check(self, markdown, expected):
        self.assertEqual(build_help.convert(markdown), expected)

    def test_headings_have_names_for_links(self):
        self.check("# One & two", '<h1 id="one-two">One &amp; two</h1>')
        self.check("## F1, F2\ntext", '<h2 id="f1-f2">F1, F2</h2>\n<p>text</p>')

    def test_lines_of_a_paragraph_are_joined(self):
        self.check("one\ntwo\n\nthree", "<p>one two</p>\n<p>three</p>")

    def test_lists(self):
        self.check("- one\n  more\n- two", "<ul>\n<li>one more</li>\n<li>two</li>\n</ul>")
        self.check("1. one\n2. two", "<ol>\n<li>one</li>\n<li>two</li>\n</ol>")

    def test_a_table_may_hold_a_bar(self):
        self.check("| A | B |\n|---|---|\n| `a\\|b` | c |",
                   "<table>\n<tr><th>A</th><th>B</th></tr>\n<tr><td><code>a|b</code></td><td>c</td></tr>\n</table>")

    def test_code_has_no_marks_and_no_tags(self):
        self.check("`C:\\*.*` and `<x>` and *it* **bold**",
                   "<p><code>C:\\*.*</code> and <code>&lt;x&gt;</code> and <em>it</em> <strong>bold</strong></p>")
        self.check("```\n<a> *x*\n\n| y\n```", "<pre>&lt;a&gt; *x*\n\n| y</pre>")

    def test_links_lead_to_the_pages(self):
        self.check("[a](keys.md) [b](keys.md#f-1)",
                   '<p><a href="keys.html">a</a> <a href="keys.html#f-1">b</a></p>')

    def test_text_cannot_become_markup(self):
        self.check("a <script> & b", "<p>a &lt;script&gt; &amp; b</p>")

    def test_a_block_of_code_without_an_end_is_an_error(self):
        with self.assertRaises(ValueError):
            build_help.convert("```\nx")


class Links(unittest.TestCase):
    def test_each_link_that_leads_nowhere_is_named(self):
        pages = {"a": "# A\n[x](b.md) [y](b.md#two) [z](c.md) [w](http://x/)", "b": "# One"}
        self.assertEqual(build_help.bad_links(pages),
                         ["a: there is no heading b.md#two", "a: there is no page c.md",
                          "a: http://x/ lies outside the help"])

    def test_a_picture_that_is_not_there_is_named(self):
        pages = {"a": "# A\n![x](pictures/a.png) ![y](pictures/b.png) ![z](http://x/z.png)"}
        self.assertEqual(build_help.bad_links(pages, {"pictures/a.png"}),
                         ["a: there is no picture pictures/b.png", "a: http://x/z.png lies outside the help"])

    def test_such_a_link_ends_the_build(self):
        with tempfile.TemporaryDirectory() as folder:
            page = pathlib.Path(folder, "a.md")
            page.write_text("# A\n[x](b.md)\n", encoding="utf-8")
            self.assertEqual(build_help.main([folder, str(page)]), 1)
            self.assertFalse(pathlib.Path(folder, "a.html").exists())


class TheHelp(unittest.TestCase):
    """The pages that come with the program."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.status = build_help.main([cls.folder.name, *map(str, sorted(PAGES.glob("*.md")))])
        cls.pages = {path.name: path.read_text(encoding="utf-8")
                     for path in pathlib.Path(cls.folder.name).glob("*.html")}

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_is_built_without_a_bad_link(self):
        self.assertEqual(self.status, 0)
        self.assertGreaterEqual(len(self.pages), 14)

    def test_each_page_that_the_program_opens_exists(self):
        source = (TOOLS.parent / "src" / "core" / "HelpPages.h").read_text(encoding="utf-8")
        opened = re.findall(r'"([a-z-]+\.html)"', source)
        self.assertGreaterEqual(len(opened), 14)
        self.assertEqual(sorted(opened), sorted(self.pages))

    def test_works_without_a_network_and_without_a_script(self):
        for name, text in self.pages.items():
            self.assertNotIn("<script", text, name)
            for address in re.findall(r'(?:src|href)="([^"]+)"', text):
                self.assertNotIn(":", address, name)

    def test_each_picture_lies_beside_the_pages_and_is_shown(self):
        shown = {picture for text in self.pages.values() for picture in re.findall(r'<img src="([^"]+)"', text)}
        beside = {f"pictures/{path.name}" for path in pathlib.Path(self.folder.name, "pictures").iterdir()}
        self.assertGreaterEqual(len(shown), 7)
        self.assertEqual(shown, beside)

    def test_each_page_can_be_reached_from_the_contents(self):
        contents = self.pages["index.html"]
        for name in self.pages:
            if name != "index.html":
                self.assertIn(f'href="{name}', contents)

    def test_no_mark_is_left_over(self):
        for name, text in self.pages.items():
            plain = re.sub(r"<(pre|code)>.*?</\1>", "", text, flags=re.DOTALL)
            self.assertIsNone(re.search(r"\*\*|\]\(|```|^#+ ", plain, re.MULTILINE), name)

    def test_every_option_of_folder_items_is_explained(self):
        for letter in ("X", "U", "S", "E", "-", "_"):
            self.assertIn(f"<td><code>{letter}</code></td>", self.pages["folder-items.html"])


if __name__ == "__main__":
    unittest.main()
