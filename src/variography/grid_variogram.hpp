// SPDX-License-Identifier: MIT
#pragma once

// Experimental variograms of gridded data, by way of the variogram map of a working grid.

#include <cstdint>
#include <vector>

#include "common/location.hpp"
#include "spatial/grid.hpp"
#include "variography/experimental_variogram.hpp"

namespace gravelox {

/// The variogram of values at locations that are laid over a working grid of nx x ny x nz cells.
///
/// The grid starts at `origin`, is turned by `rotation` and as long as the box of the corners in
/// the rotated frame. A location is put in the cell that it falls in; one outside is left out, and
/// of several in one cell the last one in the list counts. NaN values are missing.
///
/// Lags lie on 2 n_directions random directions (generate_random_sphere, always with seed 0),
/// n_lags on each, at half-normal lengths in units of the grid's: lags of a length above 1 leave
/// it. One engine of `seed` draws all of them, direction by direction, from one normal object; a
/// length below 1e-10 is drawn again. Each map cell up to half the grid away is folded into the
/// lags within `bandwidth` cell diagonals of it, as a mean weighted by pairs, in the order of the
/// cells; which lags these are is found by Neighborhood, and is no more exact. Lags with pairs are
/// kept; a pair counts at its lag and at the opposite one.
///
/// The Fourier transforms run on the threads of set_fft_n_threads, the rest on n_threads. Throws
/// std::invalid_argument where a size of the working grid is below 1, a count negative, corners are
/// empty, coordinates not finite, data infinite, or data and locations differ in number.
experimental_variogram compute_variogram(const location_list& corners,
                                         const location_list& locations,
                                         const std::vector<double>& data, int nx, int ny, int nz,
                                         int n_directions, int n_lags, double bandwidth,
                                         int n_threads = 0, std::int64_t seed = 12415,
                                         const location& origin = location::Zero(),
                                         const location& rotation = location(90.0, 0.0, 0.0));

/// The same for values at the cells of a grid, one each in the order of ids. The corners of a grid
/// are cell locations: the working grid is shorter than the grid by a cell on each axis, and the
/// last cells fall outside it.
experimental_variogram compute_variogram(const CartesianGrid& cartesian_grid,
                                         const std::vector<double>& data, int n_directions,
                                         int n_lags, double bandwidth, int n_threads = 0,
                                         std::int64_t seed = 12415, int nx = 200, int ny = 200,
                                         int nz = 200);

/// The same for the active cells of a block model; the others are missing.
experimental_variogram compute_variogram(const BlockModel& block_model,
                                         const std::vector<double>& data, int n_directions,
                                         int n_lags, double bandwidth, int n_threads = 0,
                                         std::int64_t seed = 12415, int nx = 200, int ny = 200,
                                         int nz = 200);

}  // namespace gravelox
