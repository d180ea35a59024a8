# SPDX-License-Identifier: MIT
"""Normal scores of samples, their variogram by length, and a model whose sills add up to 1."""

from __future__ import annotations

from collections.abc import Sequence
from dataclasses import dataclass
from itertools import combinations_with_replacement, product
from typing import NamedTuple

import gravelox
import numpy as np

from support.blocks import Blocks
from support.samples import Array, InputError, Samples

N_BINS = 30
SHORTEST = (
    5000  # of the shortest range, laid side by side, make up the diagonal of the samples' box
)
SHARES = np.linspace(0, 1, 21)  # of the sill
STRETCHES = np.geomspace(1 / 40, 2, 24)  # ranges, in lengths up to which a variogram is trusted


def normal_scores(values: Array, weights: Array) -> gravelox.NScore:
    """A map of values to the normal scores of the middles of their shares of the weight.

    A distribution of data gives a value the share below it: 0 to the least, whose score would be
    far off all others. Half of each share is therefore moved down to the value before it, that of
    the least to an end half a gap below, which becomes the lower tail.
    """
    distinct, place = np.unique(values, return_inverse=True)
    halves = np.bincount(place.ravel(), weights) / 2
    end = distinct[0] - (distinct[1] - distinct[0]) / 2
    moved = np.concatenate([halves, [0]]) + np.concatenate([[0], halves])
    data = gravelox.data_distribution([end, *distinct], moved)
    return gravelox.NScore(data, gravelox.gaussian_distribution())


def cell_weights(locations: Array, size: float) -> Array:
    """Weights that decluster: each cell of this size has the weight 1, which its samples share."""
    cells = np.floor((locations - locations.min(axis=0)) / size)
    _, cell, counts = np.unique(cells, axis=0, return_inverse=True, return_counts=True)
    return np.asarray(1 / counts[cell.ravel()])


class Curve(NamedTuple):
    """A variogram by length: bins that have pairs, with means weighted by these."""

    lengths: Array
    values: Array
    npairs: Array

    def beyond(self, length: float) -> Curve:
        held = self.lengths > length
        return Curve(self.lengths[held], self.values[held], self.npairs[held])


@dataclass(frozen=True)
class Way:
    """Directions between two dips, whose lags are taken together up to a length."""

    name: str
    dips: tuple[float, float]
    reach: float

    @property
    def upright(self) -> bool:
        return self.dips[1] == 90

    def curve(self, variogram: gravelox.ExperimentalVariogram) -> Curve:
        lags = np.array(variogram.lags()).reshape(-1, 3)
        lengths = np.linalg.norm(lags, axis=1)
        low, high = np.outer(np.sin(np.radians(self.dips)), lengths)
        inside = (np.abs(lags[:, 2]) >= low) & (np.abs(lags[:, 2]) <= high)
        edges = self.reach * np.linspace(0, 1, N_BINS + 1) ** 2  # narrow where lags are short
        bins = np.where(inside, np.digitize(lengths, edges) - 1, N_BINS)
        npairs = np.array(variogram.npairs(), dtype=float)

        def total(weights: Array) -> Array:
            return np.asarray(np.bincount(bins, weights, N_BINS + 1)[:N_BINS], dtype=float)

        pairs = total(npairs)
        held = pairs > 0
        means = [
            total(npairs * one)[held] / pairs[held]
            for one in (lengths, np.array(variogram.variogram()))
        ]
        return Curve(means[0], means[1], pairs[held])


def ways(samples: Samples) -> list[Way]:
    """Across, whatever the azimuth, and upright where samples have depth, up to half the extent."""
    x, y, z = np.ptp(samples.locations, axis=0) / 2
    reach = min(x, y) or max(x, y)
    if reach == 0:
        raise InputError("expected samples at several x or y, found them in one vertical line")
    across = Way("horizontal", (0, 5), float(reach))
    return [across] if samples.flat else [across, Way("vertical", (70, 90), float(z))]


def variogram_of_samples(
    samples: Samples, scores: Array, n_threads: int
) -> gravelox.ExperimentalVariogram:
    """Pairs around all samples, each for one lag alone: those of several would blur short ones."""
    return gravelox.compute_exp_variogram(
        samples.locations,
        scores,
        n_centers=len(scores),
        n_lags=200,
        window_size=0,
        bandwidth=0.02 if samples.flat else 0.01,
        n_directions=300 if samples.flat else 100,
        n_threads=n_threads,
    )


def variogram_of_blocks(
    blocks: Blocks, scores: Array, n_threads: int
) -> gravelox.ExperimentalVariogram:
    """From the variogram map of the blocks; an axis of one cell takes no part in the bandwidth."""
    nx, ny, nz = (max(count - 1, 1) for count in blocks.model.number_of_cells())
    shares = 1 / np.array([nx, ny, nz])
    return gravelox.compute_variogram(
        blocks.model,
        scores,
        n_directions=2000 if nz == 1 else 400,
        n_lags=50,
        bandwidth=float(np.linalg.norm(shares[shares < 1]) / np.linalg.norm(shares)),
        n_threads=n_threads,
        nx=nx,
        ny=ny,
        nz=nz,
    )


class Structure(NamedTuple):
    sill: float
    ranges: tuple[float, float, float]


@dataclass(frozen=True)
class ScoreModel:
    """Spherical structures, the first for what is lost between neighbouring samples.

    It stands for the nugget, with a range below their spacing: white noise is not a function of
    the location, and a field that holds some does not honour a sample at its place.
    """

    structures: list[Structure]
    angles: tuple[float, float, float]

    def covariances(self) -> list[gravelox.Covariance]:
        return [
            gravelox.Covariance.spherical(sill, gravelox.Ellipsoid(*ranges, *self.angles))
            for sill, ranges in self.structures
        ]

    def metric(self) -> gravelox.Ellipsoid:
        """Ranges that are the means of the structures', weighted by sill."""
        r1, r2, r3 = (
            sum(sill * ranges[axis] for sill, ranges in self.structures) for axis in range(3)
        )
        return gravelox.Ellipsoid(r1, r2, r3, *self.angles)

    def variogram(self, way: Way, lengths: Array) -> Array:
        along = (0.0, 0.0, 1.0) if way.upright else gravelox.Direction(self.angles[0], 0)
        covariance = gravelox.covariance_computer(self.covariances())
        return np.asarray(1 - np.array(covariance(np.outer(lengths, along))))


def given_model(
    samples: Samples,
    nugget: float,
    ranges: tuple[float, float, float],
    angles: tuple[float, float, float],
) -> ScoreModel:
    shares = [nugget, 1 - nugget]
    return _model(shares, [(_shortest(samples),) * 3, ranges], angles)


def fitted_model(samples: Samples, variogram: gravelox.ExperimentalVariogram) -> ScoreModel:
    """Two structures and a nugget, the nearest of a set to the samples' variogram.

    Nearest by the sum of pairs times squared relative error (Cressie 1985). All shares of the three
    are tried in steps of 5 %, and along each way all pairs of 24 ranges. Horizontal ranges are
    equal; flat samples leave the vertical one open, which is set to them.
    """
    shares = [(a, b, 1 - a - b) for a, b in product(SHARES, SHARES) if a + b < 1 + 1e-9]
    fits = [_best_ranges(np.array(shares), way, variogram) for way in ways(samples)]
    best = int(np.argmin(sum(errors for errors, _ in fits)))
    across, *upright = (ranges[best] for _, ranges in fits)
    heights = upright[0] if upright else across
    found = [(a, a, h) for a, h in zip(across.tolist(), heights.tolist())]
    return _model(shares[best], [(_shortest(samples),) * 3, *found], (90.0, 0.0, 0.0))


def _best_ranges(
    shares: Array, way: Way, variogram: gravelox.ExperimentalVariogram
) -> tuple[Array, Array]:
    """For each row of shares the least error, and the two ranges that have it."""
    curve = way.curve(variogram)
    if not curve.lengths.size:
        raise InputError(f"no {way.name} pairs of samples to fit a model to; give --ranges")
    pairs = np.array(list(combinations_with_replacement(STRETCHES * way.reach, 2)))
    ratio = np.minimum(curve.lengths / pairs[:, :, None], 1)
    rises = 1.5 * ratio - 0.5 * ratio**3
    errors = np.empty(len(shares))
    ranges = np.empty((len(shares), 2))
    for row, (nugget, short, long) in enumerate(shares):
        model = nugget + short * rises[:, 0] + long * rises[:, 1]
        misfits = (curve.npairs * (curve.values / model - 1) ** 2).sum(axis=1)
        errors[row], ranges[row] = misfits.min(), pairs[misfits.argmin()]
    return errors, ranges


def _shortest(samples: Samples) -> float:
    """A range below the spacing of samples, yet within the 10,000 ranges that a line may hold."""
    return float(np.linalg.norm(np.ptp(samples.locations, axis=0))) / SHORTEST


def _model(
    sills: Sequence[float],
    ranges: Sequence[tuple[float, float, float]],
    angles: tuple[float, float, float],
) -> ScoreModel:
    held = [Structure(float(sill), one) for sill, one in zip(sills, ranges) if sill > 1e-9]
    return ScoreModel(held, angles)
