#!/usr/bin/env python3
"""The pages of the help, as they are made: whole HTML, and no link, anchor or picture that leads nowhere."""

import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
VOID = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source", "track", "wbr"}
KNOWN = VOID | {"html", "head", "title", "body", "nav", "main", "h1", "h2", "h3", "p", "ul", "ol", "li", "table", "thead",
                "tbody", "tr", "th", "td", "pre", "code", "strong", "b", "em", "i", "a"}
# What may lie directly in what.
INSIDE = {"li": {"ul", "ol"}, "tr": {"table", "thead", "tbody"}, "td": {"tr"}, "th": {"tr"}, "title": {"head"},
          "head": {"html"}, "body": {"html"}, "main": {"body"}, "nav": {"body"}}
BLOCKS = {"p", "ul", "ol", "table", "pre", "h1", "h2", "h3"}
NO_BLOCKS = {"p", "h1", "h2", "h3", "a", "code", "b", "strong", "em", "i", "pre"}


class Page(html.parser.HTMLParser):
    """What is wrong with a page by itself, and what it refers to."""

    def __init__(self, text):
        super().__init__(convert_charrefs=False)
        self.wrong, self.open, self.ids, self.links, self.pictures, self.heads = [], [], [], [], [], []
        self.text = {}
        self.feed(text)
        self.close()
        if self.open:
            self.wrong.append(f"not closed: {self.open}")

    def say(self, what):
        self.wrong.append(f"line {self.getpos()[0]}: {what}")

    def handle_starttag(self, tag, attributes):
        names = [name for name, _ in attributes]
        if len(set(names)) != len(names):
            self.say(f"{tag} has an attribute twice")
        if tag not in KNOWN:
            self.say(f"there is no {tag} in these pages")
        if any(name.startswith("on") for name in names):
            self.say(f"{tag} runs a script")
        given = dict(attributes)
        parent = self.open[-1] if self.open else ""
        if tag in INSIDE and parent not in INSIDE[tag]:
            self.say(f"{tag} in {parent}")
        if parent in {"ul", "ol"} and tag != "li":
            self.say(f"{tag} in {parent}")
        if tag in BLOCKS and NO_BLOCKS & set(self.open):
            self.say(f"{tag} in {self.open}")
        if tag == "a" and "a" in self.open:
            self.say("a link in a link")
        if "id" in given:
            self.ids.append(given["id"])
            if not given["id"]:
                self.say("an empty id")
        if tag == "a":
            self.links.append(given.get("href", ""))
        if tag == "link":
            self.heads.append(given.get("href", ""))
        if tag == "img":
            self.pictures.append(given.get("src", ""))
            if not (given.get("alt") or "").strip():
                self.say("a picture without words")
        if tag not in VOID:
            self.open.append(tag)
            self.text[tag] = ""

    def handle_endtag(self, tag):
        if tag in VOID:
            self.say(f"{tag} is closed")
        elif not self.open or self.open[-1] != tag:
            self.say(f"{tag} is closed inside {self.open}")
        else:
            self.open.pop()

    def handle_data(self, data):
        if "<" in data:
            self.say("a bare <")
        if "&" in data:
            self.say("a bare &")
        for tag in self.open:
            self.text[tag] += data

    def handle_entityref(self, name):
        self.handle_charref(name)
        if name not in {"amp", "lt", "gt", "quot", "nbsp"}:
            self.say(f"&{name}; is none of ours")

    def handle_charref(self, name):
        for tag in self.open:
            self.text[tag] += "x"


def problems(folder):
    """All that is wrong with the pages of a folder."""
    pages = {path.name: Page(path.read_text(encoding="utf-8")) for path in sorted(folder.glob("*.html"))}
    found = []
    for name, page in pages.items():
        found += [f"{name}, {what}" for what in page.wrong]
        found += [f"{name}: id {i} twice" for i in sorted({i for i in page.ids if page.ids.count(i) > 1})]
        if not page.text.get("title", "").strip():
            found.append(f"{name}: no title")
        text = (folder / name).read_text(encoding="utf-8")
        if not text.startswith("<!DOCTYPE html>\n") or '<meta charset="utf-8">' not in text:
            found.append(f"{name}: no doctype or character set")
        for link in page.links:
            target, _, anchor = link.partition("#")
            other = pages.get(target or name)
            if other is None:
                found.append(f"{name}: a link to {link}")
            elif "#" in link and anchor not in other.ids:
                found.append(f"{name}: no such place {link}")
        for file in page.pictures + page.heads:
            path = folder / file
            if re.match(r"[a-z]+:|//", file) or not path.is_file():
                found.append(f"{name}: no file {file}")
            elif file.endswith(".png") and path.read_bytes()[:8] != b"\x89PNG\r\n\x1a\n":
                found.append(f"{name}: {file} is no picture")
    linked = {link.partition("#")[0] or name for name, page in pages.items() for link in page.links}
    found += [f"{name}: no page leads there" for name in pages if name not in linked]
    used = {file for page in pages.values() for file in page.pictures}
    found += [f"{path.name}: no page shows it" for path in sorted(folder.glob("pictures/*.png"))
              if f"pictures/{path.name}" not in used]
    return found


class HelpPages(unittest.TestCase):
    def test_made_pages_are_whole_and_lead_nowhere_else(self):
        with tempfile.TemporaryDirectory() as folder:
            sources = sorted((ROOT / "docs" / "help").glob("*.md"))
            subprocess.run([sys.executable, ROOT / "tools" / "build_help.py", folder, *sources], check=True)
            made = pathlib.Path(folder)
            self.assertEqual(len(list(made.glob("*.html"))), len(sources))
            self.assertGreater(len(sources), 10)
            self.assertEqual(problems(made), [])

    def test_each_kind_of_fault_is_noticed(self):
        head = '<!DOCTYPE html>\n<html lang="en"><head><meta charset="utf-8"><title>t</title></head><body>'
        good = head + '<main><h1 id="top">T</h1><p><a href="#top">up</a></p></main></body></html>'
        faults = {
            "is closed inside": good.replace("</p>", ""),
            "no such place": good.replace("#top", "#bottom"),
            "a link to": good.replace('href="#top"', 'href="gone.html"'),
            "no file": good.replace("<p>", '<p><img src="pictures/gone.png" alt="gone">'),
            "without words": good.replace("<p>", '<p><img src="pictures/gone.png">'),
            "id top twice": good.replace("<p>", '<p id="top">'),
            "runs a script": good.replace("<p>", '<p onclick="x()">'),
            "there is no script": good.replace("<p>", "<script>x</script><p>"),
            "li in main": good.replace("<p>", "<li>x</li><p>"),
            "a link in a link": good.replace("up</a>", '<a href="#top">up</a></a>'),
            "no title": good.replace("<title>t", "<title>"),
            "no doctype": good.replace("<!DOCTYPE html>\n", ""),
            "no page leads there": good.replace('<a href="#top">up</a>', "up"),
        }
        for expected, text in {"": good, **faults}.items():
            with tempfile.TemporaryDirectory() as folder, self.subTest(expected):
                (pathlib.Path(folder) / "page.html").write_text(text, encoding="utf-8")
                found = problems(pathlib.Path(folder))
                if expected:
                    self.assertTrue(any(expected in line for line in found), found)
                    self.assertTrue(found)
                else:
                    self.assertEqual(found, [])


if __name__ == "__main__":
    unittest.main()
