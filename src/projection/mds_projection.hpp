// SPDX-License-Identifier: MIT
#pragma once

// A radial basis map between spaces of different dimensions, fitted to pairs of points.

#include <Eigen/Core>

#include "projection/point_list.hpp"
#include "variography/kernel.hpp"

namespace gravelox {

/// The sum over control points c of kernel(|x - c| * power_a) times a row of weights, which are
/// fitted to target[i] at source[i] by least squares.
class MDS_projection : public point_map {
 public:
  /// Throws std::invalid_argument for empty lists, sources and targets of different numbers,
  /// points of different dimensions within a list, control points of another dimension than the
  /// sources, and coordinates that are not finite. Kernel values that are not finite give NaN.
  MDS_projection(const point_list& source, const point_list& target,
                 const point_list& control_points, double power_a, Kernel kernel);

 private:
  Eigen::Index dimension() const override { return control_points_.rows(); }
  point image(const point& x) const override;

  Eigen::MatrixXd control_points_;
  double power_a_;
  Eigen::MatrixXd weights_;
  Kernel kernel_;
};

}  // namespace gravelox
