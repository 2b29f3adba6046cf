"""Palette and shapes. A picture is 32 by 32 units; at 16 pixels two units are one pixel, so outer
bounds are even numbers and the points of outlined paths odd ones: both sizes stay crisp."""

INK = "#26303c"
PAPER, SHADE, STEEL, SLATE = "#ffffff", "#d3dae3", "#93a1b3", "#5d6b7d"
BLUE, BLUE_L, BLUE_D = "#3b7ddd", "#add0f8", "#1f4f9c"
GREEN, GREEN_L, GREEN_D = "#3ba455", "#b4e4b2", "#1f7038"
RED, RED_L, RED_D = "#dc4638", "#f7b5aa", "#96251b"
YELLOW, YELLOW_L, GOLD = "#fbcb45", "#fdeaa2", "#d99a1c"
ORANGE, ORANGE_L = "#ef8932", "#fbc795"
PURPLE, PURPLE_L = "#8c5fc9", "#d6c2f2"
TEAL, TEAL_L = "#2c9fa3", "#a9e0dd"
BROWN, TAN, SKIN, HAIR = "#9b6a3b", "#d6aa76", "#f5cda6", "#6d4526"
SCREEN = "#2b67b8"


def _num(value):
    return f"{value:g}"


def box(x, y, w, h, fill, rx=0, edge=INK):
    """A rectangle with an outline inside its bounds."""
    corner = f' rx="{_num(rx)}"' if rx else ""
    return (f'<rect x="{_num(x + 1)}" y="{_num(y + 1)}" width="{_num(w - 2)}" '
            f'height="{_num(h - 2)}"{corner} fill="{fill}" stroke="{edge}" stroke-width="2"/>')


def flat(x, y, w, h, fill, rx=0):
    """A rectangle without an outline."""
    corner = f' rx="{_num(rx)}"' if rx else ""
    return (f'<rect x="{_num(x)}" y="{_num(y)}" width="{_num(w)}" height="{_num(h)}"{corner} '
            f'fill="{fill}"/>')


def disc(x, y, radius, fill, edge=INK):
    """A circle with an outline inside its bounds."""
    return (f'<circle cx="{_num(x)}" cy="{_num(y)}" r="{_num(radius - 1)}" fill="{fill}" '
            f'stroke="{edge}" stroke-width="2"/>')


def dot(x, y, radius, fill):
    return f'<circle cx="{_num(x)}" cy="{_num(y)}" r="{_num(radius)}" fill="{fill}"/>'


def oval(x, y, rx, ry, fill, edge=INK):
    return (f'<ellipse cx="{_num(x)}" cy="{_num(y)}" rx="{_num(rx - 1)}" ry="{_num(ry - 1)}" '
            f'fill="{fill}" stroke="{edge}" stroke-width="2"/>')


def shape(d, fill, edge=INK):
    """A closed path with an outline."""
    return (f'<path d="{d}z" fill="{fill}" stroke="{edge}" stroke-width="2" '
            'stroke-linejoin="round"/>')


def patch(d, fill):
    """A closed path without an outline."""
    return f'<path d="{d}z" fill="{fill}"/>'


def line(d, colour=INK, width=2):
    return (f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{_num(width)}" '
            'stroke-linejoin="round"/>')


def wire(d, colour, width=2):
    """A line that is outlined itself, so that it reads on any ground."""
    return (f'<path d="{d}" fill="none" stroke="{INK}" stroke-width="{_num(width + 3)}" '
            'stroke-linecap="round" stroke-linejoin="round"/>'
            f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{_num(width)}" '
            'stroke-linecap="round" stroke-linejoin="round"/>')


def turned(degrees, body, x=16, y=16):
    return f'<g transform="rotate({_num(degrees)} {_num(x)} {_num(y)})">{body}</g>'


def moved(x, y, body, scale=1):
    factor = f" scale({_num(scale)})" if scale != 1 else ""
    return f'<g transform="translate({_num(x)} {_num(y)}){factor}">{body}</g>'


# Motifs that many pictures share.

def sheet(fill=PAPER, x=0):
    """A sheet of paper with a folded corner."""
    return (shape(f"M{x + 5} 1h14l8 8v22h-22", fill) +
            shape(f"M{x + 19} 1v8h8", SHADE))


def text_lines(x, y, w, count, colour=STEEL, step=4):
    return "".join(flat(x, y + step * i, w, 2, colour) for i in range(count))


def folder(fill=YELLOW, back=GOLD):
    return (shape("M1 5h10l4 4h16v20h-30", back) +
            shape("M1 13h30v16h-30", fill))


def open_folder():
    return (shape("M1 5h10l4 4h12v20h-26", GOLD) +
            shape("M7 15h24l-5 14h-25", YELLOW))


def window(x=0, y=4, w=32, h=26, bar=BLUE, fill=PAPER):
    """A program's window."""
    return box(x, y, w, h, fill) + flat(x + 2, y + 2, w - 4, 4, bar)


def monitor(screen=SCREEN):
    return (box(2, 2, 28, 20, SHADE) + flat(6, 6, 20, 12, screen) +
            box(12, 20, 8, 6, STEEL) + box(6, 24, 20, 6, SHADE))


def globe(x=16, y=16, r=14):
    h = r * 0.45
    return (disc(x, y, r, BLUE_L) +
            line(f"M{x - r + 1} {y}h{2 * r - 2}", BLUE_D) +
            line(f"M{x} {y - r + 1}v{2 * r - 2}", BLUE_D) +
            f'<ellipse cx="{_num(x)}" cy="{_num(y)}" rx="{_num(h)}" ry="{_num(r - 1)}" '
            f'fill="none" stroke="{BLUE_D}" stroke-width="2"/>')


def lens(x=19, y=19, r=8):
    """A magnifying glass over the lower right of a picture."""
    end = r * 0.71
    return (line(f"M{x + end:g} {y + end:g}L30 30", INK, 5) +
            line(f"M{x + end + 1:g} {y + end + 1:g}L29 29", ORANGE, 2) +
            disc(x, y, r, "#e4f3ff") + dot(x - 2, y - 2, 2, PAPER))


def cross(x, y, r, colour=RED):
    d = f"M{x - r} {y - r}l{2 * r} {2 * r}M{x + r} {y - r}l{-2 * r} {2 * r}"
    return wire(d, colour, 3)


def badge(fill, mark):
    """A round mark on the lower right."""
    return disc(24, 24, 8, fill) + mark


def plus_badge():
    return badge(GREEN, flat(23, 20, 2, 8, PAPER) + flat(20, 23, 8, 2, PAPER))


def star_path(x, y, r, inner=0.42):
    import math
    points = []
    for i in range(10):
        radius = r if i % 2 == 0 else r * inner
        angle = math.pi * (i / 5 - 0.5)
        points.append(f"{x + radius * math.cos(angle):.1f} {y + radius * math.sin(angle):.1f}")
    return "M" + "L".join(points)


def star(x, y, r, fill=YELLOW):
    return shape(star_path(x, y, r), fill)


def heart(x, y, s, fill=RED):
    """A heart whose upper middle is at (x, y) and whose half width is s."""
    return shape(f"M{x} {y}c{-s * .2:g} {-s * .6:g} {-s:g} {-s * .6:g} {-s:g} {s * .2:g}"
                 f"c0 {s * .6:g} {s * .7:g} {s:g} {s:g} {s * 1.4:g}"
                 f"c{s * .3:g} {-s * .4:g} {s:g} {-s * .8:g} {s:g} {-s * 1.4:g}"
                 f"c0 {-s * .8:g} {-s * .8:g} {-s * .8:g} {-s:g} {-s * .2:g}", fill)


def padlock(x, y, fill=YELLOW, shackle=STEEL, is_open=False):
    """A padlock 12 wide and 14 high from its upper left."""
    left = x + 8 if is_open else x
    return (wire(f"M{left + 3} {y + 7}v-3a3 3 0 0 1 6 0v{2 if is_open else 3}", shackle, 1.5) +
            box(x, y + 6, 12, 10, fill) + flat(x + 5, y + 9, 2, 4, INK))


def cog(x, y, r, fill=STEEL, hole=PAPER):
    teeth = "".join(
        turned(45 * i, flat(x - r * 0.22, y - r, r * 0.44, 2 * r, INK), x, y) for i in range(4))
    inner = "".join(
        turned(45 * i, flat(x - r * 0.22 + 1, y - r + 1.6, r * 0.44 - 2, 2 * r - 3.2, fill), x, y)
        for i in range(4)) if r > 7 else ""
    return teeth + disc(x, y, r * 0.74, fill) + inner + disc(x, y, r * 0.36, hole)


def note_sign(x, y, colour=PURPLE):
    """Two joined notes, 14 wide and 14 high from the upper left."""
    return (dot(x + 3, y + 12, 3, colour) + dot(x + 11, y + 10, 3, colour) +
            patch(f"M{x + 4} {y + 1}l10 -2v3l-10 2", colour) +
            flat(x + 4, y + 1, 2, 11, colour) + flat(x + 12, y, 2, 10, colour))


def landscape(x, y, w, h):
    """A small picture of hills and a sun."""
    return (flat(x, y, w, h, BLUE_L) + dot(x + w * .72, y + h * .3, h * .17, GOLD) +
            patch(f"M{x} {y + h}v{-h * .35:g}l{w * .3:g} {-h * .3:g}l{w * .3:g} {h * .3:g}"
                  f"l{w * .15:g} {-h * .15:g}l{w * .25:g} {h * .25:g}v{h * .25:g}", GREEN))


def bust(x, y, coat=BLUE, hair=HAIR, skin=SKIN):
    """Head and shoulders of a person; (x, y) is the middle of the head, 22 wide below."""
    return (shape(f"M{x - 10} {y + 19}v-5q0 -7 7 -7h6q7 0 7 7v5", coat) +
            disc(x, y, 7, skin) +
            patch(f"M{x - 6} {y}a6 6 0 0 1 12 0q-2 -3 -6 -3q-4 0 -6 3", hair))


def arrow_right(x, y, fill=GREEN):
    """An arrow 16 long and 14 high whose left end is at (x, y), its middle line."""
    return shape(f"M{x + 1} {y - 3}h7v-4l7 7l-7 7v-4h-7", fill)


def big_arrow(degrees, fill):
    return turned(degrees, shape("M3 11h12v-8l14 13l-14 13v-8h-12", fill))
