#!/usr/bin/python3 -B
"""Lays a full board of five players over the map as the program does, to look at: markers, icons, the longest
counts, command plates. Writes mockup.png and mockup@2x.png into the folder given."""
import pathlib
import sys

import numpy as np
from PIL import Image

import drawing
import looks
import picture
from world import WORLD

PICTURES = pathlib.Path(__file__).parents[1] / 'pictures'
COMMANDS = ('Buy', 'Sell', 'Transport', 'Attack', 'Upgrade', 'Status', 'End Turn', 'Save')


def lay(canvas, name, x, y, scale):
    layer = np.array(Image.open(PICTURES / (name + ('.png', '@2x.png')[scale - 1])).convert('RGBA'), float)
    place = slice(y * scale, (y + 10) * scale), slice(x * scale, (x + 10) * scale)
    canvas[place] = picture.over(canvas[place], layer)


def count(t, entry, longest):
    words = '999/99' if longest else '%d/%d' % (5 + t * 37 % 140, t * 5 % 30)
    style = 'text-anchor="middle" '
    return (looks.text(entry.x, entry.y + 20.6, words, 9, '#000', more=style + 'stroke="#0a1018" '
                       'stroke-width="2" stroke-linejoin="round" stroke-opacity=".8"')
            + looks.text(entry.x, entry.y + 20.6, words, 9, '#fff', more=style))


def plate(i, caption):
    x, y = (112, 244, 392, 532)[i // 2], (436, 464)[i % 2]
    ground, letters = ('#fffbe8', 'rgb(0,0,192)') if i != 4 else ('#0b1a33', 'rgb(128,128,255)')
    return ('<rect x="%d" y="%d" width="100" height="23" rx="3" fill="%s"/>' % (x - 5, y - 2, ground)
            + looks.text(x + 45, y + 15, caption, 17, letters,
                         more='font-weight="bold" font-style="italic" text-anchor="middle"'))


def board(scale, longest):
    name = 'map.png' if scale == 1 else 'map@2x.png'
    canvas = np.array(Image.open(PICTURES / name).convert('RGB'), float)
    for t, entry in WORLD.items():
        building = longest or t % 3 == 0
        lay(canvas, 'marker%d' % (t * 7 % 5), entry.x - (10 if building else 5), entry.y, scale)
        if building:
            lay(canvas, 'extra%d' % (t % 4 % 3), entry.x, entry.y, scale)
    drawn = [count(t, entry, longest) for t, entry in WORLD.items()]
    drawn += [plate(i, caption) for i, caption in enumerate(COMMANDS)]
    canvas = picture.over(canvas, picture.rasterise(drawing.document(drawn), scale))
    return Image.fromarray(np.clip(canvas + .5, 0, 255).astype(np.uint8))


if __name__ == '__main__':
    folder = pathlib.Path(sys.argv[1])
    for kind, longest in (('mockup', False), ('longest', True)):
        board(1, longest).save(folder / (kind + '.png'))
        board(2, longest).save(folder / (kind + '@2x.png'))
