# SPDX-License-Identifier: MIT
"""Engraved capitals for the banner, drawn letter by letter: broad stems, fine hairlines and
flat serifs on a cap height of 100. Only the letters that are needed exist."""
import math

STEM, HAIR, SERIF = 19.0, 6.0, 8.0


def box(x0, y0, x1, y1):
    return 'M%.1f %.1fH%.1fV%.1fH%.1fZ' % (x0, y0, x1, y1, x0)


def polygon(*points):
    """Always drawn clockwise: overlapping parts of a letter must add up, never cancel."""
    area = sum(x0 * y1 - x1 * y0 for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]))
    return 'M' + 'L'.join('%.1f %.1f' % p for p in (points if area > 0 else points[::-1])) + 'Z'


def foot(x0, x1, y, up):
    """A serif under (or over) the stroke from x0 to x1, with hollow brackets."""
    s = -1 if up else 1
    bracket = [(SERIF * (1 - t) ** 2 + .3, 3.4 + 7 * t ** 2) for t in (0, .2, .4, .6, .8, 1)]
    right = [(x1 + dx, y + s * dy) for dx, dy in bracket]
    left = [(x0 - dx, y + s * dy) for dx, dy in reversed(bracket)]
    return polygon((x0 - SERIF, y), (x1 + SERIF, y), *right, *left)


def stem(x, y0=0, y1=100, serifs='both'):
    d = box(x, y0, x + STEM, y1)
    d += foot(x, x + STEM, y0, False) if serifs in ('both', 'top') else ''
    d += foot(x, x + STEM, y1, True) if serifs in ('both', 'bottom') else ''
    return d


def oval(cx, cy, rx, ry, reverse=False):
    sweep = 0 if reverse else 1
    return 'M%.1f %.1fA%.1f %.1f 0 1 %d %.1f %.1fA%.1f %.1f 0 1 %d %.1f %.1fZ' % (
        cx - rx, cy, rx, ry, sweep, cx + rx, cy, rx, ry, sweep, cx - rx, cy)


def arc_band(cx, cy, outer, inner, start, end):
    """The part of an oval ring between two bearings (degrees, 0 right, clockwise)."""
    steps = [start + (end - start) * i / 60 for i in range(61)]
    def at(radii, a):
        return cx + radii[0] * math.cos(math.radians(a)), cy + radii[1] * math.sin(math.radians(a))
    return polygon(*[at(outer, a) for a in steps], *[at(inner, a) for a in reversed(steps)])


def letter_g():
    d = arc_band(53, 50, (49, 52), (29, 46.5), 52, 318)
    d += box(66, 54, 66 + STEM, 96) + foot(66, 66 + STEM, 54, False)
    d += polygon((84, 2), (90, 2), (90, 31), (86, 31), (82, 20))
    return d, 100


def letter_a():
    d = polygon((48, -2), (54, -2), (92, 100), (71, 100), (43, 22), (17, 100), (10, 100), (46.5, 0))
    return d + box(27, 62, 66, 62 + HAIR) + foot(10.5, 16.5, 100, True) + foot(71, 91.5, 100, True), 101


def letter_m():
    d = stem(96) + box(13, 0, 13 + HAIR, 100) + foot(13, 13 + HAIR, 100, True)
    d += polygon((4, 0), (31, 0), (66, 76), (61, 100), (57, 100), (13, 6), (4, 3.6))
    d += polygon((57, 100), (61, 100), (102, 6), (96, 0), (95, 0), (60, 80))
    return d, 124


def letter_e():
    d = stem(10) + box(20, 0, 70, HAIR) + box(20, 94, 74, 100) + box(20, 46, 56, 46 + HAIR)
    d += polygon((70, 0), (71, 24), (67, 24), (56, HAIR)) + polygon((74, 100), (78, 72), (74, 72), (58, 94))
    return d + polygon((52, 46), (56, 33), (59, 33), (59, 65), (56, 65), (52, 52)), 82


def letter_o():
    return oval(55, 50, 51, 52) + oval(55, 50, 30, 46.5, True), 110


def letter_v():
    d = polygon((8, 0), (29, 0), (57, 76), (84, 0), (90, 0), (53, 102), (47, 102))
    return d + foot(8.5, 29, 0, False) + foot(83.5, 89.5, 0, False), 98


def letter_r():
    d = stem(10) + box(20, 0, 52, HAIR) + box(20, 49, 52, 49 + HAIR)
    d += arc_band(50, 27.5, (34, 27.5), (14, 21.5), -90, 90)
    d += polygon((43, 52), (62, 50), (86, 94), (98, 96.4), (98, 100), (74, 100))
    return d, 98


LETTERS = {'G': letter_g, 'A': letter_a, 'M': letter_m, 'E': letter_e, 'O': letter_o, 'V': letter_v, 'R': letter_r}
SPACE, TRACK = 52, 16
KERN = {('G', 'A'): -6, ('A', 'M'): -4, ('O', 'V'): -12, ('V', 'E'): -6}


def line(text):
    """[(x, path)] of a line's letters, and its width."""
    out, x, before = [], 0, None
    for c in text:
        if c == ' ':
            x, before = x + SPACE, None
            continue
        d, width = LETTERS[c]()
        x += KERN.get((before, c), 0)
        out.append((x, d))
        x, before = x + width + TRACK, c
    return out, x - TRACK
