# SPDX-License-Identifier: MIT
"""What a simulation leaves behind in words and numbers: tables and a CSV of blocks."""

from __future__ import annotations

from pathlib import Path

import numpy as np
from numpy.typing import NDArray

from support.realisations import Realisations, Study, known_at
from support.samples import Array

RANGES = ((0.1, 0.9), (0.25, 0.75), (0.05, 0.95))


def write_blocks(path: Path, study: Study) -> None:
    realisations = study.realisations
    quantiles = [realisations.quantile(share) for share in (0.1, 0.5, 0.9)]
    columns = [study.blocks.locations, realisations.values.mean(axis=0), *quantiles]
    np.savetxt(
        path,
        np.column_stack([*columns, study.probability()]),
        fmt=["%.10g"] * 3 + ["%.7g"] * 5,
        delimiter=",",
        header=f"x,y,z,mean,q10,q50,q90,probability_above_{study.cutoff:g}",
        comments="",
    )


def print_tables(study: Study) -> None:
    samples, blocks, realisations = study.samples, study.blocks, study.realisations
    values = realisations.values
    _line("samples", "; ".join([f"{len(samples.values):,}", *samples.notes]))
    size = " x ".join(f"{size:,.4g}" for size in blocks.cell_size)
    _line("blocks", f"{len(blocks.locations):,} of {blocks.active.size:,} cells, {size}")
    for sill, ranges in study.model.structures:
        lengths = " x ".join(f"{one:,.0f}" for one in ranges)
        _line("model of the scores", f"spherical, sill {sill:.2f}, ranges {lengths}")
    line = study.line
    off = np.abs(realisations.on_line[:, line.vertices] - samples.values[line.samples])
    _line("samples on the line", f"{len(line.samples)}, missed by {off.max():.2g} at most")
    rate = values.size / realisations.seconds
    seconds = f"{realisations.seconds:.1f} s, {rate:,.0f} blocks per second"
    _line("realisations", f"{len(values)} in {seconds}")

    print(f"\n{'':30}{'mean':>12}{'variance':>12}")
    _row("samples", samples.values)
    if study.declustered:
        _row("samples, declustered", samples.values, study.weights)
    _row("realisations", values)
    _row("mean of the realisations", values.mean(axis=0))
    _row("ordinary kriging", study.kriged)
    if study.truth is not None:
        known, judged = known_at(study.truth, blocks.locations)
        _row("truth", known[~np.isnan(known)])
        _print_coverage(realisations, known, judged)


def _print_coverage(realisations: Realisations, known: Array, judged: NDArray[np.bool_]) -> None:
    """How often the truth lies within ranges of the realisations, where it was not sampled."""
    print(
        f"\n{'range of the realisations':30}{'meant':>12}{'truths':>12}{'below':>12}{'above':>12}"
    )
    for low, high in RANGES:
        below = np.mean((known < realisations.quantile(low))[judged])
        above = np.mean((known > realisations.quantile(high))[judged])
        cells = (high - low, 1 - below - above, below, above)
        print(f"{f'{low:.0%} to {high:.0%}':30}" + "".join(f"{cell:12.1%}" for cell in cells))


def _line(name: str, text: str) -> None:
    print(f"{name:30}{text}")


def _row(name: str, values: Array, weights: Array | None = None) -> None:
    mean = np.average(values, weights=weights)
    variance = np.average((values - mean) ** 2, weights=weights)
    print(f"{name:30}{mean:12.4g}{variance:12.4g}")
