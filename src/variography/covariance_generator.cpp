// SPDX-License-Identifier: MIT
#include "variography/covariance_generator.hpp"

#include <algorithm>
#include <numeric>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/random.hpp"

namespace gravelox {

namespace {

/// Ranges of the structures, relative to the ellipsoid's largest: the sums behind them grow from
/// one structure to the next, and the lengths add up to a draw on [min_range, max_range).
std::vector<Eigen::Vector3d> draw_range_vectors(random_engine& engine, std::size_t n_kernels,
                                                double min_range, double max_range) {
  std::vector<Eigen::Vector3d> vectors;
  Eigen::Vector3d sums = Eigen::Vector3d::Zero();
  double total_length = 0.0;
  for (std::size_t k = 0; k < n_kernels; ++k) {
    const double a = uniform01(engine) + min_range;
    const double b = a + uniform01(engine);
    const double c = b + uniform01(engine);
    sums += Eigen::Vector3d(c, b, a);
    const double length = uniform01(engine);
    vectors.emplace_back(sums.normalized() * length);
    total_length += vectors.back().norm();
  }
  const double scale = uniform(engine, min_range, max_range) / total_length;
  for (Eigen::Vector3d& vector : vectors) vector *= scale;
  return vectors;
}

void normalise(std::vector<double>& sills) {
  const double sum = std::accumulate(sills.begin(), sills.end(), 0.0);
  for (double& sill : sills) sill /= sum;
}

}  // namespace

std::vector<std::vector<Covariance>> generate_covariances(const Ellipsoid& ellipsoid, int n_kernels,
                                                          const Kernel& cov_kernel, int n_covs,
                                                          int seed, double delta_angle,
                                                          double min_str_range,
                                                          double max_str_range, double min_sill,
                                                          double max_sill) {
  check_at_least("n_kernels", n_kernels, 0);
  random_engine engine = create_engine(seed);
  const EllipsoidInfo info = ellipsoid.info();
  const double largest_range = std::max({info.r1, info.r2, info.r3});
  const auto turned = [&](double angle) {
    return angle + uniform(engine, -delta_angle, delta_angle);
  };

  std::vector<std::vector<Covariance>> models;
  for (int c = 0; c < n_covs; ++c) {
    const bool is_first = c == 0;
    const std::vector<Eigen::Vector3d> ranges =
        draw_range_vectors(engine, to_size(n_kernels), min_str_range, max_str_range);
    std::vector<Ellipsoid> ellipsoids;
    std::vector<double> sills;
    for (const Eigen::Vector3d& q : ranges) {
      if (is_first) {
        ellipsoids.push_back(ellipsoid);
      } else {
        const double azimuth = turned(info.azimuth);
        const double dip = turned(info.dip);
        const double rake = turned(info.rake);
        ellipsoids.emplace_back(largest_range * q, Eigen::Vector3d(azimuth, dip, rake));
      }
      sills.push_back(uniform(engine, min_sill, max_sill));
    }
    sills.push_back(is_first ? 0.0 : uniform(engine, min_sill, max_sill));
    normalise(sills);

    std::vector<Covariance>& model = models.emplace_back();
    for (std::size_t k = 0; k < ellipsoids.size(); ++k) {
      model.emplace_back(Covariance::Type::spherical, sills[k], ellipsoids[k], cov_kernel);
    }
    model.push_back(Covariance::nugget(sills.back()));
  }
  return models;
}

}  // namespace gravelox
