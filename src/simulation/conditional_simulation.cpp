// SPDX-License-Identifier: MIT
#include "simulation/conditional_simulation.hpp"

#include <cstddef>

#include "common/checks.hpp"

namespace gravelox {

std::vector<double> simulate(const SpatialFunction& simulator, const Estimator& estimator,
                             const location_list& target_locs, const Neighborhood& neighborhood,
                             const location_list& data_locs, const std::vector<double>& data,
                             int n_threads) {
  check_same_size("data", data.size(), data_locs.size(), "location");
  check_finite("data_locs", data_locs);
  check_finite("target_locs", target_locs);
  std::vector<double> residuals = evaluate(simulator, data_locs, n_threads);
  for (std::size_t i = 0; i < data.size(); ++i) residuals[i] = data[i] - residuals[i];
  const std::vector<double> estimates =
      estimator(target_locs, neighborhood, data_locs, residuals, n_threads);
  std::vector<double> results = evaluate(simulator, target_locs, n_threads);
  for (std::size_t i = 0; i < results.size(); ++i) results[i] += estimates[i];
  return results;
}

}  // namespace gravelox
