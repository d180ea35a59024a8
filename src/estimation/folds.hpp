// SPDX-License-Identifier: MIT
#pragma once

// Folds: spatial groups of samples, on which models are tried and rated.

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "common/location.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// The locations and values of one group.
using fold = std::pair<location_list, std::vector<double>>;
using fold_list = std::vector<fold>;

/// Groups of the samples within max_distance of a centre, one a centre; groups may overlap.
///
/// The first centre is the sample of the highest value; the others are drawn from the upper half of
/// the values, one word of an engine of the seed each. Candidates are the max_size nearest samples
/// of the centre; with a max_size below 1 or not below the number of samples, all that a search by
/// radius finds. Without centres the result is one fold of all samples. Of equal values the
/// earlier sample ranks higher.
///
/// Throws std::invalid_argument for lists of different lengths, without samples, for a value of
/// NaN, locations that are not finite and a negative n_centers.
fold_list create_folds(const location_list& data_locs, const std::vector<double>& data_values,
                       double max_distance, int max_size, int n_centers, std::int64_t seed = 21315);

/// For each scale, n_partitions folds of samples that are thinned out at random to one for each
/// cell of that size in the ellipsoid's space; folds of fewer than min_partition_size members are
/// left out, and max_partition_size is the max_size of create_folds.
///
/// Draws from one engine of the seed: for each scale a shuffle of the samples, then the seed of its
/// folds. Throws std::invalid_argument as create_folds does, and for a scale that is 0 or not
/// finite.
fold_list create_folds_using_multiscale(int n_partitions, int min_partition_size,
                                        int max_partition_size, double max_distance,
                                        const std::vector<double>& scales,
                                        const Ellipsoid& search_ellipsoid,
                                        const location_list& data_locs,
                                        const std::vector<double>& data, std::int64_t seed);

/// Throws std::invalid_argument without samples, for values, an argument of this name, of another
/// number or NaN, and for data_locs that are not finite.
void check_fold_samples(std::string_view name, const location_list& data_locs,
                        const std::vector<double>& data);

/// Throws std::invalid_argument, in an argument of this name, without folds, for a fold of
/// different numbers of locations and values, and for locations that are not finite.
void check_folds(std::string_view name, const fold_list& folds);

}  // namespace gravelox
