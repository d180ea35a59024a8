// SPDX-License-Identifier: MIT
#include "optimization/covariance_search.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstddef>
#include <functional>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/report.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

using model = std::vector<Covariance>;

/// Whatever the seed of the candidates: searches from one list repeat.
constexpr random_engine::result_type improvement_seed = 1213541;

/// What a thread of the search has of its own.
struct alignas(64) searcher {
  searcher(const model& start, double start_error, random_engine::result_type seed)
      : best(start), best_error(start_error), engine(seed) {}

  model best;
  double best_error;
  random_engine engine;
  int iteration = 0;
  int last_upgrade = 0;

  bool keep_if_better(const model& candidate, double error) {
    if (!std::isfinite(error) || !(best_error > error)) return false;
    best_error = error;
    best = candidate;
    last_upgrade = iteration;
    return true;
  }
};

/// A structure with shorter ranges and turned a little.
Covariance shrink_and_tilt(const Covariance& cov, random_engine& engine) {
  if (cov.type == covariance_type::nugget) return cov;
  EllipsoidInfo info = cov.ellipsoid.info();
  engine.discard(2);
  std::array<double, 3> ranges{info.r1, info.r2, info.r3};
  for (double& range : ranges) range *= uniform(engine, 0.1, 1.0);
  for (double* angle : {&info.azimuth, &info.dip, &info.rake}) {
    *angle += uniform(engine, -15.0, 15.0);
  }
  std::sort(ranges.begin(), ranges.end(), std::greater<>());
  const Ellipsoid ellipsoid(ranges[0], ranges[1], ranges[2], info.azimuth, info.dip, info.rake);
  return {cov.type, cov.sill, ellipsoid, cov.kernel};
}

model shrink_and_tilt(const model& covs, random_engine& engine) {
  model result;
  result.reserve(covs.size());
  for (const Covariance& cov : covs) result.push_back(shrink_and_tilt(cov, engine));
  return result;
}

class covariance_search {
 public:
  covariance_search(const model& start, const CovarianceErrorFunction& error, int n_threads,
                    bool debug)
      : error_(error),
        n_threads_(to_int(n_thread_slots(n_threads))),
        debug_(debug),
        best_(start),
        best_error_(error(start, n_threads_)) {
    random_engine master(improvement_seed);
    searchers_.reserve(to_size(n_threads_));
    for (int i = 0; i < n_threads_; ++i) searchers_.emplace_back(best_, best_error_, master());
  }

  void scan(const std::vector<model>& covs, int n_iterations, int n_iterations_without_upgrade) {
    run_tries(covs.size(), [&](std::size_t i, int thread_number) {
      searcher& mine = searchers_[to_size(thread_number)];
      // Skipped candidates count too.
      ++mine.iteration;
      if (mine.iteration > n_iterations) return;
      if (mine.iteration - mine.last_upgrade > n_iterations_without_upgrade) return;
      rate(covs[i], mine, thread_number, "");
    });
    merge();
    if (debug_) {
      print_to_both(text_of("Best model: ", best_));
      print_to_both(text_of("Best error: ", best_error_));
    }
  }

  void improve(std::size_t n_iterations) {
    run_tries(n_iterations + to_size(n_threads_), [&](std::size_t /*i*/, int thread_number) {
      searcher& mine = searchers_[to_size(thread_number)];
      rate(shrink_and_tilt(mine.best, mine.engine), mine, thread_number, "[scale improvement] ");
    });
    merge();
  }

  std::pair<model, double> best() const { return {best_, best_error_}; }

 private:
  /// Tries on all threads; the first one that throws ends those that have not begun.
  template <typename Try>
  void run_tries(std::size_t n, const Try& attempt) {
    std::atomic<bool> has_failed = false;
    parallel_for(n, n_threads_, [&](std::size_t i, int thread_number) {
      if (has_failed) return;
      try {
        attempt(i, thread_number);
      } catch (...) {
        has_failed = true;
        throw;
      }
    });
  }

  void rate(const model& candidate, searcher& mine, int thread_number, const char* phase) {
    const double error = error_(candidate, 1);
    if (mine.keep_if_better(candidate, error) && debug_) {
      print_to_both(text_of(phase, "Thread ", thread_number, " found a better cov: ", candidate,
                            " with error ", error));
    }
  }

  /// The best of the threads; of equal ones the lower thread's. Each thread keeps its own.
  void merge() {
    for (const searcher& one : searchers_) {
      if (best_error_ > one.best_error) {
        best_error_ = one.best_error;
        best_ = one.best;
      }
    }
  }

  const CovarianceErrorFunction& error_;
  int n_threads_;
  bool debug_;
  model best_;
  double best_error_;
  std::vector<searcher> searchers_;
};

}  // namespace

std::pair<model, double> optimize_covariance(const std::vector<model>& covs,
                                             const CovarianceErrorFunction& error_function,
                                             int n_iterations, int n_iterations_without_upgrade,
                                             int n_threads, bool debug) {
  check_not_empty("covs", covs.size());
  check_at_least("n_iterations", n_iterations, 0);
  check_at_least("n_iterations_without_upgrade", n_iterations_without_upgrade, 0);
  covariance_search search(covs.front(), error_function, n_threads, debug);
  search.scan(covs, n_iterations, n_iterations_without_upgrade);
  search.improve(to_size(n_iterations));
  return search.best();
}

}  // namespace gravelox
