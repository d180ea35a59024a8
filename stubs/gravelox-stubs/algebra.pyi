from __future__ import annotations
import numpy
import numpy.typing
import typing
__all__: list[str] = ['Jet', 'JetMatrix', 'JetVector', 'Real', 'RealMatrix', 'RealVector', 'abs', 'acos', 'asin', 'atan', 'cos', 'cosh', 'exp', 'exponential', 'gaussian', 'ln', 'log', 'log10', 'log2', 'map', 'matrix', 'pow', 'pow2', 'pow3', 'sigmoid', 'sin', 'sinh', 'spherical', 'sqrt', 'tan', 'tanh', 'value', 'vector']
class Jet:
    """

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
    """
    __array_priority__: typing.ClassVar[int] = 1000
    def __add__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    @typing.overload
    def __init__(self, value: float) -> None:
        """
        Make a number, over jets one without derivatives.

        Parameters
        ----------
        value : float
            The value.
        """
    @typing.overload
    def __init__(self, value: float, partials: numpy.typing.ArrayLike) -> None:
        """
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
        """
    def __mul__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __radd__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __rmul__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __rsub__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __rtruediv__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __str__(self) -> str:
        """
        The values as text, of six digits, without derivatives.

        Returns
        -------
        str
            The number; a vector in brackets, a matrix as a list of rows.
        """
    def __sub__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __truediv__(self, x: Jet | float) -> Jet:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    @property
    def partials(self) -> numpy.ndarray:
        """
        The derivatives as an array of floats, seven in its last axis for each element.
        """
    @property
    def value(self) -> float:
        """
        The value as a float.
        """
class JetMatrix:
    """

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
    """
    __array_priority__: typing.ClassVar[int] = 1000
    def SVD(self) -> tuple:
        """
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
        """
    def __add__(self, x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    def __array__(self, dtype: typing.Any = None, copy: typing.Any = None) -> numpy.ndarray:
        """
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
        """
    @typing.overload
    def __getitem__(self, id: int) -> JetVector:
        """
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
        """
    @typing.overload
    def __getitem__(self, id: tuple[int, int]) -> Jet:
        """
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
        """
    @typing.overload
    def __getitem__(self, id: slice) -> JetMatrix:
        """
        The rows of a slice, as a new matrix.

        Parameters
        ----------
        id : slice
            As of lists.

        Returns
        -------
        matrix
            A copy of the rows.
        """
    def __init__(self, matrix: list[list[Jet]]) -> None:
        """
        Make a matrix from its rows.

        Parameters
        ----------
        matrix : list of list of float or Jet
            Rows of equal length.

        Raises
        ------
        ValueError
            If the lengths differ.
        """
    def __iter__(self) -> typing.Iterator:
        """
        Iterate over the elements, of a matrix over its rows.

        Returns
        -------
        iterator
            Over a copy.
        """
    def __len__(self) -> int:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    def __list__(self) -> numpy.ndarray:
        """
        The values as an array, without derivatives.

        Returns
        -------
        numpy.ndarray of shape (n,) or (n, m)
            The values.
        """
    @typing.overload
    def __mul__(self, x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    @typing.overload
    def __mul__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __mul__(self, x: Jet | float) -> JetMatrix:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        matrix of shape (n, m)
            The results.
        """
    def __radd__(self, x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: Jet | float) -> JetMatrix:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        matrix of shape (n, m)
            The results.
        """
    def __rsub__(self, x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    @typing.overload
    def __setitem__(self, id: int, value: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> None:
        """
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
        """
    @typing.overload
    def __setitem__(self, id: tuple[int, int], value: Jet | float) -> None:
        """
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
        """
    def __str__(self) -> str:
        """
        The values as text, of six digits, without derivatives.

        Returns
        -------
        str
            The number; a vector in brackets, a matrix as a list of rows.
        """
    def __sub__(self, x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    def __truediv__(self, x: Jet | float) -> JetMatrix:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        matrix of shape (n, m)
            The results.
        """
    def determinant(self) -> Jet:
        """
        The determinant, by LU with partial pivoting.

        Returns
        -------
        float or Jet
            The determinant; 1 for an empty matrix.

        Raises
        ------
        ValueError
            If the matrix is not square.
        """
    def inverse(self) -> JetMatrix:
        """
        The inverse, by LU with partial pivoting.

        Returns
        -------
        matrix of shape (n, n)
            The inverse; of a singular matrix what the decomposition gives, which is not finite or far off.

        Raises
        ------
        ValueError
            If the matrix is not square.
        """
    @typing.overload
    def mean(self) -> Jet:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def mean(self, axis: int) -> JetVector:
        """
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
        """
    def ncols(self) -> int:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    @typing.overload
    def norm(self) -> Jet:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def norm(self, axis: int) -> JetVector:
        """
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
        """
    def nrows(self) -> int:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    def orthogonalize(self) -> JetMatrix:
        """
        The rows made orthogonal by Gram-Schmidt, from the first on.

        Returns
        -------
        matrix of shape (n, m)
            Orthogonal rows of any length. One that depends on those before it is zero up to rounding.
        """
    def orthonormalize(self) -> JetMatrix:
        """
        The rows made orthonormal by Gram-Schmidt, from the first on.

        Returns
        -------
        matrix of shape (n, m)
            Orthogonal rows of norm 1. One that depends on those before it is noise or NaN.
        """
    def shape(self) -> tuple:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    @typing.overload
    def slice(self, start: int, stop: int) -> JetMatrix:
        """
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
        """
    @typing.overload
    def slice(self, row_start: int, row_stop: int, column_start: int, column_stop: int) -> JetMatrix:
        """
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
        """
    @typing.overload
    def solve(self, b: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def solve(self, b: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
        """
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
        """
    @typing.overload
    def stddev(self) -> Jet:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def stddev(self, axis: int) -> JetVector:
        """
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
        """
    @typing.overload
    def sum(self) -> Jet:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def sum(self, axis: int) -> JetVector:
        """
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
        """
    def tolist(self) -> list[list[float]]:
        """
        The values as a list, of a matrix as a list of rows, without derivatives.

        Returns
        -------
        list
            Floats, or lists of them.
        """
    def transpose(self) -> JetMatrix:
        """
        The transposed matrix.

        Returns
        -------
        matrix of shape (m, n)
            Rows as columns.
        """
    @typing.overload
    def var(self) -> Jet:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def var(self, axis: int) -> JetVector:
        """
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
        """
    @property
    def partials(self) -> numpy.ndarray:
        """
        The derivatives as an array of floats, seven in its last axis for each element.
        """
class JetVector:
    """

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
    """
    __array_priority__: typing.ClassVar[int] = 1000
    def __add__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    def __array__(self, dtype: typing.Any = None, copy: typing.Any = None) -> numpy.ndarray:
        """
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
        """
    @typing.overload
    def __getitem__(self, index: int) -> Jet:
        """
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
        """
    @typing.overload
    def __getitem__(self, index: slice) -> JetVector:
        """
        The elements of a slice, as a new vector.

        Parameters
        ----------
        index : slice
            As of lists.

        Returns
        -------
        vector
            A copy of the elements.
        """
    def __init__(self, vector: list[Jet]) -> None:
        """
        Make a vector from numbers.

        Parameters
        ----------
        vector : list of float or Jet
            Its elements.
        """
    def __iter__(self) -> typing.Iterator:
        """
        Iterate over the elements, of a matrix over its rows.

        Returns
        -------
        iterator
            Over a copy.
        """
    def __len__(self) -> int:
        """
        The number of elements.

        Returns
        -------
        int
            The number.
        """
    def __list__(self) -> numpy.ndarray:
        """
        The values as an array, without derivatives.

        Returns
        -------
        numpy.ndarray of shape (n,) or (n, m)
            The values.
        """
    @typing.overload
    def __mul__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __mul__(self, x: Jet | float) -> JetVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    def __radd__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: Jet | float) -> JetVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    def __rsub__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __rtruediv__(self, x: Jet | float) -> JetVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    @typing.overload
    def __rtruediv__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __setitem__(self, index: int, value: Jet | float) -> None:
        """
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
        """
    @typing.overload
    def __setitem__(self, index: slice, value: Jet | float) -> None:
        """
        Write a number to all elements of a slice.

        Parameters
        ----------
        index : slice
            As of lists.
        value : float or Jet
            The new value of each.
        """
    @typing.overload
    def __setitem__(self, index: slice, value: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> None:
        """
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
        """
    def __str__(self) -> str:
        """
        The values as text, of six digits, without derivatives.

        Returns
        -------
        str
            The number; a vector in brackets, a matrix as a list of rows.
        """
    def __sub__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    @typing.overload
    def __truediv__(self, x: Jet | float) -> JetVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    @typing.overload
    def __truediv__(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
        """
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
        """
    def dot(self, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Jet:
        """
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
        """
    def mean(self) -> Jet:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    def norm(self) -> Jet:
        """
        The Euclidean norm: the square root of the sum of squares.

        Returns
        -------
        float or Jet
            The norm; of zeros it is 0 without derivatives.
        """
    def normalize(self) -> JetVector:
        """
        The vector divided by its norm.

        Returns
        -------
        vector of length n
            A vector of norm 1; not finite where the norm is 0.
        """
    def size(self) -> int:
        """
        The number of elements.

        Returns
        -------
        int
            The number.
        """
    def slice(self, start: int, stop: int) -> JetVector:
        """
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
        """
    def stddev(self) -> Jet:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    def sum(self) -> Jet:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    def tolist(self) -> list[float]:
        """
        The values as a list, of a matrix as a list of rows, without derivatives.

        Returns
        -------
        list
            Floats, or lists of them.
        """
    def var(self) -> Jet:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    @property
    def partials(self) -> numpy.ndarray:
        """
        The derivatives as an array of floats, seven in its last axis for each element.
        """
class Real:
    """

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
    """
    __array_priority__: typing.ClassVar[int] = 1000
    def __add__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __float__(self) -> float:
        """
        The value as a float.

        Returns
        -------
        float
            The value.
        """
    def __init__(self, value: float) -> None:
        """
        Make a number, over jets one without derivatives.

        Parameters
        ----------
        value : float
            The value.
        """
    def __mul__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __radd__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __rmul__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __rsub__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __rtruediv__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __str__(self) -> str:
        """
        The values as text, of six digits, without derivatives.

        Returns
        -------
        str
            The number; a vector in brackets, a matrix as a list of rows.
        """
    def __sub__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    def __truediv__(self, x: float) -> float:
        """
        Combine with another number.

        Parameters
        ----------
        x : float or Jet
            The other operand; a `Real` counts as a float.

        Returns
        -------
        float or Jet
            The result; a division by 0 gives infinity or NaN.
        """
    @property
    def value(self) -> float:
        """
        The value as a float.
        """
class RealMatrix:
    """

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
    """
    __array_priority__: typing.ClassVar[int] = 1000
    def SVD(self) -> tuple:
        """
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
        """
    def __add__(self, x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    def __array__(self, dtype: typing.Any = None, copy: typing.Any = None) -> numpy.ndarray:
        """
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
        """
    @typing.overload
    def __getitem__(self, id: int) -> RealVector:
        """
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
        """
    @typing.overload
    def __getitem__(self, id: tuple[int, int]) -> float:
        """
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
        """
    @typing.overload
    def __getitem__(self, id: slice) -> RealMatrix:
        """
        The rows of a slice, as a new matrix.

        Parameters
        ----------
        id : slice
            As of lists.

        Returns
        -------
        matrix
            A copy of the rows.
        """
    def __init__(self, matrix: list[list[float]]) -> None:
        """
        Make a matrix from its rows.

        Parameters
        ----------
        matrix : list of list of float or Jet
            Rows of equal length.

        Raises
        ------
        ValueError
            If the lengths differ.
        """
    def __iter__(self) -> typing.Iterator:
        """
        Iterate over the elements, of a matrix over its rows.

        Returns
        -------
        iterator
            Over a copy.
        """
    def __len__(self) -> int:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    def __list__(self) -> numpy.ndarray:
        """
        The values as an array, without derivatives.

        Returns
        -------
        numpy.ndarray of shape (n,) or (n, m)
            The values.
        """
    @typing.overload
    def __mul__(self, x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    @typing.overload
    def __mul__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __mul__(self, x: float) -> RealMatrix:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        matrix of shape (n, m)
            The results.
        """
    def __radd__(self, x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: float) -> RealMatrix:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        matrix of shape (n, m)
            The results.
        """
    def __rsub__(self, x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    @typing.overload
    def __setitem__(self, id: int, value: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> None:
        """
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
        """
    @typing.overload
    def __setitem__(self, id: tuple[int, int], value: float) -> None:
        """
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
        """
    def __str__(self) -> str:
        """
        The values as text, of six digits, without derivatives.

        Returns
        -------
        str
            The number; a vector in brackets, a matrix as a list of rows.
        """
    def __sub__(self, x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    def __truediv__(self, x: float) -> RealMatrix:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        matrix of shape (n, m)
            The results.
        """
    def determinant(self) -> float:
        """
        The determinant, by LU with partial pivoting.

        Returns
        -------
        float or Jet
            The determinant; 1 for an empty matrix.

        Raises
        ------
        ValueError
            If the matrix is not square.
        """
    def inverse(self) -> RealMatrix:
        """
        The inverse, by LU with partial pivoting.

        Returns
        -------
        matrix of shape (n, n)
            The inverse; of a singular matrix what the decomposition gives, which is not finite or far off.

        Raises
        ------
        ValueError
            If the matrix is not square.
        """
    @typing.overload
    def mean(self) -> float:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def mean(self, axis: int) -> RealVector:
        """
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
        """
    def ncols(self) -> int:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    @typing.overload
    def norm(self) -> float:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def norm(self, axis: int) -> RealVector:
        """
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
        """
    def nrows(self) -> int:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    def orthogonalize(self) -> RealMatrix:
        """
        The rows made orthogonal by Gram-Schmidt, from the first on.

        Returns
        -------
        matrix of shape (n, m)
            Orthogonal rows of any length. One that depends on those before it is zero up to rounding.
        """
    def orthonormalize(self) -> RealMatrix:
        """
        The rows made orthonormal by Gram-Schmidt, from the first on.

        Returns
        -------
        matrix of shape (n, m)
            Orthogonal rows of norm 1. One that depends on those before it is noise or NaN.
        """
    def shape(self) -> tuple:
        """
        The numbers of rows (`nrows`, `len`) and columns (`ncols`), or both (`shape`).

        Returns
        -------
        int or tuple of int
            Columns are counted in the first row; a matrix without rows has none.
        """
    @typing.overload
    def slice(self, start: int, stop: int) -> RealMatrix:
        """
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
        """
    @typing.overload
    def slice(self, row_start: int, row_stop: int, column_start: int, column_stop: int) -> RealMatrix:
        """
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
        """
    @typing.overload
    def solve(self, b: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def solve(self, b: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
        """
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
        """
    @typing.overload
    def stddev(self) -> float:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def stddev(self, axis: int) -> RealVector:
        """
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
        """
    @typing.overload
    def sum(self) -> float:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def sum(self, axis: int) -> RealVector:
        """
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
        """
    def tolist(self) -> list[list[float]]:
        """
        The values as a list, of a matrix as a list of rows, without derivatives.

        Returns
        -------
        list
            Floats, or lists of them.
        """
    def transpose(self) -> RealMatrix:
        """
        The transposed matrix.

        Returns
        -------
        matrix of shape (m, n)
            Rows as columns.
        """
    @typing.overload
    def var(self) -> float:
        """
        The statistic of this name over all elements.

        The norm is the root of the sum of squares. The variance is the population's, divided by the number
        of elements, and the standard deviation its root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum and the norm are 0 and the others are NaN.
        """
    @typing.overload
    def var(self, axis: int) -> RealVector:
        """
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
        """
class RealVector:
    """

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
    """
    __array_priority__: typing.ClassVar[int] = 1000
    def __add__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    def __array__(self, dtype: typing.Any = None, copy: typing.Any = None) -> numpy.ndarray:
        """
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
        """
    @typing.overload
    def __getitem__(self, index: int) -> float:
        """
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
        """
    @typing.overload
    def __getitem__(self, index: slice) -> RealVector:
        """
        The elements of a slice, as a new vector.

        Parameters
        ----------
        index : slice
            As of lists.

        Returns
        -------
        vector
            A copy of the elements.
        """
    def __init__(self, vector: numpy.typing.ArrayLike) -> None:
        """
        Make a vector from numbers.

        Parameters
        ----------
        vector : list of float or Jet
            Its elements.
        """
    def __iter__(self) -> typing.Iterator:
        """
        Iterate over the elements, of a matrix over its rows.

        Returns
        -------
        iterator
            Over a copy.
        """
    def __len__(self) -> int:
        """
        The number of elements.

        Returns
        -------
        int
            The number.
        """
    def __list__(self) -> numpy.ndarray:
        """
        The values as an array, without derivatives.

        Returns
        -------
        numpy.ndarray of shape (n,) or (n, m)
            The values.
        """
    @typing.overload
    def __mul__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __mul__(self, x: float) -> RealVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    def __radd__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __rmul__(self, x: float) -> RealVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    def __rsub__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __rtruediv__(self, x: float) -> RealVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    @typing.overload
    def __rtruediv__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __setitem__(self, index: int, value: float) -> None:
        """
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
        """
    @typing.overload
    def __setitem__(self, index: slice, value: float) -> None:
        """
        Write a number to all elements of a slice.

        Parameters
        ----------
        index : slice
            As of lists.
        value : float or Jet
            The new value of each.
        """
    @typing.overload
    def __setitem__(self, index: slice, value: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> None:
        """
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
        """
    def __str__(self) -> str:
        """
        The values as text, of six digits, without derivatives.

        Returns
        -------
        str
            The number; a vector in brackets, a matrix as a list of rows.
        """
    def __sub__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    @typing.overload
    def __truediv__(self, x: float) -> RealVector:
        """
        Combine each element with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand.

        Returns
        -------
        vector of length n
            The results.
        """
    @typing.overload
    def __truediv__(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
        """
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
        """
    def dot(self, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> float:
        """
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
        """
    def mean(self) -> float:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    def norm(self) -> float:
        """
        The Euclidean norm: the square root of the sum of squares.

        Returns
        -------
        float or Jet
            The norm; of zeros it is 0 without derivatives.
        """
    def normalize(self) -> RealVector:
        """
        The vector divided by its norm.

        Returns
        -------
        vector of length n
            A vector of norm 1; not finite where the norm is 0.
        """
    def size(self) -> int:
        """
        The number of elements.

        Returns
        -------
        int
            The number.
        """
    def slice(self, start: int, stop: int) -> RealVector:
        """
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
        """
    def stddev(self) -> float:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    def sum(self) -> float:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
    def tolist(self) -> list[float]:
        """
        The values as a list, of a matrix as a list of rows, without derivatives.

        Returns
        -------
        list
            Floats, or lists of them.
        """
    def var(self) -> float:
        """
        The statistic of this name over all elements.

        The variance is the population's, divided by the number of elements, and the standard deviation its
        root.

        Returns
        -------
        float or Jet
            The statistic; of no elements the sum is 0 and the others are NaN.
        """
@typing.overload
def abs(x: float) -> float:
    """
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
    """
@typing.overload
def abs(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def abs(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def abs(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def abs(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def abs(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def acos(x: float) -> float:
    """
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
    """
@typing.overload
def acos(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def acos(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def acos(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def acos(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def acos(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def asin(x: float) -> float:
    """
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
    """
@typing.overload
def asin(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def asin(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def asin(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def asin(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def asin(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def atan(x: float) -> float:
    """
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
    """
@typing.overload
def atan(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def atan(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def atan(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def atan(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def atan(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def cos(x: float) -> float:
    """
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
    """
@typing.overload
def cos(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def cos(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def cos(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def cos(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def cos(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def cosh(x: float) -> float:
    """
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
    """
@typing.overload
def cosh(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def cosh(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def cosh(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def cosh(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def cosh(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def exp(x: float) -> float:
    """
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
    """
@typing.overload
def exp(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def exp(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def exp(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def exp(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def exp(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def exponential(x: float) -> float:
    """
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
    """
@typing.overload
def exponential(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def exponential(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def exponential(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def exponential(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def exponential(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def gaussian(x: float) -> float:
    """
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
    """
@typing.overload
def gaussian(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def gaussian(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def gaussian(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def gaussian(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def gaussian(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def ln(x: float) -> float:
    """
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
    """
@typing.overload
def ln(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def ln(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def ln(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def ln(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def ln(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def log(x: float) -> float:
    """
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
    """
@typing.overload
def log(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def log(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def log(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def log(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def log(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def log10(x: float) -> float:
    """
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
    """
@typing.overload
def log10(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def log10(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def log10(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def log10(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def log10(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def log2(x: float) -> float:
    """
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
    """
@typing.overload
def log2(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def log2(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def log2(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def log2(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def log2(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def map(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray, f: typing.Any) -> RealVector:
    """
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
    """
@typing.overload
def map(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray, f: typing.Any) -> RealMatrix:
    """
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
    """
@typing.overload
def map(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray, n: int, f: typing.Any) -> RealMatrix:
    """
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
    """
@typing.overload
def map(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray, f: typing.Any) -> JetVector:
    """
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
    """
@typing.overload
def map(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray, f: typing.Any) -> JetMatrix:
    """
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
    """
@typing.overload
def map(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray, n: int, f: typing.Any) -> JetMatrix:
    """
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
    """
@typing.overload
def matrix(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    A copy of a matrix.

    Parameters
    ----------
    x : matrix or list of rows
        The matrix.

    Returns
    -------
    matrix
        The copy.
    """
@typing.overload
def matrix(n: int, x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
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
    """
@typing.overload
def matrix(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    A copy of a matrix.

    Parameters
    ----------
    x : matrix or list of rows
        The matrix.

    Returns
    -------
    matrix
        The copy.
    """
@typing.overload
def matrix(n: int, x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
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
    """
@typing.overload
def pow(matrix: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray, p: float) -> RealMatrix:
    """
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
    """
@typing.overload
def pow(n: int, vector: RealVector | typing.Sequence[typing.Any] | numpy.ndarray, p: float) -> RealMatrix:
    """
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
    """
@typing.overload
def pow(vector: RealVector | typing.Sequence[typing.Any] | numpy.ndarray, p: float) -> RealVector:
    """
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
    """
@typing.overload
def pow(matrix: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray, p: float) -> JetMatrix:
    """
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
    """
@typing.overload
def pow(n: int, vector: JetVector | typing.Sequence[typing.Any] | numpy.ndarray, p: float) -> JetMatrix:
    """
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
    """
@typing.overload
def pow(vector: JetVector | typing.Sequence[typing.Any] | numpy.ndarray, p: float) -> JetVector:
    """
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
    """
@typing.overload
def pow2(x: float) -> float:
    """
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
    """
@typing.overload
def pow2(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def pow2(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def pow2(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def pow2(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def pow2(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def pow3(x: float) -> float:
    """
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
    """
@typing.overload
def pow3(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def pow3(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def pow3(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def pow3(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def pow3(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sigmoid(x: float) -> float:
    """
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
    """
@typing.overload
def sigmoid(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sigmoid(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sigmoid(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def sigmoid(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sigmoid(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sin(x: float) -> float:
    """
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
    """
@typing.overload
def sin(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sin(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sin(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def sin(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sin(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sinh(x: float) -> float:
    """
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
    """
@typing.overload
def sinh(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sinh(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sinh(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def sinh(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sinh(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def spherical(x: float) -> float:
    """
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
    """
@typing.overload
def spherical(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def spherical(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def spherical(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def spherical(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def spherical(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sqrt(x: float) -> float:
    """
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
    """
@typing.overload
def sqrt(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sqrt(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def sqrt(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def sqrt(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def sqrt(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def tan(x: float) -> float:
    """
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
    """
@typing.overload
def tan(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def tan(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def tan(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def tan(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def tan(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def tanh(x: float) -> float:
    """
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
    """
@typing.overload
def tanh(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def tanh(x: RealMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> RealMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def tanh(x: Jet | float) -> Jet:
    """
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
    """
@typing.overload
def tanh(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    The same of each element of a vector.

    Parameters
    ----------
    x : vector of length n
        The elements.

    Returns
    -------
    vector of length n
        The values.
    """
@typing.overload
def tanh(x: JetMatrix | typing.Sequence[typing.Any] | numpy.ndarray) -> JetMatrix:
    """
    The same of each element of a matrix.

    Parameters
    ----------
    x : matrix of shape (n, m)
        The elements.

    Returns
    -------
    matrix of shape (n, m)
        The values.
    """
@typing.overload
def value(x: float) -> Real:
    """
    A number as an object of the language.

    Parameters
    ----------
    x : float
        The number.

    Returns
    -------
    Real
        The object. `Jet(x)` makes a jet.
    """
@typing.overload
def value(x: float) -> Jet:
    """
    A number as an object of the language.

    Parameters
    ----------
    x : float
        The number.

    Returns
    -------
    Real
        The object. `Jet(x)` makes a jet.
    """
@typing.overload
def vector(x: RealVector | typing.Sequence[typing.Any] | numpy.ndarray) -> RealVector:
    """
    A copy of a vector.

    Parameters
    ----------
    x : vector or list of numbers
        The vector.

    Returns
    -------
    vector
        The copy.
    """
@typing.overload
def vector(x: JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> JetVector:
    """
    A copy of a vector.

    Parameters
    ----------
    x : vector or list of numbers
        The vector.

    Returns
    -------
    vector
        The copy.
    """
