// SPDX-License-Identifier: MIT
#pragma once

// Randomised cross-validation: how well a model predicts the samples themselves.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "common/location.hpp"
#include "common/power.hpp"
#include "estimation/random_partitions.hpp"
#include "variography/cov_computer.hpp"
#include "variography/covariance.hpp"

namespace gravelox {

/// Errors of inverse distance estimates of samples from their partitions, under the distance 1 -
/// covariance and a power of it. Immutable; many threads may call it, each with its own scratch.
class idw_validation {
 public:
  struct scratch {
    lag_buffer lags;
    std::vector<double> reciprocals;
  };

  idw_validation(const std::vector<Covariance>& covs, double power_a);

  /// The error, estimate less value, of a sample for each of the partitions first to first +
  /// errors.size() - 1 of the list; NaN where no member weighs anything. Members at a distance of
  /// up to 1e-10 do not count. There is at least one partition.
  void operator()(const location_list& data_locs, std::span<const double> data, std::size_t sample,
                  const partition_list& partitions, std::size_t first, scratch& buffer,
                  std::span<double> errors) const;

 private:
  cov_computer cov_;
  power_function f_;
};

/// The errors of each sample (row) for n_partition_size random partitions of the samples around it
/// (columns), in standard deviations of the data: estimate less value. A row is NaN where a sample
/// has fewer than three candidates (see partition_sampler), a single error where nothing weighs.
///
/// Data are standardised by mean and population standard deviation; equal values give NaN. A master
/// engine of the seed gives each thread an engine, so errors repeat for the same number of threads.
/// The kriging forms solve the system of the members, also where it is one alone. The multiplier is
/// part of the ordinary estimate, in units of the sills: the less they add up to, the less it
/// counts, while the weights stay. Throws std::invalid_argument for lists of different lengths and
/// as partition_sampler does.
std::vector<std::vector<double>> kfold_cross_validation_using_idw(
    const location_list& data_locs, const std::vector<double>& data_values,
    const std::vector<Covariance>& covs, double max_distance, int max_size, double power_a,
    int min_partition_size, int max_partition_size, int n_partition_size, int n_threads, int seed);

std::vector<std::vector<double>> kfold_cross_validation_using_sk(
    const location_list& data_locs, const std::vector<double>& data_values,
    const std::vector<Covariance>& covs, double max_distance, int max_size, int min_partition_size,
    int max_partition_size, int n_partition_size, int n_threads, int seed);

std::vector<std::vector<double>> kfold_cross_validation_using_ok(
    const location_list& data_locs, const std::vector<double>& data_values,
    const std::vector<Covariance>& covs, double max_distance, int max_size, int min_partition_size,
    int max_partition_size, int n_partition_size, int n_threads, int seed);

/// The mean absolute error, in standard deviations of the data, of simple kriging of the samples
/// from neighbours that are thinned out at random to one for each cell, at each of the scales: cell
/// sizes in the space of the ellipsoid with these ranges along the coordinates.
///
/// A sample's error is the mean over the scales; samples with fewer than three neighbours have
/// none. NaN where no sample has an error. Each thread has an engine of its own; for each scale it
/// shuffles the neighbours on top of the shuffles before. Throws std::invalid_argument for lists of
/// different lengths, a scale that is 0 or not finite, without scales, and as create_nei_getter
/// does.
double multi_scale_cross_validation_error(
    const location_list& data_locs, const std::vector<double>& data,
    const std::vector<Covariance>& cov, double range1, double range2, double range3,
    const std::vector<double>& scales, int max_size, double max_radius, int max_neis_octant,
    int n_threads, int seed, const std::vector<int>& dhids, int max_neis_by_dhid);

}  // namespace gravelox
