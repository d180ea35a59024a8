# SPDX-License-Identifier: MIT
"""A model of a nugget and two spherical structures, fitted to directional variograms."""

from __future__ import annotations

from collections.abc import Sequence
from dataclasses import dataclass
from itertools import product
from typing import NamedTuple

import gravelox
import numpy as np

from support.directional import Directional, angles
from support.samples import Array

SHARES = np.linspace(0, 1, 21)  # of the sill
STRETCHES = np.geomspace(1 / 60, 4, 40)  # ranges, in reaches of a directional variogram

Triple = tuple[float, float, float]


@dataclass(frozen=True)
class Nested:
    """Shares of the sill that add up to 1, practical ranges of both structures, one rotation."""

    nugget: float
    shares: tuple[float, float]
    ranges: tuple[Triple, Triple]
    angles: Triple

    def ellipsoid(self) -> gravelox.Ellipsoid:
        """The longer structure's."""
        return gravelox.Ellipsoid(*self.ranges[1], *self.angles)

    def structures(self, variance: float) -> list[gravelox.Covariance]:
        """The model with its total sill at the given variance."""
        parts = [
            gravelox.Covariance.spherical(share * variance, gravelox.Ellipsoid(*one, *self.angles))
            for share, one in zip(self.shares, self.ranges)
            if share > 0
        ]
        if self.nugget > 0:
            parts.append(gravelox.Covariance.nugget(self.nugget * variance))
        return parts


def fit(curves: Sequence[Directional], axes: Array, variance: float) -> Nested:
    """The model nearest to the lags of all axes by least squares, with the samples' variance.

    Each axis weighs as much as any other. Along an axis of the ellipsoids the variogram depends on
    the two ranges there alone, so each axis finds its own best pair, for all shares of the sill.
    Flat samples leave the third ranges open: they take the first ones'.
    """
    moments = [_moments(curve, variance) for curve in curves]
    best = np.inf
    for nugget, short in product(SHARES, SHARES):
        long = 1 - nugget - short
        if long < -1e-9:
            continue
        tables = [one.errors(nugget, short, long) for one in moments]
        error = sum(table.min() for table in tables)
        if error < best:
            best, shares = error, (nugget, short, max(long, 0.0))
            pairs = [np.unravel_index(table.argmin(), table.shape) for table in tables]
    nugget, short, long = (float(share) for share in shares)
    ranges = []
    for which in (0, 1):
        along = [float(c.reach * STRETCHES[pair[which]]) for c, pair in zip(curves, pairs)]
        r1, r2, r3 = (along + along)[:3]
        ranges.append((r1, r2, r3))
    return Nested(nugget, (short, long), (ranges[0], ranges[1]), angles(axes))


class _Moments(NamedTuple):
    """Weighted means over the lags of an axis, of what a squared error of any model is made of.

    A structure's rise is 1 less its kernel, one row for each range tried.
    """

    rise_rise: Array
    rise: Array
    rise_value: Array
    value: float
    value_value: float

    def errors(self, nugget: float, short: float, long: float) -> Array:
        """Mean squared errors by short and long range; infinite where the short one is longer."""
        constant = nugget**2 - 2 * nugget * self.value + self.value_value
        linear = 2 * (nugget * self.rise - self.rise_value)
        of_short = short**2 * np.diag(self.rise_rise) + short * linear
        of_long = long**2 * np.diag(self.rise_rise) + long * linear
        result = constant + of_short[:, None] + of_long + 2 * short * long * self.rise_rise
        result[np.tril_indices(len(result), -1)] = np.inf
        return np.asarray(result)


def _moments(curve: Directional, variance: float) -> _Moments:
    lengths, values = curve.lags.lengths, curve.lags.values / variance
    weights = curve.lags.weights / curve.lags.weights.sum()
    ranges = curve.reach * STRETCHES
    spherical = gravelox.Kernel.spherical
    rises = np.array([[1 - spherical(length / one) for length in lengths] for one in ranges])
    return _Moments(
        rises * weights @ rises.T,
        rises @ weights,
        rises @ (weights * values),
        float(weights @ values),
        float(weights @ values**2),
    )
