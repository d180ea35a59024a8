"""Plain models of the detection of patterns; `near` has the ids near each point, asked before."""

import math
from collections import defaultdict, deque
from itertools import product

import numpy as np
from scipy.sparse import csr_matrix
from scipy.sparse.csgraph import breadth_first_order, connected_components
from scipy.spatial.distance import cdist


def angle(first, second, corner):
    a, b = ([x - c for x, c in zip(point, corner)] for point in (first, second))
    lengths = [math.sqrt(sum(x * x for x in side)) for side in (a, b)]
    if min(lengths) < 1e-15:
        return math.pi / 2
    return math.acos(min(1.0, abs(sum(x * y for x, y in zip(a, b))) / (lengths[0] * lengths[1])))


def grown(seeds, links):
    """A cluster of all that a seed leads to and none before it did."""
    labels = np.full(len(links), -1)
    for seed in seeds:
        if labels[seed] == -1:
            reached = breadth_first_order(csr_matrix(links), seed, return_predecessors=False)
            labels[reached[labels[reached] == -1]] = labels.max() + 1
    return [*labels]


def angular_clusters(locs, near, angular_tol, support_threshold, min_support_size):
    seeds, links = [], np.zeros((len(locs), len(locs)), bool)
    for i, own in enumerate(near):
        n_ok, n_all = 0, 0
        for j in own:
            angles = [[angle(locs[i], locs[j], locs[k]) for k in near[m]] for m in (j, i)]
            tol, size = abs(math.pi * angular_tol / 180), sum(map(len, angles))
            ok = sum(a < tol for part in angles for a in part)
            n_ok, n_all = n_ok + ok, n_all + size
            is_narrow = max(map(min, angles)) < tol
            links[i, j] = is_narrow and ok >= min_support_size and ok / size > support_threshold
        seeds += [i] * (n_all == 0 or n_ok / n_all >= support_threshold)
    return grown(seeds, links)


def cluster_angles(locs, clusters, near):
    """By pair of labels; near(points, center) has the ids of those of the points near a center."""
    groups, found = {c: locs[clusters == c] for c in {*clusters} if c > -1}, {}
    for (a, points), (b, others) in product(groups.items(), repeat=2):
        least = 1e30
        for q in others:
            for p in points[near(points, q)]:
                corners = [*near(others, p), *(m for m in near(points, p) if m < len(others))]
                least = min([least, *(angle(p, q, others[m]) for m in corners)])
        if least < math.pi / 2:
            found[a, b] = math.degrees(least)
    return found


def merged(D, clusters, near, ignored, angular_tol):
    """Raises KeyError where a row is missing."""
    target, left_out = {c: c for c in clusters}, {-1, *ignored}
    for i, c in enumerate(clusters):
        queue, visited = deque([i] if c not in left_out and target[c] == c else []), {i}
        while queue:
            for y in near[queue.popleft()]:
                is_open = y not in visited and clusters[y] not in left_out
                if is_open and D[c].get(clusters[y], math.inf) < angular_tol:
                    visited.add(y)
                    target[clusters[y]] = c
                    queue.append(y)
    return [target[c] for c in clusters]


def like_neighbors(features, near, tolerance):
    is_near = [[i != j and j in own for j in range(len(near))] for i, own in enumerate(near)]
    return (cdist(features, features) <= tolerance) & is_near


def aligned(locs, like, degrees):
    families, tol = defaultdict(set), abs(degrees * math.pi / 180)
    for i, a in np.argwhere(like):
        to_a = locs[a] - locs[i]
        theta_a = math.acos(min(abs(to_a[0]) / (math.sqrt(sum(to_a * to_a)) or 1.0), 1.0))
        for b in np.flatnonzero(like[i]):
            theta_b = math.acos(min(abs(locs[b][0] - locs[i][0]), 1.0))  # it is not divided
            if a != b and abs(theta_a - theta_b) <= tol:
                families[int((theta_a + theta_b) / (2 * tol))] |= {i, a, b}
    chosen = sorted(families, key=lambda f: (-len(families[f]), f))[:3]
    first = {i: rank for rank, f in reversed([*enumerate(chosen, 1)]) for i in families[f]}
    return [first.get(i, -1) for i in range(len(locs))]


def regions(features, like, tolerance, background):
    return grown(np.flatnonzero(cdist(features, [background]) <= tolerance), like)


def fused(locs, clusters, max_distance):
    is_one = (cdist(locs, locs) < max_distance) | (clusters[:, None] == clusters)
    kept = clusters != -1
    groups = connected_components(is_one[np.ix_(kept, kept)])[1]
    numbers = {group: number for number, group in enumerate(dict.fromkeys(groups))}
    labels = np.full(len(locs), -1)
    labels[kept] = [numbers[group] for group in groups]
    return [*labels]
