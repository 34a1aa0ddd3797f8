"""Prints the layers over one another."""
import io
import pathlib
import subprocess

import numpy as np
from PIL import Image

import drawing
import relief
import strip

PICTURES = pathlib.Path(__file__).parents[1] / 'pictures'


def rasterise(svg, scale):
    """An SVG document as RGBA values from 0 to 255."""
    png = subprocess.run(['rsvg-convert', '-z', str(scale)], input=svg.encode(), check=True, stdout=subprocess.PIPE)
    return np.array(Image.open(io.BytesIO(png.stdout)).convert('RGBA'), float)


def over(below, layer):
    alpha = layer[..., 3:] / 255
    return below * (1 - alpha) + layer[..., :3] * alpha


def at_scale(array, scale):
    """From the relief's grid to the picture's."""
    step = relief.GRID // scale
    shape = (array.shape[0] // step, step, array.shape[1] // step, step) + array.shape[2:]
    return array.reshape(shape).mean(axis=(1, 3))


def lay_pictures(canvas, scale):
    """Puts the program's markers and icons into the legend."""
    for name, left in strip.PICTURES:
        layer = np.array(Image.open(PICTURES / (name + ('.png', '@2x.png')[scale - 1])).convert('RGBA'), float)
        rows = slice((strip.MIDDLE - 5) * scale, (strip.MIDDLE + 5) * scale)
        columns = slice(left * scale, (left + 10) * scale)
        canvas[rows, columns] = over(canvas[rows, columns], layer)


class Printer:
    """The layers of one map, to be printed at several scales."""

    def __init__(self, land, arcs, lakes, rivers, warp):
        self._ground = drawing.ground(land, arcs, lakes, rivers)
        self._sea_names = drawing.sea(warp)
        self._ink = drawing.ink(land, arcs, warp)
        coverage = rasterise(self._ground, relief.GRID)[:relief.SHAPE[0], :, 3] / 255
        self._sea = relief.sea_colour(coverage, warp)
        self._shade = relief.land_shade(warp)

    def picture(self, scale):
        """The map at 1 or 2 device pixels a pixel, as an Image."""
        rows = relief.HEIGHT * scale
        canvas = np.zeros((525 * scale, 750 * scale, 3))
        canvas[:rows] = at_scale(self._sea, scale)
        canvas = over(canvas, rasterise(self._sea_names, scale))
        ground = rasterise(self._ground, scale)
        ground[:rows, :, :3] *= at_scale(self._shade, scale)[..., None]
        canvas = over(canvas, np.clip(ground, 0, 255))
        canvas = over(canvas, rasterise(self._ink, scale))
        lay_pictures(canvas, scale)
        return Image.fromarray(np.clip(canvas + .5, 0, 255).astype(np.uint8))
