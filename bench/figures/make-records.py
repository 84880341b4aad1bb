#!/usr/bin/env python3
"""Makes the twelve kinds of record whose diagrams count_faults looks at, with every stage done.

    make-records.py VORLAN_BATCH FOLDER [MEASURED_RECORD.csv]

Without a measured record a made one takes its place.
"""
import os
import random
import subprocess
import sys

batch, folder = os.path.abspath(sys.argv[1]), sys.argv[2]
record = os.path.abspath(sys.argv[3]) if len(sys.argv) > 3 else None
os.makedirs(folder, exist_ok=True)
os.chdir(folder)

ANALYSES = """
[[step]]
do = "stationarity"
[[step]]
do = "distributions"
[[step]]
do = "spectral"
{spectral}
[[step]]
do = "cross-spectral"
[[step]]
do = "quadrants"
lag = {lag}
"""


def run(*arguments):
    result = subprocess.run([batch, *arguments], capture_output=True, text=True)
    if result.returncode != 0:
        print(" ".join(arguments), "->", result.returncode, result.stderr.strip(), file=sys.stderr)
    return result.returncode == 0


def measured():
    if record:
        with open(record) as table:
            next(table)
            return [tuple(map(float, line.split(","))) for line in table]
    source = random.Random(1)
    return [(source.gauss(-60, 9), source.gauss(2, 6), source.gauss(-1, 4), 90, 91, 92, 25, 26, 27)
            for _ in range(32000)]


def write(name, rows):
    with open(name + ".csv", "w") as table:
        table.write("u,v,w,cor1,cor2,cor3,snr1,snr2,snr3\n")
        for row in rows:
            table.write(",".join(f"{value:.9g}" for value in row) + "\n")


def scaled(rows, factor):
    return [(u * factor, v * factor, w * factor, *scores) for u, v, w, *scores in rows]


def analyse(name, before="", spectral="percent = 10", lag="2.0"):
    recipe = before + ANALYSES.format(spectral=spectral, lag=lag)
    steps = recipe.split("[[step]]")[1:]
    done = ""
    # A record that an analysis refuses keeps the others.
    for step in steps:
        with open("step.toml", "w") as file:
            file.write("[[step]]" + step)
        run("run", "--recipe", "step.toml", "--in-place", name + ".avp")


def make(name, rows, resolution="0.001", interval="0.03125", **how):
    write(name, rows)
    if run("import", "--out", name + ".avp", "--interval", interval, "--resolution", resolution, name + ".csv"):
        analyse(name, **how)
    os.remove(name + ".csv")


rows = measured()
make("short", rows[:200])
make("measured", rows)
make("times-20000", scaled(rows[:8000], 20000), resolution="0.01", spectral="lags = 320")
make("times-0.0002", scaled(rows[:8000], 0.0002), resolution="1e-7", spectral="lags = 320")
make("constant", [(12.5, -3.0, 0.0, *row[3:]) for row in rows[:2000]])
make("negative", [(-abs(u) - 40, -abs(v) - 20, -abs(w) - 10, *s) for u, v, w, *s in rows[:8000]], spectral="lags = 320")
make("overflowed", scaled(rows[:8000], 5), spectral="lags = 1600")
make("two", rows[:2])
make("three", rows[:3])
make("million", [rows[i % len(rows)] for i in range(1000000)], interval="0.005", spectral="lags = 400", lag="2.5")
make("edited", rows[:8000], before='[[step]]\ndo = "edit"\ncorrelation = "minimum"\nvelocity_threshold = 3\n',
     spectral="lags = 320")
make("clipped", rows[:8000], before='[[step]]\ndo = "clip"\nfrom = 20.3\nto = 71.7\n', spectral="lags = 320")
