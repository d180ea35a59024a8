"""Clusters by angles, against the bare count of the same angles and against one thread.

Times are those of one point. The share of the threads is that of whole calls: conversion, search
tree and growth of the clusters, which run on one, are in it.
"""

import time

import gravelox as gx
from harness import SAMPLE_SEED, Figure, per_item, share_of_linear, slowdown, uniform_points

# Those of kernels.cpp.
N_CLUSTERED, RADIUS, TOLERANCE = 10_000, 127.0, 10.0
SPHERE = gx.Rotation(90, 0)


def clusters(n_threads, clock=time.process_time):
    """A timer of one point. Of random points about half open a cluster."""
    points = uniform_points(N_CLUSTERED, SAMPLE_SEED)
    return per_item(
        lambda: gx.find_clusters(points, SPHERE, RADIUS, TOLERANCE, 0.08, 10, n_threads),
        N_CLUSTERED,
        clock,
    )


def sizes(bench):
    entry = bench.kernel_entry("angles/0")()
    return {"points": N_CLUSTERED, "neighbors": round(entry["neighbors"], 1)}


def clusters_against(kernel, name):
    def figure(bench):
        times = bench.compare(clusters(1), bench.kernel(kernel), slowdown)
        return Figure(name, sizes(bench), 1, **times)

    figure.__name__ = name
    return figure


def clusters_threads(bench):
    """All threads on the wall clock, as a share of their number."""
    threads = gx.check_n_threads(0)
    every, one = (clusters(n, time.perf_counter) for n in (threads, 1))
    times = bench.compare_least(every, one, share_of_linear(threads))
    return Figure("clusters_threads", {"points": N_CLUSTERED}, threads, goal=">= 0.85", **times)


FIGURES = (
    clusters_against("angles/0", "clusters_angles"),
    clusters_against("angles/1", "clusters_counts"),
    clusters_threads,
)
