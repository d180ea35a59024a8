// SPDX-License-Identifier: MIT
#include "projection/blended_projections.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/text.hpp"
#include "projection/thin_svd_detail.hpp"

namespace gravelox {

paired_points::paired_points(const point_list& source, const point_list& target, double wp, int K)
    : source_(columns_of("source", source)),
      target_(columns_of("target", target)),
      wp_(wp),
      K_(static_cast<std::size_t>(K)) {
  check_same_size("target", target.size(), source.size(), "source point");
  if (target_.rows() != source_.rows()) {
    refuse("target", text_of("points of ", source_.rows(), " coordinates, as in source"),
           text_of(target_.rows()));
  }
  check_at_least("K", K, 1);
  if (K_ > source.size()) {
    refuse("K", text_of("at most the number of points, ", source.size()), text_of(K));
  }
}

std::pair<Eigen::Index, double> paired_points::nearest_source(const point& x) const {
  constexpr double farthest = 1e30;
  std::pair<Eigen::Index, double> nearest{-1, farthest};
  double least_square = std::numeric_limits<double>::infinity();
  for (Eigen::Index i = 0; i < source_.cols(); ++i) {
    const double square = (x - source_.col(i)).squaredNorm();
    if (!(square < least_square)) continue;
    const double d = std::sqrt(square);
    if (d < nearest.second) {
      nearest = {i, d};
      least_square = square;
    }
  }
  if (nearest.first < 0) refuse("x", "a point within 1e30 of a source point", "none within it");
  return nearest;
}

paired_points::selection paired_points::select(const point& x) const {
  const auto nearest = nearest_source(x);
  const double d0 = nearest.second;
  const auto image = target_.col(nearest.first);
  std::vector<std::pair<double, Eigen::Index>> by_distance;
  by_distance.reserve(to_size(target_.cols()));
  for (Eigen::Index i = 0; i < target_.cols(); ++i) {
    by_distance.emplace_back((image - target_.col(i)).norm(), i);
  }
  const auto end = by_distance.begin() + static_cast<std::ptrdiff_t>(K_);
  std::partial_sort(by_distance.begin(), end, by_distance.end());

  selection selected{d0, {}, {}};
  selected.ids.reserve(K_);
  selected.distances.reserve(K_);
  std::for_each(by_distance.begin(), end, [&](const auto& candidate) {
    const auto& [target_distance, j] = candidate;
    const double source_distance = (x - source_.col(j)).norm();
    selected.ids.push_back(j);
    selected.distances.push_back((target_distance + d0) * wp_ + (1.0 - wp_) * source_distance);
  });
  return selected;
}

double paired_points::distance(Eigen::Index a, Eigen::Index b, double d0) const {
  return ((target_.col(a) - target_.col(b)).norm() + d0) * wp_ +
         (1.0 - wp_) * (source_.col(a) - source_.col(b)).norm();
}

point paired_points::blend(const std::vector<Eigen::Index>& ids, const double* weights) const {
  point sum = point::Zero(target_.rows());
  for (const Eigen::Index id : ids) sum += *weights++ * target_.col(id);
  return sum;
}

namespace {

/// The weighted mean of the selected images; weight(D) gives the weight at a blend distance.
template <typename Weight>
point weighted_mean(const paired_points& pairs, const point& x, const Weight& weight) {
  const paired_points::selection selected = pairs.select(x);
  std::vector<double> weights;
  weights.reserve(selected.distances.size());
  double sum = 0.0;
  for (const double d : selected.distances) {
    weights.push_back(weight(d));
    sum += weights.back();
  }
  return pairs.blend(selected.ids, weights.data()) / sum;
}

}  // namespace

IDW_projection::IDW_projection(const point_list& source, const point_list& target, double power_a,
                               double wp, int K)
    : pairs_(source, target, wp, K), power_a_(power_a) {}

point IDW_projection::image(const point& x) const {
  constexpr double offset = 1e-10;
  return weighted_mean(pairs_, x,
                       [this](double d) { return 1.0 / std::pow(d + offset, power_a_); });
}

Gaussian_mixture_projection::Gaussian_mixture_projection(const point_list& source,
                                                         const point_list& target, double power_a,
                                                         double wp, int K, Kernel kernel)
    : pairs_(source, target, wp, K), power_a_(power_a), kernel_(std::move(kernel)) {}

point Gaussian_mixture_projection::image(const point& x) const {
  return weighted_mean(pairs_, x, [this](double d) { return kernel_(d * power_a_); });
}

OK_projection::OK_projection(const point_list& source, const point_list& target, double power_a,
                             double wp, int K, Kernel kernel)
    : pairs_(source, target, wp, K), power_a_(power_a), kernel_(std::move(kernel)) {}

point OK_projection::image(const point& x) const {
  const paired_points::selection selected = pairs_.select(x);
  const Eigen::Index n = to_index(selected.ids.size());
  Eigen::MatrixXd left = Eigen::MatrixXd::Ones(n + 1, n + 1);
  Eigen::VectorXd right = Eigen::VectorXd::Ones(n + 1);
  left(n, n) = 0.0;
  for (Eigen::Index a = 0; a < n; ++a) {
    for (Eigen::Index b = 0; b <= a; ++b) {
      const double d =
          pairs_.distance(selected.ids[to_size(a)], selected.ids[to_size(b)], selected.d0);
      left(a, b) = left(b, a) = kernel_(d * power_a_);
    }
    right[a] = kernel_(selected.distances[to_size(a)] * power_a_);
  }
  const Eigen::VectorXd weights = detail::solve_by_thin_svd(left, right);
  return pairs_.blend(selected.ids, weights.data());
}

}  // namespace gravelox
