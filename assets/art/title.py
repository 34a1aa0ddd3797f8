# SPDX-License-Identifier: MIT
"""The title picture: the earth at dawn over the game's name, in the lettering of the board's map,
on the black of the title window. The window cuts it to the left 208 columns, so the picture
is composed within them and its edges are black."""
import random

from earth import Globe
from ink import BRASS, CREAM, around, circle_path, fill, number, picture, polyline, ring, stroke

CX, CY, R = 104, 38, 31
NAME = 89                     # the line on which the name stands
FIRST, LAST = 3, 205          # columns the frame shows, less a margin


def stars():
    rng = random.Random(42)
    out = []
    while len(out) < 70:
        x, y = rng.uniform(FIRST, LAST), rng.uniform(2, NAME - 20)
        bright = rng.random() ** 3
        far = ((x - CX) ** 2 + (y - CY) ** 2) ** .5
        fade = min(1, min(x - FIRST, LAST - x) / 30)
        if far < R + 9 or rng.random() > fade:
            continue
        # At whole pixels, so that antialiasing does not blur it.
        size = 1 if bright > .5 else .5
        x, y = round(x), round(y)
        colour = ('#ffffff', '#cfe0f2', '#f6e3bd')[len(out) % 3]
        out.append('<rect x="%s" y="%s" width="%s" height="%s" fill="%s" fill-opacity="%s"/>' % (
            x, y, size, size, colour, number((.35 + .65 * bright) * (.5 + .5 * fade))))
    return out


def orbit(front):
    """An orbit around the globe, which hides the part behind it."""
    half = 'M%d 0A68 13.6 0 0 %d %d 0' % (-68, 0 if front else 1, 68)
    place = 'transform="translate(%d %d) rotate(-12)"' % (CX, CY)
    out = ['<g %s>%s</g>' % (place, stroke(half, BRASS, .7, .75 if front else .4, 'stroke-dasharray="4 3"'))]
    if front:
        out.append('<g %s><g transform="translate(43.7 10.4)"><circle r="1.8" fill="%s" stroke="#000" stroke-width=".8"/>'
                   '</g></g>' % (place, CREAM))
    return out


def earth():
    view = Globe(14, 30, CX, CY, R)
    land = view.land(.8)
    disc = circle_path(CX, CY, R)
    return ['<defs><radialGradient id="sea" cx=".34" cy=".3" r=".85"><stop offset="0" stop-color="#5d8ba8"/>'
            '<stop offset=".4" stop-color="#35566f"/><stop offset="1" stop-color="#1b3046"/></radialGradient>'
            '<radialGradient id="soil" gradientUnits="userSpaceOnUse" cx="93" cy="27" r="43">'
            '<stop offset="0" stop-color="#cdbb8b"/><stop offset=".45" stop-color="#98946a"/>'
            '<stop offset="1" stop-color="#4f5d47"/></radialGradient>'
            '<radialGradient id="night" cx=".3" cy=".32" r=".78"><stop offset=".52" stop-color="#000" stop-opacity="0"/>'
            '<stop offset=".8" stop-color="#000309" stop-opacity=".72"/>'
            '<stop offset="1" stop-color="#000" stop-opacity=".96"/></radialGradient>'
            '<radialGradient id="air" gradientUnits="userSpaceOnUse" cx="102" cy="36.6" r="35.6">'
            '<stop offset=".83" stop-color="#6fb0d8" stop-opacity=".5"/>'
            '<stop offset=".91" stop-color="#4b86ad" stop-opacity=".2"/>'
            '<stop offset="1" stop-color="#2d5b7c" stop-opacity="0"/></radialGradient>'
            '<linearGradient id="limb" x1="0" y1="0" x2=".8" y2=".8"><stop offset="0" stop-color="#e4f4ff"/>'
            '<stop offset=".5" stop-color="#8fc4e4" stop-opacity=".7"/>'
            '<stop offset=".8" stop-color="#8fc4e4" stop-opacity="0"/></linearGradient></defs>',
            fill(circle_path(102, 36.6, 35.6), 'url(#air)'), fill(circle_path(CX, CY, R + .3), '#000'),
            fill(disc, 'url(#sea)'), stroke(view.graticule(15), '#fff', .45, .16),
            stroke(land, '#7aa3b6', 2, .5), fill(land, 'url(#soil)', 1, 'fill-rule="evenodd"'),
            stroke(land, '#141a16', .3, .8), fill(disc, 'url(#night)'),
            ring(CX, CY, R - .3, 'url(#limb)', .9)]


def name():
    """Like the title on the board's map."""
    rule = 'M%d %gH%dM%d %gH%d' % (CX - 72, NAME + 7, CX - 6, CX + 6, NAME + 7, CX + 72)
    lozenge = [around(CX, NAME + 7, 2.4, bearing) for bearing in (0, 90, 180, 270)]
    return ['<text x="%d" y="%d" font-family="Liberation Serif" font-size="23" letter-spacing="7" fill="#e9d9ae" '
            'text-anchor="middle">VORLUND</text>' % (CX, NAME),
            stroke(rule, BRASS, .6, .7), fill(polyline(lozenge, True), BRASS, .9)]


def main():
    picture('earth', 220, 100, ['<rect width="220" height="100" fill="#000"/>'] + stars() + orbit(False) + earth()
            + orbit(True) + name())


if __name__ == '__main__':
    main()
