// SPDX-License-Identifier: MIT
#pragma once

// The result of a neighbour query, in a buffer that its caller keeps and that grows once.

#include <cstddef>
#include <utility>
#include <vector>

namespace gravelox {

/// Sample ids in the order that the query tells.
struct neighbor_buffer {
  std::vector<std::size_t> ids;

  /// How many of the ids a point was found for; the others are 0.
  std::size_t n_found = 0;

  /// Scratch: squared distances of the query by count, ids with theirs of the query by radius.
  std::vector<double> squared_distances;
  std::vector<std::pair<std::size_t, double>> found;
};

}  // namespace gravelox
