"""Measures gravelox and holds the figures against its goals.

Prints one line of JSON a figure and a table at the end. `seconds` is the time of one item (a
target, a point, a value, a query, a pair of samples, a whole variogram of a grid), `other_seconds`
that of the same work done otherwise; both are the least of several rounds, in which the two sides
take turns. `ratio` is mostly the median of the rounds' ratios: on a shared machine both sides of a
round have the same luck. `spread` is the greatest of our times over the least. Figures of one
thread are processor time.
"""

import argparse
import json
import os
import sys
from dataclasses import asdict

# Read when numpy is imported: one thread is one thread on both sides.
for library in ("OMP", "OPENBLAS", "MKL", "BLIS", "NUMBA"):
    os.environ[f"{library}_NUM_THREADS"] = "1"

import detection_figures  # noqa: E402
import estimation_figures  # noqa: E402
import grid_variogram_figures  # noqa: E402
import language_figures  # noqa: E402
import multivariate_figures  # noqa: E402
import optimization_figures  # noqa: E402
import projection_figures  # noqa: E402
import simulation_figures  # noqa: E402
import spatial_figures  # noqa: E402
import variogram_figures  # noqa: E402
from harness import Bench, Skipped  # noqa: E402

FAMILIES = (
    estimation_figures,
    spatial_figures,
    grid_variogram_figures,
    variogram_figures,
    simulation_figures,
    optimization_figures,
    multivariate_figures,
    projection_figures,
    detection_figures,
    language_figures,
)
BENCHMARKS = {figure.__name__: figure for family in FAMILIES for figure in family.FIGURES}


def readable(seconds):
    if seconds is None:
        return ""
    for unit, size in (("s", 1.0), ("ms", 1e-3), ("us", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds * 1e9:.3g} ns"


def print_table(figures):
    print(f"\n{'figure':<26}{'each':>10}{'other':>10}{'ratio':>8}{'spread':>8}  {'goal':<12}result")
    for figure in figures:
        ratio = f"{figure.ratio:.2f}" if figure.ratio else ""
        spread = f"{figure.spread:.2f}" if figure.spread else ""
        result = {None: "", True: "met", False: "MISSED"}[figure.is_met()]
        print(
            f"{figure.name:<26}{readable(figure.seconds):>10}{readable(figure.other_seconds):>10}"
            f"{ratio:>8}{spread:>8}  {figure.goal or '':<12}{result}"
        )


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("names", nargs="*", metavar="NAME", help=", ".join(BENCHMARKS))
    parser.add_argument("--kernels", metavar="PATH", help="the program made from kernels.cpp")
    parser.add_argument("--quick", action="store_true", help="smaller sizes, fewer repetitions")
    parser.add_argument("--repetitions", metavar="N", type=int, help="rounds of each figure (9)")
    arguments = parser.parse_args()
    unknown = set(arguments.names) - set(BENCHMARKS)
    if unknown:
        parser.error(f"no figure named {', '.join(sorted(unknown))}")

    figures = []
    for name in arguments.names or BENCHMARKS:
        try:
            bench = Bench(arguments.kernels, arguments.quick, arguments.repetitions)
            figure = BENCHMARKS[name](bench)
        except Skipped as reason:
            print(f"{name}: skipped, {reason}")
            continue
        print(json.dumps(asdict(figure)), flush=True)
        figures.append(figure)
    print_table(figures)


if __name__ == "__main__":
    sys.exit(main())
