// SPDX-License-Identifier: MIT
#pragma once

// A vector over doubles or jets: the data of the differentiable language.
//
// Over jets every operation carries the derivatives along. Objects are plain values; several
// threads may read one at once.

#include <cstddef>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "common/number.hpp"
#include "language/subscript.hpp"

namespace gravelox {

template <number T>
class JetList {
 public:
  using value_type = T;

  JetList() = default;

  /// n copies of a value.
  explicit JetList(std::size_t n, const T& value = T(0.0)) : values_(n, value) {}

  explicit JetList(std::vector<T> values) : values_(std::move(values)) {}
  JetList(std::initializer_list<T> values) : values_(values) {}

  std::size_t size() const { return values_.size(); }
  bool empty() const { return values_.empty(); }

  /// An element by an index that has been checked.
  T& operator[](std::size_t i) { return values_[i]; }
  const T& operator[](std::size_t i) const { return values_[i]; }

  /// An element; throws std::out_of_range "invalid vector subscript".
  const T& at(std::size_t i) const;

  auto begin() { return values_.begin(); }
  auto end() { return values_.end(); }
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

  void push_back(const T& value) { values_.push_back(value); }
  void resize(std::size_t n) { values_.resize(n, T(0.0)); }
  void assign(std::size_t n, const T& value) { values_.assign(n, value); }

  const std::vector<T>& values() const { return values_; }

  bool operator==(const JetList&) const = default;

 private:
  std::vector<T> values_;
};

/// The value of a number without its derivatives.
inline double value_of(double x) { return x; }
inline double value_of(const jet& x) { return x.a; }

/// The square root, except that the root of 0 has no derivatives rather than infinite ones: norms
/// and deviations end there, and a fit may reach it.
template <number T>
T length_of_square(const T& square);

/// Throws std::invalid_argument for vectors of different lengths.
template <number T>
void check_same_length(const JetList<T>& x, const JetList<T>& y);

/// The values without derivatives.
template <number T>
std::vector<double> values_of(const JetList<T>& x);

/// All derivatives, those of each element together.
std::vector<double> partials_of(const JetList<jet>& x);

/// The values in brackets: "[1, 2.5]".
template <number T>
std::string text_of_values(const JetList<T>& x);

/// The function at each element.
template <number T>
JetList<T> apply(T (*function)(const T&), const JetList<T>& x);

/// Element by element; std::invalid_argument for sizes that differ.
template <number T>
JetList<T> operator+(const JetList<T>& x, const JetList<T>& y);
template <number T>
JetList<T> operator-(const JetList<T>& x, const JetList<T>& y);
template <number T>
JetList<T> operator*(const JetList<T>& x, const JetList<T>& y);
template <number T>
JetList<T> operator/(const JetList<T>& x, const JetList<T>& y);

/// Each element with a number.
template <number T>
JetList<T> operator*(const JetList<T>& x, const T& factor);
template <number T>
JetList<T> operator/(const JetList<T>& x, const T& divisor);
template <number T>
JetList<T> operator/(const T& dividend, const JetList<T>& x);

/// Each element to a power. The power 0 is 1 without derivatives, at 0 too.
template <number T>
JetList<T> pow(const JetList<T>& x, double p);

/// The sum of products; std::invalid_argument for sizes that differ.
template <number T>
T dot(const JetList<T>& x, const JetList<T>& y);

/// The Euclidean norm; 0 without derivatives for a zero or an empty vector.
template <number T>
T norm(const JetList<T>& x);

/// The vector over its norm; not finite for a zero vector.
template <number T>
JetList<T> normalize(const JetList<T>& x);

/// Statistics in the order of the elements. The variance is the population's; of no elements the
/// sum is 0 and the others are NaN.
template <number T>
T sum(const JetList<T>& x);
template <number T>
T mean(const JetList<T>& x);
template <number T>
T var(const JetList<T>& x);
template <number T>
T stddev(const JetList<T>& x);

}  // namespace gravelox
