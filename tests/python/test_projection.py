"""Projections of points and of numbers, against plain models, known maps and pure cases."""

import pickle
import re
from functools import partial

import gravelox
import numpy as np
import pytest
from gravelox import Isomorphism, Kernel, MDSProjection, OptimizedNDProjection, Projection
from numpy.testing import assert_allclose, assert_array_equal
from oracles import projection as plain
from oracles.estimation import SHAPES
from scipy.spatial.distance import cdist

KINDS, CASES = ("IDW", "GaussianMixture", "OK"), [(2, 0, 40), (1, 0.7, 9), (0.5, 1, 7), (2, 0.3, 1)]
fit_map, fit_pair = gravelox.optimize_projection, gravelox.optimize_isomorphism


def blend(kind, *data):
    kernel = () if kind == "IDW" else (Kernel.exponential,)
    return getattr(gravelox, f"{kind}Projection")(*data, *kernel)


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("rest", CASES)
def test_blends_of_targets(kind, rest, rng):
    source, target, points = rng.uniform(0, 3, (3, 40, 4))
    source[7] = points[0] = source[9]
    run, shape = (kind, source, target), SHAPES["exponential"]
    expected = [plain.blended(*run, x, *rest, shape) for x in points]
    assert_allclose(blend(*run, *rest).project(points), expected, rtol=1e-8)


@pytest.mark.parametrize("kind", KINDS)
def test_pure_blends(kind, rng):
    source, target = 4 * np.indices((3, 3)).reshape(2, 9).T, rng.normal(size=(9, 2))
    made = [blend(kind, source, target, 2, *rest) for rest in ((0.5, 1), (1, 5), (0, 9))]
    assert_allclose(made[0].project(source + 1.5), target, rtol=1e-13 if kind == "OK" else 4e-16)
    assert len(np.unique(made[1].project([(5, 4), (4, 5), (3, 4), (4, 3)]), axis=0)) == 1
    if kind != "GaussianMixture":  # the others go through the samples
        assert_allclose(made[2].project(source), target, rtol=1e-9)


def test_radial_maps(rng):
    centers, weights, points = (rng.uniform(0, 2, shape) for shape in ((6, 3), (6, 2), (20, 3)))
    made = OptimizedNDProjection(centers, [9], weights)
    assert_allclose(made.project(points), plain.radial(centers, weights, points), rtol=1e-8)
    made.centers, made.scales, made.weights = points[:5], [], points[5:10]
    assert_allclose(made.project(points), plain.radial(points[:5], points[5:10], points), rtol=1e-8)
    control, shape = centers[[*range(5), 0]], SHAPES["spherical"]  # of two alike each has a half
    made = MDSProjection(points, points[:, :2], control, 0.4, Kernel.spherical)
    fitted = np.linalg.lstsq(shape(0.4 * cdist(points, control)), points[:, :2], rcond=None)[0]
    expected = shape(0.4 * cdist(centers, control)) @ fitted
    assert_allclose(made.project(centers), expected, rtol=1e-9)


def smooth(x):
    return np.column_stack([x[:, 0] + np.sin(x[:, 1]), x[:, 1] - x[:, 0] ** 2 / 4])


def test_fit_of_a_radial_map(rng, capfd):
    source = rng.uniform(-1, 1, (40, 2))
    target = np.hstack([smooth(source), source[:, :1]])
    fit = partial(OptimizedNDProjection.optimize, source, target, 9, 2, 3, 1)
    for seed, start in ((-7, fit(0, seed=-7)), (12345, fit(0))):
        centers, scales, weights = map(np.array, zip(*plain.radial_start(source, target, 9, seed)))
        assert_allclose(np.hstack([start.centers, start.weights]), np.hstack([centers, weights]))
        assert_allclose(start.scales, [scales[-1], *[0] * 8])
    errors = [np.square(m.project(source) - target).sum() / 2 for m in (start, fit(60, True))]
    out, err = capfd.readouterr()
    assert (float(out.split()[11]), err) == (pytest.approx(errors[0], rel=1e-6), "")
    assert errors[1] < 1e-2 * errors[0]


def test_known_maps_come_back(rng):
    source, new = rng.uniform(-1, 1, (400, 2)), rng.uniform(-0.8, 0.8, (100, 2))
    made = [blend(k, source, smooth(source), a, 0.1, 20) for k, a in zip(KINDS, (4, 4, 0.4))]
    made += [MDSProjection(source, smooth(source), source[:50], 0.4, Kernel.gaussian)]
    for one, error in zip(made, (0.05, 0.05, 0.02, 1e-3)):
        assert abs(one.project(new) - smooth(new)).mean() < error


@pytest.mark.parametrize("n", [1, 2])
def test_points_and_lists(n, rng):
    source, points = rng.uniform(-9, 9, (30, n)), rng.integers(-9, 9, (5, n))
    maps = [blend(kind, source, source**2, 2, 0.3, 5) for kind in KINDS]
    radial = MDSProjection(source, np.ones((30, 4)), source, 1, Kernel.gaussian)
    for made in (*maps, radial, OptimizedNDProjection(source, [], source**2)):
        one = [made.project(x.astype(float)) for x in points]
        forms = [points, points.tolist(), [*points], np.asfortranarray(points * 1.0)]
        for form in (*forms, [x[:, None] for x in points]):
            assert_array_equal(made.project(form), one, strict=True)
        assert_array_equal(made.project(points[0].tolist()), one[0], strict=True)
        assert_array_equal(made.project(X=points[:1], n_threads=1), one[:1], strict=True)
        assert made.project([]) == made.project(points[:0]) == []


@pytest.mark.parametrize("kernel", SHAPES)
def test_maps_of_numbers(kernel, rng):
    lists = first, second = rng.uniform(0.5, 3, (2, 21)).tolist()
    u, made = [*rng.uniform(-1, 4, 50), *first[::3]], Projection(first, kernel)
    there, back = (plain.mapped(rows, SHAPES[kernel], u) for rows in lists)
    pairs = [Isomorphism(lists, kernel), Isomorphism(made, Projection(second, kernel))]
    for one in (made, Projection([*first, 5, 6], kernel), *pairs):
        for same in (one, pickle.loads(pickle.dumps(one))):
            assert_allclose([same.forward(u), [same.forward(x) for x in u]], [there] * 2)
            assert same.serialize() == (tuple(lists) if one in pairs else first)
    for one in pairs:
        assert_allclose([one.backward(u), [one.backward(x) for x in u]], [back] * 2)


LISTS, WORDS = ([1.0, 2, 3, 2, 0.5, 4], [0.5, 1, -1, 2.0, 3, 1]), ("gaussian", "spherical")
STATES = [(LISTS, ["exponential"] * 2), ((LISTS,), ["exponential"] * 2), ((LISTS, *WORDS), WORDS)]


@pytest.mark.parametrize(("state", "words"), STATES)
def test_states_of_pickles(state, words):
    loaded, made = Isomorphism.__new__(Isomorphism), Isomorphism(*map(Projection, LISTS, words))
    loaded.__setstate__(state)
    assert loaded.__getstate__() == made.__getstate__() == (LISTS, *words)
    assert (loaded.forward(2), loaded.backward(2)) == (made.forward(2), made.backward(2))


FITS = [("gaussian", 5, 0, 9, 0), ("exponential", 9, 30, 30, 0.3), ("spherical", 2, 40, 90, 1)]


@pytest.mark.parametrize(("kernel", "n", "low", "high", "cauchy"), FITS)
def test_fits_of_numbers(kernel, n, low, high, cauchy, rng, capfd):
    source, noise = rng.uniform(0.1, 9, 60), rng.normal(0, 0.1, 60)
    data, bounds = (source, np.log(source) + noise), [-2.5, 2.5, 0.01, 0.09, 0, 9]
    run = *data, kernel, n, *bounds, 12, low, high, cauchy
    ends = [fit_map(*run, k, 1, -7, k > 0).serialize() for k in (0, 40)]
    start, cost = plain.fit_of_map(*data, SHAPES[kernel], n, 0.05, 12, low, high, cauchy, -7)
    assert_allclose(ends[0], np.ravel(start), rtol=1e-14)
    report, error = capfd.readouterr()
    costs = [float(re.search(rf"\n{word} +(\S+)", report)[1]) for word in ("Initial", "Final")]
    assert_allclose([*map(cost, ends)], costs, rtol=1e-3)  # the report counts refused steps too
    assert (report[:5], report[-2:], error) == ("iter ", "\n\n", "")
    assert costs[1] < 0.98 * costs[0]
    found, (low, high) = np.reshape(ends[1], (-1, 3)), np.reshape(bounds, (3, 2))[::-1].T
    assert_array_equal(found.clip(low, high), found)


LOOSE = "exponential", 27, "exponential", 33, 10, 10, 1e-6, 4, 0.5, 2, 20, 0, 50, 0, 123154, False
TIGHT = "gaussian", 3, "spherical", 4, 0.1, 0.2, 0.3, 2, 0.75, 1.75, 5, 0.5, 9, 1, -3, False


@pytest.mark.parametrize(("options", "values"), [((), LOOSE), (TIGHT, TIGHT)])
def test_pairs_of_maps(options, values, rng):
    data = source, target = rng.lognormal(1, 0.5, 50), rng.normal(5, 2, 50)
    f, n_f, g, n_g, to_weight, to_center, *betas, low, high, n = values[:11]
    weights = target.min() - to_weight * np.ptp(target), target.max() + to_weight * np.ptp(target)
    centers = source.min() - to_center * np.ptp(source), source.max() + to_center * np.ptp(source)
    there, back = (np.divide(betas, np.ptp(x)) for x in data)
    rest = n, int(50 * low / n) + 1, int(50 * high / n) + 1, *values[11:]
    forward = fit_map(*data, f, n_f, *weights, *there, *centers, *rest)
    mapped = forward.forward(source)
    backward = fit_map(mapped, source, g, n_g, *centers, *back, *weights, *rest)
    state = (forward.serialize(), backward.serialize()), f, g
    run = f, n_f, *there, g, n_g, *back, *weights, *centers, *rest
    for given in (run, (gravelox.IsomorphismParameters(*options),)):
        assert fit_pair(*data, *given).__getstate__() == state


def test_a_lognormal_sample_becomes_normal_and_comes_back(rng):
    z, u = rng.normal(size=300), np.linspace(-1.5, 1.5, 40)
    pair = fit_pair(np.exp(z / 2), z)
    assert_allclose(pair.forward(np.exp(u / 2)), u, atol=0.1)
    assert_allclose(pair.backward(pair.forward(np.exp(u / 2))), np.exp(u / 2), rtol=0.05)


@pytest.mark.parametrize("seed", range(10))
def test_lognormal_samples_and_their_scores(seed):
    """Within 0.1 of the scores there and within a tenth back, from 120 samples and few kernels."""
    scores, u = np.random.default_rng(seed).normal(size=120), np.linspace(-1.2, 1.2, 40)
    settings = {"n_centers_forward": 9, "n_centers_backward": 12, "n_partitions": 8}
    settings = gravelox.IsomorphismParameters(**settings, n_iterations=30, seed=seed, n_threads=1)
    pair = fit_pair(np.exp(scores / 2), scores, settings)
    there = pair.forward(np.exp(u / 2))
    assert abs(np.array(there) - u).max() < 0.1
    assert abs(pair.backward(there) / np.exp(u / 2) - 1.0).max() < 0.1


PLACES, IMAGES = [(0.0, 0.0), (1.0, 0.0)], [(1.0,), (2.0,)]
UNFIT = [(PLACES[:1], IMAGES, "weights: .*1 values.* got 2"), ([], [], "centers: .*at least 1")]
UNFIT += [([PLACES[0], (1.0,)], IMAGES, "centers: .*2 coordinates, got 1 at position 1")]
UNFIT += [(PLACES, [(1.0,), (2.0, 3.0)], "weights: .*1 coordinates, got 2 at position 1")]
UNFIT += [([(0.0,), (1.0,)], IMAGES, "[xX]: .*1 coordinates, got 2")]


@pytest.mark.parametrize(("centers", "weights", "message"), UNFIT)
def test_radial_maps_of_lists_that_do_not_fit(centers, weights, message):
    made, kept = (
        OptimizedNDProjection(centers, [], weights),
        OptimizedNDProjection(PLACES, [], IMAGES),
    )
    before = kept.project([0.5, 0.5])
    kept.centers, kept.weights = centers, weights
    for one in (made, kept):
        for points in ([0.5, 0.5], [(0.5, 0.5)]):
            with pytest.raises(ValueError, match=message):
                one.project(points)
    kept.centers, kept.weights, kept.scales = PLACES, IMAGES, [np.nan] * 7
    assert_array_equal(kept.project([0.5, 0.5]), before)
