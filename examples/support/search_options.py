# SPDX-License-Identifier: MIT
"""The command line of find_the_model.py."""

from __future__ import annotations

import argparse
from pathlib import Path

from support.options import add_files, count, positive, two_or_more


def parse_search_arguments(description: str) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=description)
    add_files(parser, Path("find_the_model"))
    add = parser.add_argument
    add("--log", action="store_true", help="take the logarithm of the values")
    _add_searches(parser)
    _add_estimation(parser)
    return parser.parse_args()


def _add_searches(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add(
        "--power",
        type=positive,
        default=2.0,
        help="exponent of the distance 1 - covariance that models are rated by (%(default)s)",
    )
    add("--groups", type=count, default=12, help="local models (%(default)s)")
    add("--group-size", type=two_or_more, default=250, help="samples in a group (%(default)s)")
    add(
        "--tries",
        type=count,
        default=300,
        help="candidates a thread rates, and tries to improve the best of them (%(default)s)",
    )
    add("--threads", type=int, default=0, help="0 for all (%(default)s)")


def _add_estimation(parser: argparse.ArgumentParser) -> None:
    add = parser.add_argument
    add(
        "--block",
        type=positive,
        nargs=3,
        metavar=("DX", "DY", "DZ"),
        help="size of a block of the map",
    )
    add("--neighbors", type=two_or_more, default=32, help="samples for an estimate (%(default)s)")
    add("--octant", type=int, default=6, help="most of them from one octant (%(default)s)")
    add("--per-hole", type=int, default=4, help="most of them from one hole (%(default)s)")
