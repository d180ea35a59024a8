"""The random draws of the system in plain Python, over the words of numpy's Mersenne Twister."""

import math

import numpy as np


class Draws:
    """An engine with the draws on top of it; normals come in pairs, the second is kept."""

    def __init__(self, seed):
        self._bits = np.random.MT19937()
        self._bits._legacy_seeding(seed % 2**32)
        self._second = None

    def word(self):
        return int(self._bits.random_raw())

    def uniform(self, lo=0.0, hi=1.0):
        first, second = self.word(), self.word()
        return lo + (hi - lo) * (((second << 21) + (first >> 11)) * 2.0**-53)

    def normal(self):
        if self._second is not None:
            value, self._second = self._second, None
            return value
        while True:
            v1, v2 = 2.0 * self.uniform() - 1.0, 2.0 * self.uniform() - 1.0
            if v1 * v1 + v2 * v2 < 1.0 and v1 != 0.0 and v2 != 0.0:
                break
        # The squared radius is exponential: no rescaling is needed when it is not squared first.
        radius = math.hypot(v1, v2)
        factor = math.sqrt(-4.0 * math.log(radius)) / radius
        self._second = factor * v2
        return factor * v1

    def float_normals(self):
        while True:
            v1, v2 = (np.float32(self.word() >> 8) * np.float32(2.0**-23) - 1 for _ in range(2))
            s = v1 * v1 + v2 * v2
            if 0 < s < 1:
                factor = np.sqrt(np.float32(-2) * np.log(s) / s)
                return float(factor * v1), float(factor * v2)

    def gamma(self, shape, scale):
        return -math.log(math.prod(self.uniform() for _ in range(shape))) * scale

    def index(self, n):
        while True:
            high, low = divmod(self.word() * n, 2**32)
            if low >= 2**32 % n:
                return high

    def shuffle(self, values):
        for i in range(1, len(values)):
            other = self.index(i + 1)
            values[i], values[other] = values[other], values[i]
        return values
