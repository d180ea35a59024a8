// SPDX-License-Identifier: MIT
#pragma once

// Experimental variograms of scattered samples, from pairs in narrow cones around chosen centres.

#include <cstdint>
#include <vector>

#include "common/location.hpp"
#include "variography/experimental_variogram.hpp"

namespace gravelox {

/// The variogram of samples along 2 n_directions random directions.
///
/// Along each direction lies a search ellipsoid of half-length 3 s and half-width bandwidth s, s
/// being the extent of the samples that way. Pairs are those of the neighbours of each centre
/// (Neighborhood, radius 1.01) whose lag is within angle_tol degrees of the direction; two samples
/// at one place have no angle, and count. A pair goes to the first of the n_lags random lengths,
/// |z| s + lag_tol s with z standard normal, that is not below its own, and to window_size lengths
/// on each side (none for a negative number). Around several centres a pair counts several times.
///
/// Centres are all samples where n_centers is at least their number less one. Otherwise the first
/// is the sample of the highest value; the others are drawn from the highest values, a quarter of
/// the samples more than n_centers, in which that first sample may turn up again.
///
/// `seed` is not used: all draws come from one engine of a fixed seed. Its words go to the extreme
/// points, to the directions, to an engine for each direction (which draws its frame, then its
/// lengths), and to the choice of centres. `tol` is how far from parallel to the direction (1 less
/// their cosine) the random vector has to be that turns the search ellipsoid about it.
///
/// The result does not depend on the number of threads. Costs a search tree a direction, and a
/// query for each centre and direction. No data give directions without lags. Throws
/// std::invalid_argument where lists differ in length, a number is not finite, a count is negative,
/// bandwidth is 0, or no random vector meets tol, as for any of 1 and above.
experimental_variogram compute_exp_variogram(const location_list& data_locs,
                                             const std::vector<double>& data_values,
                                             int n_centers = 60, double angle_tol = 5.0,
                                             int n_lags = 75, double lag_tol = 0.001,
                                             double bandwidth = 0.02, int window_size = 2,
                                             int n_directions = 300, double tol = 0.01,
                                             int n_threads = 0, std::int64_t seed = 12415);

}  // namespace gravelox
