"""Threads, slices, bad input and failures over the whole module, a table for each."""

import math
from functools import partial

import gravelox
import numpy as np
import pytest
from module_walk import OVERLOADS

DATA = np.random.default_rng(99)
SAMPLES, TARGETS = DATA.uniform(0, 30, (300, 3)), DATA.uniform(0, 30, (400, 3))
VALUES, HOLES = DATA.lognormal(0, 1, 300), DATA.integers(0, 20, 300)
METRIC = gravelox.Ellipsoid(20, 10, 5, 30, 20, 10)
HOOD = gravelox.Neighborhood(SAMPLES, METRIC)
COVS = [gravelox.Covariance.nugget(0.1), gravelox.Covariance.spherical(0.9, METRIC)]
ESTIMATIONS = {
    "IDW": (gravelox.IDW, {}),
    "IDW with covariances": (gravelox.IDW, {"covs": COVS}),
    "SimpleKriging": (gravelox.SimpleKriging, {"covs": COVS, "mean": 1}),
    "OrdinaryKriging": (gravelox.OrdinaryKriging, {"covs": COVS}),
    "compute_simple_kriging": (gravelox.compute_simple_kriging, {"covs": COVS, "mean": 1}),
    "compute_ordinary_kriging": (gravelox.compute_ordinary_kriging, {"covs": COVS}),
    "moving_window_estimation": (gravelox.moving_window_estimation, {"covs": COVS}),
}


def estimate(name, n_threads=0, limits=None, **changes):
    """The results of an estimation; those with a capital make an object first."""
    function, own = ESTIMATIONS[name]
    own = {"max_neighbors": 12, **own, **(limits or {})}
    search = "nei" if name == "moving_window_estimation" else "neighborhood"
    run = {"target_locs": TARGETS, search: HOOD, "data_locs": SAMPLES, "data": VALUES, **changes}
    if name[0].isupper():
        return function(**own)(**run, n_threads=n_threads)
    return function(**own, **run, n_threads=n_threads)


PARALLEL = {name: partial(estimate, name) for name in ESTIMATIONS}
PARALLEL["Ellipsoid.forward"] = partial(METRIC.forward, SAMPLES)
PARALLEL["Ellipsoid.backward"] = partial(METRIC.backward, SAMPLES)


@pytest.mark.parametrize("name", PARALLEL)
def test_results_do_not_depend_on_the_threads(name):
    one, three = (np.array(PARALLEL[name](n_threads=n)) for n in (1, 3))
    assert one.tobytes() == three.tobytes()
    assert len(np.unique(one)) > len(one) // 2


def test_the_table_of_threads_is_whole():
    # IDW and its like stand for Estimator.__call__.
    parallel = {o.name for o in OVERLOADS if ("n_threads", "int") in o.arguments}
    assert parallel <= {*PARALLEL, "Estimator.__call__", "check_n_threads", "set_fft_n_threads"}


@pytest.mark.parametrize("name", ESTIMATIONS)
@pytest.mark.parametrize("rows", [slice(7, 8), slice(7, 30)])
def test_a_slice_of_the_targets_gives_the_rows_of_the_whole(name, rows):
    limits = {"max_neighbors_octant": 2, "dhids": HOLES, "max_neis_by_dhid": 2}
    part = np.array(estimate(name, limits=limits, target_locs=TARGETS[rows]))
    assert np.array_equal(part, np.array(estimate(name, limits=limits))[..., rows])


@pytest.mark.parametrize("name", ESTIMATIONS)
@pytest.mark.parametrize(
    ("message", "changes"),
    [
        ("data: expected 300 values, one per location, got 299", {"data": VALUES[1:]}),
        ("(nei|neighborhood): .*299.*300", {"data_locs": SAMPLES[1:], "data": VALUES[1:]}),
        ("dhids: expected 300 values", {"limits": {"dhids": [1] * 299, "max_neis_by_dhid": 2}}),
        ("data_locs: expected finite", {"data_locs": [(math.nan, 0, 0), *SAMPLES[1:]]}),
        ("target_locs: .*finite.* position 1", {"target_locs": [(0, 0, 0), (0, math.inf, 0)]}),
    ],
)
def test_bad_input_of_estimations(name, message, changes):
    with pytest.raises(ValueError, match=f"^{message}"):
        estimate(name, **changes)


NAN, INF, NULL = (0, math.nan, 0), (0, 0, -math.inf), (0, 0, 0)
GRID = gravelox.CartesianGrid((10, 10, 10), (2, 3, 4))
BLOCKS = gravelox.BlockModel(GRID, [False] * 22 + [True] * 2)
FOREST = gravelox.DynamicNeighborhood([NULL])
KERNEL, BROKEN = gravelox.Kernel.gaussian, gravelox.Ellipsoid(np.full((3, 3), math.nan))
Grid, Hood, Growing = gravelox.CartesianGrid, gravelox.Neighborhood, gravelox.DynamicNeighborhood
NOT_MADE = ("SpatialFunction", "EllipsoidInfo", "Kernel", "Covariance", "Estimator")


REFUSED = [
    (r"locations: .*coordinates, got \(0, nan, 0\) at position 1", Hood, ([NULL, NAN],)),
    ("locations .*ellipsoid", Hood, ([NULL], BROKEN)),
    ("locations", Growing, ([NAN],)),
    ("max_size: expected at least 0, got -1$", HOOD.find_neighbors, (NULL, -1)),
    ("max_size", FOREST.find_neighbors, (NULL, -1)),
    (r"center: expected finite coord.* got \(", HOOD.find_neighbors, (NAN, 3)),
    ("center", HOOD.find_neighbors, (INF, 3.0)),
    ("center", FOREST.find_neighbors, (NAN, 3.0)),
    ("locations .*: expected at least 1 value, got 0", Hood([]).nearest_neighbor, (NULL,)),
    ("locations", Growing().nearest_neighbor, (NULL,)),
    ("point|center", HOOD.nearest_neighbor, (NAN,)),
    ("point", FOREST.add_point, (NAN,)),
    ("points", FOREST.add_points, ([NULL, INF],)),
    ("id", FOREST.remove_point, (-1,)),
    ("number_of_cells", Grid, ((1, 1, 1), (2, 0, 2))),
    ("number_of_cells", Grid, ((1, 1, 1), (65536, 32768, 1))),
    ("cell_size", Grid, ((1, 1, 1), (0.5, 2.0, 0.5))),
    ("cell_size", Grid, ((1, 1, 1), (0.5, 0.5, math.nan))),
    ("i: expected an index from 0 to below 2, got 2$", GRID.index, (2, 0, 0)),
    ("j: .*3, got -1", GRID, (0, -1, 0)),
    ("k: .*4, got 4", BLOCKS, (0, 0, 4)),
    ("i: .*24, got 24", GRID, (24,)),
    ("i: .*2, got 2", BLOCKS, (2,)),
    ("i: .*2, got -1", BLOCKS.ijk, (-1,)),
    ("mask: expected 24 .*23", gravelox.BlockModel, (GRID, [True] * 23)),
    ("n_kernels", gravelox.generate_covariances, (METRIC, -1, KERNEL, *[1] * 7)),
]
FAILURES = [
    (RuntimeError, "invalid index$", BLOCKS, NULL),
    (TypeError, ".*incompatible function arg.*\n.*1. .*\n.*2. ", METRIC.forward, ("abc",)),
    (TypeError, ".*incompatible", HOOD.find_neighbors, ((0, 0), 1)),
    (TypeError, ".*incompatible", gravelox.Direction, ("0", 0)),
    (TypeError, ".*incompatible", gravelox.IDW, ([None],)),
    *[(TypeError, ".*No constructor defined!$", getattr(gravelox, name), ()) for name in NOT_MADE],
]


@pytest.mark.parametrize(
    ("error", "message", "call", "args"), [*[(ValueError, *row) for row in REFUSED], *FAILURES]
)
def test_bad_input_and_failures_in_python(error, message, call, args):
    with pytest.raises(error, match=f"^{message}"):
        call(*args)
