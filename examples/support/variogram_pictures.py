# SPDX-License-Identifier: MIT
"""Pictures of variograms: those along the principal axes, and maps in planes of lag space."""

from __future__ import annotations

from collections.abc import Sequence
from pathlib import Path
from typing import NamedTuple

import gravelox
import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.cm import ScalarMappable
from matplotlib.figure import FigureBase
from matplotlib.ticker import MaxNLocator

from support.directional import Directional, Lags, line_text
from support.nested import Nested
from support.pictures import save_figure
from support.samples import Array, InputError
from support.variogram_maps import Map

NAMES = ("first", "second", "third")
SIDES = ("to the east", "to the north", "upwards")
MIN_PAIRS = 30  # distinct ones; a lag of a map that rests on fewer is left out
MIN_LAGS = 100  # that a plane takes to be drawn
NEAR_PLANE = np.sin(np.radians(25))  # an axis farther than this from a plane is not drawn on it


class Labels(NamedTuple):
    value: str
    unit: str


def draw_directional(
    path: Path, curves: Sequence[Directional], model: Nested, variance: float, labels: Labels
) -> None:
    """A panel for each axis: lags with pair counts as areas, smooth curve, model and variance."""
    figure, spots = plt.subplots(
        1,
        len(curves),
        sharey=True,
        squeeze=False,
        figsize=(5 * len(curves), 4.8),
        layout="constrained",
    )
    of_model = gravelox.variogram_computer(model.structures(variance), variance)
    for spot, name, curve in zip(spots.flat, NAMES, curves):
        lags, pairs = curve.lags, curve.lags.npairs
        named = f"lags, area by pair count (up to {pairs.max():,})"
        areas = 1 + 70 * pairs / pairs.max()
        spot.scatter(lags.lengths, lags.values, areas, "0.65", linewidths=0, label=named)
        spot.plot(curve.smooth.lengths, curve.smooth.values, "C0", lw=2, label="smoothed")
        lengths = np.linspace(0, curve.reach, 200)[1:]
        spot.plot(lengths, [of_model(t * curve.axis) for t in lengths], "C3", label="model")
        spot.axhline(variance, color="0.3", ls=":", label="variance of the samples")
        spot.set_title(f"{name} axis: {line_text(curve.axis)}")
        spot.set(xlabel=f"lag ({labels.unit})", xlim=(0, curve.reach))
        spot.legend(loc="lower right", fontsize=8)
    top = max(variance, *(curve.smooth.values.max() for curve in curves))
    spots[0, 0].set(ylabel=labels.value, ylim=(0, 1.3 * top))
    save_figure(figure, path)


def draw_maps(path: Path, maps: Sequence[Map], axes: Array, flat: bool, labels: Labels) -> None:
    """The planes of each map: the plan of flat samples, else the plan and two sections.

    A plane shows the lags up to a cell away from it, drawn as a surface, each at its opposite lag
    too, whose semivariance is the same. The rows of `axes` are drawn over it, as long as they are.
    """
    planes = [(0, 1, 2)] if flat else [(0, 1, 2), (0, 2, 1), (1, 2, 0)]
    figure = plt.figure(figsize=(12, 5.6) if flat else (15, 4.6 * len(maps)), layout="constrained")
    rows, columns = (1, len(maps)) if flat else (len(maps), 1)
    for half, one in zip(figure.subfigures(rows, columns), maps):
        half.suptitle(one.title)
        spots = list(np.atleast_1d(half.subplots(1, len(planes))))
        _draw_map(half, spots, one, planes, axes, labels)
    save_figure(figure, path)


def _draw_map(
    figure: FigureBase,
    spots: list[Axes],
    one: Map,
    planes: Sequence[tuple[int, int, int]],
    axes: Array,
    labels: Labels,
) -> None:
    # On a grid every pair counts twice.
    known = one.lags.select(one.lags.npairs >= 2 * MIN_PAIRS)
    for plane in planes:
        on_plane = np.abs(known.vectors[:, plane[2]]) <= one.cell_size[plane[2]]
        if np.count_nonzero(on_plane) < MIN_LAGS:
            raise InputError(f"{one.title}: too few pairs for a map; choose another --block")
    levels = MaxNLocator(20).tick_values(0, float(np.percentile(known.values, 99)))
    for spot, plane in zip(spots, planes):
        drawn = _draw_plane(spot, known, plane, one.cell_size, levels)
        _draw_axes(spot, axes, plane)
        right, up, _ = plane
        spot.set_xlabel(f"lag {SIDES[right]} ({labels.unit})")
        spot.set_ylabel(f"lag {SIDES[up]} ({labels.unit})")
    figure.colorbar(drawn, ax=spots, label=labels.value, aspect=30)


def _draw_plane(
    spot: Axes, lags: Lags, plane: tuple[int, int, int], cell_size: Array, levels: Sequence[float]
) -> ScalarMappable:
    right, up, normal = plane
    near = lags.select(np.abs(lags.vectors[:, normal]) <= cell_size[normal])
    x, y = (np.concatenate([part, -part]) for part in near.vectors[:, (right, up)].T)
    values = np.concatenate([near.values, near.values])
    drawn = spot.tricontourf(x, y, values, levels, cmap="viridis", extend="max")
    stretch = 1 if normal == 2 else max(1, round(np.ptp(x) / np.ptp(y)))
    spot.set_title("plan" if normal == 2 else f"section, vertical stretched {stretch} times")
    spot.set(aspect=stretch, xlim=(x.min(), x.max()), ylim=(y.min(), y.max()))
    spot.locator_params(nbins=5)
    return drawn


def _draw_axes(spot: Axes, axes: Array, plane: tuple[int, int, int]) -> None:
    """The axes that lie near the plane, as lines through the origin."""
    right, up, normal = plane
    for name, axis, style in zip(NAMES, axes, ("-", "--", ":")):
        if abs(axis[normal]) < NEAR_PLANE * np.linalg.norm(axis):
            ends = [-axis, axis]
            x, y = [end[right] for end in ends], [end[up] for end in ends]
            spot.plot(x, y, style, color="white", label=f"{name} axis")
    if spot.lines:
        spot.legend(loc="upper right", fontsize=8, labelcolor="white", facecolor="0.3")
