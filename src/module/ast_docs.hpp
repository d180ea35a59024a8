// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-modules of expressions.

namespace gravelox::docs {

constexpr const char* expression = R"(
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
)";

constexpr const char* expression_type =
    "0 value, 1 variable, 2 transformation, 3 expression, 4 kernel, 5 function.";
constexpr const char* expression_kind_name =
    R"("scalar" or "vector": what the node gave last, or will give.)";
constexpr const char* expression_type_name = "The name of the type.";
constexpr const char* expression_vec = "The last vector result; one zero before there is any.";
constexpr const char* expression_scalar = "The last scalar result; zero before there is any.";

constexpr const char* expression_print = R"(
Print type, kind and value on the standard output of the process.

After a scalar the line ends. After each element of a vector stands ", ", and the line stays open.
)";

constexpr const char* expression_eval = R"(
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
)";

constexpr const char* expression_eval_scalar = R"(
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
)";

constexpr const char* expression_eval_vector = R"(
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
)";

constexpr const char* expression_eval_vector_of = R"(
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
)";

constexpr const char* expression_with_node = R"(
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
)";

constexpr const char* expression_with_scalar = R"(
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
)";

constexpr const char* expression_with_vector = R"(
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
)";

constexpr const char* expression_function = R"(
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
)";

constexpr const char* expression_pow = R"(
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
)";

constexpr const char* variable = R"(
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
)";

constexpr const char* variable_init_scalar = R"(
Make a scalar variable.

Parameters
----------
name : str
    Its name, by which a fit tells bounds and results.
scalar : float or Jet
    Its value, the start of a fit.
)";

constexpr const char* variable_init_vector = R"(
Make a vector variable.

Parameters
----------
name : str
    Its name, by which a fit tells bounds and results.
vector : vector
    Its value, the start of a fit.
)";

constexpr const char* variable_init_expression = R"(
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
)";

constexpr const char* variable_name = "The name, by which a fit tells bounds and results.";
constexpr const char* variable_type_name = "\"variable\".";

constexpr const char* value = R"(
A constant, a scalar or a vector. Numbers and vectors in arithmetic become constants by themselves.

Examples
--------
>>> from gravelox.ast import Value
>>> (Value(2.0) / 4.0).eval(), Value([1.0, 2.0]).eval_vector().tolist()
(0.5, [1.0, 2.0])
>>> Value(2.0).eval_vector()
Traceback (most recent call last):
RuntimeError: invalid eval call!!!
)";

constexpr const char* value_init_scalar = R"(
Make a scalar constant.

Parameters
----------
scalar : float or Jet
    Its value.
)";

constexpr const char* value_init_vector = R"(
Make a vector constant.

Parameters
----------
vector : vector
    Its value.
)";

constexpr const char* transformation = R"(
What operators, functions and compositions make: a node that works its result out from operands.

Examples
--------
>>> from gravelox.ast import Variable, sin
>>> node = sin(Variable("x", 0.0)) + 1.0
>>> type(node).__name__, node.type, node.object_type_name, node.eval()
('Transformation', 2, 'transformation', 1.0)
)";

constexpr const char* kernel = R"(
A compiled function over vectors as a node, to be kept. It cannot be evaluated as one.

Examples
--------
>>> from gravelox.ast import Function, Kernel, Variable
>>> x = Variable("x", [0.0, 0.0])
>>> node = Kernel(Function.Scalar([x], x * x))
>>> node.object_type_name
'kernel'
)";

constexpr const char* kernel_init = R"(
Make the node of a function.

Parameters
----------
function : Function
    The function.
)";

constexpr const char* function = R"(
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
)";

constexpr const char* function_make = R"(
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
)";

constexpr const char* function_scalar_function = R"(
Compile to a function of numbers to a number.

Returns
-------
ScalarFunction
    Takes one number for each argument. A vector argument takes it in place of its element 0, a
    vector body counts by its norm.
)";

constexpr const char* function_transformation = R"(
Compile to a function of vectors to a vector.

Returns
-------
TransFunction
    Takes one vector for each argument. A scalar argument takes its element 0, a scalar body gives a
    vector of one element.
)";

constexpr const char* function_kernel = R"(
Compile to a function of vectors to a number.

Returns
-------
KernelFunction
    Takes one vector for each argument. A scalar argument takes its element 0, a vector body counts
    by its norm.
)";

constexpr const char* function_call = R"(
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
)";

constexpr const char* function_call_expression = R"(
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
)";

constexpr const char* function_call_vector = R"(
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
)";

constexpr const char* scalar_function = R"(
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
)";

constexpr const char* scalar_function_call = R"(
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
)";

constexpr const char* trans_function = R"(
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
)";

constexpr const char* trans_function_call = R"(
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
)";

constexpr const char* kernel_function = R"(
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
)";

constexpr const char* kernel_function_call = R"(
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
)";

constexpr const char* scalar_cost = R"(
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
)";

constexpr const char* scalar_cost_init = R"(
Make the cost of a function.

Parameters
----------
cost : Function
    The function.
)";

constexpr const char* scalar_cost_call = R"(
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
)";

}  // namespace gravelox::docs
