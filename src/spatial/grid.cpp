// SPDX-License-Identifier: MIT
#include "spatial/grid.hpp"

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "common/checks.hpp"
#include "common/integer.hpp"
#include "common/text.hpp"

namespace gravelox {

namespace {

constexpr int most_cells = std::numeric_limits<int>::max();

std::size_t checked_size(const cell_triple& counts) {
  const auto [nx, ny, nz] = counts;
  for (const int count : {nx, ny, nz}) check_at_least("number_of_cells", count, 1);
  // Two counts of 31 bits stay within 64; the third is multiplied only if those two fit.
  const std::int64_t plane = std::int64_t{ny} * nz;
  if (plane > most_cells || plane * nx > most_cells) {
    refuse("number_of_cells", "at most 2147483647 cells in all", text_of_sizes(nx, ny, nz));
  }
  return static_cast<std::size_t>(plane * nx);
}

/// Whole cells in a length.
int whole_cells(double length, double cell_size) {
  const double count = std::trunc(length / cell_size);
  // Also false for a quotient that is not a number.
  if (!(count >= 1.0 && count <= most_cells)) {
    refuse("cell_size", "1 to 2147483647 cells along each axis",
           text_of("length / cell_size = ", length, " / ", cell_size));
  }
  return static_cast<int>(count);
}

location as_location(const cell_triple& cells) {
  const auto [i, j, k] = cells;
  return {static_cast<double>(i), static_cast<double>(j), static_cast<double>(k)};
}

void check_cell(const cell_triple& counts, int i, int j, int k) {
  const auto [nx, ny, nz] = counts;
  check_index("i", i, to_size(nx));
  check_index("j", j, to_size(ny));
  check_index("k", k, to_size(nz));
}

}  // namespace

CartesianGrid::CartesianGrid(const location& length, const cell_triple& number_of_cells,
                             const location& origin, const location& rotation)
    : transformation_(length, rotation),
      origin_(origin),
      rotation_(rotation),
      counts_(number_of_cells),
      size_(checked_size(number_of_cells)),
      cell_size_(transformation_.backward(as_location(counts_).cwiseInverse())) {
  const auto [nx, ny, nz] = counts_;
  corners_.reserve(8);
  for (const int i : {0, nx - 1}) {
    for (const int j : {0, ny - 1}) {
      for (const int k : {0, nz - 1}) corners_.push_back(location_of(i, j, k));
    }
  }
}

CartesianGrid CartesianGrid::from_cell_size(const location& length, const location& cell_size,
                                            const location& origin, const location& rotation) {
  const cell_triple counts(whole_cells(length.x(), cell_size.x()),
                           whole_cells(length.y(), cell_size.y()),
                           whole_cells(length.z(), cell_size.z()));
  return {length, counts, origin, rotation};
}

CartesianGrid CartesianGrid::from_cells(const cell_triple& number_of_cells,
                                        const location& cell_size, const location& origin,
                                        const location& rotation) {
  checked_size(number_of_cells);
  const location length = as_location(number_of_cells).cwiseProduct(cell_size);
  return from_cell_size(length, cell_size, origin, rotation);
}

location CartesianGrid::location_of(int i, int j, int k) const {
  const location fraction = as_location({i, j, k}).cwiseQuotient(as_location(counts_));
  return origin_ + transformation_.backward(fraction);
}

location CartesianGrid::cell_coordinates(const location& point) const {
  const location fraction = transformation_.forward(point - origin_);
  return fraction.cwiseQuotient(as_location(counts_).cwiseInverse());
}

location_list CartesianGrid::locations() const {
  const auto [nx, ny, nz] = counts_;
  location_list all;
  all.reserve(size_);
  for (int i = 0; i < nx; ++i) {
    for (int j = 0; j < ny; ++j) {
      for (int k = 0; k < nz; ++k) all.push_back(location_of(i, j, k));
    }
  }
  return all;
}

int CartesianGrid::index(int i, int j, int k) const {
  check_cell(counts_, i, j, k);
  const auto [nx, ny, nz] = counts_;
  return (i * ny + j) * nz + k;
}

location CartesianGrid::operator()(int i, int j, int k) const {
  check_cell(counts_, i, j, k);
  return location_of(i, j, k);
}

location CartesianGrid::operator()(int i) const {
  const auto [ci, cj, ck] = ijk(i);
  return location_of(ci, cj, ck);
}

cell_triple CartesianGrid::ijk(int i) const {
  check_index("i", i, size_);
  const auto [nx, ny, nz] = counts_;
  return {i / (nz * ny), (i / nz) % ny, i % nz};
}

BlockModel::BlockModel(const CartesianGrid& base_grid, const std::vector<bool>& mask)
    : grid_(base_grid), mask_(mask) {
  check_same_size("mask", mask.size(), base_grid.size(), "cell of the grid");
  for (std::size_t id = 0; id < mask.size(); ++id) {
    if (mask[id]) active_ids_.push_back(to_int(id));
  }
}

location_list BlockModel::locations() const {
  location_list active;
  active.reserve(active_ids_.size());
  for (const int id : active_ids_) active.push_back(grid_(id));
  return active;
}

int BlockModel::active_id(int i) const {
  check_index("i", i, active_ids_.size());
  return active_ids_[to_size(i)];
}

location BlockModel::operator()(int i, int j, int k) const {
  if (!mask_[to_size(grid_.index(i, j, k))]) throw std::runtime_error("invalid index");
  return grid_(i, j, k);
}

location BlockModel::operator()(int i) const { return grid_(active_id(i)); }

cell_triple BlockModel::ijk(int i) const { return grid_.ijk(active_id(i)); }

}  // namespace gravelox
