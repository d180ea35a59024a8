// SPDX-License-Identifier: MIT
#pragma once

// Arrays for Fourier transforms in up to three dimensions, and the transforms between them.
//
// Every transform plans anew; the planner stands under fft_mutex, and the transform itself runs
// outside it, on the threads that set_fft_n_threads gave to its plan. Transforms may run at once on
// several threads, as long as each has arrays of its own.

#include <complex>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace gravelox::fft {

/// A real array of extents (nx, ny, nz), nz fastest; a missing dimension is 1.
///
/// It owns its elements, unless it was made as a view of outside memory, which then has to live as
/// long as the view. A copy always owns its elements, that of a view too; what was moved from is
/// good for nothing but to be assigned to. All constructors throw std::invalid_argument for a
/// negative extent.
class array {
 public:
  /// Takes the values; throws std::invalid_argument where there are not nx ny nz of them.
  array(std::vector<double> values, std::int64_t nx, std::int64_t ny, std::int64_t nz);

  /// A view of nx ny nz outside elements.
  array(double* outside, std::int64_t nx, std::int64_t ny, std::int64_t nz);

  /// Every element is `fill`; counts as three-dimensional whatever its extents.
  array(std::int64_t nx, std::int64_t ny, std::int64_t nz, double fill);

  /// One dimension of length n.
  array(std::int64_t n, double fill);

  array(const array& other);
  array& operator=(const array& other);
  array(array&& other) noexcept = default;
  array& operator=(array&& other) noexcept = default;
  virtual ~array() = default;

  std::int64_t nx() const { return nx_; }
  std::int64_t ny() const { return ny_; }
  std::int64_t nz() const { return nz_; }

  /// How many of the extents are at least 2.
  std::int64_t n_dims() const { return n_dims_; }

  std::int64_t size() const { return nx_ * ny_ * nz_; }

  double* data() { return data_; }
  const double* data() const { return data_; }
  double& operator[](std::size_t index) { return data_[index]; }
  double operator[](std::size_t index) const { return data_[index]; }
  double& operator()(std::size_t i, std::size_t j, std::size_t k) { return data_[place(i, j, k)]; }
  double operator()(std::size_t i, std::size_t j, std::size_t k) const {
    return data_[place(i, j, k)];
  }

 private:
  std::size_t place(std::size_t i, std::size_t j, std::size_t k) const {
    return (i * static_cast<std::size_t>(ny_) + j) * static_cast<std::size_t>(nz_) + k;
  }

  std::int64_t nx_;
  std::int64_t ny_;
  std::int64_t nz_;
  std::int64_t n_dims_;
  /// The elements; empty in a view. A vector that is moved keeps its memory, so data_ stays right.
  std::vector<double> storage_;
  double* data_;
};

/// The spectrum of a real array, in memory of the transform library. The last dimension holds the
/// lower half alone, nz / 2 + 1 elements: the upper half is its mirror.
class complex_array {
 public:
  complex_array() = default;

  /// One dimension, from real and imaginary parts; throws std::invalid_argument where they differ
  /// in number.
  complex_array(const std::vector<double>& real, const std::vector<double>& imag);

  /// Elements that are not set yet.
  complex_array(std::int64_t n_dims, std::int64_t nx, std::int64_t ny, std::int64_t nz_half);

  complex_array(const complex_array& other);
  complex_array& operator=(const complex_array& other);
  complex_array(complex_array&& other) noexcept = default;
  complex_array& operator=(complex_array&& other) noexcept = default;
  virtual ~complex_array() = default;

  /// The number of complex elements.
  std::int64_t size() const { return nx_ * ny_ * nz_half_; }
  std::int64_t n_dims() const { return n_dims_; }
  std::int64_t nx() const { return nx_; }
  std::int64_t ny() const { return ny_; }
  std::int64_t nz_half() const { return nz_half_; }

  std::complex<double>* data() { return data_.get(); }
  const std::complex<double>* data() const { return data_.get(); }
  std::complex<double>& operator[](std::size_t index) { return data_.get()[index]; }
  const std::complex<double>& operator[](std::size_t index) const { return data_.get()[index]; }
  std::complex<double>& operator()(std::size_t i, std::size_t j, std::size_t k) {
    return data_
        .get()[(i * static_cast<std::size_t>(ny_) + j) * static_cast<std::size_t>(nz_half_) + k];
  }

 private:
  struct fft_free {
    void operator()(std::complex<double>* memory) const;
  };

  std::int64_t n_dims_ = 0;
  std::int64_t nx_ = 0;
  std::int64_t ny_ = 0;
  std::int64_t nz_half_ = 0;
  std::unique_ptr<std::complex<double>, fft_free> data_;
};

/// The spectrum of a real array, as one of three dimensions. Where nz is 1 no half is left out, so
/// that an array of n x 1 x 1 has its whole spectrum of n elements. An empty array gives an empty
/// spectrum.
complex_array forward(const array& values);

/// The real array of a spectrum into `result`, whose extents tell the lengths; not scaled: a round
/// trip multiplies by the number of elements. Reads the lower half along the last of the spectrum's
/// n_dims dimensions alone. The library destroys what it transforms, so the spectrum comes by
/// value: move one that is not needed any more. Throws std::invalid_argument where the spectrum is
/// not that of an array of such extents.
void backward(complex_array spectrum, array& result);

/// The least length, at least n, that transforms fast: an even one with the prime factors 2, 3, 5
/// and 7, but no power of two, where the rows of a large array meet in the same places of the
/// cache. Lengths up to 16 stand as they are.
std::int64_t fast_length(std::int64_t n);

}  // namespace gravelox::fft
