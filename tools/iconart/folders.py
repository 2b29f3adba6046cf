"""Folders and bins."""

from iconart.shapes import (BLUE, GOLD, GREEN, GREEN_L, INK, ORANGE, PAPER, PURPLE, RED, SHADE, SLATE,
                            STEEL, TEAL, YELLOW, arrow_right, box, cog, disc, dot, flat, folder, globe,
                            heart, landscape, lens, line, moved, note_sign, open_folder, padlock,
                            plus_badge, shape, sheet, star, text_lines, turned, window)

_BIN = (shape("M5 11h22l-3 20h-16", GREEN_L) + box(2, 6, 28, 6, GREEN) + flat(12, 2, 8, 4, INK) +
        flat(11, 15, 2, 12, GREEN) + flat(15, 15, 2, 12, GREEN) + flat(19, 15, 2, 12, GREEN))


def _with(x, y, scale, body):
    return folder() + moved(x, y, body, scale)


_TREE = (line("M9 13v14h6M9 19h6", SLATE, 2) + flat(6, 9, 6, 5, GOLD) + flat(14, 16, 7, 5, GOLD) +
         flat(14, 24, 7, 5, GOLD))

ICONS = {
    "folder": folder(),
    "foldopen": open_folder(),
    "FOLDER21": folder(GOLD, GOLD) + box(6, 2, 20, 18, PAPER) + text_lines(10, 6, 12, 3, BLUE) +
                shape("M1 17h30v12h-30", YELLOW),
    "foldnew": folder() + plus_badge(),
    "foldstar": folder() + star(22, 21, 10, ORANGE),
    "foldlock": folder() + padlock(18, 14, SHADE),
    "foldmus": _with(9, 13, 1, note_sign(0, 1)),
    "foldpic": folder() + box(10, 12, 20, 16, PAPER) + landscape(12, 14, 16, 12),
    "folddown": folder() + turned(90, arrow_right(14, 22, GREEN), 22, 22),
    "foldup": folder() + turned(-90, arrow_right(14, 22, BLUE), 22, 22),
    "foldfind": folder() + lens(20, 19, 8),
    "foldhome": folder() + shape("M13 21l9 -8l9 8h-3v9h-12v-9", RED) + flat(20, 24, 4, 6, PAPER),
    "foldnet": folder() + globe(22, 21, 9),
    "foldgear": folder() + cog(22, 21, 10, SHADE, SLATE),
    "foldhart": folder() + heart(21, 17, 9),
    "foldzip": folder() + "".join(flat(14 if i % 2 else 17, 13 + 3 * i, 3, 3, SLATE)
                                  for i in range(5)),
    "foldblue": folder("#8ab8f2", BLUE),
    "foldgrn": folder("#93d48f", GREEN),
    "foldred": folder("#f19a8d", RED),
    "foldgrey": folder(SHADE, STEEL),
    "PRINTFLD": folder() + box(14, 10, 14, 8, PAPER) + box(10, 16, 22, 10, SHADE) +
                flat(26, 19, 3, 2, GREEN) + box(14, 22, 14, 8, PAPER),
    "Explorer": window() + _TREE + flat(22, 10, 2, 18, SHADE),
    "archive": box(2, 2, 28, 14, STEEL) + box(2, 14, 28, 16, STEEL) + box(10, 6, 12, 6, PAPER) +
               box(10, 18, 12, 6, PAPER),
    "briefcas": box(10, 2, 12, 8, STEEL) + box(0, 8, 32, 20, "#9b6a3b", 2) +
                flat(2, 16, 28, 2, INK) + box(13, 14, 6, 8, YELLOW),
    "recycle1": _BIN,
    "Recycle2": shape("M7 9l4 -8l6 3l4 -3l6 8", PAPER) + line("M12 5l3 3M20 4l-2 4", STEEL) +
                shape("M5 11h22l-3 20h-16", GREEN_L) + box(2, 8, 28, 6, GREEN) +
                flat(11, 16, 2, 11, GREEN) + flat(15, 16, 2, 11, GREEN) +
                flat(19, 16, 2, 11, GREEN),
    "crate": shape("M1 9l15 -7l15 7v15l-15 7l-15 -7", "#d6aa76") + line("M2 9l14 7l14 -7M16 16v14") +
             line("M9 6l14 7v5", PAPER, 2),
    "drawer": box(2, 4, 28, 26, "#9b6a3b") + box(5, 7, 22, 10, "#d6aa76") +
              box(5, 17, 22, 10, "#d6aa76") + dot(16, 12, 2, INK) + dot(16, 22, 2, INK),
    "foldcart": folder() + dot(12, 26, 2.4, INK) + dot(22, 26, 2.4, INK) +
                line("M6 13h3l3 9h11l3 -7h-15", PURPLE, 2.4),
    "foldwork": folder() + box(8, 16, 18, 12, TEAL) + flat(13, 13, 8, 3, INK) +
                flat(10, 21, 14, 2, INK),
    "foldmove": folder() + arrow_right(10, 21, GREEN),
    "foldcopy": moved(6, 0, folder(), 0.8) + moved(0, 7, folder(), 0.8),
    "favorite": open_folder() + star(19, 18, 9, RED),
}
