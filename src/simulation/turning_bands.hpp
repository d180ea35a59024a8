// SPDX-License-Identifier: MIT
#pragma once

// Turning bands: an unconditional Gaussian field as the sum of many one-dimensional processes, each
// along a line of its own through space. It can be evaluated anywhere and needs no grid.
//
// Corners are locations whose extent the lines cover; beyond it the last cell of a spherical or
// exponential line goes on in a straight line. Every function here throws std::invalid_argument
// where corners are needed and empty, or not finite.

#include <cstdint>
#include <vector>

#include "common/location.hpp"
#include "simulation/simulators.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// One line of a spherical structure: cells of unit length in isotropic space, each with a sawtooth
/// of unit variance and a random sign. The engine of the seed draws the origin, then a sign a cell.
/// A line of more than 10000 cells is given up and is white noise of the same amplitude.
SpatialFunction spherical_line_simulator(double amplitude, const location_list& corners,
                                         const location& direction, const Ellipsoid& ellipsoid,
                                         std::int64_t seed);

/// One line of an exponential structure: a spherical line whose unit is random, a gamma draw of
/// shape 3 or 2 and scale 1/3, or 1, in equal parts. One sign in six is negative.
SpatialFunction exponential_line_simulator(double amplitude, const location_list& corners,
                                           const location& direction, const Ellipsoid& ellipsoid,
                                           std::int64_t seed);

/// One line of a Gaussian structure: a cosine whose frequency has the spectral density of the
/// kernel. The engine of the seed draws three normals, then the phase.
SpatialFunction gaussian_line_simulator(double amplitude, const location& direction,
                                        const Ellipsoid& ellipsoid, std::int64_t seed);

/// A realisation of one structure by n_lines lines on random directions; 0 everywhere without
/// lines. The engine of the seed gives the seed of the directions, then that of each line. A
/// nugget, and any type without lines of its own, is a sum of white noises. A negative sill gives
/// NaN. Costs n_lines products and cosines or lookups an evaluation (Matheron, 1973; Lantuejoul,
/// 2002).
SpatialFunction create_tbsim_simulator(const location_list& corners, const Covariance& cov,
                                       std::int64_t seed, int n_lines = 600);

/// A realisation of a model, as simulate_structures sums it.
SpatialFunction create_tbsim_simulator(const location_list& corners,
                                       const std::vector<Covariance>& covs, std::int64_t seed,
                                       int n_lines = 600);

SimulatorFactory create_tbsim_factory(const location_list& corners, int n_lines = 600);

}  // namespace gravelox
