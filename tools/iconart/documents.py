"""Papers, books and files."""

from iconart.shapes import (BLUE, BLUE_L, BROWN, GOLD, GREEN, GREEN_L, INK, ORANGE, ORANGE_L, PAPER,
                            PURPLE, RED, SHADE, SLATE, STEEL, TAN, TEAL, YELLOW, YELLOW_L, box, cross,
                            disc, dot, flat, landscape, lens, line, moved, note_sign, padlock,
                            plus_badge, shape, sheet, star, text_lines, turned, wire)

_LINED = sheet() + text_lines(9, 12, 14, 4, BLUE)


def _bound(fill, mark):
    """A closed book."""
    return (box(4, 2, 24, 28, fill) + flat(6, 24, 20, 4, PAPER) + flat(8, 26, 18, 1, STEEL) +
            flat(9, 4, 2, 20, INK) + mark)


ICONS = {
    "W95MBX02": sheet(),
    "documents": box(8, 0, 20, 22, SHADE) + box(2, 6, 20, 26, PAPER) +
                 text_lines(6, 12, 12, 4, BLUE),
    "textdoc": _LINED,
    "newdoc": _LINED + plus_badge(),
    "picdoc": sheet() + landscape(8, 13, 16, 14),
    "musicdoc": sheet() + moved(8, 12, note_sign(0, 1)),
    "videodoc": sheet() + flat(8, 12, 16, 14, SLATE) + shape("M13 15l7 4l-7 4", YELLOW),
    "tabledoc": sheet() + flat(8, 12, 16, 16, GREEN) + "".join(
        flat(10 + 5 * c, 14 + 5 * r, 4, 3, PAPER) for r in range(3) for c in range(3)),
    "chartdoc": sheet() + flat(9, 20, 4, 8, RED) + flat(14, 14, 4, 14, GREEN) +
                flat(19, 17, 4, 11, BLUE) + flat(7, 27, 18, 2, INK),
    "codedoc": sheet() + line("M13 14l-4 5l4 5M19 14l4 5l-4 5", PURPLE, 2.4),
    "zipdoc": sheet() + "".join(flat(13 if i % 2 else 15, 2 + 3 * i, 3, 3, SLATE)
                                for i in range(7)) + box(12, 22, 8, 8, YELLOW),
    "lockdoc": sheet() + text_lines(9, 11, 10, 2) + padlock(16, 14),
    "finddoc": _LINED + lens(19, 19, 8),
    "stardoc": sheet() + text_lines(9, 11, 8, 2) + star(20, 21, 10),
    "signdoc": sheet() + text_lines(9, 11, 14, 2) + line("M9 25q3 -7 4 -2t4 -1t4 0", BLUE, 2) +
               turned(40, box(22, 12, 5, 16, ORANGE), 24, 20),
    "faxdoc": box(8, 0, 16, 12, PAPER) + text_lines(11, 4, 10, 2) +
              box(2, 10, 28, 20, SHADE) + box(5, 13, 8, 14, SLATE) +
              "".join(flat(17 + 4 * c, 16 + 4 * r, 2, 2, INK) for r in range(3) for c in range(3)),
    "book": _bound(RED, flat(14, 8, 9, 2, YELLOW) + flat(14, 12, 9, 2, YELLOW)),
    "diction": _bound(BLUE, line("M14 20l4 -12l4 12M15 16h6", PAPER, 2)),
    "bible": _bound(SLATE, flat(17, 7, 2, 13, YELLOW) + flat(14, 10, 8, 2, YELLOW)),
    "openbook": shape("M1 6q8 -4 15 1v22q-7 -5 -15 -1", PAPER) +
                shape("M31 6q-8 -4 -15 1v22q7 -5 15 -1", YELLOW_L) +
                text_lines(4, 10, 8, 4) + text_lines(20, 10, 8, 4, GOLD),
    "books": box(2, 6, 8, 24, RED) + box(8, 2, 8, 28, BLUE) + box(14, 8, 8, 22, GREEN) +
             turned(-14, box(22, 8, 8, 22, YELLOW), 26, 30) + flat(4, 10, 4, 2, PAPER) +
             flat(10, 6, 4, 2, PAPER) + flat(16, 12, 4, 2, PAPER),
    "notebook": box(6, 2, 22, 28, YELLOW) + text_lines(12, 8, 12, 5, GOLD) +
                "".join(box(2, 5 + 6 * i, 8, 4, STEEL) for i in range(4)),
    "note": shape("M3 3h26v18l-8 8h-18", YELLOW) + shape("M21 29v-8h8", GOLD) +
            text_lines(7, 9, 18, 3, GOLD),
    "calendar": box(2, 4, 28, 26, PAPER) + flat(4, 6, 24, 6, RED) + flat(8, 2, 4, 6, INK) +
                flat(20, 2, 4, 6, INK) + "".join(
        flat(6 + 6 * c, 15 + 5 * r, 3, 3, RED if (r, c) == (1, 2) else STEEL)
        for r in range(3) for c in range(4)),
    "letter": box(0, 6, 32, 22, PAPER) + line("M2 8l14 11l14 -11") +
              flat(24, 9, 4, 4, RED),
    "maillist": box(0, 10, 24, 18, YELLOW_L) + line("M2 12l10 8l10 -8") +
                box(18, 2, 14, 18, PAPER) + text_lines(21, 6, 8, 3, BLUE),
    "news": box(6, 4, 24, 26, PAPER) + flat(9, 7, 18, 4, INK) + flat(9, 14, 8, 8, BLUE_L) +
            text_lines(19, 14, 8, 3) + text_lines(9, 25, 18, 1) + shape("M1 11h5v16q-2 4 -5 0", SHADE),
    "certif": box(0, 4, 32, 20, YELLOW_L) + text_lines(6, 9, 14, 3, GOLD) +
              shape("M20 20l-2 11l5 -3l5 3l-2 -11", RED) + disc(23, 18, 6, ORANGE),
    "clip01": sheet(YELLOW_L, -4) + text_lines(5, 12, 14, 4, GOLD) +
              wire("M21 8v14a4 4 0 0 0 8 0v-15a3 3 0 0 0 -5 -1", SHADE, 1),
    "clipbrd": box(4, 4, 24, 26, TAN, 2) + flat(8, 9, 16, 18, PAPER) + box(10, 0, 12, 8, STEEL, 2) +
               text_lines(11, 13, 10, 4, BLUE),
    "checklst": sheet() + "".join(
        line(f"M8 {13 + 7 * i}l2 2l4 -4", GREEN, 2) + flat(16, 12 + 7 * i, 8, 2, STEEL)
        for i in range(3)),
    "addrbook": _bound(TEAL, dot(18, 10, 3.4, PAPER) + flat(13, 15, 10, 6, PAPER, 2)) + "".join(
        flat(28, 5 + 7 * i, 3, 4, c) for i, c in enumerate((RED, YELLOW, GREEN))),
    "money": box(0, 8, 32, 18, GREEN_L) + disc(16, 17, 6, GREEN) + flat(4, 12, 3, 3, GREEN) +
             flat(25, 19, 3, 3, GREEN),
    "invoice": sheet() + text_lines(9, 11, 8, 2) + flat(9, 22, 14, 6, ORANGE_L) +
               text_lines(11, 24, 10, 1, ORANGE) + flat(19, 11, 4, 6, GREEN),
    "scroll": shape("M7 5h20v18h-16v4h-4", YELLOW_L) + box(4, 2, 24, 6, TAN, 3) +
              box(4, 24, 24, 6, TAN, 3) + text_lines(11, 11, 12, 3, BROWN),
    "delfile": sheet() + text_lines(9, 11, 10, 2) + cross(22, 22, 6),
    "delfiles": box(10, 0, 20, 22, SHADE) + box(2, 6, 20, 24, PAPER) + text_lines(6, 11, 10, 2) +
                cross(22, 22, 6),
    "filefind": box(4, 0, 20, 26, PAPER) + text_lines(8, 5, 12, 4, BLUE) + lens(20, 19, 8),
}
