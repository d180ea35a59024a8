// SPDX-License-Identifier: MIT
#include "multivariate/projection_pursuit.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/statistics.hpp"
#include "common/text.hpp"
#include "distributions/data_distribution.hpp"
#include "distributions/distribution_transform.hpp"
#include "distributions/parametric.hpp"
#include "multivariate/matrix_checks.hpp"
#include "multivariate/rotations.hpp"

namespace gravelox {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;
using values = std::vector<double>;

/// A coordinate's row of the data.
values row_of(const MatrixXd& data, std::size_t coordinate) {
  const auto row = data.row(to_index(coordinate));
  return {row.begin(), row.end()};
}

/// Calls body(block, scratch) for blocks of columns of the points, in parallel; the scratch is as
/// long as a point and the thread's own. Blocks are as long as pays for a step's tables, which go
/// through the cache once for each of them.
template <typename Body>
void for_each_block(MatrixXd& points, int n_threads, const Body& body) {
  constexpr Index block_size = 128;
  const Index n_blocks = (points.cols() + block_size - 1) / block_size;
  std::vector<VectorXd> scratch(n_thread_slots(n_threads), VectorXd(points.rows()));
  parallel_for(to_size(n_blocks), n_threads, [&](std::size_t i, int thread_number) {
    const Index first = to_index(i) * block_size;
    const Index n = std::min(block_size, points.cols() - first);
    body(points.middleCols(first, n), scratch[to_size(thread_number)]);
  });
}

/// How far quantiles are from those of the standard normal, at 1000 probabilities.
class projection_index {
 public:
  projection_index() {
    const real_dist normal = gaussian_distribution();
    for (int i = 1; i <= n_; ++i) normal_.push_back(normal.quantile(probability(i)));
  }

  double operator()(const real_dist& dist) const {
    double sum = 0.0;
    for (int i = 1; i <= n_; ++i) {
      sum += std::abs(dist.quantile(probability(i)) - normal_[to_size(i - 1)]);
    }
    return sum;
  }

 private:
  static constexpr int n_ = 1000;

  static double probability(int i) { return i / (n_ + 1.0); }

  values normal_;
};

/// point times the rotation, as a row. Sums run in this order for every point.
void rotate(const MatrixXd& rotation, Eigen::Ref<VectorXd> point, VectorXd& turned) {
  for (Index column = 0; column < rotation.cols(); ++column) {
    double sum = 0.0;
    for (Index row = 0; row < rotation.rows(); ++row) sum += point[row] * rotation(row, column);
    turned[column] = sum;
  }
  point = turned;
}

}  // namespace

struct PPMT::Step {
  /// Fits a step and carries the data through it.
  Step(MatrixXd& data, double prob_random_rotation, int n_threads, random_engine::result_type seed,
       const projection_index& index)
      : mean(data.rows()), std_dev(data.rows()) {
    standardise(data, n_threads);
    draw_rotation(data, prob_random_rotation, seed);
    for_each_block(data, n_threads, [&](Eigen::Ref<MatrixXd> block, VectorXd& scratch) {
      for (auto point : block.colwise()) rotate(rotation, point, scratch);
    });
    choose(data, n_threads, index);
  }

  void forward(Eigen::Ref<VectorXd> point, VectorXd& scratch) const {
    standardise_point(point);
    rotate(rotation, point, scratch);
    point[chosen] = transform->forward(point[chosen]);
  }

  void backward(Eigen::Ref<VectorXd> point, VectorXd& scratch) const {
    point[chosen] = transform->backward(point[chosen]);
    rotate(inverse_rotation, point, scratch);
    for (Index j = 0; j < point.size(); ++j) point[j] = std_dev[j] * point[j] + mean[j];
  }

  MatrixXd rotation;
  MatrixXd inverse_rotation;
  VectorXd mean;
  VectorXd std_dev;
  /// The one coordinate that is mapped onto the normal distribution, and its map.
  Index chosen = 0;
  std::shared_ptr<const DistributionTransform> transform;

 private:
  void standardise_point(Eigen::Ref<VectorXd> point) const {
    for (Index j = 0; j < point.size(); ++j) point[j] = (point[j] - mean[j]) / std_dev[j];
  }

  void standardise(MatrixXd& data, int n_threads) {
    const auto d = to_size(data.rows());
    parallel_for(d, n_threads, [&](std::size_t j, int /*thread_number*/) {
      const moments scale = compute_moments(row_of(data, j));
      mean[to_index(j)] = scale.mean;
      std_dev[to_index(j)] = scale.deviation;
      if (!(scale.deviation > 0.0) || !std::isfinite(scale.deviation)) {
        refuse("data", "coordinates of finite variance that do not depend on each other",
               text_of("a deviation of ", scale.deviation, " along one axis"));
      }
    });
    for_each_block(data, n_threads, [&](Eigen::Ref<MatrixXd> block, VectorXd& /*scratch*/) {
      for (auto point : block.colwise()) standardise_point(point);
    });
  }

  void draw_rotation(const MatrixXd& data, double prob_random_rotation,
                     random_engine::result_type seed) {
    random_engine engine(seed);
    if (uniform01(engine) > prob_random_rotation) {
      auto optimum = compute_optimum_rotation(data.transpose(), false, true);
      rotation = std::move(std::get<3>(optimum));
      inverse_rotation = std::move(std::get<2>(optimum));
    } else {
      rotation = draw_orthogonal_matrix(data.rows(), engine);
      inverse_rotation = rotation.transpose();
    }
  }

  void choose(MatrixXd& data, int n_threads, const projection_index& index) {
    const auto d = to_size(data.rows());
    std::vector<real_dist> dists(d);
    values indices(d);
    parallel_for(d, n_threads, [&](std::size_t j, int /*thread_number*/) {
      dists[j] = data_distribution(row_of(data, j));
      indices[j] = index(dists[j]);
    });
    double greatest = 0.0;
    for (std::size_t j = 0; j < indices.size(); ++j) {
      if (indices[j] > greatest) {
        greatest = indices[j];
        chosen = to_index(j);
      }
    }
    const values coordinate = row_of(data, to_size(chosen));
    transform = std::make_shared<const DistributionTransform>(dists[to_size(chosen)],
                                                              gaussian_distribution());
    const values scores = transform->forward(coordinate, n_threads);
    data.row(chosen) = Eigen::Map<const Eigen::RowVectorXd>(scores.data(), data.cols());
  }
};

PPMT::PPMT(const MatrixXd& data, int n_steps, double prob_random_rotation, int n_threads,
           std::int64_t seed) {
  if (n_steps < 1) return;
  if (data.cols() < 2) throw std::invalid_argument("Data must have at least 2 elements");
  check_matrix("data", data);
  if (data.cols() < data.rows()) {
    refuse("data", "at least as many points (columns) as coordinates (rows)",
           text_of(data.rows(), " x ", data.cols()));
  }
  for (Index j = 0; j < data.rows(); ++j) {
    if (data.row(j).minCoeff() == data.row(j).maxCoeff()) {
      refuse("data", "coordinates that vary", text_of("only ", data(j, 0), " in row ", j));
    }
  }
  const projection_index index;
  random_engine engine = create_engine(seed);
  MatrixXd points = data;
  for (int s = 0; s < n_steps; ++s) {
    const double probability = s == 0 ? -1.0 : prob_random_rotation;
    steps_.push_back(std::make_shared<const Step>(points, probability, n_threads, engine(), index));
  }
}

void PPMT::check_points(const char* name, const Eigen::Ref<const MatrixXd>& points) const {
  if (steps_.empty()) return;
  const Index n_coordinates = steps_.front()->mean.size();
  if (points.rows() != n_coordinates) {
    refuse(name, text_of(n_coordinates, " coordinates, as many as the chain has"),
           text_of(points.rows()));
  }
  if (points.cols() > 0) check_matrix(name, points);
}

void PPMT::carry_forward(Eigen::Ref<MatrixXd> points, VectorXd& scratch) const {
  for (const auto& step : steps_) {
    for (auto point : points.colwise()) step->forward(point, scratch);
  }
}

void PPMT::carry_backward(Eigen::Ref<MatrixXd> points, VectorXd& scratch) const {
  for (std::size_t s = steps_.size(); s-- > 0;) {
    for (auto point : points.colwise()) steps_[s]->backward(point, scratch);
  }
}

MatrixXd PPMT::forward(const MatrixXd& data, int n_threads) const {
  check_points("data", data);
  MatrixXd points = data;
  for_each_block(points, n_threads, [&](const Eigen::Ref<MatrixXd>& block, VectorXd& scratch) {
    carry_forward(block, scratch);
  });
  return points;
}

MatrixXd PPMT::backward(const MatrixXd& data, int n_threads) const {
  check_points("data", data);
  MatrixXd points = data;
  for_each_block(points, n_threads, [&](const Eigen::Ref<MatrixXd>& block, VectorXd& scratch) {
    carry_backward(block, scratch);
  });
  return points;
}

VectorXd PPMT::forward(const VectorXd& u) const {
  check_points("u", u);
  MatrixXd point = u;
  VectorXd scratch(u.size());
  carry_forward(point, scratch);
  return point;
}

VectorXd PPMT::backward(const VectorXd& u) const {
  check_points("u", u);
  MatrixXd point = u;
  VectorXd scratch(u.size());
  carry_backward(point, scratch);
  return point;
}

}  // namespace gravelox
