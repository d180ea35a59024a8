// SPDX-License-Identifier: MIT
#pragma once

// The kriging system of one target, shared by the estimators that solve such systems. Private to
// their sources.

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "common/integer.hpp"
#include "common/location.hpp"
#include "variography/cov_computer.hpp"

namespace gravelox::detail {

/// A covariance model compiled, with its value at the zero lag.
struct kriging_model {
  explicit kriging_model(const std::vector<Covariance>& covs)
      : kriging_model(create_cov_computer(covs)) {}
  explicit kriging_model(cov_computer computer)
      : cov(std::move(computer)), c0(cov(location::Zero())) {}

  cov_computer cov;
  double c0;
};

/// With a known mean, or with weights that a border row makes add up to 1.
enum class kriging_form { simple, ordinary };

/// The system of one target, one object a thread: it is kept from target to target, and sizes that
/// repeat allocate nothing. Call set_samples once for a target, then solve for each model; what
/// follows reads the last solution.
///
/// No status of the decomposition is looked at: a singular system gives the solution it gives.
class kriging_system {
 public:
  /// Sets the target and its samples; members, of std::size_t or std::uint32_t, index data_locs and
  /// data. There may be none of them.
  template <typename Members>
  void set_samples(kriging_form form, const location_list& data_locs, std::span<const double> data,
                   const Members& members, const location& target) {
    const std::size_t n = members.size();
    const bool is_bordered = form == kriging_form::ordinary;
    // The border row of ones makes the weights add up to 1; its unknown is the Lagrange multiplier.
    const Eigen::Index order = to_index(is_bordered ? n + 1 : n);
    a_.setOnes(order, order);
    b_.setOnes(order);
    values_.setOnes(order);
    if (is_bordered) a_(order - 1, order - 1) = 0.0;
    for (std::size_t i = 0; i < n; ++i) values_[to_index(i)] = data[members[i]];
    lags_.set(data_locs, members, target, n == 0 ? target : data_locs[members[0]]);
  }

  /// Solves for the weights of the samples under a model.
  void solve(const kriging_model& model) {
    fill(model);
    ldlt_.compute(a_);
    x_ = ldlt_.solve(b_);
  }

  /// The estimate of ordinary kriging. The last of its values is 1: the multiplier is part of it.
  double estimate() const { return x_.dot(values_); }

  /// The estimate of simple kriging, the mean of the samples being known.
  double estimate(double mean) const { return (1.0 - x_.sum()) * mean + x_.dot(values_); }

  /// The kriging variance, at least 1e-10.
  double variance(const kriging_model& model) const {
    constexpr double least_variance = 1e-10;
    return std::max(model.c0 - x_.dot(b_), least_variance);
  }

 private:
  /// Matrix and right side. The decomposition reads the lower triangle alone.
  void fill(const kriging_model& model) {
    const std::size_t n = lags_.size();
    const double* covariances = model.cov.to_target_and_between(lags_);
    std::copy_n(covariances, n, b_.data());
    covariances += n;
    for (std::size_t j = 0; j < n; ++j) {
      const std::size_t below = n - 1 - j;
      double* diagonal = &a_(to_index(j), to_index(j));
      *diagonal = model.c0;
      std::copy_n(covariances, below, diagonal + 1);
      covariances += below;
    }
  }

  lag_buffer lags_;
  Eigen::MatrixXd a_;
  Eigen::VectorXd b_;
  Eigen::VectorXd values_;
  Eigen::VectorXd x_;
  Eigen::LDLT<Eigen::MatrixXd> ldlt_;
};

/// Simple kriging of a mean, and ordinary kriging without one, from any number of members. Those of
/// none are the mean, and 0.
template <typename Members>
double krige(const kriging_model& model, std::optional<double> mean, const location_list& data_locs,
             std::span<const double> data, const Members& members, const location& target,
             kriging_system& system) {
  system.set_samples(mean ? kriging_form::simple : kriging_form::ordinary, data_locs, data, members,
                     target);
  system.solve(model);
  return mean ? system.estimate(*mean) : system.estimate();
}

}  // namespace gravelox::detail
