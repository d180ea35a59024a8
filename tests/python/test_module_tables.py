"""Threads, slices, bad input and failures over the whole module, a table for each."""

import math
from functools import partial

import gravelox
import numpy as np
import pytest
from module_walk import OVERLOADS
from oracles.variography import rows_of

DATA, Vario = np.random.default_rng(99), gravelox.ExperimentalVariogram
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
PARALLEL["extreme_points"] = partial(gravelox.extreme_points, SAMPLES, 50)
VARIO = gravelox.compute_exp_variogram(SAMPLES, VALUES, bandwidth=0.3, n_directions=5)
LAID = {"corners": TARGETS, "locations": SAMPLES, "data": VALUES, "nx": 9, "ny": 8, "nz": 7}
VARIOGRAMS = {
    "compute_variogram": {**LAID, "n_directions": 5, "n_lags": 20, "bandwidth": 1},
    "compute_exp_variogram": {"data_locs": SAMPLES, "data_values": VALUES, "n_directions": 30},
}


for name, given in VARIOGRAMS.items():
    PARALLEL[name] = partial(getattr(gravelox, name), **given)
PARALLEL["smooth_variogram"] = partial(gravelox.smooth_variogram, VARIO, 9, 5, 9, 5, 1, 0.5, 3)
FIELD, NORMAL = gravelox.TBSIM(TARGETS, COVS[1], 1, 20), gravelox.gaussian_distribution()
LOCAL = gravelox.LocalCovariances(SAMPLES[:3], [COVS[1:]] * 3, [1, 2, 3])
ENSEMBLE = LOCAL, gravelox.SimulatorFactory.TBSIM(TARGETS, 9), 0.5, 2, 1
simulate, Generator = gravelox.simulate, gravelox.SimulatorGenerator
simulate = partial(simulate, FIELD, gravelox.IDW(2, 0.5, 8))
ensemble = gravelox.unconditional_ensemble_simulation
freeze, spread = partial(Generator.TBSIM, TARGETS, COVS[1], 1, 9), SAMPLES * 30
PARALLEL["SimulatorGenerator.TBSIM"] = lambda n_threads: freeze(n_threads, 20)(3)(spread)
PARALLEL["SpatialFunction.__call__"] = partial(FIELD, SAMPLES)
PARALLEL["simulate"] = partial(simulate, TARGETS, HOOD, SAMPLES, VALUES)
PARALLEL["unconditional_ensemble_simulation"] = partial(ensemble, SAMPLES, *ENSEMBLE)
VIEWS = [gravelox.PDF(NORMAL), gravelox.CDF(NORMAL), gravelox.NScore(NORMAL, NORMAL)]
LISTS = [(v, n) for v in VIEWS for n in ("values", "probs", "forward", "backward") if hasattr(v, n)]
for view, name in LISTS:
    call = partial(getattr(view, name), DATA.uniform(0, 1, 300))
    PARALLEL[f"{type(view).__name__}.{name}"] = call
fit, fit_map = gravelox.optimize_ellipsoid_using_kfold, gravelox.extract_covariance_from_varmap
PARTS, blend = [(SAMPLES[:60], VALUES[:60])], gravelox.ensemble_local_ellipsoids
MAP = SAMPLES, VALUES, VALUES, 1, "gaussian", 1, 1, 1, 9, 9, 9, 5, 20, 1, 0, 0, 9, 1
SEVEN = SAMPLES[:7], [gravelox.Ellipsoid(i, 5, 2, 9 * i, 0, 0) for i in range(1, 8)], VALUES[:7]
BLENDED, CUT = (TARGETS, SAMPLES, VALUES, LOCAL, METRIC), (9, -1, 2, -1, 2, 0.5)
simulated, simple = gravelox.ensemble_simulation, gravelox.compute_simple_ensemble_estimation
PARALLEL["ensemble_estimation"] = partial(gravelox.ensemble_estimation, *BLENDED, *CUT)
PARALLEL["ensemble_simulation"] = partial(simulated, *BLENDED, ENSEMBLE[1], *CUT, 1)
PARALLEL[simple.__name__] = partial(simple, *BLENDED, 9, -1, -1, 2, 1, 1, 0.1, 1)
PARALLEL[blend.__name__] = lambda **n: [e.matrix() for e in blend(TARGETS, *SEVEN, **n)]
PARALLEL[fit.__name__] = lambda **n: fit(PARTS, "gaussian", 40, 30, 20, **n).matrix()
PARALLEL[fit_map.__name__] = lambda **n: fit_map(*MAP, **n)[0].ellipsoid().matrix()
PPMT, ROWS = gravelox.PPMT, DATA.lognormal(size=(3, 300))
PARALLEL["PPMT.__init__"] = lambda n_threads: PPMT(ROWS, 9, 0.37, n_threads).forward(ROWS, 1)
for name in ("forward", "backward"):
    PARALLEL[f"PPMT.{name}"] = partial(getattr(PPMT(ROWS, 9), name), DATA.normal(size=(3, 300)))
Blends = gravelox.IDWProjection, gravelox.GaussianMixtureProjection, gravelox.OKProjection
Radial, MDS, Pair = gravelox.OptimizedNDProjection, gravelox.MDSProjection, gravelox.DistPair
KERNEL, ENDS, NINE = gravelox.Kernel.gaussian, (SAMPLES / 10, SAMPLES**2), SAMPLES[:9] / 10
MAPS = [make(*ENDS, 1, 0.5, 9, *[KERNEL][:i]) for i, make in enumerate(Blends)]
MAPS += [MDS(*ENDS, NINE, 1, KERNEL), Radial(NINE, [], NINE)]
PARALLEL.update((f"{type(m).__name__}.project", partial(m.project, TARGETS / 10)) for m in MAPS)
curve, curves = gravelox.optimize_projection, gravelox.optimize_isomorphism
XY, THERE, PARTITIONS = SAMPLES[:, :2].T, ("gaussian", 9, 0.01, 0.1), (20, 50, 99, 0, 9)
RUN = *THERE[:2], -99, 99, *THERE[2:], -99, 99, *PARTITIONS
RUNS, LONG = (*THERE, *THERE, *[-99, 99] * 2, *PARTITIONS), (HOOD, 1, 5, SAMPLES)
PARALLEL[curve.__name__] = lambda **n: curve(*XY, *RUN, **n).serialize()
PARALLEL[curves.__name__] = lambda **n: curves(*XY, *RUNS, **n).serialize()
PARALLEL["Projection.forward"] = partial(gravelox.Projection(VALUES).forward, VALUES)
PARALLEL["Isomorphism.forward"] = partial(gravelox.Isomorphism((VALUES, XY[0])).forward, VALUES)
PARALLEL["Isomorphism.backward"] = partial(gravelox.Isomorphism((VALUES, XY[0])).backward, VALUES)
geodesics = gravelox.compute_geodesic_based_distance_matrix
PARALLEL[geodesics.__name__] = partial(geodesics, TARGETS[:90], *LONG)
TABLE = abs(VALUES[:100, None] - VALUES[:100])
PAIRS = [Pair(i, j, TABLE[i, j]) for i, j in np.ndindex(100, 100)]
for scale, given in ((gravelox.dense_MDS, TABLE), (gravelox.sparse_MDS, PAIRS)):
    PARALLEL[scale.__name__] = partial(scale, 1, 100, given, n_iterations=1, ntries=1)
fit_radial = partial(Radial.optimize, *ENDS, 17, 3, 3, n_iterations=1)
PARALLEL["OptimizedNDProjection.optimize"] = lambda **n: fit_radial(**n).weights
FLAT, CLUMP = np.zeros((300, 1)), SAMPLES / np.where(np.arange(300) < 100, 300, 5)[:, None]
LIKE, CLUMPED = (SAMPLES, FLAT, HOOD, 0), (CLUMP, FLAT, gravelox.Neighborhood(CLUMP), 0)
align, regions, fuse = [*vars(gravelox.grid_detector).values()][-3:]
PARALLEL["find_clusters"] = partial(gravelox.find_clusters, SAMPLES, METRIC, 0.5, 30, 0.2, 3)
PARALLEL["grid_detector.find_clusters"] = partial(regions, *CLUMPED, [0], 0.2, 0)
PARALLEL["grid_detector.cluster_fusion"] = partial(fuse, SAMPLES, range(300), 1.5)
PARALLEL["grid_detector.detect_grid_aligned_points"] = lambda n_threads: (
    5.0 ** np.arange(20) @ [align(*LIKE, t / 2, 0, 12, n_threads) for t in range(1, 21)]
)
ceres, jets = gravelox.ceres, gravelox.jet.ast
ABC, W = [jets.Variable(name, 0.5) for name in "abc"], jets.Variable("w", [0.5] * 3)
NUMBERS = np.random.default_rng(98).normal(size=(1500, 3)).tolist()
WAVES = [jets.exp(x * jets.sin(ABC[0])) - ABC[1] * y + ABC[2] * z for x, y, z in NUMBERS]
COSTS = [jets.Function.Scalar(ABC, wave) for wave in WAVES]
BLOCKS_OF = [jets.Function.Scalar([*ABC, W], W * u - wave) for u, wave in zip(NUMBERS, WAVES)]
PARALLEL["ceres.solve"] = lambda **n: [*ceres.solve(COSTS, ABC, {}, **n)[0].values()]
fit_blocks = partial(ceres.vec.solve, BLOCKS_OF, [*ABC, W], {}, cauchy_loss=0.5)
PARALLEL["ceres.vec.solve"] = lambda **n: np.concatenate([*fit_blocks(**n)[0].values()])


def numbers(result):
    return rows_of(result) if isinstance(result, Vario) else np.array(result)


@pytest.mark.parametrize("name", PARALLEL)
def test_results_do_not_depend_on_the_threads(name):
    one, three = (numbers(PARALLEL[name](n_threads=n)) for n in (1, 3))
    assert one.tobytes() == three.tobytes()
    assert len(np.unique(one)) > len(one) // 2


def test_the_table_of_threads_is_whole():
    # IDW and its like stand for Estimator.__call__.
    parallel = {o.name for o in OVERLOADS if ("n_threads", "int") in o.arguments}
    known = {*PARALLEL, "Estimator.__call__", "check_n_threads", "set_fft_n_threads"}
    kinds = "EllipsoidOptimization", "EllipsoidLBFGS", "Isomorphism"
    known |= {f"{kind}Parameters.__init__" for kind in kinds}
    # Each thread draws candidates, phases or values, or has a share in a sum, of its own.
    own = """optimize_rotation FIM SimulatorFactory.FIM SimulatorGenerator.FIM Distribution.simulate
        kfold_cross_validation_using_idw kfold_cross_validation_using_sk optimize_covariance
        kfold_cross_validation_using_ok multi_scale_cross_validation_error
        compute_ellipsoid_error_idw compute_covariance_error_idw CovarianceErrorFunction.__call__
        create_folds_using_multiscale optimize_ellipsoid_using_idw optimize_covariance_using_idw
        mds_using_random_search"""
    assert parallel - known == {*own.split()}


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
BROKEN = gravelox.Ellipsoid(np.full((3, 3), math.nan))
Grid, Hood, Growing = gravelox.CartesianGrid, gravelox.Neighborhood, gravelox.DynamicNeighborhood
NOT_MADE = ["SpatialFunction", "EllipsoidInfo", "Kernel", "Covariance", "Estimator"]
NOT_MADE += ["SimulatorFactory", "SimulatorGenerator", "Distribution"]


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
optimize_rotation = gravelox.optimize_rotation
SPECTRUM, project = gravelox.fft.SpectralData1D([1, 2], [3, 4]), gravelox.fft.project_to_line
REFUSED += [
    ("npairs", Vario, ([NULL], [1], [], [0], [NULL])),
    ("direction_id", Vario, ([NULL], [1], [1], [1], [NULL])),
    ("direction_id", Vario, ([NULL], [1], [1], [-1], [NULL])),
    ("direction_id", VARIO.get_variogram_by_direction_id, (10,)),
    ("direction_id", VARIO.get_variogram_by_direction_id, (-1,)),
    ("vario", gravelox.smooth_variogram, (Vario(*[[]] * 5), 9, 5, 9, 9, 1, 1, 1)),
    ("cov", gravelox.variogram_computer, ([], 1)),
    ("locations", gravelox.extreme_points, ([NAN],)),
    ("locations", optimize_rotation, ([INF],)),
    ("locations", optimize_rotation, ([],)),
    ("n_rays", optimize_rotation, (SAMPLES, 9, 9, 1, 1, True, 0)),
    ("magnitude", gravelox.fft.SpectralData1D, ([1], [1, 2])),
    ("frequencies", SPECTRUM.filter_frequencies, ([2],)),
    ("frequencies", SPECTRUM.filter_frequencies, ([0, -1],)),
    ("window_size", SPECTRUM.smooth_frequencies, (-1,)),
    ("window_size", project, ([0, 1], [1, 2], 1, 1, 3, -1)),
    ("data", project, ([0, 1], [1], 1, 1, 3, 1)),
    ("source_data", gravelox.fft.project_back_to_source, ([1], [0, 1], [1], 1, 1, 1)),
]
CHANGES = [
    ("compute_variogram", "corners", []),
    ("compute_variogram", "corners locations", [NAN] * 300),
    ("compute_variogram", "data", VALUES[1:], [math.inf] * 300),
    ("compute_variogram", "n_directions n_lags nx ny nz", -1),
    ("compute_exp_variogram", "data_locs", [INF] * 300),
    ("compute_exp_variogram", "data_values", VALUES[1:], [math.nan] * 300),
    ("compute_exp_variogram", "n_directions n_lags n_centers", -1),
    ("compute_exp_variogram", "bandwidth", 0, math.nan),
    ("compute_exp_variogram", "tol", 1, 2, math.nan),
]
REFUSED += [
    (f"{name}[ :]", partial(getattr(gravelox, call), **{**VARIOGRAMS[call], name: value}), ())
    for call, names, *values in CHANGES
    for name in names.split()
    for value in values
]
Local, Factory, from_data = LOCAL.__class__, gravelox.SimulatorFactory, gravelox.data_distribution
SHORT, FIM, BAND = Local([], [], []), gravelox.FIM, (TARGETS, COVS[1], 1, 4, 1)
SHORT.errors = [1]
SIZES = ((100000,), (3, 2000000, 100000), (2**31 - 1,) * 3)
MADE = [gravelox.TBSIM, FIM, Generator.TBSIM, Generator.FIM]
MADE += [lambda corners, *rest: Factory.TBSIM(corners, 4)(COVS, 1)]
MADE += [lambda corners, *rest: Factory.FIM(corners, 4)(COVS, 1)]
REFUSED += [
    ("corners", make, (c, COVS[1], 1, 4)) for make in MADE for c in ([], [NULL, NAN], [INF])
]
REFUSED += [("corners", make, ([INF], COVS, 1, 4)) for make in MADE]
REFUSED += [(f"n.*{n[-1]}", FIM, (TARGETS, COVS[1], 1, *n)) for n in SIZES]
REFUSED += [(f"n.*{n[-1]}", Generator.FIM, (TARGETS, COVS, 1, *n)) for n in SIZES]
REFUSED += [(f"n_base.*points.*{n}", Generator.TBSIM, (*BAND, n)) for n in (20000, -1)]
WEIGHTS = [1], [1, -1], [0, 0], [1, math.nan], [1e308] * 2
REFUSED += [("weight", from_data, ([1, 2], w)) for w in WEIGHTS]
REFUSED += [("m", gravelox.fisher_f_distribution, (1e16, 3))]  # would not end
REFUSED += [("n: .*-1", call, (-1,)) for call in (NORMAL.simulate, NORMAL.histogram, NORMAL.cdf)]
REFUSED += [
    ("cov", gravelox.TBSIM, (TARGETS, gravelox.Covariance.spherical(1, BROKEN), 1, 4)),
    ("target_locs", simulate, ([NAN], HOOD, SAMPLES, VALUES)),
    ("data: .*300.*299", simulate, (TARGETS, HOOD, SAMPLES, VALUES[1:])),
    ("data_locs|neighborhood", simulate, (TARGETS, HOOD, SAMPLES[1:], VALUES[1:])),
    ("covariances: .*1.*0", Local, ([NULL], [], [1])),
    ("errors: .*0.*1", Local, ([], [], [1])),
    ("errors|local_covs", ensemble, ([], SHORT, *ENSEMBLE[1:], 1)),
    ("errors|local_covs", Generator.Ensemble, (SHORT, *ENSEMBLE[1:])),
    ("locations", FIELD, ([NULL, INF],)),
    ("Data must have at least 2 elements$", from_data, ([1],)),
    ("data: .*finite", from_data, ([1, math.nan],)),
    ("n: .*-1", NORMAL.simulate, (-1, 1, 1)),
    (".*Degrees of .* is 0, but must be > 0 !", gravelox.student_t_distribution, (0,)),
    (".*Scale parameter is -1, but must be > 0 !", gravelox.gaussian_distribution, (0, -1)),
]
rate, folds = gravelox.CovarianceErrorFunction.IDW, gravelox.create_folds
predict = partial(gravelox.kfold_cross_validation_using_sk, *PARTS[0], COVS, 9, -1)
REFUSED += [
    ("data_values: .*60.*300", folds, (SAMPLES[:60], VALUES, 9, 9, 3)),
    ("min_partition_size", predict, (-1,)),
    ("max_partition_size", predict, (10, 9)),
    ("folds.*60.*300", rate, ([(SAMPLES[:60], VALUES)], 9)),
    ("covs", gravelox.optimize_covariance, ([], rate(PARTS, 9))),
    ("cov_type.*cubic", fit, (PARTS, "cubic", 9, 9, 9)),
    ("max_partition_size.*15", fit, (PARTS, "gaussian", 9, 9, 9, 0, 0, 15, 15)),
    ("weight: .*300.*299", fit_map, (*MAP[:2], VALUES[1:], *MAP[3:])),
    ("azimuth: .*2.*1", gravelox.ensemble_model, (*[[1, 1]] * 3, [1], *[[1, 1]] * 3)),
    ("data_nei|data_locs", PARALLEL["ensemble_estimation"], (0, True, Hood(TARGETS))),
]
Params, Fitter, SCT, HOLED = gravelox.GMMParams, gravelox.GMMFitter, gravelox.SCT, np.ones((4, 2))
HOLED[1, 0], ONE, WIDE = math.nan, ([1], [[0, 0]], [np.eye(2)]), np.ones((2, 4))
SCORES, CHAIN, FAR = SCT(Params(1, *ONE)), PPMT(ROWS, 1), [[0, 1, 50], [2, 50, 0]]
MIXTURES = [("weights", [math.nan], *ONE[1:]), (r"covariances.*nan", *ONE[:2], [HOLED[:2]])]
MIXTURES += [(r"covariances\[1\]: .* 2 x 2 .*3 x 3", [0.5] * 2, np.eye(2), [np.eye(2), np.eye(3)])]
MIXTURES += [(r"GMM parameters have inconsistent dimensions\.$", *ONE[:2], ONE[2] * 2)]
REFUSED += [(m, lambda *mix: SCT(Params(len(mix[0]), *mix)), rest) for m, *rest in MIXTURES]
REFUSED += [
    (r"Number of components must be positive\.$", Fitter, (0,)),
    (r"n_samples must be >= n_components\.$", Fitter(3).fit, (WIDE, [1])),
    (r"X and .* must have the same number of samples\.$", Fitter(2).fit, (WIDE, [1] * 3)),
    (r"x: .*nan at \[1, 0\]", Fitter(2).fit, (HOLED,)),
    ("x: .*at least 1 row.* 4 x 0", Fitter(2).fit, (HOLED[:, :0],)),
    ("weights: .*nan at position 1", Fitter(1).fit, (WIDE, HOLED[:2, 0])),
    (r"Input data Z has incorrect number of features\.$", SCORES.forward, (HOLED,)),
    (r"Input data SCT_Z has incorrect number of features\.$", SCORES.backward, (HOLED,)),
    (r"x: .*nan at \[0, 1\]", SCORES.forward, (HOLED.T,)),
    ("Data must have at least 2 elements$", PPMT, (HOLED[:, :1], 1)),
    ("data: .*points.* coordinates.*4 x 2", PPMT, (WIDE.T, 1)),
    (r"data: .*nan at \[0, 1\]", PPMT, (HOLED.T, 1)),
    ("data: .*vary.* row 1", PPMT, (ROWS * [[1], [0], [1]], 1)),
    ("data: .*3 .*2", CHAIN.forward, (WIDE,)),
    ("u: .*3 .*4", CHAIN.backward, (WIDE[0],)),
    ("A: .*rows.*columns.*2 x 4", gravelox.compute_optimum_rotation, (WIDE,)),
]
Table, run = gravelox.transiogram.Transiogram, gravelox.markov_chain.simulation
TABLE, NONE, UNBOUND = Table([[math.hypot] * 2] * 2), Table([]), {"w": ([0] * 3, [1, 2])}
REFUSED += [
    ("vector: .*3 .*2", (W * [1, 2]).eval, ()),
    ("cauchy_loss: .*inf", ceres.solve, (COSTS, ABC, {}, 9, math.inf)),
    ("costs: .*at most 2 .*3", ceres.solve, (COSTS, ABC[1:], {})),
    ("boundary of b: .*nan", ceres.solve, (COSTS, ABC, {"b": (0, math.nan)})),
    ("boundary of w: .*at least 3 values, got 3 and 2", ceres.vec.solve, ([], [W], UNBOUND)),
    ("transiogram: .*at least 1 row", run, ([NULL], [], [], NONE, METRIC)),
    ("data_values: .*1 .*0", run, ([NULL], [NULL], [], TABLE, METRIC)),
    ("data_values: .*below 2, got 2", run, ([NULL], [NULL], [2], TABLE, METRIC)),
    ("target_locs: .*position 1", run, ([NULL, NAN], [], [], TABLE, METRIC)),
]
REFUSED += [("N: ", gravelox.create_random_rotation, (n, 1)) for n in (0, -1, 2**31 - 1)]
dense, sparse, search = gravelox.dense_MDS, gravelox.sparse_MDS, gravelox.mds_using_random_search
LINE, THREE, RAGGED, geodesic = [[1], [3]], np.eye(3), [[1, 2], [3]], gravelox.compute_geodesics
BLENDED = [(f"K: .*{k}", ENDS, k) for k in (0, -1, 301)]
BLENDED += [("source: .*1 value", ([], []), 1), ("source: .*2 .*1 at", (RAGGED, LINE), 1)]
BLENDED += [("target: .*3 .*2", (THREE, THREE[1:]), 1)]
REFUSED += [(message, Blends[0], (*ends, 1, 0.5, k)) for message, ends, k in BLENDED]
REFUSED += [("K: .*301", make, (*ENDS, 1, 0.5, 301, KERNEL)) for make in Blends[1:]]
REFUSED += [("x: .*3 .*2", MAPS[0].project, ([1, 2],)), ("X: .*3 .*1", MAPS[3].project, (LINE,))]
REFUSED += [("weights: .*2 .*3", Radial(LINE, [], THREE).project, ([1],))]
REFUSED += [("kernel: .*spherical.*idw.*cubic", gravelox.Projection, ([], "cubic"))]
REFUSED += [("kernel_backward: .*cubic", gravelox.IsomorphismParameters, ("idw", 1, "cubic"))]
REFUSED += [("kernel.*cubic", c, (*XY, "cubic", *r[1:])) for c, r in ((curve, RUN), (curves, RUNS))]
for call, *rest in ((curve, *RUN), (curves, *RUNS), (curves,)):
    REFUSED += [("source.*: .*1 value", call, ([], [], *rest))]
    REFUSED += [("target.*: .*2 .*3", call, ([1, 2], [1, 2, 3], *rest))]
REFUSED += [("initial_guess: .*3 .*2", dense, (3, 3, THREE, THREE[:, 1:]))]
REFUSED += [("initial_guess: .*3 .*2", sparse, (3, 3, PAIRS[:3], THREE[:, 1:]))]
SEARCHES = [("initial_guess: .*2 .*3", 2, THREE, []), ("initial_guess: .*1 value", 2, [], [])]
SEARCHES += [(f"D: .*{i}", 3, THREE, [(i, 0, 1.0)]) for i in (-1, 3)]
REFUSED += [(message, search, (*run, [1], 1, 1)) for message, *run in SEARCHES]
REFUSED += [("max_distortions: .*1 value", search, (3, THREE, [], [], 1, 1))]
REFUSED += [("max_size: .*0", search, (3, THREE, [], [1], 1, 1, 1, 1, False, 0))]
REFUSED += [(f"D: .*{i}", sparse, (1, 3, [Pair(i, 2 - i, 1)])) for i in (-1, 3)]
REFUSED += [("D: .*4 .*3", dense, (1, 4, THREE)), ("D: .*square", dense, (1, 2, RAGGED))]
REFUSED += [("D: .*square", gravelox.create_minimum_spanning_tree, (RAGGED,))]
REFUSED += [("D: .*square", gravelox.create_sparse_dist_matrix, (RAGGED, 1, 1, 1))]
REFUSED += [(f"start: .*{i}", geodesic, (SAMPLES, i, 0, *LONG)) for i in (-1, 300)]
REFUSED += [("end: .*300", geodesic, (SAMPLES, 0, 300, *LONG))]
REFUSED += [("dense_set: .*300 .*299", geodesics, (SAMPLES, *LONG[:3], SAMPLES[1:]))]
REFUSED += [("pts: .*1 value", gravelox.create_random_dense_set, ([], HOOD, 1, 1, 1))]
STATES = [(), 5, ([],), ("ab", "cd"), (([], [], []),), ([1.0], [None]), (([], []), "idw")]
STATES += [(([], []), "cubic", "idw"), (([], []), 1, 2)]
loaded = gravelox.Isomorphism.__new__(gravelox.Isomorphism)
REFUSED += [("state|kernel", loaded.__setstate__, (state,)) for state in STATES]
NOT_LIKE = [(FLAT[1:], HOOD), ([[0]] * 299 + [[0, 1]], HOOD), (FLAT * math.nan, HOOD)]
NOT_LIKE += [(FLAT, Hood(TARGETS)), (FLAT, Hood(SAMPLES[::-1]))]
between, FEW = gravelox.compute_angular_distance_between_clusters, [1] * 299
REFUSED += [("(features|nei): ", align, (SAMPLES, *own, 0, 1, 0, 9)) for own in NOT_LIKE]
REFUSED += [
    ("angle_tolerance_deg: .*0", align, (*LIKE, 0, 0, 9)),
    ("n_neis: .*-1", align, (*LIKE, 1, 0, -1)),
    ("background_color: .*1 .*2", regions, (*LIKE, [0, 0], 1, 0)),
    ("initial_clusters: .*300.*299", fuse, (SAMPLES, FEW, 1)),
    ("max_distance: .*-1", fuse, (SAMPLES, HOLES, -1)),
    ("clusters: .*300.*299", gravelox.merge_clusters, ({}, SAMPLES, FEW, [], 1, 1, METRIC)),
    ("clusters: .*300.*299", between, (METRIC, SAMPLES, FEW, 1)),
    ("anisotropy: ", gravelox.find_clusters, (SAMPLES, BROKEN, 1, 1, 1, 1)),
]
FAILURES = [
    (OverflowError, r"x: .* \[1, 1\] has a probability of 1 ", SCORES.forward, (FAR,)),
    (RuntimeError, "invalid index$", BLOCKS, NULL),
    (RuntimeError, r"No lags\.\.\.$", gravelox.smooth_variogram, (Vario(*[[]] * 5), *[9] * 6, 0)),
    (RuntimeError, "No lags found$", gravelox.smooth_variogram, (VARIO, 9, 0, 1e-9, 1, 1, 1, 0)),
    (TypeError, ".*incompatible function arg.*\n.*1. .*\n.*2. ", METRIC.forward, ("abc",)),
    (TypeError, ".*incompatible", HOOD.find_neighbors, ((0, 0), 1)),
    (TypeError, ".*incompatible", gravelox.Direction, ("0", 0)),
    (TypeError, ".*incompatible", gravelox.IDW, ([None],)),
    (RuntimeError, r"(.|\n)*infeasible bound", ceres.solve, (COSTS, ABC, {"a": (2, 1)})),
    (RuntimeError, r"(.|\n)*infeasible", ceres.vec.solve, ([], [W], {"w": ([3] * 3, [1] * 3)})),
    (RuntimeError, "Invalid variable types$", gravelox.transiogram.jet.Transiogram, (W, W, [[W]])),
    (TypeError, ".*real number", gravelox.algebra.map, (gravelox.algebra.JetVector([1]), print)),
    (TypeError, "kernel_matrix: .*callable", Table, ([[1]],)),
    *[(TypeError, ".*No constructor defined!$", getattr(gravelox, name), ()) for name in NOT_MADE],
]


@pytest.mark.parametrize(
    ("error", "message", "call", "args"), [*[(ValueError, *row) for row in REFUSED], *FAILURES]
)
def test_bad_input_and_failures_in_python(error, message, call, args):
    with pytest.raises(error, match=f"^{message}"):
        call(*args)
