"""Plain models of simulated fields, callables from an (n, 3) array to n values, on one thread."""

import itertools
import math

import numpy as np
from oracles import spatial
from oracles.estimation import SHAPES
from oracles.variography import Engine
from scipy import stats

ONES = itertools.repeat(1.0)


def words(seed, n):
    engine = Engine(seed)
    return [engine.word() for _ in range(n)]


def noise(amplitude, seed, thread=0):
    draws = Engine(words(seed, thread + 1)[-1])
    # The second value of each pair goes unused.
    return lambda points: [amplitude * (draws.normal(), draws.normal())[0] for _ in points]


def weighted(fields, weights=ONES):
    pairs = [*zip(weights, fields)]
    return lambda points: sum((np.multiply(w, f(points)) for w, f in pairs), 0.0 * points[:, 0])


def parts(model, seed, make, make_noise=noise):
    """What make(structure, seed) gives for each structure that is no nugget."""
    seeded = zip(model, words(seed, len(model)))
    return [make_noise(s[1] ** 0.5, w) if s[0] == "nugget" else make(s, w) for s, w in seeded]


def line(shape, amplitude, corners, direction, seed):
    draws, reach = Engine(seed), 3.0 if shape == "exponential" else 1.0
    if shape == "gaussian":
        frequency = math.sqrt(6.0 * sum(draws.normal() ** 2 for _ in range(3)))
        phase, amplitude = draws.uniform() * 2.0 * math.pi, amplitude * math.sqrt(2.0)
        return lambda points: amplitude * np.cos(points @ direction * frequency + phase)
    if shape == "exponential" and (n := 3 - int(draws.uniform() * 3.0)) > 1:  # a gamma draw
        direction = direction / (-math.log(math.prod(draws.uniform() for _ in range(n))) / 3.0)
    n = math.ceil(np.ptp(corners @ direction)) + 4
    if n > 10002 or shape == "nugget":
        return noise(amplitude, seed if shape == "nugget" else draws.word())
    origin = (corners @ direction).min() - draws.uniform()
    signs = np.array([-1.0 if draws.uniform() * reach < 0.5 else 1.0 for _ in range(n)])

    def value(points):
        x = points @ direction - origin
        i = np.clip(np.floor(x) + 1.0, 0, n - 1).astype(int)
        return amplitude * signs[i] * (x - i + 0.5) * math.sqrt(12.0)

    return value


def turning_bands(corners, structure, seed, size):
    (shape, sill, *metric), engine = structure, Engine(seed)
    units = spatial.sphere_points(size, engine.word() % 99999999)[:size]
    rest = shape, math.sqrt(sill / size), corners
    return weighted([line(*rest, d, engine.word()) for d in units @ spatial.anisotropy(*metric)])


def lines_covariance(shape, h):
    """Expected of turning bands; cells stay correlated where signs are not even."""
    if shape == "gaussian":
        return math.exp(-3.0 * h * h)
    middle, scales, even = (np.arange(400) + 0.5) / 400, np.ones(400), 0.0
    if shape == "exponential":  # a sign is negative once in six times
        units = [stats.gamma(k, scale=1 / 3).ppf(middle) for k in (3, 2)]
        scales, even = np.concatenate([scales, *units]), (5 / 6 - 1 / 6) ** 2
    cells, rest = np.divmod(h * middle[:, None] / scales, 1.0)
    same, next_one = (1.0 - 3.0 * r + 2.0 * r**3 for r in (rest, 1.0 - rest))
    return (np.where(cells == 0, 1.0, even) * same + even * next_one).mean()


class Fourier:
    def __init__(self, corners, structure, seed, size):
        shape, sill, *metric = structure
        self.matrix, draws = spatial.anisotropy(*metric), Engine(Engine(seed).word())
        turned = corners @ self.matrix.T
        length = 1.5 * np.ptp(turned, axis=0)
        self.n = n = np.where(length < 1e-20, 1, np.maximum(size, 1))
        self.cell = length / n + 1e-20
        self.origin = turned.min(axis=0) - 2.0 * self.cell
        steps = [np.minimum(np.arange(m), m - np.arange(m)) * c for m, c in zip(n, self.cell)]
        h = np.sqrt(sum(np.square(axis) for axis in np.meshgrid(*steps, indexing="ij")))
        power = abs(np.fft.rfftn(SHAPES[shape](np.where(h < 1.0, np.trunc(2e6 * h) / 2e6, h))))
        phases = [(draws.uniform() * 2.0 - 1.0) * math.pi for _ in range(power.size)]
        waves = np.sqrt(power / h.size) * np.exp(1j * np.reshape(phases, power.shape))
        field = np.fft.irfftn(waves, n, axes=(0, 1, 2)) * h.size * math.sqrt(sill)
        # Of an even number the last cell has the value that belongs behind it.
        self.field = field[np.ix_(*([*range(-(m // 2), m - m // 2 - 1), m // 2] for m in n))]
        # Waves of the first and the last plane have no partner: half of their power is lost.
        power[..., [0, n[2] // 2] if n[2] % 2 == 0 else 0] *= 0.5
        self.covariance = sill * np.fft.irfftn(power, n, axes=(0, 1, 2))

    def __call__(self, points):
        cells = np.trunc((points @ self.matrix.T - self.origin) / self.cell)
        return self.field[tuple(np.clip(cells, 0, self.n - 1).astype(int).T)]


def box_corners(low, high):
    return np.array([*itertools.product(*zip(low, high))], float)


def frozen_views(corners, structure, seed, make, n):
    """Turned views of a field on a grid of n cells along each axis, by their seeds."""
    shape, sill, *metric = structure
    matrix, cells = spatial.anisotropy(*metric), np.array([*itertools.product(range(n), repeat=3)])
    turned = box_corners(corners.min(axis=0), corners.max(axis=0)) @ matrix.T
    low, high = turned.min(axis=0), turned.max(axis=0)
    reach = 0.5 * np.linalg.norm(high - low) * (high - low)
    low = (low + high) * 0.5 - reach
    top = (low + high) * 0.5 + reach
    size = np.where(top > low, top - low, 1.0)
    field = make(box_corners(low, top), (shape, sill, (1, 1, 1), (0, 0, 0)), seed)
    values = field(low + cells / n * size).reshape(n, n, n)

    def view(points, draws):
        turn = spatial.rotation(*(draws.uniform() * 360.0 - 180.0 for _ in range(3))) @ matrix
        return values[tuple(np.trunc((points @ turn.T - low) / size * n).astype(int).T % n)]

    return lambda view_seed: lambda points: view(points, Engine(view_seed))


def ensemble(points, fields, centers, errors, max_weight, power):
    for p, values in zip(points, np.transpose([field(points) for field in fields])):
        d = np.linalg.norm(centers - p, axis=1) * errors
        far = np.array([t ** -float(power) if t > 1e-20 else 0.0 for t in d])
        near, total = max_weight * (d <= 1e-20), far.sum()
        if total > 1e-10 and near.sum() > 1e-10:
            far, total = far / total * (1 - max_weight) + near / near.sum() * max_weight, 1.0
        yield (np.sqrt(far / total) if total > 1e-10 else far) @ values
