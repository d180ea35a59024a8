// SPDX-License-Identifier: MIT
#pragma once

// The result of a neighbour query, in a buffer that its caller keeps and that grows once.

#include <cstddef>
#include <utility>
#include <vector>

namespace gravelox {

/// Sample ids with their squared distances in the space of the search, both in the same order.
struct neighbor_buffer {
  std::vector<std::size_t> ids;
  std::vector<double> squared_distances;
  /// Scratch of the radius query.
  std::vector<std::pair<std::size_t, double>> found;
};

}  // namespace gravelox
