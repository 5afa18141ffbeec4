#!/usr/bin/env python3
"""Measures the command against its floors, run alternately, and prints each ratio beside its goal.
Whole processes are timed, except the floor of decode, where only the writing counts.

usage: report.py SOURCE_DIR BUILD_DIR [RUNS]"""

import os
import random
import subprocess
import sys
import tempfile
import time

source, build = sys.argv[1:3]
runs = int(sys.argv[3]) if len(sys.argv) > 3 else 100
velmar = os.path.join(build, "bin", "velmar")
dump = os.path.join(source, "samples", "vlan-bcm56990.bin")
target = ["VlanEntry", "--chip", "BCM56990_B0"]


def write_log(path):
    """A log of writes and reads of 2,000 VLANs, of which one or two fields change."""
    random.seed(1)
    entries = [[random.getrandbits(32), random.getrandbits(32), random.getrandbits(32),
                random.getrandbits(3)] for _ in range(2000)]
    with open(path, "w", encoding="utf-8") as file:
        for line in range(100000):
            index = random.randrange(len(entries))
            words, kind = entries[index], random.random()
            if kind < .7:
                words[1] = words[1] & ~(63 << 10) | random.randrange(64) << 10
                words[0] ^= (kind < .2) << 30
            text = " ".join(f"{word:08x}" for word in words)
            file.write(f"{10 + line / 10000:.6f} {'W' if kind < .8 else 'R'} "
                       f"{0x0c7c0000 + index:#010x} {text}\n")


def timed(command, out):
    start = time.perf_counter()
    done = subprocess.run(command, stdout=out, stderr=subprocess.PIPE)
    duration = time.perf_counter() - start
    if done.returncode != 0:
        sys.exit(f"{command} fails: {done.stderr.decode()}")
    return duration, done.stderr


def measure(name, goal, command, floor, floor_time=lambda duration, text: duration):
    ours, theirs = [], []
    with open(os.devnull, "wb") as out:
        for _ in range(runs):
            ours.append(timed(command, out)[0])
            theirs.append(floor_time(*timed(floor, out)))
    ours.sort()
    theirs.sort()
    median = runs // 2
    print(f"{name:<28} {ours[0] * 1e3:8.2f} ms {theirs[0] * 1e3:8.2f} ms   best "
          f"{ours[0] / theirs[0]:.2f}   median {ours[median] / theirs[median]:.2f}   goal {goal}")


with tempfile.TemporaryDirectory() as directory:
    copy = os.path.join(directory, "copy.bin")
    full = os.path.join(directory, "full.bin")
    with open(dump, "rb") as file:
        data = file.read()
    # Pseudo-random values in all fields of all entries, and no bit outside the fields.
    with open(full, "wb") as file:
        for index in range(len(data) // 16):
            entry = (index * 0x9E3779B97F4A7C15F39CC0605CEDC835) % (1 << 99)
            file.write(entry.to_bytes(16, "little"))
    with open(copy, "wb") as file:
        file.write(data)
    decode = [velmar, "decode", *target, "--format", "jsonl", full]
    floor = [os.path.join(build, "bin", "write-text"), full]
    if subprocess.run(decode, stdout=subprocess.PIPE).stdout != subprocess.run(
            floor, stdout=subprocess.PIPE, stderr=subprocess.PIPE).stdout:
        sys.exit("decode and its floor write different texts")

    print(f"{'':<28} {'velmar':>11} {'floor':>11}")
    measure("decode jsonl, whole table", 3, decode, floor, lambda duration, text: float(text))
    measure("diff, two equal tables", 3, [velmar, "diff", *target, dump, copy],
            ["cmp", dump, copy])
    lines = os.path.join(directory, "full.jsonl")
    with open(lines, "wb") as file:
        subprocess.run(decode, stdout=file, check=True)
    for form, goal in (("csv", 0.6), ("table", 2)):
        measure(f"decode {form} / jsonl", goal, decode[:-3] + ["--format", form, full], decode)
    measure("encode jsonl / jq", 0.4, [velmar, "encode", *target, "@" + lines],
            ["jq", "-c", ".fields.stg.decimal", lines])
    log = os.path.join(directory, "agent.log")
    write_log(log)
    trace = [velmar, "trace", "--chip", "BCM56990_B0", log]
    floor = [os.path.join(build, "bin", "trace-text"), log]
    if subprocess.run(trace, stdout=subprocess.PIPE).stdout != subprocess.run(
            floor, stdout=subprocess.PIPE).stdout:
        sys.exit("trace and its floor write different texts")
    measure("trace, 100,000 lines", 1.6, trace, floor)
    measure("start-up (chips)", 1.4, [velmar, "chips"], [os.path.join(build, "bin", "empty-program")])
