// SPDX-License-Identifier: MIT
#include "spectra/spectral_data.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "spectra/fft_array.hpp"

namespace gravelox::fft {

namespace {

/// Element i moves up by half the length h, and those beyond h come first. An even length leaves
/// element h without a place, and place h - 1 at zero.
std::vector<double> shifted(const std::vector<double>& values) {
  const std::size_t n = values.size();
  const std::size_t half = n / 2;
  std::vector<double> result(n, 0.0);
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t place = i <= half ? half + i : i - half - 1;
    if (place < n) result[place] = values[i];
  }
  return result;
}

}  // namespace

SpectralData1D::SpectralData1D(std::vector<double> phase, std::vector<double> magnitude)
    : magnitude_(std::move(magnitude)), phase_(std::move(phase)) {
  check_same_size("magnitude", magnitude_.size(), phase_.size(), "phase");
  imag_.reserve(size());
  real_.reserve(size());
  for (std::size_t i = 0; i < size(); ++i) {
    imag_.push_back(std::sin(phase_[i]) * magnitude_[i]);
    real_.push_back(std::cos(phase_[i]) * magnitude_[i]);
  }
}

SpectralData1D SpectralData1D::forward(const std::vector<double>& data) {
  const complex_array elements =
      fft::forward(array(data, static_cast<std::int64_t>(data.size()), 1, 1));
  SpectralData1D spectrum;
  for (std::size_t i = 0; i < data.size(); ++i) {
    const double real = elements[i].real();
    const double imag = elements[i].imag();
    spectrum.real_.push_back(real);
    spectrum.imag_.push_back(imag);
    spectrum.magnitude_.push_back(std::sqrt(real * real + imag * imag));
    spectrum.phase_.push_back(std::atan2(imag, real));
  }
  return spectrum;
}

std::vector<double> SpectralData1D::backward() const {
  std::vector<double> series(size());
  array view(series.data(), static_cast<std::int64_t>(size()), 1, 1);
  fft::backward(complex_array(real_, imag_), view);
  for (double& value : series) value /= static_cast<double>(size());
  return series;
}

SpectralData1D SpectralData1D::filter_frequencies(const std::vector<int>& frequencies) const {
  for (const int frequency : frequencies) check_index("frequencies", frequency, size());
  std::vector<double> phase(size(), 0.0);
  std::vector<double> magnitude(size(), 0.0);
  for (const int frequency : frequencies) {
    phase[to_size(frequency)] = phase_[to_size(frequency)];
    magnitude[to_size(frequency)] = magnitude_[to_size(frequency)];
  }
  return {std::move(phase), std::move(magnitude)};
}

SpectralData1D SpectralData1D::smooth_frequencies(int window_size) const {
  check_at_least("window_size", window_size, 0);
  const std::size_t window = std::min(to_size(window_size), size());
  std::vector<double> smooth(size());
  for (std::size_t i = 0; i < size(); ++i) {
    const std::size_t low = i - std::min(i, window);
    const std::size_t high = std::min(i + window, size() - 1);
    const auto first = magnitude_.begin() + static_cast<std::ptrdiff_t>(low);
    const auto last = magnitude_.begin() + static_cast<std::ptrdiff_t>(high);
    smooth[i] = std::accumulate(first, last + 1, 0.0) / static_cast<double>(high - low);
  }
  const double factor = std::accumulate(magnitude_.begin(), magnitude_.end(), 0.0) /
                        std::accumulate(smooth.begin(), smooth.end(), 0.0);
  for (double& value : smooth) value *= factor;
  return {phase_, std::move(smooth)};
}

std::pair<std::vector<double>, std::vector<double>> SpectralData1D::polar(bool shift) const {
  if (shift) return {shifted(magnitude_), shifted(phase_)};
  return {magnitude_, phase_};
}

std::pair<std::vector<double>, std::vector<double>> SpectralData1D::cartesian(bool shift) const {
  if (shift) return {shifted(real_), shifted(imag_)};
  return {real_, imag_};
}

}  // namespace gravelox::fft
