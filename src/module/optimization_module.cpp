// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <optional>
#include <utility>

#include "module/families.hpp"
#include "module/optimization_docs.hpp"
#include "module/python_callback.hpp"
#include "optimization/covariance_search.hpp"
#include "optimization/ellipsoid_fit.hpp"
#include "optimization/ellipsoid_search.hpp"
#include "optimization/local_ellipsoids.hpp"
#include "optimization/nested_model_search.hpp"
#include "optimization/variogram_map_fit.hpp"
#include "variography/local_covariances.hpp"

namespace gravelox {

namespace {

using py::arg;
using cov_list = std::vector<Covariance>;
using values = std::vector<double>;

LocalCovariances local_covariances(const location_list& centers,
                                   const std::vector<cov_list>& covariances, const values& errors) {
  LocalCovariances result{centers, covariances, errors};
  check_local_covariances(result);
  return result;
}

ellipsoid_optimization_parameters search_parameters(double power_a, int max_nei_size,
                                                    int min_partition_size, int max_partitions_size,
                                                    int n_partitions, int n_centers, int n_rays,
                                                    int n_scales, int n_iterations,
                                                    int n_iterations_without_upgrade, double tol,
                                                    double regularization_const, int seed,
                                                    int n_threads, bool debug) {
  return {power_a,
          max_nei_size,
          min_partition_size,
          max_partitions_size,
          n_partitions,
          n_centers,
          n_rays,
          n_scales,
          n_iterations,
          n_iterations_without_upgrade,
          tol,
          regularization_const,
          seed,
          n_threads,
          debug};
}

ellipsoid_lbfgs_parameters fit_parameters(double regularization_const, double cauchy_loss,
                                          int min_partition_size, int max_partition_size,
                                          int n_partitions, int n_iterations, int seed,
                                          int n_threads, bool debug) {
  return {regularization_const,
          cauchy_loss,
          min_partition_size,
          max_partition_size,
          n_partitions,
          n_iterations,
          seed,
          n_threads,
          debug};
}

/// A rating in Python.
struct custom_error {
  python_callback callback;

  double operator()(const cov_list& covariance, int n_threads) const {
    return callback(to_float, covariance, n_threads);
  }
};

CovarianceErrorFunction create_custom_error(py::object callback) {
  return custom_error{python_callback(std::move(callback))};
}

/// The interpreter lock stays with the caller, unless workers need it for a rating in Python.
std::pair<cov_list, double> search_covariance(const std::vector<cov_list>& covs,
                                              const CovarianceErrorFunction& error_function,
                                              int n_iterations, int n_iterations_without_upgrade,
                                              int n_threads, bool debug) {
  std::optional<callback_release> while_workers_run;
  if (error_function.target<custom_error>() != nullptr) while_workers_run.emplace();
  return optimize_covariance(covs, error_function, n_iterations, n_iterations_without_upgrade,
                             n_threads, debug);
}

/// What the search over ellipsoids takes beside has no say in it.
std::pair<cov_list, double> search_covariance_using_idw(
    const location_list& data_locs, const values& data, const Ellipsoid& ellipsoid,
    const Kernel& cov_kernel, int n_kernels, int n_covs, double delta_angle, double min_str_range,
    double max_str_range, double min_sill, double max_sill, double /*min_range*/,
    double /*max_range*/, double power_a, double max_distance, int max_nei_size,
    int min_partition_size, int max_partition_size, int n_partitions, double regularization_const,
    int n_centers, int /*n_rays*/, int /*n_scales*/, int n_iterations,
    int n_iterations_without_upgrade, double /*tol*/, int seed, int n_threads, bool debug) {
  return optimize_covariance_using_idw(
      data_locs, data, ellipsoid, cov_kernel, n_kernels, n_covs, delta_angle, min_str_range,
      max_str_range, min_sill, max_sill, power_a, max_distance, max_nei_size, min_partition_size,
      max_partition_size, n_partitions, regularization_const, n_centers, n_iterations,
      n_iterations_without_upgrade, seed, n_threads, debug);
}

Ellipsoid fit_ellipsoid(const fold_list& folds, const std::string& cov_type, double r1_max,
                        double r2_max, double r3_max, double regularization_const,
                        double cauchy_loss, int min_partition_size, int max_partition_size,
                        int n_partitions, int n_iterations, int seed, int n_threads, bool debug) {
  return optimize_ellipsoid_using_kfold(
      folds, cov_type, r1_max, r2_max, r3_max, regularization_const, cauchy_loss,
      min_partition_size, max_partition_size, n_partitions, n_iterations, seed, n_threads, debug);
}

/// The fit draws nothing.
cov_list fit_variogram_map(const location_list& lags, const values& variogram, const values& weight,
                           int n_structures, const std::string& cov_kernel, double min_r1,
                           double min_r2, double min_r3, double max_r1, double max_r2,
                           double max_r3, double total_sill, int n_iterations, double b,
                           double cauchy_loss, double regularization_const, double threshold,
                           int /*seed*/, int n_threads, bool debug) {
  return extract_covariance_from_varmap(lags, variogram, weight, n_structures, cov_kernel, min_r1,
                                        min_r2, min_r3, max_r1, max_r2, max_r3, total_sill,
                                        n_iterations, b, cauchy_loss, regularization_const,
                                        threshold, n_threads, debug);
}

py::arg_v default_search_parameters(const char* name) {
  return {name, ellipsoid_optimization_parameters(),
          "EllipsoidOptimizationParameters(n_rays=600, n_scales=5, n_iterations=2000, "
          "n_iterations_without_upgrade=100, regularization_const=0.001)"};
}

void bind_local_covariances(py::module_& m) {
  place_class<LocalCovariances>(m)
      .def(py::init(&local_covariances), arg("centers"), arg("covariances"), arg("errors"),
           docs::local_covariances_init)
      .def_readwrite("centers", &LocalCovariances::centers, docs::local_covariances_centers)
      .def_readwrite("covariances", &LocalCovariances::covariances,
                     docs::local_covariances_covariances)
      .def_readwrite("errors", &LocalCovariances::errors, docs::local_covariances_errors);
}

void bind_parameters(py::module_& m) {
  py::class_<ellipsoid_optimization_parameters>(m, "EllipsoidOptimizationParameters",
                                                docs::ellipsoid_optimization_parameters)
      .def(py::init(&search_parameters), arg("power_a") = 3.0, arg("max_nei_size") = 400,
           arg("min_partition_size") = 15, arg("max_partitions_size") = 25, arg("n_partitions") = 4,
           arg("n_centers") = 10, arg("n_rays") = 400, arg("n_scales") = 8,
           arg("n_iterations") = 150, arg("n_iterations_without_upgrade") = 50, arg("tol") = 0.002,
           arg("regularization_const") = 0.025, arg("seed") = 1231, arg("n_threads") = 0,
           arg("debug") = false, docs::ellipsoid_optimization_parameters_init);
  py::class_<ellipsoid_lbfgs_parameters>(m, "EllipsoidLBFGSParameters",
                                         docs::ellipsoid_lbfgs_parameters)
      .def(py::init(&fit_parameters), arg("regularization_const") = 1.0, arg("cauchy_loss") = 0.0,
           arg("min_partition_size") = 15, arg("max_partition_size") = 30, arg("n_partitions") = 7,
           arg("n_iterations") = 1000, arg("seed") = 123151, arg("n_threads") = 0,
           arg("debug") = false, docs::ellipsoid_lbfgs_parameters_init);
}

void bind_error_function(py::module_& m) {
  py::class_<CovarianceErrorFunction>(m, "CovarianceErrorFunction", docs::covariance_error_function)
      .def_static("IDW", &create_covariance_idw_error, arg("folds"), arg("max_distance"),
                  arg("power_a") = 3.0, arg("min_partition_size") = 15,
                  arg("max_partition_size") = 25, arg("n_partitions") = 5,
                  arg("regularization_const") = 0.001, arg("seed") = 21314,
                  docs::covariance_error_function_idw)
      .def_static("Custom", &create_custom_error, arg("python_callback"),
                  docs::covariance_error_function_custom)
      .def("__call__", &CovarianceErrorFunction::operator(), arg("covariance"),
           arg("n_threads") = 0, docs::covariance_error_function_call);
}

void bind_ellipsoid_searches(py::module_& m) {
  m.def("optimize_ellipsoid_using_idw", &optimize_ellipsoid_using_idw, arg("data_locs"),
        arg("data"), arg("cov_kernel"), arg("min_range"), arg("max_range"), arg("power_a"),
        arg("max_distance"), arg("max_nei_size"), arg("min_partition_size"),
        arg("max_partition_size"), arg("n_partitions"), arg("regularization_const"),
        arg("n_centers"), arg("n_rays"), arg("n_scales"), arg("n_iterations"),
        arg("n_iterations_without_upgrade"), arg("tol"), arg("seed") = 12315, arg("n_threads") = 0,
        arg("debug") = true, release_gil(), docs::optimize_ellipsoid_using_idw);
  m.def("optimize_ellipsoid", &optimize_ellipsoid, arg("data_locs"), arg("data"), arg("cov_kernel"),
        arg("min_range"), arg("max_range"), default_search_parameters("parameters"), release_gil(),
        docs::optimize_ellipsoid);
  m.def("compute_ellipsoid_error_idw", &compute_ellipsoid_error_idw, arg("ellipsoid"),
        arg("cov_kernel"), arg("folds"), arg("max_distance"), arg("max_size"), arg("power_a"),
        arg("min_partition_size"), arg("max_partition_size"), arg("n_partitions"),
        arg("regularization_const"), arg("n_threads") = 0, arg("seed") = 2131, release_gil(),
        docs::compute_ellipsoid_error_idw);
  m.def("optimize_ellipsoid_using_kfold", &fit_ellipsoid, arg("folds"), arg("cov_type"),
        arg("r1_max"), arg("r2_max"), arg("r3_max"), arg("regularization_const") = 0.0,
        arg("cauchy_loss") = 0.0, arg("min_partition_size") = 15, arg("max_partition_size") = 25,
        arg("n_partitions") = 7, arg("n_iterations") = 1000, arg("seed") = 123145,
        arg("n_threads") = 0, arg("debug") = false, release_gil(),
        docs::optimize_ellipsoid_using_kfold);
}

void bind_covariance_searches(py::module_& m) {
  m.def("compute_covariance_error_idw", &compute_covariance_error_idw, arg("cov"), arg("folds"),
        arg("max_distance"), arg("max_size"), arg("power_a"), arg("min_partition_size"),
        arg("max_partition_size"), arg("n_partitions"), arg("regularization_const"),
        arg("n_threads") = 0, arg("seed") = 2131, release_gil(),
        docs::compute_covariance_error_idw);
  m.def("optimize_covariance_using_idw", &search_covariance_using_idw, arg("data_locs"),
        arg("data"), arg("ellipsoid"), arg("cov_kernel"), arg("n_kernels"), arg("n_covs"),
        arg("delta_angle"), arg("min_str_range"), arg("max_str_range"), arg("min_sill"),
        arg("max_sill"), arg("min_range"), arg("max_range"), arg("power_a"), arg("max_distance"),
        arg("max_nei_size"), arg("min_partition_size"), arg("max_partition_size"),
        arg("n_partitions"), arg("regularization_const"), arg("n_centers"), arg("n_rays"),
        arg("n_scales"), arg("n_iterations"), arg("n_iterations_without_upgrade"), arg("tol"),
        arg("seed") = 12315, arg("n_threads") = 0, arg("debug") = true, release_gil(),
        docs::optimize_covariance_using_idw);
}

void bind_local_searches(py::module_& m) {
  m.def("optimize_local_ellipsoids", &optimize_local_ellipsoids, arg("data_locs"), arg("data"),
        arg("cov_kernel"), arg("min_range"), arg("max_range"), arg("n_centers"),
        arg("center_max_size"), arg("center_size"),
        default_search_parameters("ellipsoid_opt_params"), release_gil(),
        docs::optimize_local_ellipsoids);
  m.def("optimize_local_ellipsoids_using_lbfgs", &optimize_local_ellipsoids_using_lbfgs,
        arg("data_locs"), arg("data"), arg("cov_type"), arg("n_centers"), arg("n_local_centers"),
        arg("center_max_size"), arg("center_size"), arg("local_center_size"),
        arg("max_local_range"), arg("ellipsoid_opt_params"), release_gil(),
        docs::optimize_local_ellipsoids_using_lbfgs);
}

}  // namespace

void register_optimization_module(py::module_& m) {
  bind_local_covariances(m);
  bind_parameters(m);
  bind_error_function(m);
  m.def("optimize_covariance", &search_covariance, arg("covs"), arg("error_function"),
        arg("n_iterations") = 8000, arg("n_iterations_without_upgrade") = 8000,
        arg("n_threads") = 0, arg("debug") = false, docs::optimize_covariance);
  bind_ellipsoid_searches(m);
  bind_covariance_searches(m);
  bind_local_searches(m);
  m.def("extract_covariance_from_varmap", &fit_variogram_map, arg("lags"), arg("variogram"),
        arg("weight"), arg("n_structures"), arg("cov_kernel"), arg("min_r1"), arg("min_r2"),
        arg("min_r3"), arg("max_r1"), arg("max_r2"), arg("max_r3"), arg("total_sill"),
        arg("n_iterations"), arg("b"), arg("cauchy_loss"), arg("regularization_const"),
        arg("threshold"), arg("seed"), arg("n_threads") = 0, arg("debug") = true, release_gil(),
        docs::extract_covariance_from_varmap);
  register_ensembles(m);
  register_projections(m);
  register_graphs(m);
}

}  // namespace gravelox
