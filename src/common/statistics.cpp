// SPDX-License-Identifier: MIT
#include "common/statistics.hpp"

#include <cmath>

namespace gravelox {

moments compute_moments(std::span<const double> values) {
  const auto n = static_cast<double>(values.size());
  double mean = 0.0;
  for (const double value : values) mean += value / n;
  double variance = 0.0;
  for (const double value : values) variance += (value - mean) * (value - mean) / n;
  return {mean, std::sqrt(variance)};
}

std::vector<double> standardized(std::span<const double> values, const moments& scale) {
  std::vector<double> result;
  result.reserve(values.size());
  for (const double value : values) result.push_back((value - scale.mean) / scale.deviation);
  return result;
}

}  // namespace gravelox
