// SPDX-License-Identifier: MIT
#pragma once

// real_dist: any univariate distribution, as four callables.

#include <functional>
#include <vector>

#include "common/random.hpp"

namespace gravelox {

/// The least and greatest probabilities that the quantile of a parametric distribution sees: those
/// of 0 and 1 may be infinite.
constexpr double least_probability = 1e-16;
constexpr double greatest_probability = 0.9999999999999999;

/// A distribution by value; copies share what the callables hold, which never changes. Many threads
/// may call them at once, each with an engine of its own.
struct real_dist {
  std::function<double(random_engine&)> sampler;  // one draw, from one uniform
  std::function<double(double)> quantile;         // of a probability
  std::function<double(double)> cdf;              // at a value
  std::function<double(double)> pdf;              // at a value
};

/// n draws in order from one engine of the seed. This and the others throw std::invalid_argument
/// for a negative n.
std::vector<double> simulate(const real_dist& dist, int n, std::int64_t seed = 12515);

/// n draws in parallel: a master engine of the seed gives each thread the seed of its own engine,
/// and each thread fills a stretch of its own. The result repeats for the same number of threads.
std::vector<double> simulate_in_parallel(const real_dist& dist, int n, int n_threads = 0,
                                         std::int64_t seed = 12515);

/// The draws of `simulate`, ascending.
std::vector<double> sorted_draws(const real_dist& dist, int n, std::int64_t seed = 12515);

/// The same beside probabilities 0, 1 / n, 2 / n, ...
std::pair<std::vector<double>, std::vector<double>> empirical_cdf(const real_dist& dist, int n,
                                                                  std::int64_t seed = 12515);

/// f of each element, in parallel.
std::vector<double> map_values(const std::function<double(double)>& f,
                               const std::vector<double>& values, int n_threads = 0);

/// The distribution function and the quantile of a distribution.
struct CDF {
  real_dist dist;

  double value(double x) const { return dist.cdf(x); }
  double prob(double p) const { return dist.quantile(p); }
};

}  // namespace gravelox
