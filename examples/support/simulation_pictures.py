# SPDX-License-Identifier: MIT
"""Pictures of realisations: maps, risk, what they reproduce, and a line through samples."""

from __future__ import annotations

from pathlib import Path
from typing import Any

import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.cm import ScalarMappable
from matplotlib.colors import BoundaryNorm, Normalize
from matplotlib.figure import Figure

from support.pictures import Shade, save_figure
from support.realisations import Study, known_at
from support.samples import Array
from support.scores import Way, ways

PANEL = 4.8  # width of a map in inches
N_BARS = 30  # of a histogram
N_COLOURS = 256  # of matplotlib's scales
GREY: dict[str, Any] = {"color": "0.6", "lw": 0.5, "alpha": 0.6}


class Plan:
    """The layer of blocks that holds most samples: of flat ones the only one."""

    def __init__(self, study: Study) -> None:
        self.blocks, samples = study.blocks, study.samples
        layers = self.blocks.indices(samples.locations)[:, 2]
        self.layer = int(np.bincount(layers).argmax())
        self.samples = samples.select(layers == self.layer)
        level = self.blocks.origin[2] + self.layer * self.blocks.cell_size[2]
        self.title = "" if samples.flat else f"plan at {samples.axes[2]} = {level:,.6g}"

    def figure(self, rows: int) -> tuple[Figure, list[Axes]]:
        """Rows of three maps, as high as the blocks are."""
        nx, ny, _ = self.blocks.cell_size * self.blocks.model.number_of_cells()
        height = PANEL * float(np.clip(ny / nx, 0.3, 2)) + 0.5
        figure, spots = plt.subplots(
            rows,
            3,
            sharex=True,
            sharey=True,
            squeeze=False,
            figsize=(3 * PANEL + 1, rows * height),
            layout="constrained",
        )
        figure.suptitle(self.title)
        for spot in spots.flat:
            spot.set(xlabel=self.samples.axes[0], ylabel=self.samples.axes[1], aspect="equal")
            spot.label_outer()
        return figure, list(spots.flat)

    def draw(self, spot: Axes, title: str, values: Array, shade: Shade) -> ScalarMappable:
        blocks = self.blocks
        cells = blocks.filled(values)[:, :, self.layer]
        x, y = (
            low + size * (np.arange(count + 1) - 0.5)
            for low, size, count in zip(blocks.origin, blocks.cell_size, cells.shape)
        )
        spot.set_facecolor("0.93")
        spot.set_title(title)
        return spot.pcolormesh(x, y, cells.T, cmap=shade.colours, norm=shade.norm, rasterized=True)

    def dots(self, spot: Axes, title: str, shade: Shade) -> None:
        x, y, _ = self.samples.locations.T
        spot.set_facecolor("0.93")
        spot.set_title(title)
        spot.scatter(x, y, 10, self.samples.values, cmap=shade.colours, norm=shade.norm)


def draw_maps(path: Path, study: Study) -> None:
    """Three realisations above; below their mean, the kriging map, and the truth or the samples."""
    values = study.realisations.values
    together = np.concatenate([study.samples.values, *values[:3]])
    low, high = np.percentile(together, [1, 99])
    shade = Shade(study.samples.label, "viridis", Normalize(low, high))
    plan = Plan(study)
    panels = [(f"realisation {number + 1}", values[number]) for number in range(3)]
    panels.append((f"mean of {len(values)} realisations", values.mean(axis=0)))
    panels.append(("ordinary kriging", study.kriged))
    if study.truth is not None:
        panels.append(("truth", known_at(study.truth, study.blocks.locations)[0]))
    figure, spots = plan.figure(2)
    for spot, (title, one) in zip(spots, panels):
        drawn = plan.draw(spot, title, one, shade)
    if study.truth is None:
        plan.dots(spots[-1], f"{len(plan.samples.values):,} samples", shade)
    figure.colorbar(drawn, ax=spots, label=shade.label, extend="both", aspect=40)
    save_figure(figure, path)


def draw_risk(path: Path, study: Study) -> None:
    """Probability above the cut-off, width of the realisations, and where the truth is not in it.

    Without a truth the samples take its place, told apart by the cut-off.
    """
    plan, label = Plan(study), study.samples.label
    low, high = (study.realisations.quantile(share) for share in (0.1, 0.9))
    width = Shade(f"width: {label}", "magma", Normalize(0, float(np.percentile(high - low, 99))))
    chance = Shade("probability", "RdYlBu_r", Normalize(0, 1))
    panels = [
        (f"probability of {label} above {study.cutoff:,.6g}", study.probability(), chance),
        ("10 to 90 % range of the realisations", high - low, width),
    ]
    figure, spots = plan.figure(1)
    for spot, (title, values, shade) in zip(spots, panels):
        drawn = plan.draw(spot, title, values, shade)
        figure.colorbar(drawn, ax=spot, label=shade.label, shrink=0.85)
    if study.truth is None:
        values = study.samples.values
        ends = sorted([values.min() - 1, study.cutoff, values.max() + 1])
        sides = Shade("", "coolwarm", BoundaryNorm(ends, N_COLOURS))
        plan.dots(spots[2], "samples, red above the cut-off", sides)
    else:
        known, _ = known_at(study.truth, study.blocks.locations)
        side = np.where(np.isnan(known), np.nan, (known > high) * 1.0 - (known < low))
        sides = Shade("", "coolwarm", BoundaryNorm([-1.5, -0.5, 0.5, 1.5], N_COLOURS))
        drawn = plan.draw(spots[2], "truth and the 10 to 90 % range", side, sides)
        bar = figure.colorbar(drawn, ax=spots[2], ticks=[-1, 0, 1], shrink=0.85)
        bar.ax.set_yticklabels(["below", "within", "above"])
    save_figure(figure, path)


def draw_reproduction(path: Path, study: Study) -> None:
    """Histogram of the values, and variograms of the scores, of realisations and of samples."""
    all_ways = ways(study.samples)
    n_panels = 1 + len(all_ways)
    figure, spots = plt.subplots(1, n_panels, figsize=(6 * n_panels, 5), layout="constrained")
    _draw_histogram(spots[0], study)
    for spot, way in zip(spots[1:], all_ways):
        _draw_variogram(spot, study, way)
        of_way = "" if study.samples.flat else f", {way.name}"
        spot.set_title(f"variogram of the scores{of_way}")
    save_figure(figure, path)


def _draw_histogram(spot: Axes, study: Study) -> None:
    samples, values = study.samples, study.realisations.values
    low, high = np.percentile(samples.values, [0, 99.8])
    edges = np.linspace(low, high, N_BARS + 1)

    def shares(some: Array, weights: Array | None = None) -> Array:
        total = len(some) if weights is None else weights.sum()
        return np.asarray(np.histogram(some, edges, weights=weights)[0] / total)

    name = "samples, declustered" if study.declustered else "samples"
    heights = shares(samples.values, study.weights)
    spot.stairs(heights, edges, fill=True, color="C3", alpha=0.35, label=name)
    for one in values:
        spot.stairs(shares(one), edges, **GREY)
    spot.plot([], [], **GREY, label=f"{len(values)} realisations")
    spot.stairs(shares(values.ravel()), edges, color="C0", lw=2, label="all of them")
    if study.truth is not None:
        known = study.truth.values.ravel()
        spot.stairs(shares(known), edges, color="k", ls="--", label="truth")
    spot.set(title="histogram", xlabel=samples.label, ylabel="share", xlim=(low, high))
    spot.legend(fontsize=9)


def _draw_variogram(spot: Axes, study: Study, way: Way) -> None:
    """Lags of the blocks start at their spacing."""
    size = study.blocks.cell_size
    spacing = float(size[2] if way.upright else size[:2].max())
    simulated = [way.curve(one).beyond(spacing) for one in study.of_blocks]
    for curve in simulated:
        spot.plot(curve.lengths, curve.values, **GREY)
    spot.plot([], [], **GREY, label=f"{len(simulated)} realisations")
    mean = np.mean([curve.values for curve in simulated], axis=0)
    spot.plot(simulated[0].lengths, mean, "C0", lw=2, label="their mean")
    lengths = np.linspace(0, way.reach, 300)[1:]
    spot.plot(lengths, study.model.variogram(way, lengths), "k--", lw=1, label="model")
    of_samples = way.curve(study.of_samples)
    spot.plot(of_samples.lengths, of_samples.values, "C3o", ms=4, label="samples")
    spot.set(xlabel=f"lag ({study.unit})", ylabel="semivariance of the scores")
    spot.set(xlim=(0, way.reach), ylim=(0, None))
    spot.legend(loc="lower right", fontsize=9)


def draw_line(path: Path, study: Study) -> None:
    """All realisations from sample to sample, where they meet; the rarest peaks are cut off."""
    line, simulated = study.line, study.realisations.on_line
    figure, spot = plt.subplots(figsize=(13, 4.5), layout="constrained")
    spot.plot(line.distances, simulated.T, **GREY)
    spot.plot([], [], **GREY, label=f"{len(simulated)} realisations")
    spot.plot(line.distances, simulated.mean(axis=0), "C0", lw=2, label="their mean")
    if study.truth is not None:
        known, _ = known_at(study.truth, line.locations)
        spot.plot(line.distances, known, "k--", lw=1, label="truth")
    values = study.samples.values[line.samples]
    at = line.distances[line.vertices]
    spot.plot(at, values, "C3o", ms=5, label=f"{len(values)} samples", clip_on=False)
    low, high = np.percentile(simulated, [0, 99.8])
    pad = 0.05 * (high - low)
    spot.set(xlim=(0, line.distances[-1]), ylim=(low - pad, max(high, values.max()) + pad))
    spot.set(title="along a line from sample to sample", xlabel=f"distance ({study.unit})")
    spot.set_ylabel(study.samples.label)
    spot.legend(fontsize=9, ncols=2, loc="upper right")
    save_figure(figure, path)
