#!/usr/bin/env python3
"""Writes the icon library's pictures as SVG, and the lists of its categories.

draw_icons.py FOLDER   writes every picture and list there (assets/icons is the folder of the house)
draw_icons.py --check FOLDER   says which files there are not as they would be written
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

from iconart import CATEGORIES  # noqa: E402


def file_name(picture):
    """Name of the icon file of a picture: names in capitals bear the ending in capitals too."""
    return picture + (".ICO" if picture.isupper() else ".ico")


def svg(body):
    return ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32">' +
            body.replace("><", ">\n<") + "</svg>\n")


def all_files():
    """Every file to write: its name and its text."""
    files = {}
    for category, pictures in CATEGORIES.items():
        names = sorted(pictures, key=str.lower)
        files[category + ".ini"] = "".join(file_name(name) + "\r\n" for name in names)
        for name in names:
            if name + ".svg" in files:
                raise ValueError(f"two pictures are called {name}")
            files[name + ".svg"] = svg(pictures[name])
    return files


def main(arguments):
    check = arguments[:1] == ["--check"]
    folder = pathlib.Path(arguments[-1]) if arguments else None
    if folder is None or len(arguments) != 1 + check or not folder.is_dir():
        print(__doc__, file=sys.stderr)
        return 2
    stale = []
    for name, text in all_files().items():
        path = folder / name
        if path.exists() and path.read_bytes() == text.encode():
            continue
        stale.append(name)
        if not check:
            path.write_bytes(text.encode())
    if check and stale:
        print("not as tools/draw_icons.py draws them: " + ", ".join(stale))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
