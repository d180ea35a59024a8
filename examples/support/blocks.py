# SPDX-License-Identifier: MIT
"""A block model around samples: its grid, its active cells, and the neighbours of its blocks."""

from __future__ import annotations

import math
from dataclasses import dataclass

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.samples import Array, InputError, Samples
from support.scaled_kriging import Limits

MAX_CELLS = 2_000_000
SLICE = 10_000


@dataclass(frozen=True)
class Blocks:
    """A block model with what its pictures and tables need, worked out once."""

    model: gravelox.BlockModel
    active: NDArray[np.bool_]
    locations: Array
    origin: Array
    cell_size: Array

    def indices(self, locations: Array) -> NDArray[np.int64]:
        """(i, j, k) of the cells in which locations lie."""
        return np.rint((locations - self.origin) / self.cell_size).astype(np.int64)

    def filled(self, values: Array) -> Array:
        """Values of the blocks as an array over the whole grid (i, j, k), NaN elsewhere."""
        whole = np.full(self.active.size, np.nan)
        whole[self.active] = values
        return whole.reshape(self.model.number_of_cells())

    def share_without_sample(self, locations: Array) -> float:
        """Share of blocks in which no sample lies."""
        hit = np.zeros(self.model.number_of_cells(), dtype=bool)
        hit[tuple(self.indices(locations).T)] = True
        return 1 - float(np.mean(hit.ravel()[self.active]))


def blocks_near_samples(
    samples: Samples, cell_size: Array, metric: gravelox.Ellipsoid, reach: float
) -> Blocks:
    """The cells over the samples' box that have a sample within reach, in the metric's ranges."""
    grid = grid_over(samples.locations, cell_size)
    places = np.array(grid.locations())
    active = _distances(places, samples.locations, metric) <= reach
    if not active.any():
        raise InputError("no block is near enough to a sample; reach farther or use smaller blocks")
    model = gravelox.BlockModel(grid, active.tolist())
    return Blocks(model, active, places[active], samples.locations.min(axis=0), cell_size)


def _distances(places: Array, locations: Array, metric: gravelox.Ellipsoid) -> Array:
    """Distance of each place to its nearest location, in the metric's ranges."""
    search = gravelox.Neighborhood(locations, metric)
    result = np.empty(len(places))
    for start in range(0, len(places), SLICE):
        some = places[start : start + SLICE]
        # Asked for one, the approximate search misses the nearest at every fifth place or so;
        # among 32 it hardly ever does.
        found = np.array([search.find_neighbors(place, 32) for place in some])
        lags = (some[:, None, :] - locations[found]) @ metric.matrix().T
        result[start : start + SLICE] = np.linalg.norm(lags, axis=2).min(axis=1)
    return result


def grid_over(locations: Array, cell_size: Array) -> gravelox.CartesianGrid:
    """A grid whose first cell location is the low corner of the box of the locations.

    A grid's locations are the low corners of its cells. Taken as block centres, as here, the
    first centre stands on the box's low corner, and the last one on its high corner or beyond.
    """
    origin = locations.min(axis=0)
    steps = (locations.max(axis=0) - origin) / cell_size
    # An extent of a whole number of steps must not gain a cell by rounding.
    nx, ny, nz = (math.ceil(step - 1e-6) + 1 for step in steps)
    if nx * ny * nz > MAX_CELLS:
        raise InputError(f"a grid of {nx} x {ny} x {nz} cells is too large; choose larger blocks")
    # By length and counts: counts worked out from cell sizes are truncated.
    counts = (nx, ny, nz)
    return gravelox.CartesianGrid(counts * cell_size, counts, origin)


def count_neighbors(
    targets: Array, samples: Samples, neighborhood: gravelox.Neighborhood, limits: Limits
) -> NDArray[np.int64]:
    """Number of neighbours that an estimator with these limits uses at each target."""
    found = np.array([neighborhood.find_neighbors(place, limits.neighbors) for place in targets])
    kept = np.ones(found.shape, dtype=bool)
    if limits.octant > 0:
        # A sample at the target's own coordinate lies on the negative side.
        above = samples.locations[found] > targets[:, None, :]
        kept = _capped(kept, above @ np.array([1, 2, 4]), limits.octant)
    if limits.hole > 0 and samples.holes.size:
        kept = _capped(kept, samples.holes[found], limits.hole)
    return kept.sum(axis=1)


def _capped(kept: NDArray[np.bool_], label: NDArray[np.int64], cap: int) -> NDArray[np.bool_]:
    """What stays of the kept ones, nearest first, with at most cap of a label in each row."""
    same = (label[:, :, None] == label[:, None, :]) & kept[:, None, :]
    nearer = np.tril(np.ones(same.shape[1:], dtype=bool), k=-1)
    return kept & ((same & nearer).sum(axis=2) < cap)
