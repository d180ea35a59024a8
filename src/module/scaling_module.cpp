// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <vector>

#include "module/families.hpp"
#include "module/scaling_docs.hpp"
#include "projection/distance_graphs.hpp"
#include "projection/geodesics.hpp"
#include "projection/scaling.hpp"
#include "projection/scaling_search.hpp"

namespace gravelox {

namespace {

using py::arg;

point_list scale_table(int dim, int N, const distance_table& D, const point_list& initial_guess,
                       int n_iterations, bool debug, int n_threads, int seed, int ntries,
                       double eps, bool optimize_mean, bool do_sphering, double sphering_weight) {
  return dense_MDS(dim, N, D, initial_guess, {n_iterations, debug, n_threads, seed, ntries, eps},
                   optimize_mean, do_sphering, sphering_weight);
}

point_list scale_pairs(int dim, int N, const std::vector<dist_pair>& D,
                       const point_list& initial_guess, int n_iterations, bool debug, int n_threads,
                       int seed, int ntries, double eps) {
  return sparse_MDS(dim, N, D, initial_guess, {n_iterations, debug, n_threads, seed, ntries, eps});
}

float_point_list search_scaling(int dim, const float_point_list& initial_guess,
                                const std::vector<distance_triple>& D,
                                const std::vector<double>& max_distortions, int n_iterations,
                                int n_tries_by_iteration, int n_threads, int seed, bool debug,
                                int max_size, double time_limit, double target_e) {
  return mds_using_random_search(
      dim, initial_guess, D, max_distortions,
      {n_iterations, n_tries_by_iteration, n_threads, seed, debug, max_size, time_limit, target_e});
}

void bind_graphs(py::module_& m) {
  py::class_<dist_pair>(m, "DistPair", docs::dist_pair)
      .def(py::init([](int i, int j, double d) {
             return dist_pair{i, j, d};
           }),
           arg("i"), arg("j"), arg("d"), docs::dist_pair_init)
      .def_readwrite("i", &dist_pair::i, docs::dist_pair_i)
      .def_readwrite("j", &dist_pair::j, docs::dist_pair_j)
      .def_readwrite("d", &dist_pair::d, docs::dist_pair_d);
  m.def("create_sparse_dist_matrix", &create_sparse_dist_matrix, arg("D"), arg("K_neighbors"),
        arg("n_active"), arg("seed"), release_gil(), docs::create_sparse_dist_matrix);
  m.def("create_minimum_spanning_tree", &create_minimum_spanning_tree, arg("D"), release_gil(),
        docs::create_minimum_spanning_tree);
}

void bind_geodesics(py::module_& m) {
  m.def("flood_fill_using_ball", &flood_fill_using_ball, arg("locs"), arg("k_neis"),
        arg("surface_nei"), arg("eps"), release_gil(), docs::flood_fill_using_ball);
  m.def("create_random_dense_set", &create_random_dense_set, arg("pts"), arg("nei"), arg("eps"),
        arg("max_pts"), arg("seed"), release_gil(), docs::create_random_dense_set);
  m.def("compute_geodesics", &compute_geodesics, arg("locs"), arg("start"), arg("end"),
        arg("dense_nei"), arg("eps"), arg("knn"), arg("dense_set"), release_gil(),
        docs::compute_geodesics);
  m.def("compute_geodesic_based_distance_matrix", &compute_geodesic_based_distance_matrix,
        arg("locs"), arg("dense_nei"), arg("eps"), arg("knn"), arg("dense_set"),
        arg("n_threads") = 0, release_gil(), docs::compute_geodesic_based_distance_matrix);
}

void bind_scaling(py::module_& m) {
  m.def("dense_MDS", &scale_table, arg("dim"), arg("N"), arg("D"),
        py::arg_v("initial_guess", point_list(), "[]"), arg("n_iterations") = 100,
        arg("debug") = false, arg("n_threads") = 0, arg("seed") = 213154, arg("ntries") = 10,
        arg("eps") = 1e-6, arg("optimize_mean") = false, arg("do_sphering") = false,
        arg("sphering_weight") = 1e-6, release_gil(), docs::dense_mds);
  m.def("sparse_MDS", &scale_pairs, arg("dim"), arg("N"), arg("D"),
        py::arg_v("initial_guess", point_list(), "[]"), arg("n_iterations") = 100,
        arg("debug") = false, arg("n_threads") = 0, arg("seed") = 123124, arg("ntries") = 10,
        arg("eps") = 1e-6, release_gil(), docs::sparse_mds);
  m.def("mds_using_random_search", &search_scaling, arg("dim"), arg("initial_guess"), arg("D"),
        arg("max_distortions"), arg("n_iterations"), arg("n_tries_by_iteration"),
        arg("n_threads") = 0, arg("seed") = 12314, arg("debug") = false, arg("max_size") = 100,
        arg("time_limit") = 300.0, arg("target_e") = 1e-6, release_gil(),
        docs::mds_using_random_search);
}

}  // namespace

void register_graphs(py::module_& m) {
  bind_graphs(m);
  bind_geodesics(m);
  bind_scaling(m);
}

}  // namespace gravelox
