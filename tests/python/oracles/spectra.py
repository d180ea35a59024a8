"""Plain models of centred and smoothed spectra and of kernel means along a line."""

import numpy as np


def centred(values):
    half, odd = len(values) // 2, len(values) % 2
    gap = [0.0] * (1 - odd) if len(values) else []
    return [*values[half + 1 :], *gap, *values[: half + odd]]


def smoothed(magnitude, window_size):
    indices, sums = np.arange(len(magnitude)), np.append(0.0, np.cumsum(magnitude))
    low = np.maximum(indices - window_size, 0)
    high = np.minimum(indices + window_size, len(magnitude) - 1)
    with np.errstate(all="ignore"):
        means = (sums[high + 1] - sums[low]) / (high - low)
        return means * (sums[-1] / means.sum())


def line_means(x, data, b, power_a, scale, targets, first, last):
    """The kernel mean at each target of the samples from its first to its last place in line."""
    order = np.argsort(x, kind="stable")
    for t, start, end in zip(targets, np.maximum(first, 0), last):
        near = order[start : end + 1]
        with np.errstate(all="ignore"):
            weights = np.exp(-((abs(x[near] - t) * b / scale) ** power_a))
        yield weights @ data[near] / weights.sum() if weights.sum() > 0.0 else 0.0
