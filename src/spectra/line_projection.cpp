// SPDX-License-Identifier: MIT
#include "spectra/line_projection.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/power.hpp"

namespace gravelox::fft {

namespace {

/// Samples in the order of x, those of equal x in the order of the lists.
class sorted_samples {
 public:
  sorted_samples(const std::vector<double>& x, const std::vector<double>& data) {
    std::vector<std::pair<double, std::size_t>> order;
    order.reserve(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) order.emplace_back(x[i], i);
    std::sort(order.begin(), order.end());
    for (const auto& [position, index] : order) {
      x_.push_back(position);
      data_.push_back(data[index]);
    }
  }

  double least() const { return x_.front(); }
  double greatest() const { return x_.back(); }
  std::size_t last() const { return x_.size() - 1; }

  /// The place of the first sample not below t, the number of samples where there is none.
  std::size_t first_not_below(double t) const {
    return static_cast<std::size_t>(std::lower_bound(x_.begin(), x_.end(), t) - x_.begin());
  }

  /// The kernel average at t over the samples in places first..last, both of them included.
  double average(double t, std::size_t first, std::size_t last, double b, double scale,
                 const power_function& power) const {
    double total = 0.0;
    double sum = 0.0;
    for (std::size_t i = first; i <= last; ++i) {
      const double weight = std::exp(-power(std::abs(x_[i] - t) * b / scale));
      total += weight;
      sum += weight * data_[i];
    }
    return total > 0.0 ? sum / total : 0.0;
  }

 private:
  std::vector<double> x_;
  std::vector<double> data_;
};

}  // namespace

std::pair<std::vector<double>, std::vector<double>> project_to_line(const std::vector<double>& x,
                                                                    const std::vector<double>& data,
                                                                    double b, double power_a,
                                                                    int n_points, int window_size) {
  check_same_size("data", data.size(), x.size(), "position");
  check_finite("x", x);
  check_at_least("n_points", n_points, 0);
  check_at_least("window_size", window_size, 0);
  if (n_points == 0) return {};
  check_not_empty("x", x.size());

  const sorted_samples samples(x, data);
  const power_function power = create_power_function(power_a);
  const std::size_t window = std::min(to_size(window_size), x.size());
  const double least = samples.least();
  const double dx = (samples.greatest() - least) / n_points;
  std::vector<double> positions;
  std::vector<double> values;
  for (int i = 0; i < n_points; ++i) {
    const double t = i * dx + least;
    const std::size_t place = samples.first_not_below(t);
    const std::size_t first = std::min(place - std::min(place, window), samples.last());
    const std::size_t last = std::min(place + window, samples.last());
    positions.push_back(t);
    values.push_back(samples.average(t, first, last, b, dx, power));
  }
  return {positions, values};
}

std::vector<double> project_back_to_source(const std::vector<double>& target_x,
                                           const std::vector<double>& source_x,
                                           const std::vector<double>& source_data, double dr,
                                           double b, double power_a) {
  check_same_size("source_data", source_data.size(), source_x.size(), "source position");
  check_finite("target_x", target_x);
  check_finite("source_x", source_x);
  check_not_nan("dr", dr);
  if (target_x.empty()) return {};
  check_not_empty("source_x", source_x.size());

  const sorted_samples samples(source_x, source_data);
  const power_function power = create_power_function(power_a);
  std::vector<double> values;
  values.reserve(target_x.size());
  for (const double t : target_x) {
    const std::size_t first = std::min(samples.first_not_below(t - dr), samples.last());
    const std::size_t last = std::min(samples.first_not_below(t + dr), samples.last());
    values.push_back(samples.average(t, first, last, b, dr, power));
  }
  return values;
}

}  // namespace gravelox::fft
