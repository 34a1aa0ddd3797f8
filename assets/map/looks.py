# SPDX-License-Identifier: MIT
"""Colours and small drawings of the map, as SVG."""

INK, CREAM, BRASS = '#12161b', '#f4ead0', '#c9ac6b'
ROUTE_COLOUR = '#f6e7b4'
SANS = 'font-family="Liberation Sans"'
SERIF = 'font-family="Liberation Serif"'


def open_path(line):
    return 'M' + 'L'.join('%.2f %.2f' % tuple(point) for point in line)


def closed_path(rings):
    return ''.join(open_path(ring) + 'Z' for ring in rings)


def text(x, y, content, size, fill, font=SANS, more=''):
    return '<text x="%.2f" y="%.2f" font-size="%g" fill="%s" %s %s>%s</text>' % (
        x, y, size, fill, font, more, content)


def badge_size(number):
    """Width and height with the outline; whole pixels, so that a badge at whole coordinates is crisp."""
    return (10 if number < 10 else 14), 10


def badge(x, y, number):
    """A territory's number."""
    width, height = badge_size(number)
    return ('<rect x="%g" y="%g" width="%g" height="%g" rx="2.2" fill="%s" stroke="%s"/>'
            % (x - width / 2 + .5, y - height / 2 + .5, width - 1, height - 1, CREAM, INK)
            + text(x, y + 3.1, number, 9, INK, more='font-weight="bold" text-anchor="middle"'))


def count(x, y, words):
    """Troops and tanks as the program writes them."""
    return ('<rect x="%g" y="%g" width="24" height="11" rx="3" fill="#080e1a" fill-opacity=".8"/>' % (x - 12, y - 5.5)
            + text(x, y + 3.2, words, 9, '#fff', more='text-anchor="middle"'))


DERRICK = (8.0, 10.6)


def derrick(x, y, scale=1.0):
    """A drilling tower with its middle at (x, y): an oil field."""
    frame = ('M0 -5L-3.4 4.6M0 -5L3.4 4.6M-4.2 4.7H4.2M-1.2 -1.6H1.2M-2.3 1.5H2.3'
             'M-1.2 -1.6L2.3 1.5M1.2 -1.6L-2.3 1.5M-2.3 1.5L3.4 4.6M2.3 1.5L-3.4 4.6')
    return ('<g transform="translate(%.2f %.2f) scale(%.3f)" fill="none" stroke-linecap="round" '
            'stroke-linejoin="round"><path d="M0 -5L-3.6 4.8H3.6Z" fill="%s" stroke="%s" stroke-width="2.6"/>'
            '<path d="%s" stroke="%s" stroke-width=".85"/><circle cy="-5.1" r="1.05" fill="%s"/></g>'
            % (x, y, scale, CREAM, CREAM, frame, INK, INK))


def route(path, short=False):
    return ('<path d="%s" fill="none" stroke="#0b1620" stroke-opacity=".55" stroke-width="2.7" '
            'stroke-linecap="round"/><path d="%s" fill="none" stroke="%s" stroke-width="1.4" '
            'stroke-dasharray="%s"/>' % (path, path, ROUTE_COLOUR, '1.7 1.3' if short else '3.4 2.4'))


def landing(x, y):
    return ('<circle cx="%.2f" cy="%.2f" r="1.55" fill="%s" stroke="#0b1620" stroke-width=".6"/>'
            % (x, y, ROUTE_COLOUR))


def compass(x, y, radius):
    out = ['<g transform="translate(%g %g)" opacity=".5">' % (x, y)]
    for share, width in ((.64, .6), (.58, .35)):
        out.append('<circle r="%g" fill="none" stroke="%s" stroke-width="%g"/>' % (radius * share, CREAM, width))
    for tick in range(72):
        out.append('<path d="M0 %g V%g" transform="rotate(%d)" stroke="%s" stroke-width=".3"/>'
                   % (-radius * .58, -radius * (.64 if tick % 2 else .62), tick * 5, CREAM))
    for point in (1, 3, 5, 7, 0, 2, 4, 6):
        length, width = (radius, radius * .12) if point % 2 == 0 else (radius * .56, radius * .09)
        shape = (-length, width, -width)
        out.append('<g transform="rotate(%d)"><path d="M0 %g L%g %g L0 0Z" fill="#1d3449" stroke="%s" '
                   'stroke-width=".35"/><path d="M0 %g L%g %g L0 0Z" fill="%s"/></g>'
                   % (point * 45, *shape, CREAM, -length, -width, -width, CREAM))
    out.append(text(0, -radius - 2.5, 'N', 8.5, CREAM, SERIF, 'font-weight="bold" text-anchor="middle"') + '</g>')
    return ''.join(out)
