"""Plain numpy models of covariance models, limits on neighbours, and estimators.

A model is a list of structures (shape, sill, ranges, angles); a nugget has the unit ranges.
"""

from collections import Counter

import gravelox
import numpy as np
from oracles.spatial import anisotropy

SHAPES = {
    "spherical": lambda h: np.where(h > 1, 0.0, 1 - 1.5 * h + 0.5 * h**3),
    "gaussian": lambda h: np.exp(-3 * h**2),
    "exponential": lambda h: np.exp(-3 * h),
    "nugget": lambda h: np.where(h < 1e-8, 1.0, 0.0),
}


def structures(model):
    """The module's structures of a model."""

    def structure(shape, sill, ranges, angles):
        metric = [] if shape == "nugget" else [gravelox.Ellipsoid(ranges, angles)]
        return getattr(gravelox.Covariance, shape)(sill, *metric)

    return [structure(*row) for row in model]


def covariance(model, lags):
    """The sum of the structures at lags of shape (..., 3)."""
    lags = np.asarray(lags, float)
    total = np.zeros(lags.shape[:-1])
    for shape, sill, ranges, angles in model:
        distances = np.linalg.norm(lags @ anisotropy(ranges, angles).T, axis=-1)
        total += sill * SHAPES[shape](distances)
    return total


def at_most(limit, ids, groups):
    """The ids without those that come after `limit` others of their group."""
    kept, counts = [], Counter()
    for sample, group in zip(ids, groups):
        if limit <= 0 or counts[group] < limit:
            kept.append(sample)
        counts[group] += 1
    return kept


def limited(ids, samples, target, max_octant=-1, dhids=(), max_hole=-1):
    """Candidates, nearest first, after the octant limit and then the drill-hole limit."""
    ids = at_most(max_octant, ids, [tuple(samples[i] > target) for i in ids])
    return at_most(max_hole, ids, [dhids[i] for i in ids]) if len(dhids) else ids


def kriging(model, samples, values, target, mean=None):
    """Estimate, variance and multiplier of one system, ordinary without a mean."""
    n = len(samples)
    a = covariance(model, samples[:, None] - samples[None])
    b = covariance(model, samples - target)
    if mean is None:
        a = np.block([[a, np.ones((n, 1))], [np.ones((1, n)), np.zeros((1, 1))]])
        b = np.append(b, 1.0)
    x = np.linalg.solve(a, b)
    variance = max(covariance(model, np.zeros(3)) - x @ b, 1e-10)
    rest = x[n] if mean is None else mean * (1 - x.sum())
    return x[:n] @ values + rest, variance, rest


def inverse_distance(samples, values, target, power, max_weight, model=None):
    """Inverse distance over two or more neighbours; with a model in its covariance form."""
    distances = np.linalg.norm(samples - target, axis=1)
    near = distances < 1e-30 if model is None else distances <= 1e-30
    if near.all():
        return values.mean()
    lengths = distances if model is None else 1 - covariance(model, samples - target)
    weights = lengths[~near] ** -float(power)
    far = weights @ values[~near] / weights.sum()
    if not near.any() or max_weight == 0:
        return far
    return max_weight * values[near].mean() + (1 - max_weight) * far


def moving_window(model, samples, values, target):
    weights = covariance(model, samples - target)
    return weights @ values / weights.sum() if abs(weights.sum()) > 1e-30 else np.nan
