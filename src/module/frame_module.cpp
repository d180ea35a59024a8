// SPDX-License-Identifier: MIT
#include "module/casters.hpp"

#include "common/threads.hpp"
#include "module/families.hpp"
#include "spectra/fft_threads.hpp"

namespace gravelox {

namespace {

constexpr const char* set_fft_n_threads_doc = R"(
Set the number of threads of Fourier transforms planned from now on.

Parameters
----------
n_threads : int
    Threads, resolved by `check_n_threads`. After import it is the full hardware count.
)";

constexpr const char* check_n_threads_doc = R"(
Resolve a requested number of threads as every function with `n_threads` does.

Parameters
----------
n_threads : int
    Threads asked for. 1 up to the hardware count stand as they are; 0, anything above that count
    and every negative number (-2 too) mean all of it.

Returns
-------
int
    The number of threads that a parallel loop will use.

Examples
--------
>>> import gravelox
>>> gravelox.check_n_threads(1)
1
>>> gravelox.check_n_threads(-2) == gravelox.check_n_threads(0)
True
)";

}  // namespace

void register_frame_module(py::module_& m) {
  m.def("set_fft_n_threads", &set_fft_n_threads, py::arg("n_threads") = 0, set_fft_n_threads_doc);
  m.def("check_n_threads", &check_n_threads, py::arg("n_threads") = 0, check_n_threads_doc);
}

}  // namespace gravelox
