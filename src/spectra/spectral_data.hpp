// SPDX-License-Identifier: MIT
#pragma once

// SpectralData1D: the spectrum of a regular series, in polar and Cartesian form.

#include <cstddef>
#include <utility>
#include <vector>

namespace gravelox::fft {

/// An immutable spectrum of as many elements as its series has; element i is the frequency of i
/// cycles over the length of the series. Many threads may use it at once.
class SpectralData1D {
 public:
  /// From phases (radians) and magnitudes; throws std::invalid_argument where they differ in
  /// number.
  SpectralData1D(std::vector<double> phase, std::vector<double> magnitude);

  /// The spectrum of a series, not scaled: element 0 is the sum of the values.
  static SpectralData1D forward(const std::vector<double>& data);

  /// The series, from the lower half of the spectrum, 0 to n / 2, alone: the upper half counts as
  /// its mirror, whatever it holds.
  std::vector<double> backward() const;

  /// Keeps these elements and sets all others to zero; a real frequency other than 0 and n / 2 has
  /// two elements, i and n - i. Throws std::invalid_argument for an index outside the spectrum.
  SpectralData1D filter_frequencies(const std::vector<int>& frequencies) const;

  /// Magnitudes averaged over `window_size` elements to both sides and scaled to the old total;
  /// phases are kept. The sums are divided by the span of the window, one less than its elements:
  /// the scaling takes that out again, but for the ends of the spectrum. A window of 0 has no span,
  /// nor has one over a single element, and all magnitudes are NaN or infinite. Costs a window an
  /// element. Throws std::invalid_argument for a negative window.
  SpectralData1D smooth_frequencies(int window_size) const;

  /// (magnitude, phase) and (real, imag); with `shift` the zero frequency stands in the middle.
  std::pair<std::vector<double>, std::vector<double>> polar(bool shift = false) const;
  std::pair<std::vector<double>, std::vector<double>> cartesian(bool shift = false) const;

  std::size_t size() const { return magnitude_.size(); }

 private:
  SpectralData1D() = default;

  std::vector<double> magnitude_;
  std::vector<double> phase_;
  std::vector<double> imag_;
  std::vector<double> real_;
};

}  // namespace gravelox::fft
