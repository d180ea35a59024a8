// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "distributions/data_distribution.hpp"
#include "distributions/distribution_transform.hpp"
#include "distributions/parametric.hpp"
#include "distributions/real_dist.hpp"
#include "module/distribution_docs.hpp"
#include "module/families.hpp"

namespace gravelox {

namespace {

using py::arg;
using values = std::vector<double>;

// An engine, a density and a distribution function as classes of their own, since the first is a
// type of the C++ library and the other two are views of one record.

struct RNG {
  random_engine engine;

  explicit RNG(int seed) : engine(create_engine(seed)) {}
};

struct PDF {
  real_dist dist;
};

double draw(const real_dist& dist, RNG& rng) { return dist.sampler(rng.engine); }

values draws(const real_dist& dist, int n, int seed) { return simulate(dist, n, seed); }

values parallel_draws(const real_dist& dist, int n, int n_threads, int seed) {
  return simulate_in_parallel(dist, n, n_threads, seed);
}

values ascending_draws(const real_dist& dist, int n, int seed) {
  return sorted_draws(dist, n, seed);
}

std::pair<values, values> table_of_draws(const real_dist& dist, int n, int seed) {
  return empirical_cdf(dist, n, seed);
}

double density(const PDF& pdf, double x) { return pdf.dist.pdf(x); }

values densities(const PDF& pdf, const values& list, int n_threads) {
  return map_values(pdf.dist.pdf, list, n_threads);
}

values probabilities(const CDF& cdf, const values& list, int n_threads) {
  return map_values(cdf.dist.cdf, list, n_threads);
}

template <typename View>
double quantile(const View& view, double p) {
  return view.dist.quantile(p);
}

template <typename View>
values quantiles(const View& view, const values& list, int n_threads) {
  return map_values(view.dist.quantile, list, n_threads);
}

double least(const PDF& pdf) { return pdf.dist.quantile(least_probability); }
double greatest(const PDF& pdf) { return pdf.dist.quantile(greatest_probability); }
double median(const PDF& pdf) { return pdf.dist.quantile(0.5); }
double q90(const PDF& pdf) { return pdf.dist.quantile(0.9); }
double q75(const PDF& pdf) { return pdf.dist.quantile(0.75); }

void bind_distribution(py::class_<real_dist>& distribution) {
  distribution.def("__call__", &draw, arg("rng"), docs::distribution_call)
      .def("simulate", &draws, arg("n"), arg("seed") = 12515, docs::distribution_simulate)
      .def("simulate", &parallel_draws, arg("n"), arg("n_threads") = 0, arg("seed") = 12515,
           docs::distribution_simulate_in_parallel)
      .def("histogram", &ascending_draws, arg("n"), arg("seed") = 12515,
           docs::distribution_histogram)
      .def("cdf", &table_of_draws, arg("n"), arg("seed") = 12515, docs::distribution_cdf);
}

void bind_views(py::module_& m) {
  py::class_<PDF>(m, "PDF", docs::pdf)
      .def(py::init([](const real_dist& dist) { return PDF{dist}; }), arg("dist"), docs::pdf_init)
      .def("value", &density, arg("x"), docs::pdf_value)
      .def("prob", &quantile<PDF>, arg("p"), docs::view_prob)
      .def("values", &densities, arg("list"), arg("n_threads") = 0, docs::pdf_values)
      .def("probs", &quantiles<PDF>, arg("list"), arg("n_threads") = 0, docs::view_probs)
      .def("min", &least, docs::pdf_min)
      .def("max", &greatest, docs::pdf_max)
      .def("median", &median, docs::pdf_median)
      .def("q90", &q90, docs::pdf_q90)
      .def("q75", &q75, docs::pdf_q75);
  py::class_<CDF>(m, "CDF", docs::cdf)
      .def(py::init([](const real_dist& dist) { return CDF{dist}; }), arg("dist"), docs::cdf_init)
      .def("value", &CDF::value, arg("x"), docs::cdf_value)
      .def("prob", &quantile<CDF>, arg("p"), docs::view_prob)
      .def("values", &probabilities, arg("list"), arg("n_threads") = 0, docs::cdf_values)
      .def("probs", &quantiles<CDF>, arg("list"), arg("n_threads") = 0, docs::view_probs);
}

void bind_transform(py::module_& m) {
  using transform = DistributionTransform;
  using one = double (transform::*)(double) const;
  using list = values (transform::*)(const values&, int) const;
  py::class_<transform>(m, "NScore", docs::nscore)
      .def(py::init<real_dist, real_dist>(), arg("source"), arg("target"), docs::nscore_init)
      .def("forward", static_cast<one>(&transform::forward), arg("x"), docs::nscore_forward)
      .def("forward", static_cast<list>(&transform::forward), arg("x"), arg("n_threads") = 0,
           docs::nscore_forward_list)
      .def("backward", static_cast<one>(&transform::backward), arg("y"), docs::nscore_backward)
      .def("backward", static_cast<list>(&transform::backward), arg("y"), arg("n_threads") = 0,
           docs::nscore_backward_list);
}

void bind_makers(py::module_& m) {
  m.def("gaussian_distribution", &gaussian_distribution, arg("mean") = 0.0, arg("std_dev") = 1.0,
        docs::gaussian_distribution);
  m.def("lognormal_distribution", &lognormal_distribution, arg("m"), arg("s"),
        docs::lognormal_distribution);
  m.def("student_t_distribution", &student_t_distribution, arg("n"), docs::student_t_distribution);
  m.def("fisher_f_distribution", &fisher_f_distribution, arg("m"), arg("n"),
        docs::fisher_f_distribution);
  m.def("cauchy_distribution", &cauchy_distribution, arg("a"), arg("b"), docs::cauchy_distribution);
  m.def("chi_squared_distribution", &chi_squared_distribution, arg("k"),
        docs::chi_squared_distribution);
  m.def("extreme_value_distribution", &extreme_value_distribution, arg("a"), arg("b"),
        docs::extreme_value_distribution);
  m.def("weibull_distribution", &weibull_distribution, arg("a"), arg("b"),
        docs::weibull_distribution);
  m.def("exponential_distribution", &exponential_distribution, arg("lambda"),
        docs::exponential_distribution);
  m.def("uniform_distribution", &uniform_distribution, arg("a"), arg("b"),
        docs::uniform_distribution);
  m.def("gamma_distribution", &gamma_distribution, arg("alpha"), arg("beta"),
        docs::gamma_distribution);
  m.def("data_distribution", &data_distribution, arg("data"), py::arg_v("weight", values(), "[]"),
        docs::data_distribution);
}

}  // namespace

void register_distribution_module(py::module_& m) {
  py::class_<RNG>(m, "RNG", docs::rng).def(py::init<int>(), arg("seed"), docs::rng_init);
  py::class_<real_dist> distribution(m, "Distribution", docs::distribution);
  bind_distribution(distribution);
  bind_views(m);
  bind_transform(m);
  bind_makers(m);
}

}  // namespace gravelox
