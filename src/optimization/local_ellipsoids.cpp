// SPDX-License-Identifier: MIT
#include "optimization/local_ellipsoids.hpp"

#include <cstddef>
#include <numeric>
#include <utility>

#include "common/checks.hpp"
#include "common/random.hpp"
#include "common/report.hpp"
#include "common/text.hpp"
#include "estimation/folds.hpp"
#include "optimization/covariance_error.hpp"
#include "optimization/ellipsoid_fit.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/extreme_points.hpp"

namespace gravelox {

namespace {

/// The groups of samples and the radius about their centres.
struct sample_groups {
  double max_radius;
  fold_list folds;
};

sample_groups create_groups(const location_list& data_locs, const std::vector<double>& data,
                            int n_centers, double center_max_size, int center_size, int seed,
                            int n_threads, bool debug) {
  check_fold_samples("data", data_locs, data);
  check_at_least("n_centers", n_centers, 1);
  constexpr int n_rays = 300;
  random_engine engine = create_engine(seed);
  const double diagonal = extent(extreme_points(data_locs, n_rays, engine(), n_threads)).norm();
  const double max_radius = diagonal / n_centers * center_max_size;
  if (debug) {
    print_to_output(text_of("data length: ", diagonal));
    print_to_error(text_of("data_length: ", diagonal));
    print_to_both(text_of("Max radius: ", max_radius));
  }
  return {max_radius, create_folds(data_locs, data, max_radius, center_size, n_centers, seed)};
}

location mean_location(const location_list& locs) {
  const location sum = std::accumulate(locs.begin(), locs.end(), location(location::Zero()));
  return sum / static_cast<double>(locs.size());
}

void add_center(const fold& group, bool debug, LocalCovariances& models) {
  const location center = mean_location(group.first);
  if (debug) print_to_both(text_of("Processing center: ", center.transpose(), "..."));
  models.centers.push_back(center);
}

std::string progress(std::size_t i, const fold_list& folds) {
  return text_of("optimized fold ", i + 1, " of ", folds.size());
}

/// A partition of a fold that is too small for it takes all but two samples of it.
void check_local_fold(const fold& one, const ellipsoid_lbfgs_parameters& parameters) {
  const std::size_t size = one.first.size();
  if (size < 3 && std::cmp_greater(parameters.max_partition_size - 1, size)) {
    refuse("center_size, local_center_size and center_max_size",
           "local groups of at least 3 samples", text_of("one of ", size));
  }
}

void divide_by_sum(std::vector<double>& errors) {
  const double sum = std::accumulate(errors.begin(), errors.end(), 0.0);
  for (double& error : errors) error /= sum;
}

}  // namespace

LocalCovariances optimize_local_ellipsoids(const location_list& data_locs,
                                           const std::vector<double>& data,
                                           const Kernel& cov_kernel, double min_range,
                                           double max_range, int n_centers, double center_max_size,
                                           int center_size,
                                           const ellipsoid_optimization_parameters& parameters) {
  const sample_groups groups =
      create_groups(data_locs, data, n_centers, center_max_size, center_size, parameters.seed,
                    parameters.n_threads, parameters.debug);
  LocalCovariances models;
  for (std::size_t i = 0; i < groups.folds.size(); ++i) {
    const fold& group = groups.folds[i];
    add_center(group, parameters.debug, models);
    // A fraction of the diagonal of the group's box is what that search takes.
    const auto [ellipsoid, error] =
        optimize_ellipsoid(group.first, group.second, cov_kernel, min_range, max_range, parameters);
    if (parameters.debug) {
      print_to_output(progress(i, groups.folds));
      print_to_both(text_of("Ellipsoid: ", ellipsoid.to_string(), " error: ", error));
    }
    models.covariances.push_back(model_of(ellipsoid, cov_kernel));
    models.errors.push_back(error);
  }
  return models;
}

LocalCovariances optimize_local_ellipsoids_using_lbfgs(
    const location_list& data_locs, const std::vector<double>& data, const std::string& cov_type,
    int n_centers, int n_local_centers, double center_max_size, int center_size,
    int local_center_size, double max_local_range, const ellipsoid_lbfgs_parameters& parameters) {
  const covariance_type type = to_fitted_type("cov_type", cov_type);
  check_at_least("n_local_centers", n_local_centers, 0);
  check_positive("max_local_range", max_local_range);
  const auto& [regularization_const, cauchy_loss, min_partition_size, max_partition_size,
               n_partitions, n_iterations, seed, n_threads, debug] = parameters;
  const sample_groups groups = create_groups(data_locs, data, n_centers, center_max_size,
                                             center_size, seed, n_threads, debug);
  const idw_rating rating(groups.folds,
                          {groups.max_radius,
                           local_center_size,
                           3.0,
                           {min_partition_size, max_partition_size, n_partitions},
                           regularization_const},
                          seed, n_threads);
  LocalCovariances models;
  for (std::size_t i = 0; i < groups.folds.size(); ++i) {
    const fold& group = groups.folds[i];
    add_center(group, debug, models);
    const fold_list local_folds = create_folds(group.first, group.second, groups.max_radius,
                                               local_center_size, n_local_centers, seed);
    for (const fold& one : local_folds) check_local_fold(one, parameters);
    const double prior =
        static_cast<double>(local_folds.size()) * n_partitions * regularization_const;
    double lbfgs_error = 0.0;
    const Ellipsoid ellipsoid = optimize_ellipsoid_using_kfold(
        local_folds, cov_type, max_local_range, max_local_range, max_local_range, prior,
        cauchy_loss, min_partition_size, max_partition_size, n_partitions, n_iterations, seed,
        n_threads, debug, &lbfgs_error);
    models.covariances.push_back({{type, 1.0, ellipsoid}});
    const double xval_error = rating(models.covariances.back(), n_threads);
    models.errors.push_back(xval_error + 0.0001);
    if (debug) {
      print_to_both(progress(i, groups.folds));
      print_to_both(text_of("Ellipsoid: ", ellipsoid.to_string()));
      print_to_output(text_of("lbfgs error: ", lbfgs_error));
      print_to_output(text_of("xval error: ", xval_error));
    }
  }
  divide_by_sum(models.errors);
  if (debug) {
    for (std::size_t i = 0; i < models.errors.size(); ++i) {
      print_to_both(text_of("center ", i, " error: ", models.errors[i]));
    }
  }
  return models;
}

}  // namespace gravelox
