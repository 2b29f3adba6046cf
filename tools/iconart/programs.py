"""Windows, games and programs."""

from iconart.shapes import (BLUE, BLUE_L, GOLD, GREEN, GREEN_D, INK, ORANGE, PAPER, PURPLE, RED, SCREEN,
                            SHADE, SLATE, STEEL, TAN, TEAL, YELLOW, YELLOW_L, box, cog, disc, dot, flat,
                            globe, heart, landscape, line, monitor, moved, patch, shape, star_path,
                            text_lines, turned, window, wire)


def _tile(x, y, colour):
    return box(x, y, 12, 12, colour)


def _die(x, y, s, spots):
    return box(x, y, s, s, PAPER, 3) + "".join(dot(x + a, y + b, 2, RED) for a, b in spots)


ICONS = {
    "PROGRAMS": window() + flat(5, 13, 6, 5, RED) + flat(13, 13, 6, 5, GREEN) +
                flat(21, 13, 6, 5, ORANGE) + flat(5, 21, 6, 5, PURPLE) + flat(13, 21, 6, 5, BLUE) +
                flat(21, 21, 6, 5, GOLD),
    "Windows": window(0, 2, 20, 16, GREEN) + window(6, 8, 20, 16, ORANGE) + window(12, 14, 20, 16),
    "app02": window() + shape("M11 13l11 6l-11 6", GREEN),
    "app03": window(0, 4, 32, 26, TEAL) + text_lines(5, 13, 22, 3),
    "app04": window(0, 4, 32, 26, PURPLE) + cog(16, 20, 9, STEEL),
    "taskbar": box(2, 2, 28, 28, TEAL) + flat(4, 22, 24, 6, SHADE) + flat(4, 21, 24, 2, INK) +
               flat(5, 24, 5, 3, GREEN) + flat(12, 24, 6, 3, STEEL) + flat(20, 24, 6, 3, STEEL),
    "desktop": monitor(TEAL) + flat(8, 8, 4, 4, YELLOW) + flat(8, 13, 4, 4, PAPER) +
               flat(14, 8, 4, 4, PAPER),
    "terminal": window(0, 4, 32, 26, STEEL, "#1b2430") +
                line("M6 13l6 5l-6 5", "#6fe08a", 2.6) + flat(15, 22, 10, 3, "#6fe08a"),
    "browser": window() + globe(16, 20, 9),
    "mailprog": window() + box(6, 13, 20, 14, YELLOW) + line("M7 14l9 7l9 -7"),
    "chatprog": window(0, 4, 32, 26, GREEN) + shape("M7 13h18v9h-8l-5 4v-4h-5", BLUE_L),
    "editor": window() + text_lines(5, 13, 16, 4, SLATE) + turned(35, box(20, 8, 6, 18, YELLOW) +
              shape("M21 25h4l-2 5", TAN), 23, 18),
    "painter": window(0, 4, 32, 26, ORANGE) + landscape(4, 12, 24, 14),
    "player": window(0, 4, 32, 26, SLATE) + flat(4, 12, 24, 14, SCREEN) + shape("M13 14l8 5l-8 5", PAPER),
    "mixer": window(0, 4, 32, 26, TEAL) + "".join(flat(x, 12, 2, 15, STEEL) + flat(x - 2, y, 6, 4, INK)
             for x, y in ((7, 20), (15, 14), (23, 17))),
    "folderap": window() + moved(6, 11, shape("M1 1h7l3 3h10v12h-20", YELLOW)),
    "appgrid": _tile(2, 2, RED) + _tile(18, 2, GREEN) + _tile(2, 18, BLUE) + _tile(18, 18, YELLOW),
    "games": _die(4, 4, 24, ((6, 6), (18, 6), (12, 12), (6, 18), (18, 18))),
    "dice": _die(0, 8, 18, ((5, 5), (13, 13), (9, 9))) + _die(14, 14, 18, ((5, 5), (13, 5), (5, 13), (13, 13))),
    "cards": turned(-14, box(4, 4, 16, 24, PAPER, 2) + heart(12, 11, 4), 12, 16) +
             turned(12, box(14, 4, 16, 24, PAPER, 2) +
                    shape("M22 9l4 7l-4 7l-4 -7", SLATE), 22, 16),
    "chess": shape("M9 25q0 -6 6 -9q-3 1 -7 1q-2 -3 2 -6q1 -8 8 -9q8 4 6 23", TAN) +
             box(6, 24, 20, 7, TAN) + dot(14, 9, 1.4, INK),
    "checkers": box(0, 0, 32, 32, PAPER) + "".join(
        flat(2 + 7 * c, 2 + 7 * r, 7, 7, SLATE) for r in range(4) for c in range(4) if (r + c) % 2) +
        disc(12.5, 12.5, 5, RED) + disc(19.5, 19.5, 5, YELLOW),
    "bomb": wire("M20 9q3 -7 8 -4", TAN, 1.4) + disc(14, 19, 12, SLATE) + dot(10, 15, 3, STEEL) +
            patch(star_path(26.5, 5.5, 5.5), ORANGE) + dot(26.5, 5.5, 1.6, YELLOW_L),
    "ball": disc(16, 16, 15, PAPER) + patch("M16 10l6 4l-2 7h-8l-2 -7", INK) +
            line("M16 10v-8M22 14l7 -3M20 21l4 7M12 21l-4 7M10 14l-7 -3"),
    "joystick": box(14, 8, 4, 16, STEEL) + disc(16, 7, 7, RED) + box(4, 20, 24, 10, SLATE, 2) +
                flat(8, 24, 5, 3, YELLOW),
    "trophy": wire("M9 5h-5q0 8 6 8M23 5h5q0 8 -6 8", YELLOW, 1.4) +
              shape("M9 1h14v9q0 7 -7 8q-7 -1 -7 -8", YELLOW) + box(14, 17, 4, 8, GOLD) +
              box(8, 24, 16, 7, TAN),
    "movie": box(2, 12, 28, 18, SLATE) + shape("M1 11l27 -8l2 5l-27 8", PAPER) +
             "".join(patch(f"M{5 + 8 * i} {10 - 2.4 * i:g}l4 -1l2 5l-4 1", INK) for i in range(3)) +
             shape("M13 17l7 4l-7 4", YELLOW),
    "film": box(4, 0, 24, 32, SLATE) + "".join(flat(6, 4 + 7 * i, 3, 4, PAPER) +
            flat(23, 4 + 7 * i, 3, 4, PAPER) for i in range(4)) + flat(11, 4, 10, 10, BLUE_L) +
            flat(11, 18, 10, 10, BLUE_L),
    "database": "".join(
        shape(f"M3 {y}q0 -5 13 -5t13 5v6q0 5 -13 5t-13 -5", c) for y, c in ((22, TEAL), (14, TEAL), (7, TEAL))) +
        line("M3 8q0 4 13 4t13 -4", INK),
    "presentn": flat(15, 0, 2, 4, INK) + box(0, 2, 32, 20, PAPER) + flat(6, 13, 4, 6, RED) +
                flat(13, 9, 4, 10, GREEN) + flat(20, 6, 4, 13, BLUE) + wire("M12 24l-5 6M20 24l5 6", STEEL, 1),
    "sheetapp": window(0, 4, 32, 26, GREEN_D) + "".join(flat(4 + 8 * c, 13 + 5 * r, 6, 3,
                GREEN if c == 0 else SHADE) for r in range(3) for c in range(3)),
    "robot": flat(15, 0, 2, 6, INK) + dot(16, 2, 2.4, RED) + box(4, 6, 24, 18, SHADE, 3) +
             disc(11, 14, 4, BLUE) + disc(21, 14, 4, BLUE) + flat(10, 19, 12, 2, INK) +
             box(8, 24, 16, 7, STEEL),
}
