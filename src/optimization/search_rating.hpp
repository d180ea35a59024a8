// SPDX-License-Identifier: MIT
#pragma once

// The rating that searches by inverse distance make of their samples.

#include <vector>

#include "common/location.hpp"
#include "optimization/covariance_error.hpp"

namespace gravelox {

/// The rating of a search over samples, in n_centers folds of up to max_nei_size of them. The
/// engine of the seed skips a word for each thread and then draws the seed of the folds and that of
/// the rating. Within a fold all samples are candidates, whatever the max_size of the parameters.
/// Throws std::invalid_argument for lists of different lengths and as create_folds and idw_rating
/// do.
idw_rating create_search_rating(const location_list& data_locs, const std::vector<double>& data,
                                int max_nei_size, int n_centers, idw_rating_parameters parameters,
                                int seed, int n_threads);

}  // namespace gravelox
