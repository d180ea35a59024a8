"""Plain models of variograms, as rows (lag, value, pair count, direction id), and of rotations."""

import itertools
import math
from types import SimpleNamespace

import gravelox
import numpy as np
from oracles import spatial


class Engine(spatial.Draws):
    def word(self):
        return int(self._bits.random_raw())

    def below(self, n):
        while (product := self.word() * n) % 2**32 < 2**32 % n:
            pass
        return product >> 32

    def shuffle(self, values):
        for i in range(1, len(values)):
            j = self.below(i + 1)
            values[i], values[j] = values[j], values[i]


def rows_of(vario):
    columns = vario.variogram(), vario.npairs(), vario.direction_ids()
    return np.hstack([np.reshape(vario.lags(), (-1, 3)), np.transpose(columns)])


def of_grid(corners, locations, data, counts, n_rays, n_lags, bandwidth, seed, origin, rotation):
    length = gravelox.BoundingBox(gravelox.Rotation(*rotation).forward(corners)).length()
    unit = gravelox.CartesianGrid(length, counts, origin, rotation).transformation()
    at = np.trunc(np.reshape(unit.forward(locations - origin), (-1, 3)) * counts)
    cells = {tuple(c): v for c, v in zip(at, data) if np.all((c >= 0) & (c < counts))}
    cells = np.array([(*c, v) for c, v in cells.items() if v == v]).reshape(-1, 4)
    steps = (cells[:, None] - cells).reshape(-1, 4)
    directions, draws = gravelox.generate_random_sphere(n_rays, 0), Engine(seed)
    lengths = [sorted(abs(draws.normal()) for _ in range(n_lags)) for _ in directions]
    lags = [unit.backward(t * d) for d, row in zip(directions, lengths) for t in row]
    hood, radius = gravelox.Neighborhood(unit.forward(lags)), np.linalg.norm(1 / np.array(counts))
    sums = np.zeros((len(lags), 2))
    for cell in itertools.product(*(range(-(n // 2), n // 2 + 1) for n in counts)):
        pairs = steps[(steps[:, :3] == cell).all(axis=1), 3]
        near = hood.find_neighbors(np.divide(cell, counts), bandwidth * radius)
        sums[near] += pairs @ pairs / 2, len(pairs)
    found = [(*h, s / n, n, i // n_lags) for i, (h, (s, n)) in enumerate(zip(lags, sums)) if n]
    return found, directions


def extreme_points(locations, n_rays, seed):
    along = [(locations * ray).sum(axis=1) for ray in spatial.sphere_points(n_rays, seed)]
    ends = [place for row in along for place in (row.argmin(), row.argmax())]
    return locations[list(dict.fromkeys(ends))]


def _centers(values, n_centers, draws):
    n = len(values)
    if n_centers >= n - 1:
        return range(n)
    ranked = sorted(range(n), key=lambda i: (-values[i], i))
    pool = ranked[: math.ceil(n * (n_centers / n + 0.25))]
    draws.shuffle(pool)
    return [ranked[0], *pool[1:]][:n_centers]


def _frame(direction, tol, draws):
    along = 1.0
    while abs(abs(along) - 1.0) <= tol:
        other = np.array([draws.uniform() for _ in range(3)])
        along = other @ direction / np.linalg.norm(other)
    third = np.cross(direction, other) / np.linalg.norm(np.cross(direction, other))
    return np.array([direction, np.cross(third, direction), third])


DEFAULTS = {"n_centers": 60, "angle_tol": 5, "n_lags": 75, "lag_tol": 0.001, "bandwidth": 0.02}
DEFAULTS.update({"window_size": 2, "n_directions": 300, "tol": 0.01})


def of_samples(locations, values, **options):
    o, found, draws = SimpleNamespace(**{**DEFAULTS, **options}), [], Engine(123125)
    extent = np.ptp(extreme_points(locations, 300, draws.word()), axis=0)
    directions = spatial.sphere_points(o.n_directions, draws.word())
    engines = [Engine(draws.word()) for _ in directions]
    centers = _centers(values, o.n_centers, draws)
    for direction_id, (d, engine) in enumerate(zip(directions, engines)):
        scale = np.linalg.norm(np.where(extent > 0.0, extent, 1.0) * d)
        axes = _frame(d, o.tol, engine) / (scale * np.array([[3], [o.bandwidth], [o.bandwidth]]))
        hood = gravelox.Neighborhood(locations, gravelox.Ellipsoid(axes))
        lengths = np.sort([(abs(engine.normal()) + o.lag_tol) * scale for _ in range(o.n_lags)])
        sums, width = np.zeros((2, o.n_lags + 1)), o.window_size
        for center in centers:
            near = np.array(hood.find_neighbors(locations[center], 1.01))
            a, b = near[np.array(np.triu_indices(len(near), 1))]
            h, half_squares = locations[a] - locations[b], np.square(values[a] - values[b]) / 2
            length = np.linalg.norm(h, axis=1)
            with np.errstate(invalid="ignore"):
                kept = ~(np.degrees(np.arccos(abs(h @ d) / length)) > o.angle_tol)
            places = lengths.searchsorted(length[kept])
            sums[0] += np.bincount(places, half_squares[kept], o.n_lags + 1)
            sums[1] += np.bincount(places, minlength=o.n_lags + 1)
        for i, t in enumerate(lengths):
            s, n = sums[:, [*range(max(i - width, 0), min(i + width + 1, o.n_lags))]].sum(axis=1)
            found += [(*t * d, s / n, n, direction_id)] if n else []
    return found, directions


def smoothed(old, n_lags, max_n_neis, max_r, bandwidth, power_a, max_weight, n_picks, seed):
    """The mean pair counts are not truncated."""
    lags, values, counts, ids, directions = map(np.array, old)
    draws, hood, found = Engine(seed), gravelox.Neighborhood(lags), []
    for _ in range(n_picks):
        draws.word()
    search = {"max_size": max_n_neis} if max_n_neis >= 1 else {"max_radius": float(max_r)}
    for direction_id, d in enumerate(directions):
        own = np.linalg.norm(lags[ids == direction_id], axis=1)
        n, reach = n_lags if n_lags >= 1 else len(own), max(own, default=0.0)
        for t in sorted(abs(draws.normal()) * reach + 0.02 * max_r for _ in range(n)):
            near = np.array(hood.find_neighbors(t * d, **search), int)
            h = t * d - lags[near]
            dist, off = np.linalg.norm(h, axis=1), np.linalg.norm(h - np.outer(h @ d, d), axis=1)
            near, dist = (x[(dist <= max_r) & (off <= bandwidth)] for x in (near, dist))
            table, exact = np.array([values, counts])[:, near], dist <= 1e-30
            weights = counts[near] * np.where(exact, 1.0, dist) ** -power_a
            parts = [(1.0 - max_weight, ~exact), (max_weight, exact)]
            means = [(s, table[:, k] @ weights[k] / weights[k].sum()) for s, k in parts if k.any()]
            mean = means[0][1] if len(means) == 1 else sum(s * m for s, m in means)
            found += [(*t * d, *mean, direction_id)] if means else []
    return found, directions


def rotations(n_rays, seed, tol):
    draws, found = Engine(seed), []
    for u, other in itertools.combinations(spatial.sphere_points(n_rays, draws.word()), 2):
        v = other - (u @ other) * u
        found += [np.array([u, v, np.cross(u, v)])] if abs(u @ other) < tol else []
    draws.shuffle(found)
    return found


def ellipsoids(min_range, max_range, n_rays, n_scales, seed, tol):
    draws, found = Engine(seed), []
    for turn in rotations(n_rays, seed, tol):
        for t in spatial.sphere_points(n_scales, draws.word()):
            scale = draws.uniform() * (max_range - min_range) + min_range
            found.append(spatial.sorted_rows(turn / (scale * t[:, None])))
    draws.shuffle(found)
    return found


def tightest_box(locations, size, n_iterations, seed, use_fixed_samples, n_rays):
    """The turned extreme points and the rotation, as one thread finds it."""
    hull, master = extreme_points(locations, n_rays, seed), Engine(seed)
    draws, best, n = Engine(master.word()), (1e30, np.eye(3)), len(hull)
    fixed = [*range(n)] if size >= n else [master.word() % n for _ in range(size)]
    for i in range(n_iterations):
        scales = ((360, 0), (90, -90), (180, 0)) if i else ()
        turn = spatial.rotation(*([draws.uniform() * a + b for a, b in scales] or (90, 0)))
        points = hull[fixed if use_fixed_samples else [draws.word() % n for _ in fixed]]
        lengths = np.ptp(points @ turn.T, axis=0) if len(points) else np.zeros(3)
        best = min(best, (np.log(lengths + 1.0).sum(), turn), key=lambda pair: pair[0])
    return hull @ best[1].T, best[1]
