// SPDX-License-Identifier: MIT
#include "detection/cluster_fusion.hpp"

#include <algorithm>
#include <cstddef>
#include <map>
#include <numeric>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox::grid_detector {

namespace {

constexpr int none = -1;

/// The labels as 0, 1, 2 ... in the order of the first point of each; none stays.
std::vector<int> numbered(const std::vector<int>& labels) {
  std::map<int, int> numbers;
  std::vector<int> result;
  result.reserve(labels.size());
  for (const int label : labels) {
    const int next = to_int(numbers.size());
    result.push_back(label == none ? none : numbers.try_emplace(label, next).first->second);
  }
  return result;
}

/// Sets of clusters, each known by its least member.
class cluster_sets {
 public:
  explicit cluster_sets(std::size_t n) : parents_(n) {
    std::iota(parents_.begin(), parents_.end(), 0);
  }

  int least(int cluster) {
    while (parent(cluster) != cluster) {
      parent(cluster) = parent(parent(cluster));
      cluster = parent(cluster);
    }
    return cluster;
  }

  void join(int one, int other) {
    const auto [first, second] = std::minmax({least(one), least(other)});
    parent(second) = first;
  }

  void join_as_in(const cluster_sets& others) {
    for (std::size_t i = 0; i < parents_.size(); ++i) join(to_int(i), others.parents_[i]);
  }

 private:
  int& parent(int cluster) { return parents_[to_size(cluster)]; }

  std::vector<int> parents_;
};

/// The clusters that touch, in one set. Each thread joins those that it finds: a list of what each
/// point touches would grow with the square of the number of points.
cluster_sets touching_clusters(const location_list& locs, const std::vector<int>& clusters,
                               double max_distance, int n_threads) {
  const Neighborhood search(locs);
  const double sure_radius = max_distance / Neighborhood::complete_share;
  const std::size_t n_slots = n_thread_slots(n_threads);
  std::vector<cluster_sets> sets(n_slots, cluster_sets(locs.size()));
  std::vector<neighbor_buffer> buffers(n_slots);
  parallel_for(locs.size(), n_threads, [&](std::size_t i, int thread_number) {
    if (clusters[i] == none) return;
    neighbor_buffer& buffer = buffers[to_size(thread_number)];
    search.find_neighbors(locs[i], sure_radius, buffer);
    for (const auto& [id, squared_distance] : buffer.found) {
      if (squared_distance >= max_distance * max_distance) break;  // they come nearest first
      if (clusters[id] > clusters[i]) sets[to_size(thread_number)].join(clusters[i], clusters[id]);
    }
  });
  for (std::size_t i = 1; i < n_slots; ++i) sets.front().join_as_in(sets[i]);
  return std::move(sets.front());
}

}  // namespace

std::vector<int> cluster_fusion(const location_list& locs, const std::vector<int>& initial_clusters,
                                double max_distance, int n_threads) {
  check_finite("locs", locs);
  check_same_size("initial_clusters", initial_clusters.size(), locs.size(), "location");
  if (!(max_distance >= 0.0)) refuse("max_distance", "a number of at least 0", max_distance);
  std::vector<int> clusters = numbered(initial_clusters);
  cluster_sets sets = touching_clusters(locs, clusters, max_distance, n_threads);
  for (int& cluster : clusters) {
    if (cluster != none) cluster = sets.least(cluster);
  }
  return numbered(clusters);
}

}  // namespace gravelox::grid_detector
