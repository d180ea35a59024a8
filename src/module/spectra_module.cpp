// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "module/families.hpp"
#include "module/spectra_docs.hpp"
#include "spectra/line_projection.hpp"
#include "spectra/spectral_data.hpp"

namespace gravelox {

namespace {

using py::arg;

void bind_spectral_data(py::module_& m) {
  using fft::SpectralData1D;
  py::class_<SpectralData1D>(m, "SpectralData1D", docs::spectral_data)
      .def(py::init<std::vector<double>, std::vector<double>>(), arg("phase"), arg("magnitude"),
           docs::spectral_data_init)
      .def_static("forward", &SpectralData1D::forward, arg("data"), docs::spectral_data_forward)
      .def("backward", &SpectralData1D::backward, docs::spectral_data_backward)
      .def("filter_frequencies", &SpectralData1D::filter_frequencies, arg("frequencies"),
           docs::filter_frequencies)
      .def("polar", &SpectralData1D::polar, arg("shift") = false, docs::polar)
      .def("cartesian", &SpectralData1D::cartesian, arg("shift") = false, docs::cartesian)
      .def("__len__", &SpectralData1D::size, docs::spectral_data_len)
      .def("smooth_frequencies", &SpectralData1D::smooth_frequencies, arg("window_size"),
           docs::smooth_frequencies);
}

}  // namespace

void register_spectra_module(py::module_& m) {
  py::module_ fft_module = m.def_submodule("fft");
  bind_spectral_data(fft_module);
  fft_module.def("project_to_line", &fft::project_to_line, arg("x"), arg("data"), arg("b"),
                 arg("power_a"), arg("n_points"), arg("window_size"), docs::project_to_line);
  fft_module.def("project_back_to_source", &fft::project_back_to_source, arg("target_x"),
                 arg("source_x"), arg("source_data"), arg("dr"), arg("b"), arg("power_a"),
                 docs::project_back_to_source);
}

}  // namespace gravelox
