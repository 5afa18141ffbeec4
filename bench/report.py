"""Runs the benchmarks and prints each figure with its goal and pass or miss."""

import argparse
import json
import pathlib
import resource
import subprocess
import sys
import tempfile

# Benchmark, its floor, the largest ratio allowed.
RATIOS = [
    ("getter/one chip", "getter/floor", 1.25),
    ("getter/mixed chips", "getter/floor", 1.25),
    ("getter/other variants", "getter/floor", 1.25),
    ("getter/port family", "getter/floor", 1.35),
    ("getter/port family, mixed chips", "getter/floor", 1.35),
    ("getter/exactly 3 bytes", "getter/floor", 1.7),
    ("getter/exactly 4 bytes", "getter/floor", 1.7),
    ("getter/exactly 48 bytes", "getter/floor", 1.7),
    ("setter/one chip", "setter/floor", 1.4),
    ("setter/mixed chips", "setter/floor", 1.4),
    ("setter/other variants", "setter/floor", 1.4),
    ("setter/port family", "setter/floor", 1.45),
    ("setter/port family, mixed chips", "setter/floor", 1.45),
    ("setter/exactly 3 bytes", "setter/floor", 1.9),
    ("setter/exactly 4 bytes", "setter/floor", 1.9),
    ("setter/exactly 48 bytes", "setter/floor", 1.9),
    ("offset/one chip", "constant/floor", 1.15),
    ("offset/mixed chips", "constant/floor", 1.15),
    ("length/one chip", "constant/floor", 1.15),
    ("length/mixed chips", "constant/floor", 1.15),
    ("validity/one chip", "constant/floor", 1.15),
    ("validity/mixed chips", "constant/floor", 1.15),
    ("bitmap getter/136", "bitmap getter/floor 136", 1.6),
    ("bitmap getter/272", "bitmap getter/floor 272", 1.6),
    ("bitmap setter/136", "bitmap setter/floor 136", 1.6),
    ("bitmap setter/272", "bitmap setter/floor 272", 1.6),
    ("address/one chip", "address/floor", 1.5),
    ("address/mixed chips", "address/floor", 1.5),
    ("construction/one chip", "construction/floor", 1.15),
    ("construction/mixed chips", "construction/floor", 1.15),
    ("decode/8192 VLANs", "decode/floor", 1.25),
    ("encode/8192 VLANs", "encode/floor", 1.35),
    ("read back/8192 VLANs", "read back/floor", None),
    ("walk/generic", "walk/floor", 1.45),
    ("states/136", "states/floor 136", 1.5),
    ("states/272", "states/floor 272", 1.5),
    ("bus/read", "bus/map look-up, read", 1.5),
    ("bus/write", "bus/map look-up, write", 1.5),
    ("copy/routine 12", "copy/nothing 12", 1.4),
    ("copy/routine 272", "copy/nothing 272", 4.0),
]
COPY_WIDTHS = [1, 3, 8, 12, 16, 24, 32, 33, 48, 57, 58, 64, 84, 128, 136, 200, 272]
RATIOS += [(f"copy/routine {n}", f"copy/byte loop {n}", 1.0) for n in COPY_WIDTHS]
RATIOS += [(f"copy/routine {n}", f"copy/bit loop {n}", None) for n in (12, 272)]

MEGABYTE = 1e6


def run_benchmarks(build, repetitions):
    """The time of one item in nanoseconds, by benchmark; the best of several repetitions."""
    command = [build / "bin/velmar-bench", "--benchmark_enable_random_interleaving=true",
               f"--benchmark_repetitions={repetitions}", "--benchmark_min_time=0.002",
               "--benchmark_format=json"]
    report = json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE,
                                       stderr=subprocess.DEVNULL).stdout)
    best = {}
    for line in report["benchmarks"]:
        if line["run_type"] == "iteration":
            time = 1e9 / line["items_per_second"]
            best[line["name"]] = min(time, best.get(line["name"], time))
    return best


def stripped_size(library):
    with tempfile.TemporaryDirectory() as folder:
        stripped = pathlib.Path(folder) / "stripped"
        subprocess.run(["strip", "-o", stripped, library], check=True)
        return stripped.stat().st_size


def parse_times(sources, repetitions=12):
    """The least CPU time, in milliseconds, that the compiler takes for each source."""
    best = [float("inf")] * len(sources)
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "source.cpp"
        for _ in range(repetitions):
            for i, text in enumerate(sources):
                source.write_text(text)
                before = resource.getrusage(resource.RUSAGE_CHILDREN)
                subprocess.run(["c++", "-std=c++17", "-fsyntax-only", "-Iinclude",
                                "-Iplatform/include", source], check=True)
                after = resource.getrusage(resource.RUSAGE_CHILDREN)
                time = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
                best[i] = min(best[i], 1e3 * time)
    return best


def rows_of(build, repetitions):
    """(what, measured, goal or None, unit) of one run, and its raw figures."""
    times = run_benchmarks(build, repetitions)
    rows = [(f"{name} : {floor}", times[name] / times[floor], goal, "x")
            for name, floor, goal in RATIOS]
    rows.append(("trace line into a sink that discards it", times["trace line"], 150, "ns"))
    size = stripped_size(build / "lib/libVelmarMetaInfo.so")
    rows.append(("stripped library", size / MEGABYTE, 1.08, "MB"))
    empty, headers, standard, entry, generic, bench = parse_times(
        ["", "#include <Velmar/MetaInfo.h>\n", "#include <vector>\n#include <string>\n",
         "#include <Velmar/Entry.h>\n", "#include <Velmar/Generic.h>\n",
         "#include <Velmar/Testing/SchanMemory.h>\n"])
    for what, time, goal in (("all view headers", headers, 1.0), ("Velmar/Entry.h", entry, None),
                             ("Velmar/Generic.h", generic, None),
                             ("Velmar/Testing/SchanMemory.h", bench, None)):
        rows.append((f"parse of {what} : <vector> and <string>",
                     (time - empty) / (standard - empty), goal, "x"))
    figures = {"nanoseconds": times, "libraryBytes": size,
               "parseMilliseconds": {"empty": empty, "headers": headers, "standard": standard,
                                     "entry": entry, "generic": generic, "testing": bench}}
    return rows, figures


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--runs", type=int, default=1)
    parser.add_argument("--repetitions", type=int, default=40)
    options = parser.parse_args()

    runs = [rows_of(options.build, options.repetitions) for _ in range(options.runs)]
    missed = 0
    for row, (what, _, goal, unit) in enumerate(runs[0][0]):
        measured = [rows[row][1] for rows, _ in runs]
        verdict = "" if goal is None else "pass" if max(measured) <= goal else "miss"
        missed += verdict == "miss"
        figures = " ".join(f"{value:8.2f}" for value in measured)
        print(f"{what:60} {figures} {unit:2} {'' if goal is None else f'<= {goal}':8} {verdict}")
    output = options.build / "bench.json"
    output.write_text(json.dumps([
        {"rows": [dict(zip(("what", "measured", "goal", "unit"), row)) for row in rows], **figures}
        for rows, figures in runs], indent=1))
    print(f"{missed} missed; figures in {output}")


if __name__ == "__main__":
    sys.exit(main())
