"""Fixtures that all tests share. GRAVELOX_TEST_SEED sets the seed of the random ones."""

import os

import hypothesis
import numpy as np
import pytest

hypothesis.settings.register_profile("gravelox", deadline=None, derandomize=True, max_examples=60)
hypothesis.settings.load_profile("gravelox")


@pytest.fixture
def rng():
    return np.random.default_rng(int(os.environ.get("GRAVELOX_TEST_SEED", "4711")))
