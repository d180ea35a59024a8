// SPDX-License-Identifier: MIT
#include "projection/geodesics.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <queue>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/text.hpp"
#include "spatial/bounding_box.hpp"

namespace gravelox {

namespace {

constexpr double unreachable = 1e30;

struct edge {
  int node;
  double length;
};

/// The neighbours of dense points: the knn nearest, or those within eps.
class dense_graph {
 public:
  dense_graph(const location_list& points, const Neighborhood& search, double eps, int knn)
      : points_(points), search_(search), eps_(eps), knn_(knn) {}

  std::size_t size() const { return points_.size(); }

  /// Where a buffer is kept for each thread, many may ask at once.
  void find(std::size_t node, neighbor_buffer& buffer) const {
    if (knn_ > 0) {
      search_.find_neighbors(points_[node], knn_, buffer);
    } else {
      search_.find_neighbors(points_[node], eps_, buffer);
    }
  }

  double length(std::size_t a, std::size_t b) const { return (points_[a] - points_[b]).norm(); }

 private:
  const location_list& points_;
  const Neighborhood& search_;
  double eps_;
  int knn_;
};

/// Edges that are asked for node by node, for a single search.
class searched_edges {
 public:
  explicit searched_edges(const dense_graph& graph) : graph_(graph) {}

  std::size_t size() const { return graph_.size(); }

  template <typename Visit>
  void for_each(std::size_t node, const Visit& visit) {
    graph_.find(node, buffer_);
    for (std::size_t k = 0; k < buffer_.n_found; ++k) {
      visit(buffer_.ids[k], graph_.length(node, buffer_.ids[k]));
    }
  }

 private:
  const dense_graph& graph_;
  neighbor_buffer buffer_;
};

/// All edges, those of a node side by side, for many searches.
class stored_edges {
 public:
  stored_edges(const dense_graph& graph, int n_threads) : first_(graph.size() + 1, 0) {
    std::vector<neighbor_buffer> buffers(n_thread_slots(n_threads));
    parallel_for(graph.size(), n_threads, [&](std::size_t i, int thread_number) {
      neighbor_buffer& buffer = buffers[to_size(thread_number)];
      graph.find(i, buffer);
      first_[i + 1] = buffer.n_found;
    });
    for (std::size_t i = 0; i < graph.size(); ++i) first_[i + 1] += first_[i];
    check_memory("dense_set", 2.0 * static_cast<double>(first_.back()));
    edges_.resize(first_.back());
    parallel_for(graph.size(), n_threads, [&](std::size_t i, int thread_number) {
      neighbor_buffer& buffer = buffers[to_size(thread_number)];
      graph.find(i, buffer);
      for (std::size_t k = 0; k < buffer.n_found; ++k) {
        edges_[first_[i] + k] = {static_cast<int>(buffer.ids[k]), graph.length(i, buffer.ids[k])};
      }
    });
  }

  std::size_t size() const { return first_.size() - 1; }

  template <typename Visit>
  void for_each(std::size_t node, const Visit& visit) const {
    for (std::size_t k = first_[node]; k < first_[node + 1]; ++k) {
      visit(to_size(edges_[k].node), edges_[k].length);
    }
  }

 private:
  std::vector<std::size_t> first_;
  std::vector<edge> edges_;
};

/// Shortest paths from one node. Of nodes at the same distance the one with the greater number is
/// settled first. Aligned, so that the heaps of two threads share no line of the cache.
class alignas(64) shortest_paths {
 public:
  template <typename Edges>
  void search(Edges& edges, std::size_t start, int end) {
    distances.assign(edges.size(), unreachable);
    previous.assign(edges.size(), -1);
    visited_.assign(edges.size(), false);
    heap_.clear();
    distances[start] = 0.0;
    push(start);
    while (!heap_.empty()) {
      const std::size_t node = pop();
      if (visited_[node]) continue;
      visited_[node] = true;
      if (static_cast<int>(node) == end) return;
      edges.for_each(node, [&](std::size_t neighbor, double length) {
        const double distance = distances[node] + length;
        if (!(distance < distances[neighbor])) return;
        distances[neighbor] = distance;
        previous[neighbor] = static_cast<int>(node);
        push(neighbor);
      });
    }
  }

  std::vector<double> distances;
  std::vector<int> previous;

 private:
  void push(std::size_t node) {
    heap_.emplace_back(-distances[node], static_cast<int>(node));
    std::push_heap(heap_.begin(), heap_.end());
  }

  std::size_t pop() {
    std::pop_heap(heap_.begin(), heap_.end());
    const std::size_t node = to_size(heap_.back().second);
    heap_.pop_back();
    return node;
  }

  std::vector<char> visited_;
  std::vector<std::pair<double, int>> heap_;
};

void check_dense_set(const location_list& locs, const Neighborhood& dense_nei, double eps,
                     const location_list& dense_set) {
  check_finite("locs", locs);
  check_not_empty("dense_set", dense_set.size());
  check_same_size("dense_set", dense_set.size(), dense_nei.size(), "location of dense_nei");
  check_finite("dense_set", dense_set);
  check_not_nan("eps", eps);
}

/// Which points lie within eps of a surface; each is asked for once.
class surface_test {
 public:
  surface_test(const location_list& points, const Neighborhood& surface, double eps)
      : points_(points), surface_(surface), eps_(eps), answers_(points.size(), answer::unknown) {}

  bool is_near(std::size_t i) {
    if (answers_[i] == answer::unknown) {
      surface_.find_neighbors(points_[i], eps_, buffer_);
      answers_[i] = buffer_.n_found > 0 ? answer::near : answer::clear;
    }
    return answers_[i] == answer::near;
  }

 private:
  enum class answer : std::uint8_t { unknown, near, clear };

  const location_list& points_;
  const Neighborhood& surface_;
  double eps_;
  std::vector<answer> answers_;
  neighbor_buffer buffer_;
};

}  // namespace

location_list create_random_dense_set(const location_list& pts, const Neighborhood& nei, double eps,
                                      int max_pts, int seed) {
  check_not_empty("pts", pts.size());
  check_finite("pts", pts);
  check_not_nan("eps", eps);
  check_at_least("max_pts", max_pts, 0);
  const BoundingBox box(pts);
  random_engine engine = create_engine(seed);
  neighbor_buffer buffer;
  location_list kept;
  for (int i = 0; i < max_pts; ++i) {
    location candidate;
    for (const Eigen::Index axis : {2, 1, 0}) {
      candidate[axis] = uniform(engine, box.lower()[axis], box.upper()[axis]);
    }
    nei.find_neighbors(candidate, eps, buffer);
    if (buffer.n_found > 0) kept.push_back(candidate);
  }
  return kept;
}

std::vector<int> flood_fill_using_ball(const location_list& locs, int k_neis,
                                       const Neighborhood& surface_nei, double eps) {
  check_at_least("k_neis", k_neis, 0);
  check_finite("locs", locs);
  check_not_nan("eps", eps);
  const Neighborhood search(locs);
  surface_test surface(locs, surface_nei, eps);
  neighbor_buffer neighbors;
  std::vector<int> labels(locs.size(), -1);
  std::vector<bool> visited(locs.size(), false);
  int label = 0;
  for (std::size_t i = 0; i < locs.size(); ++i) {
    if (labels[i] != -1) continue;
    visited[i] = true;
    std::queue<std::size_t> flood({i});
    while (!flood.empty()) {
      const std::size_t q = flood.front();
      flood.pop();
      if (surface.is_near(q)) continue;
      labels[q] = label;
      search.find_neighbors(locs[q], k_neis, neighbors);
      for (std::size_t k = 0; k < neighbors.n_found; ++k) {
        const std::size_t neighbor = neighbors.ids[k];
        if (visited[neighbor] || surface.is_near(neighbor)) continue;
        visited[neighbor] = true;
        labels[neighbor] = label;
        flood.push(neighbor);
      }
    }
    ++label;
  }
  return labels;
}

geodesic compute_geodesics(const location_list& locs, int start, int end,
                           const Neighborhood& dense_nei, double eps, int knn,
                           const location_list& dense_set) {
  check_dense_set(locs, dense_nei, eps, dense_set);
  check_index("start", start, locs.size());
  if (end >= 0) check_index("end", end, locs.size());
  const dense_graph graph(dense_set, dense_nei, eps, knn);
  searched_edges edges(graph);
  const int b = end < 0 ? -1 : to_int(dense_nei.nearest_neighbor(locs[to_size(end)]));
  shortest_paths paths;
  paths.search(edges, dense_nei.nearest_neighbor(locs[to_size(start)]), b);

  location_list path;
  double length = unreachable;
  if (b >= 0 && paths.distances[to_size(b)] < unreachable) {
    length = paths.distances[to_size(b)];
    for (int node = b; node >= 0; node = paths.previous[to_size(node)]) {
      path.push_back(dense_set[to_size(node)]);
    }
  }
  return {path, length, paths.distances};
}

std::vector<std::vector<double>> compute_geodesic_based_distance_matrix(
    const location_list& locs, const Neighborhood& dense_nei, double eps, int knn,
    const location_list& dense_set, int n_threads) {
  check_dense_set(locs, dense_nei, eps, dense_set);
  const std::size_t n = locs.size();
  check_memory("locs", static_cast<double>(n) * static_cast<double>(n));
  const stored_edges edges(dense_graph(dense_set, dense_nei, eps, knn), n_threads);
  std::vector<std::size_t> nearest(n);
  for (std::size_t i = 0; i < n; ++i) nearest[i] = dense_nei.nearest_neighbor(locs[i]);
  std::vector<shortest_paths> paths(n_thread_slots(n_threads));
  std::vector<std::vector<double>> lengths(n, std::vector<double>(n, unreachable));
  parallel_for(n, n_threads, [&](std::size_t i, int thread_number) {
    shortest_paths& from_i = paths[to_size(thread_number)];
    from_i.search(edges, nearest[i], -1);
    for (std::size_t j = 0; j < n; ++j) lengths[i][j] = from_i.distances[nearest[j]];
  });
  return lengths;
}

}  // namespace gravelox
