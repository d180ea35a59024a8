"""Containers against numpy, derivatives against central differences, the rules of expressions."""

import gc
import re

import gravelox
import numpy as np
import pytest
from gravelox import algebra, ast
from numpy import linalg
from numpy.testing import assert_allclose, assert_array_equal
from oracles.language import FUNCTIONS, PLAIN, grow, slopes

jets = gravelox.jet.ast
BOTH = pytest.mark.parametrize("m", [ast, jets], ids=["double", "jet"])
KINDS = pytest.mark.parametrize("kind", ["Real", "Jet"])
POINT = np.array([0.61, 0.24, 0.35, 0.83, 0.42, 0.77, 0.56])
FORMULAS = """a + b; [[1, 2], [3, 4]] - a; 2.0 * a; s * a; a / s; v + w; v - w; v * w; s * v; v * 3
    [3, 1] - v; array([3, 1]) - v; float64(2) * v; v / s; v / w; 1.0 / v; [1, 2] / v; s + 1; 2 - s
    s * s; s / 3; float64(2) / s; f(s); value(1.5) * s -> 1.5 * s; abs(s - 2.0); spherical(s + 0.5)
    pow(v, 1.5); pow(c, -2.0); pow(3, v, 0.0) -> tile(v**0.0, (3, 1)); map(v, f) -> f(v); v.dot(w)
    map(c, f) -> f(c); map(v, 3, f) -> tile(f(v), (3, 1)); matrix(c) -> c; vector(v) -> v; v.sum()
    matrix(3, v) -> tile(v, (3, 1)); v.norm() -> norm(v); v.normalize() -> v / norm(v); v.mean()
    v.var(); v.stddev() -> v.std(); c.sum(); c.sum(0); c.mean(); c.mean(1); c.var(); c.var(0)
    c.stddev() -> c.std(); c.stddev(1) -> c.std(1); c.norm() -> norm(c); a * b -> a @ b
    c.norm(0) -> norm(c, axis=0); c.norm(1) -> norm(c, axis=1); c * v -> c @ v; v * a -> v @ a
    a.inverse() -> inv(a); a.determinant() -> det(a); a.solve(v) -> solve(a, v); v[-1]
    a.solve(b) -> solve(a, b); a.orthogonalize() -> (qr(a.T)[0] * diag(qr(a.T)[1])).T; v[1:9]; c[1]
    a.orthonormalize() -> (qr(a.T)[0] * sign(diag(qr(a.T)[1]))).T; c.SVD()[1] -> svd(c, False)[1]
    pow(c.SVD()[0], 2.0) -> svd(c, False)[0] ** 2; pow(c.SVD()[2], 2.0) -> svd(c, False)[2].T ** 2
    d.determinant() -> det(d); v[::-1]; c[-1, 0]; c[1:]; c[::-2]; c.transpose()
    v.slice(0, -1) -> v[0:-1]; c.slice(1, 3) -> c[1:3]; c.slice(0, 2, 1, 2) -> c[0:2, 1:2]"""


def texts(table):
    return [text.strip().split(" -> ") for text in re.split("[;\n]", table)]


FORMULAS = texts(FORMULAS) + [[f"{name}({x})"] for name in FUNCTIONS for x in "sva"]


def operands(p, kind=None):
    """What formulas stand for, at seven numbers."""
    types = [getattr(algebra, kind + end) for end in ("", "Vector", "Matrix")] if kind else []
    scalar, vector, matrix = types or (float, np.array, np.array)
    found = {"a": matrix([p[:2], p[2:4]]), "b": matrix([[p[4], p[0]], [p[6], p[5]]])}
    found |= {"c": matrix([p[:2], p[2:4], p[4:6]]), "v": vector(p[4:6]), "w": vector([p[6], p[1]])}
    found["d"] = matrix([[p[0] - 0.61, p[4]], [p[1] - 0.24, p[5]]])  # singular
    found |= {"s": p[6] if kind == "Jet" else scalar(p[6]), "f": lambda x: x * x + 2.0 * x}
    numbers = {"array": np.array, "float64": np.float64, **vars(algebra)}
    return (numbers if kind else vars(np) | vars(linalg) | PLAIN) | found


def seeded(p):
    return [algebra.Jet(x, partials) for x, partials in zip(p, np.eye(7))]


def values(x):
    return getattr(x, "value", x) if np.ndim(x) == 0 else np.asarray(x)


@pytest.mark.parametrize("formula", FORMULAS, ids=lambda formula: formula[0])
def test_formulas_and_their_derivatives(formula):
    expected = eval(formula[-1], operands(POINT))
    real = eval(formula[0], operands(POINT, "Real"))
    jet = eval(formula[0], operands(seeded(POINT), "Jet"))
    assert type(real) in (float, algebra.RealVector, algebra.RealMatrix)
    for found in (real, jet):
        assert_allclose(values(found), expected, rtol=1e-12, atol=1e-14, strict=np.ndim(found) > 0)
    wanted = slopes(lambda p: np.array(eval(formula[-1], operands(p))), POINT)
    assert_allclose(jet.partials, wanted, rtol=1e-6, atol=1e-8, strict=True)


@KINDS
def test_containers(kind):
    own, plain = operands(POINT, kind), operands(POINT)
    for text in ("v[-1] = 5; v[::2] = 1.5; c[0] = v", "v[:] = w; c[-1, 1] = 7; v[1:] = [4]"):
        exec(text, own)
        exec(text, plain)
        v, c = own["v"], own["c"]
        assert_array_equal(np.vstack([v, c]), np.vstack([plain["v"], plain["c"]]))
    assert (len(v), v.size(), len(c), c.nrows(), c.ncols(), c.shape()) == (2, 2, 3, 3, 2, (3, 2))
    assert v.tolist() == [values(x) for x in v] == v.__list__().tolist() == [0.56, 4.0]
    assert c.tolist() == [row.tolist() for row in c] == c.__list__().tolist()
    assert (str(v), str(own["value"](1.5)), np.asarray(c, "f4").dtype) == ("[0.56, 4]", "1.5", "f4")
    assert [algebra.spherical(x) for x in (1.0, 2.0)] == [0.0, 0.0]
    u, s, t = map(np.array, c.SVD())
    assert_allclose(u * s @ t.T, plain["c"], rtol=1e-12)


def language(m):
    """Names of expressions, with variables of each kind."""
    a, b, u = m.Variable("a", 1.0), m.Variable("b", 2.0), m.Variable("u", [0.0] * 2)
    ratio = m.Function.Scalar([a, b], a / (b * b + 1.5))
    length = m.Function.Scalar([u], m.sqrt(u * u + 1.0))
    found = {"dot": lambda p, q: p * q, "ratio": lambda *x: ratio([*x]), "length": length}
    found |= {name: m.Variable(name, value) for name, value in zip("xyz", (1.0, 2.0, 3.0))}
    found |= {name: m.Variable(name, [3.0, 4.0]) for name in "pq"}
    return vars(m) | found | {"F": ratio, "K": m.Kernel(ratio)}


def test_random_trees_and_their_derivatives(rng):
    plain = {"ratio": lambda a, b: a / (b * b + 1.5), "length": lambda u: np.sqrt(u @ u + 1.0)}
    for kind in ["scalar", "vector"] * 100:
        text, point = grow(rng, 3, kind), rng.uniform(-1, 1, 7)

        def expected(p, text=text):
            named = dict(zip("xyz", p)) | {"p": p[3:5], "q": p[5:], "dot": np.dot}
            return eval(text, PLAIN | plain | named)

        for m, p in ((ast, point), (jets, seeded(point))):
            names = language(m)
            made = m.Function.Scalar([names[x] for x in "xyzpq"], eval(text, names))
            call = made.Kernel() if kind == "scalar" else made.Transformation()
            found = call([[p[0]], [p[1]], [p[2]], p[3:5], p[5:]])
            assert_allclose(values(found), expected(point), rtol=1e-9, atol=1e-12, err_msg=text)
        wanted = slopes(expected, point)
        assert_allclose(found.partials, wanted, rtol=1e-5, atol=1e-6, err_msg=text)


MISSES = """v[2]; v[-3]; c[3]; c[-4]; c[0, 2]; c[-4, 0]; v[2] = 1.0; c[3] = v; c[3, 0] = 1.0
    F.Kernel()([[]])"""
SIZES = """v + [1.0]; v / [1.0]; v.dot([1.0]); a + c; a * c; a * [1.0]; c.inverse(); c.solve(v)
    c.determinant(); a.solve([1.0]); v[:] = [1.0]; c[0] = [1.0]; c.sum(2); matrix(-1, v)
    F.ScalarFunction()([1.0] * 3); F.Kernel()([[1.0]] * 3); F([x] * 3)"""
MESSAGES = """x + p -> Invalid variable types; x + [1.0] -> Invalid variable types
    p - 1.0 -> Invalid variable types; 1.0 / p -> Invalid variable types
    p * q + p -> Invalid variable types; x * array([1.0, 2.0]) -> Invalid variable types
    Value(2.0).eval_vector() -> invalid eval call!!!; Value([2.0]).eval() -> invalid eval call!!!
    Value(array([2.0])).eval() -> invalid eval call!!!; K.eval() -> invalid call!!!\\n
    K + x -> Invalid lhs!!!; 2.0 * K -> Invalid rhs!!!; F([K]) -> Invalid argument!!!
    Function.Scalar([x], K) -> Invalid argument!!!"""
REFUSED = [(IndexError, *text, "invalid vector subscript") for text in texts(MISSES)]
REFUSED += [(ValueError, *text, ".+: expected .+") for text in texts(SIZES)]
REFUSED += [(RuntimeError, *pair) for pair in texts(MESSAGES)]


@KINDS
@pytest.mark.parametrize(("error", "text", "message"), REFUSED)
def test_refused(error, text, message, kind):
    with pytest.raises(error) as raised:
        exec(text, language(jets if kind == "Jet" else ast) | operands(POINT, kind))
    assert re.fullmatch(message, str(raised.value))


@BOTH
def test_nodes(m, capfd):
    x, v, made, kernel = (language(m)[name] for name in "xpFK")
    nodes = m.Value(0.5), m.Variable("", v * v + x), m.Variable("", v - v), v * v, kernel, made
    kinds = [f"{e.type} {e.object_type_name} {e.variable_type_name} {e.vec}" for e in nodes]
    expected = """0 value scalar [0]; 1 variable scalar [0]; 1 variable vector [0, 0]
        2 transformation scalar [0]; 4 kernel scalar [0]; 5 function scalar [0]"""
    assert [[kind] for kind in kinds] == texts(expected)
    assert [values(e.scalar) for e in nodes[:3]] == [0.5, 26.0, 0.0]
    nodes[0].print()
    v.print()
    line = "type = value variable_type = scalar value = 0.5\ntype = variable "
    assert capfd.readouterr() == (line + "variable_type = vector value = [3, 4, ]", "")
    assert values((v * v + x).eval()) + values(x.eval(7.0)) == 33.0
    assert x.eval_vector([1.0, 2.0]).tolist() == [1.0, 2.0] == x.vec.tolist()
    assert (x.type_name, x.variable_type_name, values(x.scalar)) == ("variable", "vector", 7.0)


@BOTH
def test_functions(m):
    x, y, v = (language(m)[name] for name in "xyp")
    made, scalar = m.Function.Scalar([x, y, v], x - y + v * v), m.Function.Scalar
    call, kernel, t = made.ScalarFunction(), made.Kernel(), m.Variable("t", 9.0)
    assert [values(call(args)) for args in ([], [5], [6, 7, 8])] == [24.0, 28.0, 79.0]
    assert (values(y.scalar), v.vec.tolist(), values(call([1.0]))) == (7.0, [8.0, 4.0], 74.0)
    assert [values(kernel(rows)) for rows in ([[1, 9], [2], [3, 4, 5]], [[4]])] == [49.0, 52.0]
    assert made.Transformation()([]).tolist() == [52.0] == [values(m.ScalarCost(made)([4, 2]))]
    of_vector = m.Function.Vector([v], v + [1.0] * 3)
    assert of_vector.Transformation()([[1, 2, 2]]).tolist() == [2.0, 3.0, 3.0]
    assert values(of_vector.ScalarFunction()([3])) == 34**0.5
    assert of_vector([1.0, 2.0, 3.0]).eval_vector().tolist() == [2.0, 3.0, 4.0]
    by_three, z, p = scalar([t], t * 3), m.Variable("z", 2.0), m.Variable("p", [1.0, 0.5])
    assert values((made([by_three(z + 1), z, p + p]) + by_three([by_three([z])])).eval()) == 30.0
    assert (values(x.eval()), values(t.eval()), v.eval_vector().tolist()) == (9.0, 6.0, [2.0, 1.0])
    assert values(scalar([x, y], x - y)([5.0, 1.5]).eval()) == 3.5


@BOTH
def test_deep_trees_live_on_without_python(m):
    def made(n):
        x, y = m.Variable("x", 0.0), m.Variable("y", 0.0)
        node, step = x * 2, m.Function.Scalar([y], y + 1.0)
        for i in range(n):
            node = (step([node]) if i % 3 else m.Function.Scalar([x], node)) if i < 99 else node + 1
        return m.Function.Scalar([x], node).ScalarFunction()

    calls = [made(n) for n in (20_000, 3, 99)]
    gc.collect()
    assert [values(call([0.25])) for call in calls] == [20_000.5 - 33, 2.5, 66.5]
