// SPDX-License-Identifier: MIT
#include "distributions/data_distribution.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "common/checks.hpp"

namespace gravelox {

namespace {

/// Values this close are one; added to denominators, so that none is 0.
constexpr double tiny = 1e-16;

using weighted_value = std::pair<double, double>;

void check_weights(const std::vector<double>& weight, std::size_t n) {
  check_same_size("weight", weight.size(), n, "datum");
  check_finite("weight", weight);
  for (const double w : weight) {
    if (w < 0.0) refuse("weight", "no negative weight", w);
  }
  const double sum = std::accumulate(weight.begin(), weight.end(), 0.0);
  if (sum == 0.0 || std::isinf(sum)) {
    refuse("weight", "a positive and finite sum", sum == 0.0 ? "0" : "one that overflows");
  }
}

/// Distinct values, ascending, with the weight of each. Least values of no weight are left out:
/// nothing lies between them and the first one that has some.
std::vector<weighted_value> distinct_values(const std::vector<double>& data,
                                            const std::vector<double>& weight) {
  std::vector<weighted_value> sorted;
  sorted.reserve(data.size());
  for (std::size_t i = 0; i < data.size(); ++i) {
    sorted.emplace_back(data[i], weight.empty() ? 1.0 : weight[i]);
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const weighted_value& left, const weighted_value& right) {
                     return left.first < right.first;
                   });
  std::vector<weighted_value> distinct;
  for (const weighted_value& next : sorted) {
    if (distinct.size() == 1 && distinct.front().second == 0.0) distinct.clear();
    if (distinct.empty() || next.first - distinct.back().first > tiny) {
      distinct.push_back(next);
    } else {
      distinct.back().second += next.second;
    }
  }
  return distinct;
}

/// The line through two neighbouring points of a table at `at`, measured from the first of them.
double on_line(const std::vector<double>& from, const std::vector<double>& to, std::size_t a,
               std::size_t b, std::size_t origin, double at) {
  return to[origin] + (to[b] - to[a]) / (from[b] - from[a] + tiny) * (at - from[origin]);
}

/// `to` at a place between or beyond the ascending points of `from`.
double interpolate(const std::vector<double>& from, const std::vector<double>& to, double at) {
  const std::size_t last = from.size() - 1;
  if (last == 0) return to.front();
  const auto place =
      static_cast<std::size_t>(std::lower_bound(from.begin(), from.end(), at) - from.begin());
  if (place >= last) return on_line(from, to, last - 1, last, last, at);
  const std::size_t a = place == 0 ? 0 : place - 1;
  return on_line(from, to, a, a + 1, a, at);
}

/// Values and the weight of all values below each.
struct value_table {
  std::vector<double> x;
  std::vector<double> c;

  double mass(double v) const {
    const std::size_t last = x.size() - 1;
    if (last == 0) return 1.0;
    const auto place =
        static_cast<std::size_t>(std::lower_bound(x.begin(), x.end(), v) - x.begin());
    if (place == 0) return c[1] - c[0];
    if (place >= last) return c[last] - c[last - 1];
    return (c[place + 1] - c[place - 1]) * 0.5;
  }
};

value_table table_of(const std::vector<weighted_value>& distinct) {
  double total = 0.0;
  for (const auto& [value, weight] : distinct) total += weight;
  value_table table;
  double below = 0.0;
  for (const auto& [value, weight] : distinct) {
    table.x.push_back(value);
    table.c.push_back(below);
    below += weight / total;
  }
  table.c.front() = tiny;
  return table;
}

}  // namespace

real_dist data_distribution(const std::vector<double>& data, const std::vector<double>& weight) {
  if (data.size() < 2) throw std::invalid_argument("Data must have at least 2 elements");
  check_finite("data", data);
  if (!weight.empty()) check_weights(weight, data.size());
  const auto table = std::make_shared<const value_table>(table_of(distinct_values(data, weight)));
  const auto quantile = [table](double p) { return interpolate(table->c, table->x, p); };
  return {
      [quantile](random_engine& engine) { return quantile(uniform01(engine)); },
      quantile,
      [table](double v) { return interpolate(table->x, table->c, v); },
      [table](double v) { return table->mass(v); },
  };
}

}  // namespace gravelox
