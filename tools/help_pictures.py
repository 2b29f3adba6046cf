#!/usr/bin/env python3
"""Cuts the pictures of the help out of those that a test run under Wine took of the screen.

  tools/help_pictures.py [--pictures build/e2e] [--out docs/help/pictures]

Run `tools/run_windows_tests.py --build build/windows e2e` first. Each picture is cut to what stands on the bare desktop
and loses what tells of the machine that made it. They are kept in the tree, so that a build needs no screen. Wants ImageMagick.
Ends with 1 when one is missing.
"""

import argparse
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Name in the help; the road and the picture of it; the part of the screen to look at (width x height + left + top).
PICTURES = (
    ("customize", "CustomizeAtEachScale.IsUsedWithTheKeyboardAlone/item", "620x560+200+120"),
    ("properties", "PropertiesAtEachScale.AnItemIsEditedAndSeenInItsMenu/the-entry", "620x560+200+120"),
    ("position", "PropertiesAtEachScale.ThePositionTabSendsTheStripToAnEdge/the-strip-in-it", "620x560+200+120"),
    ("library", "LibraryAtEachScale.AnIconOfACategoryIsPickedForAnEntry/marked", "760x560+150+120"),
    ("net-search", "NetSearchAtEachScale.AQueryGoesToTheBrowserWithItsAddress/typed", "620x560+200+120"),
    ("about", "AboutAtEachScale.ShowsItsThreeTabsAndCopiesAPage/corvelle", "620x560+200+120"),
    ("web-link", "WebLinkAtEachScale.AnAddressDroppedOnAButtonIsCorrectedAndStandsInItsMenu/dialog", "500x185+300+295"),
)
DESKTOP = "#3a6ea5"


def cut(source, part, target):
    """True when the picture was cut."""
    command = ["convert", str(source), "-crop", part, "+repage", "-bordercolor", DESKTOP, "-border", "1", "-trim",
               "+repage", "-strip", "-define", "png:exclude-chunks=date,time", "-colors", "256", f"png8:{target}"]
    return subprocess.run(command, check=False).returncode == 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--pictures", type=pathlib.Path, default=ROOT / "build" / "e2e")
    parser.add_argument("--out", type=pathlib.Path, default=ROOT / "docs" / "help" / "pictures")
    args = parser.parse_args()
    args.out.mkdir(parents=True, exist_ok=True)
    missing = 0
    for name, picture, part in PICTURES:
        source = args.pictures / f"{picture}.png"
        if not source.is_file() or not cut(source, part, args.out / f"{name}.png"):
            print(f"no picture {source}")
            missing += 1
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
