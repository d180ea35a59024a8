// SPDX-License-Identifier: MIT
#include "projection/scaling_search.hpp"

#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/report.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

/// Points as columns.
using configuration = Eigen::MatrixXf;

/// The known distances from each point, those of a point side by side and by the other's place.
class adjacency {
 public:
  adjacency(std::size_t n, const std::vector<distance_triple>& D) : first_(n + 1, 0) {
    std::vector<std::map<int, float>> neighbors(n);
    for (const auto& [i, j, distance] : D) {
      const auto d = static_cast<float>(distance);
      if (d < 1e-30 || i == j) continue;
      neighbors[to_size(i)].emplace(j, d);
      neighbors[to_size(j)].emplace(i, d);
    }
    for (std::size_t i = 0; i < n; ++i) {
      for (const auto& [j, d] : neighbors[i]) neighbors_.push_back({j, d});
      first_[i + 1] = neighbors_.size();
    }
  }

  std::size_t n_points() const { return first_.size() - 1; }

  /// Pairs, each direction counted.
  std::size_t n_directed_pairs() const { return neighbors_.size(); }

  /// visit(j, d) for the neighbours of point i.
  template <typename Visit>
  void for_each(Eigen::Index i, const Visit& visit) const {
    for (std::size_t k = first_[to_size(i)]; k < first_[to_size(i) + 1]; ++k) {
      visit(Eigen::Index{neighbors_[k].j}, neighbors_[k].d);
    }
  }

 private:
  struct neighbor {
    int j;
    float d;
  };

  std::vector<std::size_t> first_;
  std::vector<neighbor> neighbors_;
};

float misfit(const configuration& points, Eigen::Index i, Eigen::Index j, float d) {
  float sum_of_squares = 0.0F;
  for (Eigen::Index axis = 0; axis < points.rows(); ++axis) {
    const float difference = points(axis, i) - points(axis, j);
    sum_of_squares += difference * difference;
  }
  return std::abs(std::sqrt(sum_of_squares) - d);
}

/// One thread's configuration and what its tries need.
class alignas(64) solution {
 public:
  solution(const adjacency& pairs, configuration start, random_engine engine)
      : pairs_(pairs),
        points_(std::move(start)),
        engine_(engine),
        order_(pairs.n_points(), untouched) {}

  const configuration& points() const { return points_; }
  float error() const { return error_; }

  void copy(const configuration& points, float error) {
    points_ = points;
    error_ = error;
  }

  /// The error of all pairs, summed anew.
  void sum_up() {
    for (std::size_t i = 0; i < pairs_.n_points(); ++i) take(i);
    error_ = error_of_moved();
    let_go();
  }

  void try_move(const std::vector<float>& distortions, float scale, std::uint32_t max_size) {
    const float distortion = distortions[engine_() % distortions.size()] * scale;
    const std::size_t count = 1 + engine_() % max_size;
    for (std::size_t k = 0; k < count; ++k) take(engine_() % pairs_.n_points());
    const float before = error_of_moved();
    save();
    move(distortion);
    const float after = error_of_moved();
    if (before > after) {
      error_ += after - before;
    } else {
      restore();
    }
    let_go();
  }

 private:
  static constexpr std::size_t untouched = static_cast<std::size_t>(-1);

  /// Puts a point among the moved ones, if it is not there.
  void take(std::size_t i) {
    if (order_[i] != untouched) return;
    order_[i] = moved_.size();
    moved_.push_back(to_index(i));
  }

  void let_go() {
    for (const Eigen::Index i : moved_) order_[to_size(i)] = untouched;
    moved_.clear();
  }

  void save() {
    saved_.resize(points_.rows(), to_index(moved_.size()));
    Eigen::Index k = 0;
    for (const Eigen::Index i : moved_) saved_.col(k++) = points_.col(i);
  }

  void restore() {
    Eigen::Index k = 0;
    for (const Eigen::Index i : moved_) points_.col(i) = saved_.col(k++);
  }

  /// The error of the pairs of moved points; a pair of two of them counts with the first.
  float error_of_moved() const {
    float sum = 0.0F;
    for (std::size_t k = 0; k < moved_.size(); ++k) {
      const Eigen::Index i = moved_[k];
      pairs_.for_each(i, [&](Eigen::Index j, float d) {
        const std::size_t other = order_[to_size(j)];
        if (other == untouched || other > k) sum += 2.0F * misfit(points_, i, j, d) / d;
      });
    }
    return sum;
  }

  void move(float distortion) {
    float_normal_distribution normal;  // the second of a pair serves within a try
    for (const Eigen::Index i : moved_) {
      for (float& x : points_.col(i)) x += distortion * normal(engine_);
    }
  }

  const adjacency& pairs_;
  configuration points_;
  float error_ = 0.0F;
  random_engine engine_;
  std::vector<std::size_t> order_;  ///< the place of a moved point among them
  std::vector<Eigen::Index> moved_;
  configuration saved_;
};

double mean_absolute_error(const configuration& points, const adjacency& pairs) {
  double sum = 0.0;
  for (Eigen::Index i = 0; i < points.cols(); ++i) {
    pairs.for_each(
        i, [&](Eigen::Index j, float d) { sum += static_cast<double>(misfit(points, i, j, d)); });
  }
  return sum / static_cast<double>(pairs.n_directed_pairs());
}

/// The solutions of all threads and the best of them.
class competition {
 public:
  competition(const configuration& guess, const adjacency& pairs,
              const std::vector<double>& max_distortions, const scaling_search_settings& settings)
      : pairs_(pairs),
        distortions_(max_distortions.begin(), max_distortions.end()),
        settings_(settings),
        best_(guess) {
    random_engine master = create_engine(settings.seed);
    const std::size_t n_slots = n_thread_slots(settings.n_threads);
    for (const random_engine& engine : create_engines(n_slots, master)) {
      solutions_.emplace_back(pairs, guess, engine);
    }
    solutions_.front().sum_up();
    best_error_ = solutions_.front().error();
    for (solution& one : solutions_) one.copy(guess, best_error_);
  }

  const configuration& best() const { return best_; }

  void run() {
    for (std::int64_t iteration = 1; iteration <= settings_.n_iterations; ++iteration) {
      const bool is_thousandth = iteration % 1000 == 0;
      try_moves();
      if (is_thousandth) sum_up();
      merge();
      if (settings_.debug && report(iteration, is_thousandth)) return;
      if (is_late(iteration)) return;
    }
  }

 private:
  using clock = std::chrono::high_resolution_clock;

  static double seconds_since(clock::time_point start) {
    return std::chrono::duration<double>(clock::now() - start).count();
  }

  void try_moves() {
    const auto max_size = static_cast<std::uint32_t>(settings_.max_size);
    const auto n_tries = settings_.n_tries_by_iteration;
    parallel_for(n_tries > 0 ? to_size(n_tries) : 0, settings_.n_threads,
                 [&](std::size_t /*k*/, int thread_number) {
                   solutions_[to_size(thread_number)].try_move(distortions_, scale_, max_size);
                 });
  }

  /// Takes the drift out of the running sums.
  void sum_up() {
    parallel_for(solutions_.size(), settings_.n_threads,
                 [&](std::size_t t, int /*thread_number*/) { solutions_[t].sum_up(); });
  }

  void merge() {
    constexpr double tolerance = 1.01;
    for (const solution& one : solutions_) {
      if (!(best_error_ > one.error())) continue;
      best_ = one.points();
      best_error_ = one.error();
    }
    for (solution& one : solutions_) {
      if (!(one.error() > tolerance * best_error_)) continue;
      one.copy(best_, best_error_);
      ++n_killed_;
    }
  }

  /// Moves shrink with the mean error; true once that is below its target. Both belong to the
  /// report: a run without it does neither.
  bool report(std::int64_t iteration, bool is_due) {
    if (!is_due && !(seconds_since(last_report_) > 1.000000001)) return false;
    last_report_ = clock::now();
    const double mean = mean_absolute_error(best_, pairs_);
    print_to_output(text_of("Iteration ", iteration, " error: ", best_error_,
                            " mean_absolute_error: ", mean, " n_killed: ", n_killed_));
    if (scale_ > mean) scale_ = static_cast<float>(2.0 * mean);
    if (!(settings_.target_e > mean)) return false;
    print_to_output(text_of("Target error reached at iteration ", iteration));
    return true;
  }

  bool is_late(std::int64_t iteration) const {
    if (!(seconds_since(start_) > std::trunc(settings_.time_limit) + 1.0)) return false;
    if (settings_.debug) {
      print_to_output(text_of("Stopping due to time limit at iteration ", iteration));
    }
    return true;
  }

  const adjacency& pairs_;
  std::vector<float> distortions_;
  const scaling_search_settings& settings_;
  configuration best_;
  float best_error_ = 0.0F;
  float scale_ = 1.0F;
  std::int64_t n_killed_ = 0;
  std::vector<solution> solutions_;
  clock::time_point start_ = clock::now();
  clock::time_point last_report_ = start_;
};

void check_guess(const float_point_list& initial_guess, int dim) {
  for (std::size_t i = 0; i < initial_guess.size(); ++i) {
    const std::string where = text_of(" at position ", i);
    const Eigen::Index size = initial_guess[i].size();
    if (size != dim) {
      refuse("initial_guess", text_of("points of ", dim, " coordinates"), text_of(size, where));
    }
    if (!initial_guess[i].allFinite()) {
      refuse("initial_guess", "finite coordinates", text_of(initial_guess[i].transpose(), where));
    }
  }
}

void check_triples(const std::vector<distance_triple>& D, std::size_t n_points) {
  for (const auto& [i, j, d] : D) {
    check_index("D", i, n_points);
    check_index("D", j, n_points);
    if (!std::isfinite(static_cast<float>(d))) refuse("D", "finite distances of 32 bits", d);
  }
}

}  // namespace

float_point_list mds_using_random_search(int dim, const float_point_list& initial_guess,
                                         const std::vector<distance_triple>& D,
                                         const std::vector<double>& max_distortions,
                                         const scaling_search_settings& settings) {
  check_at_least("dim", dim, 1);
  check_not_empty("initial_guess", initial_guess.size());
  check_not_empty("max_distortions", max_distortions.size());
  check_at_least("max_size", settings.max_size, 1);
  check_not_nan("time_limit", settings.time_limit);
  const std::size_t n = initial_guess.size();
  check_guess(initial_guess, dim);
  check_triples(D, n);
  configuration guess(dim, to_index(n));
  for (std::size_t i = 0; i < n; ++i) guess.col(to_index(i)) = initial_guess[i];

  const adjacency pairs(n, D);
  competition search(guess, pairs, max_distortions, settings);
  search.run();
  float_point_list points;
  for (Eigen::Index i = 0; i < search.best().cols(); ++i) points.emplace_back(search.best().col(i));
  return points;
}

}  // namespace gravelox
