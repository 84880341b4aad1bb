#!/usr/bin/env python3
"""One autocovariance of 100,000 samples and 10,000 lags by numpy and scipy, where they are installed.

Their sums are in another order or go through a transform: the numbers differ in the last digits."""
import os

os.environ.setdefault("OMP_NUM_THREADS", "1")
os.environ.setdefault("OPENBLAS_NUM_THREADS", "1")

import statistics
import time

SAMPLES = 100_000
LAGS = 10_000


def report(name, work, rounds=5):
    times = []
    for _ in range(rounds):
        start = time.thread_time()
        work()
        times.append(time.thread_time() - start)
    print(f"  {name:<52} {1e3 * statistics.median(times):9.4g} ms")


def main():
    try:
        import numpy
    except ImportError:
        print("numpy is not installed: no peers to compare with.")
        return
    x = numpy.random.default_rng(1).normal(size=SAMPLES)
    print("\nPeers, one autocovariance, 100,000 samples, 10,000 lags")
    report("numpy.dot for every lag", lambda: [numpy.dot(x[k:], x[: SAMPLES - k]) for k in range(LAGS)], 3)
    padded = numpy.concatenate([numpy.zeros(LAGS - 1), x])
    report("numpy.correlate, valid lags only", lambda: numpy.correlate(padded, x[: SAMPLES - LAGS], "valid"), 3)
    try:
        from scipy import signal
    except ImportError:
        return
    report("scipy.signal.correlate, transform", lambda: signal.correlate(x, x, method="fft"))


if __name__ == "__main__":
    main()
