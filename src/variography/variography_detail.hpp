// SPDX-License-Identifier: MIT
#pragma once

// What the makers of experimental variograms share. Private to their sources.

#include <limits>

namespace gravelox::detail {

/// A sum or mean of pair counts as a count: its whole part, kept within an int. What is not a
/// number counts nothing.
inline int to_pair_count(double n_pairs) {
  constexpr int most = std::numeric_limits<int>::max();
  if (!(n_pairs > 0.0)) return 0;
  return n_pairs < most ? static_cast<int>(n_pairs) : most;
}

}  // namespace gravelox::detail
