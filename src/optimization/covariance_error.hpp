// SPDX-License-Identifier: MIT
#pragma once

// The rating of a covariance model: how badly it predicts samples from their neighbours, with a
// penalty on long ranges.

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "estimation/folds.hpp"
#include "estimation/random_partitions.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// A rating: a callable from a model and a number of threads to an error. Searches call it from
/// several threads at once.
using CovarianceErrorFunction =
    std::function<double(const std::vector<Covariance>& covariance, int n_threads)>;

/// How inverse distance estimates rate a model.
struct idw_rating_parameters {
  double max_distance;
  int max_size;
  double power_a;
  partition_sizes sizes;
  double regularization_const;
};

/// The rating of models by the same folds and the same random partitions of their samples, which
/// are drawn once: they do not depend on the model.
///
/// In each fold samples are estimated as in kfold_cross_validation_using_idw on one thread, with
/// data standardised by fold. Each thread takes the mean of the finite absolute errors of its
/// folds, and the rating is the sum of these means, so it grows with the number of threads; on one
/// thread it is the mean absolute error. It is multiplied by 1 + regularization_const times the
/// sum, over structures (nuggets included) and their three ranges, of log(1 + range^2). A rating
/// without any finite error is 0 times that.
///
/// Copies share the partitions. Many threads may call one object at once.
class idw_rating {
 public:
  /// Throws std::invalid_argument as check_folds and partition_sampler do.
  idw_rating(const fold_list& folds, const idw_rating_parameters& parameters, std::int64_t seed,
             int n_threads);

  double operator()(const std::vector<Covariance>& covariance, int n_threads) const;

 private:
  struct drawn_fold;

  double mean_error_sum(const std::vector<Covariance>& covariance, int n_threads) const;

  std::shared_ptr<const std::vector<drawn_fold>> folds_;
  double power_a_;
  double regularization_const_;
};

/// The rating of one model; see idw_rating.
double compute_covariance_error_idw(const std::vector<Covariance>& cov, const fold_list& folds,
                                    double max_distance, int max_size, double power_a,
                                    int min_partition_size, int max_partition_size,
                                    int n_partitions, double regularization_const,
                                    int n_threads = 0, int seed = 2131);

/// The same as an error function, with candidates by radius alone.
CovarianceErrorFunction create_covariance_idw_error(const fold_list& folds, double max_distance,
                                                    double power_a, int min_partition_size,
                                                    int max_partition_size, int n_partitions,
                                                    double regularization_const, int seed);

}  // namespace gravelox
