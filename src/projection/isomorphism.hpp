// SPDX-License-Identifier: MIT
#pragma once

// One-dimensional maps that carry a variable into another distribution, and back.

#include <cstddef>
#include <utility>
#include <vector>

#include "variography/kernel.hpp"

namespace gravelox {

/// The mean of weights w_i under kernel(|x - c_i| s_i), with centres c_i and scales s_i. The kernel
/// is that of differentiable models, whose nugget ends at 1e-30.
class Projection {
 public:
  /// Triples (centre, scale, weight), one after another; a rest of one or two numbers is lost.
  explicit Projection(std::vector<double> parameters,
                      covariance_type kernel = covariance_type::exponential);

  /// The triples.
  const std::vector<double>& serialize() const { return parameters_; }

  covariance_type kernel() const { return type_; }

  /// NaN where every kernel is 0, so far from all centres under a compact one, and without centres.
  /// Many threads may call one object at once.
  double forward(double u) const;

  /// In order; does not depend on n_threads.
  std::vector<double> forward(const std::vector<double>& u, int n_threads = 0) const;

 private:
  std::vector<double> parameters_;
  covariance_type type_;
  cov_kernel<double> kernel_;
};

/// A projection and another that was fitted to undo it.
class Isomorphism {
 public:
  /// The triples of both projections.
  using serialized = std::pair<std::vector<double>, std::vector<double>>;

  /// Both with one kernel, or any two projections.
  explicit Isomorphism(const serialized& parameters,
                       covariance_type kernel = covariance_type::exponential);
  Isomorphism(Projection forward_proj, Projection backward_proj);

  serialized serialize() const;
  const Projection& forward_proj() const { return forward_proj_; }
  const Projection& backward_proj() const { return backward_proj_; }

  /// The images under the two projections; lists do not depend on n_threads.
  double forward(double u) const { return forward_proj_.forward(u); }
  double backward(double u) const { return backward_proj_.forward(u); }
  std::vector<double> forward(const std::vector<double>& u, int n_threads = 0) const;
  std::vector<double> backward(const std::vector<double>& u, int n_threads = 0) const;

 private:
  Projection forward_proj_;
  Projection backward_proj_;
};

/// Inclusive bounds of a parameter; equal ones hold it.
struct parameter_bounds {
  double least;
  double greatest;
};

/// How projections are fitted: the bounds of centres, scales (betas) and weights, the random
/// subsamples, and the solver. cauchy_loss is the scale of a loss that tames outliers; 0 is none.
struct projection_fit {
  parameter_bounds weight;
  parameter_bounds center;
  int n_partitions;
  int min_partition_size;
  int max_partition_size;
  double cauchy_loss;
  int n_iterations;
  int n_threads;
  int seed;
  bool debug;
};

/// The shape of one projection.
struct projection_shape {
  covariance_type kernel;
  int n_centers;
  parameter_bounds beta;
};

/// Fits a projection of source[i] to target[i] on n_partitions random subsamples, of
/// min_partition_size + 1 to max_partition_size + 1 samples drawn with replacement (the number of
/// samples less 1 where there are not more).
///
/// Errors are divided by the deviation of the sources; those beyond half of it count less and less.
/// Draws: for each centre the sample that it starts at, then for each partition its size and its
/// samples. A failure of the solver is not reported: the map stays where the solver leaves it. The
/// solver's report is printed on the standard output with `debug`. Does not depend on n_threads.
///
/// Throws std::invalid_argument for lists that are empty, of different sizes or not finite, counts
/// below 1 (n_partitions, n_iterations, min_partition_size: below 0), bounds or sizes whose least
/// lies above their greatest, a cauchy_loss that is not finite, and sizes that no memory holds.
Projection optimize_projection(const std::vector<double>& source, const std::vector<double>& target,
                               const projection_shape& shape, const projection_fit& fit);

/// Fits a projection forward, and one backward from the images that it gives, not from the targets.
/// The bounds of weights and centres change places for the second.
///
/// Throws as optimize_projection does, and where the fitted projection maps a source to no finite
/// number, as those of compact kernels and nuggets may.
Isomorphism optimize_isomorphism(const std::vector<double>& source,
                                 const std::vector<double>& target,
                                 const projection_shape& forward_shape,
                                 const projection_shape& backward_shape, const projection_fit& fit);

/// The settings of a fit by the data's own scale; see optimize_isomorphism.
struct isomorphism_parameters {
  covariance_type kernel_forward = covariance_type::exponential;
  int n_centers_forward = 27;
  covariance_type kernel_backward = covariance_type::exponential;
  int n_centers_backward = 33;

  /// How far weights and centres may lie beyond the data, in multiples of their range.
  double weight_tol = 10.0;
  double center_tol = 10.0;

  /// Scales, over the range of the sources (forward) and of the targets (backward).
  double min_beta = 1e-6;
  double max_beta = 4.0;

  /// Sizes of partitions, in multiples of a partition's share of the samples.
  double min_partition_size = 0.5;
  double max_partition_size = 2.0;

  int n_partitions = 20;
  double cauchy_loss = 0.0;
  int n_iterations = 50;
  int n_threads = 0;
  int seed = 123154;
  bool debug = false;
};

/// Throws std::invalid_argument also for data that are all the same.
Isomorphism optimize_isomorphism(const std::vector<double>& source_data,
                                 const std::vector<double>& target_data,
                                 const isomorphism_parameters& iso_params);

}  // namespace gravelox
