#!/usr/bin/env python3
"""Columns hold what decode gives, for every class on every chip. A whole table takes at most 3 times as
long as the C calls, and at most a twentieth of the time of Python over "velmar export". To load the
largest table takes at most 5 times as long as to read its file, to write a column 3 times as long as to
read it, a family of a whole table twice as long as numpy's unpackbits, and the difference of dumps that
agree 4 times as long as to compare their bytes.

usage: python_columns.py SOURCE_DIR BUILD_DIR"""

import doctest
import json
import os
import random
import statistics
import sys
import tempfile
import time

import module
import velmar
from velmar._library import library
from command import check, finish, golden_tables, run

vlan = velmar.layout("VlanEntry", "BCM56990_B0")
os.chdir(module.source)
with open("samples/vlan-bcm56990.bin", "rb") as file:
    data = file.read()
sys.modules["numpy"] = None
try:
    check(False, f"columns without numpy: {vlan.columns(data)}")
except ImportError as error:
    check("numpy" in str(error), f"columns without numpy: {error}")
del sys.modules["numpy"]
import numpy  # noqa: E402


def from_column(field, item):
    if field.type == "bitmap":
        return numpy.flatnonzero(item).tolist()
    if item.ndim == 1:
        return sum(int(word) << 32 * i for i, word in enumerate(item))
    return int(item)


def form(field):
    """Type and shape of the column, without its length."""
    if field.type == "bitmap":
        return "bool", field.bits
    if field.bits > 64:
        return "uint32", -(-field.bits // 32)
    return ("uint64" if field.bits == 64 else "int64",)


random.seed(32)
for table in golden_tables():
    layout = velmar.layout(table.name, table.chip)
    dump = random.randbytes(layout.entry_bytes * min(3, table.count))
    columns = layout.columns(dump, expand=True)
    entries = layout.decode(dump, expand=True)
    for family in layout.families:
        together = numpy.stack([columns[field.name] for field in family.fields], axis=1)
        check((layout.columns(dump, family.name)[family.name] == together).all(), f"{table}: {family}")
    for field in layout.fields:
        column = columns[field.name]
        got = [from_column(field, item) for item in column]
        check(got == [entry[field.name] for entry in entries] and len(column) == len(entries),
              f"{table.name} on {table.chip}: {field.name}: {got}")
        check((str(column.dtype), *column.shape[1:]) == form(field),
              f"{table.name} on {table.chip}: {field.name}: {column.dtype}, {column.shape}")

buffers = [numpy.empty(vlan.entries, numpy.uint64) for _ in vlan.fields]


def calls():
    for field, buffer in zip(vlan.fields, buffers):
        library.velmar_read_column(vlan._handle, field.index, data, len(data), buffer.ctypes.data,
                                   len(buffer))


def python_over_export():
    catalogue = json.loads(run("export", "VlanEntry", "--chip", "BCM56990_B0")[1])
    fields = catalogue["tables"][0]["layouts"][0]["fields"]
    columns = {name: [] for name in fields}
    places = [(columns[name], place["offset"], (1 << place["width"]) - 1)
              for name, place in fields.items()]
    for at in range(0, len(data), vlan.entry_bytes):
        entry = int.from_bytes(data[at:at + vlan.entry_bytes], "little")
        for column, offset, mask in places:
            column.append(entry >> offset & mask)
    return columns


def measured(*functions, rounds, choose=min):
    """The best time of each in seconds; taken in turns, because other programs run too."""
    times = [[] for _ in functions]
    for _ in range(rounds):
        for function, taken in zip(functions, times):
            start = time.perf_counter()
            function()
            taken.append(time.perf_counter() - start)
    return [choose(taken) for taken in times]


check(doctest.testmod(velmar).failed == 0, "the examples of the module fail")
columns = vlan.columns(data)
check({name: column.tolist() for name, column in columns.items()} == python_over_export(),
      "the two ways differ")
# In blocks that take turns, and the best of each: the machine's speed changes from moment to moment.
blocks = [measured(calls, lambda: vlan.columns(data), rounds=10) + measured(python_over_export, rounds=1)
          for _ in range(8)]
in_c, in_columns, in_python = map(min, zip(*blocks))
print(f"{vlan.entries} entries: C {in_c * 1e3:.2f} ms, columns {in_columns / in_c:.2f} times that, "
      f"Python over export {in_python / in_columns:.0f} times that")
same = bytes(bytearray(data))
groups = velmar.layout("VlanStgEntry", "BCM56960_A0")
states = random.randbytes(groups.entry_bytes * groups.entries)
bits = numpy.frombuffer(states, numpy.uint8).reshape(groups.entries, -1)
pairs = {  # name: what is measured, what it is compared with, and the most that it may take
    "a family": (lambda: groups.columns(states, "spTreePort"),
                 lambda: numpy.unpackbits(bits, axis=1, bitorder="little"), 2),
    "to write a column": (lambda: vlan.encode_columns({"stg": columns["stg"]}, data),
                          lambda: vlan.columns(data, "stg"), 3),
    "no difference": (lambda: vlan.diff(data, same), lambda: data == same, 4)}
for name, (*functions, most) in pairs.items():
    taken, compared = map(min, zip(*(measured(*functions, rounds=20) for _ in range(20))))
    print(f"{name}: {taken * 1e6:.1f} us, {taken / compared:.2f} times what it is compared with")
    check(taken <= most * compared, f"{name} takes more than {most} times what it is compared with")
largest = max(golden_tables(), key=lambda table: table.entry_bytes * table.count)
with tempfile.NamedTemporaryFile() as file:
    file.write(random.randbytes(largest.entry_bytes * largest.count))
    file.flush()
    in_read, in_load = measured(lambda: open(file.name, "rb").read(),
                                lambda: velmar.load(file.name, largest.name, largest.chip),
                                rounds=300, choose=statistics.median)
print(f"{largest.entry_bytes * largest.count} bytes: load {in_load / in_read:.1f} times open().read()")
check(in_load <= 5 * in_read, "load takes more than 5 times open().read()")
check(in_columns <= 3 * in_c, "columns take more than 3 times the C calls")
check(in_python >= 20 * in_columns, "columns are less than 20 times faster than Python over export")
finish()
