"""Which samples an estimate is made of: the limits and their order.

With the exponent 0 inverse distance gives all samples equal weights, so an indicator of one sample
estimates above 0 exactly where that sample was taken.
"""

import gravelox
import numpy as np
import pytest
from oracles.estimation import limited


def taken(samples, targets, search=None, **limits):
    """The set of samples taken for each target."""
    search = search or gravelox.Neighborhood(samples)
    estimator = gravelox.IDW(power_a=0, **limits)
    shares = [estimator(targets, search, samples, indicator) for indicator in np.eye(len(samples))]
    return [set(np.flatnonzero(np.nan_to_num(column))) for column in np.transpose(shares)]


DIAGONAL = [(s, s, s) for s in (1, 2, -3, 4, -5, 6, 7, -8)]  # nearest to the origin first
ALL, HOLES, MIXED = set(range(8)), [1, 1, 1, 1, 2, 2, 2, 3], [5, 5, 5, 6, 6, 7, 7, 7]


@pytest.mark.parametrize(
    ("count", "radius", "octant", "dhids", "hole", "expected"),
    [
        (-1, -1, -1, [], -1, set()),  # no limit at all is a radius of 1
        (-1, 1.74, -1, [], -1, {0}),
        (-1, -4.0, -1, [], -1, {0, 1}),
        (0, 100, -1, [], -1, ALL),
        (1, 100, -1, [], -1, {0}),
        (4, 2, -1, [], -1, {0, 1, 2, 3}),  # the count alone acts
        (9, -1, -1, [], -1, ALL),
        (5, -1, 2, [], -1, {0, 1, 2, 4}),  # nothing comes in the place of 3
        (8, -1, 1, [], -1, {0, 2}),
        (-1, 9.0, 2, [], -1, {0, 1, 2, 4}),
        (8, -1, 0, HOLES, 0, ALL),
        (8, -1, -1, HOLES, 2, {0, 1, 4, 5, 7}),
        (4, -1, -1, HOLES, 2, {0, 1}),
        (8, -1, -1, [], 1, ALL),
        (5, -1, 2, MIXED, 1, {0, 4}),  # with the holes' limit first it would be 0 and 3
    ],
)
def test_limits(count, radius, octant, dhids, hole, expected):
    limits = {"max_neighbors": count, "max_radius": radius, "max_neighbors_octant": octant}
    found = taken(DIAGONAL, [(0, 0, 0)], **limits, dhids=dhids, max_neis_by_dhid=hole)
    assert found == [expected]


def test_octants_count_zero_as_negative_and_use_real_coordinates():
    samples = [(0, 0, 0), (-1, -1, -1), (0, -2, 0), (0.5, -3, 0), (0, 0, 4), (5, 5, 5)]
    turned = gravelox.Neighborhood(samples, gravelox.Ellipsoid(9, 9, 9, 200, 50, 70))
    for limit, expected in ((1, {0, 3, 4, 5}), (2, {0, 1, 3, 4, 5})):
        limits = {"max_neighbors": 6, "max_neighbors_octant": limit}
        assert taken(samples, [(0, 0, 0)], turned, **limits) == [expected]


def test_radius_is_strict_and_in_the_metric_of_the_search():
    samples = [(9, 0, 0), (10, 0, 0), (0, 2, 0), (0, 0.5, 0)]
    search = gravelox.Neighborhood(samples, gravelox.Ellipsoid(10, 1, 1, 90, 0, 0))
    assert taken(samples, [(0, 0, 0), (1, 0, 0)], search) == [{0, 3}, {0, 1, 3}]
    # More samples than the search knows are legal.
    assert taken([*samples, (0, 0, 0)], [(0, 0, 0)], search, max_radius=1.5) == [{0, 1, 3}]


@pytest.mark.parametrize(("count", "octant", "hole"), [(12, 2, -1), (25, 3, 2), (-1, 2, 1)])
def test_limits_act_on_the_candidates_in_their_order(count, octant, hole, rng):
    samples = rng.integers(0, 5, (50, 3)).astype(float)  # many ties and equal coordinates
    targets = rng.integers(0, 5, (15, 3)).astype(float)
    dhids = rng.choice([-9, 0, 4, 2**31 - 1], 50).tolist()
    search = gravelox.Neighborhood(samples, gravelox.Ellipsoid(6, 4, 3, 20, 10, 0))
    expected = []
    for target in targets:
        ids = search.find_neighbors(target, count if count > 0 else 0.6)
        expected.append(set(limited(ids, samples, target, octant, dhids, hole)))
    assert max(map(len, expected)) > 3
    limits = {"max_neighbors": count, "max_radius": 0.6, "max_neighbors_octant": octant}
    found = taken(samples, targets, search, **limits, dhids=dhids, max_neis_by_dhid=hole)
    assert found == expected
