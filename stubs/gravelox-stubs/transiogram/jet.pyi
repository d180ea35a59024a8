from __future__ import annotations
import gravelox.algebra
import gravelox.jet.ast
import typing
__all__: list[str] = ['Transiogram', 'TransiogramPtr']
class Transiogram:
    """

    A table of transition functions between classes of two locations.

    Entry (class_u, class_v) is the probability of `class_v` at the location v, seen from `class_u` at
    the location u. It may depend on more than the distance: on the direction, so that one class tends
    to follow another upwards, and on the places themselves. Nobody checks that a row adds up to 1.

    Entries are Python callables, or expressions of two variables. The table of `transiogram` takes
    those of `ast`, the one of `transiogram.jet` those of `jet.ast`. A call stores the locations in the
    variables, so that tables with a node in common belong to one thread at a time; Python callables
    take turns by themselves. `TransiogramPtr` is another name of the class.

    References
    ----------
    Carle, S. F. and Fogg, G. E. (1996). Transition probability-based indicator geostatistics.
    Mathematical Geology 28, 453-476.

    Li, W. (2006). Transiogram: a spatial relationship measure for categorical data. International
    Journal of Geographical Information Science 20, 693-699.

    Examples
    --------
    >>> import gravelox
    >>> from gravelox.ast import Variable, exp, sqrt
    >>> u, v = Variable("u", [0.0] * 3), Variable("v", [0.0] * 3)
    >>> lag = (u - v) / [200.0, 200.0, 10.0]  # in ranges
    >>> loss = 1.0 - exp(-3.0 * sqrt(lag * lag))  # of two vectors, * is the dot product
    >>> shares = 0.25, 0.75
    >>> table = gravelox.transiogram.Transiogram(
    ...     u, v, [[float(j == k) + (p - float(j == k)) * loss for k, p in enumerate(shares)]
    ...            for j in range(2)])
    >>> table(0, 0, [0, 0, 0], [0, 0, 0]), round(table(0, 1, [0, 0, 0], [0, 0, 10]), 4)
    (1.0, 0.7127)
    >>> print(table(1, [0, 0, 0], [0, 0, 1000]), table([0, 0, 0], [0, 0, 10]).shape())
    [0.25, 0.75] (2, 2)
    >>> u.vec.tolist()  # a call leaves the locations there
    [0.0, 0.0, 0.0]
    >>> same = gravelox.transiogram.Transiogram([[lambda u, v: 1 / (1 + (u - v).norm())]])
    >>> same(0, 0, [0, 0, 0], [0, 0, 1])
    0.5
    """
    @typing.overload
    def __call__(self, class_u: int, class_v: int, u: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray, v: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.Jet:
        """
        One entry of the table at two locations.

        Parameters
        ----------
        class_u : int
            Class at u, from 0 on.
        class_v : int
            Class at v, from 0 on.
        u : vector of length 3
            Coordinates of the one location.
        v : vector of length 3
            Those of the other.

        Returns
        -------
        float or Jet
            The probability of `class_v`, as the entry gives it.

        Raises
        ------
        IndexError
            "invalid vector subscript" for a class that the table has not.
        """
    @typing.overload
    def __call__(self, class_u: int, u: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray, v: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.JetVector:
        """
        One row of the table at two locations.

        Parameters
        ----------
        class_u : int
            Class at u, from 0 on.
        u : vector of length 3
            Coordinates of the one location.
        v : vector of length 3
            Those of the other.

        Returns
        -------
        vector of length n
            An entry for each class at v; none for an empty row.

        Raises
        ------
        IndexError
            "invalid vector subscript" for a class that the table has not.
        """
    @typing.overload
    def __call__(self, u: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray, v: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.JetMatrix:
        """
        The whole table at two locations.

        Parameters
        ----------
        u : vector of length 3
            Coordinates of the one location.
        v : vector of length 3
            Those of the other.

        Returns
        -------
        matrix of shape (n, n)
            Classes at u in rows, classes at v in columns.

        Raises
        ------
        ValueError
            If rows differ in length.
        """
    @typing.overload
    def __init__(self, kernel_matrix: list[list[typing.Any]]) -> None:
        """
        Make a table of Python callables.

        Parameters
        ----------
        kernel_matrix : list of list of callable
            One row for each class at u, one entry for each class at v: f(u, v) takes two vectors of three
            coordinates and gives a number.

        Raises
        ------
        TypeError
            If an entry cannot be called.
        """
    @typing.overload
    def __init__(self, class_u: gravelox.jet.ast.Variable, class_v: gravelox.jet.ast.Variable, kernels: list[list[gravelox.jet.ast.Expression]]) -> None:
        """
        Make a table of expressions of two locations.

        Parameters
        ----------
        class_u : Variable
            The variable that takes u, as a vector of three coordinates.
        class_v : Variable
            The variable that takes v.
        kernels : list of list of Expression
            One row for each class at u, one scalar expression for each class at v.

        Raises
        ------
        RuntimeError
            "Invalid argument!!!" where a variable or an expression is None, and "Invalid variable types"
            for an expression that gives vectors.
        """
TransiogramPtr = Transiogram
