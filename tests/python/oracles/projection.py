"""Plain models of projections, maps of one variable, scaling, and graphs of points."""

import gravelox
import numpy as np
from oracles.optimization import loss, robust
from oracles.simulation import words
from oracles.variography import Engine
from scipy import sparse
from scipy.spatial.distance import cdist


def bordered(c, right):
    a = np.pad(c, (0, 1), constant_values=1.0)
    a[-1, -1] = 0.0
    return np.linalg.lstsq(a, [*right, 1.0], rcond=None)[0][:-1]


def blended(kind, source, target, x, scale, wp, n, shape):
    d = np.linalg.norm(source - x, axis=1)
    ids = cdist(target, target[[d.argmin()]])[:, 0].argsort(kind="stable")[:n]
    places, images = np.vstack([x, source[ids]]), target[[d.argmin(), *ids]]
    mixed = (cdist(images, images) + d.min()) * wp + (1 - wp) * cdist(places, places)
    near, c = mixed[0, 1:], shape(mixed * scale)
    weights = (near + 1e-10) ** -scale if kind == "IDW" else c[0, 1:]
    if kind == "OK":
        weights = bordered(c[1:, 1:], weights)
    return weights / weights.sum() @ target[ids]


def radial(centers, weights, points):
    k = np.exp(-3.0 * cdist(centers, [*centers, *points]) ** 2)
    n = len(centers)
    return [bordered(k[:, :n], right) @ weights for right in k[:, n:].T]


def limits(rows):
    return np.min(rows, axis=0), np.max(rows, axis=0)


def point_in(low, high, draws):
    return np.array([a + draws.uniform() * (b - a) for a, b in zip(low, high)])


def radial_start(source, target, n_centers, seed):
    draws, (a, b), (c, d) = Engine(seed), limits(source), limits(target)
    for _ in range(n_centers):
        yield point_in(a, b, draws), 1.0 + draws.uniform(), point_in(c, d, draws)


def drawn(draws, size, n):
    return [draws.word() % size for _ in range(n)]


@np.errstate(invalid="ignore")
def mapped(parameters, shape, u):
    centers, scales, weights = np.reshape(parameters, (-1, 3)).T
    k = shape(abs(np.asarray(u)[:, None] - centers) * scales)
    return k @ weights / k.sum(axis=1)


def fit_of_map(source, target, shape, n_centers, beta, n, low, high, cauchy, seed):
    draws, size = Engine(seed), len(source)
    start = [(source[i], beta, target[i]) for i in drawn(draws, size, n_centers)]
    sizes = (low + 1 + draws.word() % (high - low + 1) for _ in range(n))
    parts = [drawn(draws, size, min(n, size - 1)) for n in sizes]

    def block(parameters, ids):
        errors = mapped(parameters, shape, source[ids]) - target[ids]
        r = robust(2.0 * errors / source.std())
        return [*r / len(r), robust(2.0 * np.sqrt(np.mean(r**2)))]

    return start, lambda parameters: sum(loss(block(parameters, p), cauchy) for p in parts) / 2


def starts_of_scaling(shape, low, high, seed, n_tries):
    box = np.full((2, np.prod(shape)), [[low], [high]])
    return [point_in(*box, Engine(word)).reshape(shape) for word in words(seed, n_tries)]


def relative_errors(x, i, j, d):
    return (np.linalg.norm(x[i] - x[j], axis=1) - d) / d


def float_normals(draws, n):
    found = []
    while len(found) < n:
        v = np.float32([(draws.word() >> 8) * 2.0**-23 - 1.0 for _ in range(2)])
        if 0.0 < (s := v @ v) < 1.0:
            found += [*np.sqrt(-2 * np.log(s) / s) * v]
    return found[:n]


def random_search(guess, triples, distortions, n_tries, seed, max_size):
    pairs = {(min(i, j), max(i, j)): d for i, j, d in triples[::-1] if d >= 1e-30 and i != j}
    (i, j), d = np.transpose([*pairs]), np.float32([*pairs.values()])
    x, draws = np.float32(guess), Engine(*words(seed, 1))
    for _ in range(n_tries):
        distortion = np.float32(distortions[draws.word() % len(distortions)])
        moved = [*dict.fromkeys(drawn(draws, len(x), 1 + draws.word() % max_size))]
        y, steps = x.copy(), float_normals(draws, len(moved) * x.shape[1])
        y[moved] += distortion * np.reshape(steps, (len(moved), -1))
        near = np.isin(i, moved) | np.isin(j, moved)
        before, after = (abs(relative_errors(z, i, j, d))[near].sum() for z in (x, y))
        x = y if before > after else x
    return x


def sparse_pairs(table, n_neighbors, n_active, seed):
    n, draws, connected = len(table), Engine(seed), set()
    for i in range(n):
        if i not in connected or draws.word() % n <= n_active:
            for j in drawn(draws, n, n_neighbors):
                connected.add(j)
                yield i, j, (table[i][j] + table[j][i]) / 2


def graph(hood, points, reach):
    edges = [(i, j) for i, p in enumerate(points) for j in hood.find_neighbors(p, reach)]
    i, j = np.transpose(edges)
    lengths = np.linalg.norm(points[i] - points[j], axis=1)
    return sparse.csr_matrix((lengths, (i, j)), [len(points)] * 2)


def dense_set(points, hood, eps, n, seed):
    (low, high), draws = limits(points), Engine(seed)
    made = [point_in(low[::-1], high[::-1], draws)[::-1] for _ in range(n)]
    return [p for p in made if hood.find_neighbors(p, eps)]


def flood_fill(points, n_neighbors, surface, eps):
    labels, label, hood = [-1] * len(points), -1, gravelox.Neighborhood(points)
    for i in range(len(points)):
        queue = [i] if labels[i] == -1 else []
        label += len(queue)
        for q in queue:
            if not surface.find_neighbors(points[q], eps):
                labels[q] = label
                near = hood.find_neighbors(points[q], n_neighbors)
                queue += [j for j in near if labels[j] == -1 and j not in queue]
    return labels
