// SPDX-License-Identifier: MIT
// The density of a multivariate Gaussian, which scripts reach through mixtures only.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>

#include "multivariate/gaussian_density.hpp"

namespace gravelox {
namespace {

using Eigen::MatrixXd;
using Eigen::VectorXd;

TEST(GaussianDensity, IsTheClosedFormOfTwoDimensions) {
  const double sx = 2.0;
  const double sy = 0.5;
  const double r = 0.8;
  const MatrixXd covariance{{sx * sx, r * sx * sy}, {r * sx * sy, sy * sy}};
  const VectorXd mean{{10.0, -3.0}};
  const VectorXd x{{11.0, -3.4}};
  const double u = (x[0] - mean[0]) / sx;
  const double v = (x[1] - mean[1]) / sy;
  const double square = (u * u - 2.0 * r * u * v + v * v) / (1.0 - r * r);
  const double expected =
      std::exp(-square / 2.0) / (2.0 * std::numbers::pi * sx * sy * std::sqrt(1.0 - r * r));
  EXPECT_NEAR(gaussian_density(x, mean, covariance), expected, 1e-14 * expected);
  const MatrixXd table = x.transpose().replicate(gaussian_shape::block_size, 1);
  VectorXd densities(gaussian_shape::block_size);
  gaussian_shape(covariance).densities(table, 3, 9, mean.data(), densities.data());
  for (Eigen::Index i = 0; i < 9; ++i)
    EXPECT_EQ(densities[i], gaussian_density(x, mean, covariance));
}

TEST(GaussianDensity, VanishesFarAwayAndWhereTheCovarianceIsSingular) {
  const VectorXd origin = VectorXd::Zero(2);
  const MatrixXd unit = MatrixXd::Identity(2, 2);
  // The exponent is -700 at this distance.
  const double limit = std::sqrt(1400.0 - 2.0 * std::log(2.0 * std::numbers::pi));
  EXPECT_GT(gaussian_density(VectorXd{{limit - 1e-9, 0.0}}, origin, unit), 0.0);
  EXPECT_EQ(gaussian_density(VectorXd{{limit + 1e-9, 0.0}}, origin, unit), 0.0);
  EXPECT_EQ(gaussian_density(origin, origin, MatrixXd::Ones(2, 2)), 0.0);
  EXPECT_GT(gaussian_density(origin, origin, unit * 1.01e-12), 0.0);
  EXPECT_EQ(gaussian_density(origin, origin, unit * 0.99e-12), 0.0);
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(gaussian_density(origin, origin, unit * infinity), 0.0);
  EXPECT_EQ(gaussian_density(VectorXd(), VectorXd(), MatrixXd()), 1.0);
  EXPECT_THROW(gaussian_density(origin, origin, MatrixXd::Identity(3, 3)), std::invalid_argument);
}

}  // namespace
}  // namespace gravelox
