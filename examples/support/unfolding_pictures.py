# SPDX-License-Identifier: MIT
"""Pictures of an unfolded layer: the fold, its flat space, and estimates beside each other."""

from __future__ import annotations

from pathlib import Path
from typing import Any

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.cm import ScalarMappable
from matplotlib.colors import Normalize

from support.fold import AXES, LABEL
from support.pictures import save_figure
from support.samples import Array
from support.unfolded import Study

GRADES, ERRORS, GREYS = "viridis", "RdBu_r", "Greys"
NEAR = 10.0  # metres from a section, of the samples that are drawn on it
SECTION = 62.5  # along y, metres: about halfway between two lines of holes


def draw_fold(path: Path, study: Study) -> None:
    """The layer in space, and a section with a path inside of it beside the straight line."""
    figure = plt.figure(figsize=(13, 4.8))
    space: Any = figure.add_axes((0.01, 0.02, 0.37, 0.96), projection="3d")
    section = figure.add_axes((0.47, 0.22, 0.44, 0.62))
    shade, places = _grades(study), study.blocks.locations
    x, y, z = places.T
    space.scatter(
        x, y, z, c=study.known, s=5, cmap=GRADES, norm=shade, linewidths=0, depthshade=False
    )
    space.set(xlabel=AXES[0], ylabel=AXES[1], zticks=[-20, 0, 20])
    space.set_title("the layer, coloured by known grade", y=0.94)
    space.set_box_aspect(np.ptp(places, axis=0), zoom=1.05)
    space.view_init(28, -62)

    way = study.path
    at = float(way.places[:, 1].mean())
    _section(section, study, np.ones(len(places)), at, GREYS, Normalize(0, 4))
    drawn = _samples(section, study, at)
    inside = f"inside the layer: {way.length:.0f} m"
    section.plot(way.places[:, 0], way.places[:, 2], color="C3", lw=2, label=inside)
    ends = way.places[[0, -1]]
    straight = f"straight: {way.straight():.0f} m"
    section.plot(ends[:, 0], ends[:, 2], ":", color="C3", lw=2, label=straight)
    section.set_title(f"section at y = {at:.0f} m, samples within {NEAR:.0f} m of it")
    section.legend(loc="upper center", bbox_to_anchor=(0.5, -0.2), ncols=3)
    bar = figure.add_axes((0.93, 0.22, 0.012, 0.62))
    figure.colorbar(drawn, cax=bar, label=LABEL, extend="both")
    save_figure(figure, path)


def draw_flat_space(path: Path, study: Study) -> None:
    """Blocks where they lie in the flat space, by known grade and by the estimate there."""
    figure = plt.figure(figsize=(12, 8), layout="constrained")
    spots = figure.subplots(2, 1, sharex=True, sharey=True)
    shade = _grades(study)
    u, v = study.flat_blocks[:, :2].T
    panels = ("known grade of blocks", study.known), ("kriged here", study.estimates[-1].values)
    for spot, (title, values) in zip(spots, panels):
        spot.scatter(u, v, c=values, s=26, cmap=GRADES, norm=shade, linewidths=0)
        spot.set(ylabel="second axis (m)", aspect="equal", title=title)
    u, v = study.flat_samples.locations[:, :2].T
    drawn = _dots(spots[1], u, v, study.samples.values, shade)
    spots[1].set(xlabel="first axis of the flat space (m)", title="kriged here, from the samples")
    figure.colorbar(drawn, ax=[*spots], label=LABEL, shrink=0.7, aspect=30, extend="both")
    save_figure(figure, path)


def draw_estimates(path: Path, study: Study) -> None:
    """A section of the known grade and of all estimates, with the errors of these beside them."""
    figure, spots = plt.subplots(4, 2, figsize=(13, 12), layout="constrained")
    shade = _grades(study)
    drawn = _section(spots[0, 0], study, study.known, SECTION, GRADES, shade)
    _samples(spots[0, 0], study, SECTION)
    spots[0, 0].set_title(f"known grade at y = {SECTION:.1f} m, samples within {NEAR:.0f} m")
    _scatter(spots[0, 1], study)
    errors = [one.values - study.known for one in study.estimates]
    width = float(np.percentile(np.abs(errors[0]), 95))
    spread = Normalize(-width, width)
    for row, one, error in zip(spots[:0:-1], study.estimates, errors):
        _section(row[0], study, one.values, SECTION, GRADES, shade)
        row[0].set_title(one.name)
        off = _section(row[1], study, error, SECTION, ERRORS, spread)
        row[1].set_title(f"its error; rms of all blocks {np.sqrt(np.mean(error**2)):.2f} %")
    figure.colorbar(drawn, ax=[*spots[:, 0]], label=LABEL, shrink=0.5, aspect=30, extend="both")
    label = "estimate less known grade (%)"
    figure.colorbar(off, ax=[*spots[:, 1]], label=label, shrink=0.5, aspect=30, extend="both")
    save_figure(figure, path)


def _scatter(spot: Axes, study: Study) -> None:
    for one, colour in zip(study.estimates, ("0.75", "C1", "C0")):
        spot.scatter(study.known, one.values, 2, colour, linewidths=0, label=one.name)
    ends = study.known.min(), study.known.max()
    spot.plot(ends, ends, color="black", lw=0.8)
    spot.set(xlabel="known " + LABEL, ylabel="estimate (%)", title="all blocks")
    spot.legend(markerscale=5, loc="upper left", fontsize=8)


def _section(
    spot: Axes, study: Study, values: Array, y: float, colours: str, norm: Normalize
) -> ScalarMappable:
    """The blocks of the layer of cells that holds this place along y."""
    blocks = study.blocks
    layer = int(blocks.indices(np.array([0, y, 0]))[1])
    low = blocks.origin - blocks.cell_size / 2
    high = low + blocks.cell_size * blocks.model.number_of_cells()
    spot.set(xlabel=AXES[0], ylabel=AXES[2], facecolor="0.95")
    return spot.imshow(
        blocks.filled(values)[:, layer].T,
        origin="lower",
        extent=(low[0], high[0], low[2], high[2]),
        cmap=colours,
        norm=norm,
        interpolation="nearest",
    )


def _samples(spot: Axes, study: Study, y: float) -> ScalarMappable:
    near = np.abs(study.samples.locations[:, 1] - y) < NEAR
    x, _, z = study.samples.locations[near].T
    return _dots(spot, x, z, study.samples.values[near], _grades(study))


def _dots(spot: Axes, x: Array, y: Array, values: Array, norm: Normalize) -> ScalarMappable:
    return spot.scatter(
        x, y, c=values, s=22, cmap=GRADES, norm=norm, edgecolors="black", linewidths=0.5, zorder=3
    )


def _grades(study: Study) -> Normalize:
    """Colours over all but the outermost 1 % at each end."""
    low, high = np.percentile(study.known, [1, 99])
    return Normalize(low, high)
