// SPDX-License-Identifier: MIT
#pragma once

// Maps between spaces that blend the images of known points: target[i] is where source[i] lands.
//
// A point x finds its place through its nearest source point s, at the distance d0 (the lowest
// index wins a tie). Blended are the K points whose images lie nearest to the image of s, not those
// that lie nearest to x: so points of another limb of a fold stay out. Their distance from x mixes
// both spaces,
//   D(j) = (|target[s] - target[j]| + d0) wp + (1 - wp) |x - source[j]|.

#include <Eigen/Core>
#include <cstddef>
#include <utility>
#include <vector>

#include "projection/point_list.hpp"
#include "variography/kernel.hpp"

namespace gravelox {

/// The pairs that a map is made of, and the choice of those to blend.
class paired_points {
 public:
  /// wp is the weight of the distance in target space, meant for 0 to 1. Throws
  /// std::invalid_argument for empty lists, lists of different sizes or dimensions, coordinates
  /// that are not finite, and a K outside 1 to the number of points.
  paired_points(const point_list& source, const point_list& target, double wp, int K);

  /// What is blended for one point.
  struct selection {
    double d0;
    std::vector<Eigen::Index> ids;
    std::vector<double> distances;
  };

  /// Of images at equal distance the lower index comes first. Throws std::invalid_argument for a
  /// point at 1e30 or more from all source points.
  selection select(const point& x) const;

  /// The distance of two points of the list, mixed as that of x.
  double distance(Eigen::Index a, Eigen::Index b, double d0) const;

  /// The sum of weights[i] target[ids[i]].
  point blend(const std::vector<Eigen::Index>& ids, const double* weights) const;

  Eigen::Index dimension() const { return source_.rows(); }

 private:
  std::pair<Eigen::Index, double> nearest_source(const point& x) const;

  Eigen::MatrixXd source_;
  Eigen::MatrixXd target_;
  double wp_;
  std::size_t K_;
};

/// The mean of the selected images with the weights 1 / (D + 1e-10)^power_a. All three constructors
/// refuse what paired_points does.
class IDW_projection : public point_map {
 public:
  IDW_projection(const point_list& source, const point_list& target, double power_a, double wp,
                 int K);

 private:
  Eigen::Index dimension() const override { return pairs_.dimension(); }
  point image(const point& x) const override;

  paired_points pairs_;
  double power_a_;
};

/// The same with the weights kernel(D * power_a): power_a is a scale of distance here. Weights that
/// are all 0 give NaN.
class Gaussian_mixture_projection : public point_map {
 public:
  Gaussian_mixture_projection(const point_list& source, const point_list& target, double power_a,
                              double wp, int K, Kernel kernel);

 private:
  Eigen::Index dimension() const override { return pairs_.dimension(); }
  point image(const point& x) const override;

  paired_points pairs_;
  double power_a_;
  Kernel kernel_;
};

/// The same with the weights of ordinary kriging for the covariance kernel(D * power_a). The
/// distance d0 of x from its nearest source counts between any two selected points too, so on the
/// diagonal as well. Singular systems are solved in the sense of least squares.
class OK_projection : public point_map {
 public:
  OK_projection(const point_list& source, const point_list& target, double power_a, double wp,
                int K, Kernel kernel);

 private:
  Eigen::Index dimension() const override { return pairs_.dimension(); }
  point image(const point& x) const override;

  paired_points pairs_;
  double power_a_;
  Kernel kernel_;
};

}  // namespace gravelox
