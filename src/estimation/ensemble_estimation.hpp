// SPDX-License-Identifier: MIT
#pragma once

// Estimation where the covariance model changes from place to place: nearby local models each krige
// a target, and their estimates are blended.

#include <optional>
#include <vector>

#include "common/location.hpp"
#include "estimation/estimator.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/neighborhood.hpp"
#include "variography/local_covariances.hpp"

namespace gravelox {

/// At each target the mean of the estimates of the max_cov_neis nearest models (all of them below
/// 1), weighted by f(1 / d): d is the distance to a centre times the error of its model, f the
/// power function of power_a. Models with d up to 1e-20 share max_weight among them, and the others
/// the rest. A target without samples or models, or whose weights add up to no more than 1e-10, is
/// NaN; a single sample goes through its system as well.
///
/// Models krige ordinarily, with the Lagrange multiplier in the estimate, or simply with sk_mean.
/// With run_normalization the data enter as (x - mean) / deviation and results go back to their
/// scale; sk_mean and the multiplier then count in standard deviations, and a deviation of 0 gives
/// NaN. Samples are searched in data_nei, by default in a neighbourhood of data_locs under the
/// search ellipsoid; centres always under that.
///
/// Costs one system a target and model. Throws std::invalid_argument where lists differ in length,
/// coordinates or the ellipsoid are not finite, or data_nei holds more samples than data_locs.
std::vector<double> ensemble_estimation(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& search_ellipsoid, int max_size, double max_distance, int max_cov_neis,
    int max_neis_octant, double power_a, double max_weight, int n_threads = 0,
    bool run_normalization = true, const std::optional<Neighborhood>& data_nei = std::nullopt,
    bool use_sk = false, double sk_mean = 0.0, const std::vector<int>& dhids = {},
    int max_neis_by_dhid = -1);

/// The same as an estimator that holds these parameters and searches samples in the neighbourhood
/// that it is called with.
Estimator create_ensemble_estimator(const LocalCovariances& local_covs,
                                    const Ellipsoid& ellipsoid_search, int max_neighbors,
                                    double max_distance, int max_cov_neis, int max_neis_octant,
                                    double power_a, double max_weight, bool run_normalization,
                                    bool use_sk, double sk_mean, const std::vector<int>& dhids,
                                    int max_neis_by_dhid);

/// At each target the mean of the ordinary kriging estimates of the n_cov_neis nearest models,
/// weighted by exp(-(d lambda_r)^alpha - |error lambda_e|^beta) for the distance d to a centre and
/// the error of its model. Each estimate is that of compute_ordinary_kriging with that model: a
/// single sample gives its value, and none NaN. No models, and weights that all vanish, give NaN.
///
/// Throws std::invalid_argument where lists differ in length, coordinates or the ellipsoid are not
/// finite, or n_cov_neis is negative.
std::vector<double> compute_simple_ensemble_estimation(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& ellipsoid_search, int n_neis, double max_radius, int max_neis_octant,
    int n_cov_neis, double lambda_e, double alpha, double lambda_r, double beta, int n_threads,
    const std::vector<int>& dhids, int max_neis_by_dhid);

}  // namespace gravelox
