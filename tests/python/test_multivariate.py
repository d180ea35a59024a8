"""Mixtures against scikit-learn, conditional scores and projection pursuit against plain models."""

import re
from functools import partial

import gravelox
import numpy as np
import pytest
from gravelox import PPMT, SCT, GMMFitter, GMMParams
from numpy.testing import assert_allclose, assert_array_equal
from oracles import multivariate as plain
from scipy import stats
from sklearn.mixture import GaussianMixture

close = partial(assert_allclose, rtol=1e-9, atol=1e-9)


def parts(params):
    return params.weights, params.means, params.covariances


def agree(params, expected):
    for found, wanted in zip(parts(params), expected):
        close(found, wanted)


@pytest.fixture
def data(rng):
    """Features in rows, far from normal and from linear relations."""
    t = rng.normal(size=(3, 400))
    return np.array([np.exp(t[0]), t[0] ** 2 + 0.3 * t[1], t[0] * t[1] + 0.5 * t[2]])


WEIGHTS = [np.ones(400, int), np.arange(400) % 4]
INITIAL = [(400, 4, np.ones(400)), (400, 2, np.arange(400) / 9), (6, 6, np.ones(6))]
INITIAL += [(9, 7, np.zeros(9)), (20, 9, 10.0 ** np.arange(-19, 1)), (5, 1, np.ones(5))]


@pytest.mark.parametrize(("n", "n_components", "w"), INITIAL)
def test_initial_mixture(n, n_components, w, data, capfd):
    for seed in (42, 7, 2**32 - 1):
        expected = plain.initial_mixture(data.T[:n], w, n_components, 0.25, seed)
        agree(GMMFitter(n_components, 0, 1, 0.25, seed).fit(data.T[:n], w), expected)
    squares = np.arange(10.0)[:, None] ** 2  # their labels are 1 2 2 0 2 2 1 1 0 1
    assert_allclose(GMMFitter(3, 0).fit(squares).means, [[36.5], [41.5], [11.5]])
    assert capfd.readouterr() == ("", "")


@pytest.mark.parametrize("w", WEIGHTS)
@pytest.mark.parametrize("n_steps", [1, 7])
def test_steps_of_a_mixture_are_those_of_scikit_learn(w, n_steps, data, capfd):
    start = GMMFitter(4, 0, 0.0, 0.01).fit(data.T, w)
    inits = {"weights_init": start.weights, "means_init": start.means, "init_params": "random"}
    inits["precisions_init"] = np.linalg.inv(start.covariances)
    reference = GaussianMixture(4, tol=0, reg_covar=0.01, max_iter=n_steps, **inits)
    with pytest.warns(UserWarning, match="did not converge"):
        reference.fit(np.repeat(data.T, w, axis=0))
    expected = reference.weights_, reference.means_, reference.covariances_
    agree(GMMFitter(4, n_steps, 0.0, 0.01).fit(data.T, w), expected)
    warning = f"Warning: EM algorithm did not converge within {n_steps} iterations.\n"
    assert capfd.readouterr() == (warning, "")


@pytest.mark.parametrize("w", WEIGHTS)
def test_mixtures_converge_by_their_unweighted_likelihood(w, data, capfd):
    models = [GMMFitter(2, t, 0.0).fit(data.T, w) for t in range(13)]
    likelihoods = [np.log(plain.likelihoods(parts(m), data.T).sum(axis=0)).sum() for m in models]
    steps, _ = abs(np.diff(likelihoods[:-1])), capfd.readouterr()
    for tol in (1e9, 1.0001 * np.median(steps), 1.0001 * steps.min()):
        stop = int(np.argmax(steps < tol)) + 2
        agree(GMMFitter(2, 12, tol).fit(data.T, w), parts(models[stop]))
        assert capfd.readouterr() == (f"EM Converged at iteration {stop}\n", "")
    assert stop > 2


def test_samples_without_likelihood_belong_to_all_components(data):
    is_far, x = np.arange(400) == 40, data.T
    far, flat = x + 30 * is_far[:, None], np.hstack([x, 5e-7 * (x[:, :1] > 0.9)])
    for samples, w in ((far, np.where(is_far, 1e-8, 1.0)), (flat, np.ones(400))):
        start = parts(GMMFitter(3, 0, 0.0, 0.0).fit(samples, w))
        assert plain.likelihoods(start, samples)[:, 40].sum() < 1e-100
        agree(GMMFitter(3, 1, 0.0, 0.0).fit(samples, w), plain.em_step(start, samples, w))


ROOTS = np.array([np.diag([1.0, 2, 3]), [[1, 0.5, 0], [-0.3, 1, 0.2], [0.5, 1, 1]], np.eye(3)])
SPREADS, MEANS = ROOTS @ ROOTS.transpose(0, 2, 1), np.array([(0.0, 0, 0), (2, -1, 1), (-2, 3, 0)])
MODEL = np.array([0.5, 0.3, 0.2]), MEANS, SPREADS


def transform(model):
    return SCT(GMMParams(len(model[0]), *model))


def test_conditional_scores_and_the_way_back(rng):
    values, scores = rng.normal(0, 2, (3, 20)), rng.normal(0, 2, (3, 20))
    scores[:, 0], scores[:, 1] = np.inf, (-np.inf, 0, -40)
    expected = np.transpose([plain.scores(MODEL, sample) for sample in values.T])
    close(transform(MODEL).forward(values), expected)
    back = transform(MODEL).backward(scores)
    for sample, found in zip(scores.T, back.T):
        expected = [plain.restored(MODEL, s, found[:j]) for j, s in enumerate(sample)]
        assert_allclose(found, expected, rtol=2**-29, atol=1e-12)
    scores[0, 2], scores[1, 3], scores[2, 4] = [np.nan] * 3
    back[0:, 2] = back[1:, 3] = back[2:, 4] = np.nan
    assert_array_equal(transform(MODEL).backward(scores), back)


def test_scores_of_a_mixture_are_independent_standard_normals(rng):
    labels, draws = rng.choice(3, 20_000, p=MODEL[0]), rng.normal(size=(20_000, 3, 1))
    values = (MEANS[labels] + (ROOTS[labels] @ draws)[..., 0]).T
    scores = transform(MODEL).forward(values)
    assert min(stats.kstest(row, "norm").pvalue for row in scores) > 0.001
    for powers in (scores, scores**2):
        assert abs(np.corrcoef(powers) - np.eye(3)).max() < 4.5 / 20_000**0.5
    assert_allclose(transform(MODEL).backward(scores), values, rtol=1e-6, atol=1e-6)


def test_weights_that_miss_a_sum_of_one(capfd):
    point = np.ones((3, 1))
    near, off = ((MODEL[0] * (1.0 - miss), *MODEL[1:]) for miss in (5e-7, 2e-6))
    close(transform(near).forward(point)[:, 0], plain.scores(near, point[:, 0]), rtol=1e-10, atol=0)
    assert np.isnan(transform(near).backward(point * np.inf)).all()
    warning = "Warning: Root finding failed with exception: .*do not bracket the root: a=.*\n"
    assert re.fullmatch(warning, capfd.readouterr().err)
    close(transform(off).forward(point), transform(MODEL).forward(point), rtol=1e-13, atol=0)
    assert capfd.readouterr().err == "Warning: GMM weights do not sum to 1. Renormalizing.\n"


NARROW, NEAR = [(1e-14, 1, 1), (1, 1e-11, 1), (1e-6, 1e-6, 1), (1, 1e-13, 1)], (2.00001, -1.5, 2)
DROPPED = [(SPREADS[1], np.diag(diagonal), NEAR) for diagonal in NARROW]
# The second feature finds no component; its own density brings them back for the third.
DROPPED += [(*[np.diag((1, 1e-8, 1))] * 2, (-21.54, 0, 1.5))]


@pytest.mark.parametrize(("first", "second", "sample"), DROPPED)
def test_components_that_drop_out(first, second, sample):
    model = np.array([0.4, 0.6]), MEANS[:2], np.array([first, second])
    found = transform(model).forward(np.transpose([sample]))[:, 0]
    close(found, plain.scores(model, np.array(sample)))
    assert [*np.isnan(found)] == [False, sample != NEAR, False]


@pytest.mark.parametrize("prob_random_rotation", [0.0, 0.5, 1.0])
def test_steps_of_a_chain(prob_random_rotation, data, rng):
    chains = [PPMT(data, n, prob_random_rotation, 1, -5) for n in range(7)]
    outside, scores, engine = 2.0 * data[:, :70] - 1.0, rng.normal(0, 3, (3, 70)), plain.Engine(-5)
    for n, (chain, longer) in enumerate(zip(chains, chains[1:])):
        draws, probability = plain.Engine(engine.word()), prob_random_rotation if n else -1.0
        step = plain.Step(chain.forward(data), longer.forward(data), draws, probability)
        for new in (data, outside):
            close(longer.forward(new), step.forward(chain.forward(new)))
        close(longer.backward(scores), chain.backward(step.backward(scores)))


def test_data_become_normal_and_come_back(data, rng):
    chain, units = PPMT(data, 30), rng.normal(size=(50, 3))
    units /= np.linalg.norm(units, axis=1)[:, None]
    for table, accepted in ((stats.zscore(data, axis=1), False), (chain.forward(data), True)):
        distances = [stats.kstest(row, "norm").statistic for row in (*table, *(units @ table))]
        assert (max(distances) < 0.08) == accepted
    close(chain.backward(table), data, atol=1e-5)


def test_points_and_tables(data):
    chain, columns = PPMT(data, 9), data[:, 5:10]
    assert_array_equal(PPMT(data, 9, 0.37, 3, 123154).forward(columns), chain.forward(columns))
    for way in (chain.forward, chain.backward):
        for column, expected in zip(columns.T, way(columns).T):
            for same in (way(column), way(column.tolist()), way(column[:, None])[:, 0]):
                assert_array_equal(same, expected, strict=True)
    assert_array_equal(PPMT(data, 0).forward(PPMT(data, -1).backward(data)), data)


def test_fits_do_not_depend_on_the_default_threads(rng):
    samples = rng.normal(size=(9000, 14)) + rng.integers(0, 3, (9000, 1))
    cov = gravelox.Covariance.gaussian(1, gravelox.Rotation(0, 0))

    def fit(n_components, n_threads):  # the transform sets the number of threads of later regions
        gravelox.FIM([(0, 0, 0), (9, 9, 9)], cov, 1, 8, n_threads)
        model = GMMFitter(n_components, 3, 0).fit(samples)
        return np.concatenate([model.means, *model.covariances])

    for n_components in (1, 3):
        assert_array_equal(fit(n_components, 1), fit(n_components, 4))


def test_rotations(rng):
    for n in (1, 2, 5):
        for make in (gravelox.create_random_rotation, gravelox.create_random_orthogonal_matrix):
            close(make(N=n, seed=-3), plain.orthogonal(n, plain.Engine(-3)))
    table = rng.normal(size=(7, 3)) * [1, 5, 0]
    for is_surface, scale in ((False, 3 / 7**0.5), (True, 3 / 21**0.5)):
        scaled, v, u, s = gravelox.compute_svd_decomposition(table, is_surface)
        close([s, scaled / scale], [np.linalg.svd(table)[1]] * 2)
        close(u * s @ v.T, table)
        back, way, transposed, other = gravelox.compute_optimum_rotation(table, is_surface)
        close(back @ back.T, scale**2 * table.T @ table + np.diag([0, 0, 1]))
        close([way, other.T, transposed.T], [np.linalg.inv(back)] * 2 + [back])
        turns = gravelox.compute_optimum_rotation(table, is_surface, is_ppmt=True)
        assert_array_equal(turns, [v, v.T, v.T, v])
