// SPDX-License-Identifier: MIT
#pragma once

// Unit vectors that fill the sphere evenly, from the Halton sequence (Halton, 1960).
//
// Seeds and indices are 64-bit: a 32-bit word of an engine, used as a seed, stays unsigned and
// never turns into a negative index, for which all directions are the same.

#include <cstdint>

#include "common/location.hpp"

namespace gravelox {

/// The unit vector of an index, on the upper half of the sphere: z is the radical inverse in base
/// 3, the angle about z is 2 pi times that in base 2. An index of 0 or below gives (1, 0, 0).
location halton_direction(std::int64_t index);

/// `size` unit vectors on a half sphere: the indices seed, seed + 1, ..., turned by one random
/// rotation that takes three uniforms (azimuth, dip, rake) of the engine seeded with `seed`. A size
/// below 1 gives an empty list.
location_list generate_random_semisphere(int size, std::int64_t seed = 0);

/// 2 size unit vectors: the half sphere's, then the negatives of the next `size` indices', all
/// turned by the same rotation. The second half is therefore not the mirror of the first.
location_list generate_random_sphere(int size, std::int64_t seed = 0);

}  // namespace gravelox
