// SPDX-License-Identifier: MIT
#include "estimation/kriging.hpp"

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <algorithm>
#include <limits>
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

/// Fills matrix, right side and values for the neighbours; every entry of a border is 1 at first.
/// The decomposition reads the lower triangle alone.
void fill_system(const cov_computer& cov, double c0, const detail::sample_view& samples,
                 const location& target, const std::vector<std::size_t>& neis, std::size_t order,
                 kriging_system& system) {
  const std::size_t n = neis.size();
  system.a.setOnes(to_index(order), to_index(order));
  system.b.setOnes(to_index(order));
  system.values.setOnes(to_index(order));
  system.lags.resize(n);
  for (std::size_t i = 0; i < n; ++i) {
    system.lags.set(i, samples.locs[neis[i]] - target);
    system.values[to_index(i)] = samples.values[neis[i]];
  }
  const double* covariances = cov.to_target_and_between(system.lags);
  std::copy_n(covariances, n, system.b.data());
  covariances += n;
  for (std::size_t j = 0; j < n; ++j) {
    const std::size_t below = n - 1 - j;
    double* diagonal = &system.a(to_index(j), to_index(j));
    *diagonal = c0;
    std::copy_n(covariances, below, diagonal + 1);
    covariances += below;
  }
}

void solve(kriging_system& system) {
  system.ldlt.compute(system.a);
  system.x = system.ldlt.solve(system.b);
}

double variance_of(double c0, const kriging_system& system) {
  return std::max(c0 - system.x.dot(system.b), least_variance);
}

/// The run of both forms; krige(target, neis, system) answers targets of two neighbours or more.
template <typename Krige>
kriging_result run_kriging(const location_list& target_locs, const nei_getter& getter,
                           const std::vector<double>& data, int n_threads, const Krige& krige) {
  std::vector<double> estimates(target_locs.size(), 0.0);
  std::vector<double> variances(target_locs.size(), 0.0);
  detail::for_each_target<kriging_system>(
      target_locs, getter, n_threads,
      [&](std::size_t index, const location& target, const std::vector<std::size_t>& neis,
          kriging_system& system) {
        if (neis.empty()) {
          estimates[index] = std::numeric_limits<double>::quiet_NaN();
        } else if (neis.size() == 1) {
          estimates[index] = data[neis.front()];
        } else {
          const kriged_value kriged = krige(target, neis, system);
          estimates[index] = kriged.estimate;
          variances[index] = kriged.variance;
        }
      });
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
  const cov_computer cov = create_cov_computer(covs);
  const double c0 = cov(location::Zero());
  const auto krige = [&](const location& target, const std::vector<std::size_t>& neis,
                         kriging_system& system) -> kriged_value {
    fill_system(cov, c0, {data_locs, data}, target, neis, neis.size(), system);
    solve(system);
    return {(1.0 - system.x.sum()) * mean + system.x.dot(system.values), variance_of(c0, system)};
  };
  return run_kriging(target_locs, getter, data, n_threads, krige);
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
  const cov_computer cov = create_cov_computer(covs);
  const double c0 = cov(location::Zero());
  const auto krige = [&](const location& target, const std::vector<std::size_t>& neis,
                         kriging_system& system) -> kriged_value {
    // The last row makes the weights add up to 1; its unknown is the Lagrange multiplier.
    const std::size_t order = neis.size() + 1;
    fill_system(cov, c0, {data_locs, data}, target, neis, order, system);
    system.a(to_index(order - 1), to_index(order - 1)) = 0.0;
    solve(system);
    // The last of the values is 1: the multiplier is part of the estimate, and it stays so.
    return {system.x.dot(system.values), variance_of(c0, system)};
  };
  return run_kriging(target_locs, getter, data, n_threads, krige);
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
