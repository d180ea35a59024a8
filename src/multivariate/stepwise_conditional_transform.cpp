// SPDX-License-Identifier: MIT
#include "multivariate/stepwise_conditional_transform.hpp"

#include <algorithm>
#include <boost/math/distributions/normal.hpp>
#include <cmath>
#include <limits>
#include <numbers>
#include <span>
#include <stdexcept>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/report.hpp"
#include "common/text.hpp"
#include "multivariate/conditional_mixture.hpp"
#include "multivariate/matrix_checks.hpp"

namespace gravelox {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

void check_params(const GMMParams& params) {
  const Index n = params.n_components;
  if (n < 1 || params.weights.size() != n || params.means.rows() != n ||
      to_index(params.covariances.size()) != n) {
    throw std::invalid_argument("GMM parameters have inconsistent dimensions.");
  }
  check_finite("weights", std::span(params.weights.data(), to_size(params.weights.size())));
  check_matrix("means", params.means);
  const Index d = params.means.cols();
  for (std::size_t k = 0; k < params.covariances.size(); ++k) {
    const MatrixXd& covariance = params.covariances[k];
    const std::string name = text_of("covariances[", k, "]");
    if (covariance.rows() != d || covariance.cols() != d) {
      refuse(name, text_of(d, " x ", d, " values, one row and column per feature"),
             text_of(covariance.rows(), " x ", covariance.cols()));
    }
    check_matrix(name, covariance);
  }
}

GMMParams normalised(GMMParams params) {
  constexpr double tolerance = 1e-6;
  const double sum = params.weights.sum();
  if (sum == 0.0 || !std::isfinite(sum)) refuse("weights", "a sum that is finite and not 0", sum);
  if (std::abs(sum - 1.0) > tolerance) {
    print_to_error("Warning: GMM weights do not sum to 1. Renormalizing.");
    params.weights /= sum;
  }
  return params;
}

/// The normal score of a probability, which belongs to a value at [feature, sample].
double score(double p, Index feature, Index sample) {
  if (p <= 0.0 || p >= 1.0) {
    throw std::overflow_error(text_of("x: the value at [", feature, ", ", sample,
                                      "] has a probability of ", p,
                                      " in the mixture, and its normal score is infinite"));
  }
  return boost::math::quantile(boost::math::normal_distribution<>(), p);
}

/// The probability of a score, held away from 0 and 1.
double probability(double score) {
  const double p = 0.5 * std::erfc(-score / std::numbers::sqrt2);
  return std::max(std::min(p, 0.999999999), 1e-9);
}

}  // namespace

class SCT::model {
 public:
  explicit model(const GMMParams& params)
      : n_features_(params.means.cols()), marginal_(marginal_mixture(params)) {
    for (Index feature = 1; feature < n_features_; ++feature) {
      conditionals_.emplace_back(params, feature);
    }
  }

  Index n_features() const { return n_features_; }

  void score_sample(const double* values, Index sample, ConditionalMixture& mixture,
                    double* scores) const {
    for (Index j = 0; j < n_features_; ++j) {
      const double p = mixture_cdf(mixture_of(j, values, mixture), values[j]);
      scores[j] = std::isnan(p) ? not_a_number : score(p, j, sample);
      if (j == 0 && std::isnan(p)) {
        std::fill_n(scores, n_features_, not_a_number);
        return;
      }
    }
  }

  /// A feature without a value leaves all later ones without.
  void restore_sample(const double* scores, ConditionalMixture& mixture, double* values) const {
    std::fill_n(values, n_features_, not_a_number);
    for (Index j = 0; j < n_features_ && !std::isnan(scores[j]); ++j) {
      values[j] = mixture_root(probability(scores[j]), mixture_of(j, values, mixture));
      if (std::isnan(values[j])) return;
    }
  }

 private:
  /// The distribution of a feature, given the values of those before it.
  const ConditionalMixture& mixture_of(Index feature, const double* values,
                                       ConditionalMixture& buffer) const {
    if (feature == 0) return marginal_;
    conditionals_[to_size(feature - 1)].condition(values, buffer);
    return buffer;
  }

  Index n_features_;
  ConditionalMixture marginal_;
  std::vector<conditional_model> conditionals_;
};

SCT::SCT(const GMMParams& gmm_params) {
  check_params(gmm_params);
  model_ = std::make_shared<const model>(normalised(gmm_params));
}

MatrixXd SCT::forward(const MatrixXd& x) const {
  if (x.rows() != model_->n_features()) {
    throw std::invalid_argument("Input data Z has incorrect number of features.");
  }
  if (x.cols() > 0) check_matrix("x", x);
  MatrixXd scores(x.rows(), x.cols());
  std::vector<ConditionalMixture> mixtures(n_thread_slots(default_n_threads()));
  parallel_for(to_size(x.cols()), default_n_threads(), [&](std::size_t i, int thread_number) {
    const Index sample = to_index(i);
    model_->score_sample(x.col(sample).data(), sample, mixtures[to_size(thread_number)],
                         scores.col(sample).data());
  });
  return scores;
}

MatrixXd SCT::backward(const MatrixXd& x) const {
  if (x.rows() != model_->n_features()) {
    throw std::invalid_argument("Input data SCT_Z has incorrect number of features.");
  }
  MatrixXd values(x.rows(), x.cols());
  std::vector<ConditionalMixture> mixtures(n_thread_slots(default_n_threads()));
  parallel_for(to_size(x.cols()), default_n_threads(), [&](std::size_t i, int thread_number) {
    const Index sample = to_index(i);
    model_->restore_sample(x.col(sample).data(), mixtures[to_size(thread_number)],
                           values.col(sample).data());
  });
  return values;
}

}  // namespace gravelox
