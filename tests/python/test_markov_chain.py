"""Transiograms, and categorical simulation against a plain model."""

import gc
import weakref

import gravelox
import numpy as np
import pytest
from gravelox import ast, markov_chain, transiogram
from numpy.testing import assert_allclose
from oracles.language import simulated_classes
from oracles.variography import Engine
from scipy import special, stats

SHARES, PLAIN = np.array([0.5, 0.3, 0.2]), gravelox.Ellipsoid(1, 1, 1, 90, 0, 0)
METRIC, RANGES = gravelox.Ellipsoid(20, 10, 4, 30, 10, 0), [30.0, 10.0, 2.0]
FORMS = [(ast, transiogram, markov_chain), (gravelox.jet.ast, transiogram.jet, markov_chain.jet)]
BOTH = pytest.mark.parametrize(("m", "module", "chain"), FORMS, ids=["double", "jet"])


def transitions(c, p, x):
    """A row that does not add up to 1; class 0 tends to lie to the east."""
    lag, east = np.subtract(x, p) / RANGES, 0.5 + special.expit(0.1 * (x[0] - p[0]))
    found = SHARES + ((np.arange(3) == c) - SHARES) * np.exp(-3.0 * np.linalg.norm(lag))
    return found * (east, 1.0, 1.0)


def expressions(m, module):
    u, v = (m.Variable(name, [0.0] * 3) for name in "uv")
    lag, east = (v - u) / RANGES, 0.5 + m.sigmoid((v - u) * [0.1, 0.0, 0.0])
    kept = m.exp(-3.0 * m.sqrt(lag * lag))
    table = [[p + (float(c == k) - p) * kept for k, p in enumerate(SHARES)] for c in range(3)]
    return module.Transiogram(u, v, [[row[0] * east, *row[1:]] for row in table]), u, v


@BOTH
def test_forms_of_a_transiogram(m, module, chain):
    (made, u, v), p, x = expressions(m, module), [1.0, 2.0, 3.0], [8.0, 4.0, 2.0]
    one = np.array([transitions(c, p, x) for c in range(3)])
    called = module.Transiogram([[lambda u, v, x=x: x for x in row] for row in one.tolist()])
    for table in (made, called):
        assert {type(table(p, x)[0]), type(table(1, p, x))} == {type(u.vec)}
        entry = getattr(table(1, 2, p, x), "value", table(1, 2, p, x))
        found = [*np.array(table(p, x)), np.array(table(2, p, x)), [entry] * 3]
        assert_allclose(found, [*one, one[2], [one[1, 2]] * 3], rtol=1e-12)
        for classes in ((3,), (-1,), (0, 3), (0, -1), (3, 0)):
            with pytest.raises(IndexError, match="invalid vector subscript"):
                table(*classes, p, x)
    assert (u.vec.tolist(), v.vec.tolist()) == (p, x)
    uneven = module.Transiogram([[lambda u, v: {}[u.norm() - v.norm()]], []])
    assert uneven(1, p, p).tolist() == []
    with pytest.raises(KeyError):
        uneven(0, p, x)


@BOTH
def test_cycles_of_callables_are_collected(m, module, chain):
    def make():
        def entry(u, v):
            return len(held)

        held = [module.Transiogram([[entry]])]
        return weakref.ref(entry), chain.Default(*held), chain.ConditionalSampler.Default(*held)

    gone, *samplers = make()
    gc.collect()
    assert gone() is not None
    samplers.clear()
    gc.collect()
    assert gone() is None


CASES = [(PLAIN, -1, 7, 4, 0), (METRIC, 0.0, 5, 32, 40)]
CASES += [(METRIC, 1.1, 3, 0, 40), (METRIC, 0.2, 1, 9, 3)]


@pytest.mark.parametrize(("metric", "r", "knn", "n_previous", "n_data"), CASES)
@pytest.mark.parametrize("seed", [141412, -7])
def test_whole_runs(metric, r, knn, n_previous, n_data, seed, rng):
    targets, samples = rng.uniform(0, 30, (120, 3)), rng.uniform(0, 30, (n_data, 3))
    classes, ask = rng.integers(-1, 3, n_data), float(r) if r > 0 else knn
    model = transitions, metric, ask, n_previous, 3, seed
    expected = simulated_classes(targets, samples, classes, *model)
    assert {*expected} == {0, 1, 2}
    for m, module, chain in FORMS:
        rest = expressions(m, module)[0], metric, r, knn, n_previous, seed
        assert chain.simulation(targets, samples, classes, *rest) == expected
        assert chain.simulation([], samples, classes, *rest) == []


def test_small_runs():
    table, *_ = expressions(*FORMS[0][:2])
    targets, samples = [(7 * i % 23, 5 * i % 17, 0) for i in range(20)], [(3, 3, 0), (20, 10, 0)]
    pinned = [0, 0, 0, 2, 0, 0, 0, 0, 1, 1, 0, 1, 0, 2, 1, 0, 2, 0, 1, 1]
    zeros, honoured = transiogram.Transiogram([[lambda u, v: 0.0] * 3] * 3), [0, 1, 2, 1] * 5
    assert markov_chain.simulation(targets, samples, [0, 2], table, PLAIN, seed=0) == pinned
    assert markov_chain.simulation(targets, targets, honoured, table, PLAIN) == honoured
    assert markov_chain.simulation(targets, targets, honoured, zeros, PLAIN) == [-1] * 20


def test_frequencies_of_transitions(rng):
    """Each class comes from that of the nearest place before it on the path."""
    table, *_ = expressions(*FORMS[0][:2])
    targets = np.column_stack([rng.uniform(0, 9000, 4000), *np.zeros((2, 4000))])
    found = np.array(markov_chain.simulation(targets, [], [], table, PLAIN, -1, 1, 1, 3))
    path, near, grown = [*range(4000)], [], gravelox.DynamicNeighborhood()
    Engine(3).shuffle(path)
    for i in path:
        near += grown.find_neighbors(targets[i], 1)
        grown.add_point(targets[i])
    pairs = np.column_stack([np.array(path)[near], path[1:]])
    rows = [transitions(found[i], targets[i], targets[j]) for i, j in pairs]
    rows /= np.sum(rows, axis=1)[:, None]
    off, lag = np.eye(3)[found[pairs[:, 1]]] - rows, abs(targets[pairs] @ (1, 0, 0) @ (1, -1))
    for low, high, c in ((a, b, c) for a, b in ((0, 3), (3, 12), (12, 1e9)) for c in range(3)):
        part = (lag >= low) & (lag < high) & (found[pairs[:, 0]] == c)
        spread = np.sqrt((rows * (1.0 - rows))[part].sum(axis=0))
        assert (abs(off[part].sum(axis=0)) < 4.0 * spread).all()
    assert_allclose(np.bincount(found) / 4000, SHARES, atol=0.12)


@BOTH
def test_entries_that_are_no_number(m, module, chain, rng):
    """Places whose probabilities are NaN stay without a class and condition nothing."""
    targets, samples = rng.uniform(0, 30, (150, 3)), rng.uniform(0, 30, (5, 3))

    def row(c, p, x):
        return transitions(c, p, x) * (np.nan if x[0] > 20 and c == 1 else 1.0)

    def entry(c, k):
        return lambda u, v: row(c, u.tolist(), v.tolist())[k]

    table = module.Transiogram([[entry(c, k) for k in range(3)] for c in range(3)])
    assert str(table(1, [0.0] * 3, [25.0, 0.0, 0.0])) == "[nan, nan, nan]"
    expected = simulated_classes(targets, samples, [0, 1, 2, 1, 0], row, METRIC, 4, 32, 3, 11)
    found = chain.simulation(targets, samples, [0, 1, 2, 1, 0], table, METRIC, -1, 4, seed=11)
    assert found == expected
    assert {*np.array(found)[targets[:, 0] <= 20]} == {0, 1, 2}
    assert 5 < found.count(-1) < 60


@BOTH
def test_entries_of_other_kinds(m, module, chain):
    """Neither answers that are no number nor vectors are entries; each callable is called once."""
    for wrong in (None, "1", [1.0], np.ones(2)):
        calls = []
        table = module.Transiogram([[lambda u, v, w=wrong, calls=calls: calls.append(u) or w] * 2])
        for classes in ((0, 0), (0,), ()):
            calls.clear()
            with pytest.raises(TypeError):
                table(*classes, [0.0] * 3, [1.0] * 3)
            assert len(calls) == 1
    u, v = m.Variable("u", [0.0] * 3), m.Variable("v", [0.0] * 3)
    for rows in ([[u - v]], [[u * v], [u * v, m.exp(u)]], [[m.Value([1.0])]]):
        with pytest.raises(RuntimeError, match=r"^Invalid variable types$"):
            module.Transiogram(u, v, rows)


@BOTH
def test_tables_survive_other_kinds_of_their_variables(m, module, chain):
    (table, u, v), p, x = expressions(m, module), [1.0, 2.0, 3.0], [8.0, 4.0, 2.0]
    before = np.array(table(p, x))
    for change in (u.eval, v.eval):
        change(7.0)
        assert_allclose(np.array(table(2, p, x)), before[2], rtol=0)
        change(7.0)
        assert_allclose(np.array(table(p, x)), before, rtol=0)
    u.eval_vector([])
    assert_allclose(np.array(table(1, p, x)), before[1], rtol=0)
    assert (u.variable_type_name, u.vec.tolist(), v.vec.tolist()) == ("vector", p, x)


@BOTH
def test_proportions(m, module, chain):
    """Apart from each other targets are drawn evenly; beside each other by the first one's row."""
    rows = [[0.7, 0.2, 0.1], [0.3, 0.3, 0.4], [0.1, 0.5, 0.4]]
    call = module.Transiogram([[lambda u, v, x=x: x for x in row] for row in rows])
    apart, pair = [(1e3 * i, 0, 0) for i in range(900)], [(0, 0, 0), (1, 0, 0)]
    found = chain.simulation(apart, [], [], call, PLAIN, 0.5, seed=5)
    path, draws = [*range(900)], Engine(5)
    draws.shuffle(path)
    assert [found[i] for i in path] == [draws.word() % 3 for _ in path]
    assert stats.chisquare(np.bincount(found)).pvalue > 1e-3
    counts = np.zeros((3, 3))
    for seed in range(1500):
        order = [0, 1]
        Engine(seed).shuffle(order)
        both = chain.simulation(pair, [], [], call, PLAIN, seed=seed)
        counts[both[order[0]], both[order[1]]] += 1
    for row, share in zip(counts, rows):
        assert stats.chisquare(row, row.sum() * np.array(share)).pvalue > 1e-3
    certain = module.Transiogram([[lambda u, v, x=x: x for x in row] for row in np.eye(3).tolist()])
    alike = chain.simulation(apart, [(5, 0, 0)], [2], certain, PLAIN, knn=3)
    assert alike == [2] * 900
