# SPDX-License-Identifier: MIT
"""Pictures of rock types: sections with their holes, and transitions at all lags."""

from __future__ import annotations

from pathlib import Path
from typing import Protocol

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.cm import ScalarMappable
from matplotlib.colors import Colormap, ListedColormap, Normalize
from matplotlib.patches import Patch

from support.pictures import save_figure
from support.rocks import (
    CELL,
    COLUMNS,
    LEVELS,
    NAMES,
    Classes,
    Section,
    Transitions,
    most_frequent,
    upward,
)
from support.samples import Array

COLOURS = ("#e8c468", "#8aa29e", "#5d4037")
STRETCH = 3.0  # of heights, in pictures of the section
EXTENT = (0.0, COLUMNS * CELL[0], 0.0, LEVELS * CELL[2])


class Model(Protocol):
    @property
    def stretch(self) -> float: ...
    def at(self, lags: Array) -> Array: ...


def draw_section(path: Path, section: Section, realisations: Classes) -> None:
    """Truth and holes, two realisations, the most frequent type of all and how frequent it is."""
    figure, spots = plt.subplots(
        3, 2, sharex=True, sharey=True, figsize=(14, 8.6), layout="constrained"
    )
    logged = np.where(np.isin(np.arange(COLUMNS), section.holes)[:, None], section.truth, -1)
    number = len(realisations)
    first, frequency = most_frequent(realisations)
    panels = [
        ("truth, and where the holes are", section.truth),
        (f"what {len(section.holes)} holes tell", np.ma.masked_less(logged, 0)),
        ("realisation 1", realisations[0]),
        ("realisation 2", realisations[1]),
        (f"most frequent type of {number} realisations", first),
    ]
    types = Normalize(-0.5, len(NAMES) - 0.5)
    for spot, (title, classes) in zip(spots.flat, panels):
        _cells(spot, title, classes, ListedColormap(COLOURS), types)
    for x in (section.holes + 0.5) * CELL[0]:
        spots[0, 0].axvline(x, color="k", lw=0.8)
    drawn = _cells(spots[2, 1], "its frequency", frequency, "magma", Normalize(1 / len(NAMES), 1))
    figure.colorbar(drawn, ax=spots[2, 1], shrink=0.9)
    for spot in spots[:, 0]:
        spot.set_ylabel("height (m)")
    for spot in spots[2]:
        spot.set_xlabel("along the section (m)")
    patches = [Patch(color=colour, label=name) for name, colour in zip(NAMES, COLOURS)]
    figure.legend(handles=patches, loc="outside upper center", ncols=3)
    save_figure(figure, path)


def _cells(
    spot: Axes, title: str, values: Array | Classes, colours: Colormap | str, norm: Normalize
) -> ScalarMappable:
    """One layer of cells, heights stretched."""
    spot.set_title(title)
    spot.set_facecolor("0.95")
    return spot.imshow(
        values.T,
        origin="lower",
        extent=EXTENT,
        aspect=STRETCH,
        cmap=colours,
        norm=norm,
        interpolation="nearest",
    )


def draw_transitions(
    path: Path,
    counted: tuple[Transitions, Transitions],
    model: Model,
    realisations: Classes,
) -> None:
    """A panel for each pair of types; lags sideways are divided by the stretch of the model."""
    up, sideways = counted
    figure, spots = plt.subplots(
        3, 3, sharex=True, sharey=True, figsize=(12, 10), layout="constrained"
    )
    lengths = np.linspace(0, up.lags[-1], 200)
    simulated = [upward(one) for one in realisations]
    curves = model.at(lengths)
    for (j, k), spot in np.ndenumerate(spots):
        for one in simulated:
            spot.plot(one.lags, one.shares[:, j, k], color="0.6", lw=0.7, alpha=0.7)
        spot.plot([], [], color="0.6", label="realisations, upwards")
        spot.plot(up.lags, up.shares[:, j, k], "C3o", ms=3.5, label="holes, upwards")
        near = sideways.lags / model.stretch <= up.lags[-1]
        at = sideways.lags[near] / model.stretch
        spot.plot(at, sideways.shares[near, j, k], "C1s", ms=6, label="holes, sideways")
        spot.plot(lengths, curves[:, j, k], "k", label="fitted chain")
        spot.set_title(f"{NAMES[j]} to {NAMES[k]}")
        spot.set(xlim=(0, up.lags[-1]), ylim=(-0.02, 1.02))
    for spot in spots[2]:
        spot.set_xlabel("lag upwards, or sideways over the stretch (m)")
    for spot in spots[:, 0]:
        spot.set_ylabel("share of pairs")
    spots[0, 0].legend(fontsize=9)
    save_figure(figure, path)
