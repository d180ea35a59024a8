// SPDX-License-Identifier: MIT
#include "variography/kernel_table.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"

namespace gravelox {

namespace {

using table = std::shared_ptr<const std::vector<double>>;

/// The shared table of the structure's type, filled anew where it is shorter than n.
table shared_table(const Covariance& cov, std::size_t n) {
  static std::mutex mutex;
  static std::array<table, 3> tables;

  const std::lock_guard lock(mutex);
  table& current = tables.at(to_size(static_cast<int>(cov.type)) - 1);
  if (!current || current->size() < n) {
    std::vector<double> values(n);
    for (std::size_t i = 0; i < n; ++i) {
      values[i] = cov.kernel(static_cast<double>(i) / static_cast<double>(n));
    }
    current = std::make_shared<const std::vector<double>>(std::move(values));
  }
  return current;
}

double beyond_table(covariance_type type, double a) {
  return type == covariance_type::spherical  ? 0.0
         : type == covariance_type::gaussian ? std::exp(-3.0 * a * a)
                                             : std::exp(-3.0 * a);
}

}  // namespace

Kernel get_kernel(const Covariance& cov, int n) {
  check_at_least("n", n, 0);
  if (cov.type != covariance_type::spherical && cov.type != covariance_type::gaussian &&
      cov.type != covariance_type::exponential) {
    return cov.kernel;
  }
  return Kernel([values = shared_table(cov, to_size(n)), type = cov.type, n](double h) {
    const double a = std::abs(h);
    const double step = n * a;
    return step < n ? (*values)[static_cast<std::size_t>(step)] : beyond_table(type, a);
  });
}

}  // namespace gravelox
