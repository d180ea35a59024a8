"""Kernels, structures, models and the generator of random models."""

import math

import gravelox
import numpy as np
import pytest
from oracles.estimation import SHAPES, covariance, structures

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
    assert np.array_equal(nugget.ellipsoid().matrix(), gravelox.Rotation(0, 0).matrix())
    assert [nugget((0, h, 0)) for h in (0, 0.99e-8, -0.99e-8, 1e-8, 1e-7)] == [2, 2, 2, 0, 0]


def test_model_adds_its_structures(rng):
    model = [("nugget", 0.5, (1, 1, 1), (0, 0, 0)), ("spherical", 1.0, RANGES, ANGLES)]
    model += [("gaussian", -0.25, RANGES, ANGLES), ("exponential", 2.0, (5, 9, 7), (0, 0, 0))]
    function = gravelox.covariance_computer(structures(model))  # holds copies
    lags = [(0, 0, 0), *rng.normal(0, 10, (50, 3))]
    assert np.allclose([function(lag) for lag in lags], covariance(model, lags), rtol=1e-12)
    assert gravelox.covariance_computer([])((1, 2, 3)) == 0


def test_generated_models():
    ellipsoid = gravelox.Ellipsoid(10, 40, 25, *ANGLES)  # the largest range is not the first
    rest, found = (2, gravelox.Kernel.gaussian, 3, -1, 12.0, 0.5, 1.5, 0.2, 0.9), []
    for model in gravelox.generate_covariances(ellipsoid, *rest):
        assert [s.type() for s in model] == ["spherical", "spherical", "nugget"]
        assert sum(s.sill() for s in model) == pytest.approx(1, rel=1e-14)
        found += [model[0]((3, -2, 1)), model[1]((3, -2, 1)), model[2].sill()]
    # From the same draws in plain Python.
    pinned = [0.429178552985, 0.505918152388, 0, 0.271173001105, 0.144551602856, 0.385940413163]
    pinned += [0.311579357721, 0.094180301017, 0.291395240194]
    assert found == pytest.approx(pinned, rel=1e-10)
