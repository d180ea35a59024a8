# SPDX-License-Identifier: MIT
"""What a block model run leaves behind in words and numbers: a table and a CSV of blocks."""

from __future__ import annotations

from collections.abc import Sequence
from pathlib import Path
from typing import Any

import numpy as np

from support.blocks import Blocks
from support.model import Model, coverage
from support.samples import Samples, Truth


class Estimates:
    """Results of both methods by block, to be filled, and the seconds that each one takes."""

    def __init__(self, n_blocks: int) -> None:
        self.inverse_distance = np.full(n_blocks, np.nan)
        self.kriged = np.full(n_blocks, np.nan)
        self.variances = np.full(n_blocks, np.nan)
        self.n_neighbors = np.zeros(n_blocks, dtype=np.int64)
        self.seconds = np.zeros(2)


def write_blocks(path: Path, blocks: Blocks, estimates: Estimates) -> None:
    columns = np.column_stack(
        [blocks.locations, estimates.kriged, estimates.variances, estimates.n_neighbors]
    )
    np.savetxt(
        path,
        columns,
        fmt=["%.10g"] * 3 + ["%.7g"] * 2 + ["%d"],
        delimiter=",",
        header="x,y,z,estimate,variance,n_neighbors",
        comments="",
    )


def print_table(
    samples: Samples,
    blocks: Blocks,
    model: Model,
    estimates: Estimates,
    truth: Truth | None,
) -> None:
    ranges = " x ".join(f"{r:,.4g}" for r in model.ranges)
    _line("samples", f"{len(samples.values):,}")
    for note in samples.notes:
        _line("", note)
    _line("blocks", f"{len(blocks.locations):,} of {blocks.active.size:,} cells")
    _line("block size", " x ".join(f"{size:,.4g}" for size in blocks.cell_size))
    _line("blocks with no sample in them", f"{blocks.share_without_sample(samples.locations):.1%}")
    _line("blocks left without estimate", f"{np.mean(np.isnan(estimates.kriged)):.1%}")
    _line("neighbours, mean", f"{np.mean(estimates.n_neighbors):.1f}")
    _line("model", f"{model.kernel}, ranges {ranges}, nugget {model.nugget:.0%} of the sill")
    print(f"\n{'':30}{'samples':>12}{'inverse dist.':>16}{'kriging':>12}")
    both = (estimates.inverse_distance, estimates.kriged)
    _row("mean", [np.mean(samples.values), *(np.nanmean(one) for one in both)])
    _row("variance", [np.var(samples.values), *(np.nanvar(one) for one in both)])
    _row("seconds", [None, *estimates.seconds])
    _row("blocks per second", [None, *(len(blocks.locations) / s for s in estimates.seconds)])
    if truth is not None:
        _judge(blocks, estimates, truth)


def _judge(blocks: Blocks, estimates: Estimates, truth: Truth) -> None:
    """Rows that compare with the truth, on blocks that were not drawn as samples."""
    truths, judged = truth.at(blocks.locations)
    judged &= ~np.isnan(estimates.kriged)
    known = truths[judged]
    both = [estimates.inverse_distance[judged], estimates.kriged[judged]]
    errors = [method - known for method in both]
    _row("mean error", [None, *(np.mean(error) for error in errors)])
    _row("root mean squared error", [None, *(np.sqrt(np.mean(error**2)) for error in errors)])
    _row("correlation with truth", [None, *(np.corrcoef(one, known)[0, 1] for one in both)])
    share = coverage(both[1], estimates.variances[judged], known)
    print(f"{'truths in the 80 % interval':30}{'':12}{'':16}{share:12.1%}")


def _line(name: str, text: str) -> None:
    print(f"{name:30}{text}")


def _row(name: str, values: Sequence[Any]) -> None:
    widths = (12, 16, 12)
    cells = ["" if value is None else number(value) for value in values]
    print(f"{name:30}" + "".join(f"{cell:>{width}}" for cell, width in zip(cells, widths)))


def number(value: float) -> str:
    return f"{value:,.0f}" if abs(value) >= 1000 else f"{value:.4g}"
