# SPDX-License-Identifier: MIT
"""Longitude and latitude -> board pixels: a smooth projection, bent so that every anchor meets its marker."""
import numpy as np

from geography import ANCHOR, PINS
from world import WORLD

MIDDLE = 25.0   # the longitude that runs straight down
MARKER = 5      # half the marker's height: anchors meet the marker's middle


def _basis_x(lon, lat):
    u = lon - MIDDLE
    return np.stack([np.ones_like(u), u, u * lat, u * lat**2, u * lat**4 / 1e4], -1)


def _basis_y(lat):
    return np.stack([np.ones_like(lat), lat, lat**2, lat**3], -1)


def _kernel(a, b):
    squared = ((a[:, None, :] - b[None, :, :]) ** 2).sum(-1) / 1e4
    return np.where(squared > 0, squared * np.log(np.maximum(squared, 1e-12)) / 2, 0.0)


class Warp:
    """A pseudo-cylindrical projection fitted to the anchors by least squares, then a thin-plate spline on
    what is left, so that every anchor and pin lands exactly on its pixel."""

    def __init__(self):
        pairs = [(ANCHOR[t], (entry.x, entry.y + MARKER)) for t, entry in WORLD.items()]
        source, target = (np.array(side, float) for side in zip(*pairs))
        self._x = np.linalg.lstsq(_basis_x(*source.T), target[:, 0], rcond=None)[0]
        self._y = np.linalg.lstsq(_basis_y(source[:, 1]), target[:, 1], rcond=None)[0]
        source, target = (np.array(side, float) for side in zip(*pairs, *PINS))
        self._control = self._base(*source.T)
        plane = np.hstack([np.ones((len(source), 1)), self._control])
        system = np.block([[_kernel(self._control, self._control), plane], [plane.T, np.zeros((3, 3))]])
        self._weights = np.linalg.solve(system, np.vstack([target - self._control, np.zeros((3, 2))]))

    def _base(self, lon, lat):
        return np.stack([_basis_x(lon, lat) @ self._x, _basis_y(lat) @ self._y], -1)

    def __call__(self, lon, lat):
        """Arrays of degrees -> an array with (x, y) as its last axis."""
        base = self._base(np.asarray(lon, float), np.asarray(lat, float))
        flat = base.reshape(-1, 2)
        out = np.empty_like(flat)
        for start in range(0, len(flat), 20000):
            part = flat[start:start + 20000]
            plane = np.hstack([np.ones((len(part), 1)), part])
            out[start:start + 20000] = (part + _kernel(part, self._control) @ self._weights[:-3]
                                        + plane @ self._weights[-3:])
        return out.reshape(base.shape)

    def points(self, line):
        """A list of (lon, lat) -> a list of (x, y)."""
        return [tuple(point) for point in self(*np.array(line, float).T)]

    def stretch(self, lon, lat, step=0.05):
        """Pixels per degree: (area, x by lon, -y by lat); all positive where the map does not fold."""
        dx = (self(lon + step, lat) - self(lon - step, lat)) / (2 * step)
        dy = (self(lon, lat + step) - self(lon, lat - step)) / (2 * step)
        return dx[..., 1] * dy[..., 0] - dx[..., 0] * dy[..., 1], dx[..., 0], -dy[..., 1]
