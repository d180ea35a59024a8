# SPDX-License-Identifier: MIT
"""The command lines of block_model.py and variography.py."""

from __future__ import annotations

import argparse
import math
from pathlib import Path


def parse_arguments(description: str) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=description)
    add_files(parser, Path("block_model"))
    _add_model(parser)
    _add_blocks(parser)
    return parser.parse_args()


def parse_variography_arguments(description: str) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=description)
    add_files(parser, Path("variography"))
    add = parser.add_argument
    add("--log", action="store_true", help="take the logarithm of the values")
    add("--unit", default="m", help="length unit, for the pictures (%(default)s)")
    _add_pairs(parser)
    return parser.parse_args()


def add_files(parser: argparse.ArgumentParser, out: Path) -> None:
    """The options of all examples that read samples."""
    add = parser.add_argument
    add("csv", nargs="?", type=Path, help="samples with a header; without: an elevation model")
    add("--x", default="x", help="column of x (%(default)s)")
    add("--y", default="y", help="column of y (%(default)s)")
    add("--z", help='column of z (z if there is one; "" for flat samples)')
    add("--value", default="value", help="column of the values (%(default)s)")
    add("--hole", help='column of the drill hole (hole if there is one; "" for none)')
    add("--label", help="name and unit of the value in pictures (the column's name)")
    add("--out", type=Path, default=out, help="output folder (%(default)s)")


def _add_model(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add("--kernel", choices=["spherical", "exponential", "gaussian"], default="spherical")
    add("--nugget", type=share, help="its share of the sill (0.2 with drill holes, else 0)")
    add(
        "--ranges",
        type=positive,
        nargs=3,
        metavar=("R1", "R2", "R3"),
        help="practical ranges (in the proportions of the samples' box, to suit left-out samples)",
    )
    add(
        "--angles",
        type=float,
        nargs=3,
        default=(90.0, 0.0, 0.0),
        metavar=("AZIMUTH", "DIP", "RAKE"),
        help="directions of the ranges in degrees (90 0 0: along x, y, z)",
    )


def _add_blocks(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add(
        "--block",
        type=positive,
        nargs=3,
        metavar=("DX", "DY", "DZ"),
        help="size of a block of a CSV file",
    )
    add("--neighbors", type=two_or_more, default=32, help="samples for a block (%(default)s)")
    add("--octant", type=int, default=6, help="most of them from one octant (%(default)s)")
    add("--per-hole", type=int, default=4, help="most of them from one hole (%(default)s)")
    add(
        "--reach",
        type=positive,
        default=0.4,
        help="blocks farther than this from all samples, in ranges, are left out (%(default)s)",
    )


def _add_pairs(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add("--centers", type=count, help="centres of pairs (all samples)")
    add(
        "--directions",
        type=count,
        help="half the number of directions (300 for flat samples, else 100)",
    )
    add("--lags", type=count, default=200, help="lags a direction (%(default)s)")
    add(
        "--angle-tol",
        type=positive,
        default=5.0,
        help="degrees between a pair and its direction (%(default)s)",
    )
    add(
        "--bandwidth",
        type=positive,
        help="half-width of a direction's search, as a share of the samples' extent "
        "(0.02 for flat samples, else 0.01)",
    )
    add(
        "--window",
        type=positive,
        help="lags up to this length choose the axes (half the shortest side of the samples' box)",
    )
    add(
        "--cone",
        type=positive,
        default=15.0,
        help="degrees about an axis whose directions count for it (%(default)s)",
    )
    add("--block", type=positive, nargs=3, metavar=("DX", "DY", "DZ"), help="size of a map's cell")


def positive(text: str) -> float:
    number = float(text)
    if not 0 < number < math.inf:
        raise argparse.ArgumentTypeError(f"expected a number above 0, got {text}")
    return number


def count(text: str) -> int:
    number = int(text)
    if not 1 <= number <= 100_000:
        raise argparse.ArgumentTypeError(f"expected 1 to 100,000, got {text}")
    return number


def two_or_more(text: str) -> int:
    number = int(text)
    if number < 2:
        raise argparse.ArgumentTypeError(f"expected at least 2, got {text}")
    return number


def share(text: str) -> float:
    number = float(text)
    if not 0 <= number < 1:
        raise argparse.ArgumentTypeError(f"expected a share from 0 to below 1, got {text}")
    return number
