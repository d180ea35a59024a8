# SPDX-License-Identifier: MIT
"""Kriging in the flat space of a folded layer, and back, beside plain kriging.

Drills a synthetic fold whose grade follows the layer. Distances inside the layer, between points
spread over it, are scaled to places in a plane, and a map made of these carries samples and blocks
there. All ways of kriging take the ranges that do best on holes that are left out. Writes three
pictures into the output folder and prints a table.
"""

from __future__ import annotations

import argparse
import sys
from collections.abc import Iterator, Sequence
from dataclasses import replace
from itertools import product
from pathlib import Path

import gravelox
import numpy as np
from block_model import make_folder
from numpy.typing import NDArray
from support.fold import Fold
from support.samples import Array, InputError, Samples
from support.scaled_kriging import Limits, krige
from support.simulation_options import natural
from support.unfolded import Cloud, Estimates, FlatSpace, Study
from support.unfolding_pictures import draw_estimates, draw_flat_space, draw_fold
from tqdm import tqdm

CELL_SIZE = np.array([2.0, 5.0, 2.0])
RANGES = (20.0, 40.0, 80.0, 160.0)
N_GROUPS = 12  # of holes, each left out once
LIMITS = Limits(neighbors=48, octant=0, hole=0)


def main() -> int:
    options = parse_arguments()
    try:
        run(options)
    except InputError as error:
        print(f"unfolding.py: {error}", file=sys.stderr)
        return 2
    return 0


def parse_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n\n")[0])
    add = parser.add_argument
    add("--seed", type=natural, default=1, help="a number from 1 on (%(default)s)")
    add("--threads", type=int, default=0, help="0 for all (%(default)s)")
    add("--out", type=Path, default=Path("unfolding"), help="output folder (%(default)s)")
    return parser.parse_args()


def run(options: argparse.Namespace) -> None:
    make_folder(options.out)
    study = carry_out(options.seed, options.threads)
    draw_fold(options.out / "fold.png", study)
    draw_flat_space(options.out / "flat_space.png", study)
    draw_estimates(options.out / "estimates.png", study)
    print_tables(study)
    print(f"\nwritten into {options.out}: three pictures")


def carry_out(seed: int, threads: int) -> Study:
    stages = _stages(
        "fold", "distances and scaling", "path", "map", "plain kriging", "flat kriging"
    )
    next(stages)
    rng = np.random.default_rng(seed)
    fold = Fold.meander(seed)
    samples, blocks = fold.samples(rng), fold.blocks(CELL_SIZE)
    next(stages)
    cloud = Cloud.of(blocks, seed)
    space = FlatSpace.of(cloud, seed, threads)
    next(stages)
    path = cloud.longest_detour(space.points, space.distances)
    next(stages)
    targets = blocks.locations
    flat_targets = space.carry(targets, threads)
    flat_samples = replace(samples, locations=space.carry(samples.locations, threads))
    next(stages)
    holes, hole_of = np.unique(samples.holes, return_inverse=True)
    groups = rng.permutation(len(holes))[hole_of] % N_GROUPS
    estimates = [
        estimate("plain, one range", targets, samples, groups, 1),
        estimate("plain, three ranges", targets, samples, groups, 3),
    ]
    next(stages)
    estimates.append(estimate("unfolded, two ranges", flat_targets, flat_samples, groups, 2))
    next(stages, None)
    known = fold.grades(targets)
    return Study(fold, samples, blocks, known, space, path, flat_samples, flat_targets, estimates)


def _stages(*names: str) -> Iterator[None]:
    """A bar that moves on from stage to stage."""
    with tqdm(total=len(names), unit=" stages") as bar:
        for name in names:
            bar.set_description(name)
            yield
            bar.update()


def estimate(
    name: str,
    targets: Array,
    samples: Samples,
    groups: NDArray[np.int64],
    n_ranges: int,
) -> Estimates:
    """By the ranges with the least mean absolute error on samples of holes that are left out."""

    def error(ranges: tuple[float, ...]) -> float:
        found = np.empty(len(groups))
        for group in range(N_GROUPS):
            inside = groups == group
            found[inside] = kriged(samples.locations[inside], samples.select(~inside), ranges)
        return float(np.abs(found - samples.values).mean())

    ranges = min(product(RANGES, repeat=n_ranges), key=error)
    return Estimates(name, ranges, kriged(targets, samples, ranges))


def kriged(targets: Array, samples: Samples, ranges: tuple[float, ...]) -> Array:
    """The grade is smooth: a gaussian covariance, with 1 % of nugget that keeps systems sound."""
    first, second, third = [*ranges, ranges[-1], ranges[-1]][:3]
    metric = gravelox.Ellipsoid(first, second, third, 90, 0, 0)  # along the axes
    model = [gravelox.Covariance.gaussian(0.99, metric), gravelox.Covariance.nugget(0.01)]
    search = gravelox.Neighborhood(samples.locations, metric)
    return krige(targets, samples, model, search, LIMITS)[0]


def print_tables(study: Study) -> None:
    samples, fold, space = study.samples, study.fold, study.space
    far, scale = study.misplaced()
    size = f"{fold.along[-1]:.0f} m along, {fold.width:.0f} m along y, {fold.thickness:.0f} m thick"
    n_holes = len(np.unique(samples.holes))
    _line("layer", f"{size}, {len(study.known):,} blocks")
    _line("samples", f"{len(samples.values)} of {n_holes} holes")
    _line("path", f"{study.path.length:.0f} m, straight {study.path.straight():.0f} m")
    _line("scaled", f"{len(space.points)} points, in a plane of {scale:.2f} of the true lengths")
    rms = np.sqrt(np.mean(far**2))
    _line("blocks in the flat space", f"misplaced by {rms:.1f} m, {far.max():.0f} m at most")

    print()
    deviation = study.known.std()
    _line("known grade of blocks", f"mean {study.known.mean():.2f}, deviation {deviation:.2f}")
    _row("kriging", ["ranges (m)", "mean error", "rms error", "correlation"])
    for one in study.estimates:
        errors = one.values - study.known
        ranges = ", ".join(f"{length:.0f}" for length in one.ranges)
        correlation = np.corrcoef(one.values, study.known)[0, 1]
        numbers = errors.mean(), np.sqrt(np.mean(errors**2)), correlation
        _row(one.name, [ranges, *(f"{number:.3f}" for number in numbers)])


def _line(name: str, text: str) -> None:
    print(f"{name:30}{text}")


def _row(name: str, cells: Sequence[str]) -> None:
    print(f"{name:24}" + "".join(f"{cell:>13}" for cell in cells))


if __name__ == "__main__":
    sys.exit(main())
