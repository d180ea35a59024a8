// SPDX-License-Identifier: MIT
#include "optimization/variogram_map_fit.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/least_squares_detail.hpp"
#include "common/memory.hpp"
#include "common/robust_power.hpp"
#include "common/text.hpp"
#include "optimization/structure_fit_detail.hpp"

namespace gravelox {

namespace {

constexpr std::size_t n_per_structure = detail::n_structure_parameters;
constexpr double least_share = 0.0001;

/// The misfit of a model's variogram at one lag. The parameters are those of the structures, with
/// shares of the sill, and the nugget's share.
struct VarfitOptimization {
  covariance_type type;
  int n_structures;
  location lag;
  double variogram;
  double weight;

  template <typename T>
  bool operator()(T const* const* parameters, T* residuals) const {
    const T* p = parameters[0];
    T sill(0.0);
    T covariance(0.0);
    for (int k = 0; k < n_structures; ++k, p += n_per_structure) {
      sill += p[0];
      covariance += detail::create_fitted_cov<T>(type, p)(lag.cast<T>());
    }
    sill += p[0];
    residuals[0] = weight * robust_power(T(2.0 * (sill - covariance - variogram)), 0.5);
    return true;
  }
};

/// Where ranges may lie.
struct range_bounds {
  location least;
  location greatest;

  location middle() const { return (least + greatest) / 2.0; }

  void check() const {
    for (Eigen::Index axis = 0; axis < 3; ++axis) {
      const std::string name = text_of("min_r", axis + 1, " and max_r", axis + 1);
      check_finite(name, least[axis]);
      check_finite(name, greatest[axis]);
      if (least[axis] > greatest[axis]) {
        refuse(name, "a lower bound not above the upper one",
               text_of(least[axis], " and ", greatest[axis]));
      }
    }
  }
};

/// Weights that fall with the length of a lag, 0 on the plateau, as shares of the sum before the
/// plateau's went.
std::vector<double> weigh(const location_list& lags, const std::vector<double>& variogram,
                          std::vector<double> weights, double unit_lag, double b, double plateau) {
  double sum = 0.0;
  for (std::size_t i = 0; i < lags.size(); ++i) {
    weights[i] *= std::pow(1.0 / (lags[i].norm() / unit_lag + 0.0001), b);
    sum += weights[i];
    if (variogram[i] > plateau) weights[i] = 0.0;
  }
  for (double& weight : weights) weight /= sum;
  return weights;
}

std::vector<double> start_parameters(int n_structures, const range_bounds& ranges) {
  const location middle = ranges.middle();
  std::vector<double> start;
  for (int k = 0; k < n_structures; ++k) {
    start.insert(start.end(), {1.0 / n_structures, middle[0], middle[1], middle[2], 0.0, 0.0, 0.0});
  }
  // The nugget's share starts below its bound; the solver moves it there.
  start.push_back(0.0);
  return start;
}

void set_bounds(const range_bounds& ranges, detail::least_squares_problem& problem) {
  const std::size_t nugget = problem.parameters().size() - 1;
  for (std::size_t first = 0; first < nugget; first += n_per_structure) {
    problem.set_bounds(first, least_share, 1.0);
    for (Eigen::Index axis = 0; axis < 3; ++axis) {
      problem.set_bounds(first + 1 + to_size(axis), ranges.least[axis], ranges.greatest[axis]);
    }
  }
  problem.set_bounds(nugget, least_share, 1.0);
}

/// The model of the parameters, its sills scaled to their total.
std::vector<Covariance> read_model(covariance_type type, const std::vector<double>& p,
                                   double total_sill) {
  double share_sum = 0.0;
  for (std::size_t first = 0; first < p.size(); first += n_per_structure) share_sum += p[first];
  std::vector<Covariance> covs;
  for (std::size_t first = 0; first + 1 < p.size(); first += n_per_structure) {
    covs.emplace_back(type, total_sill * p[first] / share_sum, detail::fitted_ellipsoid(&p[first]));
  }
  covs.push_back(Covariance::nugget(total_sill * p.back() / share_sum));
  return covs;
}

}  // namespace

std::vector<Covariance> extract_covariance_from_varmap(
    const location_list& lags, const std::vector<double>& variogram,
    const std::vector<double>& weight, int n_structures, const std::string& cov_kernel,
    double min_r1, double min_r2, double min_r3, double max_r1, double max_r2, double max_r3,
    double total_sill, int n_iterations, double b, double cauchy_loss, double regularization_const,
    double threshold, int n_threads, bool debug) {
  const covariance_type type = to_fitted_type("cov_kernel", cov_kernel);
  check_same_size("variogram", variogram.size(), lags.size(), "lag");
  check_same_size("weight", weight.size(), lags.size(), "lag");
  check_finite("lags", lags);
  check_at_least("n_structures", n_structures, 1);
  check_at_least("n_iterations", n_iterations, 0);
  const range_bounds ranges{{min_r1, min_r2, min_r3}, {max_r1, max_r2, max_r3}};
  ranges.check();
  const detail::Regularization prior{max_r1, max_r2, max_r3, regularization_const / n_structures,
                                     n_structures};
  check_memory("n_structures",
               detail::memory_of_fit(static_cast<double>(lags.size()) + 4.0 * n_structures,
                                     7.0 * n_structures + 1.0));

  const std::vector<double> weights =
      weigh(lags, variogram, weight, ranges.greatest.norm() / 3.0, b, threshold * total_sill);
  detail::least_squares_problem problem(start_parameters(n_structures, ranges));
  constexpr double least_weight = 1e-30;
  for (std::size_t i = 0; i < lags.size(); ++i) {
    if (!(weights[i] >= least_weight)) continue;
    problem.add(
        VarfitOptimization{type, n_structures, lags[i], variogram[i] / total_sill, weights[i]}, 1,
        detail::loss_scale_of(cauchy_loss));
  }
  if (regularization_const > 0.0) problem.add(prior, prior.n_residuals(), 0.0);
  set_bounds(ranges, problem);
  problem.solve({n_iterations, n_threads, debug});
  return read_model(type, problem.parameters(), total_sill);
}

}  // namespace gravelox
