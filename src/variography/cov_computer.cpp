// SPDX-License-Identifier: MIT
#include "variography/cov_computer.hpp"

#include <cmath>

#include "common/integer.hpp"
#include "common/vector_clones.hpp"
#include "variography/kernel_table.hpp"

namespace gravelox {

namespace {

void grow(Eigen::ArrayXd& array, std::size_t n) {
  if (array.size() < to_index(n)) array.resize(to_index(n));
}

/// result[i] = row . (x[i], y[i], z[i])
void map_axis(const Eigen::RowVector3d& row, const double* x, const double* y, const double* z,
              std::size_t n, double* result) {
  const double a = row[0];
  const double b = row[1];
  const double c = row[2];
  for (std::size_t i = 0; i < n; ++i) result[i] = a * x[i] + b * y[i] + c * z[i];
}

/// Squared distances of n points from (px, py, pz).
GRAVELOX_VECTOR_CLONES void square_distances(const double* x, const double* y, const double* z,
                                             double px, double py, double pz, std::size_t n,
                                             double* result) {
  for (std::size_t i = 0; i < n; ++i) {
    const double dx = x[i] - px;
    const double dy = y[i] - py;
    const double dz = z[i] - pz;
    result[i] = dx * dx + dy * dy + dz * dz;
  }
}

/// Squared distances between the points i > j, column by column. One function for all columns: most
/// are short.
GRAVELOX_VECTOR_CLONES void square_distances_between(const double* x, const double* y,
                                                     const double* z, std::size_t n,
                                                     double* result) {
  for (std::size_t j = 0; j < n; ++j) {
    for (std::size_t i = j + 1; i < n; ++i) {
      const double dx = x[i] - x[j];
      const double dy = y[i] - y[j];
      const double dz = z[i] - z[j];
      result[i - j - 1] = dx * dx + dy * dy + dz * dz;
    }
    result += n - j - 1;
  }
}

GRAVELOX_VECTOR_CLONES void take_roots(const double* squares, std::size_t n, double* roots) {
  for (std::size_t i = 0; i < n; ++i) roots[i] = std::sqrt(squares[i]);
}

}  // namespace

void lag_buffer::set(const location_list& data_locs, std::span<const std::size_t> neis,
                     const location& target, const location& origin) {
  set_all(data_locs, neis, target, origin);
}

void lag_buffer::set(const location_list& data_locs, std::span<const std::uint32_t> neis,
                     const location& target, const location& origin) {
  set_all(data_locs, neis, target, origin);
}

template <typename Id>
void lag_buffer::set_all(const location_list& data_locs, std::span<const Id> neis,
                         const location& target, const location& origin) {
  size_ = neis.size();
  target_ = target - origin;
  for (array* coordinates : {&x_, &y_, &z_, &mapped_x_, &mapped_y_, &mapped_z_}) {
    grow(*coordinates, size_);
  }
  for (std::size_t i = 0; i < size_; ++i) {
    const location relative = data_locs[neis[i]] - origin;
    x_[to_index(i)] = relative.x();
    y_[to_index(i)] = relative.y();
    z_[to_index(i)] = relative.z();
  }
}

cov_computer::cov_computer(const std::vector<Covariance>& covs, int n) {
  for (const Covariance& cov : covs) {
    const Kernel kernel = n < 0 ? cov.kernel : get_kernel(cov, n);
    if (groups_.empty() || groups_.back().matrix != cov.ellipsoid.matrix()) {
      groups_.push_back({cov.ellipsoid.matrix(), {}, false});
    }
    groups_.back().structures.push_back({cov.sill, kernel});
    if (!kernel.takes_squares()) groups_.back().needs_distances = true;
  }
}

double cov_computer::operator()(const location& lag) const {
  double sum = 0.0;
  for (const group& same : groups_) {
    const double distance = (same.matrix * lag).norm();
    for (const structure& s : same.structures) sum += s.sill * s.kernel(distance);
  }
  return sum;
}

const double* cov_computer::to_target(lag_buffer& lags) const { return evaluate(lags, false); }

const double* cov_computer::to_target_and_between(lag_buffer& lags) const {
  return evaluate(lags, true);
}

const double* cov_computer::evaluate(lag_buffer& lags, bool between) const {
  const std::size_t n = lags.size();
  const std::size_t n_lags = between ? n * (n + 1) / 2 : n;
  for (lag_buffer::array* values : {&lags.squares_, &lags.distances_, &lags.values_}) {
    grow(*values, n_lags);
  }
  lags.values_.head(to_index(n_lags)).setZero();
  for (const group& same : groups_) {
    square_lags(same.matrix, between, lags);
    if (same.needs_distances) take_roots(lags.squares_.data(), n_lags, lags.distances_.data());
    for (const structure& s : same.structures) {
      const lag_buffer::array& argument =
          s.kernel.takes_squares() ? lags.squares_ : lags.distances_;
      s.kernel.add_to(argument.data(), n_lags, s.sill, lags.values_.data());
    }
  }
  return lags.values_.data();
}

void cov_computer::square_lags(const Eigen::Matrix3d& matrix, bool between, lag_buffer& lags) {
  const std::size_t n = lags.size();
  // The target takes the very road of the samples, so that one on the target has a lag of exactly
  // 0.
  const auto map = [&](Eigen::Index axis, lag_buffer::array& mapped) {
    const Eigen::RowVector3d row = matrix.row(axis);
    map_axis(row, lags.x_.data(), lags.y_.data(), lags.z_.data(), n, mapped.data());
    double target = 0.0;
    map_axis(row, &lags.target_.x(), &lags.target_.y(), &lags.target_.z(), 1, &target);
    return target;
  };
  const double target_x = map(0, lags.mapped_x_);
  const double target_y = map(1, lags.mapped_y_);
  const double target_z = map(2, lags.mapped_z_);
  const double* x = lags.mapped_x_.data();
  const double* y = lags.mapped_y_.data();
  const double* z = lags.mapped_z_.data();
  double* squares = lags.squares_.data();
  square_distances(x, y, z, target_x, target_y, target_z, n, squares);
  if (between) square_distances_between(x, y, z, n, squares + n);
}

cov_computer create_cov_computer(const std::vector<Covariance>& covs, int n) {
  return cov_computer(covs, n);
}

}  // namespace gravelox
