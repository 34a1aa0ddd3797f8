# SPDX-License-Identifier: MIT
"""Composites the layers."""
import io
import pathlib
import subprocess

import numpy as np
from PIL import Image

import drawing
import legend
import relief

PICTURES = pathlib.Path(__file__).parents[1] / 'pictures'
LIGHT = .75     # of the relief's light, against its shadow


def rasterise(svg, scale):
    """An SVG document as RGBA values from 0 to 255."""
    png = subprocess.run(['rsvg-convert', '-z', str(scale)], input=svg.encode(), check=True, stdout=subprocess.PIPE)
    return np.array(Image.open(io.BytesIO(png.stdout)).convert('RGBA'), float)


def premultiplied(layer):
    """RGBA values from 0 to 255 as shares, the colours multiplied by the coverage."""
    out = layer / 255
    out[..., :3] *= out[..., 3:]
    return out


def over(below, layer):
    """`layer` upon `below`, both premultiplied."""
    return below * (1 - layer[..., 3:]) + layer


def tinted(colour, share):
    """A flat premultiplied layer that covers by `share`."""
    return np.dstack([share * part for part in (*colour, 1)])


def at_scale(array, scale):
    """From the relief's grid to the picture's."""
    step = relief.GRID // scale
    shape = (array.shape[0] // step, step, array.shape[1] // step, step) + array.shape[2:]
    return array.reshape(shape).mean(axis=(1, 3))


def lay_pictures(canvas, scale):
    """Puts the program's markers and icons into the legend."""
    for name, left, middle in legend.PICTURES:
        layer = np.array(Image.open(PICTURES / (name + ('.png', '@2x.png')[scale - 1])).convert('RGBA'), float)
        rows = slice((middle - 5) * scale, (middle + 5) * scale)
        columns = slice(left * scale, (left + 10) * scale)
        canvas[rows, columns] = over(canvas[rows, columns], premultiplied(layer))


class Printer:
    """The layers of the map, for output at several scales. Land is translucent, because the program paints the
    owner's colour under it; sea, ink and signs are opaque."""

    def __init__(self, land, arcs, lakes, rivers, warp):
        self._coverage = drawing.coverage(land)
        self._land_marks = drawing.land_marks(land, lakes, rivers)
        self._sea_names = drawing.sea(warp)
        self._ink = drawing.ink(land, arcs, warp)
        covered = rasterise(self._coverage, relief.GRID)[:relief.SHAPE[0], :, 3] / 255
        self._sea = relief.sea_colour(covered, warp)
        self._shade = relief.land_shade(warp)

    def _land(self, scale):
        """What lies on the land's colour: marks, then the relief as shadow and light."""
        shade = np.ones((525 * scale, 750 * scale))
        shade[:relief.HEIGHT * scale] = at_scale(self._shade, scale)
        marks = premultiplied(rasterise(self._land_marks, scale))
        marks = over(marks, tinted((0, 0, 0), np.clip(1 - shade, 0, 1)))
        return over(marks, tinted((1, 1, 1), np.clip(shade - 1, 0, 1) * LIGHT))

    def picture(self, scale):
        """The map at 1 or 2 device pixels a pixel, as an Image."""
        rows = relief.HEIGHT * scale
        sea = np.zeros((525 * scale, 750 * scale, 4))
        sea[..., 3] = 1
        sea[:rows, :, :3] = at_scale(self._sea, scale) / 255
        sea = over(sea, premultiplied(rasterise(self._sea_names, scale)))
        land = rasterise(self._coverage, scale)[..., 3:] / 255
        canvas = sea * (1 - land) + self._land(scale) * land
        canvas = over(canvas, premultiplied(rasterise(self._ink, scale)))
        lay_pictures(canvas, scale)
        canvas[..., :3] /= np.maximum(canvas[..., 3:], 1 / 255)
        return Image.fromarray(np.clip(canvas * 255 + .5, 0, 255).astype(np.uint8))
