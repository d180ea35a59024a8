// SPDX-License-Identifier: MIT
#include "multivariate/conditional_mixture.hpp"

#include <algorithm>
#include <boost/math/tools/toms748_solve.hpp>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <limits>
#include <numbers>
#include <utility>

#include "common/integer.hpp"
#include "common/report.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

constexpr double least_variance = 1e-10;
constexpr double least_weight = 1e-100;
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

double normal_cdf(double v, double mean, double variance) {
  return 0.5 * std::erfc(-(v - mean) / (std::sqrt(variance) * std::numbers::sqrt2));
}

struct bracket {
  double lo;
  double hi;
};

/// An interval about the mean that widens by a fixed step on each side that fails.
bracket bracket_root(double p, const ConditionalMixture& mixture) {
  double mean = 0.0;
  for (std::size_t k = 0; k < mixture.means.size(); ++k)
    mean += mixture.weights[k] * mixture.means[k];
  double variance = 0.0;
  for (std::size_t k = 0; k < mixture.means.size(); ++k) {
    const double deviation = mixture.means[k] - mean;
    variance += mixture.weights[k] * (mixture.variances[k] + deviation * deviation);
  }
  const double step = 5.0 * std::sqrt(std::max(variance, 1e-8)) + 1e-9;
  bracket around{mean - step, mean + step};
  constexpr int max_passes = 30;
  for (int pass = 0; pass < max_passes; ++pass) {
    const double at_lo = mixture_cdf(mixture, around.lo);
    const double at_hi = mixture_cdf(mixture, around.hi);
    if (at_lo <= p && p <= at_hi) break;
    if (at_lo > p) around.lo -= step;
    if (p > at_hi) around.hi += step;
  }
  if (around.lo >= around.hi) around.hi = around.lo + 100.0;
  return around;
}

}  // namespace

void ConditionalMixture::clear() {
  means.clear();
  variances.clear();
  weights.clear();
}

void ConditionalMixture::add(double mean, double variance, double weight) {
  means.push_back(mean);
  variances.push_back(variance);
  weights.push_back(weight);
}

double mixture_cdf(const ConditionalMixture& mixture, double v) {
  if (mixture.means.empty()) return not_a_number;
  double sum = 0.0;
  for (std::size_t k = 0; k < mixture.means.size(); ++k) {
    if (!(mixture.weights[k] > 0.0) || !(mixture.variances[k] >= least_variance)) continue;
    sum += mixture.weights[k] * normal_cdf(v, mixture.means[k], mixture.variances[k]);
  }
  return std::clamp(sum, 0.0, 1.0);
}

double mixture_root(double p, const ConditionalMixture& mixture) {
  if (mixture.means.empty()) return not_a_number;
  const auto [lo, hi] = bracket_root(p, mixture);
  if (!std::isfinite(lo) || !std::isfinite(hi)) return not_a_number;
  constexpr int n_bits = 30;
  std::uintmax_t max_evaluations = 100;
  try {
    const auto [a, b] = boost::math::tools::toms748_solve(
        [&](double v) { return mixture_cdf(mixture, v) - p; }, lo, hi,
        boost::math::tools::eps_tolerance<double>(n_bits), max_evaluations);
    return a + (b - a) / 2.0;
  } catch (const std::exception& failure) {
    print_to_error(text_of("Warning: Root finding failed with exception: ", failure.what()));
    return not_a_number;
  }
}

ConditionalMixture marginal_mixture(const GMMParams& params) {
  ConditionalMixture marginal;
  for (Eigen::Index k = 0; k < params.weights.size(); ++k) {
    const double variance = params.covariances[to_size(k)](0, 0);
    marginal.add(params.means(k, 0), std::max(variance, least_variance), params.weights[k]);
  }
  return marginal;
}

conditional_model::conditional_model(const GMMParams& params, Eigen::Index feature) {
  for (Eigen::Index k = 0; k < params.weights.size(); ++k) {
    const Eigen::MatrixXd& covariance = params.covariances[to_size(k)];
    gaussian_shape before(covariance.topLeftCorner(feature, feature));
    if (before.is_singular()) continue;
    const Eigen::RowVectorXd c = covariance.row(feature).head(feature);
    const Eigen::RowVectorXd coefficients = c * before.inverse();
    const double variance = covariance(feature, feature) - coefficients.dot(c);
    if (variance < least_variance) continue;
    components_.push_back({params.weights[k], params.means(k, feature), variance,
                           params.means.row(k).head(feature), coefficients, std::move(before)});
  }
}

void conditional_model::condition(const double* values, ConditionalMixture& mixture) const {
  mixture.clear();
  double sum = 0.0;
  for (const component& one : components_) {
    const double weight = one.weight * one.before.density(values, one.before_mean.data());
    if (!(weight > least_weight)) continue;
    double mean = 0.0;
    for (Eigen::Index i = 0; i < one.coefficients.size(); ++i) {
      mean += one.coefficients[i] * (values[i] - one.before_mean[i]);
    }
    mixture.add(one.mean + mean, one.variance, weight);
    sum += weight;
  }
  for (double& weight : mixture.weights) weight /= sum;
}

}  // namespace gravelox
