// SPDX-License-Identifier: MIT
#pragma once

// Where the integer types meet: indices that a script sees are int, sizes are std::size_t, matrices
// use Eigen::Index. Conversions go through here, never through a bare cast.

#include <Eigen/Core>
#include <cstddef>

namespace gravelox {

/// The size as an int; throws std::invalid_argument where it does not fit into 32 bits.
int to_int(std::size_t size);

/// The size as an index of Eigen's; every size of a container in memory fits.
inline Eigen::Index to_index(std::size_t size) { return static_cast<Eigen::Index>(size); }

/// An index that a check has found to be at least 0.
inline std::size_t to_size(int index) { return static_cast<std::size_t>(index); }
inline std::size_t to_size(Eigen::Index index) { return static_cast<std::size_t>(index); }

}  // namespace gravelox
