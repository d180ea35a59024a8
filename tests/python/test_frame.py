"""The module as a whole: order of names, threads of transforms, the interpreter lock, forks."""

import operator
import subprocess
import sys
import textwrap
import threading

import gravelox
import numpy as np
import pytest


def run(script):
    command = [sys.executable, "-c", textwrap.dedent(script)]
    return subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)


NAMES = """
    set_fft_n_threads check_n_threads compute_angular_distance find_clusters
    compute_angular_distance_between_clusters merge_clusters SpatialFunction EllipsoidInfo
    Ellipsoid Rotation generate_random_semisphere generate_random_sphere extract_ellipsoid_info
    sort_matrix3d orthogonolize_axes Direction Neighborhood DynamicNeighborhood
    optimize_rotation extreme_points generate_rotations generate_ellipsoids
    Kernel Covariance covariance_computer generate_covariances
    CartesianGrid BlockModel BoundingBox create_random_drillholes
    SimulatorFactory SimulatorGenerator unconditional_ensemble_simulation simulate simulator
    FIM TBSIM RNG Distribution PDF CDF NScore gaussian_distribution lognormal_distribution
    student_t_distribution fisher_f_distribution cauchy_distribution chi_squared_distribution
    extreme_value_distribution weibull_distribution exponential_distribution uniform_distribution
    gamma_distribution data_distribution
    Estimator IDW SimpleKriging OrdinaryKriging EnsembleEstimation compute_simple_kriging
    compute_ordinary_kriging compute_simple_ensemble_estimation moving_window_estimation
    ExperimentalVariogram variogram_computer compute_variogram compute_exp_variogram
    smooth_variogram create_folds kfold_cross_validation_using_idw kfold_cross_validation_using_sk
    kfold_cross_validation_using_ok create_folds_using_multiscale multi_scale_cross_validation_error
    LocalCovariances EllipsoidOptimizationParameters EllipsoidLBFGSParameters
    CovarianceErrorFunction optimize_covariance optimize_ellipsoid_using_idw optimize_ellipsoid
    compute_ellipsoid_error_idw optimize_ellipsoid_using_kfold compute_covariance_error_idw
    optimize_covariance_using_idw optimize_local_ellipsoids optimize_local_ellipsoids_using_lbfgs
    extract_covariance_from_varmap ensemble_model ensemble_ellipsoid ensemble_local_ellipsoids
    ensemble_estimation ensemble_simulation
    IDWProjection GaussianMixtureProjection OKProjection MDSProjection OptimizedNDProjection
    Projection Isomorphism IsomorphismParameters optimize_projection optimize_isomorphism DistPair
    create_sparse_dist_matrix create_minimum_spanning_tree flood_fill_using_ball
    create_random_dense_set compute_geodesics compute_geodesic_based_distance_matrix dense_MDS
    sparse_MDS mds_using_random_search
    fft create_random_rotation create_random_orthogonal_matrix PPMT compute_svd_decomposition
    compute_optimum_rotation jet algebra ast ceres transiogram markov_chain GMMParams GMMFitter SCT
    grid_detector fft.SpectralData1D fft.project_to_line fft.project_back_to_source
    grid_detector.detect_grid_aligned_points grid_detector.find_clusters
    grid_detector.cluster_fusion
"""


def test_names_stand_in_the_order_of_registration():
    spaces = ("", gravelox), ("fft.", gravelox.fft), ("grid_detector.", gravelox.grid_detector)
    names = [path + name for path, space in spaces for name in vars(space) if name[:2] != "__"]
    assert names == NAMES.split()


ELEMENTARY = """ sin cos tan asin acos atan sinh cosh tanh exp sqrt abs log ln log10 log2 pow2 pow3
    sigmoid spherical gaussian exponential """
EXPRESSIONS = f"""Expression Variable Value Transformation Kernel Function
    ScalarFunction TransFunction KernelFunction ScalarCost ExpressionPtr VariablePtr ValuePtr
    TransformationPtr KernelPtr FunctionPtr {ELEMENTARY} pow"""
SAMPLERS = """UnconditionalSamplerPtr ConditionalSamplerPtr UnconditionalSampler ConditionalSampler
    Default simulation """
ALGEBRA = f"Real RealVector RealMatrix {ELEMENTARY} matrix vector value pow map"
LANGUAGE = {"jet": "ast", "jet.ast": EXPRESSIONS, "ast": EXPRESSIONS, "ceres": "solve vec"}
LANGUAGE |= {"algebra": ALGEBRA + " Jet JetVector JetMatrix", "ceres.vec": "solve"}
for name, names in (("transiogram", "Transiogram TransiogramPtr "), ("markov_chain", SAMPLERS)):
    LANGUAGE |= {name: names + "jet", f"{name}.jet": names}


@pytest.mark.parametrize("path", LANGUAGE)
def test_names_of_the_language(path):
    names = vars(operator.attrgetter(path)(gravelox))
    assert [name for name in names if name[:2] != "__"] == LANGUAGE[path].split()


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


def runs_beside(call):
    """Whether another thread gets the interpreter lock during a call."""
    ran, interval = [], sys.getswitchinterval()
    timer = threading.Timer(0.005, ran.append, [True])
    sys.setswitchinterval(1000.0)  # bytecode never gives the lock up
    timer.start()
    call()
    result = bool(ran)
    sys.setswitchinterval(interval)
    timer.join()
    return result


def test_interpreter_lock(rng):
    locs, targets = rng.uniform(0, 100, (400, 3)), rng.uniform(0, 100, (15_000, 3))
    data, hood, sphere = locs[:, 0], gravelox.Neighborhood(locs), gravelox.Rotation(0, 0)
    covs, limit, one = [gravelox.Covariance.spherical(1e-4, sphere)], 16, {"n_threads": 1}
    clumps, halves = (locs, locs, hood, 1e3, 2.0, 200.0, 0), (locs, [0, 1] * 200)
    vario = gravelox.compute_exp_variogram(locs, data, bandwidth=0.2, n_directions=20)
    for call in (
        lambda: gravelox.compute_simple_kriging(targets, locs, data, covs, 0.0, hood, limit, **one),
        lambda: gravelox.compute_ordinary_kriging(targets, locs, data, covs, hood, limit, **one),
        lambda: gravelox.compute_exp_variogram(locs, data, bandwidth=0.2, **one),
        lambda: gravelox.smooth_variogram(vario, 100, 0, 99, 99, 1, 1, 0, **one),
        lambda: gravelox.kfold_cross_validation_using_ok(locs, data, covs, 9e9, **one),
        lambda: gravelox.PPMT(targets.T, 4, **one),
        lambda: gravelox.IDWProjection(locs, locs, 1, 0.5, 9).project(targets),
        lambda: gravelox.compute_geodesic_based_distance_matrix(locs, hood, 0, 9, locs, **one),
        lambda: gravelox.mds_using_random_search(3, locs, [(0, 1, 1.0)], [1], 999, 50, **one),
    ):
        assert runs_beside(call)
    for call in (
        lambda: gravelox.OrdinaryKriging(covs, limit)(targets, hood, locs, data, **one),
        lambda: gravelox.moving_window_estimation(targets, hood, locs, data, covs, limit, **one),
        lambda: sphere.forward(np.tile(targets, (20, 1)), **one),
        lambda: gravelox.compute_variogram(locs, locs, data, 40, 40, 40, 9, 9, 1, **one),
        lambda: gravelox.GMMFitter(4, 30, 0.0).fit(targets),
        lambda: gravelox.grid_detector.detect_grid_aligned_points(*clumps, **one),
        lambda: gravelox.compute_angular_distance_between_clusters(sphere, *halves, 80.0),
    ):
        assert not runs_beside(call)


def test_a_forked_child_on_one_thread_does_not_hang():
    script = """
        import os, signal
        import numpy as np
        import gravelox
        locs = np.random.default_rng(1).uniform(0, 100, (500, 3))
        hood, sphere = gravelox.Neighborhood(locs), gravelox.Ellipsoid(50, 50, 50, 0, 0, 0)
        rest = (locs, locs[:, 0], [gravelox.Covariance.exponential(1e-4, sphere)], hood, 8)

        def work(n):
            kriged = gravelox.compute_ordinary_kriging(locs + 0.5, *rest, n_threads=n)
            spectrum = gravelox.fft.SpectralData1D.forward(locs[:, 0])
            series = np.round(spectrum.backward(), 6).tolist()
            return kriged, np.array(sphere.forward(locs, n)).tolist(), series

        parent = work(2)
        child = os.fork()
        if child == 0:
            signal.alarm(60)
            os._exit(0 if work(1) == parent else 1)
        raise SystemExit(os.waitpid(child, 0)[1])
    """
    assert run(script).returncode == 0
