"""Plain models of mixtures (weights, means, covariances), their scores, and projection pursuit."""

import gravelox
import numpy as np
from oracles.variography import Engine
from scipy import optimize, stats


def component(x, shares, total, ridge=0.0):
    mean = shares @ x / shares.sum()
    scatter = (shares * (x - mean).T) @ (x - mean)
    return shares.sum() / total, mean, scatter / shares.sum() + ridge * np.eye(len(mean))


@np.errstate(invalid="ignore")
def initial_mixture(x, w, n_components, reg_covar, seed):
    engine, found = Engine(seed), []
    for shares in np.equal.outer(range(n_components), [engine.below(n_components) for _ in x]) * w:
        if shares.sum() > 1e-9:
            found.append(component(x, shares, w.sum(), reg_covar))
        else:
            chosen = x[engine.below(n_components) % len(x)]
            found.append((shares.sum() / w.sum(), chosen, (1.0 + reg_covar) * np.eye(x.shape[1])))
    return [*zip(*found)]


def density(x, mean, cov):
    if np.linalg.svd(cov, compute_uv=False).min(initial=1.0) < 1e-12:
        return np.zeros(len(x))
    squares = (((x - mean) @ np.linalg.inv(cov)) * (x - mean)).sum(axis=1)
    return np.exp(-0.5 * (squares + np.linalg.slogdet(2.0 * np.pi * cov)[1]))


def likelihoods(model, x):
    return np.array([p * density(x, m, s) for p, m, s in zip(*model)])


def em_step(model, x, w):
    joint, even = likelihoods(model, x), np.full((len(model[0]), len(x)), 1.0 / len(model[0]))
    shares = np.divide(joint, joint.sum(axis=0), out=even, where=joint.sum(axis=0) > 1e-100) * w
    return [*zip(*[component(x, s, w.sum()) for s in shares])]


def distribution(model, before):
    """The distribution function of the feature after these values; NaN without a component."""
    j, found = len(before), []
    for p, m, s in zip(*model):
        weight = p * density(before[None], m[:j], s[:j, :j])[0]
        if weight > 1e-100:
            slope = np.linalg.solve(s[:j, :j], s[j, :j])
            variance = max(s[j, j] - slope @ s[j, :j], 0.0 if j else 1e-10)
            found.append((weight, m[j] + slope @ (before - m[:j]), variance))
    weights, means, variances = np.transpose([f for f in found if f[2] >= 1e-10] or [[0, 0, 1]])
    scale = 1.0 if j == 0 else weights.sum() or np.nan
    return lambda v: weights / scale @ stats.norm.cdf(v, means, variances**0.5)


def scores(model, sample):
    return [stats.norm.ppf(distribution(model, sample[:j])(v)) for j, v in enumerate(sample)]


def restored(model, score, before):
    p, cdf = np.clip(stats.norm.cdf(score), 1e-9, 0.999999999), distribution(model, before)
    return optimize.brentq(lambda v: cdf(v) - p, -1e3, 1e3, xtol=1e-15, rtol=1e-15)


def orthogonal(n, draws):
    return np.linalg.qr([[draws.normal() for _ in range(n)] for _ in range(n)])[0]


class Step:
    """A step of projection pursuit; the signs of its axes are those of the result it is to have."""

    def __init__(self, data, result, draws, prob_random_rotation):
        self.mean, self.deviation = data.mean(axis=1)[:, None], data.std(axis=1)[:, None]
        z = (data - self.mean) / self.deviation
        if draws.uniform() > prob_random_rotation:
            axes = np.linalg.svd(z.T, full_matrices=False)[2]
            self.turn = axes * np.sign((axes @ z * result).sum(axis=1))[:, None]
        else:
            self.turn = orthogonal(len(data), draws).T
        made, p = [gravelox.data_distribution(row) for row in self.turn @ z], np.arange(1, 1001)
        gaps = [abs(gravelox.CDF(d).probs(p / 1001) - stats.norm.ppf(p / 1001)).sum() for d in made]
        self.j = int(np.argmax(gaps))
        self.scores = gravelox.NScore(made[self.j], gravelox.gaussian_distribution())

    def forward(self, data):
        y = self.turn @ ((data - self.mean) / self.deviation)
        y[self.j] = self.scores.forward(y[self.j])
        return y

    def backward(self, scores):
        y = scores.copy()
        y[self.j] = self.scores.backward(y[self.j])
        return self.turn.T @ y * self.deviation + self.mean
