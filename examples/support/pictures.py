# SPDX-License-Identifier: MIT
"""Pictures of a block model: maps of a flat one, plan and sections of a deep one."""

from __future__ import annotations

from dataclasses import dataclass
from pathlib import Path

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.cm import ScalarMappable
from matplotlib.colors import Normalize
from matplotlib.figure import Figure, FigureBase

from support.blocks import Blocks
from support.report import Estimates
from support.samples import Array, Samples, Truth


@dataclass(frozen=True)
class Shade:
    """How a quantity is coloured."""

    label: str
    colours: str
    norm: Normalize


def _shade(label: str, colours: str, *values: Array) -> Shade:
    """Colours over all but the outermost 1 % at each end, which would wash out the rest."""
    together = np.concatenate([value.ravel() for value in values])
    low, high = np.nanpercentile(together, [1, 99])
    return Shade(label, colours, Normalize(low, high))


def draw_maps(
    path: Path, samples: Samples, blocks: Blocks, estimates: Estimates, truth: Truth | None
) -> None:
    """Samples, estimates and standard deviation of a flat block model, side by side.

    Where the truth is known it comes first, and the kriging error beside the deviation.
    """
    value = _shade(samples.label, "viridis", samples.values, estimates.kriged)
    deviation = np.sqrt(estimates.variances)
    panels = [
        ("ordinary kriging", estimates.kriged, value),
        ("kriging standard deviation", deviation, _shade(samples.label, "magma", deviation)),
        ("inverse distance", estimates.inverse_distance, value),
    ]
    if truth is not None:
        known, _ = truth.at(blocks.locations)
        error = estimates.kriged - known
        width = float(np.nanpercentile(np.abs(error), 99))
        shade = Shade(samples.label, "RdBu_r", Normalize(-width, width))
        panels = [("truth", known, value), *panels]
        panels.insert(3, ("kriging error, estimate less truth", error, shade))
    n_columns = (len(panels) + 2) // 2
    figure, axes = plt.subplots(
        2, n_columns, sharex=True, sharey=True, figsize=(5 * n_columns, 9), layout="constrained"
    )
    spots = list(axes.flat)
    spot = spots.pop(0 if truth is None else 1)
    spot.set_title(f"{len(samples.values):,} samples")
    _colour_bar(figure, _dots(spot, samples, (0, 1), value), value, [spot])
    for spot, (title, values, shade) in zip(spots, panels):
        spot.set_title(title)
        drawn = _cells(spot, blocks, blocks.filled(values)[:, :, 0], (0, 1), shade)
        _colour_bar(figure, drawn, shade, [spot])
    for spot in axes.flat:
        spot.set(xlabel=samples.axes[0], ylabel=samples.axes[1], aspect="equal")
        spot.label_outer()
    save_figure(figure, path)


def draw_sections(path: Path, samples: Samples, blocks: Blocks, estimates: Estimates) -> None:
    """Plan and two sections, of estimate above and standard deviation below, samples over them.

    Each cut goes through the layer of cells that holds most samples, and shows those.
    """
    deviation = np.sqrt(estimates.variances)
    rows = [
        ("estimate", estimates.kriged, _shade(samples.label, "viridis", estimates.kriged)),
        ("standard deviation", deviation, _shade(samples.label, "magma", deviation)),
    ]
    figure = plt.figure(figsize=(13.5, 11), layout="constrained")
    halves = figure.subfigures(2, 1)
    for half, (title, values, shade) in zip(halves, rows):
        half.suptitle(title)
        spots = half.subplot_mosaic([["plan", "along"], ["plan", "across"]])
        for name, normal in (("plan", 2), ("along", 1), ("across", 0)):
            coloured = title == "estimate"
            drawn = _cut(spots[name], normal, samples, blocks, values, shade, coloured)
        _colour_bar(half, drawn, shade, list(spots.values()))
    save_figure(figure, path)


def _cut(
    axis: Axes,
    normal: int,
    samples: Samples,
    blocks: Blocks,
    values: Array,
    shade: Shade,
    coloured: bool,
) -> ScalarMappable:
    """The fullest layer of cells across one grid axis, with the samples in it.

    On maps of another quantity than the samples' the dots are plain.
    """
    layers = blocks.indices(samples.locations)[:, normal]
    layer = int(np.bincount(layers).argmax())
    level = blocks.origin[normal] + layer * blocks.cell_size[normal]
    right, up = (dimension for dimension in range(3) if dimension != normal)
    cells = np.asarray(blocks.filled(values).take(layer, axis=normal))
    drawn = _cells(axis, blocks, cells, (right, up), shade)
    _dots(axis, samples.select(layers == layer), (right, up), shade if coloured else None)
    title = f"{'plan' if normal == 2 else 'section'} at {samples.axes[normal]} = {level:,.6g}"
    stretch = 1
    if normal != 2:
        extent = np.ptp(samples.locations, axis=0)
        stretch = max(1, int(extent[:2].max() / (2.5 * extent[2])))
        title += f", {samples.axes[2]} stretched {stretch} times" if stretch > 1 else ""
    axis.set(title=title, xlabel=samples.axes[right], ylabel=samples.axes[up], aspect=stretch)
    return drawn


def _cells(
    axis: Axes, blocks: Blocks, values: Array, across: tuple[int, int], shade: Shade
) -> ScalarMappable:
    """One layer of cells, drawn with the grid axes given by across to the right and upwards."""
    axis.set_facecolor("0.93")
    edges: list[float] = []
    for dimension, count in zip(across, values.shape):
        low = blocks.origin[dimension] - blocks.cell_size[dimension] / 2
        edges += [low, low + count * blocks.cell_size[dimension]]
    return axis.imshow(
        values.T,
        origin="lower",
        extent=(edges[0], edges[1], edges[2], edges[3]),
        cmap=shade.colours,
        norm=shade.norm,
        interpolation="nearest",
    )


def _dots(
    axis: Axes, samples: Samples, across: tuple[int, int], shade: Shade | None
) -> ScalarMappable:
    """Samples as dots, coloured by value or, without a shade, white."""
    x, y = samples.locations[:, across].T
    if shade is None:
        return axis.scatter(x, y, c="white", s=5, edgecolors="black", linewidths=0.2)
    return axis.scatter(
        x,
        y,
        c=samples.values,
        s=10,
        cmap=shade.colours,
        norm=shade.norm,
        edgecolors="white",
        linewidths=0.2,
    )


def _colour_bar(figure: FigureBase, drawn: ScalarMappable, shade: Shade, axes: list[Axes]) -> None:
    figure.colorbar(drawn, ax=axes, label=shade.label, extend="both", shrink=0.9, aspect=30)


def save_figure(figure: Figure, path: Path) -> None:
    """Writes and closes it."""
    figure.savefig(path, dpi=110)
    plt.close(figure)
