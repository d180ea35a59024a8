"""The module as a whole: import, order of names, threads, the interpreter lock, forks."""

import contextlib
import shutil
import subprocess
import sys
import textwrap
import threading
import time

import gravelox
import numpy as np
import pytest

NAMES = """
    set_fft_n_threads check_n_threads SpatialFunction EllipsoidInfo Ellipsoid Rotation
    generate_random_semisphere generate_random_sphere extract_ellipsoid_info sort_matrix3d
    orthogonolize_axes Direction Neighborhood DynamicNeighborhood
    Kernel Covariance covariance_computer generate_covariances
    CartesianGrid BlockModel BoundingBox create_random_drillholes
"""


def run(script, *arguments, python=sys.executable):
    command = [python, "-c", textwrap.dedent(script), *arguments]
    return subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)


def test_names_stand_in_the_order_of_registration():
    wanted = NAMES.split()
    assert [name for name in vars(gravelox) if name in wanted] == wanted


def test_thread_counts():
    hardware = gravelox.check_n_threads()
    for n in (0, -1, -2, -1000, hardware, hardware + 1, 10**6):
        assert gravelox.check_n_threads(n) == hardware
    assert [gravelox.check_n_threads(n) for n in range(1, hardware)] == [*range(1, hardware)]


def test_fft_threads_are_set():
    script = """
        import ctypes, re, gravelox
        path = re.search(r"/\\S*fftw3_threads\\S*", open("/proc/self/maps").read()).group()
        planner_threads = ctypes.CDLL(path).fftw_planner_nthreads
        assert planner_threads() == gravelox.check_n_threads(0), "after import"
        for n in (1, -2, 1, 0):
            gravelox.set_fft_n_threads(n)
            assert planner_threads() == gravelox.check_n_threads(n), n
    """
    assert run(script).stderr == ""


def test_another_interpreter_is_refused():
    own = sys.version_info[1]
    others = [shutil.which(f"python3.{minor}") for minor in range(own + 1, own + 6)]
    others = [python for python in others if python and run("", python=python).returncode == 0]
    if not others:
        pytest.skip("no newer interpreter at hand")
    script = """
        import sys
        from importlib import machinery, util
        loader = machinery.ExtensionFileLoader("gravelox", sys.argv[1])
        util.module_from_spec(util.spec_from_loader("gravelox", loader))
    """
    words = f"Python version mismatch: module was compiled for Python 3.{own}, "
    words += "but the interpreter version is incompatible: 3."
    error = run(script, gravelox.__file__, python=others[0]).stderr
    assert error.splitlines()[-1].startswith("ImportError: " + words)


@contextlib.contextmanager
def ticking_thread():
    """Counts on whenever another thread gets the interpreter lock; bytecode never gives it up."""
    ticks, stop, interval = [0], threading.Event(), sys.getswitchinterval()

    def tick():
        while not stop.is_set():
            ticks[0] += 1
            time.sleep(0.0005)

    thread = threading.Thread(target=tick)
    thread.start()
    try:
        sys.setswitchinterval(1000.0)
        yield ticks
    finally:
        sys.setswitchinterval(interval)
        stop.set()
        thread.join()


def test_interpreter_lock(rng):
    locs, targets = rng.uniform(0, 100, (400, 3)), rng.uniform(0, 100, (15_000, 3))
    data, hood, sphere = locs[:, 0], gravelox.Neighborhood(locs), gravelox.Rotation(0, 0)
    covs, limit, one = [gravelox.Covariance.spherical(1e-4, sphere)], 16, {"n_threads": 1}
    released = [
        lambda: gravelox.compute_simple_kriging(targets, locs, data, covs, 0.0, hood, limit, **one),
        lambda: gravelox.compute_ordinary_kriging(targets, locs, data, covs, hood, limit, **one),
    ]
    kept = [
        lambda: gravelox.OrdinaryKriging(covs, limit)(targets, hood, locs, data, **one),
        lambda: gravelox.moving_window_estimation(targets, hood, locs, data, covs, limit, **one),
        lambda: sphere.forward(np.tile(targets, (20, 1)), **one),
    ]
    ticked = []
    with ticking_thread() as ticks:
        for call in released + kept:
            time.sleep(0.01)
            before = ticks[0]
            call()
            ticked.append(ticks[0] > before)
    assert ticked == [True, True, False, False, False]


def test_a_forked_child_on_one_thread_does_not_hang():
    script = """
        import os, signal, warnings
        import numpy as np
        import gravelox
        warnings.simplefilter("ignore")  # newer interpreters warn of forks beside threads
        locs = np.random.default_rng(1).uniform(0, 100, (500, 3))
        hood, sphere = gravelox.Neighborhood(locs), gravelox.Ellipsoid(50, 50, 50, 0, 0, 0)
        covs = [gravelox.Covariance.exponential(1e-4, sphere)]

        def work(n):
            krige = gravelox.compute_ordinary_kriging
            kriged = krige(locs + 0.5, locs, locs[:, 0], covs, hood, 8, n_threads=n)
            return kriged, np.array(sphere.forward(locs, n)).tolist()

        parent = work(2)
        child = os.fork()
        if child == 0:
            signal.alarm(60)
            os._exit(0 if work(1) == parent else 1)
        print(os.waitpid(child, 0)[1])
    """
    result = run(script)
    assert (result.stdout, result.stderr) == ("0\n", "")
