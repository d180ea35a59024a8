// SPDX-License-Identifier: MIT
#include "optimization/covariance_error.hpp"

#include <cmath>
#include <cstddef>
#include <optional>

#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/statistics.hpp"
#include "estimation/cross_validation.hpp"

namespace gravelox {

namespace {

/// The errors of the folds of one thread.
struct alignas(64) error_mean {
  double sum = 0.0;
  double count = 0.0;
  idw_validation::scratch buffer;
  std::vector<double> errors;

  void add(double error) {
    if (!std::isfinite(error)) return;
    sum += std::abs(error);
    count += 1.0;
  }
};

double range_penalty(const std::vector<Covariance>& covariance) {
  double penalty = 0.0;
  for (const Covariance& cov : covariance) {
    for (Eigen::Index axis = 0; axis < 3; ++axis) {
      const double range = 1.0 / cov.ellipsoid.matrix().row(axis).norm();
      penalty += std::log(1.0 + range * range);
    }
  }
  return penalty;
}

}  // namespace

/// A fold with the partitions of those samples that have any, n_partitions a sample.
struct idw_rating::drawn_fold {
  drawn_fold(const fold& source, const idw_rating_parameters& parameters, std::int64_t seed)
      : locations(source.first),
        data(standardized(source.second, compute_moments(source.second))),
        n_partitions(to_size(parameters.sizes.n_partitions)) {
    const partition_sampler sampler(locations, parameters.max_distance, parameters.max_size,
                                    parameters.sizes, "n_partitions");
    random_engine master = create_engine(seed);
    random_engine engine(master());
    partition_sampler::scratch scratch;
    for (std::size_t i = 0; i < locations.size(); ++i) {
      const std::size_t n_before = partitions.size();
      sampler.draw(i, engine, scratch, partitions);
      if (partitions.size() > n_before) samples.push_back(i);
    }
  }

  void add_errors(const idw_validation& validate, error_mean& mean) const {
    mean.errors.resize(n_partitions);
    for (std::size_t i = 0; i < samples.size(); ++i) {
      validate(locations, data, samples[i], partitions, i * n_partitions, mean.buffer, mean.errors);
      for (const double error : mean.errors) mean.add(error);
    }
  }

  location_list locations;
  std::vector<double> data;
  std::size_t n_partitions;
  std::vector<std::size_t> samples;
  partition_list partitions;
};

idw_rating::idw_rating(const fold_list& folds, const idw_rating_parameters& parameters,
                       std::int64_t seed, int n_threads)
    : power_a_(parameters.power_a), regularization_const_(parameters.regularization_const) {
  check_folds("folds", folds);
  double n_samples = 0.0;
  for (const fold& one : folds) n_samples += static_cast<double>(one.first.size());
  check_memory("n_partitions", n_samples * parameters.sizes.n_partitions *
                                   (1.0 + parameters.sizes.min_partition_size / 2.0));
  std::vector<std::optional<drawn_fold>> drawn(folds.size());
  parallel_for(folds.size(), n_threads, [&](std::size_t i, int /*thread_number*/) {
    drawn[i].emplace(folds[i], parameters, seed);
  });
  auto all = std::make_shared<std::vector<drawn_fold>>();
  all->reserve(drawn.size());
  for (std::optional<drawn_fold>& one : drawn) all->push_back(std::move(*one));
  folds_ = std::move(all);
}

double idw_rating::mean_error_sum(const std::vector<Covariance>& covariance, int n_threads) const {
  const idw_validation validate(covariance, power_a_);
  std::vector<error_mean> means(n_thread_slots(n_threads));
  parallel_for(folds_->size(), n_threads, [&](std::size_t i, int thread_number) {
    (*folds_)[i].add_errors(validate, means[to_size(thread_number)]);
  });
  double sum = 0.0;
  for (const error_mean& mean : means) {
    if (mean.count > 0.0) sum += mean.sum / mean.count;
  }
  return sum;
}

double idw_rating::operator()(const std::vector<Covariance>& covariance, int n_threads) const {
  return (range_penalty(covariance) * regularization_const_ + 1.0) *
         mean_error_sum(covariance, n_threads);
}

double compute_covariance_error_idw(const std::vector<Covariance>& cov, const fold_list& folds,
                                    double max_distance, int max_size, double power_a,
                                    int min_partition_size, int max_partition_size,
                                    int n_partitions, double regularization_const, int n_threads,
                                    int seed) {
  const idw_rating rating(folds,
                          {max_distance,
                           max_size,
                           power_a,
                           {min_partition_size, max_partition_size, n_partitions},
                           regularization_const},
                          seed, n_threads);
  return rating(cov, n_threads);
}

CovarianceErrorFunction create_covariance_idw_error(const fold_list& folds, double max_distance,
                                                    double power_a, int min_partition_size,
                                                    int max_partition_size, int n_partitions,
                                                    double regularization_const, int seed) {
  constexpr int by_radius = -1;
  return idw_rating(folds,
                    {max_distance,
                     by_radius,
                     power_a,
                     {min_partition_size, max_partition_size, n_partitions},
                     regularization_const},
                    seed, 0);
}

}  // namespace gravelox
