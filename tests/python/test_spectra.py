"""Spectra against numpy's transforms; samples of a line against plain kernel means."""

import numpy as np
import pytest
from gravelox import fft
from numpy.testing import assert_allclose
from oracles import spectra


@pytest.mark.parametrize("n", [0, 1, 2, 5, 8, 31, 100])
def test_spectra(rng, n):
    data, phase, magnitude = rng.normal(size=n), rng.uniform(-3, 3, n), rng.uniform(1, 2, n)
    polar, transform = magnitude * np.exp(1j * phase), np.fft.fft(data) if n else data
    made, free = fft.SpectralData1D.forward(data), fft.SpectralData1D(phase, magnitude)
    for spectrum, whole in ((made, transform), (free, polar)):
        for shift, order in ((False, list), (True, spectra.centred)):
            real, imag = spectrum.cartesian(shift)
            assert_allclose(real + 1j * np.array(imag), order(whole), atol=1e-12)
            size, angle = spectrum.polar(shift)
            assert_allclose(size * np.exp(1j * np.array(angle)), order(whole), atol=1e-12)
            assert_allclose(size, order(abs(whole)), atol=1e-12)
        signal = np.fft.irfft(whole[: n // 2 + 1], n) if n else data
        assert_allclose(spectrum.backward(), signal, atol=1e-12)
        assert len(spectrum) == n
    for kept in ([], range(0, n, 3)):
        filtered = free.filter_frequencies([*kept] * 2)
        assert_allclose(filtered.polar(), np.isin(np.arange(n), kept) * [magnitude, phase])
    for width in (0, 1, 3, 200):
        smooth = free.smooth_frequencies(width).polar()
        assert_allclose(smooth, [spectra.smoothed(magnitude, width), phase], atol=1e-12)


@pytest.mark.parametrize(("b", "power_a"), [(1, 2), (0.3, 1), (2, 0.5), (0, 1.5), (1e4, 3)])
def test_samples_along_a_line(rng, b, power_a):
    x, data = rng.integers(-9, 30, 60) / 4, rng.normal(size=60)  # some at the same place
    kernel, line = (x, data, b, power_a), np.sort(x)
    for n, width in ((1, 0), (25, 0), (17, 3), (300, 100)):
        step = (line[-1] - line[0]) / n
        at = np.arange(n) * step + line[0]
        ends = line.searchsorted(at) - width, line.searchsorted(at) + width
        expected = at, [*spectra.line_means(*kernel, step, at, *ends)]
        assert_allclose(fft.project_to_line(*kernel, n, width), expected, rtol=1e-9, atol=1e-14)
    targets = np.array([*rng.uniform(-5, 10, 50), *x[:5], line[-1] + 0.6, 1e3])
    ends = np.minimum(line.searchsorted(targets - 0.5), 59), line.searchsorted(targets + 0.5)
    expected = [*spectra.line_means(*kernel, 0.5, targets, *ends)]
    result = fft.project_back_to_source(targets, x, data, 0.5, b, power_a)
    assert_allclose(result, expected, rtol=1e-9, atol=1e-14)
    assert fft.project_to_line(*kernel, 0, 1) == ([], [])
    assert fft.project_to_line([2] * 3, [1, 2, 3], b, power_a, 2, 1) == ([2, 2], [0, 0])
