"""What goes in and out: forms of points and lists, numpy scalars, copies."""

import gravelox
import numpy as np
import pytest

echo = gravelox.Ellipsoid(np.eye(3)).forward  # gives back what it was given, one point or a list
POINT = [1.0, 2.0, 3.0]
COLUMN = np.array(POINT).reshape(3, 1)
TABLE = np.arange(12.0).reshape(4, 3)
WIDE = np.arange(48.0).reshape(8, 6)
UNALIGNED = np.frombuffer(b"x" + TABLE.tobytes(), np.uint8)[1:].view(np.float64).reshape(4, 3)
TYPES = (np.float32, np.int64, np.uint8, np.longdouble, ">f8", object)

POINTS = [POINT, (1, 2, 3), [1, np.float32(2), np.int8(3)], [[1], [2], [3]], np.array(POINT)]
POINTS += [COLUMN, COLUMN[::-1][::-1], np.array([3.0, 9.0, 2.0, 9.0, 1.0])[::-2]]
POINTS += [array.astype(t) for t in TYPES for array in (COLUMN, COLUMN[:, 0])]

LISTS = [TABLE, TABLE[:1], TABLE[:3], TABLE[:0], np.empty((0, 3), np.int32), [], ()]
LISTS += [np.asfortranarray(TABLE), WIDE[::2, :3], WIDE[::-1, 1::2], TABLE[:, ::-1], UNALIGNED]
LISTS += [np.broadcast_to(POINT, (5, 3)), TABLE.reshape(4, 3, 1), *(TABLE.astype(t) for t in TYPES)]
LISTS += [TABLE.tolist(), list(map(tuple, TABLE)), list(TABLE[:3]), tuple(WIDE[:, ::2]), POINTS]
LISTS += [list(TABLE.astype(np.float32)), list(TABLE[:3].astype(">f8"))]

NO_LISTS = [POINT, np.array(POINT), COLUMN, np.ones((3, 2)), np.ones((2, 4)), np.ones((2, 1, 3))]
NO_LISTS += [[POINT, [1, 2]], [POINT, [1, 2, 3, 4]], [POINT, None], [POINT, "abc"], "abc", b"abc"]
NO_LISTS += [np.array(5.0), 5, None, {1: POINT}, iter([POINT]), np.array([["a", "b", "c"]])]


@pytest.mark.parametrize("form", POINTS, ids=repr)
def test_forms_of_a_point(form):
    result = echo(form)
    assert (result.shape, result.dtype, result.tolist()) == ((3,), np.float64, POINT)


@pytest.mark.parametrize("form", LISTS, ids=str)
def test_forms_of_a_list_of_points(form):
    expected = np.array([np.ravel(row) for row in form], float).reshape(-1, 3)
    for result in (echo(form), gravelox.BoundingBox(form).corners()):
        assert isinstance(result, list)
        assert {(p.shape, p.dtype) for p in result} <= {((3,), np.dtype(float))}
        np.testing.assert_array_equal(np.reshape(result, (-1, 3)), expected)


@pytest.mark.parametrize("form", NO_LISTS, ids=repr)
def test_no_list_of_points(form):
    with pytest.raises(TypeError, match="incompatible constructor arguments"):
        gravelox.Neighborhood(form)


@pytest.mark.parametrize("form", [[1, 2], [1, 2, 3, 4], np.ones((1, 3)), np.ones(2), "abc", None])
def test_no_point(form):
    with pytest.raises(TypeError, match="incompatible constructor arguments"):
        gravelox.CartesianGrid((1, 1, 1), (2, 2, 2), form)


def echo_numbers(data):
    """Gives back a list of floats: with one neighbour each sample estimates itself."""
    return gravelox.IDW(max_neighbors=1)(TABLE, gravelox.Neighborhood(TABLE), TABLE, data)


def test_forms_of_a_list_of_numbers():
    numbers = np.array([3.0, 1.0, 2.0, 5.0])
    forms = [numbers, np.repeat(numbers, 3)[::3], numbers[::-1].copy()[::-1], numbers.tolist()]
    for form in (*forms, *map(numbers.astype, TYPES), (3, 1.0, np.int8(2), np.float16(5))):
        assert echo_numbers(form) == numbers.tolist()
    for form in ("3125", [3, 1, 2, None], [3, 1, 2, "5"], numbers.reshape(2, 2), {3, 1, 2, 5}, 3.0):
        with pytest.raises(TypeError):
            echo_numbers(form)


def test_whole_numbers_have_32_bits():
    hardware = gravelox.check_n_threads()
    for n in (0, hardware + 1, 2**31 - 1, -(2**31), np.int64(2**31 - 1), np.int8(-1)):
        assert gravelox.check_n_threads(n) == hardware
    assert [gravelox.check_n_threads(one) for one in (1, np.uint64(1), np.True_)] == [1, 1, 1]
    for n in (2**31, -(2**31) - 1, 2**64, np.int64(2**32), np.uint64(2**64 - 1), 1.0, "1"):
        with pytest.raises(TypeError):
            gravelox.check_n_threads(n)
        for dhids in ([0, n], np.array([n])):
            with pytest.raises(TypeError):
                gravelox.IDW(dhids=dhids)


@pytest.mark.parametrize("hood_type", [gravelox.Neighborhood, gravelox.DynamicNeighborhood])
def test_a_whole_number_counts_and_a_float_is_a_radius(hood_type):
    find = hood_type([(2 * i, 0, 0) for i in range(9)]).find_neighbors
    for t in (int, np.int8, np.uint16, np.int32, np.int64, np.uint64, np.array):
        assert find((0, 0, 0), t(5)) == [0, 1, 2, 3, 4]
        assert sorted(find((0, 0, 0), max_radius=t(5))) == [0, 1, 2]
    for t in (float, np.float16, np.float32, np.float64, np.longdouble):
        assert sorted(find((0, 0, 0), t(5))) == [0, 1, 2]
        with pytest.raises(TypeError):
            find((0, 0, 0), max_size=t(5))


def test_counts_and_sizes_of_a_grid():
    steps = np.array([2, 3, 4])
    for counts in ((2, 3, 4), steps, steps.astype(np.int8), (np.int32(2), np.uint8(3), 4)):
        assert gravelox.CartesianGrid((12, 12, 12), counts).number_of_cells() == (2, 3, 4)
    for sizes in ((2.0, 3.0, 4.0), steps.astype(np.float32), tuple(np.float32([2, 3, 4]))):
        assert gravelox.CartesianGrid((12, 12, 12), sizes).number_of_cells() == (6, 4, 3)
    assert gravelox.CartesianGrid((2, 3, 4), steps.astype(float)).number_of_cells() == (2, 3, 4)


def test_results_and_arguments_are_copied():
    grid = gravelox.CartesianGrid((10, 20, 30), (2, 2, 2), (1, 2, 3))
    blocks, box, unit = gravelox.BlockModel(grid, [True] * 8), grid.bounding_box(), echo.__self__
    getters = [unit.matrix, unit.inv_matrix, grid.cell_size, blocks.cell_size, box.lower, box.upper]
    getters += [box.length, lambda: grid.corners()[3], lambda: box.corners()[3]]
    for get in getters:
        result, before = get(), get().copy()
        result[...] = -99.0
        np.testing.assert_array_equal(get(), before)
    points = TABLE.copy()
    hood = gravelox.Neighborhood(points)
    points[:] = points[::-1].copy()
    assert hood.nearest_neighbor(TABLE[0]) == 0


class Thief:
    """Empties a list as soon as it is converted itself."""

    def __init__(self, victim):
        self.victim = victim

    def __float__(self):
        self.victim.clear()
        return 1.0


def test_lists_that_change_while_they_are_read():
    numbers, points = [3.0] * 99, [POINT] * 99
    numbers.insert(1, Thief(numbers))
    points.insert(1, [1.0, Thief(points), 3.0])
    for read, victim in ((echo_numbers, numbers), (gravelox.Neighborhood, points)):
        with pytest.raises(TypeError):
            read(victim)
        assert victim == []


class Column:
    """A column of a table, or a table of columns: looked up by label, read by position."""

    def __init__(self, values):
        self.values = values

    def __len__(self):
        return len(self.values)

    def __getitem__(self, label):
        return self.values[-1 - label]

    def __iter__(self):
        return iter(self.values if np.ndim(self.values) == 1 else "xyz")

    def __array__(self, dtype=None, copy=None):
        return np.array(self.values, dtype)


def test_columns_of_tables_go_by_position():
    hood = gravelox.Neighborhood(Column(TABLE))
    assert [hood.nearest_neighbor(point) for point in TABLE] == [*range(len(TABLE))]
    numbers = list(map(float, range(len(TABLE))))
    assert gravelox.IDW(max_neighbors=1)(TABLE, hood, TABLE, Column(numbers)) == numbers
