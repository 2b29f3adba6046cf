#!/usr/bin/env python3
"""Packs pictures and lists of categories into the icon library that the program unpacks.

pack_library.py CONTAINER FILES...

An entry is the file's name in 20 bytes padded with blanks, the highest index of its bytes as a little-endian
number of 4 bytes, and its bytes; an entry of length 0 ends the container. A name in capitals gets its ending
in capitals too.
"""

import pathlib
import re
import struct
import sys

NAME_WIDTH = 20
DEVICES = re.compile(r"(CON|PRN|AUX|NUL|CONIN\$|CONOUT\$|(COM|LPT)[1-9\u00b9\u00b2\u00b3]) *(\..*)?", re.I)
FORBIDDEN = re.compile(r'[\x00-\x1f\\/:*?"<>|]')


class PackError(Exception):
    """A file that cannot be an entry."""


def entry_name(path):
    """The name under which a file goes into the container."""
    path = pathlib.PurePath(path)
    return path.name.upper() if path.stem.isupper() else path.name


def entry(name, data):
    """The bytes of one entry."""
    if not name or name != name.strip(" ") or name.endswith(".") or FORBIDDEN.search(name):
        raise PackError(f"{name!r} is no plain file name")
    if DEVICES.fullmatch(name):
        raise PackError(f"{name} is the name of a device")
    try:
        field = name.encode("cp1252")
    except UnicodeEncodeError as error:
        raise PackError(f"{name} has characters that the container cannot hold") from error
    if len(field) > NAME_WIDTH:
        raise PackError(f"{name} is longer than {NAME_WIDTH} bytes")
    if not 2 <= len(data) <= 0x7FFFFFFF:
        # One byte has the highest index 0, which ends the container.
        raise PackError(f"{name} has {len(data)} bytes")
    return field.ljust(NAME_WIDTH) + struct.pack("<i", len(data) - 1) + data


def pack(files):
    """The container of (name, data) pairs."""
    seen = set()
    parts = []
    for name, data in files:
        if name.upper() in seen:
            raise PackError(f"{name} is there twice")
        seen.add(name.upper())
        parts.append(entry(name, data))
    return b"".join(parts) + b" " * NAME_WIDTH + struct.pack("<i", 0)


def main(arguments):
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        container = pack([(entry_name(path), pathlib.Path(path).read_bytes()) for path in arguments[1:]])
    except (PackError, OSError) as error:
        print(f"pack_library.py: {error}", file=sys.stderr)
        return 1
    pathlib.Path(arguments[0]).write_bytes(container)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
