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
hundredths = st.integers(1, 10**5).map(lambda r: r / 100)
ranges = st.lists(hundredths, min_size=3, max_size=3, unique=True)
# A quarter of a degree off the whole ones, so that no axis stands at right angles to x, y or z.
angles = st.lists(st.integers(-720, 720).map(lambda a: a + 0.25), min_size=3, max_size=3)


def values(info):
    return [info.r1(), info.r2(), info.r3(), info.azimuth(), info.dip(), info.rake()]


def check_info(info, expected):
    assert_allclose(values(info)[:3], expected[:3], rtol=1e-12)
    turn = np.radians(np.subtract(values(info), expected)[3:])
    assert_allclose(np.exp(1j * turn), 1.0, atol=1e-9)
    assert 0.0 <= info.azimuth() < 360.0


@given(ranges, angles)
def test_matrix_inverse_and_readings(r, a):
    ellipsoid, expected = Ellipsoid(*r, *a), spatial.anisotropy(r, a)
    assert_allclose(ellipsoid.matrix(), expected, atol=1e-12 / min(r))
    assert_array_equal(ellipsoid.matrix(), Ellipsoid(r, a).matrix())
    assert_array_equal(gravelox.Rotation(*a).matrix(), Ellipsoid(1, 1, 1, *a).matrix())
    assert_allclose(gravelox.Direction(*a[:2]), expected[0] * r[0], atol=1e-12)
    # The rows are orthogonal, so the inverse has them as columns, scaled to length r.
    assert_allclose(ellipsoid.inv_matrix(), expected.T * np.square(r), atol=1e-11 * max(r))
    assert_allclose(ellipsoid.forward(ellipsoid.backward((3, -2, 1))), (3, -2, 1))
    check_info(ellipsoid.info(), spatial.ranges_and_angles(expected))
    axes = np.array([ellipsoid.major_axis(), ellipsoid.mid_axis(), ellipsoid.minor_axis()])
    lengths = sorted(r, reverse=True)
    assert_allclose(axes, spatial.sorted_rows(expected) * np.square(lengths)[:, None], atol=1e-8)


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


AXES = [((2, 2, 1), (90, 0, 0)), ((1, 1, 1), (90, 0, 0)), ((4, 1, 2), (60, 0, 0))]
AXES += [((4, 1, 2), (90, 30, 0)), ((1, 2, 4), (90, 0, 30))]


@pytest.mark.parametrize(("lengths", "turn"), AXES)
def test_axes_along_the_coordinates_and_in_their_planes(lengths, turn):
    signs = list(itertools.product((1.0, -1.0), repeat=3))
    for order, sign in itertools.product(itertools.permutations(range(3)), signs):
        matrix = spatial.rotation(*turn)[list(order)] * sign / np.reshape(lengths, (3, 1))
        rows = spatial.sorted_rows(matrix)
        assert_allclose(gravelox.sort_matrix3d(matrix), rows, atol=1e-15)
        # Sorting once more may turn the third axis: the reading is then another ellipsoid's.
        info = Ellipsoid(matrix).info()
        check_info(info, spatial.ranges_and_angles(rows))
        if np.linalg.det(spatial.sorted_rows(rows)) > 0:
            again = Ellipsoid(info).matrix()
            assert_allclose(again.T @ again, matrix.T @ matrix, atol=1e-14)


@pytest.mark.parametrize("dip", [90, -90])
def test_reading_of_a_vertical_axis(dip):
    vertical = Ellipsoid(10, 5, 2, 20, dip, 33)
    rows = gravelox.sort_matrix3d(vertical.matrix())
    check_info(vertical.info(), spatial.ranges_and_angles(rows))
    assert "rake: 0.000000} " in str(vertical)


def test_ranges_of_nothing_equal_ranges_and_turned_axes():
    tiny = Ellipsoid(-5, 4, 1e-30, 90, 0, 0)
    assert_array_equal(tiny.matrix(), spatial.anisotropy([1, 4, 1], [90, 0, 0]))
    assert_allclose(gravelox.Direction(60, 30), (0.75, 0.75**0.5 / 2, 0.5))
    check_info(Ellipsoid(1, 1, 1, 30, 40, 50).info(), (1, 1, 1, 30, 40, -50))
    check_info(Ellipsoid(10, 5, 2, 225, 0, 0).info(), (10, 5, 2, 45, 0, 0))
