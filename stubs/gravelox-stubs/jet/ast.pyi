from __future__ import annotations
import gravelox.algebra
import typing
__all__: list[str] = ['Expression', 'ExpressionPtr', 'Function', 'FunctionPtr', 'Kernel', 'KernelFunction', 'KernelPtr', 'ScalarCost', 'ScalarFunction', 'TransFunction', 'Transformation', 'TransformationPtr', 'Value', 'ValuePtr', 'Variable', 'VariablePtr', 'abs', 'acos', 'asin', 'atan', 'cos', 'cosh', 'exp', 'exponential', 'gaussian', 'ln', 'log', 'log10', 'log2', 'pow', 'pow2', 'pow3', 'sigmoid', 'sin', 'sinh', 'spherical', 'sqrt', 'tan', 'tanh']
class Expression:
    """

    A node of an expression tree, a scalar or a vector: what arithmetic and functions build.

    The nodes of `ast` are over floats, those of `jet.ast` over jets, which a fit needs. Operands have
    to be of one kind, as they are when the node is built: a number is a scalar, a list or a vector is a
    vector. `+`, `-` and `/` of two vectors go element by element; **`*` of two vectors is their dot
    product**, a scalar.

    A node keeps its operands alive. It keeps the result of its last evaluation too, so that trees with
    a node in common belong to one thread at a time. Trees may be of any depth; one of more than
    4,194,304 steps is refused when it is evaluated. `ExpressionPtr`, and so on for the other classes,
    is another name of the class.

    Examples
    --------
    >>> from gravelox.ast import Expression, Value, Variable, exp, sqrt
    >>> x, y = Variable("x", 2.0), Variable("y", [3.0, 4.0])
    >>> length = sqrt(y * y)
    >>> (x + length / 10 - exp(0.0 * x)).eval(), (y + [1.0, 1.0]).eval_vector().tolist()
    (1.5, [4.0, 5.0])
    >>> x + y
    Traceback (most recent call last):
    RuntimeError: Invalid variable types
    >>> isinstance(length, Expression), length.scalar
    (True, 5.0)
    """
    __array_priority__: typing.ClassVar[int] = 1000
    @typing.overload
    def __add__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __add__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __add__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __mul__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __mul__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __mul__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __radd__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __radd__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __radd__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __rmul__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __rmul__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __rmul__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __rsub__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __rsub__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __rsub__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __rtruediv__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __rtruediv__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __rtruediv__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __sub__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __sub__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __sub__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def __truediv__(self, x: Expression) -> Transformation:
        """
        Combine with another expression of the same kind.

        Parameters
        ----------
        x : Expression
            The other operand.

        Returns
        -------
        Transformation
            A new node. Of two vectors `*` gives the dot product, a scalar; the others go element by
            element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" for operands of different kinds; "Invalid lhs!!!" or "Invalid rhs!!!"
            for one that is None or a kernel.
        """
    @typing.overload
    def __truediv__(self, x: gravelox.algebra.Jet | float) -> Transformation:
        """
        Combine a scalar expression with a number.

        Parameters
        ----------
        x : float or Jet
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a vector.
        """
    @typing.overload
    def __truediv__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        Combine a vector expression with a vector.

        Parameters
        ----------
        x : vector
            The other operand, taken as a constant.

        Returns
        -------
        Transformation
            A new node. `*` gives the dot product, a scalar; the others go element by element.

        Raises
        ------
        RuntimeError
            "Invalid variable types" if the expression is a scalar.
        """
    @typing.overload
    def eval(self) -> gravelox.algebra.Jet:
        """
        The scalar result of the tree, with its variables as they are.

        Returns
        -------
        float or Jet
            The result.

        Raises
        ------
        RuntimeError
            For a node that gives vectors: "invalid eval call!!!" of a constant, "bad_function_call" of an
            operation. For a kernel: "invalid call!!!".
        ValueError
            If vectors of the tree differ in length.
        """
    @typing.overload
    def eval(self, scalar: gravelox.algebra.Jet | float) -> gravelox.algebra.Jet:
        """
        The scalar result with an input, which a variable stores; other nodes have no use for it.

        Parameters
        ----------
        scalar : float or Jet
            The input. A function hands it on to a body that is a variable.

        Returns
        -------
        float or Jet
            The result.

        Raises
        ------
        RuntimeError
            As without an input.
        """
    @typing.overload
    def eval_vector(self) -> gravelox.algebra.JetVector:
        """
        The vector result of the tree, with its variables as they are.

        Returns
        -------
        vector
            The result.

        Raises
        ------
        RuntimeError
            For a node that gives scalars: "invalid eval call!!!" of a constant, "bad_function_call" of an
            operation. For a kernel: "invalid call!!!".
        ValueError
            If vectors of the tree differ in length.
        """
    @typing.overload
    def eval_vector(self, vector: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.JetVector:
        """
        The vector result with an input, which a variable stores; other nodes have no use for it.

        Parameters
        ----------
        vector : vector
            The input. A function hands it on to a body that is a variable.

        Returns
        -------
        vector
            The result.

        Raises
        ------
        RuntimeError
            As without an input.
        """
    def print(self) -> None:
        """
        Print type, kind and value on the standard output of the process.

        After a scalar the line ends. After each element of a vector stands ", ", and the line stays open.
        """
    @property
    def object_type_name(self) -> str:
        """
        The name of the type.
        """
    @property
    def scalar(self) -> gravelox.algebra.Jet:
        """
        The last scalar result; zero before there is any.
        """
    @property
    def type(self) -> int:
        """
        0 value, 1 variable, 2 transformation, 3 expression, 4 kernel, 5 function.
        """
    @property
    def variable_type_name(self) -> str:
        """
        "scalar" or "vector": what the node gave last, or will give.
        """
    @property
    def vec(self) -> gravelox.algebra.JetVector:
        """
        The last vector result; one zero before there is any.
        """
class Function(Expression):
    """

    A body with arguments: what is compiled, fitted, and put into other expressions.

    As a node it gives what its body gives with the arguments' own values. Called with expressions it
    gives a node with those in the arguments' places, which bind the arguments when it is evaluated.

    Examples
    --------
    >>> from gravelox.ast import Function, Variable, sqrt
    >>> x, y = Variable("x", 1.0), Variable("y", 2.0)
    >>> hypot = Function.Scalar([x, y], sqrt(x * x + y * y))
    >>> compiled = hypot.ScalarFunction()
    >>> compiled([3.0, 4.0]), x.scalar  # a call leaves its inputs in the variables
    (5.0, 3.0)
    >>> t = Variable("t", 2.0)
    >>> hypot([3.0 * t, 4.0 * t]).eval(), x.scalar  # so does a composition
    (10.0, 6.0)
    >>> p, q = Variable("p", [0.0]), Variable("q", [0.0])
    >>> lag = Function.Vector([p, q], p - q)
    >>> lag.Transformation()([[3.0, 4.0], [0.0, 1.0]]).tolist(), lag.Kernel()([[3.0, 4.0], [0.0, 0.0]])
    ([3.0, 3.0], 5.0)
    """
    @staticmethod
    def Scalar(args: list[Variable], l: Expression) -> Function:
        """
        Make a function from its arguments and its body; `Scalar` and `Vector` are the same.

        Parameters
        ----------
        args : list of Variable
            The arguments, in order. Other variables of the body keep their own values.
        l : Expression
            The body, whose kind is the function's.

        Returns
        -------
        Function
            The function, which keeps both alive.

        Raises
        ------
        RuntimeError
            "Invalid argument!!!" where one of them is None, or for a kernel as body.
        """
    @staticmethod
    def Vector(args: list[Variable], l: Expression) -> Function:
        """
        Make a function from its arguments and its body; `Scalar` and `Vector` are the same.

        Parameters
        ----------
        args : list of Variable
            The arguments, in order. Other variables of the body keep their own values.
        l : Expression
            The body, whose kind is the function's.

        Returns
        -------
        Function
            The function, which keeps both alive.

        Raises
        ------
        RuntimeError
            "Invalid argument!!!" where one of them is None, or for a kernel as body.
        """
    def Kernel(self) -> KernelFunction:
        """
        Compile to a function of vectors to a number.

        Returns
        -------
        KernelFunction
            Takes one vector for each argument. A scalar argument takes its element 0, a vector body counts
            by its norm.
        """
    def ScalarFunction(self) -> ScalarFunction:
        """
        Compile to a function of numbers to a number.

        Returns
        -------
        ScalarFunction
            Takes one number for each argument. A vector argument takes it in place of its element 0, a
            vector body counts by its norm.
        """
    def Transformation(self) -> TransFunction:
        """
        Compile to a function of vectors to a vector.

        Returns
        -------
        TransFunction
            Takes one vector for each argument. A scalar argument takes its element 0, a scalar body gives a
            vector of one element.
        """
    @typing.overload
    def __call__(self, args: list[Expression]) -> Transformation:
        """
        The body with expressions in the places of its arguments, in order.

        Parameters
        ----------
        args : list of Expression
            One for each of the first arguments; the others keep their own values. A scalar argument takes
            element 0 of a vector, a vector one takes a scalar as its element 0. All are worked out before
            any is bound, and when the evaluation ends the arguments hold what they were bound to last.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid argument!!!" where one is None or a kernel.
        ValueError
            For more expressions than arguments.
        """
    @typing.overload
    def __call__(self, x: Expression) -> Transformation:
        """
        The body with an expression in the place of its first argument.

        Parameters
        ----------
        x : Expression
            The expression.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        RuntimeError
            "Invalid argument!!!" for None or a kernel.
        ValueError
            If the function has no arguments.
        """
    @typing.overload
    def __call__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> Transformation:
        """
        The body with numbers in the places of its arguments.

        Parameters
        ----------
        x : vector
            The value of the one argument; of several, their values in order, one element each.

        Returns
        -------
        Transformation
            A new node.

        Raises
        ------
        ValueError
            For more elements than arguments.
        """
class Kernel(Expression):
    """

    A compiled function over vectors as a node, to be kept. It cannot be evaluated as one.

    Examples
    --------
    >>> from gravelox.ast import Function, Kernel, Variable
    >>> x = Variable("x", [0.0, 0.0])
    >>> node = Kernel(Function.Scalar([x], x * x))
    >>> node.object_type_name
    'kernel'
    """
    def __init__(self, function: Function) -> None:
        """
        Make the node of a function.

        Parameters
        ----------
        function : Function
            The function.
        """
class KernelFunction:
    """

    A compiled function of vectors to a number, from `Function.Kernel`.

    A call stores its inputs in the variables and evaluates the tree in place: functions with a node in
    common belong to one thread at a time.

    Examples
    --------
    >>> from gravelox.ast import Function, Variable, exp
    >>> u, v = Variable("u", [0.0]), Variable("v", [0.0])
    >>> product = Function.Scalar([u, v], u * v).Kernel()
    >>> product([[1.0, 2.0], [3.0, 4.0]])
    11.0
    """
    def __call__(self, args: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.Jet:
        """
        The number for values of the arguments.

        Parameters
        ----------
        args : list of vector
            One vector for each of the first arguments; the others keep their last values.

        Returns
        -------
        float or Jet
            The body's number, or the norm of its vector.

        Raises
        ------
        ValueError
            For more vectors than arguments.
        IndexError
            For an empty vector where a scalar is wanted.
        """
class ScalarCost:
    """

    A function at a list of numbers.

    A call stores the numbers in the arguments, as that of a `ScalarFunction` does. So costs with a
    variable in common belong to one thread at a time; a fit by `ceres.solve` stores nothing.

    Examples
    --------
    >>> from gravelox.ast import Function, ScalarCost, Variable
    >>> x = Variable("x", 7.0)
    >>> cost = ScalarCost(Function.Scalar([x], x - 1.0))
    >>> cost([3.0]), x.scalar
    (2.0, 3.0)
    """
    def __call__(self, x: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.Jet:
        """
        The cost at values of the arguments.

        Parameters
        ----------
        x : vector
            One number for each of the first arguments; the others keep the values that they have.

        Returns
        -------
        float or Jet
            The body's number, or the norm of its vector.

        Raises
        ------
        ValueError
            For more numbers than arguments.
        """
    def __init__(self, cost: Function) -> None:
        """
        Make the cost of a function.

        Parameters
        ----------
        cost : Function
            The function.
        """
class ScalarFunction:
    """

    A compiled function of numbers to a number, from `Function.ScalarFunction`.

    A call stores its inputs in the variables and evaluates the tree in place: functions with a node in
    common belong to one thread at a time.

    Examples
    --------
    >>> from gravelox.jet.ast import Function, Variable
    >>> from gravelox.algebra import Jet
    >>> x = Variable("x", 0.0)
    >>> square = Function.Scalar([x], x * x).ScalarFunction()
    >>> result = square([Jet(3.0, [1, 0, 0, 0, 0, 0, 0])])
    >>> result.value, result.partials.tolist()[0]
    (9.0, 6.0)
    """
    def __call__(self, args: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.Jet:
        """
        The number for values of the arguments.

        Parameters
        ----------
        args : vector
            One number for each of the first arguments; the others keep their last values.

        Returns
        -------
        float or Jet
            The body's number, or the norm of its vector.

        Raises
        ------
        ValueError
            For more numbers than arguments.
        """
class TransFunction:
    """

    A compiled function of vectors to a vector, from `Function.Transformation`.

    A call stores its inputs in the variables and evaluates the tree in place: functions with a node in
    common belong to one thread at a time.

    Examples
    --------
    >>> from gravelox.ast import Function, Variable
    >>> x = Variable("x", [0.0])
    >>> halve = Function.Vector([x], x / [2.0, 2.0]).Transformation()
    >>> halve([[1.0, 3.0]]).tolist()
    [0.5, 1.5]
    """
    def __call__(self, args: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> gravelox.algebra.JetVector:
        """
        The vector for values of the arguments.

        Parameters
        ----------
        args : list of vector
            One vector for each of the first arguments; the others keep their last values.

        Returns
        -------
        vector
            The body's vector, or its number alone.

        Raises
        ------
        ValueError
            For more vectors than arguments.
        IndexError
            For an empty vector where a scalar is wanted.
        """
class Transformation(Expression):
    """

    What operators, functions and compositions make: a node that works its result out from operands.

    Examples
    --------
    >>> from gravelox.ast import Variable, sin
    >>> node = sin(Variable("x", 0.0)) + 1.0
    >>> type(node).__name__, node.type, node.object_type_name, node.eval()
    ('Transformation', 2, 'transformation', 1.0)
    """
class Value(Expression):
    """

    A constant, a scalar or a vector. Numbers and vectors in arithmetic become constants by themselves.

    Examples
    --------
    >>> from gravelox.ast import Value
    >>> (Value(2.0) / 4.0).eval(), Value([1.0, 2.0]).eval_vector().tolist()
    (0.5, [1.0, 2.0])
    >>> Value(2.0).eval_vector()
    Traceback (most recent call last):
    RuntimeError: invalid eval call!!!
    """
    @typing.overload
    def __init__(self, scalar: gravelox.algebra.Jet | float) -> None:
        """
        Make a scalar constant.

        Parameters
        ----------
        scalar : float or Jet
            Its value.
        """
    @typing.overload
    def __init__(self, vector: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> None:
        """
        Make a vector constant.

        Parameters
        ----------
        vector : vector
            Its value.
        """
class Variable(Expression):
    """

    A variable: the one way in which values enter a tree.

    Whatever is stored in it is seen by all trees that contain it. Evaluations with inputs store them
    here, and so do compiled functions and the calls of a transiogram; fits and compositions do not.

    Examples
    --------
    >>> from gravelox.ast import Variable
    >>> x = Variable("x", 2.0)
    >>> double = x + x
    >>> x.eval(5.0), double.eval(), x.scalar
    (5.0, 10.0, 5.0)
    >>> x.eval_vector([1.0, 2.0]).tolist(), x.variable_type_name, x.name
    ([1.0, 2.0], 'vector', 'x')
    """
    @typing.overload
    def __init__(self, name: str, scalar: gravelox.algebra.Jet | float) -> None:
        """
        Make a scalar variable.

        Parameters
        ----------
        name : str
            Its name, by which a fit tells bounds and results.
        scalar : float or Jet
            Its value, the start of a fit.
        """
    @typing.overload
    def __init__(self, name: str, vector: gravelox.algebra.JetVector | typing.Sequence[typing.Any] | numpy.ndarray) -> None:
        """
        Make a vector variable.

        Parameters
        ----------
        name : str
            Its name, by which a fit tells bounds and results.
        vector : vector
            Its value, the start of a fit.
        """
    @typing.overload
    def __init__(self, name: str, expression: Expression) -> None:
        """
        Make a variable with the value that an expression has now, in its kind.

        Parameters
        ----------
        name : str
            Its name, by which a fit tells bounds and results.
        expression : Expression
            It is evaluated once and not kept.

        Raises
        ------
        RuntimeError
            As its evaluation.
        """
    @property
    def name(self) -> str:
        """
        The name, by which a fit tells bounds and results.
        """
    @property
    def type_name(self) -> str:
        """
        "variable".
        """
def abs(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def acos(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def asin(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def atan(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def cos(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def cosh(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def exp(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def exponential(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def gaussian(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def ln(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def log(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def log10(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def log2(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def pow(x: Expression, p: float) -> Transformation:
    """
    An expression to a fixed power, of a vector element by element.

    Parameters
    ----------
    x : Expression
        The base.
    p : float
        The exponent; 0 gives 1 without derivatives, of 0 too.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def pow2(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def pow3(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def sigmoid(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def sin(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def sinh(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def spherical(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def sqrt(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def tan(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
def tanh(x: Expression) -> Transformation:
    """
    The function of this name of an expression, of a vector element by element.

    They are those of `algebra`. `spherical` is 1 - 1.5 x + 0.5 x^3 up to 1 and 0 beyond; `gaussian` is
    exp(-3 x) and `exponential` exp(-3 x^2), **the other way round** than the kernels of these names.

    Parameters
    ----------
    x : Expression
        The argument.

    Returns
    -------
    Transformation
        A new node of the same kind.

    Raises
    ------
    RuntimeError
        "Invalid argument!!!" for None or a kernel.
    """
ExpressionPtr = Expression
FunctionPtr = Function
KernelPtr = Kernel
TransformationPtr = Transformation
ValuePtr = Value
VariablePtr = Variable
