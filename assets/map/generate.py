#!/usr/bin/python3 -B
# SPDX-License-Identifier: MIT
"""Makes the world map: ../pictures/map.png, ../pictures/map@2x.png, outlines.txt and borders.txt, the same to the byte
each time, and checks them. Ends with status 1 and a list of what is wrong if a check fails."""
import pathlib
import sys

import check
import outlines
import picture
import territories
from warp import Warp

HERE = pathlib.Path(__file__).parent


def main():
    in_degrees, lakes, rivers = territories.load()
    warp = Warp()
    arcs = outlines.arcs_in_pixels(in_degrees, warp)
    land = outlines.lands(in_degrees, arcs, warp)
    outlines.write_outlines(land, HERE / 'outlines.txt')
    outlines.write_borders(arcs, HERE / 'borders.txt')
    printer = picture.Printer(land, arcs, outlines.lakes_in_pixels(lakes, warp),
                              outlines.rivers_in_pixels(rivers, warp), warp)
    for name, scale in (('map.png', 1), ('map@2x.png', 2)):
        image = printer.picture(scale)
        image.save(picture.PICTURES / name, optimize=True)
    faults = check.run(land, arcs, warp, image)
    for fault in faults:
        print('wrong:', fault)
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
