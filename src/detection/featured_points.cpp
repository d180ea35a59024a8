// SPDX-License-Identifier: MIT
#include <algorithm>
#include <atomic>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/text.hpp"
#include "detection/featured_points_detail.hpp"

namespace gravelox::detail {

namespace {

/// Opening a parallel region costs more than the queries of fewer points.
constexpr std::size_t least_parallel_size = 64;

/// Points whose neighbours are found ahead, and ids held of them (1 GB), past which the neighbours
/// of a point are found when its turn comes.
constexpr std::size_t block_size = 4096;
constexpr std::size_t most_held = std::size_t{1} << 27;

void check_color_of(std::string_view name, const Eigen::VectorXd& color, Eigen::Index length,
                    const std::string& where) {
  if (color.size() != length) {
    refuse(name, text_of(length, length == 1 ? " value" : " values", ", as for the first point"),
           text_of(color.size(), where));
  }
  if (!color.allFinite()) refuse(name, "finite numbers", text_of("infinities or NaN", where));
}

Eigen::MatrixXd table_of(const feature_list& features) {
  if (features.empty()) return {};
  const Eigen::Index length = features.front().size();
  Eigen::MatrixXd table(length, to_index(features.size()));
  for (std::size_t i = 0; i < features.size(); ++i) {
    check_color_of("features", features[i], length, text_of(" at position ", i));
    table.col(to_index(i)) = features[i];
  }
  return table;
}

void check_search(const Neighborhood& nei, const location_list& locs) {
  const std::string expected = text_of("a search over the ", locs.size(), " locations of locs");
  if (nei.size() != locs.size()) refuse("nei", expected, text_of("one over ", nei.size()));
  if (!nei.is_over(locs)) refuse("nei", expected, "one over others");
}

}  // namespace

featured_points::featured_points(const location_list& locs, const feature_list& features,
                                 const Neighborhood& nei, double color_tolerance, double radius,
                                 int n_neis)
    : locs_(locs), nei_(nei), color_tolerance_(color_tolerance), radius_(radius), n_neis_(n_neis) {
  check_finite("locs", locs);
  check_same_size("features", features.size(), locs.size(), "location");
  features_ = table_of(features);
  check_search(nei, locs);
  check_not_nan("color_tolerance", color_tolerance);
  check_not_nan("radius", radius);
  if (!(radius > 0.0)) check_at_least("n_neis", n_neis, 0);
}

void featured_points::check_color(std::string_view name, const Eigen::VectorXd& color) const {
  const bool has_length = !locs_.empty();
  check_color_of(name, color, has_length ? features_.rows() : color.size(), "");
}

bool featured_points::is_like(std::size_t point,
                              const Eigen::Ref<const Eigen::VectorXd>& color) const {
  return (features_.col(to_index(point)) - color).norm() <= color_tolerance_;
}

featured_points::id_list featured_points::like_neighbors(std::size_t point,
                                                         const id_test& is_wanted,
                                                         neighbor_buffer& buffer) const {
  if (radius_ > 0.0) {
    nei_.find_neighbors(locs_[point], radius_, buffer);
  } else {
    nei_.find_neighbors(locs_[point], n_neis_, buffer);
  }
  std::erase_if(buffer.ids, [&](std::size_t id) {
    return id == point || !is_wanted(id) || !is_like(id, features_.col(to_index(point)));
  });
  return buffer.ids;
}

void featured_points::visit_like_neighbors(const id_list& points, const id_test& is_wanted,
                                           int n_threads, const visitor& visit) const {
  const int n_used = points.size() < least_parallel_size ? 1 : n_threads;
  std::vector<neighbor_buffer> buffers(n_thread_slots(n_used));
  for (std::size_t begin = 0; begin < points.size(); begin += block_size) {
    const std::size_t n = std::min(block_size, points.size() - begin);
    std::vector<std::optional<id_list>> like(n);
    std::atomic<std::size_t> n_held = 0;
    parallel_for(n, n_used, [&](std::size_t i, int thread_number) {
      if (n_held > most_held) return;
      like[i] = like_neighbors(points[begin + i], is_wanted, buffers[to_size(thread_number)]);
      n_held += like[i]->size();
    });
    for (std::size_t i = 0; i < n; ++i) {
      const std::size_t point = points[begin + i];
      visit(point,
            like[i] ? std::move(*like[i]) : like_neighbors(point, is_wanted, buffers.front()));
    }
  }
}

}  // namespace gravelox::detail
