// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "detection/angular_clustering.hpp"
#include "detection/cluster_fusion.hpp"
#include "detection/cluster_merging.hpp"
#include "detection/feature_clustering.hpp"
#include "detection/grid_alignment.hpp"
#include "module/detection_docs.hpp"
#include "module/ellipsoid_docs.hpp"
#include "module/families.hpp"

namespace gravelox {

using py::arg;

void register_detection_module(py::module_& m) {
  register_early<Ellipsoid>(m, "Ellipsoid", docs::ellipsoid);
  m.def("compute_angular_distance", &compute_angular_distance, arg("A"), arg("B"), arg("C"),
        docs::compute_angular_distance);
  m.def("find_clusters", &find_clusters, arg("locs"), arg("anisotropy"), arg("r_tol"),
        arg("angular_tol"), arg("support_threshold"), arg("min_support_size"), arg("n_threads") = 0,
        docs::find_clusters);
  m.def("compute_angular_distance_between_clusters", &compute_angular_distance_between_clusters,
        arg("anisotropy"), arg("locs"), arg("clusters"), arg("r_tol"),
        docs::compute_angular_distance_between_clusters);
  m.def("merge_clusters", &merge_clusters, arg("D"), arg("locs"), arg("clusters"),
        arg("ignored_ids"), arg("angular_tol"), arg("r_tol"), arg("ani"), docs::merge_clusters);
}

void register_grid_detector_module(py::module_& m) {
  py::module_ detector = m.def_submodule("grid_detector");
  detector.def("detect_grid_aligned_points", &grid_detector::detect_grid_aligned_points,
               arg("locs"), arg("features"), arg("nei"), arg("color_tolerance"),
               arg("angle_tolerance_deg"), arg("radius"), arg("n_neis"), arg("n_threads") = 0,
               docs::detect_grid_aligned_points);
  detector.def("find_clusters", &grid_detector::find_clusters, arg("locs"), arg("features"),
               arg("nei"), arg("color_tolerance"), arg("background_color"), arg("radius"),
               arg("n_neis"), arg("n_threads") = 0, docs::find_clusters_of_features);
  detector.def("cluster_fusion", &grid_detector::cluster_fusion, arg("locs"),
               arg("initial_clusters"), arg("max_distance"), arg("n_threads") = 0,
               docs::cluster_fusion);
}

}  // namespace gravelox
