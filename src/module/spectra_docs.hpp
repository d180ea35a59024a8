// SPDX-License-Identifier: MIT
#pragma once

// Docstrings of the sub-module of spectra.

namespace gravelox::docs {

constexpr const char* spectral_data = R"(
The spectrum of a regular series, in polar and Cartesian form.

It has as many elements as the series; element i is the frequency of i cycles over the length of
the series, and element n - i is its mirror. The object does not change: methods return new ones.

Examples
--------
>>> import gravelox
>>> spectrum = gravelox.fft.SpectralData1D.forward([1.0, 2.0, 3.0, 4.0, 5.0])
>>> real, imag = spectrum.cartesian()
>>> real[0]
15.0
>>> [round(value, 6) for value in spectrum.backward()]
[1.0, 2.0, 3.0, 4.0, 5.0]
)";

constexpr const char* spectral_data_init = R"(
Make a spectrum from phases and magnitudes.

Parameters
----------
phase : list of float of length n
    Phases in radians.
magnitude : list of float of length n
    Magnitudes, in data units.

Raises
------
ValueError
    If the lists differ in length.
)";

constexpr const char* spectral_data_forward = R"(
Fourier transform of a series.

Parameters
----------
data : list of float of length n
    Values at regular steps. Any length, 0 included.

Returns
-------
SpectralData1D
    All n elements, not scaled: element 0 is the sum of the values.

References
----------
Frigo, M. and Johnson, S. G. (2005). The design and implementation of FFTW3. Proceedings of the IEEE
93, 216-231.
)";

constexpr const char* spectral_data_backward = R"(
Series of the spectrum.

Only the elements up to n / 2 are read; the others count as their mirror, whatever they hold.

Returns
-------
list of float
    The n values; `forward` followed by `backward` gives the data again, up to rounding.
)";

constexpr const char* filter_frequencies = R"(
Keep some elements of the spectrum and set all others to zero.

A frequency other than 0 and n / 2 has two elements, i and n - i. `backward` reads the lower one
alone, so naming that one is enough for it.

Parameters
----------
frequencies : list of int
    Indices of the elements to keep.

Returns
-------
SpectralData1D
    The filtered spectrum.

Raises
------
ValueError
    If an index is outside the spectrum.

Examples
--------
>>> import gravelox
>>> spectrum = gravelox.fft.SpectralData1D.forward([1.0, 5.0, 3.0, 7.0])
>>> [round(value, 6) for value in spectrum.filter_frequencies([0]).backward()]
[4.0, 4.0, 4.0, 4.0]
)";

constexpr const char* polar = R"(
Magnitudes and phases.

Parameters
----------
shift : bool
    Whether the zero frequency stands in the middle, at n / 2. An even number of elements then loses
    element n / 2, and place n / 2 - 1 holds a zero.

Returns
-------
magnitude : list of float
    Magnitudes, in data units.
phase : list of float
    Phases in radians.
)";

constexpr const char* cartesian = R"(
Real and imaginary parts.

Parameters
----------
shift : bool
    Whether the zero frequency stands in the middle, at n / 2. An even number of elements then loses
    element n / 2, and place n / 2 - 1 holds a zero.

Returns
-------
real : list of float
    Real parts, in data units.
imag : list of float
    Imaginary parts, in data units.
)";

constexpr const char* spectral_data_len = R"(
Number of elements.

Returns
-------
int
    As many as the series has values.
)";

constexpr const char* smooth_frequencies = R"(
Smooth the magnitudes by a moving window and keep their total; phases stay as they are.

Each magnitude becomes the sum over the window, cut off at the ends of the spectrum, divided by the
window's span (its elements less one). All are then scaled to the old total, which takes the span
out again, but for the ends: there the windows are shorter, and magnitudes come out a little high.

Parameters
----------
window_size : int
    Elements to each side. 0 has no span, nor has a spectrum of one element: all magnitudes are then
    NaN or infinite.

Returns
-------
SpectralData1D
    The smoothed spectrum.

Raises
------
ValueError
    If `window_size` is negative.

Examples
--------
>>> import gravelox
>>> spectrum = gravelox.fft.SpectralData1D([0.0] * 5, [0.0, 0.0, 9.0, 0.0, 0.0])
>>> magnitude, phase = spectrum.smooth_frequencies(1).polar()
>>> [round(value, 6) for value in magnitude]
[0.0, 3.0, 3.0, 3.0, 0.0]
)";

constexpr const char* project_to_line = R"(
Resample scattered samples along a line to regular positions, by a kernel average.

The positions are lo, lo + dx, ... with dx = (greatest `x` - lo) / `n_points`: they start at the
least `x` and end one step short of the greatest. A sample at distance d has the weight
exp(-(d `b` / dx)^`power_a`). Where all samples share one position there is no step, and values are 0
(with a `power_a` of 0 their mean).

Parameters
----------
x : list of float of length n
    Positions of the samples, in metres or another length unit, in any order.
data : list of float of length n
    Values of the samples, in data units.
b : float
    How fast weights fall off, per step.
power_a : float
    Exponent of the kernel: 1 is exponential, 2 Gaussian.
n_points : int
    Number of positions on the line; 0 gives two empty lists.
window_size : int
    Samples averaged at each position: the first one not below it and this many to either side.

Returns
-------
positions : list of float
    The regular positions.
values : list of float
    A value at each of them; 0 where the weights add up to nothing.

Raises
------
ValueError
    If lists differ in length, `x` is empty or not finite, or a count is negative.

Examples
--------
>>> import gravelox
>>> positions, values = gravelox.fft.project_to_line(
...     [3.0, 0.0, 1.0, 2.0, 4.0], [30.0, 0.0, 10.0, 20.0, 40.0], 3.0, 2.0, 4, 1)
>>> positions
[0.0, 1.0, 2.0, 3.0]
>>> [round(value, 1) for value in values]
[0.0, 10.0, 20.0, 30.0]
)";

constexpr const char* project_back_to_source = R"(
Carry values of a line back to scattered positions, by a kernel average.

The source positions that count for a target t run from the first one not below t - `dr` to the
first one not below t + `dr`, so there is always one: past the last it is the last. A source at
distance d has the weight exp(-(d `b` / `dr`)^`power_a`).

Parameters
----------
target_x : list of float of length m
    Positions to carry values to, in metres or another length unit.
source_x : list of float of length n
    Positions of the values, in any order.
source_data : list of float of length n
    The values, in data units.
dr : float
    Half the width of the window, in length units.
b : float
    How fast weights fall off, per `dr`.
power_a : float
    Exponent of the kernel: 1 is exponential, 2 Gaussian.

Returns
-------
list of float
    A value for each target; 0 where the weights add up to nothing.

Raises
------
ValueError
    If lists differ in length, there are targets but no sources, a position is not finite, or `dr` is
    not a number.

Examples
--------
>>> import gravelox
>>> values = gravelox.fft.project_back_to_source(
...     [0.5, 9.0], [0.0, 1.0, 2.0], [10.0, 20.0, 30.0], 0.5, 1.0, 1.0)
>>> [round(value, 2) for value in values]
[15.0, 30.0]
)";

}  // namespace gravelox::docs
