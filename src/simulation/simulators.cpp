// SPDX-License-Identifier: MIT
#include "simulation/simulators.hpp"

#include <cmath>
#include <cstddef>
#include <memory>
#include <mutex>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"

namespace gravelox {

namespace {

/// An engine that one thread at a time draws from.
struct locked_engine {
  random_engine engine;
  std::mutex mutex;

  double draw() {
    const std::lock_guard lock(mutex);
    // The second normal of the pair goes with its object.
    return normal_distribution()(engine);
  }
};

}  // namespace

void check_corners(const location_list& corners) {
  check_not_empty("corners", corners.size());
  check_finite("corners", corners);
}

void check_simulation(const location_list& corners, const Covariance& cov) {
  check_corners(corners);
  check_ellipsoid("cov", cov.ellipsoid);
  for (const location& corner : corners) {
    check_finite("corners under the ellipsoid", cov.ellipsoid.forward(corner));
  }
}

SpatialFunction create_simulator(const std::vector<SpatialFunction>& simulators) {
  return [simulators](const location& point) {
    double sum = 0.0;
    for (const SpatialFunction& simulator : simulators) sum += simulator(point);
    return sum;
  };
}

SpatialFunction create_nugget_simulator(double amplitude, std::int64_t seed) {
  random_engine master = create_engine(seed);
  const auto engines = std::make_shared<std::vector<locked_engine>>(n_thread_slots(0));
  for (locked_engine& own : *engines) own.engine.seed(master());
  return [amplitude, engines](const location& /*point*/) {
    return (*engines)[to_size(current_thread_number()) % engines->size()].draw() * amplitude;
  };
}

SpatialFunction simulate_structures(const std::vector<Covariance>& covs, std::int64_t seed,
                                    const structure_maker<SpatialFunction>& make_other) {
  const auto make_nugget = [](const Covariance& cov, std::int64_t own_seed) {
    return create_nugget_simulator(std::sqrt(cov.sill), own_seed);
  };
  return create_simulator(make_structures<SpatialFunction>(covs, seed, make_nugget, make_other));
}

}  // namespace gravelox
