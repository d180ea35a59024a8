# SPDX-License-Identifier: MIT
"""A folded layer with a grade that follows it, its blocks, and samples along holes through it."""

from __future__ import annotations

from dataclasses import dataclass
from itertools import product

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.blocks import Blocks, grid_over
from support.samples import Array, Samples

AXES = ("x (m)", "y (m)", "z (m)")
LABEL = "grade (%)"
STEP = 0.2  # of the line, in metres
SLICE = 2000
LEAN = 0.8  # of holes: metres towards x for a metre down
NET = (25.0, 20.0)  # metres between holes along x and y
EVERY = 2.0  # metres between samples of a hole
GRADE_RANGE = 80.0


@dataclass(frozen=True)
class Fold:
    """A layer bent about the y axis: a line in the plane of x and z, and what lies near to it.

    Lengths are in metres; `along` is the length of the line up to each of its points.
    """

    along: Array
    line: Array
    thickness: float
    width: float
    field: gravelox.SpatialFunction

    @staticmethod
    def meander(seed: int) -> Fold:
        """The line's direction swings 105 degrees to both sides, so limbs overhang."""
        along = np.arange(0, 360, STEP)
        turns = np.radians(105) * np.cos(2 * np.pi * along / 120)
        line = np.cumsum(STEP * np.column_stack([np.cos(turns), np.sin(turns)]), axis=0)
        corners = [*product((0, 360), (0, 100), (0, 1))]
        metric = gravelox.Ellipsoid(GRADE_RANGE, GRADE_RANGE, GRADE_RANGE, 90, 0, 0)
        field = gravelox.TBSIM(corners, [gravelox.Covariance.gaussian(1, metric)], seed)
        return Fold(along, line - line.mean(axis=0), thickness=6, width=100, field=field)

    def unfolded(self, places: Array) -> Array:
        """Places along the layer, along y, and off the middle of the layer."""
        result = np.empty((len(places), 3))
        for start in range(0, len(places), SLICE):
            some = places[start : start + SLICE]
            squares = (some[:, :1] - self.line[:, 0]) ** 2 + (some[:, 2:] - self.line[:, 1]) ** 2
            along, off = self.along[squares.argmin(axis=1)], np.sqrt(squares.min(axis=1))
            result[start : start + SLICE] = np.column_stack([along, some[:, 1], off])
        return result

    def grades(self, places: Array) -> Array:
        """They are the same across the layer."""
        return np.array([5 + self.field(place) for place in self.unfolded(places) * (1, 1, 0)])

    def contains(self, places: Array) -> NDArray[np.bool_]:
        along, y, off = self.unfolded(places).T
        inside = (along > 0) & (along < self.along[-1]) & (y >= 0) & (y <= self.width)
        return np.asarray(inside & (off <= self.thickness / 2))

    def box(self) -> tuple[Array, Array]:
        """Its low and its high corner."""
        half = self.thickness / 2
        (x, z), (far, top) = self.line.min(axis=0) - half, self.line.max(axis=0) + half
        return np.array([x, 0, z]), np.array([far, self.width, top])

    def blocks(self, cell_size: Array) -> Blocks:
        """Those whose centres lie in the layer."""
        low, high = self.box()
        origin = low + cell_size / 2
        grid = grid_over(np.array([origin, high - cell_size / 2]), cell_size)
        places = np.array(grid.locations())
        active = self.contains(places)
        model = gravelox.BlockModel(grid, active.tolist())
        return Blocks(model, active, places[active], origin, cell_size)

    def samples(self, rng: np.random.Generator) -> Samples:
        """Those of inclined holes near the nodes of a net; vertical ones would follow limbs."""
        low, high = self.box()
        depth = high[2] - low[2]
        starts = low[0] - LEAN * depth, low[1]
        nodes = [np.arange(a + d / 2, b, d) for a, b, d in zip(starts, high, NET)]
        collars = np.array([*product(*nodes, high[2:])])
        collars[:, :2] += rng.uniform(-0.2, 0.2, (len(collars), 2)) * NET
        down = np.array([LEAN, 0, -1])
        steps = np.arange(0, depth, EVERY / np.linalg.norm(down))
        places = (collars[:, None] + steps[:, None] * down).reshape(-1, 3)
        holes = np.repeat(np.arange(len(collars), dtype=np.int32), len(steps))
        inside = self.contains(places)
        places, holes = places[inside], holes[inside]
        return Samples(places, self.grades(places), holes, AXES, LABEL)
