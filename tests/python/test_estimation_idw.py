"""Inverse distance in its plain form and in the form with covariances."""

import gravelox
import numpy as np
import pytest
from oracles.estimation import inverse_distance, structures

MODEL = [("exponential", 0.7, (30, 12, 6), (40, 10, 0)), ("nugget", 0.3, (1, 1, 1), (0, 0, 0))]
COVS = structures(MODEL)


def estimate(xs, values, *args, **kwargs):
    """The estimate at 0 from samples on the x axis."""
    samples = [(x, 0, 0) for x in xs]
    search = gravelox.Neighborhood(samples)
    return gravelox.IDW(*args, max_neighbors=9, **kwargs)([(0, 0, 0)], search, samples, values)[0]


@pytest.mark.parametrize(
    ("xs", "values", "max_weight", "expected"),
    [
        ([0, 1], [10, 20], 0.9, 11),
        ([0, 1], [10, 20], 0, 20),  # samples on the target drop out
        ([0, 0], [10, 20], 0, np.nan),
        ([0, 0, 0], [10, 20, 60], 0.3, 30),
        ([0, 0, 1, -1], [10, 20, 5, 15], 0.5, 12.5),
        ([0], [10], 0, 10),
        ([7], [10], 0.9, 10),
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


@pytest.mark.parametrize("power", [1, 2, 3])
def test_powers_close_to_whole_ones_count_as_these_beside_covariances(power):
    def at(power, *form):
        return estimate([1, 5], [1, 2], *form, power_a=power)

    assert at(power + 9e-7, COVS) == at(power, COVS) != at(power + 1.1e-6, COVS)
    assert at(power + 9e-7) != at(power)
