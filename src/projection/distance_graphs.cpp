// SPDX-License-Identifier: MIT
#include "projection/distance_graphs.hpp"

#include <cstddef>
#include <cstdint>
#include <queue>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/random.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

/// A spanning forest that grows by the nearest point outside of it.
class growing_forest {
 public:
  explicit growing_forest(const distance_table& D)
      : D_(D), keys_(D.size(), unreachable), parents_(D.size(), -1), in_tree_(D.size(), false) {}

  void grow_from(std::size_t start) {
    if (in_tree_[start]) return;
    keys_[start] = 0.0;
    push(start);
    while (!nearest_.empty()) {
      const std::size_t u = to_size(nearest_.top().second);
      nearest_.pop();
      if (!in_tree_[u]) add(u);
    }
  }

  std::vector<dist_pair> edges() const {
    std::vector<dist_pair> edges;
    for (std::size_t i = 0; i < parents_.size(); ++i) {
      if (parents_[i] >= 0) edges.push_back({parents_[i], to_int(i), keys_[i]});
    }
    return edges;
  }

 private:
  static constexpr double unreachable = 1e20;

  void push(std::size_t i) { nearest_.emplace(-keys_[i], to_int(i)); }

  void add(std::size_t u) {
    in_tree_[u] = true;
    for (std::size_t j = 0; j < D_.size(); ++j) {
      if (in_tree_[j]) continue;
      const double weight = symmetric_distance(D_, u, j);
      if (!(keys_[j] > weight)) continue;
      keys_[j] = weight;
      parents_[j] = to_int(u);
      push(j);
    }
  }

  const distance_table& D_;
  std::vector<double> keys_;
  std::vector<int> parents_;
  std::vector<bool> in_tree_;
  std::priority_queue<std::pair<double, int>> nearest_;
};

}  // namespace

void check_square(const char* name, const distance_table& D) {
  for (std::size_t i = 0; i < D.size(); ++i) {
    if (D[i].size() != D.size()) {
      refuse(name, text_of("a square table, rows of ", D.size(), " values"),
             text_of(D[i].size(), " in row ", i));
    }
  }
}

std::vector<dist_pair> create_sparse_dist_matrix(const distance_table& D, int K_neighbors,
                                                 int n_active, int seed) {
  check_square("D", D);
  check_at_least("K_neighbors", K_neighbors, 0);
  check_memory("K_neighbors", 2.0 * static_cast<double>(D.size()) * K_neighbors);
  const std::size_t n = D.size();
  random_engine engine = create_engine(seed);
  std::vector<bool> connected(n, false);
  std::vector<dist_pair> pairs;
  for (std::size_t i = 0; i < n; ++i) {
    if (connected[i] && static_cast<std::int64_t>(engine() % n) > n_active) continue;
    for (int k = 0; k < K_neighbors; ++k) {
      const std::size_t j = engine() % n;
      pairs.push_back({to_int(i), to_int(j), symmetric_distance(D, i, j)});
      connected[j] = true;
    }
  }
  return pairs;
}

std::vector<dist_pair> create_minimum_spanning_tree(const distance_table& D) {
  check_square("D", D);
  growing_forest forest(D);
  for (std::size_t start = 0; start < D.size(); ++start) forest.grow_from(start);
  return forest.edges();
}

}  // namespace gravelox
