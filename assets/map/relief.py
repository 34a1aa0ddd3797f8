# SPDX-License-Identifier: MIT
"""The ground that the map is printed on: hillshade for the land, depth and hillshade for the sea. All arrays
cover the map's 750 x 428 pixels at GRID samples a pixel."""
import numpy as np
from PIL import Image, ImageDraw
from scipy import ndimage

from terrain import CRESTS, RIDGES, TRENCHES

GRID = 2
WIDTH, HEIGHT = 750, 428
SHAPE = (HEIGHT * GRID, WIDTH * GRID)

# Distance from the coast in pixels -> colour of the sea.
DEPTHS = [(0, '#557f93'), (2.0, '#446d86'), (6, '#345a76'), (14, '#284a66'), (34, '#1f3d58'), (80, '#193149'),
          (160, '#14283d')]
WATERLINES = [(3.0, .16), (6.2, .11), (10.2, .075), (15.0, .045)]   # distance, strength


def rgb(text):
    return np.array([int(text[i:i + 2], 16) for i in (1, 3, 5)], float)


def noise(seed, cell, octaves=4):
    """Smooth noise between -1 and 1, its largest bumps about cell pixels wide."""
    random = np.random.RandomState(seed)
    total, weight = np.zeros(SHAPE), 0.0
    for octave in range(octaves):
        size = cell * GRID / 2**octave
        rows, columns = int(SHAPE[0] / size) + 4, int(SHAPE[1] / size) + 4
        y, x = np.mgrid[0:SHAPE[0], 0:SHAPE[1]] / size + 1
        layer = ndimage.map_coordinates(random.rand(rows, columns) * 2 - 1, [y, x], order=3, mode='nearest')
        total += layer / 2**octave
        weight += 1 / 2**octave
    return total / weight * 1.6


def distance_to(lines, warp):
    """Distance in pixels of every sample from the lines."""
    image = Image.new('1', SHAPE[::-1], 1)
    draw = ImageDraw.Draw(image)
    for line in lines:
        dense = [(a[0] + (b[0] - a[0]) * k / 8, a[1] + (b[1] - a[1]) * k / 8)
                 for a, b in zip(line, line[1:]) for k in range(9)]
        draw.line([(x * GRID, y * GRID) for x, y in warp.points(dense)], fill=0)
    return ndimage.distance_transform_edt(np.array(image)) / GRID


def hillshade(height, steepness):
    """Light from the north-west; 0 on the flat, about -1 to 1."""
    dy, dx = np.gradient(height * steepness, 1 / GRID)
    return .7 * (dx + dy) / np.sqrt(1 + dx**2 + dy**2)


def land_shade(warp):
    """Factor for the colour of the land."""
    rough = noise(7, 9)
    ridged = 1 - np.abs(noise(8, 9, 3)) * 1.6
    mountains = np.zeros(SHAPE)
    for width, crests in CRESTS.items():
        away = distance_to(crests, warp) * (1 + .35 * rough)
        mountains = np.maximum(mountains, width * .36 * np.exp(-(away / width)**2))
    height = mountains * (.3 + .8 * ridged) + .2 * rough + .5 * noise(9, 40, 2)
    shade = hillshade(ndimage.gaussian_filter(height, .42 * GRID), .7)
    return 1 + .40 * np.clip(shade, -.7, .7) + .012 * np.minimum(mountains, 3)


def sea_colour(land, warp):
    """RGB of the sea; land is the coverage of each sample by land, 0 to 1."""
    away = ndimage.distance_transform_edt(land < .5) / GRID
    ragged = away * (1 + .22 * noise(3, 60) * np.clip(away / 12, 0, 1))
    at = [d for d, _ in DEPTHS]
    colours = np.array([rgb(colour) for _, colour in DEPTHS])
    sea = np.stack([np.interp(ragged, at, colours[:, i]) for i in range(3)], -1)
    ridges, trenches = distance_to(RIDGES, warp), distance_to(TRENCHES, warp)
    rough = noise(4, 12)
    rise = np.exp(-(ridges * (1 + .3 * rough) / 15)**2) - .7 * np.exp(-(trenches * (1 + .2 * rough) / 5)**2)
    floor = rise * (1 + .35 * noise(5, 7, 3)) * 2.2 + .30 * rough
    deep = np.clip((away - 4) / 14, 0, 1)
    shade = hillshade(ndimage.gaussian_filter(floor, GRID), .55) * deep
    sea *= (1 + .16 * shade + .07 * rise * deep)[..., None]
    for distance, strength in WATERLINES:
        line = np.exp(-((away - distance) / .42)**2) * strength
        sea += (np.array([190, 220, 228]) - sea) * line[..., None]
    y, x = np.mgrid[0:SHAPE[0], 0:SHAPE[1]]
    edge = np.minimum.reduce([x, SHAPE[1] - 1 - x, y, SHAPE[0] - 1 - y]) / GRID
    return sea * (1 - .22 * np.exp(-edge / 26))[..., None]
