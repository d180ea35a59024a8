// SPDX-License-Identifier: MIT
#include "variography/grid_variogram.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/memory.hpp"
#include "common/parallel_for.hpp"
#include "common/random.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/neighborhood.hpp"
#include "spatial/sphere_sampling.hpp"
#include "variography/variogram_map.hpp"
#include "variography/variography_detail.hpp"

namespace gravelox {

namespace {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

void check_data(const std::vector<double>& data) {
  for (const double value : data) {
    if (std::isinf(value)) refuse("data", "numbers, or NaN where missing", "an infinite value");
  }
}

CartesianGrid working_grid(const location_list& corners, const cell_triple& counts,
                           const location& origin, const location& rotation, int n_threads) {
  const Ellipsoid frame = Rotation(rotation[0], rotation[1], rotation[2]);
  CartesianGrid grid(extent(frame.forward(corners, n_threads)), counts, origin, rotation);
  detail::check_extent("corners", grid.transformation());
  return grid;
}

/// The id of the cell that a location falls in, -1 outside the grid. A location less than a cell
/// below the grid counts as in its first cell.
int cell_of(const location& point, const CartesianGrid& grid) {
  const auto [nx, ny, nz] = grid.number_of_cells();
  const location cell = grid.cell_coordinates(point);
  const double i = std::trunc(cell.x());
  const double j = std::trunc(cell.y());
  const double k = std::trunc(cell.z());
  if (!(i >= 0.0 && i < nx && j >= 0.0 && j < ny && k >= 0.0 && k < nz)) return -1;
  return grid.index(static_cast<int>(i), static_cast<int>(j), static_cast<int>(k));
}

/// A value for each cell of the grid, of the data at location_at(i). Values are written in the
/// order of the list, so that the last one in a cell stays whatever the number of threads.
template <typename LocationAt>
std::vector<double> scatter(const LocationAt& location_at, const std::vector<double>& data,
                            const CartesianGrid& grid, int n_threads) {
  std::vector<int> cells(data.size());
  parallel_for(data.size(), n_threads, [&](std::size_t i, int /*thread_number*/) {
    cells[i] = cell_of(location_at(i), grid);
  });
  std::vector<double> values(grid.size(), missing);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (cells[i] >= 0) values[to_size(cells[i])] = data[i];
  }
  return values;
}

/// Random lags in the order of directions, those of a direction by length.
struct lag_cloud {
  location_list directions;
  std::vector<int> direction_ids;
  location_list lags;
};

lag_cloud draw_lags(const CartesianGrid& grid, int n_directions, int n_lags, std::int64_t seed) {
  lag_cloud cloud;
  cloud.directions = generate_random_sphere(n_directions, 0);
  random_engine engine = create_engine(seed);
  normal_distribution normal;
  std::vector<double> lengths(to_size(n_lags));
  cloud.lags.reserve(cloud.directions.size() * lengths.size());
  cloud.direction_ids.reserve(cloud.lags.capacity());
  for (std::size_t id = 0; id < cloud.directions.size(); ++id) {
    for (double& length : lengths) {
      do length = std::abs(normal(engine));
      while (length < 1e-10);
    }
    std::sort(lengths.begin(), lengths.end());
    for (const double length : lengths) {
      cloud.lags.push_back(grid.transformation().backward(length * cloud.directions[id]));
      cloud.direction_ids.push_back(to_int(id));
    }
  }
  return cloud;
}

/// The semivariance of a lag so far and the pairs that it rests on.
struct lag_mean {
  double value = 0.0;
  double weight = 0.0;

  void add(double map_value, double n_pairs) {
    const double total = weight + n_pairs;
    value = weight / total * value + n_pairs / total * map_value;
    weight = total;
  }
};

/// The cells of a map that have pairs and a lag within reach of them, in the order of the map.
///
/// Most cells have none: marking them from the lags' side is far cheaper than asking a search about
/// every cell. A cell too many does no harm, and so the reach is taken a little wider.
class map_cells {
 public:
  struct cell {
    int i, j, k;
  };

  map_cells(const variogram_map& map, const cell_triple& counts)
      : map_(map),
        counts_(counts),
        half_(map.reach()),
        n_rows_(2 * to_size(std::get<1>(half_)) + 1),
        n_columns_(2 * to_size(std::get<2>(half_)) + 1),
        is_near_((2 * to_size(std::get<0>(half_)) + 1) * n_rows_ * n_columns_, 0) {}

  /// The normalised coordinates of a cell.
  location position(const cell& at) const {
    const auto [nx, ny, nz] = counts_;
    return {at.i / static_cast<double>(nx), at.j / static_cast<double>(ny),
            at.k / static_cast<double>(nz)};
  }

  void mark_around(const location& point, double radius) {
    const double reach = std::abs(radius) * (1.0 + 1e-9) + 1e-12;
    const auto [nx, ny, nz] = counts_;
    const auto [half_x, half_y, half_z] = half_;
    const span along_x = cells_within(point.x(), reach, nx, half_x);
    for (int i = along_x.first; i <= along_x.last; ++i) {
      const double dx = point.x() - i / static_cast<double>(nx);
      const double reach_y = std::sqrt(std::max(reach * reach - dx * dx, 0.0));
      const span along_y = cells_within(point.y(), reach_y, ny, half_y);
      for (int j = along_y.first; j <= along_y.last; ++j) {
        const double dy = point.y() - j / static_cast<double>(ny);
        const double reach_z = std::sqrt(std::max(reach_y * reach_y - dy * dy, 0.0));
        const span along_z = cells_within(point.z(), reach_z, nz, half_z);
        if (along_z.first > along_z.last) continue;
        char* row = &is_near_[row_of(i, j)];
        std::fill(row + along_z.first + half_z, row + along_z.last + half_z + 1, char{1});
      }
    }
  }

  std::vector<cell> marked() const {
    const auto [half_x, half_y, half_z] = half_;
    std::vector<cell> cells;
    for (int i = -half_x; i <= half_x; ++i) {
      for (int j = -half_y; j <= half_y; ++j) {
        const char* row = &is_near_[row_of(i, j)];
        for (int k = -half_z; k <= half_z; ++k) {
          if (row[k + half_z] != 0 && map_.n_pairs(i, j, k) > 0.0) cells.push_back({i, j, k});
        }
      }
    }
    return cells;
  }

 private:
  struct span {
    int first, last;
  };

  /// The cells of an axis within a distance.
  static span cells_within(double coordinate, double distance, int count, int half) {
    const double first = std::max(std::ceil((coordinate - distance) * count), -1.0 * half);
    const double last = std::min(std::floor((coordinate + distance) * count), 1.0 * half);
    if (!(first <= last)) return {1, 0};
    return {static_cast<int>(first), static_cast<int>(last)};
  }

  std::size_t row_of(int i, int j) const {
    const auto [half_x, half_y, half_z] = half_;
    return (to_size(i + half_x) * n_rows_ + to_size(j + half_y)) * n_columns_;
  }

  const variogram_map& map_;
  cell_triple counts_;
  cell_triple half_;
  std::size_t n_rows_;
  std::size_t n_columns_;
  std::vector<char> is_near_;
};

/// Gathers the lags near each of a list of cells in parallel, a stretch of cells at a time, and
/// hands them on in the order of the cells: add(cell, lag ids). Stretches grow while they find
/// little.
template <typename Gather, typename Add>
void for_each_in_order(const std::vector<map_cells::cell>& cells, int n_threads,
                       const Gather& gather, const Add& add) {
  constexpr std::size_t shortest = 256;
  constexpr std::size_t longest = 4096;
  constexpr std::size_t many_ids = 1000000;
  std::vector<std::vector<std::size_t>> found(longest);
  std::size_t stretch = shortest;
  for (std::size_t first = 0; first < cells.size();) {
    const std::size_t n = std::min(stretch, cells.size() - first);
    parallel_for(n, n_threads, [&](std::size_t c, int thread_number) {
      gather(cells[first + c], thread_number, found[c]);
    });
    std::size_t n_ids = 0;
    for (std::size_t c = 0; c < n; ++c) {
      add(cells[first + c], found[c]);
      n_ids += found[c].size();
    }
    first += n;
    stretch = n_ids > many_ids ? shortest : std::min(2 * stretch, longest);
  }
}

/// The mean of the map around each lag. A running mean depends on the order of its terms, which is
/// that of the cells.
std::vector<lag_mean> fold(const variogram_map& map, const CartesianGrid& grid,
                           const location_list& lags, double bandwidth, int n_threads) {
  const auto [nx, ny, nz] = grid.number_of_cells();
  const double radius = bandwidth * location(1.0 / nx, 1.0 / ny, 1.0 / nz).norm();
  const location_list normalised_lags = grid.transformation().forward(lags, n_threads);
  const Neighborhood neighborhood(normalised_lags);
  map_cells cells(map, grid.number_of_cells());
  for (const location& lag : normalised_lags) cells.mark_around(lag, radius);

  std::vector<neighbor_buffer> buffers(n_thread_slots(n_threads));
  const auto gather = [&](const map_cells::cell& cell, int thread_number,
                          std::vector<std::size_t>& near) {
    neighbor_buffer& buffer = buffers[to_size(thread_number)];
    neighborhood.find_neighbors(cells.position(cell), radius, buffer);
    near = buffer.ids;
  };
  std::vector<lag_mean> means(lags.size());
  const auto add = [&](const map_cells::cell& cell, const std::vector<std::size_t>& near) {
    const double value = map.value(cell.i, cell.j, cell.k);
    const double n_pairs = map.n_pairs(cell.i, cell.j, cell.k);
    for (const std::size_t id : near) means[id].add(value, n_pairs);
  };
  for_each_in_order(cells.marked(), n_threads, gather, add);
  return means;
}

/// The lags that rest on at least one pair.
experimental_variogram with_pairs(lag_cloud cloud, const std::vector<lag_mean>& means) {
  detail::variogram_builder builder;
  for (std::size_t i = 0; i < means.size(); ++i) {
    if (!(means[i].weight >= 1.0)) continue;
    builder.add(cloud.lags[i], means[i].value, means[i].weight, to_size(cloud.direction_ids[i]));
  }
  return builder.build(std::move(cloud.directions));
}

/// The variogram of data at location_at(i), on a working grid over the corners.
template <typename LocationAt>
experimental_variogram variogram_of(const location_list& corners, const LocationAt& location_at,
                                    const std::vector<double>& data, const cell_triple& counts,
                                    int n_directions, int n_lags, double bandwidth, int n_threads,
                                    std::int64_t seed, const location& origin,
                                    const location& rotation) {
  const auto [nx, ny, nz] = counts;
  check_at_least("nx", nx, 1);
  check_at_least("ny", ny, 1);
  check_at_least("nz", nz, 1);
  check_grid_memory("nx, ny, nz", {nx, ny, nz}, 5);
  detail::check_lag_counts(n_directions, n_lags);
  check_not_empty("corners", corners.size());
  check_finite("corners", corners);
  check_finite("bandwidth", bandwidth);
  check_finite("origin", origin);
  check_finite("rotation", rotation);
  check_data(data);

  const CartesianGrid grid = working_grid(corners, {nx, ny, nz}, origin, rotation, n_threads);
  const variogram_map map =
      compute_variogram_map(scatter(location_at, data, grid, n_threads), grid.number_of_cells(),
                            {nx / 2, ny / 2, nz / 2}, n_threads);
  lag_cloud cloud = draw_lags(grid, n_directions, n_lags, seed);
  const std::vector<lag_mean> means = fold(map, grid, cloud.lags, bandwidth, n_threads);
  return with_pairs(std::move(cloud), means);
}

}  // namespace

experimental_variogram compute_variogram(const location_list& corners,
                                         const location_list& locations,
                                         const std::vector<double>& data, int nx, int ny, int nz,
                                         int n_directions, int n_lags, double bandwidth,
                                         int n_threads, std::int64_t seed, const location& origin,
                                         const location& rotation) {
  check_same_size("data", data.size(), locations.size(), "location");
  check_finite("locations", locations);
  const auto location_at = [&](std::size_t i) { return locations[i]; };
  return variogram_of(corners, location_at, data, {nx, ny, nz}, n_directions, n_lags, bandwidth,
                      n_threads, seed, origin, rotation);
}

experimental_variogram compute_variogram(const CartesianGrid& cartesian_grid,
                                         const std::vector<double>& data, int n_directions,
                                         int n_lags, double bandwidth, int n_threads,
                                         std::int64_t seed, int nx, int ny, int nz) {
  check_same_size("data", data.size(), cartesian_grid.size(), "cell of the grid");
  // A list of all locations would take three times the memory of the data.
  const auto location_at = [&](std::size_t i) { return cartesian_grid(static_cast<int>(i)); };
  return variogram_of(cartesian_grid.corners(), location_at, data, {nx, ny, nz}, n_directions,
                      n_lags, bandwidth, n_threads, seed, cartesian_grid.origin(),
                      cartesian_grid.rotation());
}

experimental_variogram compute_variogram(const BlockModel& block_model,
                                         const std::vector<double>& data, int n_directions,
                                         int n_lags, double bandwidth, int n_threads,
                                         std::int64_t seed, int nx, int ny, int nz) {
  check_same_size("data", data.size(), block_model.size(), "active cell");
  std::vector<double> full(block_model.full_size(), missing);
  for (std::size_t i = 0; i < data.size(); ++i) {
    full[to_size(block_model.active_ids()[i])] = data[i];
  }
  return compute_variogram(block_model.base_grid(), full, n_directions, n_lags, bandwidth,
                           n_threads, seed, nx, ny, nz);
}

}  // namespace gravelox
