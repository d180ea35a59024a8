# SPDX-License-Identifier: MIT
"""Searches for models of samples: one for all of them, and one for each of several groups."""

from __future__ import annotations

from collections.abc import Callable
from dataclasses import dataclass

import gravelox
import numpy as np

from support.samples import Array, Samples

N_SEARCHES = 3  # that find_models runs

# Samples rate a candidate by how well small parts of them estimate each other: in groups of about
# three partitions, so that distances in a partition are not far above those to a target's
# neighbours.
GROUP, N_GROUPS, PARTITION = 60, 60, (15, 25)
N_LOCAL_GROUPS = 12
# Long ranges are no fault, and the penalty would depend on the unit of length.
NO_PENALTY = 0.0
RANGES = (0.02, 0.4)  # of candidates, as shares of the diagonal of the samples' box
LOCAL_RANGES = (0.05, 0.7)  # of that of a group's
REACH = 3.0  # of a group, in diagonals of the samples' box over the number of groups
STRUCTURES, TILT, STRETCH, SILLS = 2, 20.0, (0.5, 3.0), (0.1, 1.0)  # of nested candidates
N_NESTED = 1000


@dataclass(frozen=True)
class Settings:
    power: float
    n_groups: int
    group_size: int
    n_tries: int
    n_threads: int


@dataclass(frozen=True)
class Models:
    """What the searches found, and how many samples they looked at."""

    ellipsoid: gravelox.Ellipsoid
    nested: list[gravelox.Covariance]
    local: gravelox.LocalCovariances
    n_samples: int


def find_models(samples: Samples, settings: Settings, step: Callable[[], object]) -> Models:
    """One ellipsoid, a nested model around it, and local ellipsoids; a step after each search."""
    spread = thin_out(samples)
    places, values = spread.locations, spread.values
    diagonal = float(np.linalg.norm(np.ptp(places, axis=0)))
    kernel = gravelox.Kernel.spherical
    ellipsoid, _ = gravelox.optimize_ellipsoid(
        places, values, kernel, *RANGES, _parameters(settings, N_GROUPS)
    )
    step()
    nested, _ = gravelox.optimize_covariance_using_idw(
        places,
        values,
        ellipsoid,
        kernel,
        n_kernels=STRUCTURES,
        n_covs=N_NESTED,
        delta_angle=TILT,
        min_str_range=STRETCH[0],
        max_str_range=STRETCH[1],
        min_sill=SILLS[0],
        max_sill=SILLS[1],
        min_range=0,  # this and other arguments of 0 below are not read
        max_range=0,
        power_a=settings.power,
        max_distance=diagonal,
        max_nei_size=GROUP,
        min_partition_size=PARTITION[0],
        max_partition_size=PARTITION[1],
        n_partitions=4,
        regularization_const=NO_PENALTY,
        n_centers=N_GROUPS,
        n_rays=0,
        n_scales=0,
        n_iterations=settings.n_tries,
        n_iterations_without_upgrade=settings.n_tries,
        tol=0,
        n_threads=settings.n_threads,
        debug=False,
    )
    step()
    local = gravelox.optimize_local_ellipsoids(
        places,
        values,
        kernel,
        *LOCAL_RANGES,
        settings.n_groups,
        REACH,
        settings.group_size,
        _parameters(settings, N_LOCAL_GROUPS),
    )
    step()
    return Models(ellipsoid, nested, _with_small_errors(local, diagonal), len(values))


def _parameters(settings: Settings, n_groups: int) -> gravelox.EllipsoidOptimizationParameters:
    return gravelox.EllipsoidOptimizationParameters(
        power_a=settings.power,
        max_nei_size=GROUP,
        min_partition_size=PARTITION[0],
        max_partitions_size=PARTITION[1],
        n_centers=n_groups,
        n_rays=200,
        tol=0.005,
        n_scales=5,
        n_iterations=settings.n_tries,
        n_iterations_without_upgrade=settings.n_tries,
        regularization_const=NO_PENALTY,
        n_threads=settings.n_threads,
    )


def thin_out(samples: Samples, seed: int = 1) -> Samples:
    """One sample for each cell as wide as drill holes stand apart and a quarter as high.

    Along a hole samples lie so close that they would estimate each other, and a search would find
    nothing but what joins them. Samples without holes stay as they are.
    """
    names = np.unique(samples.holes)
    if len(names) < 2:
        return samples
    collars = [samples.locations[samples.holes == name, :2].mean(axis=0) for name in names]
    lags = np.array(collars)[:, None, :] - collars
    distances = np.linalg.norm(lags, axis=2) + np.diag(np.full(len(names), np.inf))
    width = float(np.median(distances.min(axis=0)))
    walk = np.random.default_rng(seed).permutation(len(samples.values))
    cells = np.floor(samples.locations[walk] / (width, width, width / 4))
    chosen = np.zeros(len(walk), dtype=bool)
    chosen[walk[np.unique(cells, axis=0, return_index=True)[1]]] = True
    return samples.select(chosen)


def _with_small_errors(
    local: gravelox.LocalCovariances, diagonal: float
) -> gravelox.LocalCovariances:
    """The same, with errors that make distances to centres shares of the samples' box.

    Proportions of errors are what counts. Weights fall with a power of error times distance, and
    where they add up to less than 1e-10 there is no estimate.
    """
    errors = np.array(local.errors) / diagonal
    return gravelox.LocalCovariances(local.centers, local.covariances, errors)


def plan_axes(ellipsoid: gravelox.Ellipsoid) -> Array:
    """The half-axes, long one first, of the ellipse in which a horizontal plane cuts it."""
    across = ellipsoid.matrix()[:, :2]
    squares, axes = np.linalg.eigh(across.T @ across)
    return np.asarray(axes.T / np.sqrt(squares)[:, None])
