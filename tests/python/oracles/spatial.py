"""Plain models of ellipsoids, sphere samplers, drill holes and tree searches."""

import bisect
import math
import sys

import numpy as np
from oracles.random_draws import Draws
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
    decided = [behind for behind in (_behind(v, axis) for axis in axes[:-1]) if abs(behind) > 1e-8]
    return [*decided, _behind(v, axes[-1])][0] > 0.0


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


def _halton_direction(index):
    def mirrored(base):
        digits = np.base_repr(max(index, 0), base)
        return int(digits[::-1], base) / base ** len(digits)

    phi, z = 2.0 * math.pi * mirrored(2), mirrored(3)
    return np.array([math.cos(phi), math.sin(phi), 0.0]) * math.sqrt(1.0 - z * z) + [0.0, 0.0, z]


def sphere_points(size, seed, both_halves):
    draws = Draws(seed)
    turn = rotation(360.0 * draws.uniform(), -90.0 * draws.uniform(), 360.0 * draws.uniform())
    points = [_halton_direction(seed + i) for i in range(size)]
    if both_halves:
        points += [-_halton_direction(seed + size + i) for i in range(size)]
    return np.array(points) @ turn.T


def box_holes(bottom, top, n_samples, min_len, max_len, n_holes, seed):
    draws = Draws(seed)
    samples = []
    for hole in range(1, n_holes + 1):
        plan = [draws.uniform(bottom[a], top[a]) for a in (0, 1, 0, 1)]
        foot, collar = np.array([*plan[:2], bottom[2]]), np.array([*plan[2:], top[2]])
        step = draws.uniform(min_len, max_len) * (foot - collar) / n_samples
        samples += [(collar + i * step, hole) for i in range(n_samples)]
    return samples


def campaign_holes(sides, n_holes, azimuths, dips, lengths, distances, counts, back, seed):
    draws = Draws(seed)
    samples = []
    for hole in range(n_holes):
        collar = np.array([draws.uniform() * extent for extent in (*sides, distances[1])])
        collar[2] += distances[0]
        azimuth, dip, length, count = (draws.uniform(*b) for b in (azimuths, dips, lengths, counts))
        step = length / int(count) * rotation(azimuth, dip)[0]
        samples += [(back @ (collar + i * step), hole) for i in range(int(count))]
    return samples


class Found:
    """The k nearest points, of equal ones those met first; or all within a radius, as met."""

    def __init__(self, k=None, radius=0.0):
        self.k, self.threshold = k, radius * radius
        self.distances, self.ids = [], []

    def worst(self):
        if self.k is None:
            return self.threshold
        return self.distances[-1] if len(self.ids) == self.k else sys.float_info.max

    def add(self, distance, point_id):
        by_count = self.k is not None
        place = bisect.bisect_right(self.distances, distance) if by_count else len(self.ids)
        self.distances.insert(place, distance)
        self.ids.insert(place, point_id)
        if by_count:
            del self.distances[self.k :], self.ids[self.k :]


class Tree:
    """A k-d tree with middle splits and ten points a leaf, whose search prunes by a factor."""

    def __init__(self, points, ids):
        self.points, self.ids = points, list(ids)
        self.box = self._tight_box(0, len(self.ids))
        self.root, _ = self._divide(0, len(self.ids), self.box)

    def _tight_box(self, left, right):
        columns = zip(*(self.points[i] for i in self.ids[left:right]))
        return [(min(column), max(column)) for column in columns]

    def _divide(self, left, right, box):
        if right - left <= 10:
            return (left, right), self._tight_box(left, right)
        axis, cut, middle = self._split(left, right, box)
        lower, upper = list(box), list(box)
        lower[axis], upper[axis] = (box[axis][0], cut), (cut, box[axis][1])
        low, lower = self._divide(left, middle, lower)
        high, upper = self._divide(middle, right, upper)
        union = [(min(a[0], b[0]), max(a[1], b[1])) for a, b in zip(lower, upper)]
        return (axis, lower[axis][1], upper[axis][0], low, high), union

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
        gaps = [max(low - c, c - high, 0.0) for c, (low, high) in zip(center, self.box)]
        gaps = [gap * gap for gap in gaps]
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
