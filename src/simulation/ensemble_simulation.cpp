// SPDX-License-Identifier: MIT
#include "simulation/ensemble_simulation.hpp"

#include <cmath>
#include <cstddef>
#include <memory>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/power.hpp"
#include "common/random.hpp"
#include "estimation/ensemble_estimation.hpp"
#include "simulation/conditional_simulation.hpp"

namespace gravelox {

namespace {

constexpr double coincident = 1e-20;
constexpr double threshold = 1e-10;

/// The weights of the models at a location; one a thread.
struct blend_weights {
  std::vector<double> far;
  std::vector<double> close;

  void set(const location& point, const LocalCovariances& local_covs, const power_function& f,
           double max_weight) {
    const std::size_t n = local_covs.centers.size();
    far.assign(n, 0.0);
    close.assign(n, 0.0);
    double far_sum = 0.0;
    double close_sum = 0.0;
    for (std::size_t j = 0; j < n; ++j) {
      const double d = (local_covs.centers[j] - point).norm() * local_covs.errors[j];
      if (d > coincident) {
        far[j] = f(1.0 / d);
      } else {
        close[j] = max_weight;
      }
      far_sum += far[j];
      close_sum += close[j];
    }
    // A location with close models alone keeps the weights of 0: it gets no value from any.
    if (!(far_sum > threshold)) return;
    for (std::size_t j = 0; j < n; ++j) {
      const double share = far[j] / far_sum;
      far[j] = close_sum > threshold
                   ? std::sqrt(share * (1.0 - max_weight) + close[j] / close_sum * max_weight)
                   : std::sqrt(share);
    }
  }
};

std::vector<SpatialFunction> make_simulators(const LocalCovariances& local_covs,
                                             const SimulatorFactory& factory, std::int64_t seed) {
  random_engine engine = create_engine(seed);
  std::vector<SpatialFunction> simulators;
  simulators.reserve(local_covs.covariances.size());
  for (const std::vector<Covariance>& covs : local_covs.covariances) {
    simulators.push_back(factory(covs, engine()));
  }
  return simulators;
}

}  // namespace

std::vector<double> run_ensemble_simulation(const location_list& locs,
                                            const std::vector<SpatialFunction>& simulators,
                                            double max_weight, double power_a,
                                            const LocalCovariances& local_covs, int n_threads) {
  check_local_covariances(local_covs);
  check_same_size("simulators", simulators.size(), local_covs.centers.size(), "center");
  check_finite("locs", locs);
  const power_function f = create_power_function(power_a);
  std::vector<blend_weights> buffers(n_thread_slots(n_threads));
  std::vector<double> results(locs.size(), 0.0);
  parallel_for(locs.size(), n_threads, [&](std::size_t i, int thread_number) {
    blend_weights& weights = buffers[to_size(thread_number)];
    weights.set(locs[i], local_covs, f, max_weight);
    for (std::size_t j = 0; j < simulators.size(); ++j) {
      results[i] += weights.far[j] * simulators[j](locs[i]);
    }
  });
  return results;
}

std::vector<double> unconditional_ensemble_simulation(const location_list& locs,
                                                      const LocalCovariances& local_covs,
                                                      const SimulatorFactory& simulator_factory,
                                                      double max_weight, double power_a,
                                                      std::int64_t seed, int n_threads) {
  check_local_covariances(local_covs);
  check_finite("locs", locs);
  return run_ensemble_simulation(locs, make_simulators(local_covs, simulator_factory, seed),
                                 max_weight, power_a, local_covs, n_threads);
}

SpatialFunction create_ensemble_simulator(const LocalCovariances& local_covs,
                                          const SimulatorFactory& sim_factory, double max_weight,
                                          double power_a, std::int64_t seed) {
  check_local_covariances(local_covs);
  const auto simulators = std::make_shared<const std::vector<SpatialFunction>>(
      make_simulators(local_covs, sim_factory, seed));
  return [=](const location& point) {
    return run_ensemble_simulation({point}, *simulators, max_weight, power_a, local_covs, 1)
        .front();
  };
}

std::vector<double> ensemble_simulation(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& search_ellipsoid, const SimulatorFactory& simulator_factory, int max_size,
    double max_distance, int max_cov_neis, int max_neis_octant, double power_a, double max_weight,
    std::int64_t seed, int n_threads, const std::vector<int>& dhids, int max_neis_by_dhid) {
  check_same_size("data", data.size(), data_locs.size(), "location");
  check_finite("data_locs", data_locs);
  check_finite("target_locs", target_locs);
  check_ellipsoid("search_ellipsoid", search_ellipsoid);
  if (!dhids.empty()) check_same_size("dhids", dhids.size(), data_locs.size(), "location");
  // The samples are residuals of a field of mean 0.
  const Estimator estimator = create_ensemble_estimator(
      local_covs, search_ellipsoid, max_size, max_distance, max_cov_neis, max_neis_octant, power_a,
      max_weight, false, true, 0.0, dhids, max_neis_by_dhid);
  const SpatialFunction simulator =
      create_ensemble_simulator(local_covs, simulator_factory, max_weight, power_a, seed);
  return simulate(simulator, estimator, target_locs, Neighborhood(data_locs, search_ellipsoid),
                  data_locs, data, n_threads);
}

}  // namespace gravelox
