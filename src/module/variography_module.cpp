// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/families.hpp"
#include "module/grid_defaults.hpp"
#include "module/variography_docs.hpp"
#include "variography/experimental_variogram.hpp"
#include "variography/grid_variogram.hpp"
#include "variography/scattered_variogram.hpp"
#include "variography/variogram_computer.hpp"
#include "variography/variogram_smoothing.hpp"

namespace gravelox {

namespace {

using py::arg;
using values = std::vector<double>;

// Seeds of scripts are 32-bit ints.

experimental_variogram of_locations(const location_list& corners, const location_list& locations,
                                    const values& data, int nx, int ny, int nz, int n_directions,
                                    int n_lags, double bandwidth, int n_threads, int seed,
                                    const location& origin, const location& rotation) {
  return compute_variogram(corners, locations, data, nx, ny, nz, n_directions, n_lags, bandwidth,
                           n_threads, seed, origin, rotation);
}

template <typename Blocks>
experimental_variogram of_blocks(const Blocks& blocks, const values& data, int n_directions,
                                 int n_lags, double bandwidth, int n_threads, int seed, int nx,
                                 int ny, int nz) {
  return compute_variogram(blocks, data, n_directions, n_lags, bandwidth, n_threads, seed, nx, ny,
                           nz);
}

experimental_variogram of_samples(const location_list& data_locs, const values& data_values,
                                  int n_centers, double angle_tol, int n_lags, double lag_tol,
                                  double bandwidth, int window_size, int n_directions, double tol,
                                  int n_threads, int seed) {
  return compute_exp_variogram(data_locs, data_values, n_centers, angle_tol, n_lags, lag_tol,
                               bandwidth, window_size, n_directions, tol, n_threads, seed);
}

experimental_variogram smoothed(const experimental_variogram& vario, int n_lags, int max_n_neis,
                                double max_r, double bandwidth, double power_a, double max_weight,
                                int sampling_size, int n_threads, int seed) {
  return smooth_variogram(vario, n_lags, max_n_neis, max_r, bandwidth, power_a, max_weight,
                          sampling_size, n_threads, seed);
}

void bind_experimental_variogram(py::module_& m) {
  using vario = experimental_variogram;
  using by_angles = variogram_points (vario::*)(double, double) const;
  using by_vector = variogram_points (vario::*)(const location&) const;
  py::class_<vario>(m, "ExperimentalVariogram", docs::experimental_variogram)
      .def(py::init<location_list, values, std::vector<int>, std::vector<int>, location_list>(),
           arg("lags"), arg("variogram"), arg("npairs"), arg("direction_id"), arg("directions"),
           docs::experimental_variogram_init)
      .def("lags_by_dir", &vario::lags_by_dir, docs::lags_by_dir)
      .def("lags", &vario::lags, docs::lags)
      .def("variogram", &vario::variogram, docs::variogram)
      .def("npairs", &vario::npairs, docs::npairs)
      .def("direction_ids", &vario::direction_ids, docs::direction_ids)
      .def("directions", &vario::directions, docs::variogram_directions)
      .def("get_variogram", static_cast<by_angles>(&vario::get_variogram), arg("azimuth"),
           arg("dip"), docs::get_variogram_by_angles)
      .def("get_variogram", static_cast<by_vector>(&vario::get_variogram), arg("dir"),
           docs::get_variogram_by_vector)
      .def("get_variogram_by_direction_id", &vario::get_variogram_by_direction_id,
           arg("direction_id"), docs::get_variogram_by_direction_id);
}

void bind_compute_variogram(py::module_& m) {
  m.def("compute_variogram", &of_locations, arg("corners"), arg("locations"), arg("data"),
        arg("nx"), arg("ny"), arg("nz"), arg("n_directions"), arg("n_lags"), arg("bandwidth"),
        arg("n_threads") = 0, arg("seed") = 12415, default_origin(), default_rotation(),
        docs::compute_variogram_of_locations);
  m.def("compute_variogram", &of_blocks<CartesianGrid>, arg("cartesian_grid"), arg("data"),
        arg("n_directions"), arg("n_lags"), arg("bandwidth"), arg("n_threads") = 0,
        arg("seed") = 12415, arg("nx") = 200, arg("ny") = 200, arg("nz") = 200,
        docs::compute_variogram_of_grid);
  m.def("compute_variogram", &of_blocks<BlockModel>, arg("block_model"), arg("data"),
        arg("n_directions"), arg("n_lags"), arg("bandwidth"), arg("n_threads") = 0,
        arg("seed") = 12415, arg("nx") = 200, arg("ny") = 200, arg("nz") = 200,
        docs::compute_variogram_of_blocks);
}

}  // namespace

void register_variography_module(py::module_& m) {
  bind_experimental_variogram(m);
  m.def("variogram_computer", &create_variogram_computer, arg("cov"), arg("data_var"),
        docs::variogram_computer);
  bind_compute_variogram(m);
  m.def("compute_exp_variogram", &of_samples, arg("data_locs"), arg("data_values"),
        arg("n_centers") = 60, arg("angle_tol") = 5.0, arg("n_lags") = 75, arg("lag_tol") = 0.001,
        arg("bandwidth") = 0.02, arg("window_size") = 2, arg("n_directions") = 300,
        arg("tol") = 0.01, arg("n_threads") = 0, arg("seed") = 12415, release_gil(),
        docs::compute_exp_variogram);
  m.def("smooth_variogram", &smoothed, arg("vario"), arg("n_lags"), arg("max_n_neis"), arg("max_r"),
        arg("bandwidth"), arg("power_a"), arg("max_weight"), arg("sampling_size"),
        arg("n_threads") = 0, arg("seed") = 123151, release_gil(), docs::smooth_variogram);
}

}  // namespace gravelox
