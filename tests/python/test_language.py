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


def moving(x, partials):
    """A number, vector or matrix of jets."""
    if np.ndim(x) == 0:
        return algebra.Jet(x, partials)
    kind = algebra.JetVector if np.ndim(x) == 1 else algebra.JetMatrix
    return kind([moving(*pair) for pair in zip(x, partials)])


LINEAR = """a.inverse() -> inv(a); a.determinant() -> det(a); a.solve(v) -> solve(a, v); v[::-1] / s
    a.solve(b) -> solve(a, b); a.transpose() -> a.T; a * b -> a @ b; v * b -> v @ b; s / v; a * s
    a.SVD()[1] -> svd(a)[1]; b.norm(0) -> norm(b, axis=0); b.var(1); b.stddev() -> b.std(); s * b
    a.orthogonalize() -> (qr(a.T)[0] * diag(qr(a.T)[1])).T; v.norm() / s -> norm(v) / s; b / s
    a.orthonormalize() -> (qr(a.T)[0] * sign(diag(qr(a.T)[1]))).T; v.dot(a * v) -> v @ a @ v
    b.transpose() * a -> b.T @ a; (s - s * s) / (s + 3.0); 2.0 / (s * s)"""


@pytest.mark.parametrize("n", range(1, 7))
def test_linear_algebra_of_all_sizes(n, rng):
    """Each element has its own seven partials."""
    shapes = {"a": (n, n), "b": (n, 2), "v": (n,), "s": ()}
    start = {x: rng.normal(size=shape) for x, shape in shapes.items()}
    turns = {x: rng.normal(size=(*shape, 7)) for x, shape in shapes.items()}
    jet = {x: moving(start[x], turns[x]) for x in shapes}

    def expected(t, text):
        named = {x: start[x] + turns[x] @ t for x in shapes}
        return np.array(eval(text, vars(np) | vars(linalg) | named))

    for text in texts(LINEAR):
        found, wanted = eval(text[0], dict(jet)), expected(np.zeros(7), text[-1])
        assert_allclose(values(found), wanted, rtol=1e-9, atol=1e-11, err_msg=text[0])
        wanted = slopes(lambda t, text=text[-1]: expected(t, text), np.zeros(7), 1e-7)
        near = {"rtol": 1e-4, "atol": 1e-5 * abs(wanted).max() + 1e-6}
        assert_allclose(found.partials, wanted, **near, strict=True, err_msg=text[0])


@pytest.mark.parametrize(("n", "rank"), [(n, rank) for n in range(1, 6) for rank in range(n)])
def test_determinants_of_singular_matrices(n, rank, rng):
    """Partials by cofactors; shuffled rows bring zeros to the places of pivots."""
    whole = rng.integers(-3, 4, (n, rank)) @ rng.integers(-3, 4, (rank, n))
    axes = (np.eye(n) * (np.arange(n) < rank))[rng.permutation(n)]
    for m in (whole * 1.0, axes, axes[:, ::-1] * 7.0, np.ones((n, n)) * (n > 1 and rank > 0)):
        turns, cofactors = rng.normal(size=(n, n, 7)), np.zeros((n, n))
        for i, j in np.ndindex(n, n):
            minor = np.delete(np.delete(m, i, 0), j, 1)
            cofactors[i, j] = (-1) ** (i + j) * linalg.det(minor)
        found = moving(m, turns).determinant()
        assert_allclose(found.value, 0.0, atol=1e-9)
        assert_allclose(found.partials, np.tensordot(cofactors, turns), rtol=1e-9, atol=1e-9)


PARTS = ["::2", "::-1", "-4:-1", "5:1:-2", "-1:-9:-3", "3:1", "-99:99", "7:", ":-7", "2::3"]


@KINDS
@pytest.mark.parametrize("part", PARTS)
def test_slices(part, kind, rng):
    plain = {"v": rng.normal(size=7), "m": rng.normal(size=(7, 3))}
    own = {"v": getattr(algebra, kind + "Vector")(plain["v"])}
    own["m"] = getattr(algebra, kind + "Matrix")(plain["m"])
    for text in (f"v[{part}]", f"m[{part}]", f"v[1:6][{part}]", f"m[{part}][::-1]"):
        assert eval(text, own).tolist() == eval(text, plain).tolist()
    for change in (f"v[{part}] = 2.5 * v[{part}][::-1]", f"v[{part}] = -1.5", "v[::-1] = v"):
        exec(change, own)
        exec(change, plain)
        assert own["v"].tolist() == plain["v"].tolist()
    for a, b in np.ndindex(9, 9):
        text = f"v.slice({a - 9}, {b})", f"v[{a - 9}:{b}]"
        assert eval(text[0], own).tolist() == eval(text[1], plain).tolist()
        rows, both = own["m"].slice(b, a - 9), own["m"].slice(a - 9, 7, b - 4, 3)
        assert rows.tolist() == plain["m"][b : a - 9].tolist()
        assert both.tolist() == plain["m"][a - 9 : 7, b - 4 : 3].tolist()


@pytest.mark.parametrize("name", [*FUNCTIONS, "-2.5", "0", "0.5", "1", "2", "3"])
def test_jets_have_the_values_of_doubles(name):
    x = np.array([-2, -1, -0.5, -0.0, 0, 0.3, 1, 1.5, 40, 800, np.inf, -np.inf, np.nan])
    call = getattr(algebra, name, lambda v: algebra.pow(v, float(name)))
    real, jet = call(algebra.RealVector(x)), call(algebra.JetVector(x))
    assert_array_equal(jet, real)
    assert_array_equal(call(algebra.JetMatrix([x, x])), [real, real])
    assert not np.nan_to_num(jet.partials, posinf=0.0, neginf=0.0).any()
    if name in FUNCTIONS:
        assert_array_equal([call(float(a)) for a in x], real)
        assert_array_equal([call(algebra.Jet(a)).value for a in x], real)


@BOTH
def test_arrays_of_one_element_are_vectors(m):
    one, v, x = np.array([4.0]), m.Variable("v", [3.0, 4.0]), m.Variable("x", 1.0)
    for vector in (one, one.astype(int), one.astype("f4"), [4.0], (4,), one[::-1]):
        made = m.Variable("", vector), m.Value(vector), v - np.tile(vector, 2)
        assert [node.variable_type_name for node in made] == ["vector"] * 3
        assert (made[1].vec.tolist(), algebra.sqrt(vector).tolist()) == ([4.0], [2.0])
        for wrong in (v.eval, x.eval, algebra.Jet):
            with pytest.raises(TypeError):
                wrong(vector)
        assert (v.variable_type_name, x.variable_type_name) == ("vector", "scalar")
    for scalar in (np.array(4.0), np.array(4), np.float32(4), np.int8(4), np.float64(4), 4):
        made = m.Variable("", scalar), m.Value(scalar), x * scalar
        assert [node.variable_type_name for node in made] == ["scalar"] * 3
        assert (values(made[1].eval()), values(made[2].eval()), algebra.sqrt(scalar)) == (4, 4, 2)


@pytest.mark.parametrize("x", [[1.0, 2.0], [[1.0, 2.0], [3.0, 4.0]]], ids=np.ndim)
@KINDS
def test_callbacks_that_give_no_number(kind, x):
    calls, made = [], getattr(algebra, kind + ("Vector", "Matrix")[np.ndim(x) - 1])(x)
    for wrong in (None, "1", [1.0], made):
        calls.clear()
        with pytest.raises(TypeError, match="must be real number"):
            algebra.map(made, lambda x, wrong=wrong: calls.append(x) or wrong)
        assert len(calls) == 1


@BOTH
def test_functions_plan_again_when_kinds_change(m):
    """A scalar body goes on with the scalar that a variable had before it became a vector."""
    x, y = m.Variable("x", 2.0), m.Variable("y", 3.0)
    made, bare = m.Function.Scalar([x, y], x * y), m.Function.Scalar([x], x).ScalarFunction()
    call, kernel, transform = made.ScalarFunction(), made.Kernel(), made.Transformation()
    for _ in range(2):
        x.eval(2.0)
        assert [values(f) for f in (call([5, 2]), kernel([[6], [2]]), bare([3]))] == [10, 12, 3]
        x.eval_vector([7.0, 8.0])
        assert [values(f) for f in (call([5, 2]), x.scalar)] == [6.0, 3.0]
        assert (x.vec.tolist(), values(bare([6.0]))) == ([5.0, 8.0], 10.0)
        assert (values(kernel([[4, 9]])), x.vec.tolist()) == (6.0, [4.0, 9.0])
        assert transform([[1, 2, 3], [4]]).tolist() == [12.0]
    v = m.Variable("v", [3.0, 4.0])
    square = m.Function.Scalar([v], v * v).ScalarFunction()
    assert [values(square(args)) for args in ([], [0.0])] == [25.0, 16.0]
    v.eval(9.0)
    assert (values(square([5.0])), v.vec.tolist(), values(v.scalar)) == (16.0, [0.0, 4.0], 5.0)


@BOTH
def test_functions_that_share_a_body(m):
    x, y = m.Variable("x", 0.0), m.Variable("y", 0.0)
    body, other = x - 2.0 * y, m.Function.Scalar([y], y * y)
    orders = [m.Function.Scalar(args, body) for args in ([x, y], [y, x], [x])]
    f, g, h = (made.ScalarFunction() for made in orders)
    both = m.Function.Scalar([x, y], orders[0]([y, x]) + other([x + body])).ScalarFunction()
    found = [f([1, 2]), g([1, 2]), f([5]), h([7]), both([2, 1]), g([4]), f([1, 2]), body.eval()]
    assert [values(one) for one in found] == [-3, 0, 3, 5, 1, -7, -3, -3]


def test_costs_keep_the_partials_of_constants():
    x, two, one = jets.Variable("x", 1.0), *(algebra.Jet(n, np.arange(7.0)) for n in (2, 1))
    made = jets.Function.Scalar([x], x * jets.Value(two) + one)
    for call in (made.ScalarFunction(), jets.ScalarCost(made)):
        found = call([algebra.Jet(3.0, np.eye(7)[0])])
        assert (found.value, found.partials.tolist()) == (7.0, [2, 4, 8, 12, 16, 20, 24])
        assert (x.eval(0.0).value, call([3.0]).value, x.scalar.value) == (0.0, 7.0, 3.0)
