// SPDX-License-Identifier: MIT
#include "detection/cluster_merging.hpp"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <numbers>
#include <optional>
#include <queue>
#include <set>
#include <stdexcept>

#include "common/checks.hpp"
#include "common/memory.hpp"
#include "detection/angular_distance_detail.hpp"
#include "detection/id_list_detail.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/search_space.hpp"

namespace gravelox {

namespace {

using detail::id_list;

struct cluster {
  location_list points;
  std::optional<Neighborhood> search;
};

std::map<int, cluster> group_by_label(const location_list& locs, const std::vector<int>& clusters,
                                      const Ellipsoid& anisotropy) {
  std::map<int, cluster> groups;
  for (std::size_t i = 0; i < locs.size(); ++i) {
    if (clusters[i] > -1) groups[clusters[i]].points.push_back(locs[i]);
  }
  for (auto& [label, group] : groups) group.search.emplace(group.points, anisotropy);
  return groups;
}

/// The points of b that look at p and points near it; see
/// compute_angular_distance_between_clusters.
location_list observers(const location& p, const cluster& a, const cluster& b, double r_tol) {
  location_list found;
  for (const std::size_t id : b.search->find_neighbors(p, r_tol)) found.push_back(b.points[id]);
  for (const std::size_t id : a.search->find_neighbors(p, r_tol)) {
    if (id < b.points.size()) found.push_back(b.points[id]);
  }
  return found;
}

/// For each point of a, the points of b that it is near to. Throws once they would not fit.
std::vector<id_list> near_points(const cluster& a, const cluster& b, double r_tol) {
  std::vector<id_list> near(a.points.size());
  neighbor_buffer buffer;
  double n_ids = 0.0;
  for (std::uint32_t q = 0; q < b.points.size(); ++q) {
    a.search->find_neighbors(b.points[q], r_tol, buffer);
    check_memory("r_tol", n_ids += static_cast<double>(buffer.ids.size()));
    for (const std::size_t p : buffer.ids) near[p].push_back(q);
  }
  return near;
}

/// The least angle in radians, infinite if there is none.
double least_angle(const cluster& a, const cluster& b, double r_tol) {
  double least = std::numeric_limits<double>::infinity();
  const std::vector<id_list> near = near_points(a, b, r_tol);
  for (std::size_t p = 0; p < near.size(); ++p) {
    if (near[p].empty()) continue;
    const location_list seen_from = observers(a.points[p], a, b, r_tol);
    for (const std::uint32_t q : near[p]) {
      for (const location& t : seen_from) {
        least = std::min(least, detail::angular_distance(a.points[p], b.points[q], t));
      }
    }
  }
  return least;
}

/// The floods of merge_clusters, and what has come of them so far.
class merger {
 public:
  merger(const cluster_angles& D, const location_list& locs, const std::vector<int>& clusters,
         const std::vector<int>& ignored_ids, double angular_tol, double r_tol,
         const Ellipsoid& ani)
      : D_(D),
        locs_(locs),
        clusters_(clusters),
        ignored_(ignored_ids.begin(), ignored_ids.end()),
        angular_tol_(angular_tol),
        r_tol_(r_tol),
        search_(locs, ani),
        visits_(locs.size()) {
    ignored_.insert(-1);
    for (const int label : clusters) target_[label] = label;
  }

  void flood_from(std::size_t start) {
    const int current = clusters_[start];
    if (ignored_.contains(current) || target_[current] != current || is_repeated(start)) return;
    ++n_floods_;
    const auto row = D_.find(current);
    std::queue<std::size_t> front;
    const auto visit = [&](std::size_t point) {
      visits_[point] = {n_floods_, current};
      front.push(point);
    };
    for (visit(start); !front.empty(); front.pop()) {
      search_.find_neighbors(locs_[front.front()], r_tol_, near_);
      for (const std::size_t next : near_.ids) {
        if (visits_[next].flood == n_floods_ || !is_close(row, clusters_[next])) continue;
        merge(clusters_[next], current);
        visit(next);
      }
    }
  }

  int target_of(int label) const { return target_.at(label); }

 private:
  struct visit_record {
    std::size_t flood = 0;
    int label = -1;
  };

  bool is_close(cluster_angles::const_iterator row, int other) const {
    if (ignored_.contains(other)) return false;
    if (row == D_.end()) throw std::out_of_range("invalid map<K, T> key");
    const auto angle = row->second.find(other);
    return angle != row->second.end() && angular_tol_ > angle->second;
  }

  void merge(int label, int current) {
    int& target = target_[label];
    if (target == current) return;
    target = current;
    last_change_ = n_floods_;
  }

  /// Whether a flood for the same label passed the point, and none since has changed a label: all
  /// that could be reached from here stands for that label already.
  bool is_repeated(std::size_t start) const {
    const visit_record& visit = visits_[start];
    return visit.flood > 0 && visit.label == clusters_[start] && visit.flood >= last_change_;
  }

  const cluster_angles& D_;
  const location_list& locs_;
  const std::vector<int>& clusters_;
  std::set<int> ignored_;
  double angular_tol_;
  double r_tol_;
  Neighborhood search_;
  std::map<int, int> target_;
  std::vector<visit_record> visits_;
  std::size_t n_floods_ = 0;
  std::size_t last_change_ = 0;
  neighbor_buffer near_;
};

}  // namespace

cluster_angles compute_angular_distance_between_clusters(const Ellipsoid& anisotropy,
                                                         const location_list& locs,
                                                         const std::vector<int>& clusters,
                                                         double r_tol) {
  check_ellipsoid("anisotropy", anisotropy);
  check_mapped("locs", locs, anisotropy);
  check_same_size("clusters", clusters.size(), locs.size(), "location");
  check_not_nan("r_tol", r_tol);
  const std::map<int, cluster> groups = group_by_label(locs, clusters, anisotropy);
  cluster_angles D;
  for (const auto& [label_a, a] : groups) {
    for (const auto& [label_b, b] : groups) {
      const double angle = least_angle(a, b, r_tol);
      if (angle < std::numbers::pi / 2.0) D[label_a][label_b] = angle * 180.0 / std::numbers::pi;
    }
  }
  return D;
}

std::vector<int> merge_clusters(const cluster_angles& D, const location_list& locs,
                                const std::vector<int>& clusters,
                                const std::vector<int>& ignored_ids, double angular_tol,
                                double r_tol, const Ellipsoid& ani) {
  check_ellipsoid("ani", ani);
  check_mapped("locs", locs, ani);
  check_same_size("clusters", clusters.size(), locs.size(), "location");
  check_not_nan("angular_tol", angular_tol);
  check_not_nan("r_tol", r_tol);
  merger floods(D, locs, clusters, ignored_ids, angular_tol, r_tol, ani);
  for (std::size_t i = 0; i < locs.size(); ++i) floods.flood_from(i);
  std::vector<int> merged = clusters;
  for (int& label : merged) label = floods.target_of(label);
  return merged;
}

}  // namespace gravelox
