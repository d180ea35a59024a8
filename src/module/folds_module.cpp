// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "estimation/cross_validation.hpp"
#include "estimation/folds.hpp"
#include "module/families.hpp"
#include "module/folds_docs.hpp"

namespace gravelox {

namespace {

using py::arg;
using values = std::vector<double>;
using dhid_list = std::vector<int>;

// Seeds of scripts are 32-bit ints.

fold_list folds_of(const location_list& data_locs, const values& data_values, double max_distance,
                   int max_size, int n_centers, int seed) {
  return create_folds(data_locs, data_values, max_distance, max_size, n_centers, seed);
}

/// The limits of neighbours and the threads have no say in it.
fold_list multiscale_folds(int n_partitions, int min_partition_size, int max_partition_size,
                           double max_distance, const values& scales,
                           const Ellipsoid& search_ellipsoid, const location_list& data_locs,
                           const values& data, double /*max_radius*/, int /*max_size*/,
                           int /*max_neis_octant*/, int seed, int /*n_threads*/,
                           const dhid_list& /*dhids*/, int /*max_neis_by_dhid*/) {
  return create_folds_using_multiscale(n_partitions, min_partition_size, max_partition_size,
                                       max_distance, scales, search_ellipsoid, data_locs, data,
                                       seed);
}

template <typename Function>
void bind_kriging_validation(py::module_& m, const char* name, Function function, const char* doc) {
  m.def(name, function, arg("data_locs"), arg("data_values"), arg("covs"), arg("max_distance"),
        arg("max_size") = -1, arg("min_partition_size") = 10, arg("max_partition_size") = 40,
        arg("n_partition_size") = 15, arg("n_threads") = 0, arg("seed") = 123451, release_gil(),
        doc);
}

}  // namespace

void register_folds_module(py::module_& m) {
  m.def("create_folds", &folds_of, arg("data_locs"), arg("data_values"), arg("max_distance"),
        arg("max_size"), arg("n_centers"), arg("seed") = 21315, release_gil(), docs::create_folds);
  m.def("kfold_cross_validation_using_idw", &kfold_cross_validation_using_idw, arg("data_locs"),
        arg("data_values"), arg("covs"), arg("max_distance"), arg("max_size") = -1,
        arg("power_a") = 3.0, arg("min_partition_size") = 10, arg("max_partition_size") = 40,
        arg("n_partition_size") = 15, arg("n_threads") = 0, arg("seed") = 123451, release_gil(),
        docs::kfold_cross_validation_using_idw);
  bind_kriging_validation(m, "kfold_cross_validation_using_sk", &kfold_cross_validation_using_sk,
                          docs::kfold_cross_validation_using_sk);
  bind_kriging_validation(m, "kfold_cross_validation_using_ok", &kfold_cross_validation_using_ok,
                          docs::kfold_cross_validation_using_ok);
  m.def("create_folds_using_multiscale", &multiscale_folds, arg("n_partitions"),
        arg("min_partition_size"), arg("max_partition_size"), arg("max_distance"), arg("scales"),
        arg("search_ellipsoid"), arg("data_locs"), arg("data"), arg("max_radius"), arg("max_size"),
        arg("max_neis_octant"), arg("seed") = 1231255, arg("n_threads") = 0, no_dhids(),
        arg("max_neis_by_dhid") = -1, docs::create_folds_using_multiscale);
  m.def("multi_scale_cross_validation_error", &multi_scale_cross_validation_error, arg("data_locs"),
        arg("data"), arg("cov"), arg("range1"), arg("range2"), arg("range3"), arg("scales"),
        arg("max_size"), arg("max_radius"), arg("max_neis_octant"), arg("n_threads") = 0,
        arg("seed") = 1231415, no_dhids(), arg("max_neis_by_dhid") = -1,
        docs::multi_scale_cross_validation_error);
}

}  // namespace gravelox
