"""Rotations, ellipsoids and what is read off their matrices."""

import itertools

import gravelox
import numpy as np
import pytest
from gravelox import Ellipsoid
from hypothesis import given
from hypothesis import strategies as st
from numpy.testing import assert_allclose, assert_array_equal
from oracles import spatial

# All different: the order of equal axes hangs on the last bit of their lengths.
integers = st.lists(st.integers(1, 10**5), min_size=3, max_size=3, unique=True)
ranges = integers.map(lambda r: [x / 100 for x in r])
# A quarter of a degree off the whole ones, so that no axis stands at right angles to x, y or z.
angles = st.lists(st.integers(-720, 720).map(lambda a: a + 0.25), min_size=3, max_size=3)


def values(info):
    return [info.r1(), info.r2(), info.r3(), info.azimuth(), info.dip(), info.rake()]


def metric(matrix):
    return matrix.T @ matrix


def check_info(info, expected):
    assert_allclose(values(info)[:3], expected[:3], rtol=1e-12)
    turn = np.radians(np.subtract(values(info), expected)[3:])
    assert_allclose(np.exp(1j * turn), 1.0, atol=1e-9)
    assert 0.0 <= info.azimuth() < 360.0


def test_direction():
    h = 0.5**0.5
    for azimuth, dip, expected in (
        *((0, 0, (0, 1, 0)), (90, 0, (1, 0, 0)), (0, 90, (0, 0, 1)), (270, 0, (-1, 0, 0))),
        *((0, 45, (0, h, h)), (45, -90, (0, 0, -1)), (60, 30, (0.75, 0.75**0.5 / 2, 0.5))),
    ):
        assert_allclose(gravelox.Direction(azimuth, dip), expected, atol=1e-15)


@given(ranges, angles)
def test_matrix_inverse_and_readings(r, a):
    ellipsoid, expected = Ellipsoid(*r, *a), spatial.anisotropy(r, a)
    assert_allclose(ellipsoid.matrix(), expected, atol=1e-12 / min(r))
    assert_array_equal(ellipsoid.matrix(), Ellipsoid(r, a).matrix())
    assert_array_equal(gravelox.Rotation(*a).matrix(), Ellipsoid(1, 1, 1, *a).matrix())
    # The rows are orthogonal, so the inverse has them as columns, scaled to length r.
    assert_allclose(ellipsoid.inv_matrix(), expected.T * np.square(r), atol=1e-11 * max(r))
    assert_allclose(ellipsoid.forward(ellipsoid.backward((3, -2, 1))), (3, -2, 1))
    check_info(ellipsoid.info(), spatial.ranges_and_angles(expected))
    axes = np.array([ellipsoid.major_axis(), ellipsoid.mid_axis(), ellipsoid.minor_axis()])
    lengths = sorted(r, reverse=True)
    assert_allclose(axes, spatial.sorted_rows(expected) * np.square(lengths)[:, None], atol=1e-8)


@pytest.mark.parametrize("tiny", [0.0, -5.0, 1e-30])
def test_a_range_of_nothing_counts_as_one(tiny):
    expected = spatial.anisotropy([1, 4, 1], [90, 0, 0])
    assert_array_equal(Ellipsoid(tiny, 4, tiny, 90, 0, 0).matrix(), expected)


def test_a_singular_matrix_is_taken_as_it_stands():
    flat = Ellipsoid(np.zeros((3, 3)))
    assert not np.isfinite(flat.inv_matrix()).any()
    np.testing.assert_equal(values(flat.info()), [1.0, 1.0, 1.0, 90.0, 0.0, np.nan])


@given(st.lists(st.floats(-2, 2), min_size=9, max_size=9))
def test_rows_of_any_matrix(noise):
    matrix = 5.0 * spatial.rotation(33, 44, 55) * [[3.0], [2.0], [4.0]] + np.reshape(noise, (3, 3))
    for result, expected in (
        (gravelox.orthogonolize_axes(matrix, False), spatial.orthogonal_rows(matrix, False)),
        (gravelox.orthogonolize_axes(matrix), spatial.orthogonal_rows(matrix)),
        (gravelox.sort_matrix3d(matrix), spatial.sorted_rows(matrix)),
    ):
        assert_allclose(result, expected, rtol=1e-9, atol=1e-9)
    unchanged = matrix[np.argsort(np.linalg.norm(matrix, axis=1))]
    assert_array_equal(gravelox.sort_matrix3d(matrix, False), unchanged)


@pytest.mark.parametrize("lengths", [(1, 2, 4), (4, 1, 2), (2, 2, 1), (1, 1, 1)])
def test_axes_along_the_coordinates(lengths):
    signs = itertools.product((1.0, -1.0), repeat=3)
    for order, sign in itertools.product(itertools.permutations(range(3)), list(signs)):
        matrix = np.eye(3)[list(order)] * sign / np.reshape(lengths, (3, 1))
        rows = spatial.sorted_rows(matrix)
        assert_array_equal(gravelox.sort_matrix3d(matrix), rows)
        info = Ellipsoid(matrix).info()
        # The reading sorts once more, and a second axis that was turned round may turn the third.
        check_info(info, spatial.ranges_and_angles(rows))
        again = metric(Ellipsoid(info).matrix())
        if np.linalg.det(spatial.sorted_rows(rows)) > 0:
            assert_allclose(again, metric(matrix), atol=1e-15)


def test_readings():
    for arguments, expected in (
        ((5, 10, 2, 0, 0, 0), (10, 5, 2, 90, 0, 0)),
        ((1, 1, 1, 30, 40, 50), (1, 1, 1, 30, 40, -50)),
        ((10, 5, 2, 225, 0, 0), (10, 5, 2, 45, 0, 0)),
    ):
        check_info(Ellipsoid(*arguments).info(), expected)
    for dip in (90, -90):
        vertical = Ellipsoid(10, 5, 2, 20, dip, 33)
        check_info(
            vertical.info(), spatial.ranges_and_angles(gravelox.sort_matrix3d(vertical.matrix()))
        )
        assert vertical.info().rake() == 0.0


def test_a_left_handed_reading_gives_another_ellipsoid():
    ellipsoid = Ellipsoid(3, 2, 1, 325, 75, 130)
    assert np.linalg.det(gravelox.sort_matrix3d(ellipsoid.matrix())) < 0
    again = metric(Ellipsoid(ellipsoid.info()).matrix())
    assert np.abs(again - metric(ellipsoid.matrix())).max() > 0.1


def test_text():
    text = "{r1: 10.000000, r2: 5.000000, r3: 2.000000, azimuth: 60.000000, dip: 30.000000, "
    assert str(Ellipsoid(10, 5, 2, 60, 30, 15)) == text + "rake: 15.000000} "
    assert f"r1: {1e99:f}," in str(Ellipsoid(1e99, 1, 1, 90, 0, 0))
