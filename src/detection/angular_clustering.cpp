// SPDX-License-Identifier: MIT
#include "detection/angular_clustering.hpp"

#include <atomic>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <queue>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "detection/angular_distance_detail.hpp"
#include "detection/id_list_detail.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/search_space.hpp"

namespace gravelox {

namespace {

using detail::angle_test;
using detail::id_list;

struct support_limits {
  double share;
  int min_size;
};

/// How many angles were narrow, of how many.
struct angle_counts {
  std::size_t narrow = 0;
  std::size_t all = 0;

  double share() const { return static_cast<double>(narrow) / static_cast<double>(all); }
};

/// A point's angles with all its neighbours, and the neighbours that it carries a cluster to.
struct angular_support {
  angle_counts counts;
  id_list links;
};

/// Throws once the ids would not fit in memory: each is counted as a double, which it takes with
/// the link that may come of it.
std::vector<id_list> neighbors_of_all(const location_list& locs, const Ellipsoid& anisotropy,
                                      double r_tol, int n_threads) {
  const Neighborhood search(locs, anisotropy);
  std::vector<id_list> neis(locs.size());
  std::vector<neighbor_buffer> buffers(n_thread_slots(n_threads));
  std::atomic<std::size_t> n_ids = 0;
  const auto add_to_ids = [&n_ids](std::size_t n) {
    check_memory("r_tol", static_cast<double>(n_ids += n));
  };
  parallel_for(locs.size(), n_threads, [&](std::size_t i, int thread_number) {
    add_to_ids(0);  // after a refusal no point is queried any more
    neighbor_buffer& buffer = buffers[to_size(thread_number)];
    search.find_neighbors(locs[i], r_tol, buffer);
    add_to_ids(buffer.ids.size());
    neis[i].assign(buffer.ids.begin(), buffer.ids.end());
  });
  return neis;
}

std::size_t count_narrow(const angle_test& test, const location& A, const location& B,
                         const location_list& locs, const id_list& corners) {
  std::size_t n_narrow = 0;
  for (const std::uint32_t corner : corners) {
    if (test.is_narrow(A, B, locs[corner])) ++n_narrow;
  }
  return n_narrow;
}

angular_support support_of(std::size_t i, const location_list& locs,
                           const std::vector<id_list>& neis, const angle_test& test,
                           const support_limits& limits) {
  angular_support support;
  for (const std::uint32_t j : neis[i]) {
    const std::size_t narrow_at_j = count_narrow(test, locs[i], locs[j], locs, neis[j]);
    const std::size_t narrow_at_i = count_narrow(test, locs[i], locs[j], locs, neis[i]);
    const angle_counts pair{narrow_at_j + narrow_at_i, neis[j].size() + neis[i].size()};
    support.counts.narrow += pair.narrow;
    support.counts.all += pair.all;
    const bool is_seen_by_both = narrow_at_j > 0 && narrow_at_i > 0;
    const bool is_enough = limits.min_size <= 0 || pair.narrow >= to_size(limits.min_size);
    if (is_seen_by_both && is_enough && pair.share() > limits.share) support.links.push_back(j);
  }
  support.links.shrink_to_fit();
  return support;
}

void grow_cluster(std::size_t seed, int label, const std::vector<angular_support>& supports,
                  std::vector<int>& labels) {
  labels[seed] = label;
  std::queue<std::size_t> front({seed});
  for (; !front.empty(); front.pop()) {
    for (const std::uint32_t next : supports[front.front()].links) {
      if (labels[next] != -1) continue;
      labels[next] = label;
      front.push(next);
    }
  }
}

}  // namespace

double compute_angular_distance(const location& A, const location& B, const location& C) {
  check_finite("A", A);
  check_finite("B", B);
  check_finite("C", C);
  return detail::angular_distance(A, B, C);
}

std::vector<int> find_clusters(const location_list& locs, const Ellipsoid& anisotropy, double r_tol,
                               double angular_tol, double support_threshold, int min_support_size,
                               int n_threads) {
  check_ellipsoid("anisotropy", anisotropy);
  check_mapped("locs", locs, anisotropy);
  check_not_nan("r_tol", r_tol);
  check_not_nan("angular_tol", angular_tol);
  check_not_nan("support_threshold", support_threshold);
  const angle_test test(std::abs(std::numbers::pi * angular_tol / 180.0));
  const support_limits limits{support_threshold, min_support_size};
  const std::vector<id_list> neis = neighbors_of_all(locs, anisotropy, r_tol, n_threads);
  std::vector<angular_support> supports(locs.size());
  parallel_for(locs.size(), n_threads, [&](std::size_t i, int /*thread_number*/) {
    supports[i] = support_of(i, locs, neis, test, limits);
  });

  std::vector<int> labels(locs.size(), -1);
  int n_clusters = 0;
  for (std::size_t i = 0; i < locs.size(); ++i) {
    // Of no angles the share is NaN, and the point opens a cluster of its own.
    if (labels[i] != -1 || limits.share > supports[i].counts.share()) continue;
    grow_cluster(i, n_clusters++, supports, labels);
  }
  return labels;
}

}  // namespace gravelox
