"""Kernels, structures, models and the generator of random models."""

import math

import gravelox
import numpy as np
import pytest
from oracles.estimation import SHAPES, anisotropy, covariance, generated_models
from oracles.random_draws import Draws

RANGES, ANGLES = (40.0, 25.0, 10.0), (30.0, -20.0, 50.0)
METRIC = gravelox.Ellipsoid(*RANGES, *ANGLES)


@pytest.mark.parametrize("shape", ["spherical", "gaussian", "exponential"])
def test_kernel_and_structure(shape, rng):
    kernel = getattr(gravelox.Kernel, shape)
    for h in (0, 0.5, 1, 1.5, 40, -1):  # a negative distance is not folded
        assert kernel(h) == pytest.approx(float(SHAPES[shape](np.float64(h))), rel=1e-13)
    assert kernel(1e300) == kernel(math.inf) == 0
    structure = getattr(gravelox.Covariance, shape)(2.5, METRIC)
    assert (structure.type(), structure.sill(), structure((0, 0, 0))) == (shape, 2.5, 2.5)
    assert np.array_equal(structure.ellipsoid().matrix(), METRIC.matrix())
    lags = rng.normal(0, 15, (50, 3))
    expected = covariance([(shape, 2.5, RANGES, ANGLES)], lags)
    assert np.allclose([structure(lag) for lag in lags], expected, rtol=1e-12, atol=1e-15)


def test_nugget_ends_at_its_threshold():
    nugget = gravelox.Covariance.nugget(2.0)
    assert (nugget.type(), nugget.sill()) == ("nugget", 2.0)
    unit = gravelox.Ellipsoid(1, 1, 1, 0, 0, 0)
    assert np.array_equal(nugget.ellipsoid().matrix(), unit.matrix())
    assert [nugget((0, h, 0)) for h in (0, 0.99e-8, -0.99e-8, 1e-8, 1e-7)] == [2, 2, 2, 0, 0]


def test_model_adds_its_structures(rng):
    structures = [
        gravelox.Covariance.nugget(0.5),
        gravelox.Covariance.spherical(1.0, METRIC),
        gravelox.Covariance.gaussian(-0.25, METRIC),
        gravelox.Covariance.exponential(2.0, gravelox.Ellipsoid(5, 9, 7, 0, 0, 0)),
    ]
    model = gravelox.covariance_computer(structures)
    lags = rng.normal(0, 10, (50, 3))
    expected = [sum(s(lag) for s in structures) for lag in lags]
    del structures  # the function holds copies
    assert np.allclose([model(lag) for lag in lags], expected, rtol=1e-13, atol=0)
    assert model((0, 0, 0)) == 3.25
    assert gravelox.covariance_computer([])((1, 2, 3)) == 0


@pytest.mark.parametrize(("seed", "shape"), [(0, "gaussian"), (7, "spherical"), (-1, "spherical")])
def test_generated_models(seed, shape):
    limits = (12.0, 0.5, 1.5, 0.2, 0.9)
    ellipsoid = gravelox.Ellipsoid(10, 40, 25, *ANGLES)  # the largest range is not the first
    kernel = getattr(gravelox.Kernel, shape)
    models = gravelox.generate_covariances(ellipsoid, 2, kernel, 4, seed, *limits)
    assert len(models) == 4
    oracle = generated_models(Draws(seed).uniform, ellipsoid.info(), 2, 4, *limits)
    for model, expected in zip(models, oracle):
        assert [s.type() for s in model] == ["spherical", "spherical", "nugget"]
        assert [s.sill() for s in model] == pytest.approx([e[0] for e in expected], rel=1e-12)
        for structure, (sill, ranges, angles) in zip(model[:2], expected):
            matrix = ellipsoid.matrix() if angles is None else anisotropy(ranges, angles)
            assert np.allclose(structure.ellipsoid().matrix(), matrix, rtol=1e-12, atol=1e-15)
            value = sill * SHAPES[shape](np.linalg.norm(matrix @ [3, -2, 1]))
            assert structure((3, -2, 1)) == pytest.approx(value, rel=1e-12)


def test_generator_without_models_or_kernels():
    def generate(n_kernels, n_covs):
        kernel = gravelox.Kernel.spherical
        return gravelox.generate_covariances(METRIC, n_kernels, kernel, n_covs, 1, 9, 1, 2, 0, 1)

    assert generate(2, 0) == generate(2, -3) == []
    (first,), (second,) = generate(0, 2)
    assert math.isnan(first.sill())
    assert (second.type(), second.sill()) == ("nugget", 1)
