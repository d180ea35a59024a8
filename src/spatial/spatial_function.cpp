// SPDX-License-Identifier: MIT
#include "spatial/spatial_function.hpp"

#include <cstddef>

#include "common/checks.hpp"
#include "common/parallel_for.hpp"

namespace gravelox {

std::vector<double> evaluate(const SpatialFunction& function, const location_list& locations,
                             int n_threads) {
  check_finite("locations", locations);
  std::vector<double> values(locations.size());
  parallel_for(locations.size(), n_threads,
               [&](std::size_t i, int /*thread_number*/) { values[i] = function(locations[i]); });
  return values;
}

}  // namespace gravelox
