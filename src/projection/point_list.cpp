// SPDX-License-Identifier: MIT
#include "projection/point_list.hpp"

#include <cmath>
#include <cstddef>
#include <string>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

void check(std::string_view name, const point& x, Eigen::Index dimension,
           const std::string& where) {
  if (x.size() != dimension) {
    refuse(name, text_of("points of ", dimension, " coordinates"), text_of(x.size(), where));
  }
  for (const double coordinate : x) {
    if (!std::isfinite(coordinate)) refuse(name, "finite coordinates", text_of(coordinate, where));
  }
}

}  // namespace

void check_point(std::string_view name, const point& x, Eigen::Index dimension) {
  check(name, x, dimension, "");
}

void check_points(std::string_view name, const point_list& points, Eigen::Index dimension) {
  for (std::size_t i = 0; i < points.size(); ++i) {
    check(name, points[i], dimension, text_of(" at position ", i));
  }
}

Eigen::MatrixXd columns_of(std::string_view name, const point_list& points) {
  check_not_empty(name, points.size());
  const Eigen::Index dimension = points.front().size();
  check_points(name, points, dimension);
  Eigen::MatrixXd columns(dimension, to_index(points.size()));
  for (std::size_t i = 0; i < points.size(); ++i) columns.col(to_index(i)) = points[i];
  return columns;
}

point_list points_of(const Eigen::Ref<const Eigen::MatrixXd>& columns) {
  point_list points;
  for (Eigen::Index i = 0; i < columns.cols(); ++i) points.emplace_back(columns.col(i));
  return points;
}

point point_map::project(const point& x) const {
  check_point("x", x, dimension());
  return image(x);
}

point_list point_map::project(const point_list& X, int n_threads) const {
  check_points("X", X, dimension());
  point_list images(X.size());
  parallel_for(X.size(), n_threads,
               [&](std::size_t i, int /*thread_number*/) { images[i] = image(X[i]); });
  return images;
}

}  // namespace gravelox
