"""Grids, block models and boxes."""

import itertools

import gravelox
import numpy as np
import pytest
from hypothesis import given
from hypothesis import strategies as st
from numpy.testing import assert_allclose, assert_array_equal
from oracles import spatial

triples = st.tuples(*[st.floats(-500.0, 500.0)] * 3)
lengths = st.tuples(*[st.floats(0.1, 1000.0)] * 3)
counts = st.tuples(*[st.integers(1, 5)] * 3)


@given(lengths, counts, triples, triples)
def test_cells(length, n, origin, rotation):
    grid = gravelox.CartesianGrid(length, n, origin, rotation)
    cells = np.array(list(itertools.product(*map(range, n))))
    axes = np.reshape(length, (3, 1)) * spatial.rotation(*rotation)
    locations = cells / n @ axes + origin
    assert_allclose(grid.locations(), locations, rtol=0, atol=1e-9)
    assert_allclose(grid.cell_size(), np.reciprocal(np.array(n, float)) @ axes, rtol=0, atol=1e-9)
    assert_allclose(grid.transformation().forward(locations - origin), cells / n, atol=1e-9)
    assert (len(grid), grid.number_of_cells()) == (len(cells), n)
    for i, cell in enumerate(cells.tolist()):
        assert (grid.ijk(i), grid.index(*cell)) == (tuple(cell), i)
        assert_array_equal([grid(i), grid(*cell)], [grid.locations()[i]] * 2)
    corners = [grid(*cell) for cell in itertools.product(*[(0, size - 1) for size in n])]
    assert_array_equal([grid.corners(), grid.bounding_box().corners()], [corners] * 2)


def test_counts_from_sizes_truncate():
    grid = gravelox.CartesianGrid((0.3, 1.0, 7.9), cell_size=(0.1, 0.25, 2.0))
    assert grid.number_of_cells() == (2, 4, 3)
    assert_allclose(grid(1, 1, 1), (0.15, 0.25, 7.9 / 3))
    for n, size in itertools.product(range(1, 200), (0.1, 0.7, 1 / 3, 2.3)):
        count = int(n * size / size)  # for some of these it is below n
        grid = gravelox.CartesianGrid(number_of_cells=(n, 1, 1), cell_size=(size, 1, 1))
        assert grid.number_of_cells() == (count, 1, 1)
        assert grid.cell_size()[0] == pytest.approx(n * size / count, rel=1e-14)


def test_block_model(rng):
    grid = gravelox.CartesianGrid((10, 20, 30), (3, 4, 5), (7, 8, 9), (20, 10, 5))
    mask = rng.random(60) < 0.4
    blocks = gravelox.BlockModel(grid, mask.tolist())
    assert (len(blocks), blocks.full_size()) == (mask.sum(), 60)
    for position, i in enumerate(np.flatnonzero(mask).tolist()):
        found = [blocks(position), blocks(*grid.ijk(i)), blocks.locations()[position]]
        assert_array_equal(found, [grid(i)] * 3)
        assert blocks.ijk(position) == grid.ijk(i)
    for i in np.flatnonzero(~mask).tolist():
        with pytest.raises(RuntimeError, match=r"^invalid index$"):
            blocks(*grid.ijk(i))
    for model in (blocks, blocks.base_grid()):
        assert model.number_of_cells() == (3, 4, 5)
        assert_array_equal(model.cell_size(), grid.cell_size())
        assert_array_equal(model.bounding_box().corners(), grid.corners())


@given(st.lists(triples, max_size=8))
def test_bounding_box(points):
    box, array = gravelox.BoundingBox(points), np.reshape(points, (-1, 3))
    low, high = array.min(axis=0, initial=1e30), array.max(axis=0, initial=-1e30)
    assert_array_equal([box.lower(), box.upper()], [low, high])
    assert_array_equal(box.length(), np.maximum(high - low, 0))
