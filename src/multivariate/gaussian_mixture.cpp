// SPDX-License-Identifier: MIT
#include "multivariate/gaussian_mixture.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>
#include <stdexcept>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/report.hpp"
#include "common/text.hpp"
#include "common/vector_clones.hpp"
#include "multivariate/gaussian_density.hpp"
#include "multivariate/matrix_checks.hpp"

namespace gravelox {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

constexpr double least_count = 1e-9;
constexpr double least_likelihood = 1e-100;

/// The sum of products of two columns, in lanes that are added up at the end: one order for every
/// width of vectors.
GRAVELOX_VECTOR_CLONES double dot(const double* x, const double* y, std::size_t n) {
  constexpr std::size_t n_lanes = 16;
  std::array<double, n_lanes> lanes{};
  std::size_t i = 0;
  for (; i + n_lanes <= n; i += n_lanes) {
    for (std::size_t lane = 0; lane < n_lanes; ++lane) lanes[lane] += x[i + lane] * y[i + lane];
  }
  double sum = 0.0;
  for (const double lane : lanes) sum += lane;
  for (; i < n; ++i) sum += x[i] * y[i];
  return sum;
}

/// The random labels of samples, and what is left of the engine.
std::vector<Index> draw_labels(Index n, std::uint32_t n_components, random_engine& engine) {
  std::vector<Index> labels(to_size(n));
  for (Index& label : labels) label = uniform_index(engine, n_components);
  return labels;
}

GMMParams create_initial_model(const MatrixXd& x, const VectorXd& w, std::uint32_t n_components,
                               double reg_covar, std::uint32_t seed) {
  random_engine engine = create_engine(seed);
  const std::vector<Index> labels = draw_labels(x.rows(), n_components, engine);
  const Index k_end = n_components;
  const Index d = x.cols();
  VectorXd counts = VectorXd::Zero(k_end);
  GMMParams model{static_cast<int>(n_components), VectorXd(), MatrixXd::Zero(k_end, d),
                  std::vector<MatrixXd>(n_components, MatrixXd::Zero(d, d))};
  for (Index i = 0; i < x.rows(); ++i) {
    const Index k = labels[to_size(i)];
    counts[k] += w[i];
    model.means.row(k) += w[i] * x.row(i);
  }
  for (Index k = 0; k < k_end; ++k) {
    if (counts[k] > least_count) {
      model.means.row(k) /= counts[k];
    } else {
      // One of the first samples: the draw is that of a label.
      model.means.row(k) = x.row(uniform_index(engine, n_components) % x.rows());
    }
  }
  model.weights = counts / counts.sum();
  for (Index i = 0; i < x.rows(); ++i) {
    const Index k = labels[to_size(i)];
    const VectorXd deviation = (x.row(i) - model.means.row(k)).transpose();
    model.covariances[to_size(k)] += w[i] * deviation * deviation.transpose();
  }
  for (Index k = 0; k < k_end; ++k) {
    MatrixXd& covariance = model.covariances[to_size(k)];
    if (counts[k] > least_count) {
      covariance /= counts[k];
    } else {
      covariance.setIdentity();
    }
    covariance.diagonal().array() += reg_covar;
  }
  return model;
}

/// One fit at work: the samples and how much each belongs to each component.
class expectation_maximisation {
 public:
  expectation_maximisation(const MatrixXd& x, const VectorXd& w, GMMParams model, double reg_covar)
      : x_(x),
        w_(w),
        model_(std::move(model)),
        reg_covar_(reg_covar),
        responsibilities_(x.rows(), model_.n_components) {}

  /// Responsibilities under the model; returns the log-likelihood.
  double expect() {
    std::vector<gaussian_shape> shapes;
    for (const MatrixXd& covariance : model_.covariances) shapes.emplace_back(covariance);
    const MatrixXd means = model_.means.transpose();
    constexpr Index block_size = gaussian_shape::block_size;
    const Index n_blocks = (x_.rows() + block_size - 1) / block_size;
    const int n_threads = default_n_threads();
    std::vector<double> log_likelihoods(n_thread_slots(n_threads), 0.0);
    parallel_for(to_size(n_blocks), n_threads, [&](std::size_t block, int thread_number) {
      const Index first = to_index(block) * block_size;
      const Index n = std::min(block_size, x_.rows() - first);
      for (Index k = 0; k < means.cols(); ++k) {
        double* column = responsibilities_.col(k).data() + first;
        shapes[to_size(k)].densities(x_, first, n, means.col(k).data(), column);
        for (Index i = 0; i < n; ++i) column[i] *= model_.weights[k];
      }
      share_out(first, n, log_likelihoods[to_size(thread_number)]);
    });
    double sum = 0.0;
    for (const double log_likelihood : log_likelihoods) sum += log_likelihood;
    return sum;
  }

  /// The model that fits the responsibilities best. Sums run in one order whatever the threads.
  void maximise() {
    const VectorXd counts = responsibilities_.transpose() * w_;
    model_.weights = counts / w_.sum();
    parallel_for(to_size(counts.size()), default_n_threads(),
                 [&](std::size_t component, int /*thread_number*/) {
                   const Index k = to_index(component);
                   if (!(counts[k] > least_likelihood)) return;
                   const VectorXd shares = responsibilities_.col(k).cwiseProduct(w_);
                   for (Index j = 0; j < x_.cols(); ++j) {
                     model_.means(k, j) =
                         dot(shares.data(), x_.col(j).data(), to_size(x_.rows())) / counts[k];
                   }
                   MatrixXd& covariance = model_.covariances[component];
                   covariance = scatter(shares, model_.means.row(k)) / counts[k];
                   covariance.diagonal().array() += reg_covar_;
                 });
  }

  const GMMParams& model() const { return model_; }

 private:
  /// Turns weighted densities of a block into shares of their sum.
  void share_out(Index first, Index n, double& log_likelihood) {
    const Index n_components = responsibilities_.cols();
    std::array<double, gaussian_shape::block_size> totals{};
    for (Index k = 0; k < n_components; ++k) {
      const double* column = responsibilities_.col(k).data() + first;
      for (Index i = 0; i < n; ++i) totals[to_size(i)] += column[i];
    }
    for (Index i = 0; i < n; ++i) {
      const double total = totals[to_size(i)];
      if (total > least_likelihood) {
        log_likelihood += std::log(total);
        for (Index k = 0; k < n_components; ++k) responsibilities_(first + i, k) /= total;
      } else {
        responsibilities_.row(first + i).setConstant(1.0 / static_cast<double>(n_components));
      }
    }
  }

  /// The sum of shares times the outer products of deviations, in blocks that stay in the cache.
  MatrixXd scatter(const VectorXd& shares, const Eigen::RowVectorXd& mean) const {
    constexpr Index block_size = 512;
    const Index d = x_.cols();
    MatrixXd sum = MatrixXd::Zero(d, d);
    MatrixXd deviations(block_size, d);
    VectorXd weighted(block_size);
    for (Index first = 0; first < x_.rows(); first += block_size) {
      const Index n = std::min(block_size, x_.rows() - first);
      deviations.topRows(n) = x_.middleRows(first, n).rowwise() - mean;
      for (Index a = 0; a < d; ++a) {
        weighted.head(n) = deviations.col(a).head(n).cwiseProduct(shares.segment(first, n));
        for (Index b = a; b < d; ++b) {
          sum(a, b) += dot(weighted.data(), deviations.col(b).data(), to_size(n));
        }
      }
    }
    return sum.selfadjointView<Eigen::Upper>();
  }

  const MatrixXd& x_;
  const VectorXd& w_;
  GMMParams model_;
  double reg_covar_;
  MatrixXd responsibilities_;
};

}  // namespace

GMMFitter::GMMFitter(int n_components, int max_iter, double tol, double reg_covar,
                     std::uint32_t seed)
    : n_components_(n_components),
      max_iter_(max_iter),
      tol_(tol),
      reg_covar_(reg_covar),
      seed_(seed) {
  if (n_components < 1) throw std::invalid_argument("Number of components must be positive.");
}

GMMParams GMMFitter::fit(const MatrixXd& x, const std::optional<VectorXd>& weights) const {
  if (x.rows() < n_components_) {
    throw std::invalid_argument("n_samples must be >= n_components.");
  }
  if (weights && weights->size() != x.rows()) {
    throw std::invalid_argument("X and sample_weights must have the same number of samples.");
  }
  check_matrix("x", x);
  if (weights) check_finite("weights", std::span(weights->data(), to_size(weights->size())));
  const double n_components = n_components_;
  const auto d = static_cast<double>(x.cols());
  check_memory("n_components", n_components * (static_cast<double>(x.rows()) + d * d));
  const VectorXd w = weights ? *weights : VectorXd::Ones(x.rows());
  expectation_maximisation em(
      x, w,
      create_initial_model(x, w, static_cast<std::uint32_t>(n_components_), reg_covar_, seed_),
      reg_covar_);
  double before = -std::numeric_limits<double>::infinity();
  for (int t = 0; t < max_iter_; ++t) {
    const double log_likelihood = em.expect();
    em.maximise();
    if (tol_ > std::abs(log_likelihood - before)) {
      print_to_output(text_of("EM Converged at iteration ", t + 1));
      break;
    }
    before = log_likelihood;
    if (t == max_iter_ - 1) {
      print_to_output(
          text_of("Warning: EM algorithm did not converge within ", max_iter_, " iterations."));
    }
  }
  return em.model();
}

}  // namespace gravelox
