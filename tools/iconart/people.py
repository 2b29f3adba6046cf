"""People and what they say."""

from iconart.shapes import (BLUE, BLUE_L, BROWN, GOLD, GREEN, HAIR, INK, ORANGE, PAPER, PURPLE, RED,
                            SHADE, SKIN, SLATE, STEEL, TEAL, YELLOW, box, bust, disc, dot, flat, heart,
                            line, moved, oval, patch, plus_badge, shape, text_lines, wire)


def _face(fill, mouth, eyes=INK):
    return (disc(16, 16, 15, fill) + flat(10, 10, 3, 5, eyes) + flat(19, 10, 3, 5, eyes) + mouth)


def _bubble(fill, body):
    return shape("M1 3h30v18h-16l-8 8v-8h-6", fill) + body


ICONS = {
    "person": bust(16, 11),
    "woman": shape("M7 10q0 -9 9 -9t9 9v10h-18", BROWN) + bust(16, 11, PURPLE, BROWN),
    "people": bust(22, 9, GREEN, GOLD) + bust(11, 12, BLUE),
    "family": bust(9, 10, BLUE) + bust(23, 10, PURPLE, GOLD) +
              moved(6, 13, bust(16, 11, ORANGE, BROWN), 0.62),
    "worker": bust(16, 12, ORANGE, SKIN) + shape("M7 9q0 -8 9 -8t9 8h3v2h-24v-2", YELLOW),
    "student": bust(16, 13, TEAL) + shape("M1 7l15 -6l15 6l-15 6", SLATE) +
               line("M27 8v8", GOLD, 2),
    "medic": bust(16, 11, PAPER) + flat(15, 21, 2, 8, RED) + flat(12, 24, 8, 2, RED),
    "boss": bust(16, 11, SLATE) + patch("M13 18h6l-3 4", PAPER) + patch("M15 20h2l1 8l-2 2l-2 -2",
                                                                       RED),
    "newuser": bust(13, 11) + plus_badge(),
    "userkey": bust(12, 11, GREEN) + wire("M24 19v9M24 24h4M24 28h3", YELLOW, 1.4) +
               disc(24, 16, 5, YELLOW) + dot(24, 16, 1.6, INK),
    "usertalk": bust(11, 13, PURPLE) + shape("M17 1h14v9h-6l-4 4v-4h-4", PAPER) +
                flat(20, 5, 8, 2, BLUE),
    "card": box(0, 6, 32, 22, PAPER) + dot(9, 14, 3.4, HAIR) + flat(4, 19, 10, 5, BLUE, 2) +
            text_lines(17, 11, 11, 4),
    "smile": _face(YELLOW, line("M9 19q7 8 14 0", INK, 2.4)),
    "sad": _face(BLUE_L, line("M9 24q7 -8 14 0", INK, 2.4)),
    "wink": disc(16, 16, 15, YELLOW) + flat(10, 10, 3, 5, INK) + flat(18, 12, 6, 2, INK) +
            line("M9 19q7 8 14 0", INK, 2.4),
    "talk": _bubble(BLUE_L, text_lines(6, 8, 20, 2, BLUE) + flat(6, 16, 12, 2, BLUE)),
    "ask": _bubble(YELLOW, line("M12 9q0 -3 4 -3t4 3t-4 4v2", INK, 2.4) + flat(15, 17, 3, 3, INK)),
    "talklove": _bubble(PAPER, heart(16, 9, 6)),
    "chat": shape("M1 1h20v12h-9l-6 6v-6h-5", GREEN) + shape("M11 15h20v12h-5v4l-5 -4h-10", PAPER) +
            flat(5, 5, 12, 2, PAPER) + flat(15, 19, 12, 2, STEEL),
    "hand": shape("M9 17v-11a2 2 0 0 1 4 0v-3a2 2 0 0 1 4 0v2a2 2 0 0 1 4 0v3a2 2 0 0 1 4 0v12"
                  "q0 11 -10 11q-6 0 -9 -7l-4 -8q2 -3 5 1", SKIN) +
            line("M13 6v9M17 5v10M21 8v7", INK, 1.6),
    "eye": shape("M1 16q15 -20 30 0q-15 20 -30 0", PAPER) + disc(16, 16, 8, BLUE) +
           dot(16, 16, 3, INK) + dot(18, 14, 1.5, PAPER),
    "footprnt": "".join(moved(x, y, oval(6, 7, 6, 8, BROWN) + oval(6, 18, 5, 4, BROWN))
                        for x, y in ((2, 10), (18, 0))),
    "crown": shape("M3 27v-18l7 7l6 -12l6 12l7 -7v18", YELLOW) + flat(4, 22, 24, 2, RED) +
             dot(16, 5, 3, RED) + dot(4, 9, 2.4, BLUE) + dot(28, 9, 2.4, BLUE),
    "team": bust(6, 11, TEAL) + bust(26, 11, ORANGE, GOLD) + bust(16, 13, RED),
    "gift": box(2, 12, 28, 18, RED) + box(0, 8, 32, 8, RED) + flat(14, 10, 4, 18, YELLOW) +
            wire("M16 8q-8 0 -7 -4t7 4q0 -8 7 -4t-7 4", YELLOW, 1.4),
    "mask": shape("M3 5q13 -5 26 0v10q0 14 -13 15q-13 -1 -13 -15", SHADE) +
            shape("M7 11q4 -3 7 1q-4 3 -7 -1", INK) + shape("M18 12q3 -4 7 -1q-3 4 -7 1", INK) +
            line("M9 20q7 7 14 0", RED, 2.4),
}
