"""Whatever its arguments, a call ends in a result or a Python exception: no crash, no hang."""

import faulthandler
import math
import sys

import gravelox
import numpy as np
import pytest
from hypothesis import given
from hypothesis import strategies as st
from module_walk import FUNCTIONS, look_up

ODD = [1e-31, 1e-300, 1e300, math.nan, math.inf, -math.inf]
FLOATS = st.sampled_from([0.0, 1.0, -1.0, 0.5, 3.0] * 4 + ODD)
SMALL = st.sampled_from([-(2**31), -1, 0, 1, 2, 7])
INTS = SMALL | st.just(2**31 - 1)
POINTS = st.tuples(FLOATS, FLOATS, FLOATS)
ROWS = st.lists(POINTS, max_size=5).map(lambda rows: np.reshape(rows, (-1, 3)))
SIMPLE = {
    "float": FLOATS,
    "int": INTS,
    "bool": st.booleans(),
    "numpy.ndarray[numpy.float64[3, 1]]": POINTS,
    "numpy.ndarray[numpy.float64[3, 3]]": st.tuples(POINTS, POINTS, POINTS).map(np.array),
    "tuple[int, int, int]": st.tuples(INTS, INTS, SMALL),
    "numpy.ndarray[numpy.float64[m, 1]]": (POINTS | st.lists(FLOATS, max_size=9)).map(np.array),
    "numpy.ndarray[numpy.float64[m, n]]": ROWS | ROWS.map(np.transpose),
}
SIMPLE["dict[int, dict[int, float]]"] = st.dictionaries(SMALL, st.dictionaries(SMALL, FLOATS))
FOUR = [(0, 0, 0), (1, 0, 0), (0, 2, 0), (0, 0, 0)]
METRICS = [gravelox.Ellipsoid(np.full((3, 3), value)) for value in (0, math.nan)]
METRICS.insert(0, gravelox.Ellipsoid(9, 4, 2, 10, 20, 30))
GRID = gravelox.CartesianGrid((1, 1, 1), (2, 2, 1))
FOLDS = [(FOUR * n, [1.0, 2.0, 3.0, 3.0] * n) for n in (4, 1, 0)]
SIMPLE["tuple[list[numpy.ndarray[numpy.float64[3, 1]]], list[float]]"] = st.sampled_from(FOLDS)
SIMPLE["numpy.ndarray[numpy.float32[m, 1]]"] = SIMPLE["numpy.ndarray[numpy.float64[m, 1]]"]
SIMPLE["tuple[int, int, float]"] = st.tuples(SMALL, SMALL, FLOATS)
SIMPLE["list[list[float]]"] = st.sampled_from([FOUR[:3], [[1, 1e20], [1, 2]], [[]], []])
SIMPLE["tuple[list[float], list[float]]"] = st.just((FOUR[0] * 2, FOUR[1]))
SIMPLE["str"] = st.sampled_from(["gaussian", "spherical", "nugget", ""])
SIMPLE["Optional[gravelox.Neighborhood]"] = st.none()
SIMPLE["object"] = st.sampled_from([lambda model, n_threads: len(model), None])
COVS = [gravelox.Covariance.spherical(0.5, m) for m in METRICS] + [gravelox.Covariance.nugget(1)]
OBJECTS = [*METRICS, *[m.info() for m in METRICS], *COVS]
OBJECTS += [gravelox.Neighborhood(points, METRICS[0]) for points in ([], FOUR, FOUR * 4)]
OBJECTS += [gravelox.DynamicNeighborhood(), gravelox.DynamicNeighborhood(FOUR)]
OBJECTS += [gravelox.covariance_computer(covs) for covs in ([], COVS)]
OBJECTS += [GRID, *[gravelox.BlockModel(GRID, [active] * 4) for active in (False, True)]]
OBJECTS += [gravelox.BoundingBox([]), gravelox.BoundingBox(FOUR), gravelox.Kernel.gaussian]
OBJECTS += [gravelox.ExperimentalVariogram(FOUR[:n], *[[1, 0, 2, 1][:n]] * 3, FOUR) for n in (0, 4)]
OBJECTS += [gravelox.fft.SpectralData1D(FOUR[1], FOUR[2])]
OBJECTS += [gravelox.IDW(0.5, 0, 3, 2, 1, [1, 1, 2, 2], 1), gravelox.OrdinaryKriging(COVS[:1], 4)]
OBJECTS += [gravelox.EllipsoidOptimizationParameters(n_rays=3, n_iterations=3, tol=0.9)]
OBJECTS += [gravelox.EllipsoidLBFGSParameters(), gravelox.CovarianceErrorFunction.IDW(FOLDS[:2], 9)]
LOCALS = [gravelox.LocalCovariances(FOUR[:n], [COVS] * n, [1, 0][:n]) for n in (0, 2)]
LOCALS[0].centers = FOUR  # the lists no longer match
OBJECTS += [
    *LOCALS,
    gravelox.SimulatorFactory.TBSIM(FOUR, 3),
    gravelox.SimulatorFactory.FIM(FOUR, 3),
]
FIELDS = [make(FOUR, COVS[::3], 1, 3) for make in (gravelox.TBSIM, gravelox.FIM)]
OBJECTS += [*FIELDS, gravelox.SimulatorGenerator.Pool(FIELDS), gravelox.RNG(1)]
OBJECTS += [gravelox.SimulatorGenerator.TBSIM(FOUR, COVS[:1], 1, 3, 1, 2)]
for made in (gravelox.gaussian_distribution(), gravelox.data_distribution([1, 2, 2])):
    OBJECTS += [made, gravelox.PDF(made), gravelox.CDF(made), gravelox.NScore(made, made)]
SIMPLE["object"] |= st.just(lambda *args: 0.5)
SIMPLE["slice"], SIMPLE["tuple[int, int]"] = st.builds(slice, SMALL, INTS), st.tuples(SMALL, INTS)
for kind, limit in (("float", FLOATS), ("list[float]", st.lists(FLOATS, max_size=3))):
    pairs = st.dictionaries(st.sampled_from("xv"), st.tuples(limit, limit))
    SIMPLE[f"dict[str, tuple[{kind}, {kind}]]"] = pairs
TABLES = gravelox.transiogram.Transiogram, gravelox.transiogram.jet.Transiogram
for m, prefix, table in zip((gravelox.ast, gravelox.jet.ast), ("Real", "Jet"), TABLES):
    p, q, r = (getattr(gravelox.algebra, prefix + end) for end in ("", "Vector", "Matrix"))
    x, v = m.Variable("x", 1.0), m.Variable("v", FOUR[2])
    made = m.Function.Scalar([x, v], x + v * v)
    OBJECTS += [p(0.0), q([]), q(ODD[:3]), r([]), r(np.eye(3)), r([[]]), table(v, v, [[x, v * v]])]
    OBJECTS += [x, v, m.Value(0.0), m.Value([]), x * x, v + v, made, m.Kernel(made), table([])]
    OBJECTS += [made.ScalarFunction(), made.Transformation(), made.Kernel(), m.ScalarCost(made)]
MODEL, CHAIN = gravelox.GMMParams(1, [1], [[0, 1, 2]], [np.eye(3)]), gravelox.PPMT(np.tri(3, 4), 3)
OBJECTS += [MODEL, CHAIN, gravelox.SCT(MODEL), gravelox.GMMFitter(2, 3)]
ENDS, BELL = (FOUR, FOUR, 1, 0.5, 2), gravelox.Kernel.gaussian
OBJECTS += [gravelox.IDWProjection(*ENDS), gravelox.GaussianMixtureProjection(*ENDS, BELL)]
OBJECTS += [gravelox.OKProjection(*ENDS, BELL), gravelox.MDSProjection(*[FOUR] * 3, 1, BELL)]
OBJECTS += [gravelox.OptimizedNDProjection(FOUR, [], FOUR[n:]) for n in (0, 1)]
OBJECTS += [gravelox.Projection(FOUR[1]), gravelox.Isomorphism((FOUR[1], []))]
OBJECTS += [gravelox.IsomorphismParameters(), *[gravelox.DistPair(0, i, 1) for i in (-1, 1)]]


def values_of(name, kind):
    """Arguments of a kind, as its signature writes it; what says how much to make stays small."""
    ends = ("n_samples_by_dh", "size", "nx", "ny", "nz", "max_iter", "dim", "N", "din", "dout")
    ends += ("ntries", "K_neighbors", "max_pts")
    if kind == "int" and (name.startswith("n_") or name.endswith(ends) or name == "n"):
        return SMALL
    if kind in SIMPLE:
        return SIMPLE[kind]
    if kind.startswith("list["):
        fitting = {"data": [1.0] * 4, "mask": [True] * 4, "dhids": [], "covs": COVS, "folds": FOLDS}
        fitting.update(clusters=[2, -1, 7, 2], initial_clusters=[2, -1, 7, 2], ignored_ids=[7])
        return st.lists(values_of(name, kind[5:-1]), max_size=9) | st.just(fitting.get(name, FOUR))
    bound_class = look_up(kind.replace("gravelox.", "", 1))
    return st.sampled_from([o for o in OBJECTS if isinstance(o, bound_class)])


# One of each owner's names that the docstrings do not tell apart, as of operators.
NAMES = [name for name in FUNCTIONS if "Ptr." not in name]
ALIKE = {str((n.rpartition(".")[0], *[o[2:] for o in FUNCTIONS[n]])): n for n in NAMES}


@pytest.mark.parametrize("name", ALIKE.values())
@given(data=st.data())
def test_every_call_ends(name, data):
    overload = data.draw(st.sampled_from(FUNCTIONS[name]))
    chosen = [values_of(argument, kind) for argument, kind in overload.arguments]
    if chosen and data.draw(st.integers(0, 9)) == 9:
        chosen[-1] = st.sampled_from([None, "x", [], [None]])
    owner, _, member = name.rpartition(".")
    call = look_up(owner if member == "__init__" else name)
    if overload.is_method and member != "__init__":
        chosen.insert(0, values_of("self", owner))
    args = [data.draw(strategy) for strategy in chosen]
    faulthandler.dump_traceback_later(60, exit=True, file=sys.__stderr__)
    try:
        str(call(*args))
    except SystemError:  # the interpreter's own word for a broken extension
        raise
    except Exception:
        pass
    finally:
        faulthandler.cancel_dump_traceback_later()
