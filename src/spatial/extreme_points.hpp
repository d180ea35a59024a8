// SPDX-License-Identifier: MIT
#pragma once

// The outermost points of a cloud, as a small stand-in for it where only its hull matters.

#include <cstdint>

#include "common/location.hpp"

namespace gravelox {

/// The locations that lie farthest back and farthest ahead along each of 2 n_rays directions of
/// generate_random_sphere, whose seed this is: ray by ray the last one behind before the first one
/// ahead, each location (by position in the list) only once. Of equals the first one counts. No
/// locations or a count below 1 give an empty list. Throws std::invalid_argument for coordinates
/// that are not finite. The result does not depend on the number of threads.
location_list extreme_points(const location_list& locations, int n_rays = 600,
                             std::int64_t seed = 121315, int n_threads = 0);

}  // namespace gravelox
