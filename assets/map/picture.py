"""Prints the layers over one another."""
import io
import subprocess

import numpy as np
from PIL import Image

import drawing
import relief


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
        return Image.fromarray(np.clip(canvas + .5, 0, 255).astype(np.uint8))
