# SPDX-License-Identifier: MIT
"""An experimental variogram over all directions, and one with lags that have gone wrong."""

from __future__ import annotations

from dataclasses import dataclass, replace

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.directional import Lags
from support.samples import Array, InputError, Samples

MIN_LAGS = 12


@dataclass(frozen=True)
class Curve:
    """Semivariances in variances of the samples, pairs by lag, and which lags are spoiled."""

    reach: float
    lengths: Array
    values: Array
    pairs: NDArray[np.int64]
    outliers: NDArray[np.bool_]

    @property
    def weights(self) -> Array:
        """Pairs over length, of mean 1: what happens at short lags matters most."""
        one = self.pairs / self.lengths
        return np.asarray(one / one.mean())


def experimental_curve(samples: Samples, n_lags: int) -> Curve:
    """Up to half of the samples' shorter horizontal side, each lag a mean over all directions."""
    x, y, z = np.ptp(samples.locations, axis=0)
    reach = float(min(x, y) or max(x, y) or z) / 2
    flat = samples.flat
    variogram = gravelox.compute_exp_variogram(
        samples.locations,
        samples.values,
        n_centers=len(samples.values),
        n_lags=200,
        window_size=0,
        bandwidth=0.02 if flat else 0.01,
        n_directions=100,
    )
    lags = Lags.of(variogram)
    near = lags.select(lags.lengths < reach)
    cells = (near.lengths / reach * n_lags).astype(int)
    sums = near.npairs * np.array([np.ones(len(cells)), near.lengths, near.values])
    pairs, lengths, values = (np.bincount(cells, one, n_lags) for one in sums)
    held = pairs > 0
    if np.count_nonzero(held) < MIN_LAGS:
        raise InputError(f"only {np.count_nonzero(held)} lags up to {reach:g} have pairs")
    pairs, lengths, values = pairs[held], lengths[held], values[held]
    return Curve(
        reach,
        lengths / pairs,
        values / pairs / np.var(samples.values),
        pairs.astype(np.int64),
        np.zeros(len(pairs), dtype=bool),
    )


def spoil(curve: Curve, share: float, rng: np.random.Generator) -> Curve:
    """The curve with a share of its lags 0.3 to 0.9 variances too high, as a few wild samples do.

    The first lags, on which the shape at the origin hangs, are as likely to be hit as others.
    """
    n_lags = len(curve.values)
    outliers = np.zeros(n_lags, dtype=bool)
    outliers[rng.choice(n_lags, round(share * n_lags), replace=False)] = True
    wrong = curve.values + outliers * rng.uniform(0.3, 0.9, n_lags)
    return replace(curve, values=wrong, outliers=outliers)
