// SPDX-License-Identifier: MIT
#include "projection/optimized_projection.hpp"

#include <Eigen/Cholesky>
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

double gaussian(const Eigen::Ref<const point>& a, const Eigen::Ref<const point>& b) {
  const double d = (a - b).norm();
  return std::exp(-3.0 * d * d);
}

/// Doubles of the system of this many centres, and of its decomposition.
double memory_of_system(double n_centers) { return 2.0 * (n_centers + 1.0) * (n_centers + 1.0); }

/// The map with its system decomposed. Centres and weights are columns.
class decomposed_map {
 public:
  decomposed_map(Eigen::MatrixXd centers, Eigen::MatrixXd weights)
      : centers_(std::move(centers)), weights_(std::move(weights)) {
    const Eigen::Index n = centers_.cols();
    Eigen::MatrixXd A = Eigen::MatrixXd::Ones(n + 1, n + 1);
    A(n, n) = 0.0;
    for (Eigen::Index i = 0; i < n; ++i) {
      for (Eigen::Index j = i; j < n; ++j) {
        A(i, j) = A(j, i) = gaussian(centers_.col(i), centers_.col(j));
      }
    }
    system_.compute(A);
  }

  point image(const Eigen::Ref<const point>& x) const {
    const Eigen::Index n = centers_.cols();
    Eigen::VectorXd b = Eigen::VectorXd::Ones(n + 1);
    for (Eigen::Index i = 0; i < n; ++i) b[i] = gaussian(centers_.col(i), x);
    const Eigen::VectorXd s = system_.solve(b);
    point sum = point::Zero(weights_.rows());
    for (Eigen::Index i = 0; i < n; ++i) sum += s[i] * weights_.col(i);
    return sum;
  }

 private:
  Eigen::MatrixXd centers_;
  Eigen::MatrixXd weights_;
  Eigen::LDLT<Eigen::MatrixXd> system_;
};

decomposed_map decompose(const Optimized_nd_projection& map) {
  check_same_size("weights", map.weights.size(), map.centers.size(), "centre");
  check_memory("centers", memory_of_system(static_cast<double>(map.centers.size())));
  return {columns_of("centers", map.centers), columns_of("weights", map.weights)};
}

/// Columns of a block of parameters, one point after another.
Eigen::MatrixXd columns(const double* block, Eigen::Index dimension, Eigen::Index n) {
  return Eigen::Map<const Eigen::MatrixXd>(block, dimension, n);
}

/// The differences of the images from the targets.
struct Optimized_nd_projection_residual {
  Eigen::MatrixXd source;
  Eigen::MatrixXd target;
  Eigen::Index n_centers;
  int n_threads;

  bool operator()(double const* const* parameters, double* residuals) const {
    const decomposed_map map(columns(parameters[0], source.rows(), n_centers),
                             columns(parameters[2], target.rows(), n_centers));
    const std::size_t n = to_size(source.cols());
    const Eigen::Index dout = target.rows();
    const int threads = detail::threads_of_evaluation(n * to_size(n_centers), n_threads);
    parallel_for(n, threads, [&](std::size_t i, int /*thread_number*/) {
      const Eigen::Index column = to_index(i);
      Eigen::Map<point>(residuals + column * dout, dout) =
          map.image(source.col(column)) - target.col(column);
    });
    return true;
  }
};

/// Appends a uniform point of the box around the columns.
void append_random_point(const Eigen::MatrixXd& points, random_engine& engine,
                         std::vector<double>& block) {
  for (Eigen::Index axis = 0; axis < points.rows(); ++axis) {
    const auto row = points.row(axis);
    block.push_back(uniform(engine, row.minCoeff(), row.maxCoeff()));
  }
}

}  // namespace

point Optimized_nd_projection::project(const point& x) const {
  const decomposed_map map = decompose(*this);
  check_point("x", x, centers.front().size());
  return map.image(x);
}

point_list Optimized_nd_projection::project(const point_list& X, int n_threads) const {
  const decomposed_map map = decompose(*this);
  check_points("X", X, centers.front().size());
  point_list images(X.size());
  parallel_for(X.size(), n_threads,
               [&](std::size_t i, int /*thread_number*/) { images[i] = map.image(X[i]); });
  return images;
}

Optimized_nd_projection Optimized_nd_projection::optimize(const point_list& source,
                                                          const point_list& target, int n_centers,
                                                          int din, int dout, int n_threads,
                                                          int n_iterations, bool debug, int seed) {
  check_at_least("n_centers", n_centers, 1);
  check_at_least("din", din, 1);
  check_at_least("dout", dout, 1);
  check_at_least("n_iterations", n_iterations, 0);
  check_points("source", source, din);
  check_points("target", target, dout);
  check_same_size("target", target.size(), source.size(), "source point");
  const Eigen::MatrixXd sources = columns_of("source", source);
  const Eigen::MatrixXd targets = columns_of("target", target);
  const double n_residuals = static_cast<double>(source.size()) * dout;
  const double n_parameters = n_centers * (static_cast<double>(din) + dout);
  check_memory("n_centers", 3.0 * n_residuals * n_parameters + 2.0 * n_parameters * n_parameters +
                                memory_of_system(n_centers));

  random_engine engine = create_engine(seed);
  std::vector<std::vector<double>> blocks{{}, {0.0}, {}};
  for (int i = 0; i < n_centers; ++i) {
    append_random_point(sources, engine, blocks[0]);
    blocks[1][0] = 1.0 + uniform01(engine);
    append_random_point(targets, engine, blocks[2]);
  }
  const Optimized_nd_projection_residual residual{sources, targets, n_centers, n_threads};
  detail::fit_numerically(residual, to_int(source.size() * to_size(dout)), blocks,
                          {n_iterations, n_threads, debug});

  Optimized_nd_projection map{points_of(columns(blocks[0].data(), din, n_centers)),
                              std::vector<double>(to_size(n_centers), 0.0),
                              points_of(columns(blocks[2].data(), dout, n_centers))};
  map.scales[0] = blocks[1][0];
  return map;
}

}  // namespace gravelox
