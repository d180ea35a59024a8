# SPDX-License-Identifier: MIT
"""A picture of scatter matrices: of samples and simulated values, and of the samples' scores."""

from __future__ import annotations

from pathlib import Path
from typing import Any

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.figure import Figure
from matplotlib.lines import Line2D

from support.pictures import save_figure
from support.samples import Array
from support.variables import Variables

N_DRAWN = 2000  # dots of a panel for each set; more would be a blot
N_BARS = 40
WIDEST_SCORE = 4.2  # a few scores are farther out, as far as -8.2
SAMPLES, SIMULATED, SCORES = "C3", "C0", "0.35"


def draw_scatter_matrices(
    path: Path, samples: Variables, scores: Array, simulated: Array, rng: np.random.Generator
) -> None:
    """Samples and simulated values over each other below the diagonal, the scores above it.

    The dots of the two sets are drawn in random order, so that neither hides the other.
    """
    d, n = samples.values.shape
    drawn = rng.permutation(n)[:N_DRAWN]
    both = np.hstack([samples.values[:, drawn], simulated[:, drawn]])
    colours = np.repeat([SAMPLES, SIMULATED], len(drawn))
    order = rng.permutation(len(colours))
    figure, spots = plt.subplots(d, d, figsize=(2.5 * d + 1, 2.3 * d + 1), layout="constrained")
    for (row, column), spot in np.ndenumerate(spots):
        if row < column:
            _dots(spot, scores[column, drawn], scores[row, drawn], SCORES)
            spot.set(xlim=(-WIDEST_SCORE, WIDEST_SCORE), ylim=(-WIDEST_SCORE, WIDEST_SCORE))
            for axis, side in ((spot.xaxis, "top"), (spot.yaxis, "right")):
                axis.set_ticks_position(side)
                axis.set_label_position(side)
            _label(spot, row == 0, f"score {column + 1}", column == d - 1, f"score {row + 1}")
            continue
        spot.set_xlim(_span(samples.values[column]))
        if row == column:
            _bars(spot, samples.values[row], simulated[row])
            spot.set_title(samples.labels[row], fontsize=10, pad=4)
            _label(spot, row == d - 1, samples.labels[column], False, "")
        else:
            _dots(spot, both[column, order], both[row, order], colours[order])
            spot.set_ylim(_span(samples.values[row]))
            _label(spot, row == d - 1, samples.labels[column], column == 0, samples.labels[row])
    _explain(figure, len(drawn))
    save_figure(figure, path)


def _span(values: Array) -> tuple[float, float]:
    """All but the outermost 0.5 % at each end, which would squeeze the rest."""
    low, high = np.percentile(values, [0.5, 99.5])
    pad = 0.05 * (high - low)
    return float(low - pad), float(high + pad)


def _dots(spot: Axes, x: Array, y: Array, colour: Any) -> None:
    spot.scatter(x, y, 3, colour, linewidths=0, alpha=0.6, rasterized=True)


def _bars(spot: Axes, samples: Array, simulated: Array) -> None:
    edges = np.linspace(*_span(samples), N_BARS + 1)
    heights = [np.histogram(one, edges)[0] / len(one) for one in (samples, simulated)]
    spot.stairs(heights[0], edges, fill=True, color=SAMPLES, alpha=0.35)
    spot.stairs(heights[1], edges, color=SIMULATED, lw=1.5)


def _label(spot: Axes, x_shown: bool, x_label: str, y_shown: bool, y_label: str) -> None:
    """Ticks and labels at the rim of the matrix only."""
    spot.tick_params(labelsize=8)
    if x_shown:
        spot.set_xlabel(x_label)
    else:
        spot.set_xticks([])
    if y_shown:
        spot.set_ylabel(y_label)
    else:
        spot.set_yticks([])


def _explain(figure: Figure, n_drawn: int) -> None:
    sets = (SAMPLES, "samples"), (SIMULATED, "simulated"), (SCORES, "scores of the samples")
    handles = [
        Line2D([], [], ls="", marker="o", color=colour, label=f"{n_drawn:,} {name}")
        for colour, name in sets
    ]
    figure.legend(handles=handles, loc="outside upper center", ncols=3)
