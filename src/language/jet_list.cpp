// SPDX-License-Identifier: MIT
#include "language/jet_list.hpp"

#include <cmath>

#include "common/checks.hpp"
#include "common/text.hpp"
#include "language/elementary.hpp"

namespace gravelox {

namespace {

using std::sqrt;

template <number T, typename Operation>
JetList<T> combine(const JetList<T>& x, const JetList<T>& y, const Operation& operation) {
  check_same_length(x, y);
  JetList<T> result(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) result[i] = operation(x[i], y[i]);
  return result;
}

template <number T, typename Operation>
JetList<T> transform(const JetList<T>& x, const Operation& operation) {
  JetList<T> result(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) result[i] = operation(x[i]);
  return result;
}

}  // namespace

template <number T>
const T& JetList<T>::at(std::size_t i) const {
  check_subscript(i, size());
  return values_[i];
}

template <number T>
void check_same_length(const JetList<T>& x, const JetList<T>& y) {
  check_same_size("vector", y.size(), x.size(), "element of the other vector");
}

template <number T>
T length_of_square(const T& square) {
  return square == T(0.0) ? T(0.0) : sqrt(square);
}

template <number T>
std::vector<double> values_of(const JetList<T>& x) {
  std::vector<double> values;
  values.reserve(x.size());
  for (const T& element : x) values.push_back(value_of(element));
  return values;
}

std::vector<double> partials_of(const JetList<jet>& x) {
  std::vector<double> partials;
  partials.reserve(x.size() * jet::DIMENSION);
  for (const jet& element : x) {
    partials.insert(partials.end(), element.v.data(), element.v.data() + jet::DIMENSION);
  }
  return partials;
}

template <number T>
std::string text_of_values(const JetList<T>& x) {
  std::string text = "[";
  for (std::size_t i = 0; i < x.size(); ++i) text += text_of(i > 0 ? ", " : "", value_of(x[i]));
  return text + "]";
}

template <number T>
JetList<T> apply(T (*function)(const T&), const JetList<T>& x) {
  return transform(x, function);
}

template <number T>
JetList<T> operator+(const JetList<T>& x, const JetList<T>& y) {
  return combine(x, y, [](const T& a, const T& b) { return T(a + b); });
}

template <number T>
JetList<T> operator-(const JetList<T>& x, const JetList<T>& y) {
  return combine(x, y, [](const T& a, const T& b) { return T(a - b); });
}

template <number T>
JetList<T> operator*(const JetList<T>& x, const JetList<T>& y) {
  return combine(x, y, [](const T& a, const T& b) { return T(a * b); });
}

template <number T>
JetList<T> operator/(const JetList<T>& x, const JetList<T>& y) {
  return combine(x, y, [](const T& a, const T& b) { return T(a / b); });
}

template <number T>
JetList<T> operator*(const JetList<T>& x, const T& factor) {
  return transform(x, [&](const T& a) { return T(a * factor); });
}

template <number T>
JetList<T> operator/(const JetList<T>& x, const T& divisor) {
  return transform(x, [&](const T& a) { return T(a / divisor); });
}

template <number T>
JetList<T> operator/(const T& dividend, const JetList<T>& x) {
  return transform(x, [&](const T& a) { return T(dividend / a); });
}

template <number T>
JetList<T> pow(const JetList<T>& x, double p) {
  return transform(x, [p](const T& a) { return power(a, p); });
}

template <number T>
T dot(const JetList<T>& x, const JetList<T>& y) {
  check_same_length(x, y);
  T result(0.0);
  for (std::size_t i = 0; i < x.size(); ++i) result += x[i] * y[i];
  return result;
}

template <number T>
T norm(const JetList<T>& x) {
  return length_of_square(dot(x, x));
}

template <number T>
JetList<T> normalize(const JetList<T>& x) {
  return x / norm(x);
}

template <number T>
T sum(const JetList<T>& x) {
  T result(0.0);
  for (const T& element : x) result += element;
  return result;
}

template <number T>
T mean(const JetList<T>& x) {
  return sum(x) / static_cast<double>(x.size());
}

template <number T>
T var(const JetList<T>& x) {
  const T center = mean(x);
  return mean(transform(x, [&](const T& a) { return T((a - center) * (a - center)); }));
}

template <number T>
T stddev(const JetList<T>& x) {
  return length_of_square(var(x));
}

#define GRAVELOX_INSTANTIATE(T)                                          \
  template class JetList<T>;                                             \
  template T length_of_square(const T&);                                 \
  template void check_same_length(const JetList<T>&, const JetList<T>&); \
  template std::string text_of_values(const JetList<T>&);                \
  template std::vector<double> values_of(const JetList<T>&);             \
  template JetList<T> apply(T (*)(const T&), const JetList<T>&);         \
  template JetList<T> operator+(const JetList<T>&, const JetList<T>&);   \
  template JetList<T> operator-(const JetList<T>&, const JetList<T>&);   \
  template JetList<T> operator*(const JetList<T>&, const JetList<T>&);   \
  template JetList<T> operator/(const JetList<T>&, const JetList<T>&);   \
  template JetList<T> operator*(const JetList<T>&, const T&);            \
  template JetList<T> operator/(const JetList<T>&, const T&);            \
  template JetList<T> operator/(const T&, const JetList<T>&);            \
  template JetList<T> pow(const JetList<T>&, double);                    \
  template T dot(const JetList<T>&, const JetList<T>&);                  \
  template T norm(const JetList<T>&);                                    \
  template JetList<T> normalize(const JetList<T>&);                      \
  template T sum(const JetList<T>&);                                     \
  template T mean(const JetList<T>&);                                    \
  template T var(const JetList<T>&);                                     \
  template T stddev(const JetList<T>&)

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

}  // namespace gravelox
