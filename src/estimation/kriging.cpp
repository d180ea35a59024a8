// SPDX-License-Identifier: MIT
#include "estimation/kriging.hpp"

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "common/integer.hpp"
#include "estimation/estimation_detail.hpp"
#include "variography/cov_computer.hpp"

namespace gravelox {

namespace {

constexpr double least_variance = 1e-10;

/// The system of one target, kept from target to target so that equal sizes allocate nothing.
struct kriging_system {
  lag_buffer lags;
  Eigen::MatrixXd a;
  Eigen::VectorXd b;
  Eigen::VectorXd values;
  Eigen::VectorXd x;
  Eigen::LDLT<Eigen::MatrixXd> ldlt;
};

struct kriged_value {
  double estimate;
  double variance;
};

/// Kriging at one target from two neighbours or more; without a mean it is ordinary kriging.
class local_kriging {
 public:
  local_kriging(const std::vector<Covariance>& covs, const location_list& data_locs,
                const std::vector<double>& data, std::optional<double> mean)
      : cov_(create_cov_computer(covs)),
        c0_(cov_(location::Zero())),
        data_locs_(data_locs),
        data_(data),
        mean_(mean) {}

  kriged_value operator()(const location& target, const std::vector<std::size_t>& neis,
                          kriging_system& system) const {
    fill(target, neis, system);
    system.ldlt.compute(system.a);
    system.x = system.ldlt.solve(system.b);
    // In ordinary kriging the last of the values is 1: the multiplier is part of the estimate.
    const double sum = system.x.dot(system.values);
    return {mean_ ? (1.0 - system.x.sum()) * *mean_ + sum : sum,
            std::max(c0_ - system.x.dot(system.b), least_variance)};
  }

 private:
  /// Matrix, right side and values. The decomposition reads the lower triangle alone.
  void fill(const location& target, const std::vector<std::size_t>& neis,
            kriging_system& system) const {
    const std::size_t n = neis.size();
    // The border row of ones makes the weights add up to 1; its unknown is the Lagrange multiplier.
    const Eigen::Index order = to_index(mean_ ? n : n + 1);
    system.a.setOnes(order, order);
    system.b.setOnes(order);
    system.values.setOnes(order);
    if (!mean_) system.a(order - 1, order - 1) = 0.0;

    system.lags.set(data_locs_, neis, target, data_locs_[neis.front()]);
    const double* covariances = cov_.to_target_and_between(system.lags);
    std::copy_n(covariances, n, system.b.data());
    covariances += n;
    for (std::size_t j = 0; j < n; ++j) {
      const std::size_t below = n - 1 - j;
      double* diagonal = &system.a(to_index(j), to_index(j));
      *diagonal = c0_;
      std::copy_n(covariances, below, diagonal + 1);
      covariances += below;
      system.values[to_index(j)] = data_[neis[j]];
    }
  }

  cov_computer cov_;
  double c0_;
  const location_list& data_locs_;
  const std::vector<double>& data_;
  std::optional<double> mean_;
};

kriging_result krige_all(const location_list& target_locs, const nei_getter& getter,
                         const std::vector<double>& data, const local_kriging& krige,
                         int n_threads) {
  std::vector<double> estimates(target_locs.size(), 0.0);
  std::vector<double> variances(target_locs.size(), 0.0);
  const auto estimate = [&](std::size_t index, const location& target,
                            const std::vector<std::size_t>& neis, kriging_system& system) {
    if (neis.empty()) {
      estimates[index] = std::numeric_limits<double>::quiet_NaN();
    } else if (neis.size() == 1) {
      estimates[index] = data[neis.front()];
    } else {
      const kriged_value kriged = krige(target, neis, system);
      estimates[index] = kriged.estimate;
      variances[index] = kriged.variance;
    }
  };
  detail::for_each_target<kriging_system>(target_locs, getter, n_threads, estimate);
  return {std::move(estimates), std::move(variances)};
}

}  // namespace

kriging_result compute_simple_kriging(const location_list& target_locs,
                                      const location_list& data_locs,
                                      const std::vector<double>& data,
                                      const std::vector<Covariance>& covs, double mean,
                                      const Neighborhood& neighborhood, int max_neighbors,
                                      double max_radius, int max_neighbors_octant, int n_threads,
                                      const std::vector<int>& dhids, int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  return krige_all(target_locs, getter, data, local_kriging(covs, data_locs, data, mean),
                   n_threads);
}

kriging_result compute_ordinary_kriging(const location_list& target_locs,
                                        const location_list& data_locs,
                                        const std::vector<double>& data,
                                        const std::vector<Covariance>& covs,
                                        const Neighborhood& neighborhood, int max_neighbors,
                                        double max_radius, int max_neighbors_octant, int n_threads,
                                        const std::vector<int>& dhids, int max_neis_by_dhid) {
  detail::check_samples(target_locs, data_locs, data);
  const nei_getter getter = create_nei_getter(data_locs, neighborhood, max_neighbors, max_radius,
                                              max_neighbors_octant, dhids, max_neis_by_dhid);
  return krige_all(target_locs, getter, data, local_kriging(covs, data_locs, data, std::nullopt),
                   n_threads);
}

Estimator create_sk_estimator(const std::vector<Covariance>& covs, double mean, int max_neighbors,
                              double max_radius, int max_neighbors_octant,
                              const std::vector<int>& dhids, int max_neis_by_dhid) {
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    return std::get<0>(compute_simple_kriging(
        target_locs, data_locs, data, covs, mean, neighborhood, max_neighbors, max_radius,
        max_neighbors_octant, n_threads, dhids, max_neis_by_dhid));
  };
}

Estimator create_ok_estimator(const std::vector<Covariance>& covs, int max_neighbors,
                              double max_radius, int max_neighbors_octant,
                              const std::vector<int>& dhids, int max_neis_by_dhid) {
  return [=](const location_list& target_locs, const Neighborhood& neighborhood,
             const location_list& data_locs, const std::vector<double>& data, int n_threads) {
    return std::get<0>(compute_ordinary_kriging(target_locs, data_locs, data, covs, neighborhood,
                                                max_neighbors, max_radius, max_neighbors_octant,
                                                n_threads, dhids, max_neis_by_dhid));
  };
}

}  // namespace gravelox
