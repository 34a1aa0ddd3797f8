# SPDX-License-Identifier: MIT
"""Checks of the map that need its geometry or its pixels. Each returns a list of faults."""
import numpy as np
from shapely.geometry import LineString, Point, box
from shapely.ops import unary_union

import drawing
import labels
import looks
import picture
import sight
from world import PAIRS, WORLD

# A count stands on a plate.
COUNT = (-15, 13, 15, 24.5)
MARKER = (-10, 0, 10, 10)           # with the icon beside it
ROUTE_SEEN = 4.0                    # pixels of every sea route that nothing may cover
ON_OTHERS = .35                     # share of a badge that may lie on the land of others
POINTER = 4.5                       # pixels between the edge of a badge and its land
LIKE = 20                           # distance in CIE Lab below which colours count as alike


def around(entry, sides):
    return box(entry.x + sides[0], entry.y + sides[1], entry.x + sides[2], entry.y + sides[3])


def centred(x, y, width, height):
    return box(x - width / 2, y - height / 2, x + width / 2, y + height / 2)


def badges():
    return {t: centred(x, y, *looks.badge_size(t)) for t, (x, y) in labels.NUMBERS.items()}


def derricks():
    return {t: centred(x, y, looks.DERRICK[0] + 2.6, looks.DERRICK[1] + 1.4) for t, (x, y) in labels.DERRICKS.items()}


def board_pictures():
    """All that the program may draw over the map: [(what, box)]."""
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


def wrong_lines(land, arcs):
    """Border lines that are not the whole border of their two territories."""
    faults = []
    for (a, b), lines in arcs.items():
        if a:
            shared, drawn = land[a].intersection(land[b]).length, sum(LineString(line).length for line in lines)
            if abs(shared - drawn) > .05 * shared:
                faults.append('the lines of %d and %d are %.1f long, their border %.1f' % (a, b, drawn, shared))
    return faults


def covered_signs():
    """Badges and derricks that would lie under the board's pictures or meet each other."""
    signs = [('the number %d' % t, shape) for t, shape in badges().items()]
    signs += [('the derrick of %d' % t, shape) for t, shape in derricks().items()]
    faults = ['%s and %s overlap' % (a, b) for a, shape in signs for b, other in board_pictures()
              if shape.intersection(other).area > 0]
    return faults + ['%s and %s overlap' % (a, b) for i, (a, shape) in enumerate(signs) for b, other in signs[:i]
                     if shape.intersection(other).area > 0]


def lost_signs(land):
    """Badges too far from their territory or mostly on others, derricks outside their territory."""
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


def land_and_sea(image, land):
    """The map must be transparent on land and opaque everywhere else."""
    alpha = np.array(image)[..., 3] / 255
    scale = image.width // 750
    coverage = picture.rasterise(drawing.coverage(land), scale)[..., 3] / 255
    faults = []
    if alpha[coverage == 0].min() < 1:
        faults.append('what lies under the sea is seen')
    if np.median(alpha[coverage == 1]) > .3:
        faults.append('the land hides its holder by %.2f' % np.median(alpha[coverage == 1]))
    return faults


def like_owners(image, land):
    """Owners whose land has too similar colours for one kind of colour vision."""
    scale = image.width // 750
    on_land = picture.rasterise(drawing.coverage(land), scale)[..., 3] == 255
    over = np.array(image, float)[on_land]
    alpha = over[:, 3:] / 255
    grounds = np.array([np.median(over[:, :3] * alpha + tint * (1 - alpha), axis=0) for tint in sight.owner_tints()])
    faults = []
    for name, eye in sight.EYES.items():
        colours = sight.lab(sight.seen(grounds, eye))
        for a in range(len(colours)):
            for b in range(a):
                apart = np.linalg.norm(colours[a] - colours[b])
                if apart < LIKE:
                    faults.append('to %s eyes the land of %d and %d differs by %.1f only' % (name, b, a, apart))
    return faults


def run(land, arcs, warp, image):
    """Every fault found, in words; image is the printed map."""
    return (folds(warp) + misplaced_land(land) + wrong_borders(land, warp) + wrong_lines(land, arcs) + covered_signs()
            + lost_signs(land) + hidden_routes(land, warp) + land_and_sea(image, land) + like_owners(image, land))
