// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "estimation/estimator.hpp"
#include "module/estimation_docs.hpp"
#include "module/families.hpp"
#include "module/optimization_docs.hpp"
#include "module/simulation_docs.hpp"
#include "simulation/conditional_simulation.hpp"
#include "simulation/ensemble_simulation.hpp"
#include "simulation/fourier_integral.hpp"
#include "simulation/simulator_generator.hpp"
#include "simulation/turning_bands.hpp"

namespace gravelox {

namespace {

using py::arg;
using cov_list = std::vector<Covariance>;

// Seeds of scripts are 32-bit ints. `Covs` is a Covariance or a list of them throughout.

template <typename Covs>
SpatialFunction turning_bands(const location_list& corners, const Covs& covs, int seed, int n) {
  return create_tbsim_simulator(corners, covs, seed, n);
}

template <typename Covs>
SpatialFunction fourier_integral(const location_list& corners, const Covs& covs, int seed, int nx,
                                 int ny, int nz, int n_threads) {
  return create_fim_simulator(corners, covs, nx, ny, nz, seed, n_threads);
}

template <typename Covs>
SpatialFunction fourier_integral_of_cube(const location_list& corners, const Covs& covs, int seed,
                                         int n, int n_threads) {
  return create_fim_simulator(corners, covs, n, n, n, seed, n_threads);
}

template <typename Covs>
SimulatorGenerator tbsim_generator(const location_list& corners, const Covs& covs, int seed, int n,
                                   int n_threads, int n_base_simulation_points) {
  return create_tbsim_simulator_generator(corners, covs, seed, n, n_threads,
                                          n_base_simulation_points);
}

template <typename Covs>
SimulatorGenerator fim_generator(const location_list& corners, const Covs& covs, int seed, int nx,
                                 int ny, int nz, int n_threads, int n_base_simulation_points) {
  return create_fim_simulator_generator(corners, covs, seed, nx, ny, nz, n_threads,
                                        n_base_simulation_points);
}

template <typename Covs>
SimulatorGenerator fim_generator_of_cube(const location_list& corners, const Covs& covs, int seed,
                                         int n, int n_threads, int n_base_simulation_points) {
  return create_fim_simulator_generator(corners, covs, seed, n, n, n, n_threads,
                                        n_base_simulation_points);
}

SimulatorFactory fim_factory_of_cube(const location_list& corners, int n, int n_threads) {
  return create_fim_factory(corners, n, n, n, n_threads);
}

SpatialFunction realisation(const SimulatorGenerator& generator, int seed) {
  return generator(seed);
}

SpatialFunction realisation_of(const SimulatorFactory& factory, const cov_list& covs, int seed) {
  return factory(covs, seed);
}

SpatialFunction ensemble(const LocalCovariances& local_covs, const SimulatorFactory& sim_factory,
                         double max_weight, double power_a, int seed) {
  return create_ensemble_simulator(local_covs, sim_factory, max_weight, power_a, seed);
}

std::vector<double> ensemble_values(const location_list& locs, const LocalCovariances& local_covs,
                                    const SimulatorFactory& simulator_factory, double max_weight,
                                    double power_a, int seed, int n_threads) {
  return unconditional_ensemble_simulation(locs, local_covs, simulator_factory, max_weight, power_a,
                                           seed, n_threads);
}

void bind_factory(py::class_<SimulatorFactory>& factory) {
  factory.def("__call__", &realisation_of, arg("covs"), arg("seed"), docs::simulator_factory_call)
      .def_static("FIM", &create_fim_factory, arg("corners"), arg("nx"), arg("ny"), arg("nz"),
                  arg("n_threads") = 0, docs::factory_fim)
      .def_static("FIM", &fim_factory_of_cube, arg("corners"), arg("n") = 128, arg("n_threads") = 0,
                  docs::factory_fim_of_cube)
      .def_static("TBSIM", &create_tbsim_factory, arg("corners"), arg("n") = 600,
                  docs::factory_tbsim);
}

template <typename Covs>
void bind_fim_generator(py::class_<SimulatorGenerator>& generator, const char* covs,
                        const char* doc) {
  generator.def_static("FIM", &fim_generator<Covs>, arg("corners"), arg(covs), arg("seed"),
                       arg("nx"), arg("ny"), arg("nz"), arg("n_threads") = 0,
                       arg("n_base_simulation_points") = 100, doc);
}

template <typename Covs>
void bind_fim_generator_of_cube(py::class_<SimulatorGenerator>& generator, const char* covs,
                                const char* doc) {
  generator.def_static("FIM", &fim_generator_of_cube<Covs>, arg("corners"), arg(covs), arg("seed"),
                       arg("n") = 128, arg("n_threads") = 0, arg("n_base_simulation_points") = 100,
                       doc);
}

template <typename Covs>
void bind_tbsim_generator(py::class_<SimulatorGenerator>& generator, const char* covs,
                          const char* doc) {
  generator.def_static("TBSIM", &tbsim_generator<Covs>, arg("corners"), arg(covs), arg("seed"),
                       arg("n") = 600, arg("n_threads") = 0, arg("n_base_simulation_points") = 100,
                       doc);
}

void bind_generator(py::class_<SimulatorGenerator>& generator) {
  generator.def("__call__", &realisation, arg("seed"), docs::simulator_generator_call)
      .def_static("Ensemble", &ensemble, arg("local_covs"), arg("sim_factory"), arg("max_weight"),
                  arg("power_a"), arg("seed"), docs::generator_ensemble);
  bind_fim_generator<Covariance>(generator, "cov", docs::generator_fim);
  bind_fim_generator<cov_list>(generator, "covs", docs::generator_fim_of_model);
  bind_fim_generator_of_cube<Covariance>(generator, "cov", docs::generator_fim_of_cube);
  bind_fim_generator_of_cube<cov_list>(generator, "covs", docs::generator_fim_of_model_and_cube);
  bind_tbsim_generator<Covariance>(generator, "cov", docs::generator_tbsim);
  bind_tbsim_generator<cov_list>(generator, "covs", docs::generator_tbsim_of_model);
  generator.def_static("Pool", &create_simulator_pool, arg("simulators"), docs::generator_pool);
}

void bind_simulations(py::module_& m) {
  m.def("unconditional_ensemble_simulation", &ensemble_values, arg("locs"), arg("local_covs"),
        arg("simulator_factory"), arg("max_weight"), arg("power_a"), arg("seed"), arg("n_threads"),
        docs::unconditional_ensemble_simulation);
  using conditional = std::vector<double> (*)(
      const SpatialFunction&, const Estimator&, const location_list&, const Neighborhood&,
      const location_list&, const std::vector<double>&, int);
  m.def("simulate", static_cast<conditional>(&simulate), arg("simulator"), arg("estimator"),
        arg("target_locs"), arg("neighborhood"), arg("data_locs"), arg("data"),
        arg("n_threads") = 0, docs::simulate);
  m.def("simulator", &create_simulator, arg("simulators"), docs::simulator);
}

template <typename Covs>
void bind_fim(py::module_& m, const char* covs, const char* doc) {
  m.def("FIM", &fourier_integral<Covs>, arg("corners"), arg(covs), arg("seed"), arg("nx"),
        arg("ny"), arg("nz"), arg("n_threads") = 0, doc);
}

template <typename Covs>
void bind_fim_of_cube(py::module_& m, const char* covs, const char* doc) {
  m.def("FIM", &fourier_integral_of_cube<Covs>, arg("corners"), arg(covs), arg("seed"),
        arg("n") = 128, arg("n_threads") = 0, doc);
}

}  // namespace

void register_simulation_module(py::module_& m) {
  register_early<Estimator>(m, "Estimator", docs::estimator);
  register_early<LocalCovariances>(m, "LocalCovariances", docs::local_covariances);
  py::class_<SimulatorFactory> factory(m, "SimulatorFactory", docs::simulator_factory);
  py::class_<SimulatorGenerator> generator(m, "SimulatorGenerator", docs::simulator_generator);
  bind_factory(factory);
  bind_generator(generator);
  bind_simulations(m);
  bind_fim<Covariance>(m, "cov", docs::fim);
  bind_fim<cov_list>(m, "covs", docs::fim_of_model);
  bind_fim_of_cube<Covariance>(m, "cov", docs::fim_of_cube);
  bind_fim_of_cube<cov_list>(m, "covs", docs::fim_of_model_and_cube);
  m.def("TBSIM", &turning_bands<Covariance>, arg("corners"), arg("cov"), arg("seed"),
        arg("n") = 600, docs::tbsim);
  m.def("TBSIM", &turning_bands<cov_list>, arg("corners"), arg("covs"), arg("seed"), arg("n") = 600,
        docs::tbsim_of_model);
}

}  // namespace gravelox
