// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <string>
#include <utility>
#include <vector>

#include "module/families.hpp"
#include "module/projection_docs.hpp"
#include "projection/blended_projections.hpp"
#include "projection/isomorphism.hpp"
#include "projection/mds_projection.hpp"
#include "projection/optimized_projection.hpp"

namespace gravelox {

namespace {

using py::arg;
using values = std::vector<double>;

/// The two forms of `project`.
template <typename Map>
void def_project(py::class_<Map>& map) {
  const auto image_of_point = [](const Map& self, const point_array& x) {
    return self.project(x.values);
  };
  const auto images_of_list = [](const Map& self, const point_list& X, int n_threads) {
    return self.project(X, n_threads);
  };
  map.def("project", image_of_point, arg("x"), release_gil(), docs::project_point)
      .def("project", images_of_list, arg("X"), arg("n_threads") = 0, release_gil(),
           docs::project_list);
}

void bind_point_maps(py::module_& m) {
  py::class_<IDW_projection> idw(m, "IDWProjection", docs::idw_projection);
  idw.def(py::init<const point_list&, const point_list&, double, double, int>(), arg("source"),
          arg("target"), arg("power_a"), arg("wp"), arg("K"), docs::idw_projection_init);
  def_project(idw);

  using with_kernel =
      decltype(py::init<const point_list&, const point_list&, double, double, int, Kernel>());
  py::class_<Gaussian_mixture_projection> mixture(m, "GaussianMixtureProjection",
                                                  docs::gaussian_mixture_projection);
  mixture.def(with_kernel(), arg("source"), arg("target"), arg("power_a"), arg("wp"), arg("K"),
              arg("kernel"), docs::gaussian_mixture_projection_init);
  def_project(mixture);

  py::class_<OK_projection> kriging(m, "OKProjection", docs::ok_projection);
  kriging.def(with_kernel(), arg("source"), arg("target"), arg("power_a"), arg("wp"), arg("K"),
              arg("kernel"), docs::ok_projection_init);
  def_project(kriging);

  py::class_<MDS_projection> radial(m, "MDSProjection", docs::mds_projection);
  radial.def(py::init<const point_list&, const point_list&, const point_list&, double, Kernel>(),
             arg("source"), arg("target"), arg("control_points"), arg("power_a"), arg("kernel"),
             docs::mds_projection_init);
  def_project(radial);
}

// Another thread may set the map's fields while this one runs without the interpreter lock: both
// forms work on a copy.

point project_point(const Optimized_nd_projection& self, const point_array& x) {
  const Optimized_nd_projection map = self;  // NOLINT(performance-unnecessary-copy-initialization)
  const py::gil_scoped_release without_gil;
  return map.project(x.values);
}

point_list project_list(const Optimized_nd_projection& self, const point_list& X, int n_threads) {
  const Optimized_nd_projection map = self;  // NOLINT(performance-unnecessary-copy-initialization)
  const py::gil_scoped_release without_gil;
  return map.project(X, n_threads);
}

void bind_optimized_projection(py::module_& m) {
  py::class_<Optimized_nd_projection> map(m, "OptimizedNDProjection", docs::optimized_projection);
  map.def(py::init([](const point_list& centers, const values& scales, const point_list& weights) {
            return Optimized_nd_projection{centers, scales, weights};
          }),
          arg("centers"), arg("scales"), arg("weights"), docs::optimized_projection_init)
      .def_readwrite("centers", &Optimized_nd_projection::centers,
                     docs::optimized_projection_centers)
      .def_readwrite("scales", &Optimized_nd_projection::scales, docs::optimized_projection_scales)
      .def_readwrite("weights", &Optimized_nd_projection::weights,
                     docs::optimized_projection_weights);
  map.def("project", &project_point, arg("x"), docs::project_point)
      .def("project", &project_list, arg("X"), arg("n_threads") = 0, docs::project_list);
  map.def_static("optimize", &Optimized_nd_projection::optimize, arg("source"), arg("target"),
                 arg("n_centers"), arg("din"), arg("dout"), arg("n_threads"), arg("n_iterations"),
                 arg("debug") = false, arg("seed") = 12345, release_gil(),
                 docs::optimized_projection_optimize);
}

Projection create_projection(const values& parameters, const std::string& kernel) {
  return Projection(parameters, to_known_type("kernel", kernel));
}

Isomorphism create_isomorphism(const Isomorphism::serialized& parameters,
                               const std::string& kernel) {
  return Isomorphism(parameters, to_known_type("kernel", kernel));
}

[[noreturn]] void refuse_state(const char* expected, const py::handle& state) {
  throw std::invalid_argument(std::string("state: expected ") + expected + ", got " +
                              std::string(py::repr(state)).substr(0, 100));
}

/// A part of a pickled state, where it is one; words are texts, not bytes.
template <typename T>
T part_of_state(const py::handle& state, const py::handle& part, const char* expected) {
  py::detail::make_caster<T> caster;
  if (py::isinstance<py::bytes>(part) || !caster.load(part, true)) refuse_state(expected, state);
  return py::detail::cast_op<T>(std::move(caster));
}

py::object state_of_projection(const Projection& map) {
  return py::make_tuple(map.serialize(), to_text(map.kernel()));
}

Projection projection_of_state(const py::object& state) {
  constexpr auto expected = "a list of floats and the word of a kernel";
  if (!py::isinstance<py::tuple>(state) || py::len(state) != 2) refuse_state(expected, state);
  return create_projection(part_of_state<values>(state, state[py::int_(0)], expected),
                           part_of_state<std::string>(state, state[py::int_(1)], expected));
}

/// The serialised form stands first, the words of the kernels beside it.
py::object state_of_isomorphism(const Isomorphism& map) {
  return py::make_tuple(map.serialize(), to_text(map.forward_proj().kernel()),
                        to_text(map.backward_proj().kernel()));
}

/// States without words are those of exponential kernels: the serialised form, alone in a tuple or
/// as it is.
Isomorphism isomorphism_of_state(const py::object& state) {
  constexpr auto expected = "a tuple of two lists of floats, and two words of kernels or none";
  if (!py::isinstance<py::tuple>(state)) refuse_state(expected, state);
  const auto size = py::len(state);
  py::detail::make_caster<Isomorphism::serialized> bare;
  if (size == 2 && bare.load(state, true)) {
    return Isomorphism(py::detail::cast_op<Isomorphism::serialized>(std::move(bare)));
  }
  if (size != 1 && size != 3) refuse_state(expected, state);
  const auto lists = part_of_state<Isomorphism::serialized>(state, state[py::int_(0)], expected);
  if (size == 1) return Isomorphism(lists);
  const auto projection = [&](const values& parameters, int place) {
    const py::object word = state[py::int_(place)];
    return create_projection(parameters, part_of_state<std::string>(state, word, expected));
  };
  return {projection(lists.first, 1), projection(lists.second, 2)};
}

void bind_isomorphism(py::module_& m) {
  py::class_<Projection>(m, "Projection", docs::projection)
      .def(py::init(&create_projection), arg("parameters"), arg("kernel") = "exponential",
           docs::projection_init)
      .def("serialize", &Projection::serialize, docs::projection_serialize)
      .def("forward", py::overload_cast<double>(&Projection::forward, py::const_), arg("u"),
           docs::projection_forward)
      .def("forward", py::overload_cast<const values&, int>(&Projection::forward, py::const_),
           arg("u"), arg("n_threads") = 0, docs::projection_forward_list)
      .def(py::pickle(&state_of_projection, &projection_of_state));
  py::class_<Isomorphism>(m, "Isomorphism", docs::isomorphism)
      .def(py::init(&create_isomorphism), arg("parameters"), arg("kernel") = "exponential",
           docs::isomorphism_init)
      .def(py::init<Projection, Projection>(), arg("forward_proj"), arg("backward_proj"),
           docs::isomorphism_init_of_projections)
      .def("serialize", &Isomorphism::serialize, docs::isomorphism_serialize)
      .def("forward", py::overload_cast<double>(&Isomorphism::forward, py::const_), arg("u"),
           docs::isomorphism_forward)
      .def("forward", py::overload_cast<const values&, int>(&Isomorphism::forward, py::const_),
           arg("u"), arg("n_threads") = 0, docs::isomorphism_forward_list)
      .def("backward", py::overload_cast<double>(&Isomorphism::backward, py::const_), arg("u"),
           docs::isomorphism_backward)
      .def("backward", py::overload_cast<const values&, int>(&Isomorphism::backward, py::const_),
           arg("u"), arg("n_threads") = 0, docs::isomorphism_backward_list)
      .def(py::pickle(&state_of_isomorphism, &isomorphism_of_state));
}

isomorphism_parameters create_parameters(const std::string& kernel_forward, int n_centers_forward,
                                         const std::string& kernel_backward, int n_centers_backward,
                                         double weight_tol, double center_tol, double min_beta,
                                         double max_beta, double min_partition_size,
                                         double max_partition_size, int n_partitions,
                                         double cauchy_loss, int n_iterations, int n_threads,
                                         int seed, bool debug) {
  return {to_known_type("kernel_forward", kernel_forward),
          n_centers_forward,
          to_known_type("kernel_backward", kernel_backward),
          n_centers_backward,
          weight_tol,
          center_tol,
          min_beta,
          max_beta,
          min_partition_size,
          max_partition_size,
          n_partitions,
          cauchy_loss,
          n_iterations,
          n_threads,
          seed,
          debug};
}

Projection fit_projection(const values& source, const values& target, const std::string& kernel,
                          int n_centers, double min_weight, double max_weight, double min_beta,
                          double max_beta, double min_center, double max_center, int n_partitions,
                          int min_partition_size, int max_partition_size, double cauchy_loss,
                          int n_iterations, int n_threads, int seed, bool debug) {
  return optimize_projection(source, target,
                             {to_known_type("kernel", kernel), n_centers, {min_beta, max_beta}},
                             {{min_weight, max_weight},
                              {min_center, max_center},
                              n_partitions,
                              min_partition_size,
                              max_partition_size,
                              cauchy_loss,
                              n_iterations,
                              n_threads,
                              seed,
                              debug});
}

Isomorphism fit_isomorphism(const values& source, const values& target,
                            const std::string& kernel_type_forward, int n_centers_forward,
                            double min_beta_forward, double max_beta_forward,
                            const std::string& kernel_type_backward, int n_centers_backward,
                            double min_beta_backward, double max_beta_backward, double min_weight,
                            double max_weight, double min_center, double max_center,
                            int n_partitions, int min_partition_size, int max_partition_size,
                            double cauchy_loss, int n_iterations, int n_threads, int seed,
                            bool debug) {
  return optimize_isomorphism(source, target,
                              {to_known_type("kernel_type_forward", kernel_type_forward),
                               n_centers_forward,
                               {min_beta_forward, max_beta_forward}},
                              {to_known_type("kernel_type_backward", kernel_type_backward),
                               n_centers_backward,
                               {min_beta_backward, max_beta_backward}},
                              {{min_weight, max_weight},
                               {min_center, max_center},
                               n_partitions,
                               min_partition_size,
                               max_partition_size,
                               cauchy_loss,
                               n_iterations,
                               n_threads,
                               seed,
                               debug});
}

void bind_isomorphism_fits(py::module_& m) {
  py::class_<isomorphism_parameters>(m, "IsomorphismParameters", docs::isomorphism_parameters)
      .def(py::init(&create_parameters), arg("kernel_forward") = "exponential",
           arg("n_centers_forward") = 27, arg("kernel_backward") = "exponential",
           arg("n_centers_backward") = 33, arg("weight_tol") = 10.0, arg("center_tol") = 10.0,
           arg("min_beta") = 1e-6, arg("max_beta") = 4.0, arg("min_partition_size") = 0.5,
           arg("max_partition_size") = 2.0, arg("n_partitions") = 20, arg("cauchy_loss") = 0.0,
           arg("n_iterations") = 50, arg("n_threads") = 0, arg("seed") = 123154,
           arg("debug") = false, docs::isomorphism_parameters_init);
  m.def("optimize_projection", &fit_projection, arg("source"), arg("target"), arg("kernel"),
        arg("n_centers"), arg("min_weight"), arg("max_weight"), arg("min_beta"), arg("max_beta"),
        arg("min_center"), arg("max_center"), arg("n_partitions"), arg("min_partition_size"),
        arg("max_partition_size"), arg("cauchy_loss"), arg("n_iterations"), arg("n_threads") = 0,
        arg("seed") = 123145, arg("debug") = false, release_gil(), docs::optimize_projection);
  m.def("optimize_isomorphism", &fit_isomorphism, arg("source"), arg("target"),
        arg("kernel_type_forward"), arg("n_centers_forward"), arg("min_beta_forward"),
        arg("max_beta_forward"), arg("kernel_type_backward"), arg("n_centers_backward"),
        arg("min_beta_backward"), arg("max_beta_backward"), arg("min_weight"), arg("max_weight"),
        arg("min_center"), arg("max_center"), arg("n_partitions"), arg("min_partition_size"),
        arg("max_partition_size"), arg("cauchy_loss"), arg("n_iterations"), arg("n_threads") = 0,
        arg("seed") = 123145, arg("debug") = false, release_gil(), docs::optimize_isomorphism);
  m.def("optimize_isomorphism",
        py::overload_cast<const values&, const values&, const isomorphism_parameters&>(
            &optimize_isomorphism),
        arg("source_data"), arg("target_data"),
        py::arg_v("iso_params", isomorphism_parameters(), "IsomorphismParameters()"), release_gil(),
        docs::optimize_isomorphism_by_parameters);
}

}  // namespace

void register_projections(py::module_& m) {
  bind_point_maps(m);
  bind_optimized_projection(m);
  bind_isomorphism(m);
  bind_isomorphism_fits(m);
}

}  // namespace gravelox
