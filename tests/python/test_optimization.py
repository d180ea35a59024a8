"""Ratings, searches and fits of models, against plain models and against known truths."""

import faulthandler
import re
import sys
from concurrent.futures import ThreadPoolExecutor

import gravelox
import numpy as np
import pytest
from gravelox import Covariance, Ellipsoid, Kernel
from numpy.testing import assert_allclose
from oracles import optimization, simulation, variography

METRIC, BELL, STEPS = Ellipsoid(9, 5, 4, 30, 10, 0), Kernel.gaussian, np.ndindex(13, 9, 5)
STEPS, Error = np.array([*STEPS]) - [6.0, 4.0, 2.0], gravelox.CovarianceErrorFunction
THREADS = pytest.mark.parametrize("n", [1, gravelox.check_n_threads(2)])
Options, fit_map = gravelox.EllipsoidOptimizationParameters, gravelox.extract_covariance_from_varmap
fit_folds, rate = gravelox.optimize_ellipsoid_using_kfold, gravelox.compute_covariance_error_idw


@pytest.fixture
def samples(rng):
    locs = rng.uniform(0, 10, (40, 3))
    return locs, np.sin(locs @ (0.4, 0.2, 0.1)) + rng.normal(0, 0.1, 40)


def matrices(model):
    return np.array([s.ellipsoid().matrix() for s in model])


@THREADS
@pytest.mark.parametrize("limits", [(0, 9), (4, 9), (30, 3), (30, 99), (9, 0)])
def test_search(limits, n):
    models, tried = gravelox.generate_covariances(METRIC, 2, BELL, 30, 3, 20, 1, 3, 0.3, 1), []

    def error(model, n_threads):  # rounded, so that models tie; of some not a number
        tried.append((n_threads, *matrices(model).ravel()))
        length = sum(s.sill() * np.linalg.norm(s.ellipsoid().forward((1, 2, 3))) for s in model)
        return np.nan if 0.9 < length < 0.92 else round(abs(length - 3.0), 1) + n_threads / 20

    best, e = gravelox.optimize_covariance(models, Error.Custom(error), *limits, n)
    by_module, tried[:] = sorted(tried), []
    expected = optimization.search(models, error, *limits, n)
    assert_allclose(by_module, sorted(tried), rtol=1e-9, atol=1e-9)
    assert e == expected[0]
    assert_allclose(matrices(best), matrices(expected[1]), rtol=1e-9, atol=1e-9)
    lag, s = (0.1, 0.2, 0.1), best[0]
    assert (s.type(), s(lag)) == ("spherical", Covariance.gaussian(s.sill(), s.ellipsoid())(lag))


def test_a_small_search_is_pinned():
    i = np.arange(40.0)
    locs = np.column_stack([i * 37 % 41, i * 23 % 43, i * 11 % 17])
    values = np.sin(locs[:, 0] / 9) + locs[:, 1] / 40
    settings = Options(3, 20, 4, 9, 4, 3, 20, 2, 30, 50, 0.05, 0.001, seed=7, n_threads=1)
    best, e = gravelox.optimize_ellipsoid(locs, values, Kernel.exponential, 0.05, 0.6, settings)
    assert_allclose(e, 0.7605422976239066, rtol=1e-9)
    info = best.info()
    found = info.r1(), info.r2(), info.r3(), info.azimuth(), info.dip(), info.rake()
    assert_allclose(
        found, (25.28233589, 21.14903664, 14.66578698, 64.473641, 18.382941, -35.469361)
    )


@THREADS
@pytest.mark.parametrize("kind", ["ellipsoids", "covariances"])
def test_searches_by_inverse_distance(kind, n, samples):
    words, drawn = simulation.words(9, n + 2), (20, 0.5, 1.5, 0.2, 0.9)
    parts = optimization.folds(*samples, 6.0, 14, 3, words[n])
    run = 2, 6.0, 14, 3, 6, 3, 0.001, 3, 3, 2, 90, 40, 0.2, 9, n, False
    if kind == "ellipsoids":
        best, e = gravelox.optimize_ellipsoid_using_idw(*samples, BELL, 2, 9, *run)
        best, made = [Covariance.gaussian(1.0, best)], variography.ellipsoids(2, 9, 3, 2, 9, 0.2)
        models = [[Covariance.gaussian(1.0, Ellipsoid(matrix))] for matrix in made]
    else:
        run = METRIC, Kernel.spherical, 2, 50, *drawn, 0, 0, *run
        best, e = gravelox.optimize_covariance_using_idw(*samples, *run)
        models = gravelox.generate_covariances(METRIC, 2, Kernel.spherical, 50, 9, *drawn)
    rest = parts, 6.0, 42, (2, 3, 6, 3), 0.001, (words[n + 1] + 2**31) % 2**32 - 2**31
    expected = optimization.search(models, lambda *of: optimization.rating(*of, *rest), 90, 40, n)
    assert e == pytest.approx(expected[0], rel=1e-9)
    assert_allclose(matrices(best), matrices(expected[1]), rtol=1e-7, atol=1e-9)
    metric, of_ellipsoid = best[0].ellipsoid(), gravelox.compute_ellipsoid_error_idw
    run, form = (parts, 6.0, -1, 2, 3, 6, 3, 0.001, n), Error.IDW(parts, 6.0, 2, 3, 6, 3, 0.001, -7)
    assert form(best, n) == pytest.approx(optimization.rating(best, n, *run[:3], *rest[3:5], -7))
    assert of_ellipsoid(metric, BELL, *run) == rate([Covariance.gaussian(1, metric)], *run)


def test_defaults_of_the_ellipsoid_search(rng):
    data = rng.uniform(0, 10, (9, 3)), rng.normal(size=9), BELL
    d, made = np.linalg.norm(np.ptp(data[0], axis=0)), Options()
    for options, *rest in (([], 1e-3, 10, 600, 5, 2000, 100), ([made], 0.025, 10, 400, 8, 150, 50)):
        best, e = gravelox.optimize_ellipsoid(*data, 0.1, 0.9, *options)
        run = 0.1 * d, 0.9 * d, 3, d, 400, 15, 25, 4, *rest, 0.002, 1231, 0, False
        expected, least = gravelox.optimize_ellipsoid_using_idw(*data, *run)
        assert_allclose([*best.matrix(), [e] * 3], [*expected.matrix(), [least] * 3], rtol=1e-9)


def check_costs(capfd, first):
    progress, report = capfd.readouterr()
    assert progress.startswith("iter ")
    found = [2.0 * float(re.search(rf"{word} +(\S+)", report)[1]) for word in ("Initial", "Final")]
    assert found[1] < 0.999 * found[0] == pytest.approx(0.999 * first, rel=1e-6)


FITS = [("gaussian", 0.5, 0, (15, 25)), ("exponential", 0, 1, (3, 9)), ("spherical", 2, 1, (5, 6))]


@pytest.mark.parametrize(("kernel", "weight", "cauchy", "sizes"), FITS)
def test_fit_to_folds(kernel, weight, cauchy, sizes, samples, capfd):
    parts, start = [[x[:n] for x in samples] for n in (12, 30, 40)], np.array([1, 4, 3, 2, 0, 0, 0])
    fit_folds(parts, kernel, 8, 6, 4, weight, cauchy, *sizes, 3, 500, -7, 1, True)
    rest = kernel, (8, 6, 4), weight, cauchy, sizes, 3, -7
    check_costs(capfd, optimization.cost_of_folds(start, parts, *rest))
    few = [[x[: sizes[0]] for x in samples]]  # leave none to predict: the start comes back
    found = fit_folds(few, kernel, 8, 6, 4, 0, 0, sizes[0], sizes[0] + 1)
    assert_allclose(found.matrix(), np.diag(1 / start[1:4]))


@pytest.mark.parametrize("options", [(1, 1.5, 1e-3, 0.01, 0.8), (2, 1, 0, 0.1, 2), (1, 0, 0, 0, 1)])
def test_fit_to_a_map(options, rng, capfd):
    (n, *rest), table = options, (STEPS, *rng.uniform(0, ((6,), (1,)), (2, len(STEPS))))
    fit_map(*table, n, "spherical", 1, 2, 1, 20, 12, 8, 5.0, 500, *rest, 3)
    start = np.array([*[1 / n, 10.5, 7, 4.5, 0, 0, 0] * n, 1e-4])
    rest = *table, "spherical", (20, 12, 8), 5.0, *rest
    check_costs(capfd, optimization.cost_of_map(start, *rest))


@pytest.mark.parametrize("angles", [(0, 0, 0), (0.3, -0.2, 0.25), (-0.4, 0.3, 0.1)])
@pytest.mark.parametrize("kernel", ["spherical", "gaussian", "exponential"])
def test_models_of_exact_maps_come_back(kernel, angles):
    axes = np.array([14, 7, 4, *angles])
    values = 5.0 - 3.5 * optimization.correlation(kernel, axes, STEPS)
    rest = kernel, 1, 1, 1, 20, 12, 8, 5.0, 500, 1, 0, 0, 9, 3, 0, False
    found = fit_map(STEPS, values, [1.0] * len(STEPS), 1, *rest)
    sills = {s.type(): s.sill() for s in found}
    assert sills == pytest.approx({kernel: 3.5, "nugget": 1.5}, rel=1e-3)
    assert_allclose(matrices(found)[0], optimization.ellipsoid_of(axes), atol=1e-3)


def test_local_models(samples, capfd):
    hull = variography.extreme_points(samples[0], 300, simulation.words(7, 1)[0])
    radius = np.linalg.norm(np.ptp(hull, axis=0)) / 3 * 1.3
    parts, fit = optimization.folds(*samples, radius, 20, 3, 7), (3, 6, 2, 50, 7)
    rest = BELL, 0.1, 0.9, 3, 1.3, 20, Options(n_rays=9, n_iterations=9, tol=0.2, seed=7)
    local = gravelox.optimize_local_ellipsoids(*samples, *rest)
    searched = [gravelox.optimize_ellipsoid(*part, *rest[:3], rest[-1]) for part in parts]
    groups = [optimization.folds(*part, radius, 12, 2, 7) for part in parts]
    fitted = [fit_folds(g, "gaussian", 9, 9, 9, 0.02 * len(g), 0.5, *fit) for g in groups]
    rest = parts, radius, 12, 3, 3, 6, 2, 0.01, 0, 7
    rated = np.array([rate([Covariance.gaussian(1, metric)], *rest) for metric in fitted]) + 1e-4
    rest = "gaussian", 3, 2, 1.3, 20, 12, 9.0, gravelox.EllipsoidLBFGSParameters(0.01, 0.5, *fit)
    by_fit = gravelox.optimize_local_ellipsoids_using_lbfgs(*samples, *rest)
    for found, metrics, errors in ((local, *zip(*searched)), (by_fit, fitted, rated / rated.sum())):
        assert_allclose(found.centers, [locs.mean(axis=0) for locs, _ in parts], rtol=1e-12)
        rows = [metric.matrix() for metric in metrics]
        assert_allclose([matrices(m)[0] for m in found.covariances], rows, rtol=1e-9, atol=1e-12)
        assert_allclose(found.errors, errors, rtol=1e-9)
    assert capfd.readouterr() == ("", "")


def test_debug_lines(samples, capfd):
    rest = 0.1, 0.9, 1, 1.5, 30, Options(n_rays=9, tol=0.2, debug=True)
    gravelox.optimize_local_ellipsoids(*samples, BELL, *rest)
    out, err = (text.splitlines() for text in capfd.readouterr())
    out.remove("optimized fold 1 of 1")
    assert [out[0][:13], err[0][:13]] == ["data length: ", "data_length: "]
    better = r"(\[scale improvement\] )?Thread \d found a better cov: "
    better += r"\[\{sill:1,anisotropy:\{r1: [^{}]+\} ,type:spherical\},\] with error \S+"
    texts = {re.sub(better, "better", line).split()[0] for line in out}
    assert texts == {"data", "Max", "Processing", "better", "Best", "Ellipsoid:"}
    assert [line.replace("data length", "data_length") for line in out] == err


@pytest.mark.parametrize("n", [1, 4])
def test_python_functions_rate_models(n):
    models = [[Covariance.spherical(1, Ellipsoid(9, r, 1, 0, 0, 0))] for r in range(1, 40)]
    inner = Error.Custom(lambda model, _: model[0].ellipsoid().info().r2())

    def search(function):
        return gravelox.optimize_covariance(models, Error.Custom(function), 9, 9, n)[1]

    faulthandler.dump_traceback_later(60, exit=True, file=sys.__stderr__)
    best = search(lambda model, k: inner(model, k))
    for k in (0, 1, 14):
        rates = iter([1.0] * k)
        with pytest.raises(StopIteration):
            search(lambda *_, rates=rates: next(rates))
    for odd in ("1", None, [1]):
        with pytest.raises(TypeError):
            search(lambda *_, odd=odd: odd)
    with ThreadPoolExecutor(2) as pool:
        assert [*pool.map(search, [inner] * 2)] == [best, best]
    faulthandler.cancel_dump_traceback_later()


def domains(n, *azimuths):
    """Samples of squares side by side, in each of which values are alike along its azimuth."""
    locs = np.random.default_rng(0).uniform(0, (100 * len(azimuths), 100, 0), (n, 3))
    covs = [Covariance.spherical(1, Ellipsoid(60, 15, 15, azimuth, 0, 0)) for azimuth in azimuths]
    fields = [gravelox.TBSIM(locs, cov, seed, 400)(locs) for seed, cov in enumerate(covs)]
    return locs, np.transpose(fields)[range(n), (locs[:, 0] // 100).astype(int)]


def misfit(local, *azimuths):
    """Medians of groups of one domain: degrees to the longest axis, its ratio to the other."""
    found = []
    for (x, _, _), (structure,) in zip(local.centers, local.covariances):
        plan = structure.ellipsoid().matrix()[:, :2]
        squares, axes = np.linalg.eigh(plan.T @ plan)
        angle = (np.degrees(np.arctan2(*axes[:, 0])) - azimuths[int(x > 100)] + 90) % 180 - 90
        found += [(abs(angle), np.sqrt(squares[1] / squares[0]))] if abs(x - 100) > 35 else []
    return np.median(found, axis=0)


def test_known_ellipsoids_are_found():
    """Of the seeds 0 to 9 the worst are 9, 12 and 17 degrees, and ratios of 2.8 and 5.8."""
    options = {"max_nei_size": 60, "min_partition_size": 30, "max_partitions_size": 50}
    options.update(n_partitions=2, n_centers=6, n_rays=100, n_scales=4, regularization_const=5e-4)
    options.update(n_iterations=600, n_iterations_without_upgrade=600, tol=0.01, n_threads=1)
    search, rest = gravelox.optimize_local_ellipsoids, (Kernel.spherical, 0.1, 0.8)
    angle, ratio = misfit(search(*domains(600, 40), *rest, 1, 2, 999, Options(**options)), 40)
    assert angle < 15
    assert 2 < ratio < 8
    local = search(*domains(700, 30, 120), *rest, 10, 1.6, 200, Options(**options))
    assert misfit(local, 30, 120)[0] < 20
    rest = gravelox.EllipsoidLBFGSParameters(0.01, 0, 20, 45, 4, 60, n_threads=1)
    rest = *domains(500, 90, 0), "gaussian", 6, 3, 1.6, 120, 60, 30.0, rest
    assert misfit(gravelox.optimize_local_ellipsoids_using_lbfgs(*rest), 90, 0)[0] < 30
