"""What the helpers of the examples say they do, a run over samples, and ends on bad files."""

import re
import subprocess
import sys
from pathlib import Path

import gravelox
import numpy as np
import pytest
from oracles.estimation import limited, structures
from scipy.stats import norm

EXAMPLES = Path(__file__).parents[2] / "examples"


@pytest.mark.filterwarnings("ignore")  # what matplotlib warns of is not this project's to mend
def test_neighbors_are_counted_and_scaled_sills_change_no_weight(rng, monkeypatch):
    monkeypatch.syspath_prepend(EXAMPLES)
    from support.blocks import count_neighbors
    from support.samples import Samples
    from support.scaled_kriging import Limits, krige

    targets = rng.integers(0, 20, (30, 3)) * 1.0
    locations = rng.integers(0, 20, (90, 3)) + np.array([0, 0, 0.5])
    values, holes = rng.lognormal(3, 1, 90), rng.integers(0, 20, 90).astype(np.int32)
    samples = Samples(locations, values, holes, ("x", "y", "z"), "grade")
    search, limits = gravelox.Neighborhood(locations), Limits(24, 3, 2)
    used = [limited(search.find_neighbors(t, 24), locations, t, 3, holes, 2) for t in targets]
    counted = count_neighbors(targets, samples, search, limits)
    assert counted.tolist() == [*map(len, used)]

    covs = structures([("nugget", 9, (1, 1, 1), (0, 0, 0)), ("gaussian", 50, (9, 7, 5), (0, 0, 0))])
    rest, caps = (covs, search, 24, -1.0, 3), {"dhids": holes, "max_neis_by_dhid": 2}
    unscaled, zeros = (
        gravelox.compute_ordinary_kriging(targets, locations, data, *rest, **caps)
        for data in (values, np.zeros(90))
    )
    estimates, variances = krige(targets, samples, covs, search, limits)
    # The multipliers, which are the estimates of zeros, are as large as data; scaled they vanish.
    assert np.allclose(estimates, np.subtract(unscaled, zeros)[0], atol=1e-3 * np.std(values))
    assert np.allclose(variances, unscaled[1], rtol=1e-6)


@pytest.mark.filterwarnings("ignore")
@pytest.mark.parametrize("flat", [True, False])
def test_axes_and_ranges_of_a_known_structure_are_found(rng, monkeypatch, flat):
    monkeypatch.syspath_prepend(EXAMPLES)
    from support.directional import Lags, along, angles, principal_axes
    from support.nested import fit

    azimuth, dip, rake = true = (70, 0, 0) if flat else (70, -20, 15)
    ranges = (90.0, 40.0, 20.0)
    model = [gravelox.Covariance.spherical(0.8, gravelox.Ellipsoid(*ranges, *true))]
    model.append(gravelox.Covariance.nugget(0.2))
    variogram = gravelox.variogram_computer(model, 5.0)
    vectors = rng.normal(0, 30, (20000, 3)) * (1, 1, not flat)
    lags = Lags(vectors, np.array([variogram(v) for v in vectors]), rng.integers(1, 9, 20000))

    axes = principal_axes(lags, 20, flat)
    assert np.allclose(gravelox.Rotation(*angles(axes)).matrix(), axes)
    frame = gravelox.Rotation(azimuth, dip, rake).matrix()
    assert np.abs(np.sum(axes * frame, axis=1)).min() > np.cos(np.radians(6))
    curves = [along(lags, axis, 120, 4) for axis in frame[: 2 if flat else 3]]
    fitted = gravelox.variogram_computer(fit(curves, frame, 5.0).structures(5.0), 5.0)
    for curve in curves:
        at = np.linspace(2, 100, 50)[:, None] * curve.axis
        assert np.allclose([*map(fitted, at)], [*map(variogram, at)], atol=0.04 * 5)
        exact = [variogram(v) for v in curve.smooth.vectors]
        assert np.abs(curve.smooth.values - exact).mean() < 0.08 * 5


def test_variography_of_stripes(tmp_path, rng):
    places = rng.uniform(0, 1000, (400, 2))
    across = places @ (np.cos(np.radians(60)), -np.sin(np.radians(60)))  # alike along N60E
    rows = np.column_stack([places, 10 + 3 * np.sin(across / 120) + rng.normal(0, 0.3, 400)])
    np.savetxt(tmp_path / "s.csv", rows, delimiter=",", header="x,y,value", comments="")
    command = [sys.executable, EXAMPLES / "variography.py", tmp_path / "s.csv", "--log"]
    ended = subprocess.run(
        [*command, "--out", tmp_path], capture_output=True, text=True, timeout=120, check=True
    )
    azimuth = re.search(r"^first +azimuth (\d+), dip 0 ", ended.stdout, re.MULTILINE)
    assert azimuth
    assert abs(int(azimuth[1]) - 60) < 10
    for name in ("variogram.png", "variogram_map.png"):
        assert (tmp_path / name).read_bytes()[:4] == b"\x89PNG"


@pytest.mark.filterwarnings("ignore")
def test_scores_are_those_of_the_middles_of_shares(rng, monkeypatch):
    monkeypatch.syspath_prepend(EXAMPLES)
    from support.scores import cell_weights, normal_scores

    values = rng.integers(0, 30, 200) / 10  # with ties
    places = rng.uniform(0, 100, (200, 3)) * (1, 1, 0)
    weights = cell_weights(places, 20)
    assert np.isclose(weights.sum(), 25)
    below = np.array([weights[values < one].sum() for one in values])
    upto = np.array([weights[values <= one].sum() for one in values])
    transform = normal_scores(values, weights)
    assert np.allclose(transform.forward(values), norm.ppf((below + upto) / 2 / weights.sum()))
    assert np.allclose(transform.backward(transform.forward(values)), values)


@pytest.mark.filterwarnings("ignore")
@pytest.mark.parametrize("flat", [True, False])
def test_a_known_variogram_of_scores_is_fitted(rng, monkeypatch, flat):
    monkeypatch.syspath_prepend(EXAMPLES)
    from support.samples import Samples
    from support.scores import fitted_model, given_model, ways

    corners = np.array([(0, 0, 0), (100, 100, 0 if flat else 40)])
    samples = Samples(
        corners, np.array([1.0, 2.0]), np.empty(0, np.int32), ("x", "y", "z"), "grade"
    )
    true = given_model(samples, 0.2, (30.0, 30.0, 30.0 if flat else 10.0), (90.0, 0.0, 0.0))
    covariance = gravelox.covariance_computer(true.covariances())
    lags = rng.normal(0, 30, (20000, 3)) * (1, 1, 0 if flat else 0.3)
    semivariances = 1 - np.array(covariance(lags))
    found = fitted_model(
        samples,
        gravelox.ExperimentalVariogram(lags, semivariances, [1] * 20000, [0] * 20000, [lags[0]]),
    )
    for way in ways(samples):
        lengths = np.linspace(1, way.reach, 50)
        misfits = found.variogram(way, lengths) - true.variogram(way, lengths)
        assert np.abs(misfits).max() < 0.05


def test_terrain_is_simulated(tmp_path):
    command = [sys.executable, EXAMPLES / "conditional_simulation.py", "--out", tmp_path]
    command += ["--every", "12", "--realisations", "19", "--lines", "60"]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    missed = re.search(r"^samples on the line +\d+, missed by (\S+) at most$", ended.stdout, re.M)
    assert missed
    assert float(missed[1]) < 1e-6
    held = re.search(r"^10% to 90% +80.0% +(\S+)%", ended.stdout, re.M)
    assert held
    assert abs(float(held[1]) - 80) < 5
    blocks = np.genfromtxt(tmp_path / "blocks.csv", delimiter=",", names=True)
    assert np.all(blocks["q10"] <= blocks["q50"])
    assert np.all(blocks["q50"] <= blocks["q90"])
    above = blocks[blocks.dtype.names[-1]]
    assert 0.15 < above.mean() < 0.35  # the cut-off is the upper quartile of the samples
    for name in ("realisations", "risk", "reproduction", "line"):
        assert (tmp_path / f"{name}.png").read_bytes()[:4] == b"\x89PNG"


def test_a_model_of_stripes_is_found(tmp_path, rng):
    places = rng.uniform(0, 1000, (500, 2))
    across = places @ (np.cos(np.radians(60)), -np.sin(np.radians(60)))  # alike along N60E
    rows = np.column_stack([places, np.sin(across / 60) + rng.normal(0, 0.1, 500)])
    np.savetxt(tmp_path / "s.csv", rows, delimiter=",", header="x,y,value", comments="")
    command = [sys.executable, EXAMPLES / "find_the_model.py", tmp_path / "s.csv"]
    command += ["--tries", "60", "--groups", "4", "--threads", "2", "--out", tmp_path]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    azimuth = re.search(r"^one ellipsoid .* azimuth (\d+), dip 0$", ended.stdout, re.MULTILINE)
    assert azimuth
    assert abs(int(azimuth[1]) - 60) < 10
    assert "kriging, one model is better than kriging, isotropic" in ended.stdout
    assert (tmp_path / "models.png").read_bytes()[:4] == b"\x89PNG"


def test_related_variables_are_simulated(tmp_path):
    command = [sys.executable, EXAMPLES / "multivariate.py", "--out", tmp_path]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    missed = re.search(r"missed by (\S+) standard deviations", ended.stdout)
    differences = re.search(r"^greatest difference +(\S+) +(\S+)$", ended.stdout, re.MULTILINE)
    assert missed
    assert differences
    assert float(missed[1]) < 1e-6
    assert max(map(float, differences.groups())) < 0.12
    assert (tmp_path / "multivariate.png").read_bytes()[:4] == b"\x89PNG"


def test_bad_files_end_the_examples_with_one_line(tmp_path):
    path = tmp_path / "samples.csv"
    on_line = "x,y,value\n" + "".join(f"{i},0,{i % 3}\n" for i in range(20))
    on_hole = "x,y,z,value\n" + "".join(f"0,0,{i},{i % 3}\n" for i in range(20))
    for script, text, message in (
        ("block_model.py", None, "cannot be read"),
        ("block_model.py", "x,y,grade\n1,2,3\n", 'no column "value"'),
        ("block_model.py", "x,y,value\n1,2,much\n", '"much" is not a number'),
        ("variography.py", "x,y,value\n1,2,much\n", '"much" is not a number'),
        ("variography.py", on_line, "found them in line"),
        ("conditional_simulation.py", "x,y,value\n1,2,much\n", '"much" is not a number'),
        ("conditional_simulation.py", on_hole, "found them in one vertical line"),
        ("find_the_model.py", on_line, "found them in line"),
    ):
        if text:
            path.write_text(text)
        command = [sys.executable, EXAMPLES / script, path, "--out", tmp_path]
        ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)
        assert (ended.returncode, ended.stderr.count("\n")) == (2, 1)
        assert message in ended.stderr


def test_a_fold_is_kriged_better_when_it_is_unfolded(tmp_path):
    command = [sys.executable, EXAMPLES / "unfolding.py", "--out", tmp_path]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    errors = re.findall(r", (?:one|two|three) ranges? .*?(\S+) +\S+$", ended.stdout, re.M)
    plain, axes, unfolded = map(float, errors)
    assert unfolded < 0.8 * axes < 0.8 * plain
    for name in ("fold", "flat_space", "estimates"):
        assert (tmp_path / f"{name}.png").read_bytes()[:4] == b"\x89PNG"


def test_planes_are_found_and_merged(tmp_path):
    command = [sys.executable, EXAMPLES / "structures.py", "--out", tmp_path]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    found = re.findall(r"^\d +\d+ +(\d+) +(\d+) +\S+ +\d +\d+ +(\d+) +(\d+)$", ended.stdout, re.M)
    assert len(found) == 3
    dips = np.array(found, int)
    assert np.abs(dips[:, :2] - dips[:, 2:]).max() <= 3
    assert (tmp_path / "structures.png").read_bytes()[:4] == b"\x89PNG"


def test_a_robust_fit_shrugs_off_outliers(tmp_path):
    command = [sys.executable, EXAMPLES / "fit_expression.py", "--out", tmp_path]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    farthest = re.search(r"^farthest from the first +(\S+) +(\S+) +(\S+)$", ended.stdout, re.M)
    assert farthest
    clean, squares, robust = map(float, farthest.groups())
    assert clean == 0 < 5 * robust < squares
    assert (tmp_path / "fit_expression.png").read_bytes()[:4] == b"\x89PNG"


def test_rock_types_honour_holes(tmp_path):
    command = [sys.executable, EXAMPLES / "rock_types.py", "--out", tmp_path]
    ended = subprocess.run(command, capture_output=True, text=True, timeout=120, check=True)
    assert re.search(r"^cells in holes as logged +100.00%$", ended.stdout, re.M)
    shares = [
        re.search(rf"^{who} +(\S+) +(\S+) +(\S+)$", ended.stdout, re.M)
        for who in ("holes", "realisations")
    ]
    logged, simulated = (np.array(found.groups(), float) for found in shares if found)
    assert np.abs(logged - simulated).max() < 0.03
    assert (tmp_path / "rock_types.png").read_bytes()[:4] == b"\x89PNG"
