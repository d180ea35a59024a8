// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/ellipsoid_docs.hpp"
#include "module/families.hpp"
#include "module/grid_docs.hpp"
#include "module/neighborhood_docs.hpp"
#include "module/rotation_docs.hpp"
#include "spatial/axes.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/dynamic_neighborhood.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/extreme_points.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/rotation_sampling.hpp"
#include "spatial/spatial_function.hpp"
#include "spatial/sphere_sampling.hpp"

namespace gravelox {

namespace {

using py::arg;
using ids = std::vector<std::size_t>;

// Seeds of scripts are 32-bit ints; the core's are wider, for words of an engine.

location_list semisphere(int size, int seed) { return generate_random_semisphere(size, seed); }

location_list sphere(int size, int seed) { return generate_random_sphere(size, seed); }

location_list surface(const Ellipsoid& ellipsoid, int n_points, int seed) {
  return ellipsoid.surface(n_points, seed);
}

location_list volume(const Ellipsoid& ellipsoid, int n_points, int n_lags, int seed) {
  return ellipsoid.volume(n_points, n_lags, seed);
}

std::pair<location_list, std::vector<int>> directions(const Ellipsoid& ellipsoid, int n_directions,
                                                      int n_lags, int seed) {
  return ellipsoid.directions(n_directions, n_lags, seed);
}

std::pair<BoundingBox, Ellipsoid> rotation_of_least_box(const location_list& locations,
                                                        int sample_size, int n_iterations,
                                                        int n_threads, int seed,
                                                        bool use_fixed_samples, int n_rays) {
  return optimize_rotation(locations, sample_size, n_iterations, n_threads, seed, use_fixed_samples,
                           n_rays);
}

location_list outermost_points(const location_list& locations, int n_rays, int seed,
                               int n_threads) {
  return extreme_points(locations, n_rays, seed, n_threads);
}

std::vector<Eigen::Matrix3d> rotations(int n_rays, int seed, double tol) {
  return generate_rotations(n_rays, seed, tol);
}

std::vector<Ellipsoid> ellipsoids(double min_range, double max_range, int n_rays, int n_scales,
                                  int seed, double tol) {
  return generate_ellipsoids(min_range, max_range, n_rays, n_scales, seed, tol);
}

void bind_spatial_function(py::module_& m) {
  py::class_<SpatialFunction>(m, "SpatialFunction", docs::spatial_function)
      .def("__call__", &SpatialFunction::operator(), arg("location"), docs::spatial_function_call)
      .def("__call__", &evaluate, arg("locations"), arg("n_threads") = 0,
           docs::spatial_function_call_list);
}

void bind_ellipsoid_info(py::module_& m) {
  py::class_<EllipsoidInfo>(m, "EllipsoidInfo", docs::ellipsoid_info)
      .def(
          "r1", [](const EllipsoidInfo& info) { return info.r1; }, docs::ellipsoid_info_r1)
      .def(
          "r2", [](const EllipsoidInfo& info) { return info.r2; }, docs::ellipsoid_info_r2)
      .def(
          "r3", [](const EllipsoidInfo& info) { return info.r3; }, docs::ellipsoid_info_r3)
      .def(
          "azimuth", [](const EllipsoidInfo& info) { return info.azimuth; },
          docs::ellipsoid_info_azimuth)
      .def(
          "dip", [](const EllipsoidInfo& info) { return info.dip; }, docs::ellipsoid_info_dip)
      .def(
          "rake", [](const EllipsoidInfo& info) { return info.rake; }, docs::ellipsoid_info_rake);
}

void bind_ellipsoid(py::module_& m) {
  using point_map = location (Ellipsoid::*)(const location&) const;
  using list_map = location_list (Ellipsoid::*)(const location_list&, int) const;
  place_class<Ellipsoid>(m)
      .def(py::init<const Eigen::Matrix3d&>(), arg("anisotropy_matrix"),
           docs::ellipsoid_from_matrix)
      .def(py::init<double, double, double, double, double, double>(), arg("r1"), arg("r2"),
           arg("r3"), arg("azimuth"), arg("dip"), arg("rake"), docs::ellipsoid_from_ranges)
      .def(py::init<const Eigen::Vector3d&, const Eigen::Vector3d&>(), arg("length"),
           arg("rotation"), docs::ellipsoid_from_vectors)
      .def(py::init<const EllipsoidInfo&>(), arg("ellipsoid_info"), docs::ellipsoid_from_info)
      .def("info", &Ellipsoid::info, docs::ellipsoid_info_method)
      .def("forward", static_cast<point_map>(&Ellipsoid::forward), arg("location"),
           docs::ellipsoid_forward)
      .def("backward", static_cast<point_map>(&Ellipsoid::backward), arg("location"),
           docs::ellipsoid_backward)
      .def("forward", static_cast<list_map>(&Ellipsoid::forward), arg("locs"), arg("n_threads") = 0,
           docs::ellipsoid_forward_list)
      .def("backward", static_cast<list_map>(&Ellipsoid::backward), arg("locs"),
           arg("n_threads") = 0, docs::ellipsoid_backward_list)
      .def("matrix", &Ellipsoid::matrix, py::return_value_policy::copy, docs::ellipsoid_matrix)
      .def("inv_matrix", &Ellipsoid::inv_matrix, py::return_value_policy::copy,
           docs::ellipsoid_inv_matrix)
      .def("surface", &surface, arg("n_points") = 600, arg("seed") = 12546, docs::ellipsoid_surface)
      .def("volume", &volume, arg("n_points") = 600, arg("n_lags") = 300, arg("seed") = 12356,
           docs::ellipsoid_volume)
      .def("directions", &directions, arg("n_directions") = 600, arg("n_lags") = 300,
           arg("seed") = 12356, docs::ellipsoid_directions)
      .def("major_axis", &Ellipsoid::major_axis, docs::ellipsoid_major_axis)
      .def("mid_axis", &Ellipsoid::mid_axis, docs::ellipsoid_mid_axis)
      .def("minor_axis", &Ellipsoid::minor_axis, docs::ellipsoid_minor_axis)
      .def("__str__", &Ellipsoid::to_string, docs::ellipsoid_str);
}

void bind_samplers_and_axes(py::module_& m) {
  m.def("Rotation", &Rotation, arg("azimuth"), arg("dip"), arg("rake") = 0.0, docs::rotation);
  m.def("generate_random_semisphere", &semisphere, arg("size"), arg("seed") = 0,
        docs::generate_random_semisphere);
  m.def("generate_random_sphere", &sphere, arg("size"), arg("seed") = 0,
        docs::generate_random_sphere);
  m.def("extract_ellipsoid_info", &extract_ellipsoid_info, arg("T"), docs::extract_ellipsoid_info);
  m.def("sort_matrix3d", &sort_matrix3d, arg("T"), arg("orthogonalize") = true,
        docs::sort_matrix3d);
  m.def("orthogonolize_axes", &orthogonolize_axes, arg("T"), arg("sort") = true,
        docs::orthogonolize_axes);
  m.def("Direction", &Direction, arg("azimuth"), arg("dip"), docs::direction);
}

/// The two queries of a neighbourhood: an int is a count, a float a radius.
template <typename Hood>
void bind_queries(py::class_<Hood>& hood, const char* count_doc, const char* radius_doc) {
  using by_count = ids (Hood::*)(const location&, int) const;
  using by_radius = ids (Hood::*)(const location&, double) const;
  hood.def("find_neighbors", static_cast<by_count>(&Hood::find_neighbors), arg("center"),
           arg("max_size"), count_doc)
      .def("find_neighbors", static_cast<by_radius>(&Hood::find_neighbors), arg("center"),
           arg("max_radius"), radius_doc);
}

void bind_neighborhood(py::module_& m) {
  py::class_<Neighborhood> hood(m, "Neighborhood", docs::neighborhood);
  hood.def(py::init<const location_list&, const Ellipsoid&>(), arg("locations"), arg("ellipsoid"),
           docs::neighborhood_with_ellipsoid)
      .def(py::init<const location_list&>(), arg("locations"), docs::neighborhood_init);
  bind_queries(hood, docs::find_neighbors_by_count, docs::find_neighbors_by_radius);
  hood.def("nearest_neighbor", &Neighborhood::nearest_neighbor, docs::nearest_neighbor_positional);
}

void bind_dynamic_neighborhood(py::module_& m) {
  py::class_<DynamicNeighborhood> hood(m, "DynamicNeighborhood", docs::dynamic_neighborhood);
  hood.def(py::init<>(), docs::dynamic_neighborhood_empty)
      .def(py::init<const Ellipsoid&>(), arg("ellipsoid"),
           docs::dynamic_neighborhood_empty_with_ellipsoid)
      .def(py::init<const location_list&, const Ellipsoid&>(), arg("locations"), arg("ellipsoid"),
           docs::neighborhood_with_ellipsoid)
      .def(py::init<const location_list&>(), arg("locations"), docs::neighborhood_init);
  bind_queries(hood, docs::find_neighbors_by_count_dynamic,
               docs::find_neighbors_by_radius_unsorted);
  hood.def("nearest_neighbor", &DynamicNeighborhood::nearest_neighbor, arg("point"),
           docs::nearest_neighbor)
      .def("add_point", &DynamicNeighborhood::add_point, arg("point"), docs::add_point)
      .def("add_points", &DynamicNeighborhood::add_points, arg("points"), docs::add_points)
      .def("remove_point", &DynamicNeighborhood::remove_point, arg("id"), docs::remove_point);
}

void bind_rotation_sampling(py::module_& m) {
  register_early<BoundingBox>(m, "BoundingBox", docs::bounding_box);
  m.def("optimize_rotation", &rotation_of_least_box, arg("locations"), arg("sample_size") = 30000,
        arg("n_iterations") = 20000, arg("n_threads") = 0, arg("seed") = 12356,
        arg("use_fixed_samples") = true, arg("n_rays") = 600, docs::optimize_rotation);
  m.def("extreme_points", &outermost_points, arg("locations"), arg("n_rays") = 600,
        arg("seed") = 121315, arg("n_threads") = 0, docs::extreme_points);
  m.def("generate_rotations", &rotations, arg("n_rays"), arg("seed"), arg("tol"),
        docs::generate_rotations);
  m.def("generate_ellipsoids", &ellipsoids, arg("min_range"), arg("max_range"), arg("n_rays"),
        arg("n_scales"), arg("seed"), arg("tol"), docs::generate_ellipsoids);
}

}  // namespace

void register_spatial_module(py::module_& m) {
  bind_spatial_function(m);
  bind_ellipsoid_info(m);
  bind_ellipsoid(m);
  bind_samplers_and_axes(m);
  bind_neighborhood(m);
  bind_dynamic_neighborhood(m);
  bind_rotation_sampling(m);
}

}  // namespace gravelox
