# SPDX-License-Identifier: MIT
"""Grounds of the windows: near-black, each with one quiet chart motif. Text of any of the
game's colours must stay readable on them, so a motif is a shade above its ground and is
kept out of the strips where the teal status lines stand."""
import math

from earth import Chart, Globe
from ink import around, circle_path, fill, number, picture, polyline, ring, stroke

BLACK = '#010308'
LAMP = '#0a1524'        # the lit ground behind a motif
FINE, LINE, STRONG = '#101d2c', '#17283a', '#21374c'
LAND = '#0b1724'
WARM = '#3d3520'
EMBER = '#43201c'


def lamp(x, y, r, colour=LAMP):
    """A soft light in user units on the black ground."""
    return ('<radialGradient id="lamp" gradientUnits="userSpaceOnUse" cx="%s" cy="%s" r="%s">'
            '<stop offset="0" stop-color="%s"/><stop offset=".45" stop-color="%s" stop-opacity=".62"/>'
            '<stop offset="1" stop-color="%s" stop-opacity="0"/></radialGradient>'
            % (number(x), number(y), number(r), colour, colour, colour))


def soft(x, y, r, inner=1.0, outer=0.0):
    """A mask that lets a motif fade away from (x, y)."""
    grey = ['#' + '%02x' % round(255 * v) * 3 for v in (inner, outer)]
    return ('<radialGradient id="fade" gradientUnits="userSpaceOnUse" cx="%s" cy="%s" r="%s">'
            '<stop offset="0" stop-color="%s"/><stop offset=".35" stop-color="%s"/>'
            '<stop offset="1" stop-color="%s"/></radialGradient>'
            '<mask id="soft" maskUnits="userSpaceOnUse" x="-2000" y="-2000" width="4000" height="4000">'
            '<rect x="-2000" y="-2000" width="4000" height="4000" fill="url(#fade)"/></mask>'
            % (number(x), number(y), number(r), grey[0], grey[0], grey[1]))


def neatline(width, height):
    """The degree scale of a chart's frame along the bottom, and the corners of the frame."""
    out = []
    x0, x1, y = 9.0, width - 9.0, height - 3.5
    cells = max(8, 2 * round((x1 - x0) / 36) + 1)
    step = (x1 - x0) / cells
    out.append(stroke(polyline([(x0, y - 1), (x1, y - 1)]) + polyline([(x0, y + 1), (x1, y + 1)]), FINE, .5))
    out.append(stroke(''.join(polyline([(x0 + i * step, y), (x0 + (i + 1) * step, y)])
                              for i in range(0, cells, 2)), LINE, 1.5))
    arms = ''
    for sx, sy in ((0, 0), (1, 0), (0, 1), (1, 1)):
        x, y = (1.5, width - 1.5)[sx], (1.5, height - 1.5)[sy]
        dx, dy = (5, -5)[sx], (5, -5)[sy]
        arms += polyline([(x + dx, y), (x, y), (x, y + dy)])
    out.append(stroke(arms, WARM, 1))
    return out


def ground(name, width, height, light, motif, strips=(), fade=None):
    """`light` is (x, y, r) of the lamp, `fade` of the motif's mask (the lamp's if none is
    given); `strips` are (top, bottom) of the lines kept black, with soft edges."""
    bands = ''
    for top, bottom in strips:
        bands += '<rect y="%d" width="%d" height="%d" fill="#000"/>' % (top, width, bottom - top)
        for y, turn in ((top - 14, ''), (bottom, 'transform="rotate(180)" ')):
            bands += ('<g transform="translate(%d %d)"><rect %swidth="%d" height="14" fill="url(#shore)"/></g>'
                      % (width if turn else 0, y + 14 if turn else y, turn, width))
    picture(name, width, height, [
        '<defs>', lamp(*light), soft(*(fade or light)),
        '<linearGradient id="shore" x2="0" y2="1"><stop offset="0" stop-opacity="0"/>'
        '<stop offset=".9" stop-opacity="1"/></linearGradient>'
        '<mask id="open" maskUnits="userSpaceOnUse" x="0" y="0" width="%d" height="%d">'
        '<rect width="%d" height="%d" fill="#fff"/>%s</mask>' % (width, height, width, height, bands),
        '</defs>',
        '<rect width="%d" height="%d" fill="%s"/>' % (width, height, BLACK),
        '<g mask="url(#open)"><rect width="%d" height="%d" fill="url(#lamp)"/><g mask="url(#soft)">'
        % (width, height), *motif, '</g></g>', *neatline(width, height)], tones=256)


def rosette(cx, cy, r, lobes, depth, phases):
    """The engine-turned rosette of a banknote."""
    d = ''
    for k in range(phases):
        turn = 2 * math.pi * k / phases / lobes
        points = []
        for i in range(720):
            a = 2 * math.pi * i / 720
            reach = r * (1 - depth + depth * math.cos(lobes * (a + turn)))
            points.append((cx + reach * math.cos(a), cy + reach * math.sin(a)))
        d += polyline(points, True)
    return d


def wave(width, y, height, length, phase):
    return polyline([(x, y + height * math.sin(2 * math.pi * x / length + phase)
                      * (.55 + .45 * math.cos(2 * math.pi * x / (length * 5.5))))
                     for x in range(-4, width + 6, 2)])


def hill(cx, cy, r, rings, seed):
    """Contour lines of one hill, steeper towards the top."""
    d = ''
    for k in range(1, rings + 1):
        reach = r * (k / rings) ** .85
        points = []
        for i in range(120):
            a = 2 * math.pi * i / 120
            bulge = sum(math.cos(n * a + seed * n * 1.7 + k * .09 * n) / (n + 2.2) for n in (1, 2, 3, 5))
            points.append((cx + 1.5 * reach * (1 + .38 * bulge) * math.cos(a), cy + reach * (1 + .38 * bulge) * math.sin(a)))
        d += polyline(points, True)
    return d


def rose(cx, cy, r):
    """The compass rose of the board's map, in outline."""
    out = [ring(cx, cy, r * .62, LINE), ring(cx, cy, r * .56, FINE), ring(cx, cy, r * .86, FINE),
           ring(cx, cy, r * .9, LINE)]
    ticks = ''.join(polyline([around(cx, cy, r * (.86 if i % 5 else .8), a), around(cx, cy, r * .9, a)])
                    for i, a in enumerate(range(0, 360, 3)))
    out.append(stroke(ticks, FINE))
    for k in (1, 3, 5, 7, 0, 2, 4, 6):
        reach, waist = (r * .58, r * .13) if k % 2 else (r, r * .17)
        tip, left, right = (around(cx, cy, reach, 45 * k), around(cx, cy, waist, 45 * k - 45),
                            around(cx, cy, waist, 45 * k + 45))
        out.append(fill(polyline([tip, left, (cx, cy)], True), '#13222f'))
        out.append(fill(polyline([tip, right, (cx, cy)], True), '#060d16'))
        out.append(stroke(polyline([tip, left, (cx, cy), right], True) + polyline([tip, (cx, cy)]), STRONG, .8))
    return out


def star_fort(cx, cy, r, points=6):
    """Ground plan of a fortress with bastions, ravelins and a ditch."""
    out = []

    def bastions(scale):
        d = []
        for i in range(points):
            a = 360 / points * i
            d += [around(cx, cy, scale * r * k, a + da) for k, da in
                  ((.64, -17), (.72, -11), (1, 0), (.72, 11), (.64, 17))]
        return polyline(d, True)
    for scale, colour, width in ((1, STRONG, 1.2), (.93, LINE, .8), (.8, FINE, .8), (1.1, LINE, .8), (1.16, FINE, .8)):
        out.append(stroke(bastions(scale), colour, width))
    for i in range(points):
        a = 360 / points * (i + .5)
        ravelin = [around(cx, cy, r * k, a + da) for k, da in ((1.12, 0), (.84, 10), (.79, 0), (.84, -10))]
        out.append(stroke(polyline(ravelin, True), LINE))
        out.append(stroke(polyline([around(cx, cy, r * .26, a), around(cx, cy, r * .58, a)]), FINE))
    out += [ring(cx, cy, r * .26, LINE), ring(cx, cy, r * .2, FINE)]
    glacis = ''.join(polyline([around(cx, cy, r * 1.36, a), around(cx, cy, r * (1.42 if a % 10 else 1.5), a)])
                     for a in range(0, 360, 5))
    out.append(ring(cx, cy, r * 1.36, FINE))
    out.append(stroke(glacis, FINE))
    return out


def chart(view, width, height, step, land=LAND, coast=LINE):
    d = view.land(width, height)
    return [stroke(view.graticule(width, height, step), FINE, .7),
            stroke(d, FINE, 5, .6), fill(d, land, 1, 'fill-rule="evenodd"'), stroke(d, coast, .8)]


def route(view, a, b, bend, colour=WARM):
    (x0, y0), (x1, y1) = view.project(*a), view.project(*b)
    mx, my = (x0 + x1) / 2 - (y1 - y0) * bend, (y0 + y1) / 2 + (x1 - x0) * bend
    d = 'M%s %sQ%s %s %s %s' % tuple(number(v) for v in (x0, y0, mx, my, x1, y1))
    return [stroke(d, colour, 1.4, 1, 'stroke-dasharray="4 3"'), fill(circle_path(x0, y0, 2), colour),
            fill(circle_path(x1, y1, 2), colour)]


def buy():
    return [stroke(rosette(58, 138, 84, 18, .16, 5), LINE, .7), stroke(rosette(58, 138, 55, 12, .22, 4), LINE, .7),
            stroke(rosette(58, 138, 30, 9, .3, 3), STRONG, .7), ring(58, 138, 88, FINE), ring(58, 138, 91, LINE)]


def sell():
    d = ''.join(wave(348, 112, 15, 46, k * math.pi / 4) for k in range(8))
    return [stroke(d, LINE, .7), stroke(polyline([(0, 94.5), (348, 94.5)]), FINE)]


def transport():
    view = Chart(-30, 40, 196, 66, 3.4)
    return chart(view, 391, 110, 10) + route(view, (-74, 40), (-9.5, 40), .05)


def attack():
    hills = hill(30, 78, 70, 11, 1) + hill(388, 66, 66, 11, 4)
    out = [stroke(hills, LINE, .7)]
    # The front: a line with teeth, as drawn on staff maps, before the defended height.
    front = [(319 + 4 * math.sin(y / 11), y) for y in range(22, 112, 2)]
    out.append(stroke(polyline(front), EMBER, 1.3))
    for i in range(2, len(front) - 4, 6):
        (ax, ay), (bx, by) = front[i], front[i + 3]
        tip = ((ax + bx) / 2 + (by - ay) * .8, (ay + by) / 2 - (bx - ax) * .8)
        out.append(fill(polyline([(ax, ay), (bx, by), tip], True), EMBER))
    cx, cy = 231, 184
    out.append('<clipPath id="lower"><rect y="128" width="414" height="61"/></clipPath><g clip-path="url(#lower)">')
    out += [ring(cx, cy, r, STRONG if r < 20 else LINE if r < 50 else FINE, .9)
            for r in (6, 12, 19, 27, 36, 47, 60, 76, 95)]
    out.append(stroke(''.join(polyline([around(cx, cy, 12, a), around(cx, cy, 60 if a % 30 else 120, a)])
                              for a in range(-90, 91, 15)), FINE, .8))
    out.append(fill(circle_path(cx, cy, 2.4), EMBER) + '</g>')
    return out


def upgrade():
    grid = ''.join(polyline([(x + .5, 0), (x + .5, 277)]) for x in range(6, 258, 12))
    grid += ''.join(polyline([(0, y + .5), (258, y + .5)]) for y in range(8, 277, 12))
    return [stroke(grid, '#0a1420')] + star_fort(176, 214, 72)


def report():
    view = Chart(12, 22, 249, 118, 1.42)
    view.squeeze = .98
    return chart(view, 499, 220, 30)


def status():
    return rose(268, 272, 112)


def save():
    cx, cy = 246, 46
    ticks = ''.join(polyline([around(cx, cy, 27, a), around(cx, cy, 30, a)]) for a in range(0, 360, 9))
    waves = ''.join(polyline([(x, y + 2.4 * math.sin(x / 7.5)) for x in range(96, 214, 2)]) for y in range(25, 72, 7))
    return [ring(cx, cy, 34, STRONG, 1.2), ring(cx, cy, 31, LINE), ring(cx, cy, 21, LINE), stroke(ticks, LINE),
            stroke(waves, LINE, 1), *anchor_star(cx, cy, 15)]


def anchor_star(cx, cy, r):
    d = polyline([around(cx, cy, r if k % 2 == 0 else r * .34, 45 * k) for k in range(8)], True)
    return [stroke(d, LINE, .9)]


def load():
    """A sheet that was folded: light falls from the left on three creases."""
    view = Chart(-40, 28, 160, 140, 3.1)
    out = chart(view, 340, 260, 15)
    out.append('<linearGradient id="crease"><stop offset="0" stop-opacity="0"/>'
               '<stop offset="1" stop-opacity=".6"/></linearGradient>')
    for x in (85, 170, 255):
        out.append('<rect x="%d" width="46" height="260" fill="url(#crease)"/>' % (x - 46))
        out.append(stroke(polyline([(x + .5, 0), (x + .5, 260)]), LINE, .8))
    out.append(stroke(polyline([(0, 130.5), (340, 130.5)]), FINE, .8))
    return out


PLACES = ((-148, 65), (-122, 57), (-104, 55), (-72, 53), (-40, 72), (-116, 39), (-100, 39), (-83, 37), (-102, 23),
          (-85, 14), (-70, 18), (-68, 6), (-73, -13), (-51, -11), (-62, -31), (-2, 53), (-4, 40), (3, 46), (15, 63),
          (11, 48), (20, 52), (34, 39), (-6, 19), (16, 28), (25, 11), (22, -7), (23, -26), (43, 25), (100, 66),
          (31, 51), (68, 52), (59, 34), (108, 54), (122, 47), (138, 36), (104, 34), (77, 23), (101, 17), (114, 1),
          (141, -5), (122, -25), (143, -27))


def select():
    """The places that can be chosen, one of them taken."""
    view = Chart(10, 18, 182, 74, 1.05)
    view.squeeze = .96
    out = chart(view, 360, 140, 30)
    for place in PLACES:
        x, y = view.project(*place)
        chosen = place == (143, -27)
        out.append(fill(circle_path(x, y, 1.5), WARM if chosen else STRONG))
        if chosen:
            out += [ring(x, y, 5, WARM), ring(x, y, 8.5, WARM, .7)]
    return out


def new_game():
    globe = Globe(15, 28, 296, 196, 150)
    land = globe.land(1.5)
    out = [ring(296, 196, 150, STRONG, 1.2), ring(296, 196, 156, FINE), ring(296, 196, 163, FINE, .7),
           stroke(globe.graticule(15), FINE, .7), fill(land, LAND, 1, 'fill-rule="evenodd"'), stroke(land, LINE, .8)]
    out.append(stroke(''.join(polyline([around(296, 196, 156, a), around(296, 196, 163 if a % 10 else 167, a)])
                              for a in range(-90, 91, 2)), FINE))
    return out


def main():
    ground('frmBuy', 391, 138, (58, 138, 150), buy(), [(2, 25)])
    ground('frmSell', 348, 135, (174, 128, 190), sell(), [(2, 25)])
    ground('frmTransport', 391, 110, (190, 84, 260), transport(), [(2, 25)])
    ground('frmAttack', 414, 189, (231, 196, 190), attack(), [(2, 25), (118, 138)],
           fade=(231, 110, 330))
    ground('frmUpgrade', 258, 277, (176, 214, 190), upgrade(), [(2, 42)])
    ground('frmReport', 499, 220, (330, 130, 330), report())
    ground('frmStatus', 320, 340, (268, 272, 240), status())
    ground('frmSave', 300, 96, (246, 46, 170), save())
    ground('frmSelect', 360, 140, (200, 84, 260), select())
    ground('frmLoad', 340, 260, (170, 150, 260), load())
    ground('frm2', 400, 250, (296, 170, 260), new_game())


if __name__ == '__main__':
    main()
