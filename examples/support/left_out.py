# SPDX-License-Identifier: MIT
"""Estimates of left-out samples by four methods, with models that never saw them."""

from __future__ import annotations

from collections.abc import Callable
from dataclasses import dataclass

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.model import N_FOLDS, folds_left_out
from support.model_search import Models
from support.samples import Array, Samples
from support.scaled_kriging import Limits, krige, scale_sills

METHODS = ("inverse distance", "kriging, isotropic", "kriging, one model", "ensemble")
ISOTROPIC, ONE_MODEL, ENSEMBLE = 1, 2, 3


@dataclass(frozen=True)
class LeftOut:
    """Estimates by method (4, n), the truths (n,) and the part that each sample is in (n,)."""

    estimates: Array
    truths: Array
    parts: NDArray[np.int64]

    def errors(self) -> Array:
        """Absolute ones, of the samples that all methods estimate."""
        return np.asarray(np.abs(self.estimates - self.truths)[:, self.known()])

    def known(self) -> NDArray[np.bool_]:
        return np.asarray(~np.isnan(self.estimates).any(axis=0))

    def correlation(self, method: int) -> float:
        known = self.known()
        return float(np.corrcoef(self.estimates[method][known], self.truths[known])[0, 1])

    def parts_won(self, method: int, against: int) -> int:
        """Parts in which the method's mean absolute error is the smaller one."""
        errors, parts = self.errors(), self.parts[self.known()]
        gains = errors[against] - errors[method]
        return int(np.sum(np.bincount(parts, gains, minlength=N_FOLDS) > 0))


def leave_out(samples: Samples, find: Callable[[Samples], Models], limits: Limits) -> LeftOut:
    """Each part of the samples, whole holes, estimated from the others with models of these."""
    parts = folds_left_out(samples)
    estimates = np.full((len(METHODS), len(parts)), np.nan)
    for part in range(N_FOLDS):
        inside = parts == part
        others = samples.select(~inside)
        targets = samples.locations[inside]
        estimates[:, inside] = _by_all_methods(targets, others, find(others), limits)
    return LeftOut(estimates, samples.values, parts)


def _by_all_methods(targets: Array, samples: Samples, models: Models, limits: Limits) -> Array:
    search = gravelox.Neighborhood(samples.locations)
    inverse_distance = gravelox.IDW(
        power_a=2,
        max_neighbors=limits.neighbors,
        max_neighbors_octant=limits.octant,
        dhids=samples.holes,
        max_neis_by_dhid=limits.hole,
    )
    longest = models.ellipsoid.info().r1()
    sphere = gravelox.Ellipsoid(longest, longest, longest, 90, 0, 0)
    alike = [gravelox.Covariance.spherical(1.0, sphere)]
    along = gravelox.Neighborhood(samples.locations, models.ellipsoid)
    return np.array(
        [
            inverse_distance(targets, search, samples.locations, samples.values),
            krige(targets, samples, alike, search, limits)[0],
            krige(targets, samples, models.nested, along, limits)[0],
            estimate_by_ensemble(targets, samples, models, limits),
        ]
    )


def estimate_by_ensemble(targets: Array, samples: Samples, models: Models, limits: Limits) -> Array:
    """Ordinary kriging by each local model, blended; the sills are scaled as in krige."""
    standardised = np.array([-1.0, 1.0])  # what the estimator makes of the values
    local = gravelox.LocalCovariances(
        models.local.centers,
        [scale_sills(model, standardised)[0] for model in models.local.covariances],
        models.local.errors,
    )
    return np.array(
        gravelox.ensemble_estimation(
            targets,
            samples.locations,
            samples.values,
            local,
            models.ellipsoid,
            max_size=limits.neighbors,
            max_distance=-1,
            max_cov_neis=0,  # all models
            max_neis_octant=limits.octant,
            power_a=2,
            max_weight=0.9,
            dhids=samples.holes,
            max_neis_by_dhid=limits.hole,
        )
    )
