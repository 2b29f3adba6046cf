"""Arrows."""

from iconart.shapes import (BLUE, GREEN, INK, ORANGE, PAPER, PURPLE, RED, SHADE, STEEL, TEAL, YELLOW,
                            arrow_right, big_arrow, box, flat, line, shape, turned, wire)

_CURL = "M9 27h10a8 8 0 0 0 0 -16h-8"


def _curl(fill):
    return (wire(_CURL, fill, 4) + shape("M13 3v16l-10 -8", fill))


def _ring_arrow(fill):
    return (wire("M16 5a11 11 0 1 0 11 11", fill, 4) + shape("M17 0l9 6l-9 7", fill))


def _tray(body):
    return box(2, 18, 28, 12, SHADE) + flat(4, 26, 24, 2, STEEL) + body


def _skip(fill):
    return (shape("M3 5l12 11l-12 11", fill) + shape("M13 5l12 11l-12 11", fill) +
            box(24, 4, 6, 24, fill))


ICONS = {
    "arrowup": big_arrow(-90, GREEN),
    "arrowdn": big_arrow(90, RED),
    "arrowlt": big_arrow(180, BLUE),
    "arrowrt": big_arrow(0, BLUE),
    "arrowlr": shape("M1 16l10 -9v5h10v-5l10 9l-10 9v-5h-10v5", PURPLE),
    "arrowud": turned(90, shape("M1 16l10 -9v5h10v-5l10 9l-10 9v-5h-10v5", PURPLE)),
    "arrowne": turned(-45, shape("M1 12h15v-7l14 11l-14 11v-7h-15", ORANGE)),
    "arrowsw": turned(135, shape("M1 12h15v-7l14 11l-14 11v-7h-15", ORANGE)),
    "undo": _curl(BLUE),
    "redo": f'<g transform="matrix(-1 0 0 1 32 0)">{_curl(TEAL)}</g>',
    "refresh": _ring_arrow(GREEN),
    "enter": shape("M1 19l11 -10v6h11v-12h6v20h-17v6", ORANGE),
    "import": _tray(turned(90, shape("M3 12h11v-6l10 10l-10 10v-6h-11", GREEN), 16, 16)),
    "export": _tray(turned(-90, shape("M7 12h11v-6l10 10l-10 10v-6h-11", ORANGE), 16, 16)),
    "skiplast": _skip(PURPLE),
    "skipfrst": turned(180, _skip(PURPLE)),
    "moveall": "".join(turned(90 * i, shape("M13 13v-5h-4l7 -7l7 7h-4v5", YELLOW))
                       for i in range(4)) + flat(13, 13, 6, 6, YELLOW),
    "swap": arrow_right(15, 9, GREEN) + flat(2, 6, 14, 6, INK) + flat(2, 8, 16, 2, GREEN) +
            turned(180, arrow_right(15, 9, BLUE) + flat(2, 6, 14, 6, INK) +
                   flat(2, 8, 16, 2, BLUE)),
}
