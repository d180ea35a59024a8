# SPDX-License-Identifier: MIT
"""Lags from the variogram maps of samples laid over a grid, of terrain, and of kriged blocks."""

from __future__ import annotations

from dataclasses import dataclass

import gravelox
import numpy as np

from support.blocks import Blocks, blocks_near_samples, grid_over
from support.directional import Lags
from support.nested import Nested
from support.report import number
from support.samples import Array, Samples, Truth
from support.scaled_kriging import Limits, krige

N_DIRECTIONS, N_LAGS = 3000, 60  # some 10,000 lags lie near each plane then


@dataclass(frozen=True)
class Map:
    """The lags of a grid's variogram map, and the size of its cells."""

    title: str
    lags: Lags
    cell_size: Array


def map_of_samples(samples: Samples, cell_size: Array) -> Map:
    """The samples laid over a grid, most of whose cells stay without a value."""
    grid = grid_over(samples.locations, cell_size)
    lags = _lags(grid, samples.locations, samples.values)
    title = f"{len(samples.values):,} samples on a grid, {variance_text(samples.values)}"
    return Map(title, lags, cell_size)


def map_of_terrain(truth: Truth) -> Map:
    """All cells of the elevation model."""
    counts = np.array([*truth.values.shape, 1])
    grid = gravelox.CartesianGrid(counts * truth.cell_size, counts)
    lags = _lags(grid, np.array(grid.locations()), truth.values.ravel())
    title = f"all {truth.values.size:,} cells of the terrain, {variance_text(truth.values)}"
    return Map(title, lags, truth.cell_size)


def krige_blocks(samples: Samples, model: Nested, cell_size: Array) -> tuple[Blocks, Array]:
    """The blocks up to three cells away from a sample, and their estimates."""
    near = gravelox.Ellipsoid(3 * cell_size, (90, 0, 0))
    blocks = blocks_near_samples(samples, cell_size, near, reach=1)
    structures = model.structures(float(np.var(samples.values)))
    search = gravelox.Neighborhood(samples.locations, model.ellipsoid())
    return blocks, krige(blocks.locations, samples, structures, search, Limits())[0]


def map_of_blocks(blocks: Blocks, estimates: Array) -> Map:
    """Kriged blocks: smoother than the samples, and shaped by the model that kriged them."""
    title = f"{len(estimates):,} kriged blocks, {variance_text(estimates)}"
    lags = _lags(blocks.model.base_grid(), blocks.locations, estimates)
    return Map(title, lags, blocks.cell_size)


def variance_text(values: Array) -> str:
    return f"variance {number(float(np.nanvar(values)))}"


def _lags(grid: gravelox.CartesianGrid, locations: Array, values: Array) -> Lags:
    """Those of values laid over the grid's cells.

    The working grid begins half a cell early: locations of cells stand in the middle of its own,
    not on their borders.
    """
    nx, ny, nz = grid.number_of_cells()
    box, cell_size = grid.bounding_box(), np.array(grid.cell_size())
    low, high = box.lower() - cell_size / 2, box.upper() + cell_size / 2
    variogram = gravelox.compute_variogram(
        [low, high],
        locations,
        values,
        nx,
        ny,
        nz,
        N_DIRECTIONS,
        N_LAGS,
        _bandwidth(nx, ny, nz),
        origin=low,
    )
    return Lags.of(variogram)


def _bandwidth(nx: int, ny: int, nz: int) -> float:
    """That of one cell's diagonal over the axes that have more than one cell.

    An axis of one cell makes the whole diagonal as long as the grid.
    """
    shares = 1 / np.array([nx, ny, nz])
    return float(np.linalg.norm(shares[shares < 1]) / np.linalg.norm(shares))
