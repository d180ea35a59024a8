// SPDX-License-Identifier: MIT
#include "optimization/ellipsoid_fit.hpp"

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/least_squares_detail.hpp"
#include "common/memory.hpp"
#include "common/random.hpp"
#include "common/robust_power.hpp"
#include "common/statistics.hpp"
#include "common/text.hpp"
#include "optimization/structure_fit_detail.hpp"

namespace gravelox {

namespace {

/// The errors at the test samples of one partition, estimated from its conditioning samples.
struct KfoldOptimization {
  covariance_type type;
  std::vector<double> conditioning_values;
  location_list conditioning_locs;
  std::vector<double> test_values;
  location_list test_locs;

  int n_residuals() const { return to_int(test_values.size() + 1); }

  template <typename T>
  bool operator()(T const* const* parameters, T* residuals) const {
    const generic_cov<T> cov = detail::create_fitted_cov<T>(type, parameters[0]);
    const std::size_t n = test_values.size();
    T bias(0.0);
    for (std::size_t i = 0; i < n; ++i) {
      residuals[i] = residual(cov, test_locs[i], test_values[i]);
      bias += residuals[i];
    }
    // Without tests this is not a number, and the solver stops where it starts.
    residuals[n] = robust_power(T(2.0 * bias / T(static_cast<double>(n))), 0.5);
    return true;
  }

 private:
  template <typename T>
  T residual(const generic_cov<T>& cov, const location& test_loc, double test_value) const {
    constexpr double coincident = 1e-8;
    constexpr double threshold = 1e-8;
    T sum(0.0);
    T weights(0.0);
    for (std::size_t j = 0; j < conditioning_locs.size(); ++j) {
      const location lag = test_loc - conditioning_locs[j];
      if (lag.norm() < coincident) continue;
      const T g = 1.0 - cov(lag.cast<T>());
      const T weight = 1.0 / (g * g * g);
      sum += weight * conditioning_values[j];
      weights += weight;
    }
    if (weights < T(threshold)) return T(0.0);
    return robust_power(T(2.0 * (sum / weights - test_value)), 0.5);
  }
};

fold_list standardize(fold_list folds) {
  std::vector<double> all;
  for (const fold& one : folds) all.insert(all.end(), one.second.begin(), one.second.end());
  const moments scale = compute_moments(all);
  for (fold& one : folds) one.second = standardized(one.second, scale);
  return folds;
}

/// The number of conditioning samples of a partition out of n.
std::size_t draw_size(std::size_t n, int min_partition_size, std::uint32_t n_sizes,
                      random_engine& engine) {
  std::int64_t size = min_partition_size + static_cast<std::int64_t>(engine() % n_sizes);
  if (size > static_cast<std::int64_t>(n)) size = static_cast<std::int64_t>(n) - 2;
  if (size < 1) {
    refuse("folds", "partitions of at least 1 conditioning sample",
           text_of(size, " from a fold of ", n));
  }
  return static_cast<std::size_t>(size);
}

KfoldOptimization draw_partition(const fold& one, covariance_type type, std::size_t size,
                                 random_engine& engine) {
  const auto& [locs, values] = one;
  std::vector<std::size_t> samples(values.size());
  std::iota(samples.begin(), samples.end(), std::size_t{0});
  shuffle(samples, engine);
  KfoldOptimization partition{type, {}, {}, {}, {}};
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const bool is_test = i >= size;
    (is_test ? partition.test_locs : partition.conditioning_locs).push_back(locs[samples[i]]);
    (is_test ? partition.test_values : partition.conditioning_values).push_back(values[samples[i]]);
  }
  return partition;
}

}  // namespace

Ellipsoid optimize_ellipsoid_using_kfold(const fold_list& folds, const std::string& cov_type,
                                         double r1_max, double r2_max, double r3_max,
                                         double regularization_const, double cauchy_loss,
                                         int min_partition_size, int max_partition_size,
                                         int n_partitions, int n_iterations, int seed,
                                         int n_threads, bool debug, double* final_cost) {
  const covariance_type type = to_fitted_type("cov_type", cov_type);
  check_folds("folds", folds);
  check_positive("r1_max", r1_max);
  check_positive("r2_max", r2_max);
  check_positive("r3_max", r3_max);
  check_at_least("min_partition_size", min_partition_size, 1);
  check_at_least("n_partitions", n_partitions, 0);
  check_at_least("n_iterations", n_iterations, 0);
  double n_residuals = static_cast<double>(folds.size());
  for (const fold& one : folds) n_residuals += static_cast<double>(one.first.size());
  check_memory("n_partitions",
               detail::memory_of_fit(n_residuals * n_partitions, detail::n_structure_parameters));
  // A largest size below the smallest wraps around, to sizes that no fold has.
  const std::uint32_t n_sizes = static_cast<std::uint32_t>(max_partition_size) -
                                static_cast<std::uint32_t>(min_partition_size);
  if (n_sizes == 0) {
    refuse("max_partition_size", "another number than min_partition_size", max_partition_size);
  }

  detail::least_squares_problem problem(
      {1.0, r1_max / 2.0, r2_max / 2.0, r3_max / 2.0, 0.0, 0.0, 0.0});
  random_engine engine = create_engine(seed);
  for (const fold& one : standardize(folds)) {
    for (int k = 0; k < n_partitions; ++k) {
      const std::size_t size = draw_size(one.second.size(), min_partition_size, n_sizes, engine);
      const KfoldOptimization partition = draw_partition(one, type, size, engine);
      problem.add(partition, partition.n_residuals(), detail::loss_scale_of(cauchy_loss));
    }
  }
  if (regularization_const > 0.0) {
    const detail::Regularization prior{r1_max, r2_max, r3_max, regularization_const, 1};
    problem.add(prior, prior.n_residuals(), 0.0);
  }
  problem.set_bounds(0, 0.0001, 1.0001);
  problem.set_bounds(1, 0.001 * r1_max, r1_max);
  problem.set_bounds(2, 0.001 * r2_max, r2_max);
  problem.set_bounds(3, 0.001 * r3_max, r3_max);
  const double cost = problem.solve({n_iterations, n_threads, debug}).final_cost;
  if (final_cost != nullptr) *final_cost = cost;
  return detail::fitted_ellipsoid(problem.parameters().data());
}

}  // namespace gravelox
