// SPDX-License-Identifier: MIT
#include "projection/scaling.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "projection/numeric_fit_detail.hpp"

namespace gravelox {

namespace {

using configuration = Eigen::Map<const Eigen::MatrixXd>;

/// Whether a distance is one, and not the mark of a missing pair.
bool is_known(double d) { return d > 0.0 && d < 1e20; }

double relative_error(const Eigen::Ref<const point>& a, const Eigen::Ref<const point>& b,
                      double d) {
  return ((a - b).norm() - d) / d;
}

/// Moves the points to the distance r^2 from the origin.
template <typename Points>
void put_on_sphere(Points&& points, double r) {
  for (Eigen::Index i = 0; i < points.cols(); ++i) {
    points.col(i) = points.col(i) / points.col(i).norm() * r * r;
  }
}

struct dense_mds_residual {
  int dim;
  int N;
  const distance_table& D;
  int n_threads;
  bool optimize_mean;
  bool do_sphering;
  double sphering_weight;

  bool operator()(double const* const* parameters, double* residuals) const {
    Eigen::MatrixXd points = configuration(parameters[0], dim, N);
    if (do_sphering) put_on_sphere(points, parameters[1][0]);
    const std::size_t n = to_size(N);
    // One sum a row: the mean does not depend on the threads.
    std::vector<row_error> rows(optimize_mean ? n : 0);
    const int threads = detail::threads_of_evaluation(n * n / 2, n_threads);
    parallel_for(n, threads, [&](std::size_t i, int /*thread_number*/) {
      for (std::size_t j = i; j < n; ++j) {
        const double d = symmetric_distance(D, i, j);
        const bool counts = j != i && is_known(d);
        const double error =
            counts ? relative_error(points.col(to_index(i)), points.col(to_index(j)), d) : 0.0;
        if (!optimize_mean) {
          residuals[i * n + j] = residuals[j * n + i] = error;
        } else if (counts) {
          rows[i].sum += error * error;
          rows[i].count += 1.0;
        }
      }
    });
    if (optimize_mean) *residuals = mean_of(rows);
    return true;
  }

 private:
  struct row_error {
    double sum = 0.0;
    double count = 0.0;
  };

  static double mean_of(const std::vector<row_error>& rows) {
    row_error total;
    for (const row_error& row : rows) {
      total.sum += row.sum;
      total.count += row.count;
    }
    return total.sum / total.count;
  }
};

struct sparse_mds_residual {
  int dim;
  int N;
  const std::vector<dist_pair>& D;
  int n_threads;

  bool operator()(double const* const* parameters, double* residuals) const {
    const configuration points(parameters[0], dim, N);
    const int threads = detail::threads_of_evaluation(D.size(), n_threads);
    parallel_for(D.size(), threads, [&](std::size_t k, int /*thread_number*/) {
      const auto& [i, j, d] = D[k];
      residuals[k] = is_known(d) ? relative_error(points.col(i), points.col(j), d) : 0.0;
    });
    return true;
  }
};

/// What the tries share: where they start, and the best of them.
class multi_start {
 public:
  multi_start(int dim, int N, const point_list& initial_guess, const scaling_settings& settings)
      : dim_(dim), N_(N), settings_(settings) {
    if (initial_guess.size() != to_size(N)) return;
    check_points("initial_guess", initial_guess, dim);
    for (const point& x : initial_guess) guess_.insert(guess_.end(), x.begin(), x.end());
  }

  /// fit(coordinates) fits them in place and returns the cost.
  template <typename Fit>
  point_list best(double least, double greatest, const Fit& fit) const {
    double best_cost = 1e20;
    point_list best_points;
    random_engine master = create_engine(settings_.seed);
    for (int k = 0; k < settings_.ntries; ++k) {
      random_engine engine(master());
      std::vector<double> coordinates = start(least, greatest, engine);
      const double cost = fit(coordinates);
      if (best_cost > cost) {
        best_cost = cost;
        best_points = points_of(configuration(coordinates.data(), dim_, N_));
      }
      if (best_cost < settings_.eps) break;
    }
    return best_points;
  }

 private:
  std::vector<double> start(double least, double greatest, random_engine& engine) const {
    if (!guess_.empty()) return guess_;
    std::vector<double> coordinates(to_size(dim_) * to_size(N_));
    for (double& x : coordinates) x = uniform(engine, least, greatest);
    return coordinates;
  }

  int dim_;
  int N_;
  const scaling_settings& settings_;
  std::vector<double> guess_;
};

void check_sizes(int dim, int N, const scaling_settings& settings) {
  check_at_least("dim", dim, 1);
  check_at_least("N", N, 1);
  check_at_least("n_iterations", settings.n_iterations, 0);
  check_not_nan("eps", settings.eps);
}

/// The Jacobian, and the equations of all coordinates.
void check_memory_of_fit(int dim, int N, double n_residuals) {
  const double n_parameters = static_cast<double>(dim) * N;
  check_memory("dim x N", 3.0 * n_residuals * n_parameters + 2.0 * n_parameters * n_parameters);
}

}  // namespace

point_list dense_MDS(int dim, int N, const distance_table& D, const point_list& initial_guess,
                     const scaling_settings& settings, bool optimize_mean, bool do_sphering,
                     double sphering_weight) {
  check_sizes(dim, N, settings);
  check_same_size("D", D.size(), to_size(N), "point (N)");
  check_square("D", D);
  const int n_residuals = optimize_mean ? 1 : to_int(to_size(N) * to_size(N));
  check_memory_of_fit(dim, N, n_residuals);
  const multi_start tries(dim, N, initial_guess, settings);

  double dmax = 0.0;
  for (const std::vector<double>& row : D) {
    for (const double d : row) dmax = std::max(dmax, d);
  }
  const dense_mds_residual residual{
      dim, N, D, settings.n_threads, optimize_mean, do_sphering, sphering_weight};
  return tries.best(-dmax, dmax, [&](std::vector<double>& coordinates) {
    std::vector<std::vector<double>> blocks{std::move(coordinates)};
    detail::numeric_fit_settings fit{settings.n_iterations, settings.n_threads, settings.debug};
    if (do_sphering) {
      blocks.push_back({1.0});
      // Left to choose, the solver eliminates the coordinates; its iterative step then solves the
      // one equation for the radius exactly, takes the zero residual for a failure, and stops at
      // the start.
      fit.eliminated_block = 1;
    }
    const double cost = detail::fit_numerically(residual, n_residuals, blocks, fit);
    coordinates = std::move(blocks[0]);
    if (do_sphering) {
      put_on_sphere(Eigen::Map<Eigen::MatrixXd>(coordinates.data(), dim, N), blocks[1][0]);
    }
    return cost;
  });
}

point_list sparse_MDS(int dim, int N, const std::vector<dist_pair>& D,
                      const point_list& initial_guess, const scaling_settings& settings) {
  check_sizes(dim, N, settings);
  check_not_empty("D", D.size());
  for (const dist_pair& pair : D) {
    check_index("D", pair.i, to_size(N));
    check_index("D", pair.j, to_size(N));
  }
  check_memory_of_fit(dim, N, static_cast<double>(D.size()));
  const multi_start tries(dim, N, initial_guess, settings);

  double dmax = 0.0;
  for (const dist_pair& pair : D) dmax = std::max(dmax, pair.d);
  const sparse_mds_residual residual{dim, N, D, settings.n_threads};
  return tries.best(0.0, dmax, [&](std::vector<double>& coordinates) {
    std::vector<std::vector<double>> blocks{std::move(coordinates)};
    const double cost =
        detail::fit_numerically(residual, to_int(D.size()), blocks,
                                {settings.n_iterations, settings.n_threads, settings.debug});
    coordinates = std::move(blocks[0]);
    return cost;
  });
}

}  // namespace gravelox
