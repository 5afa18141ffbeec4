#!/usr/bin/env python3
"""Measures "velmar sql" over many dumps against the recipe with CSV and sqlite3, against a loop over the
columns of the C interface, and the difference of snapshots against comparing their bytes: side by side, the
best of several runs each, in seconds of the processor.

usage: sql.py SOURCE_DIR BUILD_DIR [DUMPS]
       sql.py SOURCE_DIR BUILD_DIR --fleet DIR [SWITCHES]    writes snapshots to ask questions of"""

import os
import random
import resource
import subprocess
import sys
import tempfile

source, build = sys.argv[1:3]
velmar = os.path.join(build, "bin", "velmar")
chip = ["--chip", "BCM56990_B0"]


def random_dump(generator):
    """A whole VLAN table with random values in all fields, a third of it zero."""
    entries = []
    for _ in range(8192):
        value = generator.getrandbits(99) if generator.random() < 0.67 else 0
        entries.append(value.to_bytes(16, "little"))
    return b"".join(entries)


def write(path, data):
    with open(path, "wb") as file:
        file.write(data)


def fleet(folder, switches):
    """Snapshots of VLANs and their port bitmap profiles, some of which are empty."""
    generator = random.Random(29)
    os.makedirs(folder)
    for number in range(switches):
        vlans = os.path.join(folder, "vlan.bin")
        profiles = os.path.join(folder, "profile.bin")
        write(vlans, random_dump(generator))
        write(profiles, b"".join(
            generator.getrandbits(272).to_bytes(36, "little") if generator.random() < 0.9
            else bytes(36) for _ in range(2048)))
        subprocess.run([velmar, "snapshot", os.path.join(folder, f"switch{number}"), *chip,
                        f"vlan={vlans}", f"portbitmapprofile={profiles}"], check=True)
        os.remove(vlans)
        os.remove(profiles)


def seconds(command):
    """The time of the processor, which what else runs on the machine leaves alone, and the answer."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    done = subprocess.run(command, stdout=subprocess.PIPE)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    if done.returncode != 0:
        sys.exit(f"{command} fails")
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, done.stdout


def compare(name, goal, ours, theirs, runs, is_floor):
    """Prints how many times as fast, or as slow as its floor, our command is; the answers are the same."""
    pairs = [(seconds(ours), seconds(theirs)) for _ in range(runs)]
    if any(a[1].split() != b[1].split() for a, b in pairs):
        sys.exit(f"{name}: different answers")
    our_time = min(a[0] for a, _ in pairs)
    their_time = min(b[0] for _, b in pairs)
    ratio = our_time / their_time if is_floor else their_time / our_time
    print(f"{name:<34} {our_time:8.3f} s {their_time:8.3f} s   {ratio:6.2f}   goal {goal}", flush=True)


if len(sys.argv) > 3 and sys.argv[3] == "--fleet":
    fleet(sys.argv[4], int(sys.argv[5]) if len(sys.argv) > 5 else 300)
    sys.exit()
count = int(sys.argv[3]) if len(sys.argv) > 3 else 640
with tempfile.TemporaryDirectory() as directory:
    generator = random.Random(7)
    dumps = [os.path.join(directory, f"switch{number}.bin") for number in range(count)]
    some = [random_dump(generator) for _ in range(8)]
    for number, path in enumerate(dumps):
        write(path, some[number % len(some)])
    recipe = os.path.join(directory, "recipe")
    with open(recipe, "w", encoding="utf-8") as file:
        file.write(f"""set -e; cd {directory}; rm -f all.db
for dump in switch*.bin; do
  {velmar} decode vlan {' '.join(chip)} $dump --format csv -o vlan.csv
  test -f all.db && skip="--skip 1" || skip=
  sqlite3 all.db ".import --csv $skip vlan.csv vlan"
done
sqlite3 all.db "$1"
""")
    data = ["--data", f"vlan={directory}/{{switch}}.bin", *chip, "--format", "csv"]

    def against_recipe(name, goal, question, recipe_question):
        compare(name, goal, [velmar, "sql", *data, question],
                ["bash", "-c", f"echo '{name_of(question)}'; bash {recipe} \"{recipe_question}\" | tr '|' ,"],
                1, False)

    def name_of(question):
        done = subprocess.run([velmar, "sql", *data, question + " limit 0"], stdout=subprocess.PIPE)
        return done.stdout.decode().strip()

    print(f"{count} dumps, {count * 8192} entries\n{'':<34} {'velmar':>10} {'other':>10}    ratio")
    against_recipe("group by stg / recipe", "at least 25",
                   "select stg, count(*) as n from vlan where valid group by stg",
                   "select stg, count(*) from vlan where valid = 1 group by stg order by stg * 1")
    against_recipe("group by valid, stg / recipe", "at least 10",
                   "select valid, stg, count(*) as n from vlan group by valid, stg",
                   "select valid, stg, count(*) from vlan group by valid, stg order by valid, stg * 1")
    against_recipe("count(distinct fidId) / recipe", "at least 10",
                   "select count(distinct fidId) as n from vlan", "select count(distinct fidId) from vlan")
    loop = os.path.join(build, "bin", "column-loop")
    compare("where stg = 7 / C columns", "at most 1.5",
            [velmar, "sql", *data, 'select "index" from vlan where stg = 7'],
            ["bash", "-c", f"echo index; {loop} $(ls {directory}/*.bin | LC_ALL=C sort)"], 5, True)
    fleet(os.path.join(directory, "fleet"), 2)
    snapshot = os.path.join(directory, "fleet", "switch0")
    copy = os.path.join(directory, "copy")
    subprocess.run(["cp", "-r", snapshot, copy], check=True)
    compare("diff of equal snapshots / diff -r", "at most 4", [velmar, "diff", snapshot, copy],
            ["diff", "-r", snapshot, copy], 50, True)
