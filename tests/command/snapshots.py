#!/usr/bin/env python3
"""Snapshots: every verb that takes a dump takes one; what it lacks is unknown; manifests from anywhere are
refused unless they are right; nothing is written by halves.

usage: snapshots.py SOURCE_DIR BUILD_DIR"""

import json
import os
import random
import shutil
import signal
import subprocess
import tempfile

from command import check, finish, golden_tables, program, run, source

work = tempfile.TemporaryDirectory(prefix="velmar 'snapshots' ")
os.chdir(work.name)
lab = os.path.join(source, "samples", "lab-bcm56990")
generator = random.Random(7)


def read(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, data):
    with open(path, "wb") as file:
        file.write(data)


def snapshot(folder, *arguments):
    code, text, errors = run("snapshot", folder, *arguments)
    check((code, text, errors) == (0, b"", ""), f"snapshot {folder}: {code} {errors}")


# All tables of each chip, with random bytes in some entries: as raw dumps from entry 0, and as text with
# gaps. Bytes and indexes come back, and decode says the same of the folder and of the dump.
tables = {}
for table in golden_tables():
    if (run("layout", table.name, "--chip", table.chip)[0]) == 0:
        tables.setdefault(table.chip, []).append(table)
for chip, of_chip in tables.items():
    dumps = []
    for table in of_chip:
        indexes = sorted(generator.sample(range(table.count), min(3, table.count)))
        text = "".join(f"{index}: {generator.randbytes(table.entry_bytes).hex(' ')}\n"
                       for index in indexes)
        write(f"{table.name}.txt", text.encode())
        dumps.append(f"{table.name}={table.name}.txt")
    snapshot(chip, "--chip", chip, *dumps, "--label", f"all of {chip}")
    for table in of_chip:
        arguments = ["-f", "csv"]
        whole = run("decode", table.name, f"{table.name}.txt", "--chip", chip, *arguments)
        check(whole[0] == 0 and whole == run("decode", table.name, chip, *arguments),
              f"decode {table.name} {chip}")
    check(run("diff", chip, chip) == (0, b"", ""), f"diff {chip} with itself")

# Every verb, with the chip of the snapshot.
vlan = read(os.path.join(lab, "vlan.txt"))
chip = ["--chip", "BCM56990_B0"]
for words in (["decode", "vlan", None, "--nonzero"], ["decode", "vlan", None, "--check"],
              ["encode", "vlan", "--base", None, "--index", "20", "stg=9"],
              ["identify", None, "--table", "vlan"], ["diff", "vlan", None, "-"]):
    ours = [lab if word is None else word for word in words]
    theirs = [os.path.join(lab, "vlan.txt") if word is None else word for word in words]
    more = [] if words[0] == "identify" else chip
    expected = run(*theirs, *more, data=vlan)
    for given in ([], more):
        check(run(*ours, *given, data=vlan) == expected, f"{words} {given}")
check(run("translate", "vlanprofile", lab, "--to", "33") ==
      run("translate", "vlanprofile", os.path.join(lab, "vlanprofile.bin"), "--from", "33", "--to", "33"),
      "translate")

# Differences: an entry changed, entries and a table unknown.
changed = run("encode", "vlan", "--base", lab, "--index", "20", "stg=9", "bcIdx=1")[1]
write("changed.txt", b"".join(changed.splitlines(True)[:-1]))
snapshot("other", *chip, "vlan=changed.txt", f"vlanstg={lab}/vlanstg.bin")
code, text, errors = run("diff", lab, "other", "-f", "jsonl")
rows = [json.loads(line) for line in text.splitlines()]
check(code == 1 and [(row["table"], row["index"], row["change"], row.get("field")) for row in rows] == [
    ("VlanEntry", 20, "changed", "stg"), ("VlanEntry", 20, "changed", "bcIdx"),
    ("VlanEntry", 5000, "unknown in NEW", None), ("PortBitmapProfileEntry", None, "unknown in NEW", None),
    ("VlanProfileEntry", None, "unknown in NEW", None)], f"diff: {rows} {errors}")
check(run("diff", "other", lab, "--common", "-q")[0] == 1, "diff --common -q")
check(run("diff", "vlanstg", "other", lab)[0] == 0, "diff of a table that is the same")
check(b"5000  address" in run("diff", "vlan", "other", lab)[1] and
      b"unknown in OLD" in run("diff", "vlan", "other", lab)[1], "diff of a table")

# Manifests and folders that are wrong: one line that names the file, and what to do.
good = json.loads(read(os.path.join(lab, "snapshot.json")))


def altered(**members):
    return json.dumps({**good, **members}).encode()


def altered_table(**members):
    return altered(tables=[{**good["tables"][0], **members}])


manifests = {
    "unknown member": altered(more=1), "of a table": altered_table(more=1),
    "version": altered(version=2), "format": altered(format="velmar-entries"), "chip": altered(chip="x"),
    "no chip": altered(chip=None), "variant": altered(variant=256), "other variant": altered(variant=7),
    "time": altered(time="yesterday"), "date": altered(time="2026-13-01"), "label": altered(label="a\nb"),
    "long label": altered(label="a" * 201), "no tables": altered(tables=[]),
    "twice": altered(tables=good["tables"][:1] * 2), "too many": altered(tables=good["tables"] * 300),
    "identifier": altered_table(identifier=1 << 20), "class": altered_table(**{"class": "NoTable"}),
    "notation": altered_table(notation="base64"), "no object": b"[]", "no JSON": b"{", "empty": b"",
    "after it": altered() + b"x", "too long": altered() + b" " * (1 << 20),
    **{f"file {name!r}": altered_table(file=name) for name in (
        "../vlan.txt", "/etc/passwd", "a/../vlan.txt", "./vlan.txt", "", "a\0b", "a//b", "snapshot.json",
        "x" * 300, "missing", "link.txt", "folder", "fifo", "folder/none")},
}
shutil.copytree(lab, "wrong")
os.symlink(os.path.join(lab, "vlan.txt"), "wrong/link.txt")
os.mkdir("wrong/folder")
os.mkfifo("wrong/fifo")
for name, manifest in manifests.items():
    write("wrong/snapshot.json", manifest)
    code, text, errors = run("decode", "vlan", "wrong")
    check(code == 2 and not text and errors.count("\n") == 1 and "; " in errors and "wrong/" in errors,
          f"{name}: {code} {errors!r}")
    check(run("diff", "wrong", lab)[0] == 2, f"{name}: diff")
os.mkdir("empty")
shutil.copytree(lab, "cut")
write("cut/vlanstg.bin", read(os.path.join(lab, "vlanstg.bin"))[:-1])
for words, part in (
        (["decode", "vlan", "empty"], "empty/snapshot.json: cannot open"),
        (["decode", "vlan", lab, "--chip", "56980"], "not of BCM56980_A0"),
        (["decode", "vlan", lab, "--variant", "1"], "leave out --variant"),
        (["decode", "vlan", lab, "--stride", "16"], "--stride has no effect"),
        (["decode", "egrvlan", lab], "it has VlanEntry, "), (["decode", "vlanstg", "cut"], "cut/vlanstg.bin"),
        (["diff", lab, "other", "--where", "valid=1"], "give TABLE"), (["diff", lab, "BCM56980_A0"], "variant"),
        (["diff", "vlan", lab, "BCM56980_A0"], "one chip"), (["identify", lab], "give --table"),
        (["snapshot", "new", *chip, "vlan.bin"], "give TABLE=vlan.bin"),
        (["snapshot", "new", *chip, "vlan="], "give TABLE=FILE"),
        (["snapshot", "new", *chip, "vlan=changed.txt", "vlan=changed.txt"], "twice"),
        (["snapshot", "new", *chip, "vlan:9=changed.txt"], "identifier"),
        (["snapshot", "new", *chip, "vlan=changed.txt", "--time", "now"], "2026-"),
        (["snapshot", "other", *chip, "vlan=changed.txt"], "exists already"),
        (["snapshot", "no/such/place", *chip, "vlan=changed.txt"], "cannot write")):
    code, text, errors = run(*words)
    check(code == 2 and not text and part in errors and "; " in errors, f"{words}: {errors!r}")
check(not os.path.exists("new"), "a refused snapshot is written")

# Tables that are found by what fits; several are refused with the choices.
write("stg.bin", read(os.path.join(source, "samples", "vlan-stg-bcm56980.bin")))
snapshot("found", "--chip", "56980", "--identify", "stg.bin",
         f"egrvlan={source}/samples/egr-vlan-bcm56980.bin")
check([row["class"] for row in json.loads(read("found/snapshot.json"))["tables"]] ==
      ["VlanStgEntry", "EgrVlanEntry"], "--identify")
write("zeros.bin", bytes(48))
code, text, errors = run("snapshot", "new", "--chip", "56980", "--identify", "zeros.bin")
check(code == 2 and "VlanStgEntry=zeros.bin, " in errors, f"--identify of zeros: {errors}")

# A disk that is full, and a signal: nothing is left. The signal waits for the end.
write("large.bin", bytes(16 * 8192))
before = sorted(os.listdir("."))
full = subprocess.run(["bash", "-c", 'trap "" XFSZ; ulimit -f 8; exec "$0" "$@"', program, "snapshot", "new",
                       *chip, "vlan=large.bin"], capture_output=True)
check(full.returncode == 2 and sorted(os.listdir(".")) == before, f"a full disk: {full.stderr}")
os.mkfifo("slow")
process = subprocess.Popen([program, "snapshot", "new", *chip, "vlan=slow"])
with open("slow", "wb"):
    process.send_signal(signal.SIGINT)
    check(process.wait(timeout=10) == -signal.SIGINT, "Ctrl-C")
os.remove("slow")
check(sorted(os.listdir(".")) == before, "Ctrl-C leaves something")
finish()
