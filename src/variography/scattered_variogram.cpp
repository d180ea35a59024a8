// SPDX-License-Identifier: MIT
#include "variography/scattered_variogram.hpp"

#include <Eigen/Geometry>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/ellipsoid.hpp"
#include "spatial/extreme_points.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/sphere_sampling.hpp"
#include "variography/pair_binning.hpp"
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
  refuse("tol", "a tolerance that random vectors can meet, such as 0.01", tol);
}

Ellipsoid search_ellipsoid(const location& axis, double scale, double bandwidth, double tol,
                           random_engine& engine) {
  const location side = perpendicular_direction(axis, tol, engine).normalized();
  const location other_side = axis.cross(side).normalized();
  Eigen::Matrix3d matrix;
  matrix << axis.transpose() / (3.0 * scale), side.transpose() / (bandwidth * scale),
      other_side.transpose() / (bandwidth * scale);
  if (!matrix.allFinite()) {
    refuse("bandwidth", "a width within the range of numbers", bandwidth);
  }
  return Ellipsoid(matrix);
}

std::vector<direction_setup> set_up_directions(const location& extent, int n_directions,
                                               double bandwidth, double tol,
                                               random_engine& master) {
  const Ellipsoid box(extent, location(90.0, 0.0, 0.0));
  detail::check_extent("data_locs", box);
  const location_list axes = generate_random_sphere(n_directions, master());
  std::vector<direction_setup> setups;
  setups.reserve(axes.size());
  for (const location& axis : axes) {
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

std::vector<double> draw_lengths(int n_lags, double lag_tol, direction_setup& setup) {
  normal_distribution normal;
  std::vector<double> lengths(to_size(n_lags));
  for (double& length : lengths) {
    length = (std::abs(normal(setup.engine)) + lag_tol) * setup.scale;
  }
  return lengths;
}

/// The lags of all directions that have pairs, in order.
experimental_variogram collect(const std::vector<direction_setup>& setups,
                               const std::vector<direction_lags>& lags) {
  detail::variogram_builder builder;
  location_list directions;
  for (std::size_t id = 0; id < setups.size(); ++id) {
    const location& axis = setups[id].axis;
    directions.push_back(axis);
    for (std::size_t i = 0; i < lags[id].lengths.size(); ++i) {
      if (!(lags[id].counts[i] > 0.0)) continue;
      builder.add(lags[id].lengths[i] * axis, lags[id].means[i], lags[id].counts[i], id);
    }
  }
  return builder.build(std::move(directions));
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
  check_not_nan("angle_tol", angle_tol);
  detail::check_lag_counts(n_directions, n_lags);
  check_finite("lag_tol", lag_tol);
  check_finite("bandwidth", bandwidth);
  if (bandwidth == 0.0) refuse("bandwidth", "a number other than 0", "0");
  check_finite("tol", tol);

  random_engine master(fixed_seed);
  const location_list hull = extreme_points(data_locs, n_hull_rays, master(), n_threads);
  std::vector<direction_setup> setups =
      set_up_directions(extent(hull), n_directions, bandwidth, tol, master);
  const std::vector<std::size_t> centers = choose_centers(data_values, n_centers, master);

  const angle_test is_along(angle_tol * std::numbers::pi / 180.0);
  std::vector<direction_lags> lags(setups.size());
  std::vector<pair_finder> finders(n_thread_slots(n_threads));
  parallel_for(setups.size(), n_threads, [&](std::size_t id, int thread_number) {
    direction_setup& setup = setups[id];
    pair_finder& finder = finders[to_size(thread_number)];
    const Neighborhood neighborhood(data_locs, setup.search);
    lag_bins bins(draw_lengths(n_lags, lag_tol, setup));
    for (const std::size_t center : centers) {
      neighborhood.find_neighbors(data_locs[center], search_radius, finder.neighbors);
      finder.add_pairs(data_locs, data_values, setup.axis, is_along, bins);
    }
    lags[id] = bins.means_over(window_size);
  });
  return collect(setups, lags);
}

}  // namespace gravelox
