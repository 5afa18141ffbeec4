#!/usr/bin/env python3
"""Forms of data and values: what numpy, pandas, notebooks and Python's protocols make of layouts, dumps and
columns. What may be two things is refused; all that is refused is velmar.Error.

usage: python_forms.py SOURCE_DIR BUILD_DIR"""

import ctypes
import copy
import html.parser
import os
import pydoc
import random
import re
import subprocess
import sys
import weakref

import module
import numpy
import pandas
import velmar
from command import check, finish, golden_tables

os.chdir(module.source)
random.seed(25)
vlan = velmar.layout("vlan", 33)
egress = velmar.layout("EgrVlan", "56980")
groups = velmar.layout("VlanStg", "56980")
late = velmar.layout("VlanStgB", "56990")
data = open("samples/vlan-bcm56990.bin", "rb").read()
entries = numpy.frombuffer(data, numpy.uint8).reshape(-1, vlan.entry_bytes)


def refused(call, message, kind=velmar.Error):
    try:
        check(False, f"not refused: {message}: {call()}")
    except velmar.Error as error:
        check(re.search(message, str(error)) and isinstance(error, kind), f"{error!r}, expected {message}")


class Long(bytes):
    def __len__(self):
        return 1 << 20


# Data: the last axis is an entry. What the buffer protocol says counts.
words = entries.view("<u4")
for form in (entries, words, words.reshape(2, -1, 4), words.reshape(-1), bytearray(data), memoryview(data),
             (ctypes.c_uint8 * len(data)).from_buffer_copy(data), numpy.asfortranarray(words), Long(data),
             (ctypes.c_uint32 * words.size).from_buffer_copy(data)):
    check(vlan.columns(form)["stg"].tolist() == vlan.columns(data)["stg"].tolist(),
          f"{type(form)} {getattr(form, 'shape', '')}")
for form in (entries.T, words[:, :2], words[:4, :3], numpy.zeros((4, 5), numpy.uint8), words.T):
    for call in vlan.columns, vlan.decode, vlan.select:
        refused(lambda: call(form), r"the shape \(.*; give rows of 16 bytes")
refused(lambda: vlan.decode(words.astype(">u4")), "format '>I'")
refused(lambda: vlan.decode(Long(data[:-1])), "give whole entries")
check(velmar.identify(Long(data)) == velmar.identify(data), "identify")

# Rows of a column are ports.
members = velmar.load("samples/egr-vlan-bcm56980.bin", egress.table, egress.chip)
for row, entry in zip(egress.columns(members)["portBitmap"], members):
    ports = entry["portBitmap"]
    for form in (row, list(row), row.tolist(), row.astype(int), row.astype("uint8"), ports, set(ports),
                 numpy.array(ports), iter(ports)):
        check(egress.decode(egress.encode({"portBitmap": form}))[0]["portBitmap"] == ports,
              f"{type(form)}: {form}")
    check(velmar.ranges(row) == velmar.ranges(ports) == velmar.ranges(numpy.array(ports, int)),
          f"ranges: {velmar.ranges(row)}")
check(velmar.ranges([0, 1]) == "0-1" and velmar.ranges([False, True]) == "1", "ranges")

# Layouts are shared, and cannot be changed; columns own their memory.
for change in (lambda: setattr(vlan, "entry_bytes", 1), lambda: setattr(vlan.fields[0], "bits", 1),
               lambda: vlan.fields.append(1), lambda: delattr(vlan, "base"),
               lambda: setattr(velmar.find(vlan.base, 33)[0], "index", 1),
               lambda: setattr(groups.families[0], "fields", ())):
    try:
        change()
        check(False, "a layout was changed")
    except AttributeError:
        pass
for layout in vlan, egress, groups, velmar.layout("IngVpVlanMembershipEcc", 21):
    columns = layout.columns(bytes(8 * layout.entry_bytes))
    check(all(column.base is None or column.base.nbytes <= 2 * column.nbytes + 256
              for column in columns.values()), f"{layout}: columns keep others alive")
    watched = weakref.ref(next(iter(columns.values())))
    del columns
    check(watched() is None, f"{layout}: a column stays alive")

# Families, also where the ports do not begin at 0; columns to bytes again, for every layout.
for table in golden_tables():
    layout = velmar.layout(table.name, table.chip)
    dump = random.randbytes(layout.entry_bytes * min(3, table.count))
    base = random.randbytes(len(dump))
    for expand in False, True:
        columns = layout.columns(dump, expand=expand)
        changed = layout.encode_columns(columns, base)
        check([layout.encode({name: value for name, value in entry.items() if name != "outsideFields"},
                             base[i * layout.entry_bytes:(i + 1) * layout.entry_bytes])
               for i, entry in enumerate(layout.decode(dump))] ==
              [changed[i:i + layout.entry_bytes] for i in range(0, len(dump), layout.entry_bytes)],
              f"{layout}: encode_columns")
    small = layout.columns(dump, dtype="smallest")
    for name, column in layout.columns(dump).items():
        check((small[name] == column).all() and small[name].itemsize <= column.itemsize,
              f"{layout}: {name}: {small[name].dtype}")
    for name, column in layout.columns(dump).items():
        again = layout.columns(layout.encode_columns({name: column}))[name]
        check((again == column).all(), f"{layout}: {name} alone")
check(late.families[0].numbers == tuple(range(136, 272)), f"{late.families}")
mixed = groups.encode({"spTreePort*": 1, "spTreePort0-3": 3, "SP_TREE_PORT2": 2})
check(groups.decode(mixed)[0]["spTreePort"] == [3, 3, 2, 3] + [1] * 156, "the later name wins")
check(groups.encode({groups.families[0]: 1}) == groups.encode({"sp-tree-port": [1] * 160}), "one for all")
check(list(groups.columns(mixed, ["spTreePort0-1", "SP_TREE_PORT"])) ==
      ["spTreePort0", "spTreePort1", "spTreePort"], "names of columns")
column = vlan.columns(data)["stg"]
member = velmar.layout("IngVpVlanMembership", "56470")
for call, message in (
        (lambda: vlan.encode_columns({"stg": column[:5]}, data), r"shape \(5,\); give one of \(8192,\)"),
        (lambda: vlan.encode_columns({"stg": column + 60}, data), 'stg: value "6\\d" does not fit'),
        (lambda: vlan.encode_columns({"stg": column - 9}, data), "stg: -.* does not fit"),
        (lambda: vlan.encode_columns({"stg": column * 1.0}, data), "an array of float64"),
        (lambda: vlan.encode_columns({"stg": 1, "STG": column}, data), "stg is given twice"),
        (lambda: vlan.encode_columns({"stg": 1}), "how many entries"),
        (lambda: vlan.encode_columns([1]), "is not a dict"),
        (lambda: groups.encode_columns({"spTreePort": numpy.full((2, 160), 256)}), "256 does not fit"),
        (lambda: egress.encode_columns({"portBitmap": numpy.full((2, 160), 2)}), "2 does not fit"),
        (lambda: member.encode_columns({"key": [0], "vlan": [1]}), "shares bits"),
        (lambda: vlan.columns(data, dtype="uint8"), "dtype has no choice")):
    refused(call, message)
try:
    vlan.encode_columns({"stg": column * 0 + 64}, data[:16 * 8192])
except velmar.Error as error:
    check((error.field, error.entry) == ("stg", 0), f"{vars(error)}")
part = vlan.select(data, indexes="5,100-102")
moved = vlan.encode_columns({"stg": 7}, part)
check(list(moved.indexes) == [5, 100, 101, 102] and [entry["stg"] for entry in moved] == [7] * 4 and
      [row["index"] for row in vlan.diff(part, moved)] == [5, 100, 101, 102], f"{moved}")

# Dumps are sequences.
dump = velmar.load("samples/vlan-bcm56990.bin", "vlan", 33)
check((len(dump), dump[20]["stg"], dump[-1], dump[numpy.int64(20)]) ==
      (8192, 2, vlan.decode(data[-16:])[0], dump[20]), "length and indexing")
check(dump[20:22].data == data[320:352] and list(dump[20:22].indexes) == [20, 21] and
      dump[::-1][0] == dump[-1] and [entry for entry in dump[:3]] == vlan.decode(data[:48]), "slices")
check(dump == copy.copy(dump) == velmar.Dump(vlan, list(range(8192)), data) and
      hash(dump) == hash(velmar.Dump(vlan, list(range(8192)), data)) and dump != dump[1:] and
      dump[1:2] != velmar.Dump(vlan, [2], dump[1:2].data) and dump != data, "equality")
check(dump.where("stg=3", "valid=1") == vlan.select(dump, ["stg=3", "valid=1"]) and
      len(dump.where("stg=3")) == 4, "where")
check(velmar.Dump(vlan, numpy.array([3, 4]), data[:32]) == velmar.Dump(vlan, [3, 4], data[:32]),
      "numpy integers as indexes")

# Objects wherever names are taken.
chip, = (chip for chip in velmar.chips() if chip.number == 33)
table, = (table for table in velmar.tables(chip) if table.name == "VlanEntry")
stg = vlan.field("stg")
check(velmar.layout(table, chip) is vlan and velmar.layout(table, numpy.int64(33)) is vlan, "layout")
check(vlan.field(stg) == vlan.field(stg.id) == vlan.field(str(stg.id)) == stg, "field")
check(vlan.encode({stg: 3}) == vlan.encode({stg.id: 3}) == vlan.encode({"STG": 3}), "encode")
check(list(vlan.columns(data, stg)) == list(vlan.columns(data, [stg])) == ["stg"], "columns")
for name in chip, "33", "bcm56990_b0":
    check(velmar.find(vlan.address(5), name) == velmar.find(vlan.address(5), 33), "find")
check(velmar.compare(chip, 30, table) == velmar.compare("33", "30", "vlan"), "compare")
check(velmar.identify(data, table, chip) == velmar.identify(data, "vlan", 33), "identify")

for call, kind in (
        (lambda: velmar.layout(None, 33), TypeError), (lambda: velmar.layout("vlan", 1.5), TypeError),
        (lambda: velmar.layout("vlan", 33, "0"), TypeError), (lambda: vlan.field(None), TypeError),
        (lambda: vlan.decode("text"), TypeError), (lambda: vlan.decode(5), TypeError),
        (lambda: vlan.decode(None), TypeError), (lambda: vlan.encode(5), TypeError),
        (lambda: vlan.encode({None: 1}), TypeError), (lambda: vlan.encode({"stg": None}), TypeError),
        (lambda: vlan.columns(data, 1.5), TypeError), (lambda: vlan.columns(data, [None]), TypeError),
        (lambda: vlan.select(data, 5), TypeError), (lambda: vlan.select(data, [5]), TypeError),
        (lambda: vlan.select(data, indexes=5), TypeError), (lambda: vlan.address("1"), TypeError),
        (lambda: velmar.find("1", 33), TypeError), (lambda: velmar.load(5.5, "vlan", 33), TypeError),
        (lambda: velmar.load("samples", "vlan", 33, stride="4"), TypeError),
        (lambda: velmar.identify(5), TypeError), (lambda: velmar.translate(data, 33), TypeError),
        (lambda: velmar.ranges(5), TypeError), (lambda: velmar.ranges(egress.columns(members)), TypeError),
        (lambda: velmar.ranges([1.5]), TypeError), (lambda: dump[8192], IndexError),
        (lambda: dump["stg"], TypeError), (lambda: vlan.frame(data, long=True), ValueError),
        (lambda: vlan.decode(velmar.Dump(vlan, [1.5], data[:16])), TypeError),
        (lambda: vlan.decode(velmar.Dump(vlan, 5, data[:16])), TypeError)):
    refused(call, "; ", kind)

# Frames and notebooks.
frame = egress.frame(members)
check(list(frame.index) == list(members.indexes) and list(frame["portBitmap"]) ==
      [velmar.ranges(entry["portBitmap"]) for entry in members] and len(frame.columns) == len(egress.fields),
      f"{frame}")
states = velmar.load("samples/vlan-stg-bcm56980.bin", groups.table, groups.chip)
long = groups.frame(states, long=True)
check(long.loc[(1, 10), "spTreePort"] == states[1]["spTreePort"][10] and
      groups.frame(states).loc[1, "spTreePort10"] == states[1]["spTreePort"][10] and
      len(long) == 4 * 160 and isinstance(long, pandas.DataFrame), f"{long}")


class Reader(html.parser.HTMLParser):
    """What is opened is closed; the widths of the rows of a bit diagram."""

    def __init__(self, text):
        super().__init__()
        self.open, self.rows = [], []
        self.feed(text)
        check(not self.open, f"not closed: {self.open}")

    def handle_starttag(self, tag, attributes):
        self.open.append(tag)
        if tag == "tr":
            self.rows.append(0)
        if tag == "td":
            self.rows[-1] += int(dict(attributes).get("colspan", 0))

    def handle_endtag(self, tag):
        check(self.open and self.open.pop() == tag, f"</{tag}>")


for table in golden_tables():
    layout = velmar.layout(table.name, table.chip)
    text = layout._repr_html_()
    check(sorted(Reader(text).rows)[-layout.words:] == [32] * layout.words,
          f"{layout}: the bit diagram has other widths")
    check(all(f"<td>{field.name}</td>" in text for field in layout.fields), f"{layout}: a field is missing")
Reader(dump._repr_html_())
check("8172 more entries" in dump._repr_html_() and "{0: 0  3: 1-9,11-155,157" in states._repr_html_(),
      "the HTML of a dump")

lines = pydoc.render_doc(velmar, renderer=pydoc.plaintext).splitlines()
check(len(lines) <= 250, f"help(velmar) has {len(lines)} lines")
done = subprocess.run([sys.executable, "-B", "examples/three-dumps.py"], capture_output=True, text=True)
expected = re.findall("^#> (.*)$", open("examples/three-dumps.py", encoding="utf-8").read(), re.M)
check(done.stdout.splitlines() == expected and expected, f"examples/three-dumps.py: {done}")
finish()
