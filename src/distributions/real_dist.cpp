// SPDX-License-Identifier: MIT
#include "distributions/real_dist.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"

namespace gravelox {

std::vector<double> simulate(const real_dist& dist, int n, std::int64_t seed) {
  check_at_least("n", n, 0);
  random_engine engine = create_engine(seed);
  std::vector<double> draws(to_size(n));
  for (double& draw : draws) draw = dist.sampler(engine);
  return draws;
}

std::vector<double> simulate_in_parallel(const real_dist& dist, int n, int n_threads,
                                         std::int64_t seed) {
  check_at_least("n", n, 0);
  random_engine master = create_engine(seed);
  std::vector<random_engine> engines = create_engines(n_thread_slots(n_threads), master);
  std::vector<double> draws(to_size(n));
  parallel_for(draws.size(), n_threads, [&](std::size_t i, int thread_number) {
    draws[i] = dist.sampler(engines[to_size(thread_number)]);
  });
  return draws;
}

std::vector<double> sorted_draws(const real_dist& dist, int n, std::int64_t seed) {
  std::vector<double> draws = simulate(dist, n, seed);
  std::sort(draws.begin(), draws.end());
  return draws;
}

std::pair<std::vector<double>, std::vector<double>> empirical_cdf(const real_dist& dist, int n,
                                                                  std::int64_t seed) {
  std::vector<double> draws = sorted_draws(dist, n, seed);
  std::vector<double> probabilities(draws.size(), 0.0);
  for (std::size_t i = 1; i < probabilities.size(); ++i) {
    probabilities[i] = probabilities[i - 1] + 1.0 / n;
  }
  return {std::move(draws), std::move(probabilities)};
}

std::vector<double> map_values(const std::function<double(double)>& f,
                               const std::vector<double>& values, int n_threads) {
  std::vector<double> results(values.size());
  parallel_for(values.size(), n_threads,
               [&](std::size_t i, int /*thread_number*/) { results[i] = f(values[i]); });
  return results;
}

}  // namespace gravelox
