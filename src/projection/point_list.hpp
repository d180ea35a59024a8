// SPDX-License-Identifier: MIT
#pragma once

// Points of spaces of any dimension, for maps between such spaces.

#include <Eigen/Core>
#include <string_view>
#include <vector>

namespace gravelox {

/// A point; its length is the dimension of its space.
using point = Eigen::VectorXd;
using point_list = std::vector<point>;

/// The points as columns, in order. Throws std::invalid_argument, for an argument of this name, for
/// an empty list, points of different dimensions, and coordinates that are not finite.
Eigen::MatrixXd columns_of(std::string_view name, const point_list& points);

/// The columns as points.
point_list points_of(const Eigen::Ref<const Eigen::MatrixXd>& columns);

/// Throws std::invalid_argument for a point of another dimension or one that is not finite.
void check_point(std::string_view name, const point& x, Eigen::Index dimension);
void check_points(std::string_view name, const point_list& points, Eigen::Index dimension);

/// A map of points: what maps have in common.
class point_map {
 public:
  virtual ~point_map() = default;

  /// The image of a point. Throws std::invalid_argument for a point of another dimension than the
  /// map's or one that is not finite. Many threads may call one object at once.
  point project(const point& x) const;

  /// The images of a list, in order; they do not depend on n_threads.
  point_list project(const point_list& X, int n_threads = 0) const;

 private:
  /// The dimension of the space that is mapped.
  virtual Eigen::Index dimension() const = 0;

  /// The image of a finite point of that dimension.
  virtual point image(const point& x) const = 0;
};

}  // namespace gravelox
