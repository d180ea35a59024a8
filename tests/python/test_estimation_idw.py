"""Inverse distance in both forms, and which samples it takes, as all estimations do."""

import gravelox
import numpy as np
import pytest
from oracles.estimation import inverse_distance, limited, structures

MODEL = [("exponential", 0.7, (30, 12, 6), (40, 10, 0)), ("nugget", 0.3, (1, 1, 1), (0, 0, 0))]
COVS = structures(MODEL)
NEGATIVE = [("spherical", 3.0, (9, 9, 9), (0, 0, 0))]  # of weights, that is
CASES = [(p, model) for p in (0, 0.5, 1, 1.7, 2, 3) for model in (None, MODEL)]


@pytest.mark.parametrize(("power", "model"), [*CASES, (1, NEGATIVE), (3, NEGATIVE)])
def test_both_forms_against_the_model(power, model, rng):
    samples, values = rng.uniform(0, 10, (80, 3)), rng.lognormal(1, 1, 80)
    samples[7] = samples[3]
    targets = np.vstack([rng.uniform(0, 10, (30, 3)), samples[:5]])
    # The metric of the search chooses samples; it does not weigh them.
    search = gravelox.Neighborhood(samples, gravelox.Ellipsoid(9, 3, 1, 60, 0, 0))
    form = [] if model is None else [structures(model)]
    found = gravelox.IDW(*form, power, 0.8, 12)(targets, search, samples, values)
    expected = []
    for target in targets:
        ids = search.find_neighbors(target, 12)
        expected.append(inverse_distance(samples[ids], values[ids], target, power, 0.8, model))
    assert np.allclose(found, expected, rtol=1e-8, atol=0)


def estimate(xs, values, *args, **kwargs):
    """The estimate at 0 from samples on the x axis."""
    samples = [(x, 0, 0) for x in xs]
    search = gravelox.Neighborhood(samples)
    return gravelox.IDW(*args, max_neighbors=9, **kwargs)([(0, 0, 0)], search, samples, values)[0]


@pytest.mark.parametrize(
    ("xs", "values", "max_weight", "expected"),
    [
        ([0, 1], [10, 20], 0, 20),  # samples on the target drop out
        ([0, 0], [10, 20], 0, np.nan),
        ([0, 0, 1, -1], [10, 20, 5, 15], 0.5, 12.5),
        ([0], [10], 0, 10),
        ([], [], 0.9, np.nan),
    ],
)
def test_samples_on_the_target(xs, values, max_weight, expected):
    for form in ((), (COVS,)):
        found = estimate(xs, values, *form, max_weight=max_weight)
        assert found == pytest.approx(expected, nan_ok=True)


def test_the_forms_differ_exactly_at_the_threshold():
    assert estimate([1e-30, 1], [10, 20]) == pytest.approx(10, rel=1e-15)  # far and heavy
    assert estimate([1e-30, 1], [10, 20], COVS) == pytest.approx(11)
    assert estimate([0.99e-30, 1], [10, 20]) == pytest.approx(11)


@pytest.mark.parametrize("power", [1, 2, 3])
def test_powers_close_to_whole_ones_count_as_these_beside_covariances(power):
    exact, near, far = (estimate([1, 5], [1, 2], COVS, power + d) for d in (0, 9e-7, 1.1e-6))
    assert exact == near != far
    assert estimate([1, 5], [1, 2], power) != estimate([1, 5], [1, 2], power + 9e-7)


LIMITS = [(12, -1, 2, -1), (25, 0.1, 3, 2), (12, -1, 0, 1)]  # beside a count no radius acts
LIMITS += [(-1, 0.6, 2, 1), (0, -0.6, -1, -1), (-1, -1, -1, -1)]  # no limit is a radius of 1


@pytest.mark.parametrize(("count", "radius", "octant", "hole"), LIMITS)
def test_limits_act_on_the_candidates_in_their_order(count, radius, octant, hole, rng):
    samples = rng.integers(0, 5, (50, 3)).astype(float)  # many ties and equal coordinates
    targets = rng.integers(0, 5, (15, 3)).astype(float)
    dhids = rng.choice([-9, 0, 4, 2**31 - 1], 50).tolist()
    # More samples than the search knows are legal.
    search = gravelox.Neighborhood(samples[:48], gravelox.Ellipsoid(6, 4, 3, 20, 10, 0))
    estimator = gravelox.IDW(0, 0.9, count, radius, octant, dhids, hole)
    # With the exponent 0 all samples weigh the same: the indicator of one shows where it is taken.
    shares = [estimator(targets, search, samples, indicator) for indicator in np.eye(50)]
    found = [np.flatnonzero(row).tolist() for row in np.nan_to_num(np.transpose(shares))]
    candidates = [search.find_neighbors(t, count if count > 0 else float(radius)) for t in targets]
    taken = [limited(i, samples, t, octant, dhids, hole) for i, t in zip(candidates, targets)]
    assert found == [sorted(ids) for ids in taken]
    assert max(map(len, taken)) > 3
