# SPDX-License-Identifier: MIT
"""A section through three rock types with holes, and how often one follows another at a lag."""

from __future__ import annotations

from collections.abc import Sequence
from dataclasses import dataclass
from typing import Any

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.samples import Array

Classes = NDArray[np.int32]

NAMES = ("sand", "silt", "clay")
SHARES = (0.35, 0.4, 0.25)
RANGES = (700.0, 700.0, 90.0)  # of the field that the section is cut from
CELL = np.array([10.0, 1.0, 2.0])
COLUMNS, LEVELS = 100, 60
HOLE_EVERY = 8  # columns


@dataclass(frozen=True)
class Section:
    """Known rock types (COLUMNS, LEVELS), and the columns of the holes."""

    truth: Classes
    holes: NDArray[np.int64]

    @property
    def places(self) -> Array:
        """Of the cells, from column to column, in metres along and above the section's corner."""
        i, k = np.indices(self.truth.shape).reshape(2, -1)
        return np.column_stack([i, np.zeros(len(i)), k]) * CELL

    @property
    def in_holes(self) -> NDArray[np.bool_]:
        """Which cells the holes go through."""
        return np.repeat(np.isin(np.arange(COLUMNS), self.holes), LEVELS)


def make_section(seed: int) -> Section:
    """A Gaussian field cut at two levels, so that there is mostly silt between sand and clay."""
    grid = gravelox.CartesianGrid((COLUMNS, 1, LEVELS) * CELL, (COLUMNS, 1, LEVELS))
    layers = [gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(*RANGES, 90, 0, 0))]
    field = np.array(gravelox.TBSIM(grid.corners(), layers, seed)(grid.locations()))
    cuts = np.quantile(field, np.cumsum(SHARES)[:-1])
    truth = np.digitize(field, cuts).astype(np.int32).reshape(COLUMNS, LEVELS)
    return Section(truth, np.arange(HOLE_EVERY // 2, COLUMNS, HOLE_EVERY))


@dataclass(frozen=True)
class Transitions:
    """How often class k is met a lag away from class j: shares of pairs, both (n, 3, 3)."""

    lags: Array
    shares: Array
    pairs: Array

    @staticmethod
    def along(axis: int, classes: Classes, lags: Sequence[int], size: float) -> Transitions:
        """At lags in cells along an axis of a table; a pair counts both ways."""
        pairs = []
        for lag in lags:
            ends = np.moveaxis(classes, axis, 0)
            codes = 3 * ends[lag:].ravel() + ends[: len(ends) - lag].ravel()
            counts = np.bincount(codes, minlength=9).reshape(3, 3)
            pairs.append(counts + counts.T)
        table = np.array(pairs, dtype=float)
        starts = np.maximum(table.sum(axis=2, keepdims=True), 1) + np.zeros(3)
        return Transitions(np.array(lags) * size, table / starts, starts)


def upward(classes: Classes) -> Transitions:
    """Along the columns of a table, up to half of their length."""
    return Transitions.along(1, classes, range(1, LEVELS // 2 + 1), CELL[2])


def from_hole_to_hole(section: Section) -> Transitions:
    """At equal levels, up to half of the section."""
    table = section.truth[section.holes]
    return Transitions.along(0, table, range(1, len(table) // 2 + 1), HOLE_EVERY * CELL[0])


def most_frequent(realisations: Classes) -> tuple[Classes, Array]:
    """The class that most realisations have at each cell, and their share."""
    counts = np.array([(realisations == one).sum(axis=0) for one in range(len(NAMES))])
    return counts.argmax(axis=0).astype(np.int32), counts.max(axis=0) / len(realisations)


def chain(shares: Array, cosine: Any, sine: Any, decays: Sequence[Any]) -> list[list[Any]]:
    """The transitions of a chain of three classes that looks the same both ways.

    Of its three modes one keeps the shares and two decay with the lag; a turn by the angle tells
    which differences between the classes decay first. Numbers, arrays and expressions will do.
    """
    roots = np.sqrt(shares)
    ones = np.column_stack([roots, np.eye(3)[:, :2]])
    _, a, b = np.linalg.qr(ones)[0].T.tolist()
    first = [cosine * x + sine * y for x, y in zip(a, b)]
    second = [cosine * y - sine * x for x, y in zip(a, b)]

    def entry(j: int, k: int) -> Any:
        scale = float(roots[k] / roots[j])
        modes = decays[0] * (first[j] * first[k]) + decays[1] * (second[j] * second[k])
        return modes * scale + float(shares[k])

    return [[entry(j, k) for k in range(3)] for j in range(3)]
