# SPDX-License-Identifier: MIT
"""Countries and states -> the 42 territories, as polygons in degrees that share their borders exactly."""
import pathlib
import random
import warnings

from shapely.geometry import LineString, Polygon
from shapely.ops import polygonize, unary_union
from shapely.strtree import STRtree

import topology
from geography import CELLS, GROW, REGION, UNNAMED

SOURCE = pathlib.Path(__file__).parent / 'world_50m.json'
GREAT_LAKES = {'USA': 8, 'CAN': 3}      # in no state: a country's share goes whole to one territory
DIVIDED_BY_STATES = ('USA', 'CAN', 'AUS')
TERRITORY_OF = {name: t for t, names in REGION.items() for name in names.split()}


def polygon(rings):
    """A valid polygon, or None for a part that has no area."""
    if not rings or len(set(rings[0])) < 3:
        return None
    shape = Polygon(rings[0], [hole for hole in rings[1:] if len(set(hole)) >= 3]).buffer(0)
    return shape if shape.area > 0 else None


def name_of(shape_id, shape):
    if shape_id is not None:
        return shape_id
    inside = shape.representative_point()
    return next((name for (lon, lat), name in UNNAMED.items()
                 if abs(inside.x - lon) + abs(inside.y - lat) < 1.5), None)


def shift_east(rings):
    """Russia's far east lies beyond 180 degrees; here it is drawn there."""
    return [[(lon + 360 if lon < -100 else lon, lat) for lon, lat in ring] for ring in rings]


def grow(name, rings):
    lon = sum(point[0] for point in rings[0]) / len(rings[0])
    lat = sum(point[1] for point in rings[0]) / len(rings[0])
    for names, (west, south, east, north), (cx, cy, scale, dx, dy) in GROW:
        if name in names and west < lon < east and south < lat < north:
            return [[(cx + (x - cx) * scale + dx, cy + (y - cy) * scale + dy) for x, y in ring] for ring in rings]
    return rings


def left_out(name, shape):
    """Far possessions, islets that a grown island would swallow, and the Kurils."""
    if shape.area < 0.15 and (name in ('FRA', 'NLD') or any(name in names for names, _, _ in GROW)):
        return True
    middle = shape.centroid
    return name == 'RUS' and 144.5 < middle.x < 157 and 43 < middle.y < 51


def shapes(layers):
    """[(name, polygon)] of the countries and of the states."""
    found = []
    for shape_id, _, parts in layers['countries']:
        for rings in parts:
            shape = polygon(rings)
            name = shape and name_of(shape_id, shape)
            if name and not left_out(name, shape):
                found.append((name, polygon(grow(name, shift_east(rings) if name == 'RUS' else rings))))
    for state, properties, parts in layers['subunits']:
        for shape in map(polygon, parts):
            if shape:
                found.append(('%s-%s' % (properties['gu'], state), shape))
    return found


def wander(a, b, depth=4):
    """The cut from a to b with random bends from a fixed seed, like those of a natural border; the
    cut from b to a is the same."""
    length = ((a[0] - b[0]) ** 2 + (a[1] - b[1]) ** 2) ** 0.5
    if depth == 0 or not 0.7 < length < 15:     # long edges close a cell outside the country
        return [a]
    first, last = sorted((a, b))
    aside = random.Random(repr((first, last))).uniform(-0.11, 0.11)
    middle = (round((a[0] + b[0]) / 2 + aside * (last[1] - first[1]), 5),
              round((a[1] + b[1]) / 2 - aside * (last[0] - first[0]), 5))
    return wander(a, middle, depth - 1) + wander(middle, b, depth - 1)


def cell_ring(points, bent):
    if not bent:
        return list(points)
    return [point for a, b in zip(points, points[1:] + points[:1]) for point in wander(a, b)]


def cells():
    """Divided country -> [(territory, ring)]."""
    return {name: [(t, cell_ring(points, name in ('RUS', 'CHN', 'CAN-NU'))) for t, points in rows]
            for name, rows in CELLS.items()}


def boundaries(used, divided):
    lines = []
    for _, shape in used:
        for part in getattr(shape, 'geoms', [shape]):
            lines += [LineString(ring.coords) for ring in [part.exterior, *part.interiors]]
    for name, rows in divided.items():
        near = unary_union([shape for other, shape in used if other == name]).buffer(0.05)
        lines += [LineString(ring + ring[:1]).intersection(near) for _, ring in rows]
    return unary_union(lines)


def owner(name, inside, divided):
    if name in divided:
        return next((t for t, cell in divided[name] if cell.contains(inside)), None)
    if name in DIVIDED_BY_STATES:
        return GREAT_LAKES.get(name) if inside.x > -93 else None
    return TERRITORY_OF.get(name)


def build(layers):
    """Territory number -> (multi)polygon in degrees."""
    known = set(TERRITORY_OF) | set(CELLS) | set(DIVIDED_BY_STATES)
    used = [(name, shape) for name, shape in shapes(layers) if name in known]
    rings = cells()
    divided = {name: [(t, Polygon(ring).buffer(0)) for t, ring in rows] for name, rows in rings.items()}
    names = {id(shape): name for name, shape in used}
    with warnings.catch_warnings():
        warnings.simplefilter('ignore')     # shapely 1.8 announces that its trees return indices in 2.0
        tree = STRtree([shape for _, shape in used])
    faces = {}
    for face in polygonize(boundaries(used, rings)):
        inside = face.representative_point()
        hits = {names[id(shape)] for shape in tree.query(inside) if shape.contains(inside)}
        # States (longer names) take precedence over their country.
        t = hits and owner(max(sorted(hits), key=len), inside, divided)
        if t and face.area > 1e-9:
            faces.setdefault(t, []).append(face)
    return {t: unary_union(faces[t]) for t in sorted(faces)}


def load():
    """(territories, lakes as polygons, rivers as lists of points), in degrees."""
    layers = topology.load(SOURCE)
    lakes = [polygon(rings) for _, _, parts in layers['lakes'] for rings in parts]
    lakes = [part for lake in lakes if lake for part in getattr(lake, 'geoms', [lake])]
    rivers = [line for _, _, parts in layers['rivers'] for part in parts for line in part]
    return build(layers), lakes, rivers
