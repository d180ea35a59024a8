// SPDX-License-Identifier: MIT
#pragma once

// A list of structures, compiled once per run into an object that evaluates lags fast.

#include <Eigen/Core>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "common/location.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// The samples around a target and scratch of the batch forms of cov_computer, one a thread; it
/// grows and never shrinks. Beside a system matrix over n samples it takes half as much up to three
/// times: three arrays of n (n + 1) / 2 values.
class lag_buffer {
 public:
  /// Sets the samples of these indices and their target. Positions are kept relative to an origin
  /// near them: differences of real coordinates come first and the map after them, so that large
  /// coordinates cost no precision.
  void set(const location_list& data_locs, std::span<const std::size_t> neis,
           const location& target, const location& origin);
  void set(const location_list& data_locs, std::span<const std::uint32_t> neis,
           const location& target, const location& origin);

  std::size_t size() const { return size_; }

 private:
  friend class cov_computer;
  using array = Eigen::ArrayXd;

  template <typename Id>
  void set_all(const location_list& data_locs, std::span<const Id> neis, const location& target,
               const location& origin);

  std::size_t size_ = 0;
  location target_;
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

  /// The covariance at a lag vector.
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

  /// The squared distances of all lags after a map, in the order of the results.
  static void square_lags(const Eigen::Matrix3d& matrix, bool between, lag_buffer& lags);

  std::vector<group> groups_;
};

/// The computer of a model; see cov_computer.
cov_computer create_cov_computer(const std::vector<Covariance>& covs, int n = -1);

}  // namespace gravelox
