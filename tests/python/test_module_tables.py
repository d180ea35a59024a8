"""Threads, bad input and failures over the whole module, a table for each."""

import math
import os
import subprocess
import sys

import gravelox
import numpy as np
import pytest
from module_walk import OVERLOADS

DATA = np.random.default_rng(99)
SAMPLES, TARGETS = DATA.uniform(0, 30, (300, 3)), DATA.uniform(0, 30, (400, 3))
VALUES = DATA.lognormal(0, 1, 300)
METRIC = gravelox.Ellipsoid(20, 10, 5, 30, 20, 10)
HOOD = gravelox.Neighborhood(SAMPLES, METRIC)
COVS = [gravelox.Covariance.nugget(0.1), gravelox.Covariance.spherical(0.9, METRIC)]


def estimator(create, *args):
    def run(target_locs, neighborhood, data_locs, data, n_threads, **limits):
        made = create(*args, max_neighbors=12, **limits)
        return made(target_locs, neighborhood, data_locs, data, n_threads)

    return run


def window(neighborhood, **rest):
    return gravelox.moving_window_estimation(nei=neighborhood, covs=COVS, max_neighbors=12, **rest)


ESTIMATIONS = {
    "IDW": estimator(gravelox.IDW),
    "IDW with covariances": estimator(gravelox.IDW, COVS),
    "SimpleKriging": estimator(gravelox.SimpleKriging, COVS, 1.0),
    "OrdinaryKriging": estimator(gravelox.OrdinaryKriging, COVS),
    "compute_simple_kriging": lambda **rest: gravelox.compute_simple_kriging(
        covs=COVS, mean=1.0, max_neighbors=12, **rest
    ),
    "compute_ordinary_kriging": lambda **rest: gravelox.compute_ordinary_kriging(
        covs=COVS, max_neighbors=12, **rest
    ),
    "moving_window_estimation": window,
}


def estimate(name, **changes):
    samples = {"neighborhood": HOOD, "data_locs": SAMPLES, "data": VALUES}
    return ESTIMATIONS[name](**{"target_locs": TARGETS, **samples, "n_threads": 0, **changes})


# Every parallel function; IDW and its like stand for Estimator.__call__.
PARALLEL = {
    **{name: lambda n, name=name: estimate(name, n_threads=n) for name in ESTIMATIONS},
    "Ellipsoid.forward": lambda n: METRIC.forward(SAMPLES, n),
    "Ellipsoid.backward": lambda n: METRIC.backward(SAMPLES, n),
}


@pytest.mark.parametrize("name", PARALLEL)
def test_results_do_not_depend_on_the_threads(name):
    one, three = (np.array(PARALLEL[name](n)) for n in (1, 3))
    assert one.tobytes() == three.tobytes()
    assert len(np.unique(one)) > len(one) // 2


def test_the_table_of_threads_is_whole():
    parallel = {o.name for o in OVERLOADS if any(row[0] == "n_threads" for row in o.arguments)}
    assert parallel <= {*PARALLEL, "Estimator.__call__", "check_n_threads", "set_fft_n_threads"}


@pytest.mark.parametrize("name", ESTIMATIONS)
@pytest.mark.parametrize(
    ("message", "changes"),
    [
        ("data: expected 300 values, one per location, got 299", {"data": VALUES[1:]}),
        ("data: expected 300 values", {"data": np.append(VALUES, 1)}),
        ("neighborhood: .*299.*300", {"data_locs": SAMPLES[1:], "data": VALUES[1:]}),
        ("dhids: expected 300 values", {"dhids": [1] * 299, "max_neis_by_dhid": 2}),
        ("dhids: expected 300 values", {"dhids": [1] * 301}),
        ("data_locs: expected finite", {"data_locs": [(math.nan, 0, 0), *SAMPLES[1:]]}),
        ("target_locs: .*finite.* position 1", {"target_locs": [(0, 0, 0), (0, math.inf, 0)]}),
    ],
)
def test_bad_input_of_estimations(name, message, changes):
    if name == "moving_window_estimation":
        message = message.replace("neighborhood", "nei")  # the argument's name there
    with pytest.raises(ValueError, match=f"^{message}"):
        estimate(name, **changes)


NAN, INF, NULL = (0, math.nan, 0), (0, 0, -math.inf), (0, 0, 0)
GRID = gravelox.CartesianGrid((10, 10, 10), (2, 3, 4))
BLOCKS = gravelox.BlockModel(GRID, [False] * 22 + [True] * 2)
FOREST = gravelox.DynamicNeighborhood([NULL])
KERNEL, BROKEN = gravelox.Kernel.gaussian, gravelox.Ellipsoid(np.full((3, 3), math.nan))
Grid, Hood, Growing = gravelox.CartesianGrid, gravelox.Neighborhood, gravelox.DynamicNeighborhood


@pytest.mark.parametrize(
    ("message", "call", "args"),
    [
        ("locations: .* position 1", Hood, ([NULL, NAN],)),
        ("locations", Hood, ([INF], METRIC)),
        ("locations .*ellipsoid", Hood, ([NULL], BROKEN)),
        ("locations", Growing, ([NAN],)),
        ("locations", Growing, ([INF], METRIC)),
        ("max_size", HOOD.find_neighbors, (NULL, -1)),
        ("max_size", FOREST.find_neighbors, (NULL, -1)),
        ("center", HOOD.find_neighbors, (NAN, 3)),
        ("center", HOOD.find_neighbors, (INF, 3.0)),
        ("center", FOREST.find_neighbors, (NAN, 3.0)),
        ("locations", Hood([]).nearest_neighbor, (NULL,)),
        ("locations", Growing().nearest_neighbor, (NULL,)),
        ("point|center", HOOD.nearest_neighbor, (NAN,)),
        ("point", FOREST.add_point, (NAN,)),
        ("points", FOREST.add_points, ([NULL, INF],)),
        ("id", FOREST.remove_point, (-1,)),
        ("number_of_cells", Grid, ((1, 1, 1), (2, 0, 2))),
        ("number_of_cells", Grid, ((1, 1, 1), (65536, 32768, 1))),
        ("cell_size", Grid, ((1, 1, 1), (0.5, 2.0, 0.5))),
        ("cell_size", Grid, ((1, 1, 1), (0.5, 0.0, 0.5))),
        ("cell_size", Grid, ((1, 1, 1), (0.5, 0.5, math.nan))),
        ("i: .*2, got 2", GRID.index, (2, 0, 0)),
        ("j: .*3, got -1", GRID, (0, -1, 0)),
        ("k: .*4, got 4", BLOCKS, (0, 0, 4)),
        ("i: .*24, got 24", GRID, (24,)),
        ("i: .*24, got -1", GRID.ijk, (-1,)),
        ("i: .*2, got 2", BLOCKS, (2,)),
        ("i: .*2, got -1", BLOCKS.ijk, (-1,)),
        ("mask: expected 24 .*23", gravelox.BlockModel, (GRID, [True] * 23)),
        (
            "n_kernels",
            gravelox.generate_covariances,
            (METRIC, -1, gravelox.Kernel.gaussian, *[1] * 7),
        ),
    ],
)
def test_bad_input_is_refused_by_name(message, call, args):
    with pytest.raises(ValueError, match=f"^{message}"):
        call(*args)


@pytest.mark.parametrize(
    ("error", "message", "call", "args"),
    [
        (RuntimeError, "^invalid index$", BLOCKS, NULL),
        (TypeError, "incompatible function arg.*\n.*1. .*\n.*2. ", METRIC.forward, ("abc",)),
        (TypeError, "incompatible", HOOD.find_neighbors, ((0, 0), 1)),
        (TypeError, "incompatible", gravelox.Direction, ("0", 0)),
        (TypeError, "incompatible", gravelox.check_n_threads, (2**31,)),
        (TypeError, "incompatible", gravelox.check_n_threads, (-(2**31) - 1,)),
        (TypeError, "incompatible", gravelox.IDW, ([None],)),
        (TypeError, "incompatible", gravelox.IDW(), (TARGETS, HOOD, SAMPLES, "1" * 300)),
        *[
            (TypeError, f"^gravelox.{name}: No constructor defined!$", getattr(gravelox, name), ())
            for name in ("SpatialFunction", "EllipsoidInfo", "Kernel", "Covariance", "Estimator")
        ],
    ],
)
def test_failures_in_python(error, message, call, args):
    with pytest.raises(error, match=message):
        call(*args)


@pytest.mark.skipif("asan" in os.environ.get("LD_PRELOAD", ""), reason="asan needs all addresses")
def test_lack_of_memory_is_an_error():
    code = """
import resource, gravelox
resource.setrlimit(resource.RLIMIT_AS, (2**32, 2**32))
try:
    gravelox.generate_random_sphere(2**31 - 1)
except MemoryError:
    raise SystemExit(7)"""
    assert subprocess.run([sys.executable, "-c", code], timeout=60, check=False).returncode == 7
