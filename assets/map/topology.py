# SPDX-License-Identifier: MIT
"""Reads a TopoJSON file."""
import json


def load(path):
    """Layer name -> [(id, properties, parts)], in degrees. A part is a list of rings, or for a layer of
    lines a list of one line; rings and lines are lists of (lon, lat)."""
    world = json.loads(path.read_text())
    (sx, sy), (tx, ty) = world['transform']['scale'], world['transform']['translate']
    arcs = []
    for deltas in world['arcs']:
        x = y = 0
        arc = []
        for dx, dy in deltas:
            x, y = x + dx, y + dy
            arc.append((round(x * sx + tx, 5), round(y * sy + ty, 5)))
        arcs.append(arc)

    def join(indices):
        points = []
        for index in indices:
            arc = arcs[index] if index >= 0 else arcs[~index][::-1]
            points += arc[1:] if points else arc
        return points

    def parts(shape):
        nested = {'Polygon': [shape['arcs']], 'MultiPolygon': shape['arcs'],
                  'LineString': [[shape['arcs']]], 'MultiLineString': [shape['arcs']]}[shape['type']]
        return [[join(ring) for ring in part] for part in nested]

    return {name: [(shape.get('id'), shape.get('properties', {}), parts(shape))
                   for shape in layer['geometries']]
            for name, layer in world['objects'].items()}
