# SPDX-License-Identifier: MIT
"""From samples to covariance models found by search, and to what they are worth.

Takes a CSV file of samples, or without one draws 2,000 cells of an elevation model that comes with
matplotlib. Searches the samples for one ellipsoid, for a nested model around it, and for local
ellipsoids whose kriging estimates are blended; all of it again without each fifth of the samples,
to estimate that. Writes models.png into the output folder and prints tables.
"""

from __future__ import annotations

import argparse
import sys
import time
from functools import partial

import gravelox
import numpy as np
from block_model import block_size, load, make_folder
from support.blocks import Blocks, blocks_near_samples
from support.directional import line_text
from support.left_out import (
    ENSEMBLE,
    ISOTROPIC,
    METHODS,
    ONE_MODEL,
    LeftOut,
    estimate_by_ensemble,
    leave_out,
)
from support.model import N_FOLDS
from support.model_search import N_SEARCHES, Models, Settings, find_models, plan_axes
from support.samples import Array, InputError, Samples
from support.scaled_kriging import Limits
from support.search_options import parse_search_arguments
from support.search_pictures import draw_models, fullest_layer
from tqdm import tqdm

from variography import check_extent, take_logarithms


def main() -> int:
    options = parse_search_arguments((__doc__ or "").partition("\n\n")[0])
    try:
        run(options)
    except InputError as error:
        print(f"find_the_model.py: {error}", file=sys.stderr)
        return 2
    return 0


def run(options: argparse.Namespace) -> None:
    samples, _ = load(options)
    samples = take_logarithms(samples) if options.log else samples
    check_extent(samples)
    make_folder(options.out)
    limits = Limits(options.neighbors, options.octant, options.per_hole)
    settings = Settings(
        options.power, options.groups, options.group_size, options.tries, options.threads
    )
    begin = time.perf_counter()
    with tqdm(total=N_SEARCHES * (N_FOLDS + 1), unit=" searches", desc="searching") as bar:
        find = partial(find_models, settings=settings, step=bar.update)
        models = find(samples)
        left_out = leave_out(samples, find, limits)
    seconds = time.perf_counter() - begin
    size = block_size(samples, options.block)
    blocks = blocks_near_samples(samples, size, gravelox.Ellipsoid(3 * size, (90, 0, 0)), 1.0)
    estimates = estimate_layer(samples, models, blocks, limits)
    picture = options.out / "models.png"
    draw_models(picture, samples, models, blocks, estimates)

    print_models(samples, models)
    print_left_out(left_out)
    _line("\nseconds, searches and estimates", f"{seconds:.1f}")
    print(f"\nwritten: {picture}")


def estimate_layer(samples: Samples, models: Models, blocks: Blocks, limits: Limits) -> Array:
    """By the ensemble, on the layer of blocks that holds most samples; NaN elsewhere."""
    inside = blocks.indices(blocks.locations)[:, 2] == fullest_layer(samples, blocks)
    result = np.full(len(inside), np.nan)
    result[inside] = estimate_by_ensemble(blocks.locations[inside], samples, models, limits)
    return result


def print_models(samples: Samples, models: Models) -> None:
    _line("samples", "; ".join([f"{len(samples.values):,}", *samples.notes]))
    if models.n_samples < len(samples.values):
        _line("of which searches see", f"{models.n_samples:,}, thinned out along holes")
    _line("one ellipsoid", _axes_text(samples, models.ellipsoid))
    for structure in models.nested:
        axes = _axes_text(samples, structure.ellipsoid())
        name = f"{structure.type()}, sill {structure.sill():.2f}"
        _line(f"  {name}", "" if structure.type() == "nugget" else axes)
    print()
    local = models.local
    for center, model, error in zip(local.centers, local.covariances, local.errors):
        place = " ".join(f"{one:,.0f}" for one in center[: 2 if samples.flat else 3])
        share = error / np.mean(local.errors)
        axes = _axes_text(samples, model[0].ellipsoid())
        _line(f"at {place}", f"{axes}; error {share:.2f}")


def _axes_text(samples: Samples, ellipsoid: gravelox.Ellipsoid) -> str:
    """Ranges, and the line of the longest one; of flat samples those in their plane."""
    if samples.flat:
        axes = np.column_stack([plan_axes(ellipsoid), np.zeros(2)])
    else:
        axes = np.array([ellipsoid.major_axis(), ellipsoid.mid_axis(), ellipsoid.minor_axis()])
    lengths = np.linalg.norm(axes, axis=1)
    ranges = " x ".join(f"{length:,.0f}" for length in lengths)
    return f"{ranges}, first {line_text(axes[0] / lengths[0])}"


def print_left_out(left_out: LeftOut) -> None:
    errors = left_out.errors()
    n_lost = errors.shape[1] - len(left_out.truths)
    print(f"\nleft out in {N_FOLDS} parts{f'; {-n_lost:,} without estimate' if n_lost else ''}")
    print(f"{'':34}{'mean absolute error':>20}{'correlation':>14}")
    for method, name in enumerate(METHODS):
        print(f"{name:34}{errors[method].mean():20.4g}{left_out.correlation(method):14.4f}")
    best = METHODS[errors.mean(axis=1).argmin()]
    print(f"\nthe smallest mean absolute error is that of {best}")
    print(verdict(left_out, ONE_MODEL, ISOTROPIC))
    print(verdict(left_out, ENSEMBLE, ONE_MODEL))


def verdict(left_out: LeftOut, method: int, against: int) -> str:
    """What the more elaborate of two methods is worth, in a sentence.

    Parts that disagree tell of chance: one method counts as better where it is so in all parts but
    one at most.
    """
    one, other = left_out.errors()[[method, against]].mean(axis=1)
    change, n_won = (one - other) / other, left_out.parts_won(method, against)
    rank = "about as good as"
    if change < 0 and n_won >= N_FOLDS - 1:
        rank = "better than"
    if change > 0 and n_won <= 1:
        rank = "worse than"
    word = "larger" if change > 0 else "smaller"
    return (
        f"{METHODS[method]} is {rank} {METHODS[against]}: its error is {abs(change):.1%} {word}, "
        f"and the smaller one in {n_won} of {N_FOLDS} parts"
    )


def _line(name: str, text: str) -> None:
    print(f"{name:34}{text}")


if __name__ == "__main__":
    sys.exit(main())
