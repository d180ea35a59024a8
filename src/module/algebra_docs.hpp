// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-module of numbers, vectors and matrices.

namespace gravelox::docs {

constexpr const char* scalar_class = "A number of the language.";
constexpr const char* scalar_init = "Make a number without derivatives.";
constexpr const char* scalar_init_partials = "Make a number with its seven derivatives.";
constexpr const char* scalar_value = "The value as a float.";
constexpr const char* partials = "The seven derivatives, in a last axis of an array of floats.";
constexpr const char* scalar_arithmetic = "Combine with another number.";
constexpr const char* scalar_float = "The value as a float.";
constexpr const char* text = "The values as text, without derivatives.";

constexpr const char* vector_class = "A vector of numbers.";
constexpr const char* vector_init = "Make a vector from numbers.";
constexpr const char* vector_by_vector =
    "Combine element by element with a vector of equal length.";
constexpr const char* vector_by_scalar = "Combine each element with a number.";
constexpr const char* vector_norm = "The Euclidean norm.";
constexpr const char* vector_normalize = "The vector divided by its norm.";
constexpr const char* vector_dot = "The sum of products with another vector.";
constexpr const char* vector_statistic = "The statistic of all elements.";
constexpr const char* vector_size = "The number of elements.";
constexpr const char* vector_get = "An element; negative indices count from the end.";
constexpr const char* vector_set = "Write an element.";
constexpr const char* vector_get_slice = "The elements of a slice, as a new vector.";
constexpr const char* vector_set_slice = "Write a number to all elements of a slice.";
constexpr const char* vector_set_slice_vector = "Write a vector to the elements of a slice.";
constexpr const char* vector_slice = "The elements from `start` up to `stop`, as a new vector.";
constexpr const char* tolist = "The values as a list, without derivatives.";
constexpr const char* array = "The values as an array, without derivatives.";
constexpr const char* iter = "Iterate over elements or rows.";

constexpr const char* matrix_class = "A matrix of numbers, by rows.";
constexpr const char* matrix_init = "Make a matrix from rows of equal length.";
constexpr const char* matrix_by_matrix = "Combine element by element with a matrix of equal shape.";
constexpr const char* matrix_product = "The matrix product.";
constexpr const char* matrix_by_scalar = "Combine each element with a number.";
constexpr const char* matrix_inverse = "The inverse, by LU with partial pivoting.";
constexpr const char* matrix_transpose = "The transposed matrix.";
constexpr const char* matrix_determinant = "The determinant, by LU with partial pivoting.";
constexpr const char* matrix_statistic = "The statistic of all elements.";
constexpr const char* matrix_axis_statistic =
    "The statistic of each column (axis 0) or row (axis 1), as a vector.";
constexpr const char* matrix_orthogonalize = "Rows made orthogonal from the first on.";
constexpr const char* matrix_orthonormalize = "Rows made orthonormal from the first on.";
constexpr const char* matrix_svd =
    "The thin singular value decomposition (U, S, V), with A = U diag(S) V^T, S descending.";
constexpr const char* matrix_solve = "The solution x of A x = b, of the kind of b.";
constexpr const char* matrix_sizes = "Rows, columns, or both.";
constexpr const char* matrix_get_row = "A row; negative indices count from the end.";
constexpr const char* matrix_get_rows = "The rows of a slice, as a new matrix.";
constexpr const char* matrix_set_row = "Write a row.";
constexpr const char* matrix_get = "An element, by row and column.";
constexpr const char* matrix_set = "Write an element, by row and column.";
constexpr const char* matrix_slice = "The rows from `start` up to `stop`, as a new matrix.";
constexpr const char* matrix_slice_both = "The part between limits of rows and of columns.";

constexpr const char* elementary_scalar = "The function of a number.";
constexpr const char* elementary_vector = "The function of each element of a vector.";
constexpr const char* elementary_matrix = "The function of each element of a matrix.";
constexpr const char* make_matrix = "A copy of a matrix.";
constexpr const char* repeat_matrix = "A matrix of n rows, each the vector x.";
constexpr const char* make_vector = "A copy of a vector.";
constexpr const char* make_value = "The number as an object.";
constexpr const char* pow_matrix = "Each element of a matrix to the power p.";
constexpr const char* pow_rows = "A matrix of n rows, each the vector to the power p.";
constexpr const char* pow_vector = "Each element of a vector to the power p.";
constexpr const char* map_vector = "A Python callable at each element of a vector.";
constexpr const char* map_matrix = "A Python callable at each element of a matrix.";
constexpr const char* map_rows = "A matrix of n rows, each the callable at the elements of x.";

}  // namespace gravelox::docs
