#!/usr/bin/env python3
"""kills.py BATCH [COUNT]: kills vorlan-batch COUNT times (24) at any moment while it saves, exports, prints and runs
recipes. Every file must be the one before or the one after; hidden temporaries that stay behind are counted."""
import os
import random
import subprocess
import sys
import tempfile
import time

batch, count = os.path.abspath(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 24
random.seed(count)
os.chdir(tempfile.mkdtemp(prefix="vorlan-kills-"))
folder = os.getcwd()


def run(*words):
    subprocess.run([batch, *words], check=True, stderr=subprocess.DEVNULL)


def simulated(name, seed):
    run("simulate", "--out", name, "--length", "800", "--noise-variance", "3,2,1", "--seed", seed)


def contents(names):
    return {name: open(name, "rb").read() for name in names}


simulated("in.avp", "1")
simulated("a.avp", "2")
with open("r.toml", "w") as recipe:
    recipe.write('[[step]]\ndo = "clip"\nfrom = 0\nto = 700\n'
                 '[[step]]\ndo = "boundary-new"\npath = "b.bnd"\n[[step]]\ndo = "node-insert"\n[[step]]\n'
                 'do = "boundary-save"\n[[step]]\ndo = "export"\nkind = "velocities"\nout = "e.dat"\n')
jobs = [(["simulate", "--append", "--out", "a.avp", "--length", "800", "--seed", "3"], ["a.avp"]),
        (["export", "velocities", "--time", "--out", "v.dat", "in.avp"], ["v.dat"]),
        (["report", "--out", "p.pdf", "in.avp"], ["p.pdf"]),
        (["run", "--recipe", "r.toml", "--out", "o.avp", "in.avp"], ["o.avp", "b.bnd", "e.dat"]),
        (["run", "--recipe", "r.toml", "--in-place", "a.avp"], ["a.avp", "b.bnd", "e.dat"])]
cases = []
for words, outputs in jobs:
    for name in outputs:
        if name != "a.avp":
            with open(name, "w") as old:
                old.write("old\n")
    before = contents(outputs)
    start = time.monotonic()
    run(*words)
    cases.append((words, before, contents(outputs), time.monotonic() - start))
    for name, content in before.items():
        open(name, "wb").write(content)

torn = changed = finished = left = 0
for i in range(count):
    words, before, after, duration = cases[i % len(cases)]
    for name, content in before.items():
        with open(name, "wb") as file:
            file.write(content)
    process = subprocess.Popen([batch, *words], stderr=subprocess.DEVNULL)
    time.sleep(random.random() * duration * 1.1)
    process.kill()
    finished += process.wait() == 0
    for name, content in contents(before).items():
        changed += content == after[name]
        if content not in (before[name], after[name]):
            torn += 1
            print(f"{' '.join(words)}: {name} is torn")
    for name in os.listdir(folder):
        if name.startswith("."):
            left += 1
            os.remove(name)
print(f"{count} kills, {finished} of them too late: {torn} torn files, {changed} new ones, {left} temporaries left")
for name in os.listdir(folder):
    os.remove(name)
os.rmdir(folder)
# A kill between naming and renaming leaves a temporary.
sys.exit(1 if torn or left > 1 + count // 50 else 0)
