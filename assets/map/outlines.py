# SPDX-License-Identifier: MIT
"""Territories in degrees -> shared borders and coasts in pixels -> each territory's outline."""
import heapq
import math

from shapely.geometry import LineString, Polygon
from shapely.ops import linemerge, polygonize, unary_union

from world import PAIRS

STEP = 0.6            # degrees between points before the warp, so that it can bend long edges
DETAIL = 0.16         # square pixels: a smaller triangle is no detail
SMALLEST_ISLAND = 2.2 # square pixels
SMALLEST_LAKE = 3.0
MEETING = 1.0         # pixels: a shorter border between territories that are no neighbours becomes a point


def densify(line):
    out = [line[0]]
    for a, b in zip(line, line[1:]):
        count = int(max(abs(a[0] - b[0]), abs(a[1] - b[1])) / STEP)
        for k in range(1, count + 1):
            share = k / (count + 1)
            out.append((a[0] + (b[0] - a[0]) * share, a[1] + (b[1] - a[1]) * share))
        out.append(b)
    return out


def triangle(a, b, c):
    return abs((b[0] - a[0]) * (c[1] - a[1]) - (c[0] - a[0]) * (b[1] - a[1])) / 2


def simplify(line, area):
    """Visvalingam: drops the point with the smallest triangle until none is below area. Ends stay, and a
    ring keeps at least four points."""
    count = len(line)
    before, after = list(range(-1, count - 1)), list(range(1, count + 1))
    size = {i: triangle(*line[i - 1:i + 2]) for i in range(1, count - 1)}
    heap = [(area_, i) for i, area_ in size.items()]
    heapq.heapify(heap)
    least = 4 if line[0] == line[-1] else 2
    while heap and len(size) + 2 > least:
        smallest, i = heapq.heappop(heap)
        if size.get(i) != smallest:
            continue
        if smallest >= area:
            break
        del size[i]
        a, b = before[i], after[i]
        after[a], before[b] = b, a
        for j in (a, b):
            if j in size:
                size[j] = max(smallest, triangle(line[before[j]], line[j], line[after[j]]))
                heapq.heappush(heap, (size[j], j))
    return [line[0]] + [line[i] for i in sorted(size)] + [line[-1]]


def round_off(line):
    """One round of corner cutting. Ends stay; a ring has no end."""
    ring = line[0] == line[-1]
    out = [] if ring else [line[0]]
    for a, b in zip(line, line[1:]):
        out.append((a[0] * .75 + b[0] * .25, a[1] * .75 + b[1] * .25))
        out.append((a[0] * .25 + b[0] * .75, a[1] * .25 + b[1] * .75))
    out.append(out[0] if ring else line[-1])
    return out


def to_tenths(line):
    """On the grid of tenths of a pixel, without points that bend the line by less than that."""
    rounded = [(round(x * 10) / 10, round(y * 10) / 10) for x, y in line]
    distinct = [p for i, p in enumerate(rounded) if i == 0 or p != rounded[i - 1]]
    return simplify(distinct, 0.04) if len(distinct) > 2 else distinct


def borders(territories):
    """(a, b) -> lines in degrees between territories a and b; a = 0 is water."""
    owners = {}
    for t, shape in territories.items():
        for part in getattr(shape, 'geoms', [shape]):
            for ring in [part.exterior, *part.interiors]:
                for a, b in zip(ring.coords, ring.coords[1:]):
                    owners.setdefault((a, b) if a < b else (b, a), set()).add(t)
    groups = {}
    for edge, sides in owners.items():
        key = tuple(sorted(sides)) if len(sides) == 2 else (0, *sides)
        groups.setdefault(key, []).append(LineString(edge))
    merged = {key: linemerge(edges) for key, edges in sorted(groups.items())}
    return {key: [list(line.coords) for line in getattr(lines, 'geoms', [lines])] for key, lines in merged.items()}


def collapse(arcs):
    """Merges into one point each short border between territories that are no neighbours, where four meet."""
    needless = [(pair, line) for pair, lines in arcs.items() if pair[0] and pair not in PAIRS
                for line in lines if LineString(line).length < MEETING]
    meetings = [line[0] for _, line in needless]

    def pull(point):
        return next((meeting for meeting in meetings if math.dist(point, meeting) < MEETING), point)

    out = {}
    for pair, lines in arcs.items():
        for line in lines:
            if (pair, line) not in needless:
                pulled = [pull(point) for point in line]
                kept = [p for i, p in enumerate(pulled) if i == 0 or p != pulled[i - 1]]
                if len(kept) > 1:
                    out.setdefault(pair, []).append(kept)
    return out


def arcs_in_pixels(territories, warp):
    """Like borders(), in pixels, simplified once for both sides, without the smallest islands."""
    arcs = {}
    for key, lines in borders(territories).items():
        for line in lines:
            bent = warp.points(densify(line))
            if line[0] == line[-1]:
                bent[-1] = bent[0]
                if key[0] == 0 and Polygon(bent).area < SMALLEST_ISLAND:
                    continue
            drawn = to_tenths(round_off(simplify(bent, DETAIL)))
            if len(drawn) > 1:
                arcs.setdefault(key, []).append(drawn)
    return collapse(arcs)


def rough_land(shape, warp):
    parts = []
    for part in getattr(shape, 'geoms', [shape]):
        rings = [warp.points(densify(list(ring.coords))) for ring in [part.exterior, *part.interiors]]
        parts.append(Polygon(rings[0], rings[1:]).buffer(0))
    return unary_union(parts)


def lands(territories, arcs, warp):
    """Territory number -> its land in pixels, put together from the arcs."""
    rough = {t: rough_land(shape, warp) for t, shape in territories.items()}
    faces = {t: [] for t in territories}
    for face in polygonize(unary_union([LineString(line) for lines in arcs.values() for line in lines])):
        for t, shape in rough.items():
            if face.intersects(shape) and face.intersection(shape).area > 0.5 * face.area:
                faces[t].append(face)
    return {t: unary_union(found) for t, found in faces.items()}


def lakes_in_pixels(lakes, warp):
    out = []
    for lake in lakes:
        if lake.area > 0.6:
            ring = warp.points(list(lake.exterior.coords))
            ring[-1] = ring[0]
            if Polygon(ring).area > SMALLEST_LAKE:
                out.append(to_tenths(round_off(simplify(ring, DETAIL))))
    return out


def rivers_in_pixels(rivers, warp):
    return [to_tenths(round_off(simplify(warp.points(densify(river)), DETAIL)))
            for river in rivers if len(river) > 2]


def rings_of(shape):
    """Every ring of a (multi)polygon, without the repeated last point."""
    return [list(ring.coords)[:-1] for part in getattr(shape, 'geoms', [shape])
            for ring in [part.exterior, *part.interiors]]


def write(lines, path):
    """Each line is (numbers, points): the numbers, how many points, then x and y of each in tenths of a pixel."""
    rows = [[*numbers, len(points), *(round(value * 10) for point in points for value in point)]
            for numbers, points in lines]
    path.write_text(''.join(' '.join(map(str, row)) + '\n' for row in rows))


def write_outlines(land, path):
    write([([t], ring) for t in sorted(land) for ring in sorted(rings_of(land[t]), key=len, reverse=True)], path)


def write_signs(signs, path):
    """signs is [(territory, box)]."""
    corners = [(t, shape.bounds) for t, shape in signs]
    write([([t], [(west, north), (east, south)]) for t, (west, north, east, south) in corners], path)


def write_borders(arcs, path):
    write([(pair, line) for pair in sorted(arcs) if pair[0] for line in arcs[pair]], path)
