// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the variography family.

namespace gravelox::docs {

constexpr const char* experimental_variogram = R"(
A cloud of lags with their semivariances and pair counts, grouped by direction.

Lags are sample points of lag space, not the centres of regular bins. The object does not change,
and everything that it returns is a copy.

Examples
--------
>>> import gravelox
>>> variogram = gravelox.ExperimentalVariogram(
...     [(1, 0, 0), (0, 1, 0), (2, 0, 0)], [0.5, 0.7, 0.9], [40, 30, 20], [0, 1, 0],
...     [(1, 0, 0), (0, 1, 0)])
>>> lags, values, npairs = variogram.get_variogram(90, 0)
>>> values, npairs
([0.5, 0.9], [40, 20])
)";

constexpr const char* experimental_variogram_init = R"(
Make a variogram from its lags.

Parameters
----------
lags : array_like of shape (n, 3)
    Lag vectors, in metres or another length unit.
variogram : list of float of length n
    Semivariances, in data units squared.
npairs : list of int of length n
    Pair counts.
direction_id : list of int of length n
    The position of each lag's direction in `directions`.
directions : array_like of shape (m, 3)
    Unit vectors.

Raises
------
ValueError
    If lists differ in length or an id is out of range.
)";

constexpr const char* lags_by_dir = R"(
Positions of the lags of each direction.

Returns
-------
list of list of int
    One list for each direction, ascending; empty for a direction without lags.
)";

constexpr const char* lags = R"(
Lag vectors.

Returns
-------
list of numpy.ndarray of shape (3,)
    In metres or another length unit, in the order of positions.
)";

constexpr const char* variogram = R"(
Semivariances.

Returns
-------
list of float
    One for each lag, in data units squared.
)";

constexpr const char* npairs = R"(
Pair counts.

Returns
-------
list of int
    One for each lag.
)";

constexpr const char* direction_ids = R"(
The direction of each lag.

Returns
-------
list of int
    Positions in `directions()`.
)";

constexpr const char* variogram_directions = R"(
All directions, those without lags too.

Returns
-------
list of numpy.ndarray of shape (3,)
    Unit vectors.
)";

constexpr const char* get_variogram_by_angles = R"(
Lags of the direction nearest to an azimuth and dip.

Parameters
----------
azimuth : float
    Degrees clockwise from north.
dip : float
    Degrees, positive upward.

Returns
-------
lags : list of numpy.ndarray of shape (3,)
    Lag vectors, in the order of positions (by length, where the module made the variogram).
variogram : list of float
    Semivariances, in data units squared.
npairs : list of int
    Pair counts.

Notes
-----
Of the directions that have lags. Opposite directions are two. Three empty lists where there is
none.
)";

constexpr const char* get_variogram_by_vector = R"(
Lags of the direction nearest to a vector.

Parameters
----------
dir : array_like of shape (3,)
    A vector of any length; for one of length 0 the lists are empty.

Returns
-------
lags : list of numpy.ndarray of shape (3,)
    Lag vectors, in the order of positions (by length, where the module made the variogram).
variogram : list of float
    Semivariances, in data units squared.
npairs : list of int
    Pair counts.

Notes
-----
Of the directions that have lags. Opposite directions are two. Three empty lists where there is
none.
)";

constexpr const char* get_variogram_by_direction_id = R"(
Lags of a direction.

Parameters
----------
direction_id : int
    A position in `directions()`.

Returns
-------
lags : list of numpy.ndarray of shape (3,)
    Lag vectors, in the order of positions (by length, where the module made the variogram).
variogram : list of float
    Semivariances, in data units squared.
npairs : list of int
    Pair counts.

Raises
------
ValueError
    If the id is out of range.
)";

constexpr const char* variogram_computer = R"(
Variogram of a covariance model, rescaled to the variance of the data.

The value at a lag h is (1 - C(h) / C(0)) `data_var`, so the sills of the model tell proportions
only.

Parameters
----------
cov : list of Covariance
    The covariance model.
data_var : float
    Variance of the data, in data units squared: the sill of the variogram.

Returns
-------
SpatialFunction
    To be called with lag vectors.

Raises
------
ValueError
    If the model is empty or its sills add up to 0.

Examples
--------
>>> import gravelox
>>> model = [gravelox.Covariance.spherical(1.0, gravelox.Ellipsoid(10, 10, 10, 90, 0, 0))]
>>> variogram = gravelox.variogram_computer(model, 4.0)
>>> variogram((0, 0, 0)), variogram((5, 0, 0)), variogram((20, 0, 0))
(0.0, 2.75, 4.0)
)";

constexpr const char* compute_variogram_of_locations = R"(
Experimental variogram of values that lie on a grid, from the variogram map of a working grid.

Locations are laid over a working grid of `nx` x `ny` x `nz` cells, whose semivariances at all lags
come from Fourier transforms, whatever the number of pairs. Cells without a value are missing. Lags
are random: 2 `n_directions` random directions, always the same ones, with `n_lags` half-normal
lengths on each, in units of the grid's extent. Each lag is the mean, weighted by pairs, of the map
cells near it, up to half the grid away.

Parameters
----------
corners : array_like of shape (m, 3)
    Points whose box in the rotated frame is the extent of the working grid.
locations : array_like of shape (n, 3)
    Where the values are, in metres or another length unit; those outside the grid are left out.
data : sequence of float of length n
    Values in data units, NaN where missing. Of several in one cell the last one counts.
nx, ny, nz : int
    Cells of the working grid, at least 1 each.
n_directions : int
    Half the number of directions.
n_lags : int
    Lags drawn for each direction; those without pairs are left out.
bandwidth : float
    How far a lag reaches for map cells, in diagonals of a cell as a share of the grid. About 1 for a
    grid of cubes; an axis of one cell makes the diagonal as long as the grid, and calls for about
    1 / `nx`.
n_threads : int
    Threads; 0 means all. The result does not depend on it. The Fourier transforms run on as many as
    `set_fft_n_threads` says, which may change the last digits.
seed : int
    Seed of the lengths.
origin : array_like of shape (3,)
    Low corner of the working grid.
rotation : array_like of shape (3,)
    Azimuth, dip and rake of the working grid, in degrees.

Returns
-------
ExperimentalVariogram
    The lags that have pairs. A pair counts at its lag and at the opposite one. Directions are drawn
    where the working grid is a unit cube: on one that is turned or has unequal sides lags do not
    point along `directions()`.

Raises
------
ValueError
    If a size is below 1, a count negative, `corners` empty, a coordinate not finite, a value
    infinite, or `data` of another length than `locations`.

References
----------
Marcotte, D. (1996). Fast variogram computation with FFT. Computers & Geosciences 22, 1175-1186.
)";

constexpr const char* compute_variogram_of_grid = R"(
Experimental variogram of the cells of a grid, from the variogram map of a working grid.

The working grid spans the cells' locations, which are their low corners: it is shorter than the
grid by a cell along each axis, and the last cells fall outside it. With as many working cells as
the grid has along each axis all other cells stand apart; lags then come in steps a little shorter
than a cell. To keep every cell in its place use the form with locations: a working grid that begins
half a cell before the first location and ends half a cell behind the last, so that none stands on
the border of two working cells, where rounding decides.

Parameters
----------
cartesian_grid : CartesianGrid
    The grid.
data : sequence of float of length n
    A value for each cell in the order of ids, NaN where missing.
n_directions : int
    Half the number of directions.
n_lags : int
    Lags drawn for each direction; those without pairs are left out.
bandwidth : float
    How far a lag reaches for map cells, in diagonals of a cell as a share of the grid. About 1 for a
    grid of cubes; an axis of one cell makes the diagonal as long as the grid, and calls for about
    1 / `nx`.
n_threads : int
    Threads; 0 means all. The result does not depend on it. The Fourier transforms run on as many as
    `set_fft_n_threads` says, which may change the last digits.
seed : int
    Seed of the lengths.
nx, ny, nz : int
    Cells of the working grid, at least 1 each.

Returns
-------
ExperimentalVariogram
    The lags that have pairs. A pair counts at its lag and at the opposite one. Directions are drawn
    where the working grid is a unit cube: on one that is turned or has unequal sides lags do not
    point along `directions()`.

Raises
------
ValueError
    If a size is below 1, a count negative, a value infinite, or `data` not one for each cell.

Examples
--------
A field of stripes along y, constant over 4 cells along x:

>>> import gravelox
>>> grid = gravelox.CartesianGrid((33, 33, 1), (33, 33, 1))
>>> stripes = [float(grid.ijk(i)[0] // 4 % 2) for i in range(len(grid))]
>>> variogram = gravelox.compute_variogram(grid, stripes, 100, 50, 0.03, nx=32, ny=32, nz=1)
>>> along, across = (variogram.get_variogram(azimuth, 0)[1] for azimuth in (0, 90))
>>> sum(across) / len(across) > 2 * sum(along) / len(along)
True
)";

constexpr const char* compute_variogram_of_blocks = R"(
Experimental variogram of the active blocks of a model, from the variogram map of a working grid.

It is that of the base grid with the other cells missing.

Parameters
----------
block_model : BlockModel
    The blocks.
data : sequence of float of length n
    A value for each active block in the order of positions, NaN where missing.
n_directions : int
    Half the number of directions.
n_lags : int
    Lags drawn for each direction; those without pairs are left out.
bandwidth : float
    How far a lag reaches for map cells, in diagonals of a cell as a share of the grid. About 1 for a
    grid of cubes; an axis of one cell makes the diagonal as long as the grid, and calls for about
    1 / `nx`.
n_threads : int
    Threads; 0 means all. The result does not depend on it. The Fourier transforms run on as many as
    `set_fft_n_threads` says, which may change the last digits.
seed : int
    Seed of the lengths.
nx, ny, nz : int
    Cells of the working grid, at least 1 each.

Returns
-------
ExperimentalVariogram
    The lags that have pairs. A pair counts at its lag and at the opposite one. Directions are drawn
    where the working grid is a unit cube: on one that is turned or has unequal sides lags do not
    point along `directions()`.

Raises
------
ValueError
    If a size is below 1, a count negative, a value infinite, or `data` not one for each block.
)";

constexpr const char* compute_exp_variogram = R"(
Experimental variogram of scattered samples, from pairs around chosen centres.

Along each of 2 `n_directions` random directions lies a narrow search ellipsoid, three times as long
as the samples' extent that way to each side. The neighbours of each centre in it form the pairs,
and those whose lag is close to the direction count. Lags are random too: half-normal lengths in
units of the extent.

A pair counts once for each centre that sees it, so pair counts tell weights rather than distinct
pairs. The interpreter lock is released.

Parameters
----------
data_locs : array_like of shape (n, 3)
    Locations of the samples, in metres or another length unit.
data_values : sequence of float of length n
    Values of the samples, in data units.
n_centers : int
    Number of centres: the sample of the highest value, and others drawn from the highest values.
    From n - 1 on every sample is a centre.
angle_tol : float
    Greatest angle between a pair's lag and the direction, in degrees.
n_lags : int
    Lags drawn for each direction; those without pairs are left out.
lag_tol : float
    Least length of a lag, as a share of the samples' extent that way.
bandwidth : float
    Half-width of the search ellipsoid, as a share of the samples' extent; not 0.
window_size : int
    A pair goes to the first lag not shorter than its own and to this many on either side; with 0
    each pair counts for one lag.
n_directions : int
    Half the number of directions.
tol : float
    How far the random vector that turns a search ellipsoid about its direction has to be from
    parallel to it (1 less the cosine of their angle). From 1 on no vector is.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Accepted and not used: all draws start from one fixed seed.

Returns
-------
ExperimentalVariogram
    The lags that have pairs, and all directions. Without samples there are no lags.

Raises
------
ValueError
    If lists differ in length, a number is not finite, a count is negative, `bandwidth` is 0, or no
    random vector meets `tol`.

Examples
--------
Values that change along x only:

>>> import gravelox
>>> import numpy as np
>>> locations = np.random.RandomState(1).uniform(0, 100, (400, 3))
>>> values = np.sin(locations[:, 0] / 10)
>>> variogram = gravelox.compute_exp_variogram(locations, values, bandwidth=0.1, angle_tol=20)
>>> mean = lambda azimuth: np.mean(variogram.get_variogram(azimuth, 0)[1])
>>> bool(mean(90) > 2 * mean(0))
True
)";

constexpr const char* smooth_variogram = R"(
Resample a noisy variogram at new lags along the same directions.

Each new lag is a mean of old lags near it, weighted by pair count and by distance^-`power_a`. The
new lengths are half-normal: |z| times the direction's greatest lag, plus 0.02 `max_r`. The
interpreter lock is released.

Parameters
----------
vario : ExperimentalVariogram
    The variogram to smooth.
n_lags : int
    New lags for each direction; below 1 as many as the direction has. Those left without pairs are
    dropped.
max_n_neis : int
    Old lags that count: this many nearest; below 1 all within `max_r`.
max_r : float
    Greatest distance of an old lag, in length units.
bandwidth : float
    Greatest distance of an old lag from the line through the new one along its direction; may be
    infinite.
power_a : float
    Exponent of the distance.
max_weight : float
    Share of old lags that lie on the new one (nearer than 1e-30), where there are others too.
sampling_size : int
    Words taken from the engine before the lengths are drawn: another number gives other lags.
n_threads : int
    Threads; 0 means all. The result does not depend on it.
seed : int
    Seed of the lengths.

Returns
-------
ExperimentalVariogram
    The new lags with pair counts above 0 (means of the old counts, cut to whole numbers), and the
    directions of `vario`.

Raises
------
RuntimeError
    "No lags found" if all new lags stay empty, "No lags..." if there are none to fill.
ValueError
    If `vario` has no lags to take words for, `sampling_size` is negative, or a number is not finite.

Examples
--------
>>> import gravelox
>>> lags = [(float(i), 0, 0) for i in range(1, 21)]
>>> noisy = [i / 20 + 0.2 * (-1) ** i for i in range(1, 21)]
>>> variogram = gravelox.ExperimentalVariogram(lags, noisy, [50] * 20, [0] * 20, [(1, 0, 0)])
>>> smooth = gravelox.smooth_variogram(variogram, 30, 0, 4.0, 1.0, 0.5, 0.5, 10)
>>> residuals = [value - lag[0] / 20 for lag, value in zip(smooth.lags(), smooth.variogram())]
>>> bool(max(map(abs, residuals)) < 0.2)
True
)";

}  // namespace gravelox::docs
