"""Houses, maps, the sky and ways to travel."""

from iconart.shapes import (BLUE, BLUE_L, BROWN, GREEN, GREEN_L, INK, ORANGE, PAPER, RED,
                            SHADE, SLATE, STEEL, TAN, TEAL, YELLOW, YELLOW_L, box, disc, dot, flat,
                            globe, lens, line, patch, shape, turned, wire)


def _windows(x, y, columns, rows, colour=YELLOW, dx=5, dy=5):
    return "".join(flat(x + dx * c, y + dy * r, 3, 3, colour)
                   for r in range(rows) for c in range(columns))


ICONS = {
    "netsrch": globe(13, 13, 12) + lens(20, 20, 7.5),
    "globe": globe(),
    "home": shape("M1 17l15 -14l15 14h-5v13h-20v-13", PAPER) +
            shape("M1 17l15 -14l15 14h-4l-11 -10l-11 10", RED) + box(12, 18, 8, 12, BROWN),
    "office": box(6, 0, 20, 30, BLUE_L) + _windows(10, 4, 3, 4, BLUE) + box(13, 22, 6, 8, BROWN),
    "factory": shape("M1 29v-14l8 -5v5l8 -5v5l6 -4v-10h6v28", STEEL) + _windows(5, 20, 4, 1) +
               flat(4, 26, 24, 1, INK),
    "school": box(2, 14, 28, 16, ORANGE) + shape("M7 15l9 -11l9 11", RED) +
              _windows(5, 19, 1, 2) + _windows(24, 19, 1, 2) + box(12, 20, 8, 10, BROWN) +
              dot(16, 12, 2, PAPER),
    "shop": box(2, 12, 28, 18, PAPER) + "".join(
        flat(2 + 4 * i, 4, 4, 10, RED if i % 2 else PAPER) for i in range(7)) +
            line("M1 14v-11h30v11z") + box(6, 18, 10, 8, BLUE_L) + box(19, 17, 8, 13, BROWN),
    "bank": shape("M1 11l15 -9l15 9v3h-30", SHADE) + "".join(
        box(4 + 7 * i, 13, 5, 13, PAPER) for i in range(4)) + box(0, 25, 32, 5, SHADE),
    "hospital": box(4, 2, 24, 28, PAPER) + flat(14, 6, 4, 12, RED) + flat(10, 10, 12, 4, RED) +
                box(12, 20, 8, 10, BLUE_L),
    "castle": shape("M3 29v-26h4v4h4v-4h4v8h2v-8h4v4h4v-4h4v26", STEEL) +
              shape("M12 29v-6q4 -6 8 0v6", BROWN),
    "map": shape("M1 6l10 -4l10 4l10 -4v24l-10 4l-10 -4l-10 4", GREEN_L) +
           line("M11 3v22M21 7v22", GREEN) + line("M4 22l7 -8l8 5l8 -9", RED, 2.4),
    "pin": shape("M16 31q-11 -13 -11 -19a11 11 0 0 1 22 0q0 6 -11 19", RED) + dot(16, 12, 4, PAPER),
    "signpost": box(13, 0, 6, 32, TAN) + shape("M5 4h18l6 4l-6 4h-18", YELLOW) +
                shape("M27 15h-18l-6 4l6 4h18", GREEN_L),
    "compass": disc(16, 16, 15, PAPER) + turned(45, patch("M16 4l4 12h-8", RED) +
                                                patch("M16 28l4 -12h-8", BLUE)) +
               dot(16, 16, 2, INK),
    "mountain": shape("M1 28l11 -22l6 10l4 -5l9 17", SLATE) +
                patch("M12 8l-4 8l3 -1l2 3l2 -3l2 1", PAPER),
    "tree": box(13, 20, 6, 11, BROWN) + disc(16, 12, 12, GREEN) + dot(12, 9, 3, GREEN_L),
    "fir": box(13, 24, 6, 7, BROWN) + shape("M16 1l8 10h-4l7 8h-4l6 7h-26l6 -7h-4l7 -8h-4", GREEN),
    "flower": wire("M16 16v14", GREEN, 2) + "".join(
        turned(72 * i, disc(16, 6, 5, "#ee7fb0"), 16, 12) for i in range(5)) +
              disc(16, 12, 5, YELLOW),
    "island": disc(25, 7, 6, YELLOW) + shape("M1 25q15 -8 30 0v6h-30", BLUE) +
              shape("M7 25q8 -10 17 0", YELLOW_L) + wire("M15 20q-1 -7 2 -12", BROWN, 1.6) +
              shape("M17 8q-9 -5 -11 3q6 -3 11 -3q7 -1 9 6q1 -9 -9 -6", GREEN),
    "sun": "".join(turned(45 * i, box(13, 0, 6, 32, YELLOW)) for i in range(4)) +
           disc(16, 16, 10, YELLOW),
    "moon": shape("M21 2a14 14 0 1 0 9 19q-12 2 -13 -8q0 -7 4 -11", YELLOW_L),
    "cloud": shape("M8 26a6.5 6.5 0 0 1 -1 -13a9 9 0 0 1 17 -1a7 7 0 0 1 0 14", PAPER),
    "rain": shape("M8 19a5.5 5.5 0 0 1 0 -11a8 8 0 0 1 16 0a5.5 5.5 0 0 1 0 11", SHADE) +
            wire("M9 24l-2 5M17 24l-2 5M25 24l-2 5", BLUE, 1.4),
    "snow": "".join(turned(60 * i, wire("M16 3v26M12 5l4 4l4 -4M12 27l4 -4l4 4", BLUE_L, 1.6))
                    for i in range(3)),
    "storm": shape("M8 19a5.5 5.5 0 0 1 0 -11a8 8 0 0 1 16 0a5.5 5.5 0 0 1 0 11", STEEL) +
             shape("M17 14h6l-4 6h5l-11 11l3 -8h-5", YELLOW),
    "car": shape("M1 25v-8l5 -2l4 -8h12l5 8l4 2v8", RED) + shape("M11 14l2 -5h7l3 5", BLUE_L) +
           disc(8, 25, 5, SLATE) + disc(24, 25, 5, SLATE),
    "bus": box(2, 4, 28, 22, YELLOW, 3) + flat(5, 8, 6, 7, BLUE_L) + flat(13, 8, 6, 7, BLUE_L) +
           flat(21, 8, 6, 7, BLUE_L) + flat(4, 18, 24, 2, ORANGE) + disc(9, 26, 4, SLATE) +
           disc(23, 26, 4, SLATE),
    "truck": box(0, 6, 20, 18, TEAL) + shape("M19 11h7l5 7v6h-12", ORANGE) +
             disc(7, 25, 5, SLATE) + disc(24, 25, 5, SLATE),
    "train": box(6, 2, 20, 22, GREEN, 4) + flat(9, 7, 14, 7, BLUE_L) + dot(11, 19, 2, YELLOW) +
             dot(21, 19, 2, YELLOW) + wire("M10 26l-4 4M22 26l4 4M9 28h14", STEEL, 1),
    "bike": wire("M8 22l5 -10h9l3 10M13 12l5 10h-10M11 9h4M22 12l-1 -5h4", ORANGE, 1.2) +
            '<circle cx="8" cy="22" r="6" fill="none" stroke="#5d6b7d" stroke-width="2.6"/>'
            '<circle cx="25" cy="22" r="6" fill="none" stroke="#5d6b7d" stroke-width="2.6"/>',
    "ship": shape("M1 21h30l-5 9h-20", RED) + box(8, 12, 14, 10, PAPER) + box(13, 4, 6, 10, YELLOW) +
            flat(11, 15, 3, 3, BLUE) + flat(16, 15, 3, 3, BLUE),
    "sailboat": shape("M3 23h26l-5 7h-16", BROWN) + shape("M15 1v20h-12", PAPER) +
                shape("M18 5q10 6 10 16h-10", ORANGE),
    "plane": turned(45, shape("M16 0q4 2 3 9l12 8v4l-12 -3l-1 7l4 3v3l-6 -2l-6 2v-3l4 -3l-1 -7"
                              "l-12 3v-4l12 -8q-1 -7 3 -9", SHADE) + dot(16, 6, 1.4, BLUE)),
    "rocket": turned(45, shape("M11 21l-6 5v-8l6 -4", RED) + shape("M21 21l6 5v-8l-6 -4", RED) +
                     shape("M16 0q7 7 6 22h-12q-1 -15 6 -22", PAPER) + disc(16, 12, 4, BLUE) +
                     shape("M13 23h6l-3 8", ORANGE)),
    "satellit": turned(-45, box(0, 10, 10, 12, BLUE) + box(22, 10, 10, 12, BLUE) +
                       box(10, 8, 12, 16, SHADE) + line("M5 11v10M27 11v10", BLUE_L)) ,
    "anchor": wire("M16 9v20M8 14h16M4 20q2 9 12 9t12 -9", STEEL, 2) + disc(16, 6, 5, STEEL),
    "bridge": flat(0, 20, 32, 4, INK) + flat(0, 21, 32, 2, RED) + box(4, 4, 6, 24, STEEL) +
              box(22, 4, 6, 24, STEEL) + line("M0 17q6 -4 7 -11q9 20 18 0q1 7 7 11", RED, 2),
    "planet": disc(16, 16, 10, ORANGE) + line("M8 13h14M7 18h17", "#c9631b", 2) +
              turned(-20, '<path d="M6 14q-7 4 -4 6q8 4 28 -2q4 -3 -3 -5" fill="none" '
                     f'stroke="{INK}" stroke-width="4"/><path d="M6 14q-7 4 -4 6q8 4 28 -2q4 -3 '
                     f'-3 -5" fill="none" stroke="{TAN}" stroke-width="2"/>'),
}
