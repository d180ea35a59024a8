// SPDX-License-Identifier: MIT
#pragma once

// Locally fitted fields, blended into one that is not stationary.

#include <cstdint>
#include <vector>

#include "common/location.hpp"
#include "simulation/simulators.hpp"
#include "spatial/ellipsoid.hpp"
#include "variography/local_covariances.hpp"

namespace gravelox {

/// At each location the sum of all simulators, one for each centre, with weights whose squares add
/// up to 1: f(1 / d) for the distance d to a centre times the error of its model, f being the power
/// function of power_a, as a share of their sum and under a square root. Centres within 1e-20 share
/// max_weight, and the others the rest; a location on centres with no other in sight gets 0. Sums
/// of weights up to 1e-10 count as none: the weights then stay as they are.
///
/// Costs every simulator at every location. Throws std::invalid_argument where the lists of
/// local_covs differ in length or are not one for each simulator.
std::vector<double> run_ensemble_simulation(const location_list& locs,
                                            const std::vector<SpatialFunction>& simulators,
                                            double max_weight, double power_a,
                                            const LocalCovariances& local_covs, int n_threads);

/// The same with simulators made by the factory: an engine of the seed gives each model, in order,
/// the seed of its own.
std::vector<double> unconditional_ensemble_simulation(const location_list& locs,
                                                      const LocalCovariances& local_covs,
                                                      const SimulatorFactory& simulator_factory,
                                                      double max_weight, double power_a,
                                                      std::int64_t seed, int n_threads);

/// The same as a function of the location.
SpatialFunction create_ensemble_simulator(const LocalCovariances& local_covs,
                                          const SimulatorFactory& sim_factory, double max_weight,
                                          double power_a, std::int64_t seed);

/// That function made to honour samples, as simulate does. What the samples differ from it by is
/// estimated by the same models (ensemble_estimation, simple kriging of mean 0 without
/// normalisation), with samples and centres searched under the search ellipsoid; NaN at a target
/// without samples.
///
/// Data are those of a Gaussian field of mean 0 with the sills of the models. Throws
/// std::invalid_argument where lists differ in length, or coordinates or the ellipsoid are not
/// finite, and what the factory throws.
std::vector<double> ensemble_simulation(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& search_ellipsoid, const SimulatorFactory& simulator_factory, int max_size,
    double max_distance, int max_cov_neis, int max_neis_octant, double power_a, double max_weight,
    std::int64_t seed, int n_threads = 0, const std::vector<int>& dhids = {},
    int max_neis_by_dhid = -1);

}  // namespace gravelox
