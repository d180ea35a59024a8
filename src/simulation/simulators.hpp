// SPDX-License-Identifier: MIT
#pragma once

// The callables through which all simulators meet, and the simplest of them.
//
// A SpatialFunction is one realisation. A generator turns a seed into a realisation of a fixed
// model, a factory turns a model and a seed into one.

#include <cstdint>
#include <functional>
#include <vector>

#include "common/location.hpp"
#include "common/random.hpp"
#include "spatial/spatial_function.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

using SimulatorGenerator = std::function<SpatialFunction(std::int64_t seed)>;
using SimulatorFactory =
    std::function<SpatialFunction(const std::vector<Covariance>& covs, std::int64_t seed)>;

/// The sum of realisations, in order; 0 for an empty list.
SpatialFunction create_simulator(const std::vector<SpatialFunction>& simulators);

/// Throws std::invalid_argument where corners are empty or not finite, or are not finite any more
/// in the space of the structure's ellipsoid, and where that has no finite matrix.
void check_simulation(const location_list& corners, const Covariance& cov);

/// The same for corners alone.
void check_corners(const location_list& corners);

/// White noise: every evaluation is a fresh normal draw times the amplitude, whatever the location,
/// so two evaluations at one point differ.
///
/// A master engine of the seed seeds one engine for each thread that the machine has; an evaluation
/// draws from that of its thread's number in the parallel region, counted round where there are
/// more threads. Each engine is locked for its draw, so calls from elsewhere may come at the same
/// time; values then depend on who comes first. Runs repeat for equal numbers of threads.
SpatialFunction create_nugget_simulator(double amplitude, std::int64_t seed);

/// Makes one structure's part, of any kind, from its seed.
template <typename T>
using structure_maker = std::function<T(const Covariance& cov, std::int64_t seed)>;

/// A part for each structure of a model, in order: an engine of the seed gives each one the seed of
/// its own; nuggets and other structures have makers of their own.
template <typename T>
std::vector<T> make_structures(const std::vector<Covariance>& covs, std::int64_t seed,
                               const structure_maker<T>& make_nugget,
                               const structure_maker<T>& make_other) {
  random_engine engine = create_engine(seed);
  std::vector<T> parts;
  parts.reserve(covs.size());
  for (const Covariance& cov : covs) {
    const std::int64_t own_seed = engine();
    const bool is_nugget = cov.type == covariance_type::nugget;
    parts.push_back(is_nugget ? make_nugget(cov, own_seed) : make_other(cov, own_seed));
  }
  return parts;
}

/// A realisation of a model: white noise for its nuggets, beside what make_other makes of the rest.
SpatialFunction simulate_structures(const std::vector<Covariance>& covs, std::int64_t seed,
                                    const structure_maker<SpatialFunction>& make_other);

}  // namespace gravelox
