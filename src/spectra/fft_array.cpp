// SPDX-License-Identifier: MIT
#include "spectra/fft_array.hpp"

#include <fftw3.h>

#include <algorithm>
#include <limits>
#include <mutex>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "common/checks.hpp"
#include "spectra/fft_threads.hpp"

namespace gravelox::fft {

namespace {

constexpr unsigned planner_flags = FFTW_ESTIMATE_PATIENT;

void check_extents(std::int64_t nx, std::int64_t ny, std::int64_t nz) {
  check_at_least("nx", nx, 0);
  check_at_least("ny", ny, 0);
  check_at_least("nz", nz, 0);
}

std::size_t count_of(std::int64_t nx, std::int64_t ny, std::int64_t nz) {
  check_extents(nx, ny, nz);
  return static_cast<std::size_t>(nx * ny * nz);
}

/// An extent as the library takes it.
int length_of(std::int64_t extent) {
  if (extent > std::numeric_limits<int>::max()) {
    refuse("array", "at most 2147483647 elements along each dimension", std::to_string(extent));
  }
  return static_cast<int>(extent);
}

fftw_complex* elements_of(complex_array& spectrum) {
  return reinterpret_cast<fftw_complex*>(spectrum.data());
}

/// Makes a plan with make_plan, runs it and destroys it.
template <typename MakePlan>
void plan_and_execute(const MakePlan& make_plan) {
  fftw_plan plan = nullptr;
  {
    const std::lock_guard lock(fft_mutex());
    plan = make_plan();
  }
  if (plan == nullptr) throw std::runtime_error("the Fourier transform could not be planned");
  fftw_execute(plan);
  const std::lock_guard lock(fft_mutex());
  fftw_destroy_plan(plan);
}

/// A spectrum of three dimensions has those of its array; of fewer, it has at least the elements
/// that are read.
void check_spectrum(const complex_array& spectrum, const array& result) {
  const std::int64_t nx = result.nx();
  const std::int64_t ny = result.ny();
  const std::int64_t nz_half = result.nz() / 2 + 1;
  bool fits = spectrum.nx() == nx && spectrum.ny() == ny && spectrum.nz_half() == nz_half;
  if (spectrum.n_dims() == 1) fits = spectrum.size() >= nx / 2 + 1;
  if (spectrum.n_dims() == 2) fits = spectrum.size() >= nx * (ny / 2 + 1);
  if (!fits) {
    refuse("spectrum", "that of an array of " + text_of_sizes(nx, ny, result.nz()),
           text_of_sizes(spectrum.nx(), spectrum.ny(), spectrum.nz_half()) + " elements");
  }
}

bool is_fast(std::int64_t n) {
  std::int64_t odd = n;
  while (odd % 2 == 0) odd /= 2;
  if (odd == n || odd == 1) return false;
  for (const int factor : {3, 5, 7}) {
    while (odd % factor == 0) odd /= factor;
  }
  return odd == 1;
}

}  // namespace

array::array(std::vector<double> values, std::int64_t nx, std::int64_t ny, std::int64_t nz)
    : nx_(nx),
      ny_(ny),
      nz_(nz),
      n_dims_(std::int64_t{nx > 1} + std::int64_t{ny > 1} + std::int64_t{nz > 1}),
      storage_(std::move(values)),
      data_(storage_.data()) {
  check_same_size("values", storage_.size(), count_of(nx, ny, nz), "element of the array");
}

array::array(double* outside, std::int64_t nx, std::int64_t ny, std::int64_t nz)
    : nx_(nx),
      ny_(ny),
      nz_(nz),
      n_dims_(std::int64_t{nx > 1} + std::int64_t{ny > 1} + std::int64_t{nz > 1}),
      data_(outside) {
  check_extents(nx, ny, nz);
}

array::array(std::int64_t nx, std::int64_t ny, std::int64_t nz, double fill)
    : nx_(nx),
      ny_(ny),
      nz_(nz),
      n_dims_(3),
      storage_(count_of(nx, ny, nz), fill),
      data_(storage_.data()) {}

array::array(std::int64_t n, double fill)
    : array(std::vector<double>(count_of(n, 1, 1), fill), n, 1, 1) {}

array::array(const array& other)
    : nx_(other.nx_),
      ny_(other.ny_),
      nz_(other.nz_),
      n_dims_(other.n_dims_),
      storage_(other.data_, other.data_ + other.size()),
      data_(storage_.data()) {}

array& array::operator=(const array& other) {
  if (this != &other) *this = array(other);
  return *this;
}

void complex_array::fft_free::operator()(std::complex<double>* memory) const { fftw_free(memory); }

complex_array::complex_array(std::int64_t n_dims, std::int64_t nx, std::int64_t ny,
                             std::int64_t nz_half)
    : n_dims_(n_dims), nx_(nx), ny_(ny), nz_half_(nz_half) {
  const std::size_t n_bytes = count_of(nx, ny, nz_half) * sizeof(std::complex<double>);
  if (n_bytes == 0) return;
  data_.reset(static_cast<std::complex<double>*>(fftw_malloc(n_bytes)));
  if (!data_) throw std::bad_alloc();
}

complex_array::complex_array(const std::vector<double>& real, const std::vector<double>& imag)
    : complex_array(1, static_cast<std::int64_t>(real.size()), 1, 1) {
  check_same_size("imag", imag.size(), real.size(), "real part");
  for (std::size_t i = 0; i < real.size(); ++i) (*this)[i] = {real[i], imag[i]};
}

complex_array::complex_array(const complex_array& other)
    : complex_array(other.n_dims_, other.nx_, other.ny_, other.nz_half_) {
  std::copy_n(other.data(), size(), data());
}

complex_array& complex_array::operator=(const complex_array& other) {
  if (this != &other) *this = complex_array(other);
  return *this;
}

complex_array forward(const array& values) {
  const int nx = length_of(values.nx());
  const int ny = length_of(values.ny());
  const int nz = length_of(values.nz());
  if (values.size() == 0) return {};
  complex_array spectrum(3, nx, ny, nz / 2 + 1);
  // The library asks for changeable memory, but neither this planner nor a transform of real input
  // changes it.
  auto* input = const_cast<double*>(values.data());
  plan_and_execute([&] {
    return fftw_plan_dft_r2c_3d(nx, ny, nz, input, elements_of(spectrum), planner_flags);
  });
  return spectrum;
}

void backward(complex_array spectrum, array& result) {
  const int nx = length_of(result.nx());
  const int ny = length_of(result.ny());
  const int nz = length_of(result.nz());
  if (result.size() == 0) return;
  const std::int64_t n_dims = spectrum.n_dims();
  check_spectrum(spectrum, result);
  fftw_complex* input = elements_of(spectrum);
  double* output = result.data();
  plan_and_execute([&] {
    if (n_dims == 1) return fftw_plan_dft_c2r_1d(nx, input, output, planner_flags);
    if (n_dims == 2) return fftw_plan_dft_c2r_2d(nx, ny, input, output, planner_flags);
    return fftw_plan_dft_c2r_3d(nx, ny, nz, input, output, planner_flags);
  });
}

std::int64_t fast_length(std::int64_t n) {
  constexpr std::int64_t small = 16;
  if (n <= small) return n;
  while (!is_fast(n)) ++n;
  return n;
}

}  // namespace gravelox::fft
