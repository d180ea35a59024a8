"""Transforms of related variables: mixtures against scikit-learn, conditional values against their
scores, projection pursuit against the sorts and decompositions that it cannot do without.

Mixtures and conditional scores run on the threads that parallel regions have by default, of which
run.py leaves one. The time of projection pursuit is that of one step for all points.
"""

import os
import warnings
from contextlib import contextmanager
from functools import partial

import gravelox as gx
import numpy as np
from harness import Figure, advantage, check_same, per_item, slowdown
from scipy.special import ndtri
from sklearn.exceptions import ConvergenceWarning
from sklearn.mixture import GaussianMixture

N_MIXED, N_POINTS, N_FEATURES, N_COMPONENTS = 50_000, 10_000, 6, 8
FEW_STEPS, MANY_STEPS = 2, 12  # of a fit: their difference leaves out what comes before the first
N_CHAIN_STEPS = 200
PROBABILITIES = (np.arange(N_POINTS) + 0.5) / N_POINTS
QUANTILES = ndtri(PROBABILITIES)


def transform_and_samples(n_components, n_features, n):
    """A mixture's transform, scores in columns and the samples that they make."""
    random = np.random.RandomState(1)
    roots = random.normal(size=(n_components, n_features, n_features))
    spreads = roots @ roots.transpose(0, 2, 1) / n_features + 0.2 * np.eye(n_features)
    weights, means = np.full(n_components, 1.0 / n_components), 2.0 * roots[:, 0]
    transform = gx.SCT(gx.GMMParams(n_components, weights, means, spreads))
    scores = random.normal(size=(n_features, n))
    return transform, scores, transform.backward(scores)


@contextmanager
def silent():
    """Keeps the line that ends a fit out of the figures, and scikit-learn's warning."""
    kept = os.dup(1)
    with open(os.devnull, "w") as nowhere, warnings.catch_warnings():
        warnings.simplefilter("ignore", ConvergenceWarning)
        os.dup2(nowhere.fileno(), 1)
        try:
            yield
        finally:
            os.dup2(kept, 1)
            os.close(kept)


def per_step(fit):
    """A timer of one step of fit(n_steps)."""

    def run():
        few, many = (per_item(partial(fit, n), 1)() for n in (FEW_STEPS, MANY_STEPS))
        return (many - few) / (MANY_STEPS - FEW_STEPS)

    return run


def mixture_steps(bench):
    """Steps of expectation-maximisation, by us and by scikit-learn from the same start."""
    samples = transform_and_samples(N_COMPONENTS, N_FEATURES, N_MIXED)[-1].T.copy()
    start = gx.GMMFitter(N_COMPONENTS, 0).fit(samples)
    inits = {"weights_init": start.weights, "means_init": start.means}
    inits["precisions_init"] = np.linalg.inv(start.covariances)

    def ours(n_steps):
        return gx.GMMFitter(N_COMPONENTS, n_steps, 0.0).fit(samples)

    def theirs(n_steps):
        return GaussianMixture(N_COMPONENTS, tol=0.0, max_iter=n_steps, **inits).fit(samples)

    with silent():
        check_same(ours(MANY_STEPS).covariances, theirs(MANY_STEPS).covariances_)
        times = bench.compare(per_step(ours), per_step(theirs), advantage)
    sizes = {"samples": N_MIXED, "features": N_FEATURES, "components": N_COMPONENTS}
    return Figure("mixture_steps", sizes, 1, goal=">= 3", **times)


def sct_backward(bench):
    """A value by the root finder, against its score: the same distribution, evaluated once."""
    transform, scores, values = transform_and_samples(4, 5, 20_000)
    if not np.allclose(transform.forward(values), scores, rtol=0, atol=1e-6):
        raise RuntimeError("the scores of values are not those that the values were made of")
    root = per_item(lambda: transform.backward(scores), scores.size)
    score = per_item(lambda: transform.forward(values), scores.size)
    sizes = {"samples": 20_000, "features": 5, "components": 4}
    return Figure("sct_backward", sizes, 1, **bench.compare(root, score, slowdown))


def sorts_and_decomposition(points):
    """What the fit of a step needs at least: the order along each coordinate, and the axes."""
    np.sort(points, axis=1)
    np.linalg.svd(points.T, full_matrices=False)


def turn_and_map(points):
    """What a step does to points at least: a rotation, and the score of one coordinate."""
    turned = np.eye(N_FEATURES) @ points
    ndtri(np.interp(turned[0], QUANTILES, PROBABILITIES))


def chain_figure(part, floor, name):
    def figure(bench):
        """All steps of a chain that takes principal axes in each: every one has to decompose."""
        n_steps = N_CHAIN_STEPS * bench.n_targets // 100_000
        data = transform_and_samples(N_COMPONENTS, N_FEATURES, N_POINTS)[-1]
        build = partial(gx.PPMT, data, n_steps, prob_random_rotation=0.0, n_threads=1)
        chain = build()
        scores = chain.forward(data, 1)
        calls = {
            "build": build,
            "forward": partial(chain.forward, data, 1),
            "backward": partial(chain.backward, scores, 1),
        }
        other = per_item(lambda: [floor(scores) for _ in range(n_steps)], n_steps)
        times = bench.compare(per_item(calls[part], n_steps), other, slowdown)
        sizes = {"points": N_POINTS, "features": N_FEATURES, "steps": n_steps}
        return Figure(name, sizes, 1, **times)

    figure.__name__ = name
    return figure


FIGURES = (
    mixture_steps,
    sct_backward,
    chain_figure("build", sorts_and_decomposition, "ppmt_build"),
    chain_figure("forward", sorts_and_decomposition, "ppmt_forward"),
    chain_figure("backward", sorts_and_decomposition, "ppmt_backward"),
    chain_figure("forward", turn_and_map, "ppmt_forward_map"),
)
