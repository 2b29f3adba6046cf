"""Computers and what stands around them."""

from iconart.shapes import (BLUE, BLUE_L, GREEN, INK, ORANGE, PAPER, RED, SCREEN, SHADE, SLATE, STEEL,
                            TEAL, YELLOW, arrow_right, box, disc, dot, flat, globe, lens, line,
                            monitor, moved, note_sign, shape, text_lines, turned, wire)

_PRINTER = (box(8, 2, 16, 12, PAPER) + text_lines(11, 5, 10, 2) +
            box(2, 10, 28, 14, SHADE) + flat(24, 14, 3, 2, GREEN) +
            box(6, 18, 20, 12, PAPER) + text_lines(10, 22, 12, 2))

_TOWER = (box(20, 2, 10, 28, SHADE) + flat(23, 6, 4, 2, SLATE) + flat(23, 10, 4, 2, SLATE) +
          dot(25, 24, 2, GREEN))


def _small_screen(x, y, colour=SCREEN):
    return (box(x, y, 12, 10, SHADE) + flat(x + 3, y + 3, 6, 4, colour) +
            flat(x + 2, y + 10, 8, 2, SLATE))


ICONS = {
    "MyComp": box(2, 6, 20, 16, SHADE) + flat(5, 9, 14, 10, SCREEN) + flat(8, 22, 8, 4, INK) +
              box(4, 24, 16, 6, SHADE) + _TOWER,
    "comp02": monitor() + lens(),
    "monitor": monitor(TEAL) + flat(8, 8, 8, 2, PAPER) + flat(8, 12, 12, 2, PAPER),
    "laptop": box(4, 4, 24, 18, SHADE) + flat(8, 8, 16, 10, SCREEN) +
              shape("M1 29l4 -8h22l4 8", STEEL) + flat(8, 23, 16, 2, INK),
    "tablet": box(4, 2, 24, 28, SLATE, 3) + flat(8, 6, 16, 18, BLUE_L) + dot(16, 27, 1.5, PAPER),
    "printer": _PRINTER,
    "scanner": shape("M3 13l20 -10l6 4l-20 10", BLUE_L) + box(2, 16, 28, 12, SHADE) +
               flat(6, 18, 20, 2, GREEN) + flat(22, 23, 4, 2, SLATE),
    "mouse": box(8, 4, 16, 26, SHADE, 8) + line("M8 14h16", INK) + flat(15, 4, 2, 10, INK) +
             flat(14, 8, 4, 4, BLUE) + line("M16 4v-4", INK),
    "keyboard": box(0, 8, 32, 18, SHADE, 2) +
                "".join(flat(4 + 5 * c, 12 + 4 * r, 3, 2, SLATE)
                        for r in range(2) for c in range(5)) + flat(8, 20, 14, 2, SLATE),
    "floppy": box(2, 2, 28, 28, BLUE) + flat(8, 4, 16, 10, SHADE) + flat(18, 5, 4, 8, INK) +
              flat(7, 18, 18, 10, PAPER) + text_lines(10, 20, 12, 2),
    "harddisk": shape("M3 17l4 -12h18l4 12", SHADE) + box(2, 16, 28, 12, STEEL) +
                dot(24, 22, 2, GREEN) + flat(6, 21, 10, 2, INK),
    "cdrom": disc(16, 16, 15, SHADE) + line("M7 11a10 10 0 0 1 8 -6", BLUE, 4) +
             line("M25 21a10 10 0 0 1 -8 6", ORANGE, 4) + disc(16, 16, 5, PAPER),
    "usbstick": turned(45, box(10, 10, 12, 20, BLUE, 3) + box(12, 2, 8, 10, SHADE) +
                       flat(14, 5, 1.6, 3, INK) + flat(16.6, 5, 1.6, 3, INK)),
    "memcard": shape("M5 1h14l8 8v22h-22", SLATE) + "".join(
        flat(9 + 4 * i, 4, 2, 6, YELLOW) for i in range(3)) + flat(9, 16, 14, 10, PAPER),
    "camera": box(2, 8, 28, 20, SLATE, 3) + flat(10, 4, 12, 6, INK) + flat(12, 6, 8, 3, SLATE) +
              disc(16, 18, 8, SHADE) + disc(16, 18, 5, BLUE) + flat(24, 11, 3, 2, YELLOW),
    "video": box(0, 8, 22, 18, SLATE, 3) + shape("M21 15l10 -6v16l-10 -6", STEEL) +
             dot(7, 13, 2, RED) + flat(6, 18, 10, 2, SHADE),
    "phone": shape("M3 14q0 -9 13 -9t13 9v3h-8v-5h-10v5h-8", RED) +
             shape("M9 17h14l5 12h-24", RED) + disc(16, 22, 5, PAPER),
    "mobile": box(8, 2, 16, 28, SLATE, 3) + flat(11, 6, 10, 16, BLUE_L) + dot(16, 26, 1.6, PAPER) +
              flat(11, 6, 10, 4, BLUE),
    "speaker": shape("M3 11h6l9 -8v26l-9 -8h-6", SHADE) + line("M22 10q4 6 0 12", BLUE, 3) +
               line("M26 6q7 10 0 20", BLUE, 3),
    "micro": box(10, 2, 12, 18, STEEL, 5) + flat(13, 7, 6, 2, INK) + flat(13, 11, 6, 2, INK) +
             line("M5 13v2q0 9 11 9t11 -9v-2", STEEL, 3) + flat(14, 24, 4, 4, STEEL) +
             box(8, 26, 16, 6, STEEL),
    "headphon": wire("M5 20v-4a11 11 0 0 1 22 0v4", STEEL, 3) + box(2, 16, 8, 14, BLUE, 3) +
                box(22, 16, 8, 14, BLUE, 3),
    "tv": wire("M16 8l-7 -6M16 8l7 -6", STEEL, 1) + box(2, 8, 28, 20, "#9b6a3b", 2) +
          flat(6, 12, 16, 12, TEAL) + dot(26, 14, 1.6, YELLOW) + dot(26, 19, 1.6, YELLOW) +
          flat(6, 28, 4, 2, INK) + flat(22, 28, 4, 2, INK),
    "battery": box(2, 10, 26, 14, PAPER) + box(26, 14, 5, 6, STEEL) +
               "".join(flat(5 + 7 * i, 13, 5, 8, GREEN) for i in range(2)) +
               flat(19, 13, 5, 8, SHADE),
    "network": flat(15, 12, 2, 8, SLATE) + flat(5, 16, 22, 2, SLATE) + flat(5, 16, 2, 4, SLATE) +
               flat(25, 16, 2, 4, SLATE) + _small_screen(10, 2) + _small_screen(0, 18, GREEN) +
               _small_screen(20, 18, ORANGE),
    "server": "".join(box(4, 2 + 9 * i, 24, 10, SHADE) + dot(9, 7 + 9 * i, 2, GREEN) +
                      flat(14, 6 + 9 * i, 10, 2, SLATE) for i in range(3)),
    "modem": wire("M25 16v-12", STEEL, 1) + box(2, 16, 28, 12, SLATE, 2) +
             "".join(flat(6 + 5 * i, 21, 3, 3, c) for i, c in enumerate((GREEN, GREEN, YELLOW))),
    "gamepad": shape("M9 9h14q8 0 8 12q0 6 -5 5l-4 -6h-12l-4 6q-5 1 -5 -5q0 -12 8 -12", SLATE) +
               flat(8, 12, 2, 6, PAPER) + flat(6, 14, 6, 2, PAPER) + dot(21, 16, 2, RED) +
               dot(25, 13, 2, YELLOW),
    "webcam": disc(16, 13, 12, SHADE) + disc(16, 13, 7, SLATE) + disc(16, 13, 4, BLUE) +
              shape("M9 29l4 -5h6l4 5", STEEL),
    "webserv": box(2, 2, 14, 28, SHADE) + flat(5, 6, 8, 2, SLATE) + flat(5, 10, 8, 2, SLATE) +
               dot(9, 24, 2, GREEN) + globe(21, 20, 10),
    "musicbox": box(4, 2, 24, 28, SLATE, 2) + moved(9, 4, note_sign(0, 1, YELLOW), 1) +
                flat(8, 22, 16, 2, SHADE) + dot(16, 26, 2, RED),
    "plug": box(8, 10, 16, 12, ORANGE, 3) + box(10, 2, 4, 10, STEEL) + box(18, 2, 4, 10, STEEL) +
            wire("M16 23v7", STEEL, 1.4),
    "copier": box(2, 14, 28, 14, SHADE) + shape("M3 15l4 -8h18l4 8", BLUE_L) +
              arrow_right(8, 21, GREEN),
}
