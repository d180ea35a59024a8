// SPDX-License-Identifier: MIT
#pragma once

// Cheap realisations from one expensive field: it is frozen on a coarse grid once, and each seed
// only turns that grid.

#include <cstdint>
#include <vector>

#include "common/location.hpp"
#include "simulation/simulators.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// A generator whose realisations are turned views of one frozen field, which they share: a view
/// stays valid without its generator.
///
/// The base simulator is evaluated in parallel at n_base_simulation_points cells along each axis of
/// the corners' box, in the space of `ellipsoid`. A seed draws azimuth, dip and rake in
/// [-180, 180). A view at p is the value of the cell that the ellipsoid and then the rotation, both
/// about the origin, carry p to. Outside the box the field repeats itself, so that a location far
/// from the origin has a value of the same distribution as any other.
///
/// Throws std::invalid_argument where corners are empty or not finite, the number of points is
/// below 1, or the grid does not fit in memory.
SimulatorGenerator create_simulator_generator(const Ellipsoid& ellipsoid,
                                              const location_list& corners,
                                              const SpatialFunction& base_simulator,
                                              int n_base_simulation_points, int n_threads = 0);

/// The sum of the realisations of several generators: an engine of the seed gives each one, in
/// order, the seed of its own.
SimulatorGenerator create_simulator_generator(const std::vector<SimulatorGenerator>& generators);

/// A generator whose realisations are mixtures of the same simulators, with random weights whose
/// squares add up to 1: of independent fields each mixture has the variance of one. 0 without
/// simulators.
SimulatorGenerator create_simulator_pool(const std::vector<SpatialFunction>& simulators);

/// Generators from turning bands and from Fourier integrals, for one structure and for a model,
/// each structure of which is turned by itself (an engine of the seed gives each one the seed of
/// its field; nuggets are white noise). The frozen box is the structure's corners in isotropic
/// space, enlarged so that it can be turned.
SimulatorGenerator create_tbsim_simulator_generator(const location_list& corners,
                                                    const Covariance& cov, std::int64_t seed,
                                                    int n_lines, int n_threads,
                                                    int n_base_simulation_points);
SimulatorGenerator create_tbsim_simulator_generator(const location_list& corners,
                                                    const std::vector<Covariance>& covs,
                                                    std::int64_t seed, int n_lines, int n_threads,
                                                    int n_base_simulation_points);
SimulatorGenerator create_fim_simulator_generator(const location_list& corners,
                                                  const Covariance& cov, std::int64_t seed, int nx,
                                                  int ny, int nz, int n_threads,
                                                  int n_base_simulation_points);
SimulatorGenerator create_fim_simulator_generator(const location_list& corners,
                                                  const std::vector<Covariance>& covs,
                                                  std::int64_t seed, int nx, int ny, int nz,
                                                  int n_threads, int n_base_simulation_points);

}  // namespace gravelox
