// SPDX-License-Identifier: MIT
#pragma once

// Arithmetic and functions of expressions. Each gives a new node that shares its operands; the
// kinds of operands have to match when it is built, and fix the kind of the result.
//
// Of two vectors, `+`, `-` and `/` go element by element, and `*` is their dot product, a scalar.
// Vectors of different lengths are refused when they are evaluated (std::invalid_argument).

#include "language/expression.hpp"

namespace gravelox::ast {

enum class arithmetic { sum, difference, product, quotient };

/// Throws std::runtime_error: "Invalid lhs!!!" or "Invalid rhs!!!" for no expression or a kernel,
/// "Invalid variable types" for operands of different kinds.
template <number T>
TransformationPtr<T> combine(arithmetic operation, const ExpressionPtr<T>& lhs,
                             const ExpressionPtr<T>& rhs);

/// An elementary function of an expression; of a vector, element by element. Throws
/// std::runtime_error "Invalid argument!!!" for no expression or a kernel.
template <number T>
TransformationPtr<T> apply(T (*function)(const T&), const ExpressionPtr<T>& x);

/// An expression to a fixed power; of a vector, element by element. Refused like the functions.
template <number T>
TransformationPtr<T> pow(const ExpressionPtr<T>& x, double p);

}  // namespace gravelox::ast
