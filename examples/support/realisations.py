# SPDX-License-Identifier: MIT
"""Realisations on blocks and along a line through samples, and how they hold a known truth."""

from __future__ import annotations

from dataclasses import dataclass
from typing import NamedTuple

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.blocks import Blocks
from support.samples import Array, Samples, Truth
from support.scores import ScoreModel

N_STEPS = 400  # along a line


class Realisations:
    """Values in data units, one row a realisation; scores of the blocks beside them."""

    def __init__(self, n_realisations: int, n_blocks: int, n_steps: int) -> None:
        self.scores = np.empty((n_realisations, n_blocks))
        self.values = np.empty((n_realisations, n_blocks))
        self.on_line = np.empty((n_realisations, n_steps))
        self.seconds = 0.0

    def take(self, number: int, scores: Array, values: Array) -> None:
        n_blocks = self.values.shape[1]
        self.scores[number] = scores[:n_blocks]
        self.values[number] = values[:n_blocks]
        self.on_line[number] = values[n_blocks:]

    def quantile(self, share: float) -> Array:
        """That which another realisation would not exceed with this probability, at each block.

        The method gives the i-th of n values the probability i / (n + 1). numpy's own choice takes
        the ends for 0 and 1: of 50, its range from 10 to 90 % holds 77 %.
        """
        return np.asarray(np.quantile(self.values, share, axis=0, method="weibull"))


class Line(NamedTuple):
    """Places (n, 3) along a line with their distances from its start, and which are samples."""

    locations: Array
    distances: Array
    vertices: NDArray[np.int64]
    samples: NDArray[np.int64]


@dataclass(frozen=True)
class Study:
    """All that tables and pictures show. Variograms are those of the scores."""

    samples: Samples
    truth: Truth | None
    weights: Array
    model: ScoreModel
    of_samples: gravelox.ExperimentalVariogram
    blocks: Blocks
    line: Line
    realisations: Realisations
    of_blocks: list[gravelox.ExperimentalVariogram]  # of each realisation
    kriged: Array
    cutoff: float
    unit: str

    @property
    def declustered(self) -> bool:
        return bool(np.ptp(self.weights) > 0)

    def probability(self) -> Array:
        """That the cut-off is exceeded, at each block."""
        return np.asarray(np.mean(self.realisations.values > self.cutoff, axis=0))


def line_through_samples(samples: Samples, blocks: Blocks) -> Line:
    """The line from sample to sample in the row of blocks along x that holds most of them."""
    _, row = np.unique(blocks.indices(samples.locations)[:, 1:], axis=0, return_inverse=True)
    row = row.ravel()
    on_row = np.flatnonzero(row == np.bincount(row).argmax())
    on_row = on_row[np.argsort(samples.locations[on_row, 0], kind="stable")]
    corners = samples.locations[on_row]
    reached = np.concatenate([[0], np.cumsum(np.linalg.norm(np.diff(corners, axis=0), axis=1))])
    distances = np.union1d(np.linspace(0, reached[-1], N_STEPS), reached)
    places = np.column_stack([np.interp(distances, reached, column) for column in corners.T])
    vertices = np.searchsorted(distances, reached)
    places[vertices] = corners
    return Line(places, distances, vertices, on_row)


def known_at(truth: Truth, locations: Array) -> tuple[Array, NDArray[np.bool_]]:
    """The truth in the cells in which locations lie, NaN beyond them; and which were not drawn."""
    i, j = np.rint(locations[:, :2] / truth.cell_size[:2]).astype(int).T
    inside = (i < truth.values.shape[0]) & (j < truth.values.shape[1])
    i, j = i * inside, j * inside
    return np.where(inside, truth.values[i, j], np.nan), inside & ~truth.drawn[i, j]
