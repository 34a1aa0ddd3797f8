"""Proofs about the printed map that need its geometry or its pixels. Each returns a list of faults."""
import math

import numpy as np
from shapely.geometry import LineString, Point, box
from shapely.ops import unary_union

import drawing
import labels
import looks
from world import PAIRS, WORLD

# The longest count, 999/99, is 27.5 pixels wide and stands in a line of 17 pixels; a pixel more for its rim. The
# height allows for letters at the top of their line as well as in its middle.
COUNT = (-15, 13, 15, 24.5)
MARKER = (-10, 0, 10, 10)           # with the icon beside it
ROUTE_SEEN = 4.0                    # pixels of every sea route that nothing may cover
ON_OTHERS = .35                     # share of a badge that may lie on the land of others
POINTER = 4.5                       # pixels between the edge of a badge and its land


def around(entry, sides):
    return box(entry.x + sides[0], entry.y + sides[1], entry.x + sides[2], entry.y + sides[3])


def centred(x, y, width, height):
    return box(x - width / 2, y - height / 2, x + width / 2, y + height / 2)


def badges():
    return {t: centred(x, y, *looks.badge_size(t)) for t, (x, y) in labels.NUMBERS.items()}


def derricks():
    return {t: centred(x, y, looks.DERRICK[0] + 2.6, looks.DERRICK[1] + 1.4) for t, (x, y) in labels.DERRICKS.items()}


def board_pictures():
    """What the program lays over the map at most: [(what, box)]."""
    return ([('the marker of %d' % t, around(entry, MARKER)) for t, entry in WORLD.items()]
            + [('the count of %d' % t, around(entry, COUNT)) for t, entry in WORLD.items()])


def folds(warp):
    lon, lat = np.meshgrid(np.arange(-168, 191, 1.0), np.arange(-56, 83.6, 1.0))
    return ['the projection folds'] if min(values.min() for values in warp.stretch(lon, lat)) <= 0 else []


def misplaced_land(land):
    faults = ['the marker of %d is not on its land' % t for t, entry in WORLD.items()
              if not all(land[t].contains(Point(entry.x, entry.y + down)) for down in (0, 5))]
    west, north, east, south = unary_union(list(land.values())).bounds
    if west < 10 or east > 740 or north < 10 or south > 391:
        faults.append('land outside its frame: %s' % [west, north, east, south])
    return faults


def wrong_borders(land, warp):
    drawn = {(a, b) for a in land for b in land
             if a < b and land[a].intersects(land[b]) and land[a].intersection(land[b]).length > 0}
    joined = {pair for pair, *_ in drawing.routes(land, warp)}
    faults = ['%d and %d touch but are no neighbours' % pair for pair in drawn - PAIRS]
    faults += ['a sea route joins %d and %d, which have a border or are no neighbours' % pair
               for pair in joined - (PAIRS - drawn)]
    return faults + ['nothing joins %d and %d' % pair for pair in PAIRS - drawn - joined]


def covered_signs():
    """Badges and derricks that would lie under the board's pictures or meet each other."""
    signs = [('the number %d' % t, shape) for t, shape in badges().items()]
    signs += [('the derrick of %d' % t, shape) for t, shape in derricks().items()]
    faults = ['%s and %s overlap' % (a, b) for a, shape in signs for b, other in board_pictures()
              if shape.intersection(other).area > 0]
    return faults + ['%s and %s overlap' % (a, b) for i, (a, shape) in enumerate(signs) for b, other in signs[:i]
                     if shape.intersection(other).area > 0]


def lost_signs(land):
    """Badges that do not belong to their land at a glance, derricks off their land."""
    faults = []
    for t, shape in badges().items():
        others = sum(shape.intersection(land[other]).area for other in land if other != t) / shape.area
        if others > ON_OTHERS or shape.distance(land[t]) > POINTER:
            faults.append('the number %d: %.0f%% on the land of others, %.1f pixels from its own'
                          % (t, others * 100, shape.distance(land[t])))
    oil = {t for t, entry in WORLD.items() if entry.oil}
    if set(labels.DERRICKS) != oil or set(labels.NUMBERS) != set(WORLD):
        faults.append('a number or derrick is missing or too many')
    return faults + ['the derrick of %d is not on its land' % t for t, (x, y) in labels.DERRICKS.items()
                     if not land[t].contains(Point(x, y))]


def curve(p, middle, q):
    steps = [k / 24 for k in range(25)]
    return LineString([tuple((1 - s)**2 * a + 2 * s * (1 - s) * b + s**2 * c for a, b, c in zip(p, middle, q))
                       for s in steps])


def hidden_routes(land, warp):
    covers = unary_union([shape for _, shape in board_pictures()] + list(badges().values()))
    faults = []
    for pair, p, middle, q in drawing.routes(land, warp):
        seen = curve(p, middle, q).difference(covers).length
        if seen < ROUTE_SEEN:
            faults.append('of the sea route %d-%d only %.1f pixels are seen' % (*pair, seen))
    return faults


def luminance(pixels):
    share = pixels / 255
    linear = np.where(share <= .04045, share / 12.92, ((share + .055) / 1.055) ** 2.4)
    return linear @ [.2126, .7152, .0722]


def pale_ground(image):
    """Counts whose white letters would not stand out: 4.5 to 1 over the middle of their ground, 3 to 1 over
    nearly all of it."""
    scale = image.width // 750
    bright = luminance(np.array(image, float))
    faults = []
    for t, entry in WORLD.items():
        left, top, right, bottom = (math.floor(side * scale) for side in around(entry, COUNT).bounds)
        contrast = 1.05 / (bright[top:bottom, left:right] + .05)
        if np.median(contrast) < 4.5 or np.percentile(contrast, 4) < 3:
            faults.append('the count of %d: contrast %.2f, at the palest %.2f'
                          % (t, np.median(contrast), np.percentile(contrast, 4)))
    return faults


def run(land, warp, image):
    """Every fault found, in words; image is the printed map."""
    return (folds(warp) + misplaced_land(land) + wrong_borders(land, warp) + covered_signs()
            + lost_signs(land) + hidden_routes(land, warp) + pale_ground(image))
