// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "estimation/ensemble_estimation.hpp"
#include "estimation/estimator.hpp"
#include "estimation/inverse_distance.hpp"
#include "estimation/kriging.hpp"
#include "estimation/moving_window.hpp"
#include "module/estimation_docs.hpp"
#include "module/families.hpp"

namespace gravelox {

namespace {

using py::arg;
using dhid_list = std::vector<int>;

void bind_idw(py::module_& m) {
  using plain_form = Estimator (*)(double, double, int, double, int, const dhid_list&, int);
  using cov_form = Estimator (*)(const std::vector<Covariance>&, double, double, int, double, int,
                                 const dhid_list&, int);
  m.def("IDW", static_cast<plain_form>(&create_idw_estimator), arg("power_a") = 2.0,
        arg("max_weight") = 0.9, arg("max_neighbors") = -1, arg("max_radius") = -1.0,
        arg("max_neighbors_octant") = -1, no_dhids(), arg("max_neis_by_dhid") = -1, docs::idw);
  m.def("IDW", static_cast<cov_form>(&create_idw_estimator), arg("covs"), arg("power_a") = 2.0,
        arg("max_weight") = 0.9, arg("max_neighbors") = -1, arg("max_radius") = -1.0,
        arg("max_neighbors_octant") = -1, no_dhids(), arg("max_neis_by_dhid") = -1,
        docs::idw_with_covariances);
}

void bind_kriging_estimators(py::module_& m) {
  m.def("SimpleKriging", &create_sk_estimator, arg("covs"), arg("mean"), arg("max_neighbors") = -1,
        arg("max_radius") = -1.0, arg("max_neighbors_octant") = -1, no_dhids(),
        arg("max_neis_by_dhid") = -1, docs::simple_kriging);
  m.def("OrdinaryKriging", &create_ok_estimator, arg("covs"), arg("max_neighbors") = -1,
        arg("max_radius") = -1.0, arg("max_neighbors_octant") = -1, no_dhids(),
        arg("max_neis_by_dhid") = -1, docs::ordinary_kriging);
}

void bind_ensemble_estimator(py::module_& m) {
  m.def("EnsembleEstimation", &create_ensemble_estimator, arg("local_covs"),
        arg("ellipsoid_search"), arg("max_neighbors"), arg("max_distance"), arg("max_cov_neis"),
        arg("max_neis_octant"), arg("power_a"), arg("max_weight"), arg("run_normalization") = true,
        arg("use_sk") = false, arg("sk_mean") = 0.0, no_dhids(), arg("max_neis_by_dhid") = -1,
        docs::ensemble_estimation_estimator);
}

void bind_estimations(py::module_& m) {
  m.def("compute_simple_kriging", &compute_simple_kriging, arg("target_locs"), arg("data_locs"),
        arg("data"), arg("covs"), arg("mean"), arg("neighborhood"), arg("max_neighbors"),
        arg("max_radius") = -1.0, arg("max_neighbors_octant") = -1, arg("n_threads") = 0,
        no_dhids(), arg("max_neis_by_dhid") = -1, release_gil(), docs::compute_simple_kriging);
  m.def("compute_ordinary_kriging", &compute_ordinary_kriging, arg("target_locs"), arg("data_locs"),
        arg("data"), arg("covs"), arg("neighborhood"), arg("max_neighbors"),
        arg("max_radius") = -1.0, arg("max_neighbors_octant") = -1, arg("n_threads") = 0,
        no_dhids(), arg("max_neis_by_dhid") = -1, release_gil(), docs::compute_ordinary_kriging);
  m.def("compute_simple_ensemble_estimation", &compute_simple_ensemble_estimation,
        arg("target_locs"), arg("data_locs"), arg("data"), arg("local_covs"),
        arg("ellipsoid_search"), arg("n_neis"), arg("max_radius"), arg("max_neis_octant"),
        arg("n_cov_neis"), arg("lambda_e"), arg("alpha"), arg("lambda_r"), arg("beta"),
        arg("n_threads") = 0, no_dhids(), arg("max_neis_by_dhid") = -1, release_gil(),
        docs::compute_simple_ensemble_estimation);
  m.def("moving_window_estimation", &moving_window_estimation, arg("target_locs"), arg("nei"),
        arg("data_locs"), arg("data"), arg("covs"), arg("max_neighbors"), arg("max_radius") = -1.0,
        arg("max_neighbors_octant") = -1, no_dhids(), arg("max_neis_by_dhid") = -1,
        arg("n_threads") = 0, docs::moving_window_estimation);
}

}  // namespace

void register_estimation_module(py::module_& m) {
  place_class<Estimator>(m).def("__call__", &Estimator::operator(), arg("target_locs"),
                                arg("neighborhood"), arg("data_locs"), arg("data"),
                                arg("n_threads") = 0, docs::estimator_call);
  bind_idw(m);
  bind_kriging_estimators(m);
  bind_ensemble_estimator(m);
  bind_estimations(m);
}

}  // namespace gravelox
