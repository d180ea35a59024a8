"""Plain models of ellipsoids, random draws, sphere samplers and tree searches."""

import bisect
import math

import numpy as np
from scipy.spatial.transform import Rotation


def rotation(azimuth, dip, rake=0.0):
    turn = Rotation.from_euler("ZYX", [90.0 - azimuth, -dip, rake], degrees=True)
    return turn.as_matrix().T


def anisotropy(ranges, angles):
    return rotation(*angles) / [[r if r > 1e-30 else 1.0] for r in ranges]


def _behind(v, axis):
    unit = v / np.linalg.norm(v)
    return np.linalg.norm(unit - axis) - np.linalg.norm(unit + axis)


def _points_away(v, *axes):
    behinds = [_behind(v, axis) for axis in axes]
    return next((b for b in behinds if abs(b) > 1e-8), behinds[-1]) > 0.0


def orthogonal_rows(matrix, sort=True):
    q, r = np.linalg.qr(np.transpose(matrix))
    v1, v2, v3 = (q * np.diag(r)).T
    x, y, z = np.eye(3)
    flips = [_points_away(v1, x, y, z), _points_away(v2, y, x, z)]
    flips.append(_points_away(v3, z) if abs(_behind(v3, z)) > 1e-8 else _points_away(v2, x, y))
    return np.array([v1, v2, v3]) * np.where(np.array(flips) & sort, -1.0, 1.0)[:, None]


def sorted_rows(matrix):
    return orthogonal_rows(matrix[np.argsort(np.linalg.norm(matrix, axis=1), kind="stable")])


def ranges_and_angles(matrix):
    rows = sorted_rows(matrix)
    ranges = 1.0 / np.linalg.norm(rows, axis=1)
    q = rows * ranges[:, None]
    dip, rake = math.asin(max(-1.0, min(1.0, q[0, 2]))), 0.0
    if abs(q[0, 2]) < 0.99999999:
        turn, rake = math.atan2(q[0, 1], q[0, 0]), math.atan2(q[1, 2], q[2, 2])
    elif dip < 0.0:
        turn = math.atan2(q[2, 1], q[2, 0])
    else:
        turn = math.pi - math.atan2(-q[2, 1], q[2, 0])
    return [*ranges, (90.0 - math.degrees(turn)) % 360.0, math.degrees(dip), math.degrees(rake)]


class Draws:
    """Draws over the words of numpy's Mersenne Twister; the second of two normals is kept."""

    def __init__(self, seed):
        self._bits, self._second = np.random.MT19937(), None
        self._bits._legacy_seeding(seed % 2**32)

    def uniform(self):
        first, second = (int(word) for word in self._bits.random_raw(2))
        return ((second << 21) + (first >> 11)) * 2.0**-53

    def normal(self):
        if self._second is not None:
            value, self._second = self._second, None
            return value
        while True:
            v1, v2 = 2.0 * self.uniform() - 1.0, 2.0 * self.uniform() - 1.0
            if v1 * v1 + v2 * v2 < 1.0 and v1 != 0.0 and v2 != 0.0:
                break
        # The squared radius is exponential: no rescaling is needed when it is not squared first.
        radius = math.hypot(v1, v2)
        factor = math.sqrt(-4.0 * math.log(radius)) / radius
        self._second = factor * v2
        return factor * v1


def _halton_direction(index):
    def mirrored(base):
        digits = np.base_repr(max(index, 0), base)
        return int(digits[::-1], base) / base ** len(digits)

    phi, z = 2.0 * math.pi * mirrored(2), mirrored(3)
    radius = math.sqrt(1.0 - z * z)
    return np.array([radius * math.cos(phi), radius * math.sin(phi), z])


def sphere_points(size, seed):
    draws = Draws(seed)
    turn = rotation(360.0 * draws.uniform(), -90.0 * draws.uniform(), 360.0 * draws.uniform())
    signs = [1.0] * size + [-1.0] * size
    return np.array([s * _halton_direction(seed + i) for i, s in enumerate(signs)]) @ turn.T


class Found:
    """The k nearest points, of equal ones those met first; or all within a radius, as met."""

    def __init__(self, k=None, radius=math.inf):
        self.k, self.threshold = k, radius * radius
        self.distances, self.ids = [], []

    def worst(self):
        return self.distances[-1] if len(self.ids) == self.k else self.threshold

    def add(self, distance, point_id):
        place = bisect.bisect_right(self.distances, distance) if self.k else len(self.ids)
        self.distances.insert(place, distance)
        self.ids.insert(place, point_id)
        if self.k:
            del self.distances[self.k :], self.ids[self.k :]


class Tree:
    """A k-d tree with middle splits and ten points a leaf, whose search prunes by a factor."""

    def __init__(self, points, ids):
        self.points, self.ids = points, list(ids)
        self.box = self._tight_box(0, len(self.ids))
        self.root = self._divide(0, len(self.ids), self.box)

    def _tight_box(self, left, right):
        columns = zip(*(self.points[i] for i in self.ids[left:right]))
        return [(min(column), max(column)) for column in columns]

    def _divide(self, left, right, box):
        if right - left <= 10:
            return left, right
        axis, cut, middle = self._split(left, right, box)
        lower, upper = list(box), list(box)
        lower[axis], upper[axis] = (box[axis][0], cut), (cut, box[axis][1])
        low, high = self._divide(left, middle, lower), self._divide(middle, right, upper)
        low_end = self._tight_box(left, middle)[axis][1]
        return axis, low_end, self._tight_box(middle, right)[axis][0], low, high

    def _split(self, left, right, box):
        spans, tight = [high - low for low, high in box], self._tight_box(left, right)
        wide = [a for a in range(3) if spans[a] > (1 - 0.00001) * max(spans)] or [0]
        axis = max(wide, key=lambda a: tight[a][1] - tight[a][0])
        cut = min(max((box[axis][0] + box[axis][1]) / 2, tight[axis][0]), tight[axis][1])
        equal = self._part(left, right, 0, lambda i: self.points[i][axis] < cut)
        above = self._part(left, right, equal, lambda i: self.points[i][axis] <= cut)
        return axis, cut, left + min(max((right - left) // 2, equal), above)

    def _part(self, begin, end, left, goes_left):
        ids, right = self.ids, end - begin - 1
        while True:
            while left <= right and goes_left(ids[begin + left]):
                left += 1
            while right and left <= right and not goes_left(ids[begin + right]):
                right -= 1
            if left > right or not right:
                return left
            ids[begin + left], ids[begin + right] = ids[begin + right], ids[begin + left]
            left, right = left + 1, right - 1

    def search(self, center, factor, found):
        gaps = [max(low - c, c - high, 0.0) ** 2 for c, (low, high) in zip(center, self.box)]
        self._visit(self.root, center, factor, found, sum(gaps), gaps)

    def _visit(self, node, center, factor, found, gap, gaps):
        if len(node) == 2:
            worst = found.worst()
            for i in self.ids[slice(*node)]:
                dx, dy, dz = (c - p for c, p in zip(center, self.points[i]))
                distance = dx * dx + dy * dy + dz * dz
                if distance < worst:
                    found.add(distance, i)
            return
        axis, low_end, high_start, near, far = node
        c, edge = center[axis], high_start
        if (c - low_end) + (c - high_start) >= 0:
            near, far, edge = far, near, low_end
        self._visit(near, center, factor, found, gap, gaps)
        cut = (c - edge) * (c - edge)
        gap = gap + cut - gaps[axis]
        if gap * factor <= found.worst():
            gaps = [cut if a == axis else g for a, g in enumerate(gaps)]
            self._visit(far, center, factor, found, gap, gaps)


def forest(points):
    """The trees of a growing index right after it was built, in the order in which it asks them."""
    members = {}
    for i in range(len(points)):
        position = next(p for p in range(len(points)) if p not in members)
        members[position] = [j for p in range(position) for j in members.pop(p)] + [i]
    return [Tree(points, members[position]) for position in sorted(members)]
