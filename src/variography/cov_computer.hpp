// SPDX-License-Identifier: MIT
#pragma once

// A list of structures, compiled once per run into an object that evaluates lags fast.

#include <Eigen/Core>
#include <cstddef>
#include <vector>

#include "common/location.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// Scratch of the batch forms of cov_computer, one a thread; it grows and never shrinks.
///
/// The caller sets the samples' positions relative to the target, then reads the values.
class lag_buffer {
 public:
  /// Makes room for n samples.
  void resize(std::size_t n);
  std::size_t size() const { return size_; }

  /// Sample minus target for sample i. Differences of real coordinates come first and the map after
  /// them, so that large coordinates cost no precision.
  void set(std::size_t i, const location& lag);

 private:
  friend class cov_computer;
  using array = Eigen::ArrayXd;

  std::size_t size_ = 0;
  array x_, y_, z_;
  array mapped_x_, mapped_y_, mapped_z_;
  array squares_, distances_, values_;
};

/// The sum of the structures of a model at a lag, in list order; an empty list gives 0.
///
/// Immutable; many threads may evaluate it at once, each with its own buffer.
class cov_computer {
 public:
  /// With n at least 0 kernels are tabulated at n steps a unit (get_kernel), otherwise they are the
  /// structures' own.
  explicit cov_computer(const std::vector<Covariance>& covs, int n = -1);

  double operator()(const location& lag) const;

  /// The covariance of each sample of the buffer with the target. The array belongs to the buffer.
  const double* to_target(lag_buffer& lags) const;

  /// The same, followed by those between samples i > j: (1, 0), (2, 0), ..., (n - 1, 0), (2, 1),
  /// ...
  const double* to_target_and_between(lag_buffer& lags) const;

 private:
  struct structure {
    double sill;
    Kernel kernel;
  };
  /// Neighbours in the list that share one anisotropy, and so one set of distances.
  struct group {
    Eigen::Matrix3d matrix;
    std::vector<structure> structures;
    bool needs_distances;
  };

  const double* evaluate(lag_buffer& lags, bool between) const;

  std::vector<group> groups_;
};

/// The computer of a model; see cov_computer.
cov_computer create_cov_computer(const std::vector<Covariance>& covs, int n = -1);

}  // namespace gravelox
