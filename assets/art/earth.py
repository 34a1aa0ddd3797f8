# SPDX-License-Identifier: MIT
"""Coasts of the real earth, as seen from space and on flat charts."""
import math

from ink import HERE, polyline


def coasts():
    for line in (HERE / 'coast.txt').read_text().splitlines():
        yield [tuple(map(float, point.split(','))) for point in line.split()]


def densify(points, step):
    for (x0, y0), (x1, y1) in zip(points, points[1:] + points[:1]):
        pieces = max(1, math.ceil(max(abs(x1 - x0), abs(y1 - y0)) / step))
        for i in range(pieces):
            yield x0 + (x1 - x0) * i / pieces, y0 + (y1 - y0) * i / pieces


def thin(points, apart):
    kept = points[:1]
    for point in points[1:]:
        if math.dist(point, kept[-1]) >= apart:
            kept.append(point)
    return kept


class Globe:
    """An orthographic view centred over (lon, lat), drawn as a disc of radius r."""

    def __init__(self, lon, lat, cx, cy, r):
        self.lon, self.lat = math.radians(lon), math.radians(lat)
        self.cx, self.cy, self.r = cx, cy, r

    def project(self, lon, lat):
        """x, y and whether the place is on the near side."""
        l, p = math.radians(lon) - self.lon, math.radians(lat)
        x = math.cos(p) * math.sin(l)
        y = math.cos(self.lat) * math.sin(p) - math.sin(self.lat) * math.cos(p) * math.cos(l)
        z = math.sin(self.lat) * math.sin(p) + math.cos(self.lat) * math.cos(p) * math.cos(l)
        if z < 0:
            # Points on the far side are moved to the edge of the disc, so that outlines stay closed.
            reach = math.hypot(x, y) or 1
            x, y = x / reach, y / reach
        return self.cx + self.r * x, self.cy - self.r * y, z >= 0

    def land(self, smallest=0.0):
        """Filled outlines (even-odd); rings that span less than `smallest` pixels are left out."""
        out = []
        for ring in coasts():
            spots = [self.project(x, y) for x, y in densify(ring, 2)]
            if not any(near for _, _, near in spots):
                continue
            xs, ys = [s[0] for s in spots], [s[1] for s in spots]
            if max(max(xs) - min(xs), max(ys) - min(ys)) < smallest:
                continue
            out.append(polyline([(x, y) for x, y, _ in spots], True))
        return ''.join(out)

    def graticule(self, step=15):
        lines = [[(lon, lat) for lat in range(-90 + step, 91 - step, 3)] for lon in range(-180, 180, step)]
        lines += [[(lon, lat) for lon in range(-180, 181, 3)] for lat in range(-90 + step, 90, step)]
        out = []
        for line in lines:
            run = []
            for lon, lat in line:
                x, y, near = self.project(lon, lat)
                if near:
                    run.append((x, y))
                    continue
                if len(run) > 1:
                    out.append(polyline(run))
                run = []
            if len(run) > 1:
                out.append(polyline(run))
        return ''.join(out)


class Chart:
    """A flat chart: `scale` pixels a degree of latitude, true to shape at its middle, with
    (lon, lat) at pixel (cx, cy)."""

    def __init__(self, lon, lat, cx, cy, scale):
        self.lon, self.lat, self.cx, self.cy, self.scale = lon, lat, cx, cy, scale
        self.squeeze = math.cos(math.radians(lat))

    def project(self, lon, lat):
        return (self.cx + (lon - self.lon) * self.scale * self.squeeze,
                self.cy - (lat - self.lat) * self.scale)

    def land(self, width, height, smallest=2.0, apart=0.4):
        """Filled outlines of what is in view; points nearer than `apart` pixels are merged."""
        out = []
        for ring in coasts():
            for turn in (-360, 0, 360):
                spots = thin([self.project(x + turn, y) for x, y in ring], apart)
                xs, ys = [s[0] for s in spots], [s[1] for s in spots]
                inside = max(xs) > -5 and min(xs) < width + 5 and max(ys) > -5 and min(ys) < height + 5
                if inside and max(max(xs) - min(xs), max(ys) - min(ys)) >= smallest:
                    out.append(polyline(spots, True))
        return ''.join(out)

    def graticule(self, width, height, step):
        out = []
        for lon in range(-540, 541, step):
            x = self.project(lon, 0)[0]
            if 0 < x < width:
                out.append(polyline([(x, 0), (x, height)]))
        for lat in range(-90, 91, step):
            y = self.project(0, lat)[1]
            if 0 < y < height:
                out.append(polyline([(0, y), (width, y)]))
        return ''.join(out)
