"""Plain models of folds, searches and fits of models (lists of structures), and their blends."""

import itertools

import gravelox
import numpy as np
from oracles import spatial
from oracles.estimation import SHAPES, kriging
from oracles.variography import Engine
from scipy.spatial.transform import Rotation


def kriged(model, mean=None):
    return lambda samples, *rest: kriging(model, samples, *rest, mean)[0] if len(samples) else 0.0


def lengths(locs, center):
    return np.linalg.norm(locs - center, axis=1)


def nearest(hood, n, center, max_distance, max_size):
    return hood.find_neighbors(center, max_size if 1 <= max_size < n else float(max_distance))


def standardized(values):
    return (values - np.mean(values)) / np.std(values)


def kfold(locs, values, estimate, max_distance, max_size, sizes, n_columns, seed, n_threads):
    z, hood, n, master = standardized(values), gravelox.Neighborhood(locs), len(locs), Engine(seed)
    errors, (low, high) = np.full((n, n_columns), np.nan), sizes
    engines = [[Engine(master.word())] * len(part) for part in np.array_split(locs, n_threads)]
    for i, draws in enumerate(itertools.chain(*engines)):
        ids = nearest(hood, n, locs[i], max_distance, max_size) if max_size < n else range(n)
        ids = [j for j in ids if j != i and np.linalg.norm(locs[j] - locs[i]) < max_distance]
        for k in range(n_columns if len(ids) > 2 else 0):
            size = draws.word() % ((high - low + 1) % 2**32) + low
            draws.shuffle(ids)
            errors[i, k] = estimate(locs[ids[:size]], z[ids[:size]], locs[i]) - z[i]
    return errors


def folds(locs, values, max_distance, max_size, n_centers, seed):
    draws, hood, found = Engine(seed), gravelox.Neighborhood(locs), []
    ranked = sorted(range(len(locs)), key=lambda i: -values[i])
    for k in range(n_centers):
        center = locs[ranked[draws.word() % (len(locs) // 2 + 1) if k else 0]]
        ids = nearest(hood, len(locs), center, max_distance, max_size)
        ids = [i for i in ids if np.linalg.norm(locs[i] - center) <= max_distance]
        found += [(locs[ids], values[ids])] if ids else []
    return found or [(locs, values)]


def multiscale_folds(n, sizes, max_distance, scales, metric, locs, values, seed):
    draws = Engine(seed)
    for scale in scales:
        ids, first = [*range(len(locs))], {}
        draws.shuffle(ids)
        for i in ids:
            first.setdefault(tuple(np.trunc(metric @ locs[i] / scale)), i)
        ids = [*first.values()]
        made = folds(locs[ids], values[ids], max_distance, sizes[1], n, draws.word())
        yield from [fold for fold in made if len(fold[1]) >= sizes[0]]


def rating(covs, n_threads, parts, max_distance, max_size, rest, regularization, seed):
    predict, total = gravelox.kfold_cross_validation_using_idw, 0.0
    for share in np.array_split(np.arange(len(parts)), n_threads):
        run = [predict(*parts[k], covs, max_distance, max_size, *rest, 1, seed) for k in share]
        errors = np.abs(np.concatenate([[], *map(np.ravel, run)]))
        total += errors[np.isfinite(errors)].mean() if np.isfinite(errors).any() else 0.0
    axes = [np.linalg.norm(s.ellipsoid().matrix(), axis=1) for s in covs]
    return (np.log1p(np.power(axes, -2.0)).sum() * regularization + 1.0) * total


def shrunk(s, draws):
    if s.type() == "nugget":
        return s
    u = [draws.uniform() for _ in range(7)][1:]  # the first one goes unused
    ranges, angles = np.split(np.array(spatial.ranges_and_angles(s.ellipsoid().matrix())), 2)
    ranges = sorted(ranges * (0.1 + 0.9 * np.array(u[:3])), reverse=True)
    metric = gravelox.Ellipsoid(ranges, angles - 15.0 + 30.0 * np.array(u[3:]))
    return getattr(gravelox.Covariance, s.type())(s.sill(), metric)


def search(models, error, n_iterations, patience, n_threads):
    best, master = (error(models[0], n_threads), models[0]), Engine(1213541)
    own = [best] * n_threads
    for improves, n in ((False, len(models)), (True, n_iterations + n_threads)):
        for thread, share in enumerate(np.array_split(np.arange(n), n_threads)):
            draws, since = improves and Engine(master.word()), 0
            for count, i in enumerate(share, 1):
                if not improves and (count > n_iterations or count - since > patience):
                    continue
                model = [shrunk(s, draws) for s in own[thread][1]] if improves else models[i]
                e = error(model, 1)
                if own[thread][0] > e:
                    own[thread], since = (e, model), count
        for pair in own:
            best = pair if best[0] > pair[0] else best
    return best


def robust(x):
    return np.where(abs(x) <= 1.0, x, np.sign(x) * (2.0 * np.sqrt(np.maximum(abs(x), 1.0)) - 1.0))


def correlation(kernel, axes, lags):
    """Angles in radians turn about the axes of coordinates, from where they are 0."""
    ranges, angles = np.split(axes, 2)
    turned = lags @ Rotation.from_euler("ZYX", angles).as_matrix() / ranges
    return SHAPES[kernel](np.linalg.norm(turned, axis=-1))


def ellipsoid_of(axes):
    ranges, angles = np.split(axes, 2)
    return spatial.sorted_rows(Rotation.from_euler("XYZ", angles[::-1]).as_matrix().T / ranges)


def loss(block, scale):
    s = np.dot(block, block)
    return scale**2 * np.log1p(s / scale**2) if scale else s


def prior(p, longest, c):
    return c * c * (np.sum((1.0 + (p[1:4] / longest - 1.0) ** 2) ** -2) + (p[0] - 1.0) ** 4 / 1e6)


def partition_residuals(p, kernel, locs, z, size):
    lags = locs[size:, None] - locs[:size]
    weights = (1.0 - p[0] * correlation(kernel, p[1:], lags)) ** -3.0
    weights[np.linalg.norm(lags, axis=-1) < 1e-8] = 0.0
    errors = robust(2.0 * (weights @ z[:size] / weights.sum(axis=1) - z[size:]))
    return np.append(errors, robust(2.0 * errors.mean()))


def cost_of_folds(p, parts, kernel, longest, regularization, cauchy, sizes, n, seed):
    draws, total = Engine(seed), prior(p, np.array(longest), regularization)
    pooled = np.concatenate([values for _, values in parts])
    for locs, values in parts:
        for _ in range(n):
            size, ids = sizes[0] + draws.word() % (sizes[1] - sizes[0]), [*range(len(locs))]
            draws.shuffle(ids)
            z = (values[ids] - pooled.mean()) / pooled.std()
            size = size if size <= len(ids) else len(ids) - 2
            total += loss(partition_residuals(p, kernel, locs[ids], z, size), cauchy)
    return total


def cost_of_map(p, lags, values, weights, kernel, longest, sill, b, cauchy, regularization, top):
    """Of seven parameters a structure and, last, the share of the nugget."""
    reach, rows = np.linalg.norm(longest) / 3.0, p[:-1].reshape(-1, 7)
    weights = weights * (lengths(lags, 0.0) / reach + 1e-4) ** -b
    weights = np.where(values > top * sill, 0.0, weights) / weights.sum()
    model = p[-1] + sum(q[0] - q[0] * correlation(kernel, q[1:], lags) for q in rows)
    costs = [loss(r, cauchy) for r in weights * robust(2.0 * (model - values / sill))]
    costs += [prior(q, np.array(longest), regularization / len(rows)) for q in rows]
    return sum(costs)


def blended(weights, matrices):
    """The mean of matrices whose rows are put in the order and the signs that fit."""

    def aligned(weight, matrix):
        for order in itertools.permutations(range(3)):
            rows = matrix[list(order)]
            rows = rows * np.where((rows * mean).sum(axis=1) < 0.0, -1.0, 1.0)[:, None]
            yield np.square(rows - mean).sum(), weight, rows

    left = sorted(zip(weights, matrices), key=lambda pair: -pair[0])
    total, mean = left.pop(0)
    while left:
        tries = [min(aligned(*pair), key=lambda t: t[0]) for pair in left]
        best = min(range(len(left)), key=lambda i: tries[i][0])
        (_, weight, rows), _ = tries[best], left.pop(best)
        total, mean = total + weight, (mean * total + rows * weight) / (total + weight)
    return spatial.sorted_rows(mean)


def ensemble_estimates(targets, samples, z, centers, models, errors, find, near, power, own, mean):
    """With models in rows; find(target) gives the samples, near(target) the models."""
    for target in targets:
        ids, places, found = find(target), near(target), np.nan
        if ids:
            e = [kriging(models[m], samples[ids], z[ids], target, mean)[0] for m in places]
            d = lengths(centers[places], target) * errors[places]
            far = np.where(d > 1e-20, d, np.inf) ** -float(power)
            found = far @ e / far.sum() if far.sum() > 1e-10 else np.nan
        if ids and own > 0.0 and not d.all():
            close = np.mean(np.array(e)[d <= 1e-20])
            found = close if np.isnan(found) else found * (1 - own) + close * own
        yield found
