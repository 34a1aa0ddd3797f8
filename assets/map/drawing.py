# SPDX-License-Identifier: MIT
"""The map's layers as SVG documents: the land's colours, and the ink over them."""
import math

from shapely.geometry import Point
from shapely.ops import nearest_points

import labels
import legend
import looks
import strip
from geography import ROUTE, ROUTE_ROUND
from outlines import rings_of
from world import PAIRS

WATER, WATER_EDGE = '#41667f', '#22394b'


def document(parts):
    return ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 750 525" width="750" height="525">%s</svg>'
            % '\n'.join(parts))


def coverage(land):
    """The mask of the land. The stroke closes the seams between the antialiased edges of neighbours."""
    return document(['<path d="%s" stroke="#000" stroke-width=".5"/>' % looks.closed_path(rings_of(shape))
                     for shape in land.values()])


def land_marks(land, lakes, rivers):
    """The ink on land, whoever owns it: a lighter band along each territory's edge, lakes and rivers."""
    out = ['<defs>']
    for t, shape in land.items():
        out.append('<path id="t%d" d="%s"/><clipPath id="c%d"><use href="#t%d"/></clipPath>'
                   % (t, looks.closed_path(rings_of(shape)), t, t))
    out.append('<clipPath id="land">%s</clipPath></defs>' % ''.join('<use href="#t%d"/>' % t for t in land))
    for t in land:
        for width, opacity in ((5.2, .05), (3.4, .08)):
            out.append('<use href="#t%d" fill="none" stroke="#fff" stroke-opacity="%g" stroke-width="%g" '
                       'stroke-linejoin="round" clip-path="url(#c%d)"/>' % (t, opacity, width, t))
    out.append('<path d="%s" fill="none" stroke="%s" stroke-width=".55" stroke-opacity=".55" '
               'stroke-linejoin="round" clip-path="url(#land)"/>'
               % (''.join(looks.open_path(river) for river in rivers), WATER))
    out.append('<path d="%s" fill="%s" stroke="%s" stroke-width=".4"/>'
               % (looks.closed_path(lakes), WATER, WATER_EDGE))
    return document(out)


def graticule(warp):
    lines = []
    for lon in range(-180, 226, 15):
        lines.append([(lon, lat / 2) for lat in range(-170, 175, 5)])
    for lat in range(-75, 90, 15):
        lines.append([(lon, lat) for lon in range(-200, 240, 4)])
    out = [''.join(looks.open_path(warp.points(line)) for line in lines)]
    out.append(looks.open_path(warp.points([(lon, 0) for lon in range(-200, 240, 4)])))
    return ''.join('<path d="%s" fill="none" stroke="#cfe4ee" stroke-opacity="%g" stroke-width=".6"/>'
                   % (path, opacity) for path, opacity in zip(out, (.075, .09)))


def sea(warp):
    """What is printed on the water, under the land."""
    out = ['<clipPath id="map"><rect width="750" height="428"/></clipPath><g clip-path="url(#map)">', graticule(warp)]
    for name, (x, y), size, spacing in labels.SEAS:
        out.append(looks.text(x + spacing / 2, y, name, size, '#bcd6e2', looks.SERIF,
                              'font-style="italic" text-anchor="middle" letter-spacing="%g" fill-opacity=".42"'
                              % spacing))
    return document(out + ['</g>'])


def snap(shape, point):
    coast = shape.boundary if shape.contains(point) else shape
    found = nearest_points(coast, point)[0]
    return found.x, found.y


def routes(land, warp):
    """[(pair, start, control point, end)] of the sea routes, each a quadratic curve. The one that goes round
    the edge of the map is there twice."""
    out = []
    for (a, b), (start, end, bend) in ROUTE.items():
        p, q = (snap(land[t], Point(*point)) for t, point in zip((a, b), warp.points([start, end])))
        middle = ((p[0] + q[0]) / 2 - (q[1] - p[1]) * bend, (p[1] + q[1]) / 2 + (q[0] - p[0]) * bend)
        out.append(((a, b), p, middle, q))
    for t, point, edge in ((1, ROUTE_ROUND[0], 0), (29, ROUTE_ROUND[1], 750)):
        p = snap(land[t], Point(*point))
        out.append(((1, 29), p, ((p[0] + edge) / 2, p[1] - 1), (edge, 52)))
    return out


def draw_routes(land, warp):
    out, ends = [], []
    for _, p, middle, q in routes(land, warp):
        out.append(looks.route('M%.2f %.2fQ%.2f %.2f %.2f %.2f' % (*p, *middle, *q), math.dist(p, q) < 12))
        ends += [looks.landing(*point) for point in (p, q) if 0 < point[0] < 750]
    return out + ends


def frame():
    """The frame of the map."""
    edge = '<rect x="%g" y="%g" width="%g" height="%g" fill="none" stroke="%s" stroke-width="%g" %s/>'
    return [edge % (1.5, 1.5, 747, 425.6, '#060c14', 3, 'stroke-opacity=".6"'),
            edge % (2, 2, 746, 424.6, looks.BRASS, 1.6, 'stroke-opacity=".42" stroke-dasharray="25 25"'),
            edge % (4.2, 4.2, 741.6, 420.2, looks.BRASS, .6, 'stroke-opacity=".5"')]


def cartouche(x, y):
    """The map's title."""
    middle = 'text-anchor="middle" '
    rule = '<path d="M%g %gH%gM%g %gH%g" stroke="%s" stroke-opacity=".6" stroke-width=".6"/><path d="M%g %gl2.6 ' \
           '-2.6l2.6 2.6l-2.6 2.6Z" fill="%s" fill-opacity=".8"/>'
    return [looks.text(x - 1, y, 'VORLUND', 19, '#e9d9ae', looks.SERIF, middle + 'letter-spacing="6" '
                       'fill-opacity=".85"'),
            rule % (x - 66, y + 8, x - 6, x + 6, y + 8, x + 66, looks.BRASS, x - 2.6, y + 8, looks.BRASS),
            looks.text(x, y + 20, 'The World in Forty-two Territories', 9, '#cfdbe2', looks.SERIF,
                       middle + 'font-style="italic" fill-opacity=".8"')]


def round_signs():
    """The signs at both edges of the map that say where the route around it leads."""
    out = []
    for x, sign, number in ((17, -1, 29), (733, 1, 1)):
        out.append(looks.text(x + (2 if sign < 0 else -2), 47, number, 9, looks.ROUTE_COLOUR,
                              more='font-weight="bold" text-anchor="middle"'))
        tip = x + sign * 9
        out.append('<path d="M%g 43.8L%g 41.2V46.4Z" fill="%s"/>' % (tip, tip - sign * 4, looks.ROUTE_COLOUR))
    return out


def meeting_points(arcs):
    """Where four territories meet in one point, so that two pairs of them are no neighbours."""
    around = {}
    for pair, lines in arcs.items():
        for line in lines if pair[0] else []:
            for point in (line[0], line[-1]):
                around.setdefault(point, set()).update(pair)
    return [point for point, territories in around.items()
            if any((a, b) not in PAIRS for a in territories for b in territories if a < b)]


def callout(t, land, x, y):
    """A short pointer from a badge that stands at sea to its territory."""
    middle = Point(x, y)
    if land[t].contains(middle):
        return ''
    coast = nearest_points(land[t], middle)[0]
    away = middle.distance(coast)
    tip = (coast.x + (coast.x - x) / away * 2.2, coast.y + (coast.y - y) / away * 2.2)
    side = ((tip[1] - y) / away * 2.2, -(tip[0] - x) / away * 2.2)
    return ('<path d="M%.2f %.2fL%.2f %.2fL%.2f %.2fZ" fill="%s" stroke="%s" stroke-width=".8" '
            'stroke-linejoin="round"/>' % (x + side[0], y + side[1], *tip, x - side[0], y - side[1],
                                           looks.CREAM, looks.INK))


def ink(land, arcs, warp):
    """Borders, coasts, routes, numbers, the command strip."""
    groups = {True: '', False: ''}
    for (a, _), lines in arcs.items():
        groups[a != 0] += ''.join(map(looks.open_path, lines))
    stroke = '<path d="%s" fill="none" stroke="%s" stroke-opacity="%g" stroke-width="%g" stroke-linejoin="round" ' \
             'stroke-linecap="round"/>'
    out = ['<g clip-path="url(#map)"><clipPath id="map"><rect width="750" height="428"/></clipPath>',
           stroke % (groups[False], '#0a1420', .5, 1.3), stroke % (groups[False], '#0a1420', .75, .55),
           stroke % (groups[True], looks.INK, .8, .8)]
    for x, y in meeting_points(arcs):
        out.append('<circle cx="%.2f" cy="%.2f" r="1.7" fill="%s"/>' % (x, y, looks.INK))
    out += frame()
    out += draw_routes(land, warp)
    out += round_signs()
    out.append(looks.compass(62, 362, 30))
    out += cartouche(652, 384)
    out += legend.draw()
    out += [looks.derrick(x, y) for x, y in labels.DERRICKS.values()]
    out += [callout(t, land, x, y) for t, (x, y) in labels.NUMBERS.items()]
    out += [looks.badge(x, y, t) for t, (x, y) in labels.NUMBERS.items()]
    out.append('</g>')
    return document(out + strip.draw())
