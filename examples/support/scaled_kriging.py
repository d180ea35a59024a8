# SPDX-License-Identifier: MIT
"""Ordinary kriging with scaled sills, so that the multiplier does not move the estimates.

gravelox's ordinary kriging estimate is the weighted sum of the neighbours' values plus the
Lagrange multiplier of the system. The multiplier has the unit of the covariance: with sills in
squared data units it is as large as the data and the map is wrong. The weights do not change
when all sills are multiplied by one factor, the multiplier and the variance do. So the sills are
scaled until the multiplier is negligible, and the variances are scaled back.
"""

from __future__ import annotations

from typing import NamedTuple

import gravelox
import numpy as np

from support.samples import Array, Samples

# The multiplier is of the size of the total sill at most; a ten-thousandth of the data's standard
# deviation is far below any error of estimation, and far above the floor of variances (1e-10).
TOTAL_SILL = 1e-4


class Limits(NamedTuple):
    """Caps on the neighbours of a target: in all, in an octant, from one drill hole."""

    neighbors: int = 32
    octant: int = 6
    hole: int = 4


def scale_sills(
    structures: list[gravelox.Covariance], data: Array
) -> tuple[list[gravelox.Covariance], float]:
    """The structures with sills that add up to 1e-4 of the data's standard deviation.

    Also gives the factor that was applied: divide variances by it to have data units squared.
    """
    factor = TOTAL_SILL * float(np.std(data)) / sum(part.sill() for part in structures)
    return [_scaled(part, factor) for part in structures], factor


def _scaled(part: gravelox.Covariance, factor: float) -> gravelox.Covariance:
    if part.type() == "nugget":
        return gravelox.Covariance.nugget(part.sill() * factor)
    make = getattr(gravelox.Covariance, part.type())
    return make(part.sill() * factor, part.ellipsoid())


def krige(
    targets: Array,
    samples: Samples,
    structures: list[gravelox.Covariance],
    neighborhood: gravelox.Neighborhood,
    limits: Limits,
) -> tuple[Array, Array]:
    """Estimates and kriging variances at the targets, in data units and their square.

    The neighborhood must have been built over the samples' locations. A target without neighbours
    has the estimate NaN; one with fewer than two has the variance NaN, since no system is solved
    for it.
    """
    scaled, factor = scale_sills(structures, samples.values)
    estimates, variances = gravelox.compute_ordinary_kriging(
        targets,
        samples.locations,
        samples.values,
        scaled,
        neighborhood,
        max_neighbors=limits.neighbors,
        max_neighbors_octant=limits.octant,
        dhids=samples.holes,
        max_neis_by_dhid=limits.hole,
    )
    unscaled = np.array(variances) / factor
    # A solved system has a variance of at least 1e-10; 0 stands where there was none.
    return np.array(estimates), np.where(unscaled > 0, unscaled, np.nan)
