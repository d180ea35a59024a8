# SPDX-License-Identifier: MIT
"""A picture of models over samples and estimates: ellipses, where a plan cuts the ellipsoids."""

from __future__ import annotations

from collections.abc import Iterable
from pathlib import Path

import gravelox
import matplotlib as mpl

mpl.use("Agg")  # pictures go to files; a machine without a screen must do

import matplotlib.pyplot as plt
import numpy as np
from matplotlib.axes import Axes
from matplotlib.colors import Normalize
from matplotlib.patches import Ellipse

from support.blocks import Blocks
from support.model_search import Models, plan_axes
from support.pictures import save_figure
from support.samples import Array, Samples

N_NODES = 7  # blended ellipses along the longer side of the map
SHARE = 0.05  # of that side: the median half-axis of an ellipse as it is drawn


def fullest_layer(samples: Samples, blocks: Blocks) -> int:
    """The layer of blocks that holds most samples: of flat ones the only one."""
    return int(np.bincount(blocks.indices(samples.locations)[:, 2]).argmax())


def draw_models(
    path: Path, samples: Samples, models: Models, blocks: Blocks, estimates: Array
) -> None:
    """Left the samples with the ellipses found, right a layer of estimates with their blends.

    The estimates are those of the blocks of the layer, NaN elsewhere.
    """
    low, high = np.nanpercentile(np.concatenate([samples.values, estimates]), [1, 99])
    norm = Normalize(low, high)
    centers = np.array(models.local.centers)
    cuts = np.array([plan_axes(model[0].ellipsoid()) for model in models.local.covariances])
    long_axes = np.linalg.norm(cuts[:, 0], axis=1)
    extent = np.ptp(samples.locations[:, :2], axis=0)
    side = float(extent.max())
    scale = SHARE * side / float(np.median(long_axes))

    figure, (left, right) = plt.subplots(
        1,
        2,
        sharex=True,
        sharey=True,
        figsize=(15, 7 * float(np.clip(extent[1] / extent[0], 0.4, 1.5)) + 0.8),
        layout="constrained",
    )
    figure.suptitle(f"ranges in the plan, drawn at {scale:.2g} of their length")
    x, y, _ = samples.locations.T
    left.set_title(f"samples, {len(centers)} local models, one model for all (dashed)")
    left.scatter(x, y, 12, samples.values, cmap="viridis", norm=norm, linewidths=0)
    _draw_ellipses(left, centers, cuts * scale, "black")
    middle = samples.locations.min(axis=0) + np.ptp(samples.locations, axis=0) / 2
    _draw_ellipses(left, [middle], plan_axes(models.ellipsoid)[None] * scale, "red", "--")

    layer = fullest_layer(samples, blocks)
    level = blocks.origin[2] + layer * blocks.cell_size[2]
    where = "" if samples.flat else f" at {samples.axes[2]} = {level:,.6g}"
    right.set_title(f"ensemble estimates{where}, local models blended")
    across, up, _ = (
        start + size * (np.arange(n + 1) - 0.5)
        for start, size, n in zip(blocks.origin, blocks.cell_size, blocks.model.number_of_cells())
    )
    cells = blocks.filled(estimates)[:, :, layer]
    drawn = right.pcolormesh(across, up, cells.T, cmap="viridis", norm=norm, rasterized=True)
    nodes = _nodes(blocks, np.isfinite(estimates), side / N_NODES)
    weights = 1 / np.array(models.local.errors)
    _draw_ellipses(right, nodes, blend(nodes, centers, cuts, weights) * scale, "black")
    for spot in (left, right):
        spot.set(xlabel=samples.axes[0], ylabel=samples.axes[1], aspect="equal", facecolor="0.93")
        spot.set(xlim=(across[0], across[-1]), ylim=(up[0], up[-1]))
        spot.label_outer()
    figure.colorbar(drawn, ax=[left, right], label=samples.label, extend="both", aspect=30)
    save_figure(figure, path)


def _draw_ellipses(
    spot: Axes, centers: Iterable[Array], cuts: Array, colour: str, style: str = "-"
) -> None:
    for center, (long, short) in zip(centers, cuts):
        x, y = center[:2]
        angle = float(np.degrees(np.arctan2(long[1], long[0])))
        size = [2 * float(np.linalg.norm(axis)) for axis in (long, short)]
        for width, edge, line in ((3.5, "white", "-"), (1.6, colour, style)):
            outline = Ellipse((x, y), *size, angle=angle, fill=False, lw=width, ec=edge, ls=line)
            spot.add_patch(outline)


def _nodes(blocks: Blocks, known: Array, step: float) -> Array:
    """Blocks with an estimate that lie nearest to the nodes of a square grid."""
    places = blocks.locations[known]
    low, high = places.min(axis=0), places.max(axis=0)
    x, y = (np.arange(a + step / 2, b, step) for a, b in zip(low[:2], high[:2]))
    nodes = np.array([(i, j) for i in x for j in y]).reshape(-1, 2)
    distances = np.linalg.norm(nodes[:, None, :] - places[None, :, :2], axis=2)
    nearest = distances.argmin(axis=1)
    return places[nearest[distances.min(axis=1) < step / 4]]


def blend(places: Array, centers: Array, cuts: Array, weights: Array) -> Array:
    """Ellipses at places, blended from those at centres: half-axes (n, 2, 2).

    They are blended as ellipsoids that lie flat. The module gives the blend with ranges that are
    one over the blended ones: a row of its matrix is as long as the range along it.
    """
    flat = [_lying(long, short) for long, short in cuts]
    blends = gravelox.ensemble_local_ellipsoids(places, centers, flat, weights)
    rows = np.array([one.matrix() for one in blends])
    upright = np.abs(rows[:, :, 2]).argmax(axis=1)
    level = [np.delete(row, normal, axis=0)[:, :2] for row, normal in zip(rows, upright)]
    return np.array([sorted(axes, key=np.linalg.norm, reverse=True) for axes in level])


def _lying(long: Array, short: Array) -> gravelox.Ellipsoid:
    azimuth = float(np.degrees(np.arctan2(long[0], long[1])))
    r1, r2 = float(np.linalg.norm(long)), float(np.linalg.norm(short))
    return gravelox.Ellipsoid(r1, r2, r2 / 2, azimuth, 0, 0)
