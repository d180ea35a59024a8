# SPDX-License-Identifier: MIT
"""Directional variograms: principal axes, the lags along an axis, a smooth curve through them."""

from __future__ import annotations

from dataclasses import dataclass

import gravelox
import numpy as np
from numpy.typing import NDArray

from support.samples import Array, InputError

MIN_LAGS = 20  # to choose axes by
FEW = 0.01  # of the most pairs along an axis: with fewer a smooth curve is not drawn


@dataclass(frozen=True)
class Lags:
    """Lags as arrays: vectors (n, 3), semivariances (n,) and pair counts (n,)."""

    vectors: Array
    values: Array
    npairs: NDArray[np.int64]

    @classmethod
    def of(cls, variogram: gravelox.ExperimentalVariogram) -> Lags:
        vectors = np.array(variogram.lags()).reshape(-1, 3)
        return cls(vectors, np.array(variogram.variogram()), np.array(variogram.npairs(), int))

    @property
    def lengths(self) -> Array:
        return np.linalg.norm(self.vectors, axis=1)

    @property
    def weights(self) -> Array:
        """Pairs over length, for fits: what happens at short lags matters most."""
        return np.asarray(self.npairs / self.lengths)

    def select(self, chosen: NDArray[np.bool_]) -> Lags:
        return Lags(self.vectors[chosen], self.values[chosen], self.npairs[chosen])


@dataclass(frozen=True)
class Directional:
    """The variogram along an axis, up to half of the samples' extent that way."""

    axis: Array
    reach: float
    lags: Lags  # laid along the axis by their lengths
    smooth: Lags


def principal_axes(lags: Lags, reach: float, flat: bool) -> Array:
    """Unit vectors in rows: where values stay alike the longest, across it, and square to both.

    A line through the lags up to a length, semivariance = nugget + slope * length, with a slope
    that depends on the direction d as d^T A d: the axes are the eigenvectors of A. On flat samples
    the third one is vertical.
    """
    near = lags.select(lags.lengths < reach)
    if len(near.values) < MIN_LAGS:
        raise InputError(
            f"only {len(near.values)} lags up to {reach:g}; "
            "choose a larger --window, --bandwidth, --angle-tol or more --directions"
        )
    n_axes = 2 if flat else 3
    a, b = np.triu_indices(n_axes)
    directions = near.vectors / near.lengths[:, None]
    products = directions[:, a] * directions[:, b] * near.lengths[:, None]
    terms = np.column_stack([np.ones(len(products)), products])
    weights = np.sqrt(near.weights)
    line, *_ = np.linalg.lstsq(terms * weights[:, None], near.values * weights, rcond=None)
    slopes = np.zeros((n_axes, n_axes))
    slopes[a, b] += line[1:] / 2
    slopes[b, a] += line[1:] / 2
    axes = np.eye(3)
    axes[:n_axes, :n_axes] = np.linalg.eigh(slopes)[1].T
    return _usual_way_round(axes)


def _usual_way_round(axes: Array) -> Array:
    """The first axis with an azimuth below 180 degrees, the third one upwards, right-handed."""
    first, _, third = axes
    first = first if first[0] >= 0 else -first
    third = third if third[2] >= 0 else -third
    return np.array([first, np.cross(third, first), third])


def angles(axes: Array) -> tuple[float, float, float]:
    """Azimuth, dip and rake of the rotation whose matrix has these rows."""
    azimuth, dip = azimuth_and_dip(axes[0])
    _, left, above = gravelox.Rotation(azimuth, dip, 0).matrix()
    return azimuth, dip, float(np.degrees(np.arctan2(axes[1] @ above, axes[1] @ left)))


def azimuth_and_dip(axis: Array) -> tuple[float, float]:
    azimuth = np.degrees(np.arctan2(axis[0], axis[1])) % 360
    return float(azimuth), float(np.degrees(np.arcsin(np.clip(axis[2], -1, 1))))


def line_text(axis: Array) -> str:
    """Azimuth and dip of the line, of whose two ends the upper one, or else the eastern one."""
    steep = abs(axis[2]) > np.sin(np.radians(45))
    other_end = axis[2] < 0 if steep else axis[0] < 0
    azimuth, dip = azimuth_and_dip(-axis if other_end else axis)
    return f"azimuth {round(azimuth) % 360}, dip {round(dip)}"


def along(lags: Lags, axis: Array, reach: float, cone: float) -> Directional:
    """The lags within `cone` degrees of an axis to either side, and a smooth curve through them.

    Laid along the axis, all lags of the cone take part in the smoothing by their lengths, whichever
    direction they come from. A new lag is the mean of the old ones up to a tenth of the reach away,
    weighted by pairs alone: with a power of the distance one lag of few pairs near it would win.
    """
    lengths = lags.lengths
    cosines = np.abs(lags.vectors @ axis) / lengths
    chosen = (cosines > np.cos(np.radians(cone))) & (lengths < reach)
    if not chosen.any():
        raise InputError(
            f"no pairs along {line_text(axis)}; choose a larger --bandwidth, --angle-tol or --cone"
        )
    some = lags.select(chosen)
    laid = Lags(some.lengths[:, None] * axis, some.values, some.npairs)
    one = gravelox.ExperimentalVariogram(
        laid.vectors, laid.values, laid.npairs, [0] * len(laid.values), [axis]
    )
    smooth = gravelox.smooth_variogram(
        one,
        n_lags=300,
        max_n_neis=0,
        max_r=reach / 10,
        bandwidth=reach,  # all old lags lie on the axis
        power_a=0,
        max_weight=0.5,
        sampling_size=0,
    )
    curve = Lags.of(smooth)
    held = (curve.npairs > FEW * curve.npairs.max()) & (curve.lengths < laid.lengths.max())
    return Directional(axis, reach, laid, curve.select(held))
