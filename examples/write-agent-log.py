#!/usr/bin/env python3
"""Writes a log of bus transactions as a switch agent on BCM56990_B0 may leave it: samples/agent-bcm56990.log.
The words of the entries come from velmar encode. The agent starts with the entries of
samples/vlan-bcm56990.bin, opens VLANs, moves one to another spanning-tree group, and reads back what it
wrote; one read differs, one write lacks words, and one address has no table.

usage: write-agent-log.py VELMAR FILE"""

import json
import os
import subprocess
import sys

program, path = sys.argv[1:]
samples = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "samples")
chip = "BCM56990_B0"
fields = {}  # of each table and index: what is not zero
lines = []
seed, microseconds = 20, 11_998_000


def velmar(*arguments):
    return subprocess.run([program, *arguments], check=True, capture_output=True, text=True).stdout


def random(limit):
    """A number below the limit, the same ones in each run."""
    global seed
    seed = (seed * 1103515245 + 12345) % (1 << 31)
    return (seed >> 16) % limit


def log(operation, address, words):
    global microseconds
    microseconds += 9 + random(400 if len(lines) % 10 else 90000)
    lines.append(f"{microseconds // 1000000}.{microseconds % 1000000:06} {operation} {address:#010x} "
                 + " ".join(words))


def words_of(table, index):
    values = [f"{name}={value}" for name, value in fields.get((table, index), {}).items()]
    text = velmar("encode", table, "--chip", chip, "--index", str(index), "-f", "words", *values)
    return text.split(":")[1].split()


def address_of(table, index):
    return int(json.loads(velmar("addr", table, "--chip", chip, "--index", str(index), "-f", "jsonl"))
               ["address"], 16)


def write(table, index, **values):
    fields.setdefault((table, index), {}).update(values)
    log("W", address_of(table, index), words_of(table, index))


def read(table, index):
    log("R", address_of(table, index), words_of(table, index))


def open_vlan(vlan, group):
    profile = vlan % 90
    write("IngVlanVfiMembership", profile, ingPortBitmap=f"{vlan % 32}-{vlan % 32 + 3},128")
    write("EgrVlanVfiMembership", profile, portBitmap=f"{vlan % 32}-{vlan % 32 + 3},128")
    write("EgrVlan", vlan, valid=1, stg=group, membershipProfilePtr=profile)
    write("VlanEntry", vlan, valid=1, fidId=vlan, vlanClassId=vlan, membershipProfilePtr=profile)
    write("VlanEntry", vlan, stg=group, vlanProfilePtr=2)
    read("VlanEntry", vlan)


dump = os.path.join(samples, "vlan-bcm56990.bin")
for line in velmar("decode", "vlan", "--chip", chip, dump, "--nonzero", "--plain", "-f",
                   "jsonl").splitlines():
    entry = json.loads(line)
    fields["VlanEntry", entry["index"]] = {
        name: value for name, value in entry["fields"].items() if value}
for port in range(0, 64, 8):
    write("VlanStg", 7, **{f"spTreePort{port}-{port + 7}": 3})
for element in range(4):
    write("IgmpMldPktControl", element, igmpQueryToCpu=1, igmpQueryFwdAction=element % 3)
read("VlanEntry", 20)
log("W", address_of("VlanEntry", 20), words_of("VlanEntry", 20))  # writes what is there
for vlan in range(40, 52):
    open_vlan(vlan, 2 + vlan % 3)
write("VlanEntry", 20, learnDisable=1, stg=7)
read("VlanEntry", 20)
log("W", 0x0c7f0000, ["00000000"] * 4)
for vlan in range(52, 62):
    open_vlan(vlan, 4)
    if vlan == 56:
        log("W", address_of("VlanEntry", 56), words_of("VlanEntry", 56)[:2])
fields["VlanEntry", 20]["stg"] = 2  # something else wrote it
read("VlanEntry", 20)
while len(lines) < 200:
    vlan = 40 + random(20)
    write("VlanEntry", vlan, flexCtrAction=random(16), l2EntryKeyType=random(4)) if random(3) else \
        read("VlanEntry", vlan)
with open(path, "w", encoding="utf-8") as file:
    file.write("\n".join(lines[:200]) + "\n")
