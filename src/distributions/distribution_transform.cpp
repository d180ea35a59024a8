// SPDX-License-Identifier: MIT
#include "distributions/distribution_transform.hpp"

namespace gravelox {

std::vector<double> DistributionTransform::forward(const std::vector<double>& values,
                                                   int n_threads) const {
  return map_values([this](double x) { return forward(x); }, values, n_threads);
}

std::vector<double> DistributionTransform::backward(const std::vector<double>& values,
                                                    int n_threads) const {
  return map_values([this](double y) { return backward(y); }, values, n_threads);
}

}  // namespace gravelox
