"""Stores what a fixed call of every public family gives, to the last bit, or compares with it.

A change made for speed does not move a number: write a file before it and compare after it, on the
same machine.

    python benchmarks/parity.py --write before.json
    python benchmarks/parity.py --compare before.json
"""

import argparse
import json
import math
import sys
from pathlib import Path

import gravelox as gx
import numpy as np

# Calls that need not agree to the bit: the name, with a relative tolerance and the reason.
TOLERANCES: dict = {}

ELLIPSOID = gx.Ellipsoid(60, 40, 25, 30, 20, 10)
GRID = gx.CartesianGrid((100, 80, 60), (7, 6, 5), (10, 20, 30), (70, 15, 5))
BLOCKS = gx.BlockModel(GRID, [i % 3 == 0 for i in range(len(GRID))])
SAMPLES, HOLES = gx.create_random_drillholes((0, 0, 0), (100, 100, 50), 12, 0.3, 0.9, 40, seed=7)
VALUES = [math.sin(0.05 * x) + 0.01 * y * z for x, y, z in SAMPLES]
TARGETS = gx.CartesianGrid((100, 100, 50), (9, 8, 6)).locations()
NEIGHBORHOOD = gx.Neighborhood(SAMPLES, ELLIPSOID)
LAGS = ELLIPSOID.surface(20, 5) + ELLIPSOID.volume(5, 3, 6) + [(0, 0, 0)]
MODEL = [
    gx.Covariance.nugget(1e-5),
    gx.Covariance.spherical(4e-5, ELLIPSOID),
    gx.Covariance.exponential(3e-5, ELLIPSOID),
    gx.Covariance.gaussian(2e-5, gx.Ellipsoid(90, 50, 30, 110, -10, 40)),
]
SHAPES = (gx.Covariance.spherical, gx.Covariance.gaussian, gx.Covariance.exponential)
UNIT_MODEL = [gx.Covariance.nugget(0.1), gx.Covariance.spherical(0.9, ELLIPSOID)]

# How many neighbours, and which; the estimators share these.
SELECTIONS = {
    "count": {"max_neighbors": 16},
    "radius": {"max_radius": 0.6, "max_neighbors": -1},
    "octants": {"max_neighbors": 24, "max_neighbors_octant": 3},
    "holes": {"max_neighbors": 24, "dhids": HOLES, "max_neis_by_dhid": 2},
}


def samplers():
    yield "generate_random_semisphere", gx.generate_random_semisphere(20, 3)
    yield "generate_random_sphere", gx.generate_random_sphere(20, 3)
    yield "Direction", [gx.Direction(azimuth, 25) for azimuth in range(0, 360, 50)]
    yield "Rotation", gx.Rotation(200, -35, 50)


def ellipsoids():
    turned = ELLIPSOID.matrix() @ gx.Rotation(10, 20, 30).matrix()
    yield "Ellipsoid", ELLIPSOID
    yield "Ellipsoid.from_matrix", gx.Ellipsoid(turned)
    yield "Ellipsoid.info", ELLIPSOID.info()
    yield "Ellipsoid.forward", ELLIPSOID.forward(SAMPLES)
    yield "Ellipsoid.backward", ELLIPSOID.backward(SAMPLES)
    yield "Ellipsoid.surface", ELLIPSOID.surface(20, 5)
    yield "Ellipsoid.volume", ELLIPSOID.volume(10, 4, 5)
    yield "Ellipsoid.directions", ELLIPSOID.directions(10, 4, 5)
    yield "Ellipsoid.axes", [ELLIPSOID.major_axis(), ELLIPSOID.mid_axis(), ELLIPSOID.minor_axis()]
    yield "extract_ellipsoid_info", gx.extract_ellipsoid_info(turned)
    yield "sort_matrix3d", [gx.sort_matrix3d(turned, flag) for flag in (True, False)]
    yield "orthogonolize_axes", [gx.orthogonolize_axes(turned, flag) for flag in (True, False)]


def neighborhoods():
    growing = gx.DynamicNeighborhood(SAMPLES[:100], ELLIPSOID)
    for location in SAMPLES[100:140]:
        growing.add_point(location)
    growing.add_points(SAMPLES[140:])
    for id in range(0, 200, 7):
        growing.remove_point(id)
    hoods = {
        "Neighborhood": NEIGHBORHOOD,
        "Neighborhood.plain": gx.Neighborhood(SAMPLES),
        "Neighborhood.grid": gx.Neighborhood(TARGETS),  # many points at equal distances
        "DynamicNeighborhood": growing,
    }
    for name, hood in hoods.items():
        yield f"{name}.nearest", [hood.find_neighbors(target, 12) for target in TARGETS]
        yield f"{name}.within", [hood.find_neighbors(target, 0.4) for target in TARGETS]
        yield f"{name}.first", [hood.nearest_neighbor(target) for target in TARGETS]


def grids():
    yield "CartesianGrid.locations", GRID.locations()
    yield "CartesianGrid.cell_size", GRID.cell_size()
    yield "CartesianGrid.corners", GRID.corners()
    yield "CartesianGrid.transformation", GRID.transformation()
    yield "CartesianGrid.counts", gx.CartesianGrid((1.0, 2.0, 3.0), (0.1, 0.3, 0.7)).ijk(50)
    yield "BlockModel.locations", BLOCKS.locations()
    yield "BlockModel.ijk", [BLOCKS.ijk(i) for i in range(len(BLOCKS))]
    box = gx.BoundingBox(SAMPLES)
    yield "BoundingBox", [box.lower(), box.upper(), box.length(), box.corners()]
    yield "create_random_drillholes", (SAMPLES, HOLES)
    yield (
        "create_random_drillholes.campaign",
        gx.create_random_drillholes(
            500, 300, 9, 0, 90, -80, -50, 50, 120, 10, 40, 4, 12, ELLIPSOID, 11
        ),
    )


def rotations():
    box, turn = gx.optimize_rotation(SAMPLES, 40, 300, n_threads=1, n_rays=50)
    yield "optimize_rotation", [box.lower(), box.upper(), turn]
    box, turn = gx.optimize_rotation(SAMPLES, 9, 200, 1, use_fixed_samples=False, n_rays=20)
    yield "optimize_rotation.drawn", [box.lower(), box.upper(), turn]
    yield "extreme_points", gx.extreme_points(SAMPLES, 30, n_threads=1)
    yield "generate_rotations", gx.generate_rotations(8, 3, 0.3)
    yield "generate_ellipsoids", gx.generate_ellipsoids(10, 80, 5, 2, 3, 0.4)


def covariances():
    for cov in MODEL:
        yield f"Covariance.{cov.type()}", [cov(lag) for lag in LAGS]
    for kernel in ("spherical", "gaussian", "exponential"):
        values = [getattr(gx.Kernel, kernel)(h / 16) for h in range(40)]
        yield f"Kernel.{kernel}", values
    computer = gx.covariance_computer(MODEL)
    yield "covariance_computer", [computer(lag) for lag in LAGS]
    yield (
        "generate_covariances",
        gx.generate_covariances(
            ELLIPSOID, 2, gx.Kernel.exponential, 4, 13, 20.0, 0.2, 1.5, 0.1, 0.9
        ),
    )


def estimations():
    estimators = {
        "IDW": gx.IDW,
        "IDW.power": lambda **kwargs: gx.IDW(power_a=2.7, max_weight=0.5, **kwargs),
        "IDW.covs": lambda **kwargs: gx.IDW(UNIT_MODEL, **kwargs),
        "SimpleKriging": lambda **kwargs: gx.SimpleKriging(MODEL, 2.0, **kwargs),
        "OrdinaryKriging": lambda **kwargs: gx.OrdinaryKriging(MODEL, **kwargs),
    }
    targets = TARGETS + SAMPLES[:10]
    for selection, kwargs in SELECTIONS.items():
        for name, estimator in estimators.items():
            estimates = estimator(**kwargs)(targets, NEIGHBORHOOD, SAMPLES, VALUES)
            yield f"{name}.{selection}", estimates
        yield (
            f"compute_simple_kriging.{selection}",
            gx.compute_simple_kriging(
                targets, SAMPLES, VALUES, MODEL, 2.0, NEIGHBORHOOD, n_threads=1, **kwargs
            ),
        )
        yield (
            f"compute_ordinary_kriging.{selection}",
            gx.compute_ordinary_kriging(targets, SAMPLES, VALUES, MODEL, NEIGHBORHOOD, **kwargs),
        )
        yield (
            f"moving_window_estimation.{selection}",
            gx.moving_window_estimation(targets, NEIGHBORHOOD, SAMPLES, VALUES, MODEL, **kwargs),
        )


def variograms():
    gx.set_fft_n_threads(1)
    lags = {"n_directions": 15, "n_lags": 12, "bandwidth": 1.3, "n_threads": 1}
    cells = {"nx": 21, "ny": 18, "nz": 10}
    values = [math.sin(0.04 * x) + 0.02 * y * z for x, y, z in GRID.locations()]
    active = [math.cos(0.1 * i) for i in range(len(BLOCKS))]
    box = gx.BoundingBox(SAMPLES)
    laid = {"corners": box.corners(), "locations": SAMPLES, "data": VALUES, "origin": box.lower()}
    yield "compute_variogram", gx.compute_variogram(**laid, **cells, **lags)
    yield "compute_variogram.grid", gx.compute_variogram(GRID, values, **cells, **lags)
    yield "compute_variogram.blocks", gx.compute_variogram(BLOCKS, active, **cells, **lags)
    few = {"angle_tol": 25, "n_lags": 20, "bandwidth": 0.4, "n_directions": 20, "n_threads": 1}
    vario = gx.compute_exp_variogram(SAMPLES, VALUES, 30, **few)
    yield "compute_exp_variogram", vario
    every = gx.compute_exp_variogram(SAMPLES, VALUES, len(SAMPLES), window_size=0, **few)
    yield "compute_exp_variogram.every", every
    yield (
        "ExperimentalVariogram.get_variogram",
        [
            vario.get_variogram(70, 20),
            vario.get_variogram((1, 2, 3)),
            vario.get_variogram_by_direction_id(5),
        ],
    )
    smooth = gx.smooth_variogram(vario, 15, 0, 40, 20, 2, 0.8, 10, n_threads=1)
    yield "smooth_variogram", smooth
    yield "smooth_variogram.count", gx.smooth_variogram(vario, 0, 8, 60, 30, 1.7, 0.9, 0, 1)
    computer = gx.variogram_computer(MODEL, 2.5)
    yield "variogram_computer", [computer(lag) for lag in LAGS]


def spectra():
    for n in (1, 60, 91):
        series = [math.sin(0.3 * i) + math.cos(0.07 * i * i) for i in range(n)]
        spectrum = gx.fft.SpectralData1D.forward(series)
        yield f"SpectralData1D.{n}", spectrum
        yield f"SpectralData1D.backward.{n}", spectrum.backward()
        yield f"SpectralData1D.filter_frequencies.{n}", spectrum.filter_frequencies([0, n // 3])
        yield f"SpectralData1D.smooth_frequencies.{n}", spectrum.smooth_frequencies(2)
        yield f"SpectralData1D.shift.{n}", [spectrum.polar(True), spectrum.cartesian(True)]
    along, _, _ = zip(*SAMPLES)
    line = gx.fft.project_to_line(along, VALUES, 1.2, 1.5, 40, 6)
    yield "project_to_line", line
    back = gx.fft.project_back_to_source(along, *line, 7.0, 1.2, 1.5)
    yield "project_back_to_source", back


def distributions():
    data = gx.data_distribution(VALUES, [1.0 + i % 4 for i in range(len(VALUES))])
    chances = [0.001, 0.1, 0.35, 0.5, 0.9, 0.9999]
    for name, dist in (
        ("data", data),
        ("gaussian", gx.gaussian_distribution(1.0, 2.0)),
        ("gamma", gx.gamma_distribution(2.5, 0.7)),
        ("student_t", gx.student_t_distribution(4.0)),
    ):
        places = gx.CDF(dist).probs(chances)
        yield f"CDF.probs.{name}", places
        yield f"CDF.values.{name}", gx.CDF(dist).values(places)
        yield f"PDF.values.{name}", gx.PDF(dist).values(places)
        yield f"Distribution.simulate.{name}", dist.simulate(20, 5)
        yield f"Distribution.simulate_1.{name}", dist.simulate(20, n_threads=1, seed=5)
    scores = gx.NScore(data, gx.gaussian_distribution())
    yield "NScore", [scores.forward(VALUES), scores.backward([-9.0, -1.0, 0.3, 2.0, 9.0])]


def simulation():
    corners, one = GRID.corners(), {"n_threads": 1}
    shapes = ("spherical", "gaussian", "exponential")
    covs = [getattr(gx.Covariance, shape)(0.5, ELLIPSOID) for shape in shapes]
    for shape, cov in zip(shapes, covs):
        yield f"TBSIM.{shape}", gx.TBSIM(corners, cov, 3, 70)(TARGETS)
        yield f"FIM.{shape}", gx.FIM(corners, cov, 3, 12, 9, 8, **one)(TARGETS)
    field = gx.TBSIM(corners, covs, 4, 50)
    yield "TBSIM", field(TARGETS)
    frozen = {"n_base_simulation_points": 8, **one}
    views = gx.SimulatorGenerator.TBSIM(corners, covs, 5, n=40, **frozen)
    yield "SimulatorGenerator.TBSIM", views(6)(TARGETS)
    views = gx.SimulatorGenerator.FIM(corners, covs, 5, n=8, **frozen)
    yield "SimulatorGenerator.FIM", views(6)(TARGETS)
    yield "SimulatorGenerator.Pool", gx.SimulatorGenerator.Pool([field, views(7)])(8)(TARGETS)
    local = gx.LocalCovariances(TARGETS[:3], [[cov] for cov in covs], [1.0, 0.5, 2.0])
    factory = gx.SimulatorFactory.TBSIM(corners, 40)
    blend = gx.unconditional_ensemble_simulation(TARGETS, local, factory, 0.7, 2.0, 9, 1)
    yield "unconditional_ensemble_simulation", blend
    kriging = gx.SimpleKriging(covs, 0.0, max_neighbors=12)
    yield "simulate", gx.simulate(field, kriging, TARGETS, NEIGHBORHOOD, SAMPLES, VALUES, 1)


def cross_validations():
    yield "create_folds", gx.create_folds(SAMPLES, VALUES, 45, 30, 6)
    yield "create_folds.radius", gx.create_folds(SAMPLES, VALUES, 30, -1, 6, 5)
    scales = [0.1, 0.3]
    yield (
        "create_folds_using_multiscale",
        gx.create_folds_using_multiscale(
            4, 5, 30, 60, scales, ELLIPSOID, SAMPLES, VALUES, -1, -1, -1
        ),
    )
    forms = {"idw": {"power_a": 2.5}, "sk": {}, "ok": {}}
    # Each thread has an engine of its own: errors repeat for the same number of them.
    for threads in (1, 3):
        for form, kwargs in forms.items():
            validate = getattr(gx, f"kfold_cross_validation_using_{form}")
            for selection, size in {"count": 30, "radius": -1, "all": len(SAMPLES)}.items():
                errors = validate(
                    SAMPLES,
                    VALUES,
                    UNIT_MODEL,
                    35,
                    size,
                    n_partition_size=4,
                    n_threads=threads,
                    **kwargs,
                )
                yield f"kfold_cross_validation_using_{form}.{selection}.{threads}", errors
        yield (
            f"multi_scale_cross_validation_error.{threads}",
            gx.multi_scale_cross_validation_error(
                SAMPLES, VALUES, MODEL, 60, 40, 25, scales, 30, -1, 6, threads
            ),
        )


def searches():
    folds = gx.create_folds(SAMPLES, VALUES, 60, 60, 4)
    sizes = {"min_partition_size": 5, "max_partition_size": 12, "n_partitions": 3}
    penalty = {"regularization_const": 0.01}
    groups = {"max_distance": 60, "max_nei_size": 60, "n_centers": 4}
    rays = {"n_rays": 20, "n_scales": 2, "tol": 0.05}
    tries = {"n_iterations": 60, "n_iterations_without_upgrade": 40}
    cubic, square = {"power_a": 3}, {"power_a": 2}
    models = [MODEL[1:2], UNIT_MODEL, MODEL]
    wide = gx.Ellipsoid(200, 150, 120, 0, 0, 0)
    starts = [[gx.Covariance.nugget(0.1), cov(0.9, wide)] for cov in SHAPES]
    error = gx.CovarianceErrorFunction.IDW(folds, 60, **square, **sizes)
    # The sum of the threads' means depends on their number.
    for threads in (1, 3):
        yield f"CovarianceErrorFunction.IDW.{threads}", [error(model, threads) for model in models]
        yield (
            f"compute_covariance_error_idw.{threads}",
            [
                gx.compute_covariance_error_idw(
                    UNIT_MODEL, folds, 50, size, power_a, **sizes, **penalty, n_threads=threads
                )
                for size in (-1, 20, 100)
                for power_a in (3, 2, 1, 2.5)
            ],
        )
        yield (
            f"compute_ellipsoid_error_idw.{threads}",
            [
                gx.compute_ellipsoid_error_idw(
                    ELLIPSOID, kernel, folds, 50, -1, 3, **sizes, **penalty, n_threads=threads
                )
                for kernel in (gx.Kernel.spherical, gx.Kernel.exponential, gx.Kernel.gaussian)
            ],
        )
        yield (
            f"optimize_covariance.{threads}",
            gx.optimize_covariance(starts, error, 40, 30, threads),
        )
        run = {**sizes, **penalty, **groups, **rays, **tries, "n_threads": threads, "debug": False}
        yield (
            f"optimize_ellipsoid_using_idw.{threads}",
            gx.optimize_ellipsoid_using_idw(
                SAMPLES, VALUES, gx.Kernel.spherical, 10, 90, **cubic, **run
            ),
        )
        yield (
            f"optimize_covariance_using_idw.{threads}",
            gx.optimize_covariance_using_idw(
                SAMPLES,
                VALUES,
                ELLIPSOID,
                gx.Kernel.spherical,
                2,
                50,
                20,
                0.2,
                1.5,
                0.1,
                0.9,
                10,
                90,
                **square,
                **run,
            ),
        )
        record = gx.EllipsoidOptimizationParameters(
            max_nei_size=60, n_partitions=3, n_centers=3, **rays, **tries, n_threads=threads
        )
        search = (gx.Kernel.gaussian, 0.1, 1)
        yield (
            f"optimize_ellipsoid.{threads}",
            gx.optimize_ellipsoid(SAMPLES, VALUES, *search, record),
        )
        yield (
            f"optimize_local_ellipsoids.{threads}",
            gx.optimize_local_ellipsoids(SAMPLES, VALUES, *search, 3, 1, 60, record),
        )


def fits():
    folds = gx.create_folds(SAMPLES, VALUES, 60, 40, 3)
    lags = LAGS[:-1]  # the last one is 0
    variogram = gx.variogram_computer(UNIT_MODEL, 1.0)
    semivariances = [variogram(lag) for lag in lags]
    weights = [1.0 + i % 4 for i in range(len(lags))]
    for threads in (1, 3):
        for kind in ("spherical", "gaussian", "exponential"):
            yield (
                f"optimize_ellipsoid_using_kfold.{kind}.{threads}",
                gx.optimize_ellipsoid_using_kfold(
                    folds, kind, 200, 150, 100, 0.1, 0.5, n_iterations=30, n_threads=threads
                ),
            )
            yield (
                f"extract_covariance_from_varmap.{kind}.{threads}",
                gx.extract_covariance_from_varmap(
                    lags,
                    semivariances,
                    weights,
                    2,
                    kind,
                    5,
                    5,
                    5,
                    90,
                    90,
                    90,
                    1.0,
                    30,
                    1.0,
                    0.5,
                    0.01,
                    2.0,
                    1,
                    threads,
                    False,
                ),
            )
        record = gx.EllipsoidLBFGSParameters(0.1, n_iterations=20, n_threads=threads)
        yield (
            f"optimize_local_ellipsoids_using_lbfgs.{threads}",
            gx.optimize_local_ellipsoids_using_lbfgs(
                SAMPLES, VALUES, "spherical", 3, 2, 1.0, 60, 40, 80, record
            ),
        )


def ensembles():
    turned = [gx.Ellipsoid(60, 40, 25, 30 + 25 * i, 20 - 5 * i, 10 * i) for i in range(4)]
    errors = [1.0, 0.5, 2.0, 1.5]
    local = gx.LocalCovariances(
        TARGETS[:400:100], [[gx.Covariance.spherical(1.0, axes)] for axes in turned], errors
    )
    lists = ([60, 70, 80], [40, 50, 60], [25, 20, 30], [30, 70, 160], [20, 5, -30], [10, 0, 45])
    yield "ensemble_model", gx.ensemble_model(*lists, errors[:3])
    yield "ensemble_ellipsoid", gx.ensemble_ellipsoid(errors, turned)
    holes = {"dhids": HOLES, "max_neis_by_dhid": 2}
    for threads in (1, 3):
        yield (
            f"ensemble_local_ellipsoids.{threads}",
            gx.ensemble_local_ellipsoids(
                TARGETS, local.centers, turned, errors, 3, n_threads=threads
            ),
        )
        data = (TARGETS, SAMPLES, VALUES, local, ELLIPSOID)
        yield (
            f"ensemble_estimation.{threads}",
            [
                gx.ensemble_estimation(
                    *data, 16, -1, 3, 3, 2.0, 0.8, threads, use_sk=use_sk, **holes
                )
                for use_sk in (False, True)
            ],
        )
        factory = gx.SimulatorFactory.TBSIM(GRID.corners(), 40)
        yield (
            f"ensemble_simulation.{threads}",
            gx.ensemble_simulation(
                TARGETS,
                SAMPLES,
                VALUES,
                local,
                ELLIPSOID,
                factory,
                16,
                -1,
                3,
                3,
                2.0,
                0.8,
                9,
                threads,
                **holes,
            ),
        )


def transforms():
    related = np.column_stack([SAMPLES, VALUES])  # samples in rows
    weights = [1.0 + i % 4 for i in range(len(related))]
    for name, more in {"GMMFitter.fit": (), "GMMFitter.fit.weights": (weights,)}.items():
        yield name, gx.GMMFitter(3, 7, 0.0).fit(related, *more)
    scores = np.random.RandomState(3).normal(size=related.T.shape)
    means = [related.mean(axis=0) + shift for shift in (-5, 9)]
    mixture = gx.GMMParams(2, [0.4, 0.6], means, [np.cov(related.T), np.diag(related.var(axis=0))])
    transform = gx.SCT(mixture)
    yield "SCT.forward", transform.forward(related.T)
    yield "SCT.backward", transform.backward(scores)
    chain = gx.PPMT(related.T, 9)
    yield "PPMT.forward", chain.forward(related.T)
    yield "PPMT.backward", chain.backward(scores)
    yield "PPMT.forward.point", chain.forward(related[5])
    yield "PPMT.backward.point", chain.backward(scores[:, 5])
    yield "PPMT.principal_axes", gx.PPMT(related.T, 9, 0.0, 1).forward(related.T)
    flags = (False, True)
    yield (
        "compute_svd_decomposition",
        [gx.compute_svd_decomposition(related, is_surface) for is_surface in flags],
    )
    yield (
        "compute_optimum_rotation",
        [gx.compute_optimum_rotation(related, a, b) for a in flags for b in flags],
    )
    yield (
        "create_random_orthogonal_matrix",
        [gx.create_random_orthogonal_matrix(n, 7) for n in (1, 4, 9)],
    )


def projections():
    source, points = np.array(SAMPLES[::4]) / 40, np.array(TARGETS) / 40
    target = np.column_stack([np.sin(source[:, 0]), source[:, 1] + source[:, 2] ** 2])
    rows = np.column_stack([target, source[:, 2]])  # a projection by blends keeps the dimension
    rest, kernel = (0.8, 0.4, 12), gx.Kernel.exponential
    start = source, target, 6, 3, 2
    for threads in (1, 3):
        fitted = gx.OptimizedNDProjection.optimize(*start, threads, 15)
        parts = fitted.centers, fitted.scales, fitted.weights
        yield f"OptimizedNDProjection.optimize.{threads}", parts
        maps = {
            "IDWProjection": gx.IDWProjection(source, rows, *rest),
            "GaussianMixtureProjection": gx.GaussianMixtureProjection(source, rows, *rest, kernel),
            "OKProjection": gx.OKProjection(source, rows, *rest, kernel),
            "MDSProjection": gx.MDSProjection(source, target, source[::3], 0.4, kernel),
            "OptimizedNDProjection": fitted,
        }
        for name, projection in maps.items():
            yield f"{name}.project.{threads}", projection.project(points, threads)


def isomorphisms():
    source = np.random.RandomState(4).lognormal(size=80)
    target = np.log(source) + 0.1 * np.sin(9 * source)
    bounds = -3, 3, 0.01, 4, 0, 9
    shapes = "gaussian", 6, 0.01, 4, "exponential", 5, 0.01, 4
    for threads in (1, 3):
        for kernel in ("spherical", "gaussian", "exponential"):
            fitted = gx.optimize_projection(
                source, target, kernel, 6, *bounds, 8, 10, 30, 0.2, 20, threads
            )
            yield f"optimize_projection.{kernel}.{threads}", fitted.serialize()
        record = gx.IsomorphismParameters(n_iterations=10, n_threads=threads)
        rest = -3, 3, 0, 9, 8, 10, 30, 0.2, 20, threads
        pairs = {
            "list": gx.optimize_isomorphism(source, target, *shapes, *rest),
            "record": gx.optimize_isomorphism(source, target, record),
        }
        for name, pair in pairs.items():
            yield f"optimize_isomorphism.{name}.{threads}", pair.serialize()
            yield f"Isomorphism.forward.{name}.{threads}", pair.forward(source, threads)
            yield f"Isomorphism.backward.{name}.{threads}", pair.backward(target, threads)


def scaling():
    points = np.array(SAMPLES[:90:6])
    n, bend = len(points), 1.0 + 0.1 * np.sin(np.arange(len(points)))
    table = np.linalg.norm(points[:, None] - points, axis=2) * np.outer(bend, bend)
    pairs = gx.create_sparse_dist_matrix(table, 6, n, 5)
    yield "create_sparse_dist_matrix", [(pair.i, pair.j, pair.d) for pair in pairs]
    few = gx.create_sparse_dist_matrix(table, 2, 3, 5)
    yield "create_sparse_dist_matrix.few", [(pair.i, pair.j, pair.d) for pair in few]
    tree = gx.create_minimum_spanning_tree(table.round(-1))  # with ties
    yield "create_minimum_spanning_tree", [(pair.i, pair.j, pair.d) for pair in tree]
    forms = {"plain": {}, "mean": {"optimize_mean": True}, "sphere": {"do_sphering": True}}
    run = {"n_iterations": 20, "ntries": 2}
    for threads in (1, 3):
        for name, form in forms.items():
            found = gx.dense_MDS(3, n, table, n_threads=threads, **run, **form)
            yield f"dense_MDS.{name}.{threads}", found
        yield f"sparse_MDS.{threads}", gx.sparse_MDS(3, n, pairs, n_threads=threads, **run)
    # Moves are a thread's own: a search repeats on the same number of them.
    triples = [(pair.i, pair.j, pair.d) for pair in pairs]
    guess = np.float32(points[:, ::-1])
    for size in (1, 5, 100):
        search = gx.mds_using_random_search(3, guess, triples, [9, 1], 20, 50, 1, max_size=size)
        yield f"mds_using_random_search.{size}", search


def geodesics():
    yield "create_random_dense_set", gx.create_random_dense_set(SAMPLES, NEIGHBORHOOD, 0.3, 900, 6)
    flood = gx.flood_fill_using_ball(TARGETS, 7, NEIGHBORHOOD, 0.3)
    yield "flood_fill_using_ball", flood
    dense = gx.create_random_dense_set(SAMPLES, NEIGHBORHOOD, 0.3, 900, 6)
    hood, locs = gx.Neighborhood(dense, ELLIPSOID), SAMPLES[::9]
    for name, rest in {"count": (hood, 0.0, 8, dense), "radius": (hood, 0.4, 0, dense)}.items():
        yield f"compute_geodesics.{name}", gx.compute_geodesics(locs, 0, 7, *rest)
        yield f"compute_geodesics.every.{name}", gx.compute_geodesics(locs, 2, -1, *rest)
        for threads in (1, 3):
            table = gx.compute_geodesic_based_distance_matrix(locs, *rest, threads)
            yield f"compute_geodesic_based_distance_matrix.{name}.{threads}", table


def detections():
    for threads in (1, 3):
        labels = gx.find_clusters(SAMPLES, ELLIPSOID, 0.25, 12, 0.3, 8, threads)
        yield f"find_clusters.{threads}", labels
    holes = [int(hole) for hole in HOLES]
    angles = gx.compute_angular_distance_between_clusters(ELLIPSOID, SAMPLES, holes, 0.5)
    yield (
        "compute_angular_distance_between_clusters",
        [(a, b, angle) for a, row in angles.items() for b, angle in row.items()],
    )
    merged = gx.merge_clusters(angles, SAMPLES, holes, [3], 2.5, 0.5, ELLIPSOID)
    yield "merge_clusters", merged
    yield (
        "compute_angular_distance",
        [gx.compute_angular_distance(*SAMPLES[i : i + 3]) for i in range(30, 50)],
    )
    values = [[value] for value in VALUES]
    nodes = gx.CartesianGrid((5.6, 5.6, 1.4), (8, 8, 2)).locations()
    colors = [[i % 3, i % 2] for i in range(len(nodes))]
    detector, nei = gx.grid_detector, gx.Neighborhood(nodes)
    for threads in (1, 3):
        yield (
            f"grid_detector.{threads}",
            [
                detector.detect_grid_aligned_points(nodes, colors, nei, 1.5, 5, 0.75, 0, threads),
                detector.detect_grid_aligned_points(nodes, colors, nei, 1.5, 20, 0, 12, threads),
                detector.find_clusters(SAMPLES, values, NEIGHBORHOOD, 2.0, [1], 0.5, 0, threads),
                detector.find_clusters(SAMPLES, values, NEIGHBORHOOD, 1.0, [2], 0, 9, threads),
                detector.cluster_fusion(SAMPLES, holes, 8, threads),
            ],
        )


def parts(number):
    """The values of a number or of a container, with the derivatives of jets."""
    values = getattr(number, "value", number)
    values = values if isinstance(values, float) else np.asarray(values)
    return [values, number.partials] if hasattr(number, "partials") else values


def functions(form, nodes, rows):
    """Compiled functions of the two upper rows of a matrix, and of elements of the first."""
    x, y = nodes.Variable("x", 0.0), nodes.Variable("y", 0.0)
    names = "sin cos tan asin acos atan sinh cosh tanh exp sqrt abs log ln log10 log2 pow2 pow3"
    names += " sigmoid spherical gaussian exponential"
    bodies = [getattr(nodes, name)(x / y) for name in names.split()]
    bodies += [nodes.pow(x / y, 2.3), x * y - 1.5 / (x + y)]
    compiled = [nodes.Function.Scalar([x, y], body).ScalarFunction() for body in bodies]
    yield f"ScalarFunction.{form}", [parts(one([rows[0][1], rows[0][0]])) for one in compiled]
    u, v = nodes.Variable("u", rows[0]), nodes.Variable("v", rows[1])
    lag = (u - v) / [7.0, 5.0, 2.0]
    moved = nodes.Function.Vector([u, v], nodes.exp(lag) + u).Transformation()
    yield f"Transformation.{form}", parts(moved(rows[:2]))
    kept = nodes.Function.Scalar([u, v], nodes.exp(-1.0 * nodes.sqrt(lag * lag))).Kernel()
    yield f"Kernel.{form}", parts(kept(rows[:2]))


def matrix_algebra(form, table):
    matrices = table * table, table.inverse(), table.transpose(), *table.SVD()
    axes = table.orthogonalize(), table.orthonormalize()
    solved = table.solve(table[1]), table.determinant()
    yield f"algebra.{form}", [parts(result) for result in (*matrices, *axes, *solved)]


def chains(form, nodes, transiogram, chain):
    u, v = nodes.Variable("u", [0.0] * 3), nodes.Variable("v", [0.0] * 3)
    lag = (u - v) / [40.0, 30.0, 10.0]
    kept, shares = nodes.exp(-3.0 * nodes.sqrt(lag * lag)), (0.5, 0.3, 0.2)
    table = [[p + (float(j == k) - p) * kept for k, p in enumerate(shares)] for j in range(3)]
    transitions = transiogram.Transiogram(u, v, table)
    yield f"Transiogram.{form}", [parts(transitions(*pair)) for pair in zip(SAMPLES[:20], TARGETS)]
    data = TARGETS, SAMPLES, [int(hole) % 3 for hole in HOLES], transitions, ELLIPSOID
    for selection, limits in {"count": {"knn": 6}, "radius": {"r": 0.3}}.items():
        drawn = chain.simulation(*data, **limits, seed=4)
        yield f"markov_chain.simulation.{selection}.{form}", drawn


def expression_fits():
    """A decay with outliers, by two scalars and by a vector and a scalar."""
    nodes = gx.jet.ast
    pairs = [(0.1 * i, 2.0 * math.exp(-0.05 * i) + (i % 7 == 0)) for i in range(1, 80)]
    c, k = scalars = nodes.Variable("c", 0.3), nodes.Variable("k", -0.1)
    a, _ = blocks = nodes.Variable("a", [0.3, 0.0]), k
    decays = [c * nodes.exp(k * x) - y for x, y in pairs]
    bent = [a * [1.0, x] * nodes.exp(k * x) - y for x, y in pairs]
    costs = [nodes.Function.Scalar(scalars, body) for body in decays]
    costs_of_blocks = [nodes.Function.Vector(blocks, body) for body in bent]
    fits = {
        "ceres.solve": (gx.ceres.solve, costs, scalars, {"k": (-0.4, 1.0)}),
        "ceres.vec.solve": (gx.ceres.vec.solve, costs_of_blocks, blocks, {"k": ([-0.4], [1.0])}),
    }
    for threads in (1, 3):
        for loss in (0.0, 0.2):
            for name, (solve, *problem) in fits.items():
                found, cost = solve(*problem, cauchy_loss=loss, n_threads=threads)
                yield f"{name}.{loss}.{threads}", [cost, *found.values()]


def language():
    rows = [[4.0, 1.0, 0.3], [0.7, 3.0, -0.5], [0.2, -0.9, 2.0]]
    along = np.eye(7).tolist()
    jets = [
        [gx.algebra.Jet(x, along[2 * i + j]) for j, x in enumerate(r)] for i, r in enumerate(rows)
    ]
    yield from functions("double", gx.ast, rows)
    yield from functions("jet", gx.jet.ast, jets)
    yield from matrix_algebra("double", gx.algebra.RealMatrix(rows))
    yield from matrix_algebra("jet", gx.algebra.JetMatrix(jets))
    yield from chains("double", gx.ast, gx.transiogram, gx.markov_chain)
    yield from chains("jet", gx.jet.ast, gx.transiogram.jet, gx.markov_chain.jet)
    yield from expression_fits()


FAMILIES = (
    samplers,
    ellipsoids,
    neighborhoods,
    grids,
    rotations,
    covariances,
    estimations,
    variograms,
    spectra,
    distributions,
    simulation,
    cross_validations,
    searches,
    fits,
    ensembles,
    transforms,
    projections,
    isomorphisms,
    scaling,
    geodesics,
    detections,
    language,
)


def to_text(value):
    """Numbers as text that keeps every bit, in lists as deep as the value's own."""
    if isinstance(value, (int, np.integer)):
        return str(int(value))
    if isinstance(value, (float, np.floating)):
        return float(value).hex()
    if isinstance(value, gx.EllipsoidInfo):
        names = ("r1", "r2", "r3", "azimuth", "dip", "rake")
        return [to_text(getattr(value, name)()) for name in names]
    if isinstance(value, gx.Ellipsoid):
        return [to_text(value.matrix()), to_text(value.inv_matrix())]
    if isinstance(value, gx.Covariance):
        return [value.type(), to_text(value.sill()), to_text(value.ellipsoid())]
    if isinstance(value, gx.LocalCovariances):
        return [to_text(part) for part in (value.centers, value.covariances, value.errors)]
    if isinstance(value, gx.GMMParams):
        return [to_text(part) for part in (value.weights, value.means, value.covariances)]
    if isinstance(value, gx.ExperimentalVariogram):
        lags = [value.lags(), value.variogram(), value.npairs(), value.direction_ids()]
        return [to_text(part) for part in (*lags, value.directions(), value.lags_by_dir())]
    if isinstance(value, gx.fft.SpectralData1D):
        return [to_text(value.polar()), to_text(value.cartesian())]
    if isinstance(value, (list, tuple, np.ndarray)):
        return [to_text(element) for element in value]
    raise TypeError(f"no text for {type(value)}")


def results():
    return {name: to_text(value) for family in FAMILIES for name, value in family()}


def differences(before, after, tolerance, place=""):
    """The places at which two texts differ."""
    if isinstance(before, list) and isinstance(after, list) and len(before) == len(after):
        for i, pair in enumerate(zip(before, after)):
            yield from differences(*pair, tolerance, f"{place}[{i}]")
    elif before != after and not (tolerance and are_close(before, after, tolerance)):
        yield f"{place}: {before} before, {after} now"


def are_close(before, after, tolerance):
    if isinstance(before, list) or isinstance(after, list):
        return False
    return math.isclose(float.fromhex(before), float.fromhex(after), rel_tol=tolerance)


def compare(before, after):
    """Prints what differs; returns the exit code."""
    failed = 0
    for name in sorted(before.keys() | after.keys()):
        if name not in before:
            print(f"{name}: new, nothing to compare with")
            continue
        tolerance, _reason = TOLERANCES.get(name, (0.0, ""))
        found = list(differences(before[name], after.get(name, []), tolerance))
        if found:
            failed += 1
            print(f"{name}: {len(found)} differ, the first is {found[0]}")
    print(f"{len(before) - failed} of {len(before)} calls are the same")
    return 1 if failed else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    mode = parser.add_mutually_exclusive_group(required=True)
    mode.add_argument("--write", metavar="FILE", type=Path)
    mode.add_argument("--compare", metavar="FILE", type=Path)
    arguments = parser.parse_args()
    if arguments.write:
        stored = results()
        arguments.write.write_text(json.dumps(stored, indent=1))
        print(f"{len(stored)} calls written")
        return 0
    return compare(json.loads(arguments.compare.read_text()), results())


if __name__ == "__main__":
    sys.exit(main())
