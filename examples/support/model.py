# SPDX-License-Identifier: MIT
"""A covariance model of one structure and a nugget, and a choice of its range from the samples."""

from __future__ import annotations

from dataclasses import dataclass, replace
from statistics import NormalDist

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.samples import Array, Samples
from support.scaled_kriging import Limits, krige

SHARE = 0.8  # of truths that an interval of the kriging variance is meant to hold
HALF_WIDTH = NormalDist().inv_cdf((1 + SHARE) / 2)  # in kriging standard deviations

N_FOLDS = 5
STRETCHES = [2 ** (-step / 2) for step in range(3, 13)]  # from 1/2.8 down to 1/64


@dataclass(frozen=True)
class Model:
    """Total sill 1: a share of nugget, the rest in one structure with practical ranges."""

    kernel: str
    nugget: float
    ranges: tuple[float, float, float]
    angles: tuple[float, float, float]

    def ellipsoid(self) -> gravelox.Ellipsoid:
        return gravelox.Ellipsoid(*self.ranges, *self.angles)

    def structures(self, variance: float) -> list[gravelox.Covariance]:
        """The model with its total sill at the given variance."""
        make = getattr(gravelox.Covariance, self.kernel)
        parts = [make((1 - self.nugget) * variance, self.ellipsoid())]
        if self.nugget > 0:
            parts.append(gravelox.Covariance.nugget(self.nugget * variance))
        return parts

    def stretched(self, factor: float) -> Model:
        r1, r2, r3 = self.ranges
        return replace(self, ranges=(r1 * factor, r2 * factor, r3 * factor))


def coverage(estimates: Array, variances: Array, truths: Array) -> float:
    """Share of truths within the 80 % interval of the kriging variance."""
    known = ~np.isnan(variances)
    errors = np.abs(estimates - truths)[known]
    return float(np.mean(errors <= HALF_WIDTH * np.sqrt(variances[known])))


def choose_range(samples: Samples, shape: Model, limits: Limits) -> Model:
    """The shape stretched to the range under which left-out samples fit the variance best.

    Estimates hardly depend on the range, kriging variances do: the longer the range, the smaller
    they are. So the range is the one under which the share of left-out samples within their 80 %
    interval is nearest to 80 %.
    """
    fold = folds_left_out(samples)

    def misfit(model: Model) -> float:
        return abs(_left_out_coverage(samples, model, limits, fold) - SHARE)

    return min((shape.stretched(factor) for factor in STRETCHES), key=misfit)


def folds_left_out(samples: Samples) -> NDArray[np.int64]:
    """A fold number a sample; a drill hole stays whole, or its own samples would betray it."""
    group = samples.holes
    if len(np.unique(group)) < N_FOLDS:
        group = np.arange(len(samples.values), dtype=np.int32)
    order = np.random.default_rng(1).permutation(int(group.max()) + 1)
    return np.asarray(order[group] % N_FOLDS)


def _left_out_coverage(
    samples: Samples, model: Model, limits: Limits, fold: NDArray[np.int64]
) -> float:
    """Coverage over all samples, each estimated from the folds that it is not in."""
    estimates, variances = np.full((2, len(fold)), np.nan)
    for number in range(N_FOLDS):
        inside = fold == number
        others = samples.select(~inside)
        if np.ptp(others.values) == 0:
            continue
        structures = model.structures(float(np.var(others.values)))
        search = gravelox.Neighborhood(others.locations, model.ellipsoid())
        estimates[inside], variances[inside] = krige(
            samples.locations[inside], others, structures, search, limits
        )
    return coverage(estimates, variances, samples.values)
