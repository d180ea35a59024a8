// SPDX-License-Identifier: MIT
#pragma once

// One distribution mapped onto another, such as data onto the Gaussian: the normal score.

#include <utility>
#include <vector>

#include "distributions/real_dist.hpp"

namespace gravelox {

/// An immutable pair of distributions; many threads may use it at once. Values go through the
/// distribution function of one and the quantile of the other; there is no model of tails beside
/// theirs.
class DistributionTransform {
 public:
  DistributionTransform(real_dist source, real_dist target)
      : source_{std::move(source)}, target_{std::move(target)} {}

  double forward(double x) const { return target_.prob(source_.value(x)); }
  double backward(double y) const { return source_.prob(target_.value(y)); }

  /// The same for each element, in parallel.
  std::vector<double> forward(const std::vector<double>& values, int n_threads = 0) const;
  std::vector<double> backward(const std::vector<double>& values, int n_threads = 0) const;

 private:
  CDF source_;
  CDF target_;
};

}  // namespace gravelox
