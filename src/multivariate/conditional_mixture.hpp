// SPDX-License-Identifier: MIT
#pragma once

// Mixtures of normals in one dimension, and those that a multivariate one has given some of its
// features.

#include <Eigen/Core>
#include <vector>

#include "multivariate/gaussian_density.hpp"
#include "multivariate/gaussian_mixture.hpp"

namespace gravelox {

/// Three lists that run parallel; empty where no component is of use.
struct ConditionalMixture {
  std::vector<double> means;
  std::vector<double> variances;
  std::vector<double> weights;

  void clear();
  void add(double mean, double variance, double weight);
};

/// The distribution function at v, NaN of an empty mixture. Components without weight or with a
/// variance below 1e-10 do not count.
double mixture_cdf(const ConditionalMixture& mixture, double v);

/// Where the distribution function is p: the middle of a bracket of a relative width of 2^-29. NaN
/// of an empty mixture and where the bracket is not finite; where none is found, NaN and a warning
/// on the standard error.
double mixture_root(double p, const ConditionalMixture& mixture);

/// The distribution of feature 0; variances are at least 1e-10.
ConditionalMixture marginal_mixture(const GMMParams& params);

/// What the distribution of one feature given all features before it needs of a mixture. Immutable.
class conditional_model {
 public:
  conditional_model(const GMMParams& params, Eigen::Index feature);

  /// The distribution at the values of the features before, into a buffer.
  void condition(const double* values, ConditionalMixture& mixture) const;

 private:
  /// A component that may take part, and its regression on the features before.
  struct component {
    double weight;
    double mean;
    double variance;
    Eigen::VectorXd before_mean;
    Eigen::RowVectorXd coefficients;
    gaussian_shape before;
  };

  std::vector<component> components_;
};

}  // namespace gravelox
