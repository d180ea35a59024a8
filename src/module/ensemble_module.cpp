// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <optional>

#include "estimation/ensemble_estimation.hpp"
#include "module/ensemble_docs.hpp"
#include "module/families.hpp"
#include "optimization/ensemble_model.hpp"
#include "simulation/ensemble_simulation.hpp"

namespace gravelox {

namespace {

using py::arg;
using dhid_list = std::vector<int>;

/// Seeds of scripts are 32-bit ints.
std::vector<double> conditional_ensemble(
    const location_list& target_locs, const location_list& data_locs,
    const std::vector<double>& data, const LocalCovariances& local_covs,
    const Ellipsoid& search_ellipsoid, const SimulatorFactory& simulator_factory, int max_size,
    double max_distance, int max_cov_neis, int max_neis_octant, double power_a, double max_weight,
    int seed, int n_threads, const dhid_list& dhids, int max_neis_by_dhid) {
  return ensemble_simulation(target_locs, data_locs, data, local_covs, search_ellipsoid,
                             simulator_factory, max_size, max_distance, max_cov_neis,
                             max_neis_octant, power_a, max_weight, seed, n_threads, dhids,
                             max_neis_by_dhid);
}

void bind_ellipsoid_blends(py::module_& m) {
  m.def("ensemble_model", &ensemble_model, arg("r1"), arg("r2"), arg("r3"), arg("azimuth"),
        arg("dip"), arg("rake"), arg("w"), release_gil(), docs::ensemble_model);
  m.def("ensemble_ellipsoid", &ensemble_ellipsoid, arg("w"), arg("ellipsoids"), release_gil(),
        docs::ensemble_ellipsoid);
  m.def("ensemble_local_ellipsoids", &ensemble_local_ellipsoids, arg("target_locs"),
        arg("ellipsoid_locs"), arg("ellipsoids"), arg("ellipsoid_weights"), arg("n_neis") = 20,
        arg("max_radius") = -1.0, arg("max_neis_octant") = -1, arg("eps") = 0.01,
        arg("n_threads") = 0, no_dhids(), arg("max_neis_by_dhid") = -1, release_gil(),
        docs::ensemble_local_ellipsoids);
}

}  // namespace

void register_ensembles(py::module_& m) {
  bind_ellipsoid_blends(m);
  m.def("ensemble_estimation", &ensemble_estimation, arg("target_locs"), arg("data_locs"),
        arg("data"), arg("local_covs"), arg("search_ellipsoid"), arg("max_size"),
        arg("max_distance"), arg("max_cov_neis"), arg("max_neis_octant"), arg("power_a"),
        arg("max_weight"), arg("n_threads") = 0, arg("run_normalization") = true,
        arg("data_nei") = py::none(), arg("use_sk") = false, arg("sk_mean") = 0.0, no_dhids(),
        arg("max_neis_by_dhid") = -1, release_gil(), docs::ensemble_estimation);
  m.def("ensemble_simulation", &conditional_ensemble, arg("target_locs"), arg("data_locs"),
        arg("data"), arg("local_covs"), arg("search_ellipsoid"), arg("simulator_factory"),
        arg("max_size"), arg("max_distance"), arg("max_cov_neis"), arg("max_neis_octant"),
        arg("power_a"), arg("max_weight"), arg("seed"), arg("n_threads") = 0, no_dhids(),
        arg("max_neis_by_dhid") = -1, release_gil(), docs::ensemble_simulation);
}

}  // namespace gravelox
