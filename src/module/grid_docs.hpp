// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the grid family.

namespace gravelox::docs {

constexpr const char* grid = R"(
A regular grid, which may be rotated.

Cells are counted k fastest, then j, then i. The location of a cell is its low corner, and cell
(0, 0, 0) stands at the origin. With the default rotation (90, 0, 0) i, j and k run along x, y and
z; an azimuth of 0 lets i run north and j west.

Examples
--------
>>> import gravelox
>>> grid = gravelox.CartesianGrid((10, 10, 10), (2, 2, 2))
>>> len(grid), grid.ijk(7), grid(1, 1, 1).tolist()
(8, (1, 1, 1), [5.0, 5.0, 5.0])
)";

constexpr const char* grid_from_counts = R"(
A grid from its lengths and numbers of cells.

Three whole numbers in second place are counts, also where sizes are meant: for those give the
argument its name, `cell_size=(10, 10, 5)`.

Parameters
----------
length : array_like of shape (3,)
    Lengths along i, j, k, in length units. One that is not above 1e-30 counts as 1.
number_of_cells : tuple of three int
    Cells along i, j, k, each at least 1.
origin : array_like of shape (3,)
    Location of cell (0, 0, 0).
rotation : array_like of shape (3,)
    Azimuth, dip and rake in degrees.

Raises
------
ValueError
    If a count is below 1 or there are more than 2147483647 cells.
)";

constexpr const char* grid_from_cell_size = R"(
A grid from its lengths and cell sizes; name `cell_size` where the sizes are whole numbers.

Parameters
----------
length : array_like of shape (3,)
    Lengths along i, j, k, in length units. One that is not above 1e-30 counts as 1.
cell_size : array_like of shape (3,)
    Sizes of a cell along i, j, k. The counts are the whole parts of length / cell_size, as
    doubles have it: 0.3 / 0.1 gives 2 cells.
origin : array_like of shape (3,)
    Location of cell (0, 0, 0).
rotation : array_like of shape (3,)
    Azimuth, dip and rake in degrees.

Raises
------
ValueError
    If a count would be below 1 or there are more than 2147483647 cells.
)";

constexpr const char* grid_from_cells = R"(
A grid from its numbers and sizes of cells; give them by name.

Parameters
----------
number_of_cells : tuple of three int
    Cells along i, j, k, each at least 1. They are counted again from length and size, so rounding
    may give one fewer.
cell_size : array_like of shape (3,)
    Sizes of a cell along i, j, k, in length units.
origin : array_like of shape (3,)
    Location of cell (0, 0, 0).
rotation : array_like of shape (3,)
    Azimuth, dip and rake in degrees.

Raises
------
ValueError
    If a count is below 1 or there are more than 2147483647 cells.
)";

constexpr const char* grid_cell_size = R"(
The diagonal of a cell.

Returns
-------
ndarray of shape (3,)
    Length units; under a rotation in real coordinates, with their signs.
)";

constexpr const char* grid_locations = R"(
The locations of all cells.

Returns
-------
list of ndarray of shape (3,)
    In the order of the ids.
)";

constexpr const char* grid_len = R"(
The number of cells.

Returns
-------
int
    The product of the three counts.
)";

constexpr const char* grid_index = R"(
The id of a cell: (i ny + j) nz + k.

Parameters
----------
arg0, arg1, arg2 : int
    The indices i, j, k.

Returns
-------
int
    The id.

Raises
------
ValueError
    If an index lies outside the grid.
)";

constexpr const char* grid_call_indices = R"(
The location of a cell.

Parameters
----------
i, j, k : int
    The indices of the cell.

Returns
-------
ndarray of shape (3,)
    The low corner of the cell.

Raises
------
ValueError
    If an index lies outside the grid.
)";

constexpr const char* grid_call_id = R"(
The location of a cell by its id.

Parameters
----------
i : int
    The id of the cell.

Returns
-------
ndarray of shape (3,)
    The low corner of the cell.

Raises
------
ValueError
    If the id lies outside the grid.
)";

constexpr const char* grid_number_of_cells = R"(
The numbers of cells of the grid.

Returns
-------
tuple of three int
    Along i, j and k.
)";

constexpr const char* grid_ijk = R"(
The indices of a cell.

Parameters
----------
i : int
    The id of the cell.

Returns
-------
tuple of three int
    i, j and k.

Raises
------
ValueError
    If the id lies outside the grid.
)";

constexpr const char* grid_transformation = R"(
The map from real coordinates, relative to the origin, to the unit cube.

Returns
-------
Ellipsoid
    A copy.
)";

constexpr const char* grid_corners = R"(
The 8 outermost cell locations of the grid.

Returns
-------
list of ndarray of shape (3,)
    Low corners of cells, not the ends of the grid; k runs fastest.
)";

constexpr const char* grid_bounding_box = R"(
The axis-aligned box of the grid's corners.

Returns
-------
BoundingBox
    It holds all cell locations.
)";

constexpr const char* block_model = R"(
A grid with a mask of active cells.

Positions count the active cells by ascending id.

Examples
--------
>>> import gravelox
>>> grid = gravelox.CartesianGrid((10, 10, 10), (2, 2, 2))
>>> blocks = gravelox.BlockModel(grid, [False] * 7 + [True])
>>> len(blocks), blocks.full_size(), blocks(0).tolist()
(1, 8, [5.0, 5.0, 5.0])
)";

constexpr const char* block_model_init = R"(
A block model over a grid.

Parameters
----------
base_grid : CartesianGrid
    The grid; it is copied.
mask : sequence of bool
    One flag for each cell in the order of ids, True for an active one.

Raises
------
ValueError
    If `mask` has another length than the grid.
)";

constexpr const char* block_model_base_grid = R"(
The grid of the block model.

Returns
-------
CartesianGrid
    A copy.
)";

constexpr const char* block_model_locations = R"(
The locations of the active cells.

Returns
-------
list of ndarray of shape (3,)
    By ascending id.
)";

constexpr const char* block_model_len = R"(
The number of active cells.

Returns
-------
int
    The number of flags that are True.
)";

constexpr const char* block_model_full_size = R"(
The number of all cells of the grid.

Returns
-------
int
    Active and masked cells.
)";

constexpr const char* block_model_call_indices = R"(
The location of an active cell by its indices.

Parameters
----------
i, j, k : int
    The indices of the cell in the grid.

Returns
-------
ndarray of shape (3,)
    The low corner of the cell.

Raises
------
RuntimeError
    If the cell is masked.
ValueError
    If an index lies outside the grid.
)";

constexpr const char* block_model_call_position = R"(
The location of the active cell at a position.

Parameters
----------
i : int
    Position among the active cells, from 0.

Returns
-------
ndarray of shape (3,)
    The low corner of the cell.

Raises
------
ValueError
    If there is no such position.
)";

constexpr const char* block_model_ijk = R"(
The indices of the active cell at a position.

Parameters
----------
i : int
    Position among the active cells, from 0.

Returns
-------
tuple of three int
    i, j and k in the grid.

Raises
------
ValueError
    If there is no such position.
)";

constexpr const char* bounding_box = R"(
The axis-aligned box around a set of points.

Examples
--------
>>> import gravelox
>>> gravelox.BoundingBox([(0, 0, 0), (1, 2, 3)]).length().tolist()
[1.0, 2.0, 3.0]
)";

constexpr const char* bounding_box_init = R"(
The box of some points.

Parameters
----------
corners : array_like of shape (n, 3)
    The points. Without any the box is empty: lower is 1e30, upper -1e30 on each axis.
)";

constexpr const char* bounding_box_corners = R"(
The points that the box was made from.

Returns
-------
list of ndarray of shape (3,)
    In their order.
)";

constexpr const char* bounding_box_lower = R"(
The least coordinates of the box.

Returns
-------
ndarray of shape (3,)
    Length units.
)";

constexpr const char* bounding_box_upper = R"(
The greatest coordinates of the box.

Returns
-------
ndarray of shape (3,)
    Length units.
)";

constexpr const char* bounding_box_length = R"(
The extents of the box.

Returns
-------
ndarray of shape (3,)
    Per axis the greatest distance between two of the points, 0 without points.
)";

constexpr const char* drillholes_in_box = R"(
Synthetic drill holes inside a box.

A hole runs straight from a collar at the level of `top` towards a foot at the level of `bottom`,
both uniform in plan. Hole ids start at 1.

Parameters
----------
bottom, top : array_like of shape (3,)
    Two opposite corners of the box, in length units.
n_samples_by_dh : int
    Samples in a hole, at equal steps, the first at the collar.
min_len, max_len : float
    Bounds of the share of the run from collar to foot that is sampled (1 is all of it).
n_drillholes : int
    Number of holes; below 1 there are none.
seed : int
    Seed of all draws.

Returns
-------
locations : list of ndarray of shape (3,)
    Sample locations, hole by hole.
dhids : list of int
    The hole id of each sample.

Examples
--------
>>> import gravelox
>>> locations, dhids = gravelox.create_random_drillholes(
...     bottom=(0, 0, -100), top=(500, 500, 0), n_samples_by_dh=10, min_len=0.5, max_len=1,
...     n_drillholes=3)
>>> len(locations), sorted(set(dhids))
(30, [1, 2, 3])
)";

constexpr const char* drillholes_of_campaign = R"(
Synthetic drill holes of a campaign over a rectangle. Hole ids start at 0.

Parameters
----------
l1, l2 : float
    Extents of the collars in x and y, from 0, in length units.
n_drillholes : int
    Number of holes; below 1 there are none.
min_azimuth, max_azimuth : float
    Bounds of the holes' azimuth, in degrees.
min_dip, max_dip : float
    Bounds of the holes' dip, in degrees, positive upward.
min_length, max_length : float
    Bounds of the holes' length, in length units.
min_dist_to_bottom, max_dist_to_bottom : float
    Collars stand at a z from the first to the sum of both.
min_n_samples_by_dh, max_n_samples_by_dh : int
    Bounds of the number of samples in a hole; the draw between them is truncated.
deformation : Ellipsoid
    Its backward map is applied to the samples. The default turns the holes by 90 degrees about
    z; `Ellipsoid(1, 1, 1, 90, 0, 0)` leaves them where they are.
seed : int
    Seed of all draws.

Returns
-------
locations : list of ndarray of shape (3,)
    Sample locations, hole by hole.
dhids : list of int
    The hole id of each sample.
)";

}  // namespace gravelox::docs
