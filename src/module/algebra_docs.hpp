// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-module of numbers, vectors and matrices.

namespace gravelox::docs {

constexpr const char* scalar_class = R"(
A number of the language: a `Real` is a value, a `Jet` a value with seven derivatives.

Arithmetic and functions carry the derivatives along by the chain rule. Over doubles functions take
and give Python floats, and take a `Real` for one. Over jets they give `Jet`s, and take floats as
jets without derivatives.

Examples
--------
>>> from gravelox.algebra import Jet, Real, exp
>>> 2.0 * Real(3.0) + 1
7.0
>>> x, y = Jet(2.0, [1, 0, 0, 0, 0, 0, 0]), Jet(5.0, [0, 1, 0, 0, 0, 0, 0])
>>> z = x * x * y
>>> z.value, z.partials[:2].tolist()  # 2 x y and x^2
(20.0, [20.0, 4.0])
>>> exp(0 * x).value
1.0
)";

constexpr const char* scalar_init = R"(
Make a number, over jets one without derivatives.

Parameters
----------
value : float
    The value.
)";

constexpr const char* scalar_init_partials = R"(
Make a number with its derivatives.

Parameters
----------
value : float
    The value.
partials : list of float
    Its derivatives by seven parameters.

Raises
------
ValueError
    If `partials` has not seven elements.
)";

constexpr const char* scalar_value = "The value as a float.";

constexpr const char* partials = R"(
The derivatives as an array of floats, seven in its last axis for each element.
)";

constexpr const char* scalar_arithmetic = R"(
Combine with another number.

Parameters
----------
x : float or Jet
    The other operand; a `Real` counts as a float.

Returns
-------
float or Jet
    The result; a division by 0 gives infinity or NaN.
)";

constexpr const char* scalar_float = R"(
The value as a float.

Returns
-------
float
    The value.
)";

constexpr const char* text = R"(
The values as text, of six digits, without derivatives.

Returns
-------
str
    The number; a vector in brackets, a matrix as a list of rows.
)";

constexpr const char* vector_class = R"(
A vector of numbers: `RealVector` of floats, `JetVector` of jets.

Lists and arrays do wherever a vector is asked for. Indices and slices are Python's; an index out of
range is an `IndexError`, "invalid vector subscript". Of two vectors, `*` goes element by element
here; of two vector expressions it is the dot product.

Examples
--------
>>> import numpy as np
>>> from gravelox.algebra import Jet, JetVector, RealVector, sin
>>> x = RealVector([3.0, 4.0])
>>> x.norm(), (x * x).tolist(), x.dot([1, 1]), (12 / x - [1, 1]).tolist()
(5.0, [9.0, 16.0], 7.0, [3.0, 2.0])
>>> x[-1] = 0.0
>>> np.asarray(x), x[:1].tolist()
(array([3., 0.]), [3.0])
>>> jets = JetVector([Jet(0.0, [1, 0, 0, 0, 0, 0, 0]), 2.0])
>>> sin(jets).partials.shape, sin(jets).partials[0, :2].tolist()  # an array of values drops them
((2, 7), [1.0, 0.0])
)";

constexpr const char* vector_init = R"(
Make a vector from numbers.

Parameters
----------
vector : list of float or Jet
    Its elements.
)";

constexpr const char* vector_by_vector = R"(
Combine element by element with a vector of equal length.

Parameters
----------
x : vector of length n
    The other operand; a list or an array will do.

Returns
-------
vector of length n
    The results.

Raises
------
ValueError
    If the lengths differ.
)";

constexpr const char* vector_by_scalar = R"(
Combine each element with a number.

Parameters
----------
x : float or Jet
    The other operand.

Returns
-------
vector of length n
    The results.
)";

constexpr const char* vector_norm = R"(
The Euclidean norm: the square root of the sum of squares.

Returns
-------
float or Jet
    The norm; of zeros it is 0 without derivatives.
)";

constexpr const char* vector_normalize = R"(
The vector divided by its norm.

Returns
-------
vector of length n
    A vector of norm 1; not finite where the norm is 0.
)";

constexpr const char* vector_dot = R"(
The dot product with another vector.

Parameters
----------
x : vector of length n
    The other vector.

Returns
-------
float or Jet
    The sum of products.

Raises
------
ValueError
    If the lengths differ.
)";

constexpr const char* vector_statistic = R"(
The statistic of this name over all elements.

The variance is the population's, divided by the number of elements, and the standard deviation its
root.

Returns
-------
float or Jet
    The statistic; of no elements the sum is 0 and the others are NaN.
)";

constexpr const char* vector_size = R"(
The number of elements.

Returns
-------
int
    The number.
)";

constexpr const char* vector_get = R"(
An element of the vector.

Parameters
----------
index : int
    Its position; a negative one counts from the end.

Returns
-------
float or Jet
    The element.

Raises
------
IndexError
    "invalid vector subscript" where there is none.
)";

constexpr const char* vector_set = R"(
Write an element of the vector.

Parameters
----------
index : int
    Its position; a negative one counts from the end.
value : float or Jet
    The new value.

Raises
------
IndexError
    "invalid vector subscript" where there is none.
)";

constexpr const char* vector_get_slice = R"(
The elements of a slice, as a new vector.

Parameters
----------
index : slice
    As of lists.

Returns
-------
vector
    A copy of the elements.
)";

constexpr const char* vector_set_slice = R"(
Write a number to all elements of a slice.

Parameters
----------
index : slice
    As of lists.
value : float or Jet
    The new value of each.
)";

constexpr const char* vector_set_slice_vector = R"(
Write a vector to the elements of a slice.

Parameters
----------
index : slice
    As of lists.
value : vector
    The new values, as many as the slice has elements.

Raises
------
ValueError
    For another number of values.
)";

constexpr const char* vector_slice = R"(
The elements from `start` up to `stop`, as a new vector.

Parameters
----------
start : int
    The first position; a negative one counts from the end.
stop : int
    The position after the last one, likewise.

Returns
-------
vector
    A copy of the elements.
)";

constexpr const char* tolist = R"(
The values as a list, of a matrix as a list of rows, without derivatives.

Returns
-------
list
    Floats, or lists of them.
)";

constexpr const char* array = R"(
The values as an array, without derivatives.

Parameters
----------
dtype : dtype
    The type of the elements; float without one.
copy : bool
    Without effect: the array is always a copy.

Returns
-------
numpy.ndarray of shape (n,) or (n, m)
    The values.
)";

constexpr const char* list_array = R"(
The values as an array, without derivatives.

Returns
-------
numpy.ndarray of shape (n,) or (n, m)
    The values.
)";

constexpr const char* iter = R"(
Iterate over the elements, of a matrix over its rows.

Returns
-------
iterator
    Over a copy.
)";

constexpr const char* matrix_class = R"(
A matrix of numbers by rows: `RealMatrix` of floats, `JetMatrix` of jets.

Lists of rows do wherever a matrix is asked for. m[i] is a row and m[i, j] an element, for
reading and writing. Of two matrices, and of a matrix and a vector, `*` is the matrix product. Over
jets all linear algebra carries the derivatives along.

Examples
--------
>>> import numpy as np
>>> from gravelox.algebra import RealMatrix
>>> m = RealMatrix([[2, 1], [1, 3]])
>>> print(m.solve([3.0, 4.0]), m * [1, 1], m * m, round(m.determinant(), 12))
[1, 1] [3, 4] [[5, 5], [5, 10]] 5.0
>>> m.shape(), m.sum(), m.sum(0).tolist(), m[-1].tolist(), m[0, 1]
((2, 2), 7.0, [3.0, 4.0], [1.0, 3.0], 1.0)
>>> u, s, v = map(np.asarray, m.SVD())
>>> np.allclose(u * s @ v.T, m)
True
)";

constexpr const char* matrix_init = R"(
Make a matrix from its rows.

Parameters
----------
matrix : list of list of float or Jet
    Rows of equal length.

Raises
------
ValueError
    If the lengths differ.
)";

constexpr const char* matrix_by_matrix = R"(
Combine element by element with a matrix of equal shape.

Parameters
----------
x : matrix of shape (n, m)
    The other operand.

Returns
-------
matrix of shape (n, m)
    The results.

Raises
------
ValueError
    If the shapes differ.
)";

constexpr const char* matrix_product = R"(
The matrix product with a matrix or a vector.

Parameters
----------
x : matrix or vector
    The other factor. A vector stands as a column on the right and as a row on the left.

Returns
-------
matrix or vector
    The product, of the kind of `x`.

Raises
------
ValueError
    If the sizes do not fit.
)";

constexpr const char* matrix_by_scalar = R"(
Combine each element with a number.

Parameters
----------
x : float or Jet
    The other operand.

Returns
-------
matrix of shape (n, m)
    The results.
)";

constexpr const char* matrix_inverse = R"(
The inverse, by LU with partial pivoting.

Returns
-------
matrix of shape (n, n)
    The inverse; of a singular matrix what the decomposition gives, which is not finite or far off.

Raises
------
ValueError
    If the matrix is not square.
)";

constexpr const char* matrix_transpose = R"(
The transposed matrix.

Returns
-------
matrix of shape (m, n)
    Rows as columns.
)";

constexpr const char* matrix_determinant = R"(
The determinant, by LU with partial pivoting.

Returns
-------
float or Jet
    The determinant; 1 for an empty matrix.

Raises
------
ValueError
    If the matrix is not square.
)";

constexpr const char* matrix_statistic = R"(
The statistic of this name over all elements.

The norm is the root of the sum of squares. The variance is the population's, divided by the number
of elements, and the standard deviation its root.

Returns
-------
float or Jet
    The statistic; of no elements the sum and the norm are 0 and the others are NaN.
)";

constexpr const char* matrix_axis_statistic = R"(
The statistic of this name of each column or row.

Parameters
----------
axis : int
    As in numpy: 0 for one number a column, 1 for one a row.

Returns
-------
vector
    The statistics.

Raises
------
ValueError
    For another axis.
)";

constexpr const char* matrix_orthogonalize = R"(
The rows made orthogonal by Gram-Schmidt, from the first on.

Returns
-------
matrix of shape (n, m)
    Orthogonal rows of any length. One that depends on those before it is zero up to rounding.
)";

constexpr const char* matrix_orthonormalize = R"(
The rows made orthonormal by Gram-Schmidt, from the first on.

Returns
-------
matrix of shape (n, m)
    Orthogonal rows of norm 1. One that depends on those before it is noise or NaN.
)";

constexpr const char* matrix_svd = R"(
The thin singular value decomposition A = U diag(S) V^T.

Over jets, singular vectors of equal singular values turn among themselves without a rule: their
derivatives leave those turns out.

Returns
-------
U : matrix of shape (n, k)
    Left singular vectors in columns; k is the lesser of n and m.
S : vector of length k
    Singular values, descending.
V : matrix of shape (m, k)
    Right singular vectors in columns.
)";

constexpr const char* matrix_solve = R"(
The x of A x = b, by LU with partial pivoting.

Parameters
----------
b : vector of length n or matrix of shape (n, k)
    The right side, or several in columns.

Returns
-------
vector of length n or matrix of shape (n, k)
    The solution, of the kind of `b`; of a singular matrix what the decomposition gives.

Raises
------
ValueError
    If the matrix is not square, or `b` has another length.
)";

constexpr const char* matrix_sizes = R"(
The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

Returns
-------
int or tuple of int
    Columns are counted in the first row; a matrix without rows has none.
)";

constexpr const char* matrix_get_row = R"(
A row of the matrix.

Parameters
----------
id : int
    Its position; a negative one counts from the end.

Returns
-------
vector of length m
    A copy of it: m[i][j] = x writes to the copy, m[i, j] = x to the matrix.

Raises
------
IndexError
    "invalid vector subscript" where there is none.
)";

constexpr const char* matrix_get_rows = R"(
The rows of a slice, as a new matrix.

Parameters
----------
id : slice
    As of lists.

Returns
-------
matrix
    A copy of the rows.
)";

constexpr const char* matrix_set_row = R"(
Write a row of the matrix.

Parameters
----------
id : int
    Its position; a negative one counts from the end.
value : vector of length m
    The new row.

Raises
------
IndexError
    "invalid vector subscript" where there is none.
ValueError
    If `value` has another length than a row.
)";

constexpr const char* matrix_get = R"(
An element of the matrix.

Parameters
----------
id : tuple of int
    Row and column; negative ones count from the end.

Returns
-------
float or Jet
    The element.

Raises
------
IndexError
    "invalid vector subscript" where there is none.
)";

constexpr const char* matrix_set = R"(
Write an element of the matrix.

Parameters
----------
id : tuple of int
    Row and column; negative ones count from the end.
value : float or Jet
    The new value.

Raises
------
IndexError
    "invalid vector subscript" where there is none.
)";

constexpr const char* matrix_slice = R"(
The rows from `start` up to `stop`, as a new matrix.

Parameters
----------
start : int
    The first row; a negative one counts from the end.
stop : int
    The row after the last one, likewise.

Returns
-------
matrix
    A copy of the rows.
)";

constexpr const char* matrix_slice_both = R"(
The part between limits of rows and of columns, as a new matrix.

Parameters
----------
row_start : int
    The first row; negative positions count from the end.
row_stop : int
    The row after the last one.
column_start : int
    The first column.
column_stop : int
    The column after the last one.

Returns
-------
matrix
    A copy of the part.
)";

constexpr const char* elementary_scalar = R"(
The function of this name, of a number.

`log` and `ln` are the natural logarithm, `log10` and `log2` those to their bases; `pow2` is x^2,
`pow3` x^3, `sigmoid` 1 / (1 + exp(-x)). Three are shapes over a scaled lag: `spherical` is
1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is exp(-3 x) and `exponential` exp(-3 x^2),
**the other way round** than the kernels of these names.

Parameters
----------
x : float or Jet
    The number.

Returns
-------
float or Jet
    The value; NaN or infinite outside the function's domain.
)";

constexpr const char* elementary_vector = R"(
The same of each element of a vector.

Parameters
----------
x : vector of length n
    The elements.

Returns
-------
vector of length n
    The values.
)";

constexpr const char* elementary_matrix = R"(
The same of each element of a matrix.

Parameters
----------
x : matrix of shape (n, m)
    The elements.

Returns
-------
matrix of shape (n, m)
    The values.
)";

constexpr const char* make_matrix = R"(
A copy of a matrix.

Parameters
----------
x : matrix or list of rows
    The matrix.

Returns
-------
matrix
    The copy.
)";

constexpr const char* repeat_matrix = R"(
A matrix of equal rows.

Parameters
----------
n : int
    The number of rows.
x : vector of length m
    Each row.

Returns
-------
matrix of shape (n, m)
    The matrix.

Raises
------
ValueError
    If `n` is below 0, or the matrix does not fit into memory.
)";

constexpr const char* make_vector = R"(
A copy of a vector.

Parameters
----------
x : vector or list of numbers
    The vector.

Returns
-------
vector
    The copy.
)";

constexpr const char* make_value = R"(
A number as an object of the language.

Parameters
----------
x : float
    The number.

Returns
-------
Real
    The object. `Jet(x)` makes a jet.
)";

constexpr const char* pow_matrix = R"(
Each element of a matrix to a power.

Parameters
----------
matrix : matrix of shape (n, m)
    The elements.
p : float
    The exponent; 0 gives 1 without derivatives, of 0 too.

Returns
-------
matrix of shape (n, m)
    The powers.
)";

constexpr const char* pow_rows = R"(
A matrix of equal rows, each a vector to a power.

Parameters
----------
n : int
    The number of rows.
vector : vector of length m
    The elements.
p : float
    The exponent; 0 gives 1 without derivatives, of 0 too.

Returns
-------
matrix of shape (n, m)
    The powers, the same in each row.

Raises
------
ValueError
    If `n` is below 0, or the matrix does not fit into memory.
)";

constexpr const char* pow_vector = R"(
Each element of a vector to a power.

Parameters
----------
vector : vector of length n
    The elements.
p : float
    The exponent; 0 gives 1 without derivatives, of 0 too.

Returns
-------
vector of length n
    The powers.
)";

constexpr const char* map_vector = R"(
A Python callable at each element of a vector.

Parameters
----------
x : vector of length n
    The elements.
f : callable
    Takes a number and gives one. It is called at once and not kept; its exceptions pass through.

Returns
-------
vector of length n
    What it gives.
)";

constexpr const char* map_matrix = R"(
A Python callable at each element of a matrix.

Parameters
----------
x : matrix of shape (n, m)
    The elements.
f : callable
    Takes a number and gives one. It is called at once and not kept; its exceptions pass through.

Returns
-------
matrix of shape (n, m)
    What it gives.
)";

constexpr const char* map_rows = R"(
A matrix of equal rows, each a Python callable at the elements of a vector.

Parameters
----------
x : vector of length m
    The elements.
n : int
    The number of rows.
f : callable
    Takes a number and gives one. It is called once for each element; its exceptions pass through.

Returns
-------
matrix of shape (n, m)
    What it gives, the same in each row.

Raises
------
ValueError
    If `n` is below 0, or the matrix does not fit into memory.
)";

}  // namespace gravelox::docs
