// SPDX-License-Identifier: MIT
#include "estimation/ensemble_estimation.hpp"

#include <cmath>
#include <cstddef>
#include <limits>

#include "common/power.hpp"
#include "common/statistics.hpp"
#include "estimation/estimation_detail.hpp"
#include "estimation/kriging_detail.hpp"

namespace gravelox {

namespace {

constexpr double coincident = 1e-20;
constexpr double threshold = 1e-10;
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

/// The buffers of a thread.
struct ensemble_scratch {
  neighbor_buffer models;
  detail::kriging_system system;
};

/// The models of a run, compiled, and the search for their centres.
class model_set {
 public:
  model_set(const LocalCovariances& local_covs, const Ellipsoid& search_ellipsoid)
      : centers_(local_covs.centers),
        errors_(local_covs.errors),
        search_(local_covs.centers, search_ellipsoid) {
    models_.reserve(local_covs.covariances.size());
    for (const std::vector<Covariance>& covs : local_covs.covariances) models_.emplace_back(covs);
  }

  /// Calls body(model, distance, error) for each of the n nearest models, nearest first.
  template <typename Body>
  void for_nearest(const location& target, int n, neighbor_buffer& buffer, const Body& body) const {
    search_.find_neighbors(target, n, buffer);
    for (std::size_t i = 0; i < buffer.n_found; ++i) {
      const std::size_t id = buffer.ids[i];
      body(models_[id], (centers_[id] - target).norm(), errors_[id]);
    }
  }

 private:
  const location_list& centers_;
  const std::vector<double>& errors_;
  Neighborhood search_;
  std::vector<detail::kriging_model> models_;
};

/// The weighted mean of the estimates of models away from the target, blended with that of models
/// on it.
class estimate_blend {
 public:
  estimate_blend(const power_function& f, double max_weight) : f_(f), max_weight_(max_weight) {}

  void add(double distance, double estimate) {
    if (distance > coincident) {
      const double weight = f_(1.0 / distance);
      far_sum_ += weight * estimate;
      far_weight_ += weight;
    } else {
      close_sum_ += max_weight_ * estimate;
      close_weight_ += max_weight_;
    }
  }

  double value() const {
    const bool has_close = close_weight_ > threshold;
    if (far_weight_ > threshold) {
      const double far = far_sum_ / far_weight_;
      if (!has_close) return far;
      return far * (1.0 - max_weight_) + close_sum_ / close_weight_ * max_weight_;
    }
    return has_close ? close_sum_ / close_weight_ : not_a_number;
  }

 private:
  const power_function& f_;
  double max_weight_;
  double far_sum_ = 0.0;
  double far_weight_ = 0.0;
  double close_sum_ = 0.0;
  double close_weight_ = 0.0;
};

}  // namespace

std::vector<double> ensemble_estimation(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& search_ellipsoid, int max_size, double max_distance, int max_cov_neis,
    int max_neis_octant, double power_a, double max_weight, int n_threads, bool run_normalization,
    const std::optional<Neighborhood>& data_nei, bool use_sk, double sk_mean,
    const std::vector<int>& dhids, int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  check_local_covariances(local_covs);
  check_ellipsoid("search_ellipsoid", search_ellipsoid);
  if (data_nei) check_neighborhood("data_nei", *data_nei, data_locs);

  const moments scale = run_normalization ? compute_moments(data) : moments{0.0, 1.0};
  const std::vector<double> values = run_normalization ? standardized(data, scale) : data;
  const Neighborhood samples = data_nei ? *data_nei : Neighborhood(data_locs, search_ellipsoid);
  const nei_getter getter = create_nei_getter(data_locs, samples, max_size, max_distance,
                                              max_neis_octant, dhids, max_neis_by_dhid);
  const model_set models(local_covs, search_ellipsoid);
  const int n_models = max_cov_neis < 1 ? to_int(local_covs.centers.size()) : max_cov_neis;
  const power_function f = create_power_function(power_a);
  const auto form = use_sk ? detail::kriging_form::simple : detail::kriging_form::ordinary;

  std::vector<double> estimates(target_locs.size(), not_a_number);
  const auto estimate = [&](std::size_t index, const location& target,
                            const std::vector<std::size_t>& neis, ensemble_scratch& scratch) {
    if (neis.empty()) return;
    detail::kriging_system& system = scratch.system;
    system.set_samples(form, data_locs, values, neis, target);
    estimate_blend blend(f, max_weight);
    models.for_nearest(target, n_models, scratch.models,
                       [&](const detail::kriging_model& model, double distance, double error) {
                         system.solve(model);
                         blend.add(distance * error,
                                   use_sk ? system.estimate(sk_mean) : system.estimate());
                       });
    estimates[index] = blend.value() * scale.deviation + scale.mean;
  };
  detail::for_each_target<ensemble_scratch>(target_locs, getter, n_threads, estimate);
  return estimates;
}

Estimator create_ensemble_estimator(const LocalCovariances& local_covs,
                                    const Ellipsoid& ellipsoid_search, int max_neighbors,
                                    double max_distance, int max_cov_neis, int max_neis_octant,
                                    double power_a, double max_weight, bool run_normalization,
                                    bool use_sk, double sk_mean, const std::vector<int>& dhids,
                                    int max_neis_by_dhid) {
  check_local_covariances(local_covs);
  check_ellipsoid("ellipsoid_search", ellipsoid_search);
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    check_neighborhood("neighborhood", neighborhood, data_locs);
    return ensemble_estimation(target_locs, data_locs, data, local_covs, ellipsoid_search,
                               max_neighbors, max_distance, max_cov_neis, max_neis_octant, power_a,
                               max_weight, n_threads, run_normalization, neighborhood, use_sk,
                               sk_mean, dhids, max_neis_by_dhid);
  };
}

std::vector<double> compute_simple_ensemble_estimation(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& ellipsoid_search, int n_neis, double max_radius, int max_neis_octant,
    int n_cov_neis, double lambda_e, double alpha, double lambda_r, double beta, int n_threads,
    const std::vector<int>& dhids, int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  check_local_covariances(local_covs);
  check_ellipsoid("ellipsoid_search", ellipsoid_search);
  check_at_least("n_cov_neis", n_cov_neis, 0);

  const Neighborhood samples(data_locs, ellipsoid_search);
  const nei_getter getter = create_nei_getter(data_locs, samples, n_neis, max_radius,
                                              max_neis_octant, dhids, max_neis_by_dhid);
  const model_set models(local_covs, ellipsoid_search);

  std::vector<double> estimates(target_locs.size(), not_a_number);
  const auto estimate = [&](std::size_t index, const location& target,
                            const std::vector<std::size_t>& neis, ensemble_scratch& scratch) {
    if (neis.empty()) return;
    // As everywhere in ordinary kriging, a single sample gives its value and needs no system.
    const bool is_single = neis.size() == 1;
    detail::kriging_system& system = scratch.system;
    if (!is_single) {
      system.set_samples(detail::kriging_form::ordinary, data_locs, data, neis, target);
    }
    double sum = 0.0;
    double weight_sum = 0.0;
    models.for_nearest(target, n_cov_neis, scratch.models,
                       [&](const detail::kriging_model& model, double distance, double error) {
                         if (!is_single) system.solve(model);
                         const double weight = std::exp(-std::pow(distance * lambda_r, alpha) -
                                                        std::pow(std::abs(error * lambda_e), beta));
                         sum += weight * (is_single ? data[neis.front()] : system.estimate());
                         weight_sum += weight;
                       });
    estimates[index] = sum / weight_sum;
  };
  detail::for_each_target<ensemble_scratch>(target_locs, getter, n_threads, estimate);
  return estimates;
}

}  // namespace gravelox
