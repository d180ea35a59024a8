"""Distributions against scipy's, tables of data against plain interpolation, normal scores."""

import gravelox
import numpy as np
import pytest
from gravelox import CDF, PDF, NScore, data_distribution
from hypothesis import given
from hypothesis import strategies as st
from numpy.testing import assert_allclose
from oracles.variography import Engine
from scipy import stats

CASES = [("gaussian", (), stats.norm()), ("gaussian", (2, 3), stats.norm(2, 3))]
CASES += [("student_t", (4.5,), stats.t(4.5)), ("fisher_f", (5, 7), stats.f(5, 7))]
CASES += [("cauchy", (1, 2), stats.t(1, 1, 2)), ("uniform", (-1, 3), stats.uniform(-1, 4))]
CASES += [("chi_squared", (3,), stats.chi2(3)), ("extreme_value", (1, 2), stats.gumbel_r(1, 2))]
CASES += [("weibull", (3, 2), stats.weibull_min(3, 0, 2)), ("gamma", (5, 3), stats.gamma(5, 0, 3))]
CASES += [("exponential", (4,), stats.expon(0, 0.25)), ("lognormal", (0, 2), stats.lognorm(2))]
CASES += [("lognormal", (1, 0.5), stats.lognorm(0.5, 0, np.e))]


def uniforms(seed, n):
    draws = Engine(seed)
    return [draws.uniform() for _ in range(n)]


@pytest.mark.parametrize(("name", "parameters", "expected"), CASES)
def test_parametric_distributions(name, parameters, expected):
    made = getattr(gravelox, f"{name}_distribution")(*parameters)
    pdf, cdf, p = PDF(made), CDF(made), np.array([1e-9, 0.01, 0.3, 0.5, 0.9, 0.999999])
    x, near = expected.ppf(p), {"rtol": 1e-6, "atol": 1e-10}
    assert_allclose([pdf.probs(p), cdf.probs(p), [*map(pdf.prob, p)]], [x] * 3, **near)
    assert_allclose([cdf.values(x), [*map(cdf.value, x)]], [p, p], **near)
    assert_allclose([pdf.values(x), [*map(pdf.value, x)]], [expected.pdf(x)] * 2, **near)
    assert_allclose([pdf.median(), pdf.q75(), pdf.q90()], expected.ppf([0.5, 0.75, 0.9]), **near)
    ends = [pdf.min(), pdf.max()]
    assert_allclose([expected.cdf(ends[0]), expected.sf(ends[1])], [1e-16, 2.0**-53], rtol=0.2)
    assert [*map(pdf.prob, (0, 1))] == [*map(cdf.prob, (-3, 7))] == ends
    assert_allclose(made.simulate(9, 1), expected.ppf(uniforms(1, 9)), **near)  # the 1 is the seed


def test_draws():
    made, rng = gravelox.uniform_distribution(0, 1), gravelox.RNG(-7)
    assert [made(rng) for _ in range(9)] == made.simulate(n=9, seed=-7) == uniforms(-7, 9)
    assert made.simulate(9) == uniforms(12515, 9)
    assert made.histogram(9, 1) == made.cdf(9, 1)[0] == sorted(uniforms(1, 9))
    assert_allclose(made.cdf(9)[1], np.arange(9) / 9)
    for n in (1, 2):
        master, shares = Engine(5), np.array_split(range(9), gravelox.check_n_threads(n))
        expected = [u for share in shares for u in uniforms(master.word(), len(share))]
        assert made.simulate(9, n_threads=n, seed=5) == expected


def table(data, weight):
    """Distinct values, and the shares of those before them."""
    sums = {}
    for x, w in sorted(zip(data, weight or [1] * len(data))):
        last = max(sums, default=-1e9)
        place = last if x - last <= 1e-16 else x
        sums[place] = sums.get(place, 0) + w
    shares = np.array([*sums.values()]) / sum(sums.values())
    return np.array([*sums]), np.append(1e-16, np.cumsum(shares)[:-1])


def straight(a, b, t):
    """Linear between points, and beyond them on from the last two at either end."""
    i = min(max(a.searchsorted(t), 1), len(a) - 1)
    base = i if t > a[-2] else i - 1
    return b[base] + (b[i] - b[i - 1]) / (a[i] - a[i - 1] + 1e-16) * (t - a[base])


DATA = [([1, 2], []), ([1, 1, 2], []), ([3, 1, 2, 2, 0], [0.5, 1, 0, 2, 0.5])]
DATA += [([4, 3, 2, 1.5], [1, 2, 4, 1]), ([0, 1e-16, 3e-16, 2, 2], [1, 1, 1, 4, 1])]
DATA += [([0, 1, 2, 3], [1, 0, 0, 1]), ([5, 5 + 1e-15], [])]


@pytest.mark.parametrize(("data", "weight"), DATA)
def test_distributions_of_data(data, weight):
    (x, c), made = table(data, weight), data_distribution(data, weight)
    p, v = [-0.3, 0, 1e-17, 0.1, 0.125, 0.4, 0.5, 0.6, 0.75, 1, 1.7], [-9, 0.3, *x, 2.2, 2.7, 9]
    masses = np.array([c[1] - c[0], *(c[2:] - c[:-2]) * 0.5, *[c[-1] - c[-2]] * 2])
    assert_allclose(CDF(made).probs(p), [straight(c, x, t) for t in p], rtol=1e-12)
    assert_allclose(CDF(made).values(v), [straight(x, c, t) for t in v], rtol=1e-12)
    assert_allclose(PDF(made).values(v), masses[x.searchsorted(v)], rtol=1e-12)
    assert made.simulate(9, 3) == CDF(made).probs(uniforms(3, 9))
    same = data_distribution([5, 5], [1, 3])
    assert [CDF(same).prob(9), CDF(same).value(9), PDF(same).value(9)] == [5, 1e-16, 1]
    weightless = data_distribution([0, 1, 2], [0, 3, 3])  # its least value
    assert CDF(weightless).probs(p) == CDF(data_distribution([1, 2])).probs(p)


PAIRS = st.lists(st.tuples(st.integers(-800, 800), st.floats(0.1, 10)), min_size=2, max_size=30)


@given(PAIRS.filter(lambda pairs: len(dict(pairs)) > 1), st.floats(0, 1))
def test_normal_scores(pairs, share):
    data, weight = np.transpose(pairs) * [[0.125], [1]]
    source, normal = data_distribution(data, weight), gravelox.gaussian_distribution()
    scores, low, high, end = NScore(source, normal), min(data), max(data), CDF(source).prob(1.0)
    inside = [low + share * (high - low), *data, high + share * 0.999 * (end - high)]
    values = scores.forward(inside)
    assert_allclose(scores.backward(values), inside, atol=1e-6)
    assert [*map(scores.forward, inside)] == values == NScore(normal, source).backward(inside)
    assert [*map(scores.backward, values)] == scores.backward(values)
    last = sum(weight[data < high]) / sum(weight)
    assert_allclose(scores.forward(high), stats.norm.ppf(last), atol=1e-9)
    assert scores.forward([low - 1, end + 1]) == [PDF(normal).min(), PDF(normal).max()]
    assert scores.backward([-50, 50]) == CDF(source).probs([0, 1])
