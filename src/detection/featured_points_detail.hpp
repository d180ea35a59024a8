// SPDX-License-Identifier: MIT
#pragma once

// Points that carry features, such as colours, and their neighbours with like features.

#include <Eigen/Core>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "common/location.hpp"
#include "detection/feature_list.hpp"
#include "spatial/neighborhood.hpp"

namespace gravelox::detail {

/// A view of the arguments of one call, which outlive it; many threads may ask it at once.
class featured_points {
 public:
  using id_list = std::vector<std::size_t>;
  using id_test = std::function<bool(std::size_t id)>;
  using visitor = std::function<void(std::size_t point, const id_list& like)>;

  /// Neighbours are those within the radius if it is above 0, else the n_neis nearest. Throws
  /// std::invalid_argument for locations that are not finite; features of another number, of
  /// several lengths or not finite; a search that is not over locs; a tolerance or radius that is
  /// NaN; and a negative n_neis that is used.
  featured_points(const location_list& locs, const feature_list& features, const Neighborhood& nei,
                  double color_tolerance, double radius, int n_neis);

  std::size_t size() const { return locs_.size(); }
  const location& location_of(std::size_t point) const { return locs_[point]; }

  /// Throws std::invalid_argument for a colour, an argument of this name, that is not finite or of
  /// another length than the features.
  void check_color(std::string_view name, const Eigen::VectorXd& color) const;

  /// Whether a point's features differ from the colour by the tolerance at most.
  bool is_like(std::size_t point, const Eigen::Ref<const Eigen::VectorXd>& color) const;

  /// Visits each of these points in turn with its wanted neighbours whose features are like its
  /// own, without itself, in the order of the query.
  ///
  /// The neighbours of some points ahead are found in parallel. So many threads ask is_wanted at
  /// once, never during a visit, and what an earlier visit made unwanted may still be in a list.
  void visit_like_neighbors(const id_list& points, const id_test& is_wanted, int n_threads,
                            const visitor& visit) const;

 private:
  id_list like_neighbors(std::size_t point, const id_test& is_wanted,
                         neighbor_buffer& buffer) const;

  const location_list& locs_;
  const Neighborhood& nei_;
  double color_tolerance_;
  double radius_;
  int n_neis_;
  Eigen::MatrixXd features_;  // of one point in a column
};

}  // namespace gravelox::detail
