# SPDX-License-Identifier: MIT
"""The command line of conditional_simulation.py."""

from __future__ import annotations

import argparse
from pathlib import Path

from support.options import add_files, positive, share, two_or_more

FEWEST = 19  # realisations: with fewer there is no quantile of 5 %


def parse_simulation_arguments(description: str) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=description)
    add_files(parser, Path("conditional_simulation"))
    unit = "length unit, for the pictures (%(default)s)"
    parser.add_argument("--unit", default="m", help=unit)
    _add_model(parser)
    _add_blocks(parser)
    _add_realisations(parser)
    return parser.parse_args()


def _add_model(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add(
        "--decluster",
        type=positive,
        metavar="SIZE",
        help="cell whose samples share a weight in the distribution (all weights equal)",
    )
    add(
        "--ranges",
        type=positive,
        nargs=3,
        metavar=("R1", "R2", "R3"),
        help="ranges of one spherical structure (two structures, fitted to the scores' variogram)",
    )
    add(
        "--angles",
        type=float,
        nargs=3,
        default=(90.0, 0.0, 0.0),
        metavar=("AZIMUTH", "DIP", "RAKE"),
        help="directions of these ranges in degrees (90 0 0: along x, y, z)",
    )
    add("--nugget", type=share, default=0.0, help="share of the sill beside them (%(default)s)")


def _add_blocks(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add(
        "--block",
        type=positive,
        nargs=3,
        metavar=("DX", "DY", "DZ"),
        help="size of a block of a CSV file",
    )
    add("--every", type=natural, default=2, help="cells of the terrain a block (%(default)s)")
    add("--neighbors", type=two_or_more, default=32, help="samples for a block (%(default)s)")
    add("--octant", type=int, default=6, help="most of them from one octant (%(default)s)")
    add("--per-hole", type=int, default=4, help="most of them from one hole (%(default)s)")
    add(
        "--reach",
        type=positive,
        default=0.4,
        help="blocks farther than this from all samples, in ranges, are left out (%(default)s)",
    )


def _add_realisations(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add("--realisations", type=enough, default=50, help="how many (%(default)s)")
    add("--lines", type=natural, default=600, help="lines of a turning-bands field (%(default)s)")
    add("--cutoff", type=float, help="value whose exceeding is mapped (the upper quartile)")
    add("--seed", type=natural, default=1, help="a number from 1 on (%(default)s)")
    add("--threads", type=int, default=0, help="0 for all (%(default)s)")


def natural(text: str) -> int:
    return _at_least(1, text)


def enough(text: str) -> int:
    return _at_least(FEWEST, text)


def _at_least(least: int, text: str) -> int:
    number = int(text)
    if number < least:
        raise argparse.ArgumentTypeError(f"expected at least {least}, got {text}")
    return number
