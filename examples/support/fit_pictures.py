# SPDX-License-Identifier: MIT
"""A picture of fits to a variogram with outliers: curves, misfits, and what lags count for."""

from __future__ import annotations

from collections.abc import Sequence
from pathlib import Path
from typing import Protocol

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
from matplotlib.axes import Axes

from support.lags import Curve
from support.pictures import save_figure
from support.samples import Array

STYLES = (("k", "--"), ("C1", "-"), ("C0", "-"))


class Drawable(Protocol):
    """A fit: its name, its model at the lags, and as lengths with values."""

    @property
    def name(self) -> str: ...
    @property
    def at_lags(self) -> Array: ...
    @property
    def smooth(self) -> tuple[Array, Array]: ...


def draw_fits(
    path: Path, curve: Curve, fits: Sequence[Drawable], loss: float, label: str, unit: str
) -> None:
    """Above the lags with all models; below the misfits of the fits to the spoiled lags."""
    figure, (upper, lower) = plt.subplots(
        2, 1, sharex=True, figsize=(10, 8.5), height_ratios=(3, 2), layout="constrained"
    )
    _draw_lags(upper, curve, curve.values)
    for fit, (colour, style) in zip(fits, STYLES):
        above = 3 if style == "--" else 2
        name = f"model: lags {fit.name}"
        upper.plot(*fit.smooth, color=colour, ls=style, lw=2, zorder=above, label=name)
    upper.set(ylabel=f"semivariance of {label}, over the variance", ylim=(0, None))
    upper.legend(loc="lower right")
    lower.axhspan(
        -loss, loss, color="C0", alpha=0.15, lw=0, label="scale of the loss at the mean weight"
    )
    lower.axhline(0, color="0.3", lw=1)
    for fit, (colour, _) in list(zip(fits, STYLES))[1:]:
        misfits = curve.values - fit.at_lags
        lower.vlines(curve.lengths, 0, misfits, color=colour, lw=0.8, alpha=0.5)
        for chosen, marker in ((~curve.outliers, "o"), (curve.outliers, "x")):
            lower.plot(curve.lengths[chosen], misfits[chosen], marker, color=colour, ms=5)
        lower.plot([], [], "o-", color=colour, lw=0.8, ms=5, label=fit.name)
    lower.set(ylabel="lag less model", xlabel=f"lag ({unit})", xlim=(0, curve.reach))
    lower.margins(y=0.25)
    lower.legend(loc="upper right", ncols=3)
    save_figure(figure, path)


def _draw_lags(spot: Axes, curve: Curve, values: Array) -> None:
    areas = 15 + 30 * curve.pairs / curve.pairs.max()
    good, bad = ~curve.outliers, curve.outliers
    name = "lags, area by pair count"
    spot.scatter(curve.lengths[good], values[good], areas[good], "0.5", lw=0, label=name)
    spot.plot(curve.lengths[bad], values[bad], "xC3", ms=7, mew=2, label="spoiled lags")
