// SPDX-License-Identifier: MIT
#pragma once

// CartesianGrid: a regular rotated grid, and BlockModel: the same with a mask of active cells.
//
// A grid is an ellipsoid that maps its box to the unit cube. Cells are counted k fastest, then j,
// then i: the id of (i, j, k) is (i ny + j) nz + k. The location of a cell is its low corner; cell
// 0 stands at the origin. The rotation is (azimuth, dip, rake) in degrees, and (90, 0, 0) lays i,
// j, k along x, y, z.

#include <cstddef>
#include <tuple>
#include <vector>

#include "common/location.hpp"
#include "spatial/bounding_box.hpp"
#include "spatial/ellipsoid.hpp"

namespace gravelox {

/// Three numbers of cells, or a cell's indices: along i, j, k.
using cell_triple = std::tuple<int, int, int>;

/// An immutable grid. All constructors throw std::invalid_argument where a count is below 1 or the
/// grid has more cells than an int can number.
class CartesianGrid {
 public:
  CartesianGrid(const location& length, const cell_triple& number_of_cells,
                const location& origin = location::Zero(),
                const location& rotation = location(90.0, 0.0, 0.0));

  /// Counts from sizes: the whole part of length / cell_size on each axis. The quotient is taken in
  /// doubles, so 0.3 / 0.1 gives 2 cells.
  static CartesianGrid from_cell_size(const location& length, const location& cell_size,
                                      const location& origin, const location& rotation);

  /// Length from counts and sizes, and the counts then again from the two: rounding may give one
  /// cell fewer than asked for.
  static CartesianGrid from_cells(const cell_triple& number_of_cells, const location& cell_size,
                                  const location& origin, const location& rotation);

  /// The diagonal of a cell in real coordinates, with the signs that the rotation gives it.
  const location& cell_size() const { return cell_size_; }

  /// The locations of all cells in the order of their ids.
  location_list locations() const;

  std::size_t size() const { return size_; }

  /// Id, location and indices; each throws std::invalid_argument for what lies outside the grid.
  int index(int i, int j, int k) const;
  location operator()(int i, int j, int k) const;
  location operator()(int i) const;
  cell_triple ijk(int i) const;

  const cell_triple& number_of_cells() const { return counts_; }

  /// Where a location lies, counted in cells from the origin along each axis; inside the grid the
  /// whole parts are its cell's indices.
  location cell_coordinates(const location& point) const;

  /// The map from real coordinates relative to the origin to the unit cube.
  const Ellipsoid& transformation() const { return transformation_; }

  const location& origin() const { return origin_; }

  /// (azimuth, dip, rake) in degrees.
  const location& rotation() const { return rotation_; }

  /// The 8 outermost cell locations, k innermost; not the ends of the box. Along an axis of one
  /// cell they come twice.
  const location_list& corners() const { return corners_; }

  BoundingBox bounding_box() const { return BoundingBox(corners_); }

 private:
  location location_of(int i, int j, int k) const;

  Ellipsoid transformation_;
  location origin_;
  location rotation_;
  cell_triple counts_;
  std::size_t size_;
  location cell_size_;
  location_list corners_;
};

/// An immutable grid with a mask. Positions count the active cells by ascending id.
class BlockModel {
 public:
  /// One flag for each cell in the order of ids; throws std::invalid_argument for another number.
  BlockModel(const CartesianGrid& base_grid, const std::vector<bool>& mask);

  const location& cell_size() const { return grid_.cell_size(); }
  const CartesianGrid& base_grid() const { return grid_; }

  /// The ids of the active cells in the base grid, ascending.
  const std::vector<int>& active_ids() const { return active_ids_; }

  /// The locations of the active cells.
  location_list locations() const;

  /// The number of active cells, and of all cells.
  std::size_t size() const { return active_ids_.size(); }
  std::size_t full_size() const { return mask_.size(); }

  /// The location of a cell; throws std::runtime_error "invalid index" where it is masked.
  location operator()(int i, int j, int k) const;

  /// Location and indices of the active cell at a position.
  location operator()(int i) const;
  cell_triple ijk(int i) const;

  const cell_triple& number_of_cells() const { return grid_.number_of_cells(); }

  /// The box of the whole grid's corners.
  BoundingBox bounding_box() const { return grid_.bounding_box(); }

 private:
  int active_id(int i) const;

  CartesianGrid grid_;
  std::vector<bool> mask_;
  std::vector<int> active_ids_;
};

}  // namespace gravelox
