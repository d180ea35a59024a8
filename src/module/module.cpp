// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include <memory>
#include <mutex>

#include "module/families.hpp"
#include "module/python_callback.hpp"
#include "spectra/fft_threads.hpp"

PYBIND11_MODULE(gravelox, m) {
  gravelox::python_callback_mutex = std::make_shared<std::mutex>();
  gravelox::set_fft_n_threads();
  gravelox::register_frame_module(m);
  gravelox::register_detection_module(m);
  gravelox::register_spatial_module(m);
  gravelox::register_covariance_module(m);
  gravelox::register_grid_module(m);
  gravelox::register_simulation_module(m);
  gravelox::register_distribution_module(m);
  gravelox::register_estimation_module(m);
  gravelox::register_variography_module(m);
  gravelox::register_folds_module(m);
  gravelox::register_optimization_module(m);
  gravelox::register_spectra_module(m);
  gravelox::register_rotation_module(m);
  gravelox::register_language_module(m);
  gravelox::register_ceres_module(m);
  gravelox::register_transiogram_module(m);
  gravelox::register_markov_module(m);
  gravelox::register_mixture_module(m);
  gravelox::register_grid_detector_module(m);
}
