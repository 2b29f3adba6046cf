"""Things to work with."""

from iconart.shapes import (BLUE, BLUE_L, BROWN, GOLD, GREEN, GREEN_L, INK, ORANGE, PAPER, PURPLE, RED,
                            RED_D, SHADE, SLATE, STEEL, TAN, TEAL, YELLOW, box, cog, disc,
                            dot, flat, lens, line, patch, shape, turned, wire)

_PENCIL = (box(12, 6, 8, 18, YELLOW) + box(12, 0, 8, 6, RED) + box(12, 4, 8, 4, STEEL) +
           shape("M13 23h6l-3 8", TAN))
_WRENCH = (shape("M13 31v-16q-5 -2 -5 -7q0 -5 4 -7v7l4 2l4 -2v-7q4 2 4 7q0 5 -5 7v16", STEEL))
_HAMMER = box(13, 8, 6, 24, TAN) + shape("M5 3h18q5 0 6 5h-6v3h-18", SLATE)

ICONS = {
    "settings": cog(16, 16, 16, STEEL),
    "ctrpanel": box(2, 2, 28, 28, SHADE) + "".join(
        flat(x, 6, 2, 20, SLATE) + box(x - 3, y, 8, 6, c)
        for x, y, c in ((8, 16, RED), (15, 8, GREEN), (22, 19, BLUE))),
    "tools": turned(45, _WRENCH) + turned(-45, _HAMMER),
    "hammer": turned(-40, _HAMMER),
    "wrench": turned(45, _WRENCH),
    "screwdrv": turned(45, box(11, 2, 10, 14, RED, 4) + box(13, 15, 6, 13, SHADE) +
                       shape("M12 27h8l-1 4h-6", SHADE)),
    "pliers": wire("M11 30q-5 -9 3 -14M21 30q5 -9 -3 -14", RED, 3) +
              shape("M11 17l-2 -10l5 -5v13M21 17l2 -10l-5 -5v13", STEEL) + disc(16, 17, 4, SHADE),
    "saw": turned(-35, shape("M1 12h20v8l-20 -2", SHADE) + patch("M2 18l2 3l2 -2l2 3l2 -2l2 3l2 -2"
           "l2 3l2 -3v-2", STEEL) + box(19, 9, 12, 13, BROWN, 3) + flat(23, 13, 4, 5, PAPER)),
    "scissors": wire("M9 3l9 17M23 3l-9 17", SHADE, 2.4) + "".join(
        f'<circle cx="{x}" cy="25" r="4.5" fill="none" stroke="{INK}" stroke-width="5"/>'
        f'<circle cx="{x}" cy="25" r="4.5" fill="none" stroke="{RED}" stroke-width="2.4"/>'
        for x in (10, 22)),
    "pencil": turned(45, _PENCIL),
    "pen": turned(45, box(12, 0, 8, 20, BLUE, 2) + shape("M12 19h8l-4 12", SHADE) +
                  flat(18, 3, 2, 10, INK)),
    "brush": turned(45, box(13, 0, 6, 15, TAN) + box(11, 13, 10, 6, STEEL) +
                    shape("M11 19h10q0 7 -5 12q-5 -5 -5 -12", PURPLE)),
    "roller": box(4, 2, 22, 10, GREEN) + wire("M27 7h2v9h-13v4", STEEL, 1) + box(13, 20, 6, 12, RED),
    "ruler": turned(-45, box(-3, 10, 38, 12, YELLOW) + "".join(
        flat(2 + 4 * i, 12, 1.6, 6 if i % 2 else 4, INK) for i in range(8))),
    "triangle": shape("M3 3l26 26h-26", BLUE_L) + shape("M9 17l6 6h-6", PAPER),
    "magnify": lens(13, 13, 12),
    "palette": shape("M16 2q14 0 15 13q-1 6 -8 5q-5 0 -4 5q1 6 -5 5q-13 -2 -13 -14q1 -14 15 -14",
                     TAN) + dot(10, 11, 3, RED) + dot(18, 8, 3, YELLOW) + dot(25, 13, 3, BLUE) +
               dot(8, 20, 3, GREEN),
    "calc": box(4, 0, 24, 32, SLATE, 2) + flat(8, 4, 16, 7, GREEN_L) + "".join(
        flat(8 + 6 * c, 14 + 5 * r, 4, 3, ORANGE if c == 2 else PAPER)
        for r in range(3) for c in range(3)),
    "toolbox": box(10, 4, 12, 10, STEEL) + flat(14, 8, 4, 4, PAPER) + box(0, 10, 32, 20, RED, 2) +
               flat(2, 18, 28, 2, INK) + box(13, 16, 6, 6, YELLOW),
    "magnet": shape("M3 3h8v13a5 5 0 0 0 10 0v-13h8v13a13 13 0 0 1 -26 0", RED) +
              flat(4, 4, 6, 5, SHADE) + flat(22, 4, 6, 5, SHADE),
    "torch": turned(45, shape("M9 1h14l-3 10h-8", SHADE) + box(11, 10, 10, 20, BLUE, 2) +
                    flat(15, 14, 2, 5, PAPER) + flat(10, 2, 12, 3, YELLOW)),
    "broom": turned(35, box(13, -2, 6, 20, TAN) + shape("M11 17h10l4 13h-18", YELLOW) +
                    line("M13 20l-2 9M16 20v9M19 20l2 9", GOLD)),
    "bucket": wire("M5 11a11 10 0 0 1 22 0", STEEL, 1) + shape("M4 11h24l-4 19h-16", BLUE) +
              flat(7, 13, 18, 3, BLUE_L),
    "cart": wire("M2 5h4l4 15h15l4 -11h-20", STEEL, 2) + dot(12, 27, 3.4, INK) + dot(23, 27, 3.4, INK) +
            dot(12, 27, 1.4, SHADE) + dot(23, 27, 1.4, SHADE),
    "cup": wire("M22 13h4q3 5 -5 7", PAPER, 2) + shape("M3 11h20v9q0 7 -10 7t-10 -7", PAPER) +
           box(0, 26, 28, 5, SHADE, 2) + line("M8 2q-3 3 0 6M14 2q-3 3 0 6M20 2q-3 3 0 6", STEEL),
    "basket": wire("M7 14a9 10 0 0 1 18 0", BROWN, 2) + shape("M2 13h28l-4 17h-20", TAN) +
              line("M4 19h24M6 25h20M11 14v15M21 14v15", BROWN),
    "umbrella": wire("M16 14v12q0 4 4 4t4 -3", STEEL, 1.4) +
                shape("M1 17q1 -15 15 -15t15 15q-4 -4 -7 0q-4 -4 -8 0q-4 -4 -8 0q-4 -4 -7 0", PURPLE),
    "glasses": wire("M2 14l4 -6M30 14l-4 -6M13 17q3 -3 6 0", STEEL, 1) + disc(8, 18, 7.5, BLUE_L) +
               disc(24, 18, 7.5, BLUE_L),
    "scales": wire("M16 4v24M4 8h24", STEEL, 1.4) + box(8, 26, 16, 5, SLATE) +
              shape("M1 19l4 -10l5 10q-4 5 -9 0", YELLOW) + shape("M22 19l5 -10l4 10q-4 5 -9 0", YELLOW),
    "flask": shape("M12 2h8v9l8 16q1 3 -3 3h-18q-4 0 -3 -3l8 -16", PAPER) +
             patch("M9 19h14l4 8q0 2 -2 2h-18q-2 0 -2 -2", GREEN) + dot(14, 23, 1.6, PAPER) +
             box(10, 0, 12, 4, STEEL),
    "microscp": box(4, 26, 24, 5, SLATE) + wire("M22 27q7 -9 -3 -15", SHADE, 3) +
                turned(20, box(11, 2, 8, 16, BLUE) + box(13, 17, 4, 5, STEEL), 15, 10) +
                box(6, 21, 12, 4, STEEL),
    "dropper": turned(45, disc(16, 5, 6, PURPLE) + box(10, 8, 12, 5, SLATE) +
                      shape("M13 13h6v11l-3 7l-3 -7", BLUE_L)),
    "eraser": turned(-35, box(2, 9, 28, 14, BLUE) + flat(4, 11, 9, 10, "#f0a0b4") +
                     flat(13, 10, 2, 12, INK)),
    "stamp": box(4, 24, 24, 6, RED_D) + shape("M11 1h10l-2 13h8v9h-22v-9h8", TAN),
    "gauge": disc(16, 16, 15, PAPER) + line("M6 20a11 11 0 0 1 5 -12", GREEN, 3) +
             line("M11 8a11 11 0 0 1 10 0", YELLOW, 3) + line("M21 8a11 11 0 0 1 5 12", RED, 3) +
             line("M16 18l6 -8", INK, 2.4) + dot(16, 18, 3, INK),
    "thermo": box(11, 0, 10, 24, PAPER, 5) + disc(16, 24, 8, RED) + flat(14, 8, 4, 16, RED),
    "filter": shape("M2 3h28l-11 13v14l-6 -4v-10", TEAL),
    "cuttool": turned(45, box(12, 12, 8, 20, ORANGE, 2) + shape("M13 13v-8l6 -4v12", SHADE)),
    "needle": turned(45, box(12, 8, 8, 14, PAPER) + flat(14, 14, 4, 6, RED) + box(14, 21, 4, 4, STEEL) +
                     flat(15, 24, 2, 7, STEEL) + flat(15, 2, 2, 6, SLATE) + box(11, 0, 10, 4, STEEL)),
    "ladder": wire("M10 2l-3 28M22 2l3 28", BROWN, 2) + "".join(
        wire(f"M{10 - i * .6:g} {7 + 6 * i}h{12 + 1.2 * i:g}", TAN, 1.4) for i in range(4)),
}
