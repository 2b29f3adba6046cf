#!/usr/bin/env python3
"""Makes the help of the program: a web page of each Markdown page.

  tools/build_help.py TARGET PAGES...

Each NAME.md becomes TARGET/NAME.html, with one style sheet beside them. The pictures come from the folder `pictures`
beside the first page. The pages work from a folder without a
network: no script, no font and no picture from elsewhere. A link to NAME.md becomes one to NAME.html.

What is understood: headings (#, ##, ###), paragraphs, lists with "- " or "1. " of one level, tables, blocks of code
between ``` lines, `code`, **bold**, *italic*, [links](NAME.md#heading) and pictures. Anything else is text. Ends with 1 and says
so for a link that leads nowhere.
"""

import html
import pathlib
import re
import sys

STYLE = """body { font: 15px/1.5 "Segoe UI", Tahoma, sans-serif; color: #202020; background: #ffffff; margin: 0; }
main { max-width: 46em; margin: 0 auto; padding: 1em 1.5em 3em; }
nav { background: #ece9e2; border-bottom: 1px solid #b8b4a8; padding: .5em 1.5em; }
nav a { margin-right: 1em; white-space: nowrap; }
a { color: #1a4f9c; }
h1 { font-size: 1.7em; margin: .6em 0 .4em; }
h2 { font-size: 1.25em; margin: 1.6em 0 .4em; border-bottom: 1px solid #d8d4c8; }
h3 { font-size: 1.05em; margin: 1.2em 0 .3em; }
table { border-collapse: collapse; margin: .8em 0; }
th, td { border: 1px solid #c8c4b8; padding: .25em .6em; text-align: left; vertical-align: top; }
th { background: #f2f0ea; }
code, pre { font-family: Consolas, "Courier New", monospace; font-size: .93em; background: #f4f2ec; }
pre { padding: .6em .8em; overflow-x: auto; }
img { max-width: 100%; border: 1px solid #c8c4b8; }
"""

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title} - Corvelle Help</title>
<link rel="stylesheet" href="help.css">
</head>
<body>
<nav>{ways}</nav>
<main>
{body}
</main>
</body>
</html>
"""

# Shown at the top of each page, where there is such a page.
WAYS = (("index", "Contents"), ("first-steps", "First steps"), ("keys", "Keys"), ("options", "Options"),
        ("questions", "Questions"))

LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)")


def anchor(text):
    """The name of a heading in a link."""
    return re.sub(r"[^a-z0-9]+", "-", text.lower()).strip("-")


def inline(text):
    """Marks inside a line, as HTML. What stands between backquotes has no marks in it."""
    parts = re.split(r"(`[^`]+`)", text)
    return "".join("<code>" + html.escape(part[1:-1], quote=False) + "</code>"
                   if len(part) > 2 and part.startswith("`") else marks(part) for part in parts)


def marks(text):
    text = html.escape(text, quote=False)
    text = LINK.sub(link, text)
    text = re.sub(r"\*\*([^*]+)\*\*", r"<strong>\1</strong>", text)
    return re.sub(r"(?<![\w*])\*([^*\s][^*]*)\*(?![\w*])", r"<em>\1</em>", text)


def link(found):
    target = html.escape(re.sub(r"\.md(#|$)", r".html\1", found.group(3)))
    if found.group(1):
        return f'<img src="{target}" alt="{html.escape(found.group(2))}">'
    return f'<a href="{target}">{found.group(2)}</a>'


def cells(line):
    """The cells of a line of a table; "\\|" is a bar in a cell."""
    return [cell.replace("\\|", "|").strip() for cell in re.split(r"(?<!\\)\|", line.strip().strip("|"))]


def table(lines):
    rows = ["<tr>" + "".join(f"<th>{inline(cell)}</th>" for cell in cells(lines[0])) + "</tr>"]
    for line in lines[2:]:
        rows.append("<tr>" + "".join(f"<td>{inline(cell)}</td>" for cell in cells(line)) + "</tr>")
    return "<table>\n" + "\n".join(rows) + "\n</table>"


def item_lines(lines, mark):
    """The items of a list; a line that begins with blanks goes on with the item above."""
    items = []
    for line in lines:
        if re.match(mark, line):
            items.append(re.sub(mark, "", line))
        else:
            items[-1] += " " + line.strip()
    return items


def block(lines):
    """One block of lines as HTML."""
    first = lines[0]
    heading = re.match(r"(#{1,3}) (.+)", first)
    if heading:
        level, text = len(heading.group(1)), heading.group(2).strip()
        rest = "\n" + block(lines[1:]) if lines[1:] else ""
        return f'<h{level} id="{anchor(text)}">{inline(text)}</h{level}>' + rest
    if first.startswith("|") and len(lines) > 1 and re.fullmatch(r"[|\s:-]+", lines[1]):
        return table(lines)
    for mark, tag in ((r"- ", "ul"), (r"\d+\. ", "ol")):
        if re.match(mark, first):
            items = "\n".join(f"<li>{inline(item)}</li>" for item in item_lines(lines, mark))
            return f"<{tag}>\n{items}\n</{tag}>"
    return f"<p>{inline(' '.join(line.strip() for line in lines))}</p>"


def convert(text):
    """Markdown as the inside of a page."""
    blocks, lines, code = [], [], None
    for line in text.splitlines() + [""]:
        if code is not None:
            if line.startswith("```"):
                blocks.append("<pre>" + html.escape("\n".join(code), quote=False) + "</pre>")
                code = None
            else:
                code.append(line)
        elif line.startswith("```"):
            code = []
        elif line.strip():
            lines.append(line)
        elif lines:
            blocks.append(block(lines))
            lines = []
    if code is not None:
        raise ValueError("a block of code has no end")
    return "\n".join(blocks)


def title_of(text):
    found = re.search(r"^# (.+)$", text, re.MULTILINE)
    if not found:
        raise ValueError("the page has no title")
    return found.group(1).strip()


def anchors_of(text):
    return {anchor(found.strip()) for found in re.findall(r"^#{1,3} (.+)$", text, re.MULTILINE)}


def bad_links(pages, pictures=()):
    """Links between the pages (texts by their names), and to the pictures, that lead nowhere."""
    bad = []
    for name, text in pages.items():
        for found in LINK.finditer(text):
            target, _, heading = found.group(3).partition("#")
            other = target.removesuffix(".md") if target else name
            if found.group(1) and target.startswith("pictures/"):
                if target not in pictures:
                    bad.append(f"{name}: there is no picture {target}")
            elif "://" in target or found.group(1):
                bad.append(f"{name}: {found.group(3)} lies outside the help")
            elif other not in pages:
                bad.append(f"{name}: there is no page {target}")
            elif heading and heading not in anchors_of(pages[other]):
                bad.append(f"{name}: there is no heading {found.group(3)}")
    return bad


def page_of(text, pages):
    ways = "".join(f'<a href="{name}.html">{title}</a>' for name, title in WAYS if name in pages)
    return PAGE.format(title=html.escape(title_of(text)), ways=ways, body=convert(text))


def main(arguments):
    if len(arguments) < 2:
        print(__doc__)
        return 2
    target = pathlib.Path(arguments[0])
    pages = {pathlib.Path(path).stem: pathlib.Path(path).read_text(encoding="utf-8") for path in arguments[1:]}
    pictures = {f"pictures/{path.name}": path
                for path in sorted((pathlib.Path(arguments[1]).parent / "pictures").glob("*.png"))}
    bad = bad_links(pages, pictures)
    for line in bad:
        print(line)
    if bad:
        return 1
    target.mkdir(parents=True, exist_ok=True)
    (target / "help.css").write_text(STYLE, encoding="utf-8", newline="\n")
    for name, path in pictures.items():
        (target / "pictures").mkdir(exist_ok=True)
        (target / name).write_bytes(path.read_bytes())
    for name, text in pages.items():
        (target / f"{name}.html").write_text(page_of(text, pages), encoding="utf-8", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
