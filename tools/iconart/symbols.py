"""Signs."""

from iconart.shapes import (BLUE, BLUE_L, GOLD, GREEN, INK, ORANGE, PAPER, PURPLE, RED, SHADE, SLATE,
                            STEEL, TEAL, YELLOW, YELLOW_L, box, disc, dot, flat, heart, line,
                            note_sign, moved, padlock, shape, star, turned, wire)


def _button(fill, mark):
    return disc(16, 16, 15, fill) + mark


_KEY = (wire("M14 16h15M23 17v5M28 17v4", YELLOW, 2.4) + disc(9, 16, 8, YELLOW) + dot(8, 16, 2.4, INK))

ICONS = {
    "check": wire("M5 17l7 8l15 -18", GREEN, 4),
    "cross": wire("M7 7l18 18M25 7l-18 18", RED, 4),
    "plus": shape("M12 3h8v9h9v8h-9v9h-8v-9h-9v-8h9", GREEN),
    "minus": box(2, 11, 28, 10, RED),
    "okay": _button(GREEN, line("M8 17l6 6l10 -13", PAPER, 4)),
    "forbid": _button(RED, line("M10 10l12 12M22 10l-12 12", PAPER, 4)),
    "stop": shape("M10 1h12l9 9v12l-9 9h-12l-9 -9v-12", RED) + flat(7, 13, 18, 6, PAPER),
    "info": _button(BLUE, flat(14, 7, 4, 4, PAPER) + flat(14, 13, 4, 12, PAPER)),
    "qmark": _button(PURPLE, line("M10 12q0 -5 6 -5t6 5t-6 6v3", PAPER, 3.4) +
                     flat(14, 22, 4, 4, PAPER)),
    "warning": shape("M16 2l14 27h-28", YELLOW) + flat(14, 11, 4, 9, INK) + flat(14, 22, 4, 4, INK),
    "star": star(16, 17, 16),
    "heart": heart(16, 8, 15),
    "flag": box(2, 0, 6, 32, STEEL) + shape("M7 3q6 -3 11 0t11 0v14q-6 3 -11 0t-11 0", RED),
    "goal": box(2, 0, 6, 32, STEEL) + box(6, 2, 24, 18, PAPER) + "".join(
        flat(8 + 5 * c, 4 + 5 * r, 5, 5, INK) for r in range(3) for c in range(4)
        if (r + c) % 2 == 0),
    "bulb": disc(16, 12, 11, YELLOW) + box(11, 20, 10, 10, STEEL) + flat(12, 24, 8, 2, INK) +
            line("M13 12l3 3l3 -3M16 15v6", GOLD, 2),
    "bolt": shape("M18 1l-14 17h9l-4 13l18 -18h-10l7 -12", YELLOW),
    "drop": shape("M16 1q11 13 11 19a11 11 0 0 1 -22 0q0 -6 11 -19", BLUE) +
            line("M10 20q0 5 5 6", BLUE_L, 2),
    "fire": shape("M17 1q1 7 6 11t4 10q0 9 -11 9t-11 -9q0 -5 4 -9q1 4 4 4q1 -8 4 -16", ORANGE) +
            shape("M16 16q6 5 5 9q-1 5 -5 5t-5 -5q0 -4 5 -9", YELLOW),
    "leaf": shape("M29 3q2 22 -12 24q-12 1 -13 -9q0 -12 25 -15", GREEN) +
            line("M2 30q6 -12 18 -19", INK, 2),
    "music": moved(2, 1, note_sign(0, 1, PURPLE), 2),
    "clock": disc(16, 16, 15, PAPER) + flat(15, 6, 2, 11, INK) + line("M16 16l7 5", RED, 2.4) +
             flat(4, 15, 3, 2, STEEL) + flat(25, 15, 3, 2, STEEL) + flat(15, 25, 2, 3, STEEL),
    "alarm": disc(7, 7, 6, RED) + disc(25, 7, 6, RED) + wire("M8 27l-3 3M24 27l3 3", STEEL, 1) +
             disc(16, 18, 12, PAPER) + line("M16 10v8h6", INK, 2.4),
    "hourglas": shape("M7 3h18q0 8 -7 13q7 5 7 13h-18q0 -8 7 -13q-7 -5 -7 -13", BLUE_L) +
                shape("M9 28q1 -6 7 -8q6 2 7 8", YELLOW) + box(4, 0, 24, 6, TEAL) +
                box(4, 26, 24, 6, TEAL),
    "key": _KEY,
    "lock": moved(4, -1, padlock(0, 0), 2),
    "unlock": moved(-1, -1, padlock(0, 0, GREEN, STEEL, True), 1.7),
    "shield": shape("M16 1q7 4 13 3q1 20 -13 27q-14 -7 -13 -27q6 1 13 -3", BLUE) +
              line("M9 15l5 6l9 -11", PAPER, 3.4),
    "bell": shape("M16 3q9 0 9 11q0 7 4 10h-26q4 -3 4 -10q0 -11 9 -11", YELLOW) +
            disc(16, 27, 4, ORANGE),
    "bookmark": shape("M7 1h18v29l-9 -7l-9 7", RED) + star(16, 11, 6, YELLOW),
    "power": _button(SLATE, line("M11 10a8 8 0 1 0 10 0", PAPER, 3) + flat(14, 5, 4, 11, PAPER)),
    "play": _button(GREEN, shape("M12 9l11 7l-11 7", PAPER, PAPER)),
    "pause": _button(ORANGE, flat(10, 9, 4, 14, PAPER) + flat(18, 9, 4, 14, PAPER)),
    "halt": _button(SLATE, flat(10, 10, 12, 12, PAPER)),
    "record": _button(SHADE, dot(16, 16, 8, RED)),
    "eject": shape("M16 3l13 15h-26", TEAL) + box(2, 22, 28, 8, TEAL),
    "percent": wire("M25 6l-18 20", BLUE, 2.4) + disc(9, 9, 7, BLUE_L) + disc(23, 23, 7, BLUE_L),
    "coin": disc(16, 16, 15, YELLOW) + disc(16, 16, 11, YELLOW_L, GOLD) +
            line("M12 12l4 -3v14M12 23h8", GOLD, 3),
    "sum": shape("M5 3h22v7h-5v-2h-9l7 8l-7 8h9v-2h5v7h-22v-3l9 -10l-9 -10", TEAL),
    "target": disc(16, 16, 15, RED) + dot(16, 16, 10, PAPER) + dot(16, 16, 6, RED) +
              dot(16, 16, 2, PAPER),
    "puzzle": shape("M3 11h7a4.5 4.5 0 1 1 8 0h7v7a4.5 4.5 0 1 1 0 7v5h-22", PURPLE),
    "chain": turned(-45, "".join(
        f'<rect x="{x}" y="11" width="17" height="10" rx="5" fill="none" stroke="{INK}" '
        f'stroke-width="5"/><rect x="{x}" y="11" width="17" height="10" rx="5" fill="none" '
        f'stroke="{c}" stroke-width="2"/>' for x, c in ((0, STEEL), (15, BLUE_L)))),
    "waves": "".join(wire(f"M3 {y}q4 -6 8 0t9 0t9 0", c, 2.4)
                     for y, c in ((8, BLUE_L), (17, BLUE), (26, TEAL))),
    "sep": flat(2, 14, 28, 2, SLATE) + flat(2, 16, 28, 2, SHADE),
    "unknown": box(4, 2, 24, 28, SHADE) + line("M11 12q0 -5 5 -5t5 5t-5 5v3", RED, 3) +
               flat(14, 22, 4, 4, RED),
}
