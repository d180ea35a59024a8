// SPDX-License-Identifier: MIT
#include "variography/scattered_variogram.hpp"

#include <Eigen/Geometry>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <sstream>
#include <string>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "common/vector_clones.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/extreme_points.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/sphere_sampling.hpp"
#include "variography/variography_detail.hpp"

namespace gravelox {

namespace {

constexpr std::uint32_t fixed_seed = 123125;
constexpr int n_hull_rays = 300;
constexpr double search_radius = 1.01;

/// A direction with what its pairs are searched and grouped by.
struct direction_setup {
  location axis;
  double scale;  // the extent of the samples this way
  random_engine engine;
  Ellipsoid search;
};

/// A vector at right angles to the direction, not scaled to length 1.
location perpendicular_direction(const location& direction, double tol, random_engine& engine) {
  constexpr int most_draws = 1000000;
  for (int i = 0; i < most_draws; ++i) {
    const double x = uniform01(engine);
    const double y = uniform01(engine);
    const double z = uniform01(engine);
    const location drawn = location(x, y, z).normalized();
    const double cosine = drawn.dot(direction);
    if (std::abs(std::abs(cosine) - 1.0) > tol) return drawn - cosine * direction;
  }
  std::ostringstream got;
  got << tol;
  refuse("tol", "a tolerance that random vectors can meet, such as 0.01", got.str());
}

Ellipsoid search_ellipsoid(const location& axis, double scale, double bandwidth, double tol,
                           random_engine& engine) {
  const location side = perpendicular_direction(axis, tol, engine).normalized();
  const location other_side = axis.cross(side).normalized();
  Eigen::Matrix3d matrix;
  matrix << axis.transpose() / (3.0 * scale), side.transpose() / (bandwidth * scale),
      other_side.transpose() / (bandwidth * scale);
  return Ellipsoid(matrix);
}

std::vector<direction_setup> set_up_directions(const location& extent, int n_directions,
                                               double bandwidth, double tol,
                                               random_engine& master) {
  const Ellipsoid box(extent, location(90.0, 0.0, 0.0));
  std::vector<direction_setup> setups;
  for (const location& axis : generate_random_sphere(n_directions, master())) {
    setups.push_back({axis, box.backward(axis).norm(), random_engine(master()), Ellipsoid()});
  }
  for (direction_setup& setup : setups) {
    setup.search = search_ellipsoid(setup.axis, setup.scale, bandwidth, tol, setup.engine);
  }
  return setups;
}

/// The positions of the samples by descending value, ties by position.
std::vector<std::size_t> by_descending_value(const std::vector<double>& values) {
  std::vector<std::size_t> order(values.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
    return values[left] > values[right];
  });
  return order;
}

std::vector<std::size_t> choose_centers(const std::vector<double>& values, int n_centers,
                                        random_engine& engine) {
  const std::size_t n = values.size();
  if (to_size(n_centers) + 1 >= n) {
    std::vector<std::size_t> all(n);
    for (std::size_t i = 0; i < n; ++i) all[i] = i;
    return all;
  }
  std::vector<std::size_t> candidates = by_descending_value(values);
  const std::size_t highest = candidates.front();
  const auto size = static_cast<double>(n);
  const double n_candidates = std::ceil(size * (n_centers / size + 0.25));
  candidates.resize(std::min(static_cast<std::size_t>(n_candidates), n));
  shuffle(candidates, engine);
  candidates.resize(to_size(n_centers));
  if (n_centers > 0) candidates.front() = highest;
  return candidates;
}

/// Whether the angle between a lag and a direction is at most a tolerance; an angle that is not a
/// number, that of a lag of length 0, is. Only angles next to the limit take the arc.
class angle_test {
 public:
  explicit angle_test(double tolerance) : tolerance_(tolerance) {
    constexpr double margin = 1e-12;
    if (tolerance < 0.0 || tolerance > std::numbers::pi) return;
    surely_within_ = std::cos(tolerance) + margin;
    surely_outside_ = std::cos(tolerance) - margin;
  }

  /// For the length of a lag, and of its part along the direction.
  bool operator()(double length, double part) const {
    if (part >= surely_within_ * length) return true;
    if (part < surely_outside_ * length) return false;
    return !(std::acos(part / length) > tolerance_);
  }

 private:
  double tolerance_;
  double surely_within_ = std::numeric_limits<double>::infinity();
  double surely_outside_ = -std::numeric_limits<double>::infinity();
};

/// The lengths of a direction's lags, and the pairs that fall to each.
class lag_bins {
 public:
  explicit lag_bins(std::vector<double> lengths)
      : lengths_(std::move(lengths)), sums_(lengths_.size(), 0.0), counts_(lengths_.size(), 0.0) {
    std::sort(lengths_.begin(), lengths_.end());
    index_lengths();
  }

  /// Adds a pair to the first length not below its own, if there is one.
  void add(double length, double semivariance) {
    const std::size_t bin = first_not_below(length);
    if (bin == lengths_.size()) return;
    sums_[bin] += semivariance;
    counts_[bin] += 1.0;
  }

  const std::vector<double>& lengths() const { return lengths_; }

  /// The mean and the number of the pairs of a lag and of the lags up to `window` away: the same
  /// as though each pair went to all of these lags.
  std::pair<double, double> mean_around(std::size_t lag, int window) const {
    double sum = 0.0;
    double count = 0.0;
    if (window < 0) return {sum, count};
    const std::size_t reach = std::min(to_size(window), lengths_.size());
    const std::size_t last = std::min(lag + reach, lengths_.size() - 1);
    for (std::size_t bin = lag - std::min(lag, reach); bin <= last; ++bin) {
      sum += sums_[bin];
      count += counts_[bin];
    }
    return {count > 0.0 ? sum / count : 0.0, count};
  }

 private:
  /// Equal steps of length, each with the number of lag lengths below it, so that the place of a
  /// pair is found without a search: only the few lengths within its own step are compared.
  void index_lengths() {
    constexpr std::size_t steps_per_lag = 8;
    if (lengths_.empty()) return;
    const std::size_t n_steps = steps_per_lag * lengths_.size();
    const double span = lengths_.back() - lengths_.front();
    last_step_ = static_cast<double>(n_steps - 1);
    steps_per_length_ = span > 0.0 ? last_step_ / span : 0.0;
    n_below_step_.assign(n_steps, 0);
    std::size_t lag = 0;
    for (std::size_t step = 0; step < n_steps; ++step) {
      while (lag < lengths_.size() && step_of(lengths_[lag]) < step) ++lag;
      n_below_step_[step] = lag;
    }
  }

  /// Never falls as the length grows, so lengths of earlier steps are below all of a later one.
  std::size_t step_of(double length) const {
    const double step = (length - lengths_.front()) * steps_per_length_;
    return step > 0.0 ? static_cast<std::size_t>(std::min(step, last_step_)) : 0;
  }

  std::size_t first_not_below(double length) const {
    if (lengths_.empty()) return 0;
    std::size_t lag = n_below_step_[step_of(length)];
    while (lag < lengths_.size() && lengths_[lag] < length) ++lag;
    return lag;
  }

  std::vector<double> lengths_;
  std::vector<double> sums_;
  std::vector<double> counts_;
  std::vector<std::size_t> n_below_step_;
  double steps_per_length_ = 0.0;
  double last_step_ = 0.0;
};

std::vector<double> draw_lengths(int n_lags, double lag_tol, direction_setup& setup) {
  normal_distribution normal;
  std::vector<double> lengths(to_size(n_lags));
  for (double& length : lengths) {
    length = (std::abs(normal(setup.engine)) + lag_tol) * setup.scale;
  }
  return lengths;
}

/// Samples as separate arrays.
struct sample_arrays {
  std::vector<double> x, y, z, value;

  void assign(const std::vector<std::size_t>& ids, const location_list& data_locs,
              const std::vector<double>& data_values) {
    for (std::vector<double>* array : {&x, &y, &z, &value}) array->resize(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
      x[i] = data_locs[ids[i]].x();
      y[i] = data_locs[ids[i]].y();
      z[i] = data_locs[ids[i]].z();
      value[i] = data_values[ids[i]];
    }
  }
};

/// Pairs: the length of each lag, the length of its part along the direction, the semivariance.
struct pair_arrays {
  std::vector<double> length, part, semivariance;
  std::size_t size = 0;

  void reserve(std::size_t n) {
    if (n <= length.size()) return;
    for (std::vector<double>* array : {&length, &part, &semivariance}) array->resize(n);
  }
};

/// The pairs of sample a with n others.
GRAVELOX_VECTOR_CLONES void pair_with(double xa, double ya, double za, double value_a, double dx,
                                      double dy, double dz, std::size_t n, const double* x,
                                      const double* y, const double* z, const double* value,
                                      double* length, double* part, double* semivariance) {
  for (std::size_t b = 0; b < n; ++b) {
    const double hx = xa - x[b];
    const double hy = ya - y[b];
    const double hz = za - z[b];
    const double difference = value_a - value[b];
    length[b] = std::sqrt(hx * hx + hy * hy + hz * hz);
    part[b] = std::abs(hx * dx + hy * dy + hz * dz);
    semivariance[b] = 0.5 * difference * difference;
  }
}

/// Finds the pairs around a centre and sorts them into bins, many at a time; one a thread.
class pair_finder {
 public:
  neighbor_buffer neighbors;

  void add_pairs(const location_list& data_locs, const std::vector<double>& data_values,
                 const location& axis, const angle_test& is_along, lag_bins& bins) {
    constexpr std::size_t batch = 2048;
    samples_.assign(neighbors.ids, data_locs, data_values);
    const std::size_t n = neighbors.ids.size();
    pairs_.reserve(batch + n);
    for (std::size_t a = 0; a < n; ++a) {
      append_row(a, n, axis);
      if (pairs_.size >= batch) flush(is_along, bins);
    }
    flush(is_along, bins);
  }

 private:
  void append_row(std::size_t a, std::size_t n, const location& axis) {
    const std::size_t first = a + 1;
    pair_with(samples_.x[a], samples_.y[a], samples_.z[a], samples_.value[a], axis.x(), axis.y(),
              axis.z(), n - first, samples_.x.data() + first, samples_.y.data() + first,
              samples_.z.data() + first, samples_.value.data() + first,
              pairs_.length.data() + pairs_.size, pairs_.part.data() + pairs_.size,
              pairs_.semivariance.data() + pairs_.size);
    pairs_.size += n - first;
  }

  /// Pairs along the direction move up before they are sorted into bins: no branch depends on them.
  void flush(const angle_test& is_along, lag_bins& bins) {
    std::size_t n_along = 0;
    for (std::size_t i = 0; i < pairs_.size; ++i) {
      const bool is_kept = is_along(pairs_.length[i], pairs_.part[i]);
      pairs_.length[n_along] = pairs_.length[i];
      pairs_.semivariance[n_along] = pairs_.semivariance[i];
      n_along += is_kept ? 1 : 0;
    }
    for (std::size_t i = 0; i < n_along; ++i) bins.add(pairs_.length[i], pairs_.semivariance[i]);
    pairs_.size = 0;
  }

  sample_arrays samples_;
  pair_arrays pairs_;
};

/// The lags of all directions that have pairs, in order.
experimental_variogram collect(const std::vector<direction_setup>& setups,
                               const std::vector<lag_bins>& bins, int window_size) {
  location_list lags;
  std::vector<double> variogram;
  std::vector<int> npairs;
  std::vector<int> direction_ids;
  location_list directions;
  for (std::size_t id = 0; id < setups.size(); ++id) {
    directions.push_back(setups[id].axis);
    const std::vector<double>& lengths = bins[id].lengths();
    for (std::size_t lag = 0; lag < lengths.size(); ++lag) {
      const auto [mean, count] = bins[id].mean_around(lag, window_size);
      if (!(count > 0.0)) continue;
      lags.push_back(lengths[lag] * setups[id].axis);
      variogram.push_back(mean);
      npairs.push_back(detail::to_pair_count(count));
      direction_ids.push_back(to_int(id));
    }
  }
  return {std::move(lags), std::move(variogram), std::move(npairs), std::move(direction_ids),
          std::move(directions)};
}

}  // namespace

experimental_variogram compute_exp_variogram(const location_list& data_locs,
                                             const std::vector<double>& data_values, int n_centers,
                                             double angle_tol, int n_lags, double lag_tol,
                                             double bandwidth, int window_size, int n_directions,
                                             double tol, int n_threads, std::int64_t /*seed*/) {
  check_same_size("data_values", data_values.size(), data_locs.size(), "location");
  check_finite("data_locs", data_locs);
  check_finite("data_values", data_values);
  check_at_least("n_centers", n_centers, 0);
  check_finite("angle_tol", angle_tol);
  check_at_least("n_lags", n_lags, 0);
  check_finite("lag_tol", lag_tol);
  check_finite("bandwidth", bandwidth);
  if (bandwidth == 0.0) refuse("bandwidth", "a number other than 0", "0");
  check_at_least("n_directions", n_directions, 0);
  check_finite("tol", tol);

  random_engine master(fixed_seed);
  const location_list hull = extreme_points(data_locs, n_hull_rays, master(), n_threads);
  std::vector<direction_setup> setups =
      set_up_directions(extent(hull), n_directions, bandwidth, tol, master);
  const std::vector<std::size_t> centers = choose_centers(data_values, n_centers, master);

  const angle_test is_along(angle_tol * std::numbers::pi / 180.0);
  std::vector<lag_bins> bins(setups.size(), lag_bins({}));
  std::vector<pair_finder> finders(n_thread_slots(n_threads));
  parallel_for(setups.size(), n_threads, [&](std::size_t id, int thread_number) {
    direction_setup& setup = setups[id];
    pair_finder& finder = finders[to_size(thread_number)];
    const Neighborhood neighborhood(data_locs, setup.search);
    lag_bins own(draw_lengths(n_lags, lag_tol, setup));
    for (const std::size_t center : centers) {
      neighborhood.find_neighbors(data_locs[center], search_radius, finder.neighbors);
      finder.add_pairs(data_locs, data_values, setup.axis, is_along, own);
    }
    bins[id] = std::move(own);
  });
  return collect(setups, bins, window_size);
}

}  // namespace gravelox
