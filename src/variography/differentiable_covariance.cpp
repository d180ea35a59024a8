// SPDX-License-Identifier: MIT
#include "variography/differentiable_covariance.hpp"

#include <cmath>

#include "spatial/anisotropy.hpp"

namespace gravelox {

namespace {

using std::sqrt;

/// The root has no derivative at 0, but no shape depends on ranges and angles there.
template <number T>
T length(const Eigen::Matrix<T, 3, 1>& v) {
  const T square = v[0] * v[0] + v[1] * v[1] + v[2] * v[2];
  return square == T(0.0) ? T(0.0) : sqrt(square);
}

}  // namespace

template <number T>
generic_cov<T>::generic_cov(const generic_cov_structure<T>& structure)
    : matrix_(anisotropy_matrix(structure.r1, structure.r2, structure.r3, structure.azimuth,
                                structure.dip, structure.rake)),
      sill_(structure.sill),
      kernel_(create_cov_kernel<T>(structure.type)) {}

template <number T>
T generic_cov<T>::operator()(const Eigen::Matrix<T, 3, 1>& h) const {
  return sill_ * kernel_(length<T>(matrix_ * h));
}

template <number T>
generic_nested_cov<T>::generic_nested_cov(const std::vector<generic_cov_structure<T>>& structures,
                                          const T& nugget)
    : structures_(structures.begin(), structures.end()), nugget_(nugget) {}

template <number T>
T generic_nested_cov<T>::operator()(const Eigen::Matrix<T, 3, 1>& h) const {
  T sum(0.0);
  for (const generic_cov<T>& cov : structures_) sum += cov(h);
  return sum + (length(h) < T(1e-10) ? nugget_ : T(0.0));
}

template <number T>
generic_cov<T> create_cov(covariance_type type, const T& r1, const T& r2, const T& r3,
                          const T& azimuth, const T& dip, const T& rake, const T& sill) {
  return generic_cov<T>({type, r1, r2, r3, azimuth, dip, rake, sill});
}

template <number T>
generic_nested_cov<T> create_nested_cov(const std::vector<generic_cov_structure<T>>& structures,
                                        const T& nugget) {
  return generic_nested_cov<T>(structures, nugget);
}

template class generic_cov<double>;
template class generic_cov<jet>;
template class generic_nested_cov<double>;
template class generic_nested_cov<jet>;
template generic_cov<double> create_cov(covariance_type, const double&, const double&,
                                        const double&, const double&, const double&, const double&,
                                        const double&);
template generic_cov<jet> create_cov(covariance_type, const jet&, const jet&, const jet&,
                                     const jet&, const jet&, const jet&, const jet&);
template generic_nested_cov<double> create_nested_cov(
    const std::vector<generic_cov_structure<double>>&, const double&);
template generic_nested_cov<jet> create_nested_cov(const std::vector<generic_cov_structure<jet>>&,
                                                   const jet&);

}  // namespace gravelox
