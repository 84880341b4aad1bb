#!/usr/bin/env python3
"""One autocovariance of 100,000 samples and 10,000 lags by others, where they are installed.

Without an argument: the names of those that are. With a name: its processor time, s.
Their sums are in another order or go through a transform: the numbers differ in the last digits."""
import importlib.util
import os
import sys
import time

os.environ["OMP_NUM_THREADS"] = os.environ["OPENBLAS_NUM_THREADS"] = "1"

SAMPLES = 100_000
LAGS = 10_000


def dot(x):
    import numpy

    return lambda: [numpy.dot(x[k:], x[: SAMPLES - k]) for k in range(LAGS)]


def correlate_valid(x):
    import numpy

    padded = numpy.concatenate([numpy.zeros(LAGS - 1), x])
    return lambda: numpy.correlate(padded, x[: SAMPLES - LAGS], "valid")


def correlate_transform(x):
    from scipy import signal

    return lambda: signal.correlate(x, x, method="fft")


PEERS = {
    "numpy.dot": ("numpy", dot),
    "numpy.correlate": ("numpy", correlate_valid),
    "scipy.signal.correlate": ("scipy", correlate_transform),
}


def main():
    if len(sys.argv) < 2:
        for name, (package, _) in PEERS.items():
            if importlib.util.find_spec(package):
                print(name)
            else:
                print(f"{package} is not installed: no {name} to compare with.", file=sys.stderr)
        return
    import numpy

    work = PEERS[sys.argv[1]][1](numpy.random.default_rng(1).normal(size=SAMPLES))
    start = time.thread_time()
    work()
    print(time.thread_time() - start)


if __name__ == "__main__":
    main()
