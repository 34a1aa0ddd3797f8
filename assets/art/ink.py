# SPDX-License-Identifier: MIT
"""Shared by all pictures: colours, SVG snippets and the conversion to PNG."""
import math
import pathlib
import subprocess

from PIL import Image

HERE = pathlib.Path(__file__).resolve().parent
PICTURES = HERE.parent / 'pictures'
ICONS = HERE.parent / 'icons'

INK = '#101a22'          # borders and coasts of the board's map
CREAM = '#f3e8cb'        # its number plates
SEA_HIGH, SEA_LOW = '#35566f', '#26405a'
SHELF = '#7aa3b6'
BRASS = '#cdb376'
PLAYERS = ('#C00108', '#F44B08', '#CBCD00', '#0C4C4B', '#2B0981')


def number(value):
    """The shortest decimal with two places: files stay small and equal on every machine."""
    text = '%.2f' % value
    text = text.rstrip('0').rstrip('.')
    return '0' if text == '-0' else text


def polyline(points, closed=False):
    return 'M' + 'L'.join(number(x) + ' ' + number(y) for x, y in points) + ('Z' if closed else '')


def stroke(d, colour, width=1.0, opacity=1.0, more=''):
    seen = '' if opacity == 1 else ' stroke-opacity="%s"' % number(opacity)
    return ('<path d="%s" fill="none" stroke="%s" stroke-width="%s"%s stroke-linejoin="round" %s/>'
            % (d, colour, number(width), seen, more))


def fill(d, colour, opacity=1.0, more=''):
    seen = '' if opacity == 1 else ' fill-opacity="%s"' % number(opacity)
    return '<path d="%s" fill="%s"%s %s/>' % (d, colour, seen, more)


def circle_path(cx, cy, r):
    return 'M%s %sa%s %s 0 1 0 %s 0a%s %s 0 1 0 %s 0Z' % tuple(
        number(v) for v in (cx - r, cy, r, r, 2 * r, r, r, -2 * r))


def ring(cx, cy, r, colour, width=1.0, opacity=1.0, more=''):
    return stroke(circle_path(cx, cy, r), colour, width, opacity, more)


def around(cx, cy, r, degrees):
    """The point at a bearing: 0 is up, 90 is right."""
    a = math.radians(degrees)
    return cx + r * math.sin(a), cy - r * math.cos(a)


def document(width, height, body, box=None):
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d">\n%s\n</svg>\n'
            % ((width, height) + (box or (width, height)) + ('\n'.join(body),)))


def rasterise(svg, png, width, height, tones=0):
    """`tones` other than 0 reduces the colours to that number: a ground has few colours, so the
    loss is invisible and the file a third smaller."""
    png.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(['rsvg-convert', '-w', str(width), '-h', str(height), '-o', str(png)],
                   input=svg.encode(), check=True)
    if tones:
        with Image.open(png) as drawn:
            flat = drawn.convert('RGB').quantize(tones, Image.Quantize.MEDIANCUT, 3, dither=Image.Dither.NONE)
        flat.save(png)
    subprocess.run(['optipng', '-quiet', '-o3', '-strip', 'all', str(png)], check=True)


def picture(name, width, height, body, tones=0):
    """One drawing at both scales."""
    svg = document(width, height, body)
    rasterise(svg, PICTURES / (name + '.png'), width, height, tones)
    rasterise(svg, PICTURES / (name + '@2x.png'), 2 * width, 2 * height, tones)
