// SPDX-License-Identifier: MIT
#pragma once

// Estimator: what turns samples into estimates, with its parameters inside.

#include <functional>
#include <vector>

#include "common/location.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox {

/// A callable (target_locs, neighborhood, data_locs, data, n_threads) that gives one estimate for
/// each target. It holds copies of its parameters and keeps no state between calls.
using Estimator = std::function<std::vector<double>(
    const location_list& target_locs, const Neighborhood& neighborhood,
    const location_list& data_locs, const std::vector<double>& data, int n_threads)>;

}  // namespace gravelox
