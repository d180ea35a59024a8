# SPDX-License-Identifier: MIT
"""A picture of labelled points in three dimensions."""

from __future__ import annotations

from collections.abc import Mapping
from pathlib import Path
from typing import Any

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.artist import Artist
from matplotlib.ticker import MaxNLocator

from support.pictures import save_figure
from support.planes import Labels
from support.samples import Array

COLOURS = plt.get_cmap("tab10").colors  # type: ignore[attr-defined]
NONE = "0.65"


def draw_labels(path: Path, points: Array, panels: Mapping[str, Labels]) -> None:
    """A view of the points for each set of labels; a label has one colour throughout."""
    every = np.unique(np.concatenate([*panels.values()]))
    colours = {label: COLOURS[i % 10] for i, label in enumerate(every[every >= 0])}
    figure = plt.figure(figsize=(10, 5.6 * len(panels)))
    for number, (title, labels) in enumerate(panels.items(), start=1):
        height = 1 / len(panels)
        bottom = 1 - number * height
        axis: Any = figure.add_axes((0.0, bottom, 1.0, height), projection="3d")
        drawn = _draw_points(axis, points, labels, colours)
        place = (0.03, bottom + 0.02)
        figure.legend(
            handles=drawn, title=title, loc="lower left", bbox_to_anchor=place, markerscale=3
        )
        axis.set(xlabel="x, east", ylabel="y, north", zlabel="z, up")
        for one in (axis.xaxis, axis.yaxis, axis.zaxis):
            one.set_major_locator(MaxNLocator(4))
        axis.set_box_aspect(np.ptp(points, axis=0), zoom=1.2)
        axis.view_init(elev=28, azim=-42)
    save_figure(figure, path)


def _draw_points(
    axis: Any, points: Array, labels: Labels, colours: Mapping[int, tuple[float, ...]]
) -> list[Artist]:
    """Draws the points of each label and gives what stands for them in a legend."""
    around = points[labels < 0]
    name = f"none: {len(around):,} points"
    drawn = [axis.scatter(*around.T, s=3, color=NONE, alpha=0.6, linewidths=0, label=name)]
    for label, colour in colours.items():
        members = points[labels == label]
        if len(members) > 0:
            name = f"label {label}: {len(members):,}"
            drawn.append(axis.scatter(*members.T, s=5, color=colour, linewidths=0, label=name))
    return drawn
