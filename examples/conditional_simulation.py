# SPDX-License-Identifier: MIT
"""From samples to realisations that honour them, and to the risk that they differ by.

Takes a CSV file of samples, or without one draws 2,000 cells of an elevation model that comes with
matplotlib and counts how often its other cells lie within the range of the realisations. Writes
blocks.csv and four pictures into the output folder and prints a table.
"""

from __future__ import annotations

import argparse
import sys
import time

import gravelox
import numpy as np
from block_model import block_size, load, make_folder
from support.blocks import Blocks, blocks_near_samples
from support.realisations import Line, Realisations, Study, line_through_samples
from support.samples import Array, InputError, Samples, Truth
from support.scaled_kriging import Limits, krige
from support.scores import (
    ScoreModel,
    cell_weights,
    fitted_model,
    given_model,
    normal_scores,
    variogram_of_blocks,
    variogram_of_samples,
)
from support.simulation_options import parse_simulation_arguments
from support.simulation_pictures import draw_line, draw_maps, draw_reproduction, draw_risk
from support.simulation_report import print_tables, write_blocks
from tqdm import tqdm


def main() -> int:
    options = parse_simulation_arguments((__doc__ or "").partition("\n\n")[0])
    try:
        run(options)
    except InputError as error:
        print(f"conditional_simulation.py: {error}", file=sys.stderr)
        return 2
    return 0


def run(options: argparse.Namespace) -> None:
    samples, truth = load(options)
    make_folder(options.out)
    study = carry_out(samples, truth, options)
    write_blocks(options.out / "blocks.csv", study)
    draw_maps(options.out / "realisations.png", study)
    draw_risk(options.out / "risk.png", study)
    draw_reproduction(options.out / "reproduction.png", study)
    draw_line(options.out / "line.png", study)
    print_tables(study)
    print(f"\nwritten into {options.out}: blocks.csv and four pictures")


def carry_out(samples: Samples, truth: Truth | None, options: argparse.Namespace) -> Study:
    weights = np.ones(len(samples.values))
    if options.decluster:
        weights = cell_weights(samples.locations, options.decluster)
    to_scores = normal_scores(samples.values, weights)
    scores = np.array(to_scores.forward(samples.values))
    variogram = variogram_of_samples(samples, scores, options.threads)
    if options.ranges:
        model = given_model(samples, options.nugget, options.ranges, options.angles)
    else:
        model = fitted_model(samples, variogram)
    size = block_size(samples, options.block)
    if truth:
        size = truth.cell_size * (options.every, options.every, 1)
    blocks = blocks_near_samples(samples, size, model.metric(), options.reach)
    line = line_through_samples(samples, blocks)
    realisations = simulate(samples, scores, to_scores, model, blocks, line, options)
    of_blocks = [variogram_of_blocks(blocks, one, options.threads) for one in realisations.scores]
    return Study(
        samples,
        truth,
        weights,
        model,
        variogram,
        blocks,
        line,
        realisations,
        of_blocks,
        krige_blocks(samples, model, blocks, options),
        float(np.quantile(samples.values, 0.75)) if options.cutoff is None else options.cutoff,
        options.unit,
    )


def simulate(
    samples: Samples,
    scores: Array,
    to_scores: gravelox.NScore,
    model: ScoreModel,
    blocks: Blocks,
    line: Line,
    options: argparse.Namespace,
) -> Realisations:
    """Scores by turning bands, conditioned by simple kriging of mean 0, and carried back.

    The field has mean 0, and so has what it differs from the samples by. Ordinary kriging would add
    its multiplier.
    """
    covariances = model.covariances()
    kriging = gravelox.SimpleKriging(
        covariances,
        0.0,
        max_neighbors=options.neighbors,
        max_neighbors_octant=options.octant,
        dhids=samples.holes,
        max_neis_by_dhid=options.per_hole,
    )
    search = gravelox.Neighborhood(samples.locations, model.metric())
    corners = blocks.model.base_grid().corners()  # all eight: lines run along all directions
    targets = np.vstack([blocks.locations, line.locations])
    seeds = np.random.default_rng(options.seed).integers(2**31, size=options.realisations)
    result = Realisations(len(seeds), len(blocks.locations), len(line.locations))
    for number, seed in enumerate(tqdm(seeds, unit=" realisations", desc="simulating")):
        begin = time.perf_counter()
        field = gravelox.TBSIM(corners, covariances, int(seed), n=options.lines)
        simulated = gravelox.simulate(
            field, kriging, targets, search, samples.locations, scores, n_threads=options.threads
        )
        values = to_scores.backward(simulated, n_threads=options.threads)
        result.seconds += time.perf_counter() - begin
        result.take(number, np.array(simulated), np.array(values))
    return result


def krige_blocks(
    samples: Samples, model: ScoreModel, blocks: Blocks, options: argparse.Namespace
) -> Array:
    """Values kriged with the model of their scores, to set beside the mean of the realisations."""
    limits = Limits(options.neighbors, options.octant, options.per_hole)
    search = gravelox.Neighborhood(samples.locations, model.metric())
    estimates, _ = krige(blocks.locations, samples, model.covariances(), search, limits)
    return estimates


if __name__ == "__main__":
    sys.exit(main())
