# SPDX-License-Identifier: MIT
"""Reads the world table from the program's source, so that it is defined only once."""
import collections
import pathlib
import re

Entry = collections.namedtuple('Entry', 'name x y oil neighbours')
SOURCE = pathlib.Path(__file__).parents[2] / 'state' / 'world.cpp'
ROW = re.compile(r'\{"([^"]+)", \d+, (\d+), (\d+), (true|false), \{([^}]*)\}\}')


def read():
    """Territory number (1 to 42) -> Entry; x and y are MapX and MapY, neighbours are numbers."""
    world = {}
    for name, x, y, oil, slots in ROW.findall(SOURCE.read_text()):
        neighbours = [int(slot) + 1 for slot in slots.split(',') if slot.strip().isdigit()]
        world[len(world) + 1] = Entry(name, int(x), int(y), oil == 'true', neighbours)
    assert len(world) == 42, 'the table in %s is not read' % SOURCE
    return world


WORLD = read()
PAIRS = {(a, b) for a in WORLD for b in WORLD[a].neighbours if a < b}
