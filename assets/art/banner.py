# SPDX-License-Identifier: MIT
"""The banner that is laid over the board when the game is over and hides it: a dark
sheet with a globe in a laurel wreath."""
import math

import lettering
from earth import Globe
from ink import BRASS, CREAM, around, circle_path, fill, number, picture, polyline, ring, stroke

WIDTH, HEIGHT = 692, 381
CX, CY, ROOM = 346, 136, 119
NIGHT, RIM = '#0a1420', '#060c14'


def plate():
    """A sheet with notched corners, a double rule and a degree scale, as on the map."""
    def notched(inset, notch):
        x0, y0, x1, y1 = inset, inset, WIDTH - inset, HEIGHT - inset
        return polyline([(x0 + notch, y0), (x1 - notch, y0), (x1 - notch, y0 + notch), (x1, y0 + notch),
                         (x1, y1 - notch), (x1 - notch, y1 - notch), (x1 - notch, y1), (x0 + notch, y1),
                         (x0 + notch, y1 - notch), (x0, y1 - notch), (x0, y0 + notch), (x0 + notch, y0 + notch)], True)
    out = ['<radialGradient id="veil" gradientUnits="userSpaceOnUse" cx="346" cy="190" r="400" '
           'gradientTransform="translate(0 76) scale(1 .6)">'
           '<stop offset="0" stop-color="#16304a"/><stop offset=".55" stop-color="#0e1c2b"/>'
           '<stop offset="1" stop-color="%s"/></radialGradient>' % NIGHT,
           '<rect width="%d" height="%d" fill="%s"/>' % (WIDTH, HEIGHT, RIM), fill(notched(4, 14), 'url(#veil)'), stroke(notched(4, 14), '#0b1118', 3), stroke(notched(4, 14), BRASS, 1.5),
           stroke(notched(11, 14), BRASS, .7, .8)]
    for x in (10.5, WIDTH - 10.5):
        for y in (10.5, HEIGHT - 10.5):
            out.append(fill(polyline([around(x, y, 3.2, a) for a in (0, 90, 180, 270)], True), BRASS))
    return out


def rays():
    d = ''
    for i in range(72):
        a = 5 * i
        room = ROOM / max(abs(math.cos(math.radians(a))), .01)      # to the rule above and the letters below
        first, last = 112 + (i % 2) * 5, min((168, 142, 152, 142)[i % 4], room)
        if last > first + 5:
            d += polyline([around(CX, CY, first, a), around(CX, CY, last, a)])
    return ['<radialGradient id="ray" gradientUnits="userSpaceOnUse" cx="%d" cy="%d" r="168">'
            '<stop offset=".6" stop-color="%s" stop-opacity=".34"/><stop offset="1" stop-color="%s" stop-opacity="0"/>'
            '</radialGradient>' % (CX, CY, BRASS, BRASS), stroke(d, 'url(#ray)', .8)]


def globe():
    r = 62
    view = Globe(10, 22, CX, CY, r)
    land = view.land(1.2)
    disc = circle_path(CX, CY, r)
    return ['<radialGradient id="sea" cx=".38" cy=".3" r=".8"><stop offset="0" stop-color="#4a7490"/>'
            '<stop offset=".5" stop-color="#2d4b64"/><stop offset="1" stop-color="#14273a"/></radialGradient>'
            '<radialGradient id="dusk" cx=".36" cy=".3" r=".82"><stop offset=".5" stop-color="#050a10" stop-opacity="0"/>'
            '<stop offset="1" stop-color="#050a10" stop-opacity=".72"/></radialGradient>',
            fill(disc, 'url(#sea)'), stroke(view.graticule(15), '#ffffff', .6, .16),
            stroke(land, '#7aa3b6', 3.2, .35), fill(land, '#d9c48e', 1, 'fill-rule="evenodd"'),
            stroke(land, '#1a1712', .6), fill(disc, 'url(#dusk)'),
            ring(CX, CY, r, CREAM, 1.6), ring(CX, CY, r + 4, BRASS, .8), *scale_ring(r + 4, r + 9)]


def scale_ring(inner, outer):
    ticks = ''.join(polyline([around(CX, CY, inner, a), around(CX, CY, outer - (0 if a % 15 == 0 else 2.4), a)])
                    for a in range(0, 360, 3))
    return [stroke(ticks, BRASS, .7, .85)]


def leaf(x, y, bearing, length, lit):
    """A laurel leaf with its rib; one half catches the light."""
    w = length * .21
    def at(along, aside):
        a = math.radians(bearing)
        return '%s %s' % (number(x + along * math.sin(a) + aside * math.cos(a)),
                          number(y - along * math.cos(a) + aside * math.sin(a)))
    def half(side):
        return 'M%sC%s %s %sC%s %s %sZ' % (at(0, 0), at(length * .22, side * w * 1.25), at(length * .62, side * w * 1.2),
                                           at(length, 0), at(length * .7, 0), at(length * .3, 0), at(0, 0))
    bright, shade = ('#e8d49a', '#b2954f') if lit else ('#d3bb79', '#94793c')
    return [fill(half(-1), bright), fill(half(1), shade), stroke(half(-1) + half(1), '#1a1712', .5)]


def laurel():
    out = []
    radius = 93
    for side in (-1, 1):
        stem = [around(CX, CY, radius, side * a) for a in range(26, 187, 3)]
        out.append(stroke(polyline(stem), '#94793c', 1.8))
        for i, a in enumerate(range(172, 30, -11)):
            length = 25 - .35 * abs(a - 110) / 7
            x, y = around(CX, CY, radius, side * a)
            heading = side * (a - 90)
            for spread in (34, -34):
                out += leaf(x, y, heading + side * spread * -1, length, spread > 0)
            if i % 3 == 1:
                bx, by = around(CX, CY, radius + 5, side * (a + 4))
                out.append(fill(circle_path(bx, by, 2.1), '#e8d49a') + ring(bx, by, 2.1, '#1a1712', .5))
        x, y = around(CX, CY, radius, side * 27)
        out += leaf(x, y, side * (30 - 90), 20, True)
    for turn in (-1, 1):
        band = [(-9, -3), (9, -3), (9, 3), (-9, 3)]
        a = math.radians(24 * turn)
        spots = [(CX + x * math.cos(a) - y * math.sin(a), CY + radius + x * math.sin(a) + y * math.cos(a)) for x, y in band]
        out.append(fill(polyline(spots, True), '#8c1d1f') + stroke(polyline(spots, True), '#1a1712', .6))
    out.append(fill(circle_path(CX, CY + radius, 4.2), '#b32a28') + ring(CX, CY + radius, 4.2, '#1a1712', .6))
    return out


def title():
    letters, width = lettering.line('GAME OVER')
    size = .63
    x0, y0 = 346 - width * size / 2, 246
    out = ['<linearGradient id="ivory" x2="0" y2="1"><stop offset="0" stop-color="#fffaf0"/>'
           '<stop offset="1" stop-color="#e2cf9a"/></linearGradient>']
    for x, d in letters:
        place = 'transform="translate(%s %s) scale(%s)"' % (number(x0 + x * size), y0, size)
        out.append('<g %s><path d="%s" fill="#05090e" transform="translate(2.4 3.2)"/></g>' % (place, d))
        out.append('<g %s><path d="%s" fill="url(#ivory)"/></g>' % (place, d))
    return out


def flourish(y):
    out = [stroke('M106 %sH326M366 %sH586' % (y, y), BRASS, .8)]
    for x, r in ((346, 5), (334, 2.4), (358, 2.4)):
        out.append(fill(polyline([around(x, y, r, a) for a in (0, 90, 180, 270)], True), BRASS))
    for x in (106, 586):
        out.append(fill(circle_path(x, y, 1.8), BRASS))
    return out


def main():
    picture('gameover', WIDTH, HEIGHT, plate() + rays() + laurel() + globe() + title() + flourish(324.5))


if __name__ == '__main__':
    main()
