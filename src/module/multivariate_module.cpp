// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/families.hpp"
#include "module/multivariate_docs.hpp"
#include "multivariate/gaussian_mixture.hpp"
#include "multivariate/projection_pursuit.hpp"
#include "multivariate/rotations.hpp"
#include "multivariate/stepwise_conditional_transform.hpp"

namespace gravelox {

namespace {

using Eigen::MatrixXd;
using Eigen::VectorXd;
using py::arg;

// Seeds of scripts are 32-bit ints.

MatrixXd orthogonal_matrix(int N, int seed) { return create_random_orthogonal_matrix(N, seed); }

MatrixXd forward_of_table(const PPMT& chain, const two_dimensional_array& data, int n_threads) {
  return chain.forward(data.values, n_threads);
}

MatrixXd backward_of_table(const PPMT& chain, const two_dimensional_array& data, int n_threads) {
  return chain.backward(data.values, n_threads);
}

VectorXd forward_of_point(const PPMT& chain, const one_dimensional_array& u) {
  return chain.forward(u.values);
}

VectorXd backward_of_point(const PPMT& chain, const one_dimensional_array& u) {
  return chain.backward(u.values);
}

GMMParams fit_samples(const GMMFitter& fitter, const MatrixXd& x) { return fitter.fit(x); }

GMMParams fit_weighted_samples(const GMMFitter& fitter, const MatrixXd& x,
                               const VectorXd& weights) {
  return fitter.fit(x, weights);
}

void bind_projection_pursuit(py::module_& m) {
  // Not from a factory: the object would be registered before the interpreter lock is back.
  py::class_<PPMT>(m, "PPMT", docs::ppmt)
      .def(py::init<const MatrixXd&, int, double, int, int>(), arg("data"), arg("n_steps"),
           arg("prob_random_rotation") = 0.37, arg("n_threads") = 0, arg("seed") = 123154,
           release_gil(), docs::ppmt_init)
      .def("forward", &forward_of_table, arg("data"), arg("n_threads") = 0, release_gil(),
           docs::ppmt_forward)
      .def("backward", &backward_of_table, arg("data"), arg("n_threads") = 0, release_gil(),
           docs::ppmt_backward)
      .def("forward", &forward_of_point, arg("u"), release_gil(), docs::ppmt_forward_of_point)
      .def("backward", &backward_of_point, arg("u"), release_gil(), docs::ppmt_backward_of_point);
}

void bind_mixture(py::module_& m) {
  py::class_<GMMParams>(m, "GMMParams", docs::gmm_params)
      .def(py::init<int, VectorXd, MatrixXd, std::vector<MatrixXd>>(), arg("n_components"),
           arg("weights"), arg("means"), arg("covariances"), docs::gmm_params_init)
      .def_readonly("n_components", &GMMParams::n_components, docs::gmm_params_n_components)
      .def_property_readonly(
          "weights", [](const GMMParams& params) { return params.weights; },
          docs::gmm_params_weights)
      .def_property_readonly(
          "means", [](const GMMParams& params) { return params.means; }, docs::gmm_params_means)
      .def_property_readonly(
          "covariances", [](const GMMParams& params) { return params.covariances; },
          docs::gmm_params_covariances);
}

void bind_mixture_fitter(py::module_& m) {
  py::class_<GMMFitter>(m, "GMMFitter", docs::gmm_fitter)
      .def(py::init<int, int, double, double, unsigned>(), arg("n_components"),
           arg("max_iter") = 100, arg("tol") = 0.0001, arg("reg_covar") = 1e-06, arg("seed") = 42,
           docs::gmm_fitter_init)
      .def("fit", &fit_samples, arg("x"), docs::gmm_fitter_fit)
      .def("fit", &fit_weighted_samples, arg("x"), arg("weights"), docs::gmm_fitter_fit_weighted);
}

void bind_stepwise_transform(py::module_& m) {
  py::class_<SCT>(m, "SCT", docs::sct)
      .def(py::init<const GMMParams&>(), arg("gmm_params"), docs::sct_init)
      .def("forward", &SCT::forward, arg("x"), docs::sct_forward)
      .def("backward", &SCT::backward, arg("x"), docs::sct_backward);
}

}  // namespace

void register_rotation_module(py::module_& m) {
  m.def("create_random_rotation", &orthogonal_matrix, arg("N"), arg("seed"),
        docs::create_random_rotation);
  m.def("create_random_orthogonal_matrix", &orthogonal_matrix, arg("N"), arg("seed"),
        docs::create_random_orthogonal_matrix);
  bind_projection_pursuit(m);
  m.def("compute_svd_decomposition", &compute_svd_decomposition, arg("A"),
        arg("is_surface") = false, docs::compute_svd_decomposition);
  m.def("compute_optimum_rotation", &compute_optimum_rotation, arg("A"), arg("is_surface") = false,
        arg("is_ppmt") = false, docs::compute_optimum_rotation);
}

void register_mixture_module(py::module_& m) {
  bind_mixture(m);
  bind_mixture_fitter(m);
  bind_stepwise_transform(m);
}

}  // namespace gravelox
