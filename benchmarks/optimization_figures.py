"""Cross-validation and the searches for ellipsoids, against the covariances, the systems and the
single thread that they are made of.

A try of a search is the rating of one model; of a rating the times are those of one lag.
"""

import time

import gravelox as gx
from estimation_figures import MODEL
from harness import SIDE, Figure, per_item, share_of_linear, slowdown

N_VALIDATED, N_PARTITIONS = 500, 15  # those of kernels.cpp


def search_of(n_samples):
    def search(bench):
        """All threads on the wall clock, with the default settings: the speed-up of a try as a
        share of the machine's cores. What comes before the first try is left out.
        """
        threads = gx.check_n_threads(0)
        every, one = (bench.kernel(f"search/{n_samples}/{n}") for n in (0, 1))
        times = bench.compare_least(every, one, share_of_linear(threads))
        tries = bench.kernel_entry(f"search/{n_samples}/0")()["tries"]
        sizes = {"samples": n_samples, "tries": int(tries)}
        return Figure(f"search_{n_samples}", sizes, threads, goal=">= 0.85", **times)

    search.__name__ = f"search_{n_samples}"
    return search


def search_candidates(bench):
    """The candidates of a search, all of them."""
    return Figure("search_candidates", {}, 1, **bench.time(bench.kernel("search_candidates")))


def search_partitions(bench):
    """The groups of a search and the random partitions of their samples."""
    times = bench.time(bench.kernel("search_partitions/2000"))
    return Figure("search_partitions", {"samples": 2000}, 1, **times)


def rating_floor(bench):
    """A rating against its covariances alone."""
    times = bench.compare(bench.kernel("rating"), bench.kernel("rating_floor/0"), slowdown)
    return Figure("rating_floor", {}, 1, goal="<= 2", **times)


def rating_lags(bench):
    """The same with the lags of the covariances to work out too."""
    times = bench.compare(bench.kernel("rating"), bench.kernel("rating_floor/1"), slowdown)
    return Figure("rating_lags", {}, 1, **times)


def rating_allocations(bench):
    """The blocks of memory that a rating asks for: for each partition, and in all."""
    entry = bench.kernel_entry("rating_allocations")()
    sizes = {"blocks": int(entry["a_rating"])}
    return Figure("rating_allocations", sizes, 1, ratio=entry["a_partition"], goal="<= 0")


def validation(bench, form):
    """A timer of one estimate of a cross-validation with its default sizes."""
    samples, values = bench.samples[:N_VALIDATED], bench.values[:N_VALIDATED]
    validate = getattr(gx, f"kfold_cross_validation_using_{form}")
    return per_item(
        lambda: validate(samples, values, MODEL, 2.0 * SIDE, n_threads=1),
        N_VALIDATED * N_PARTITIONS,
    )


def kfold_figure(form, times):
    sizes = {"samples": N_VALIDATED, "partitions": N_PARTITIONS}
    return Figure(f"kfold_{form}", sizes, 1, **times)


def kfold_idw(bench):
    """Cross-validation by inverse distance."""
    return kfold_figure("idw", bench.time(validation(bench, "idw")))


def kfold_by_kriging(form, kernel):
    def kfold(bench):
        """Cross-validation by kriging against the solution of its systems alone."""
        times = bench.compare(validation(bench, form), bench.kernel(kernel), slowdown)
        return kfold_figure(form, times)

    kfold.__name__ = f"kfold_{form}"
    return kfold


def ellipsoid_fit(bench):
    """The fit by gradients: all threads on the wall clock against one."""
    samples, values = bench.samples[:N_VALIDATED], bench.values[:N_VALIDATED]
    folds = gx.create_folds(samples, values, 2.0 * SIDE, 100, 10)

    def fit(n_threads):
        return per_item(
            lambda: gx.optimize_ellipsoid_using_kfold(
                folds, "exponential", *[0.6 * SIDE] * 3, 0.1, n_threads=n_threads
            ),
            1,
            time.perf_counter,
        )

    threads = gx.check_n_threads(0)
    times = bench.compare_least(fit(threads), fit(1), share_of_linear(threads))
    return Figure("ellipsoid_fit", {"samples": N_VALIDATED, "folds": 10}, threads, **times)


FIGURES = (
    search_of(500),
    search_of(2000),
    search_candidates,
    search_partitions,
    rating_floor,
    rating_lags,
    rating_allocations,
    kfold_idw,
    kfold_by_kriging("sk", "partition_ldlt/0"),
    kfold_by_kriging("ok", "partition_ldlt/1"),
    ellipsoid_fit,
)
