#!/usr/bin/python3 -B
# SPDX-License-Identifier: MIT
"""Simulates colour vision deficiencies. `./sight.py PICTURE FOLDER` shows a picture of the board in grey and to protan, deutan and
tritan eyes."""
import pathlib
import re
import sys

import numpy as np
from PIL import Image

SOURCE = pathlib.Path(__file__).parents[2] / 'ui' / 'windows' / 'owner_colours.h'

# On linear light, for a full loss of one kind of cone: Machado, Oliveira and Fernandes, "A Physiologically-based Model
# for Simulation of Color Vision Deficiency", 2009, table of severity 1.0.
EYES = {
    'normal': np.eye(3),
    'protan': np.array([[.152286, 1.052583, -.204868], [.114503, .786281, .099216], [-.003882, -.048116, 1.051998]]),
    'deutan': np.array([[.367322, .860646, -.227968], [.280085, .672501, .047413], [-.011820, .042940, .968881]]),
    'tritan': np.array([[1.255528, -.076749, -.178779], [-.078411, .930809, .147602], [.004733, .691367, .303900]]),
}
GREY = np.array([[.2126, .7152, .0722]] * 3)
TO_XYZ = np.array([[.4124564, .3575761, .1804375], [.2126729, .7151522, .0721750], [.0193339, .1191920, .9503041]])


def owner_tints():
    """The land's colours from the program's own source: the five players', then nobody's."""
    found = re.findall(r'\{0x([0-9a-f]{6}), 0x[0-9a-f]{6}\}', SOURCE.read_text())
    assert len(found) == 6, 'the table in %s is not read' % SOURCE
    return np.array([[int(tint[i:i + 2], 16) for i in (0, 2, 4)] for tint in found], float)


def seen(pixels, eye):
    """Colours from 0 to 255 transformed by `eye`, a matrix on linear light."""
    share = pixels / 255
    linear = np.where(share <= .04045, share / 12.92, ((share + .055) / 1.055) ** 2.4)
    linear = np.clip(linear @ eye.T, 0, 1)
    return 255 * np.where(linear <= .0031308, linear * 12.92, 1.055 * linear ** (1 / 2.4) - .055)


def lab(colours):
    """CIE Lab under D65 of colours from 0 to 255."""
    share = colours / 255
    linear = np.where(share <= .04045, share / 12.92, ((share + .055) / 1.055) ** 2.4)
    ratios = linear @ TO_XYZ.T / [.95047, 1, 1.08883]
    x, y, z = np.moveaxis(np.where(ratios > 216 / 24389, np.cbrt(ratios), (24389 / 27 * ratios + 16) / 116), -1, 0)
    return np.stack([116 * y - 16, 500 * (x - y), 200 * (y - z)], -1)


def main():
    board, folder = Image.open(sys.argv[1]).convert('RGB'), pathlib.Path(sys.argv[2])
    for name, eye in dict(EYES, grey=GREY).items():
        Image.fromarray(seen(np.array(board, float), eye).round().astype(np.uint8)).save(folder / (name + '.png'))


if __name__ == '__main__':
    main()
