// SPDX-License-Identifier: MIT
#include "language/selection.hpp"

#include <utility>

#include "common/checks.hpp"

namespace gravelox {

template <number T>
JetList<T> select(const JetList<T>& x, const positions& elements) {
  JetList<T> result;
  for (const std::size_t i : elements) result.push_back(x[i]);
  return result;
}

template <number T>
void fill(JetList<T>& x, const positions& elements, const T& value) {
  for (const std::size_t i : elements) x[i] = value;
}

template <number T>
void replace(JetList<T>& x, const positions& elements, const JetList<T>& values) {
  check_same_size("value", values.size(), elements.size(), "element of the slice");
  for (std::size_t i = 0; i < elements.size(); ++i) x[elements[i]] = values[i];
}

template <number T>
JetMatrix<T> select_rows(const JetMatrix<T>& m, const positions& rows) {
  std::vector<JetList<T>> result;
  for (const std::size_t i : rows) result.push_back(m[i]);
  return JetMatrix<T>(std::move(result));
}

template <number T>
JetMatrix<T> select(const JetMatrix<T>& m, const positions& rows, const positions& columns) {
  std::vector<JetList<T>> result;
  for (const std::size_t i : rows) result.push_back(select(m[i], columns));
  return JetMatrix<T>(std::move(result));
}

#define GRAVELOX_INSTANTIATE(T)                                             \
  template JetList<T> select(const JetList<T>&, const positions&);          \
  template void fill(JetList<T>&, const positions&, const T&);              \
  template void replace(JetList<T>&, const positions&, const JetList<T>&);  \
  template JetMatrix<T> select_rows(const JetMatrix<T>&, const positions&); \
  template JetMatrix<T> select(const JetMatrix<T>&, const positions&, const positions&)

GRAVELOX_INSTANTIATE(double);
GRAVELOX_INSTANTIATE(jet);

#undef GRAVELOX_INSTANTIATE

}  // namespace gravelox
