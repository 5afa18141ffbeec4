#!/usr/bin/env python3
"""For every class on every chip: what the Python module reads, decodes, encodes, selects, translates and
finds different in random entries agrees with the command. What cannot be right is refused.

usage: python_agrees.py SOURCE_DIR BUILD_DIR"""

import array
import json
import os
import pickle
import random
import re
import sys
import tempfile

import module  # noqa: F401, finds the next two
import velmar
from command import check, finish, golden_tables, run, source

random.seed(31)


def plain(value):
    """A value of the command's JSON as the module gives it."""
    return value["ports"] if "ports" in value else int(value["hex"], 16)


def as_text(value):
    if isinstance(value, int):
        return f"{value:#x}"
    return ",".join(map(str, value)) or "none"


def random_value(field):
    number = random.getrandbits(field.bits)
    if field.type != "bitmap":
        return number
    return [port for port in range(field.bits) if number >> port & 1]


def check_decode(where, layout, target, dump):
    document = json.loads(run("decode", *target, "-", "--input", "raw", "-f", "json", data=dump)[1])
    decoded = layout.decode(dump, expand=True)
    for index, (entry, expected) in enumerate(zip(decoded, document["entries"])):
        fields = {name: plain(value) for name, value in expected["fields"].items()}
        if "outsideFields" in expected:
            fields["outsideFields"] = int(expected["outsideFields"], 16)
        check(entry == fields, f"{where}: {entry}, the command has {fields}")
        address = layout.address(index)
        check(address == int(expected["address"], 16), f"{where}: address of {index}")
        check((layout, index, 0) in [(place.layout, place.index, place.identifier)
                                     for place in velmar.find(address, layout.chip)],
              f"{where}: {address:#x} is not found")
    short = layout.decode(dump)
    for family in layout.families:
        check([[entry[field.name] for field in family.fields] for entry in decoded] ==
              [entry[family.name] for entry in short], f"{where}: {family}")
    for entries in (decoded, short):
        check(b"".join(map(layout.encode, entries)) == dump and len(entries) == len(document["entries"]),
              f"{where}: encode of decode")


def check_encode(where, layout, target, base):
    values = {field.name: random_value(field) for field in layout.fields
              if not field.overlaps and random.random() < 0.5}
    texts = [f"{name}={as_text(value)}" for name, value in values.items()]
    if not texts:
        return base
    check(layout.encode(values) == run("encode", *target, *texts, "-f", "raw")[1],
          f"{where}: encode {texts}")
    expected = run("encode", *target, *texts, "--base", "-", "--input", "raw", "-f", "raw",
                   data=base)[1]
    changed = layout.encode(values, base)
    check(changed == expected, f"{where}: encode over an entry {texts}")
    return changed


def check_diff(where, layout, target, old, new):
    with tempfile.NamedTemporaryFile() as file:
        file.write(old)
        file.flush()
        text = run("diff", *target, file.name, "-", "--input", "raw", "-f", "json", data=new)[1]
    rows = json.loads(text)["entries"]
    for row in rows:
        for value in row.get("fields", {}).values():
            value.update({side: plain(value[side]) for side in ("old", "new")})
    check(layout.diff(old, new) == rows, f"{where}: {layout.diff(old, new)}, the command has {rows}")


def check_select(where, layout, target, dump):
    """A dump in text, and its entries that fit a condition."""
    text = run("encode", *target, "--base", "-", "--input", "raw", "-f", "hex", data=dump)[1]
    field = random.choice(layout.fields)
    condition = f"{field.name}={as_text(layout.decode(dump, expand=True)[0][field.name])}"
    document = json.loads(run("decode", *target, "-", "--where", condition, "-f", "json", data=text)[1])
    with tempfile.NamedTemporaryFile() as file:
        file.write(text)
        file.flush()
        check(velmar.load(file.name, layout.table, layout.chip).data == dump, f"{where}: load")
        selected = velmar.load(file.name, layout.table, layout.chip, where=condition)
    check(list(selected.indexes) == [entry["index"] for entry in document["entries"]],
          f"{where}: {condition}: {selected.indexes}, the command has {document}")
    check([entry[field.name] for entry in layout.decode(selected, expand=True)] ==
          [plain(entry["fields"][field.name]) for entry in document["entries"]],
          f"{where}: {condition}")


def check_identify(where, layout, dump):
    options = "--table", layout.table, "--chip", layout.chip
    expected = json.loads(run("identify", *options, "-", "--input", "raw", "-f", "json", data=dump)[1])
    fits = velmar.identify(dump, layout.table, layout.chip, input="raw")
    check(fits == expected["fits"], f"{where}: {fits}, the command has {expected}")


def check_translate(where, layout, dump):
    chips = [chip.name for chip in velmar.chips()
             if layout.table in [table.name for table in velmar.tables(chip.name)]]
    other = random.choice(chips)
    code, expected, lost = run("translate", layout.table, "--from", layout.chip, "--to", other, "--lossy",
                               "-", "--input", "raw", "-f", "json", data=dump)
    translated, losses = velmar.translate(layout.select(dump), other)
    rows = json.loads(expected)["entries"] if expected else []
    check([(index, int(row["address"], 16)) for index, row in zip(translated.indexes, rows)] ==
          [(row["index"], translated.layout.address(row["index"])) for row in rows] and
          [{name: plain(value) for name, value in row["fields"].items()} for row in rows] ==
          translated.layout.decode(translated, expand=True), f"{where} to {other}: {translated}, {expected}")
    lines = [line for line in lost.splitlines() if line.startswith("velmar: lost: ")]
    check([line.split(": ")[2:4] for line in lines] ==
          [[loss["field"], loss["reason"] + "; in " + line.split("; in ")[1].split(": ")[0]]
           for loss, line in zip(losses, lines)] and len(lines) == len(losses) and
          code == (1 if losses else 0), f"{where} to {other}: {losses}, the command has {lost}")


for table in golden_tables():
    where = f"{table.name} on {table.chip}"
    target = (table.name, "--chip", table.chip)
    layout = velmar.layout(table.name, table.chip)
    size = layout.entry_bytes
    single = 1 << random.randrange(8 * size)
    entries = [random.randbytes(size), bytes([255] * size), single.to_bytes(size, "little"),
               bytes(size)][:table.count]
    check_decode(where, layout, target, b"".join(entries))
    changed = check_encode(where, layout, target, entries[0])
    check_diff(where, layout, target, b"".join(entries),
               b"".join([changed, *entries[1:2], random.randbytes(size)][:table.count]))
    check_select(where, layout, target, b"".join(entries))
    check_identify(where, layout, random.choice(entries))
    check_translate(where, layout, b"".join(entries))
check("numpy" not in sys.modules, "without columns the module needs numpy")

os.chdir(source)

vlan = velmar.layout("vlan", 33)
egress = velmar.layout("EgrVlan", "56980")
data = open("samples/vlan-bcm56990.bin", "rb").read()
check(pickle.loads(pickle.dumps(vlan)).chip == "BCM56990_B0", "a layout that was pickled")
check(egress.encode({"PORT_BITMAP": {3, 1}, "stg": True}) ==
      egress.encode({"portBitmap": [1, 3], "stg": 1}), "names and forms of values")
ones = bytes([255] * 16)
(cleared,) = vlan.decode(vlan.encode({"outsideFields": 0}, ones))
(full,) = vlan.decode(ones)
check(full.pop("outsideFields") and full == cleared, "bits outside all fields are cleared")
same = vlan.decode(memoryview(data)), vlan.decode(bytearray(data))
check(same[0] == same[1] == vlan.decode(data), "buffers of other types")

listed = json.loads(run("tables", "-c", "33", "-f", "json")[1])["tables"]
check([(table.name, table.kind, table.purpose) for table in velmar.tables(33)] ==
      [(row["table"], row["kind"], row["purpose"]) for row in listed], "tables of a chip")
check(velmar.Chip(vlan.chip, 33) in velmar.chips(), "chips")
check(velmar.layout("VLAN_ENTRY", "56990") == vlan, "a layout by another name")
for chips, of_table in ((("56275_A0", "56175_A0"), "vlan"), (("56870_A0", "56990_B0"), None)):
    words = [word for chip in chips for word in ("--chip", chip)]
    document = json.loads(run("compare", *filter(None, [of_table]), *words, "-f", "json")[1])
    rows = velmar.compare(*chips, of_table)
    check(rows == document["differences"] and rows, f"compare {chips}: {rows}")
whole = json.loads(run("identify", "samples/vlan-bcm56990.bin", "-f", "json")[1])["fits"]
check(velmar.identify("samples/vlan-bcm56990.bin") == whole == velmar.identify(data), "identify")
raw = velmar.load("samples/vlan-bcm56990.bin", "vlan", 33)
check((raw.indexes, raw.data) == (range(vlan.entries), data), "load of a raw dump")

# Indexes of a dump in text stay with its entries.
with tempfile.NamedTemporaryFile("w") as file:
    file.write("5: 00000001\n7: 00000002\n")
    file.flush()
    dump = velmar.load(file.name, "VlanMpls", 33)
    part = velmar.load(file.name, "VlanMpls", 33, hex_order="bytes", input="hex")
mpls = dump.layout
check((list(dump.indexes), dump.data) == ([5, 7], bytes.fromhex("0100000002000000")), f"{dump}")
check(part.data == bytes.fromhex("0000000100000002"), f"{part}")
check([row["index"] for row in mpls.diff(dump, part)] == [5, 7], "diff of dumps")
check([(row["index"], row["change"]) for row in mpls.diff(dump, bytes(24))] ==
      [(i, "only in NEW") for i in range(5)] + [(5, "changed"), (7, "only in OLD")],
      "diff of dumps with other indexes")

ecc = velmar.layout("IngVpVlanMembershipEcc", "56470")
member = velmar.layout("IngVpVlanMembership", "56470")
groups = velmar.layout("VlanStg", "56980")
for call, message in (
        (lambda: vlan.decode(data[:-1]), "give whole entries of 16 bytes"),
        (lambda: vlan.decode(data + data), "give at most 8192"),
        (lambda: vlan.diff(data[:5], data), "give whole entries"),
        (lambda: vlan.diff(dump, data), "VlanMplsEntry on BCM56990_B0, not of VlanEntry"),
        (lambda: mpls.diff(velmar.Dump(mpls, [5, 5, 6], dump.data), dump), "one index for each"),
        (lambda: mpls.decode(velmar.Dump(mpls, [-5, 7], dump.data)), "the index -5"),
        (lambda: mpls.decode(array.array("d", [1.5])), "items of 8 bytes"),
        (lambda: velmar.compare(33, 30, "--help"), 'unknown table "--help"'),
        (lambda: velmar.layout("VlanStgB", 33).field("SP_TREE_PORT"), "are many fields"),
        (lambda: velmar.layout("VlanStgB", 33).field("spTreePort1"), "has no field"),
        (lambda: vlan.encode({"stg": 64}), 'stg: value "64" does not fit; the field has 6 bits'),
        (lambda: vlan.encode({"stg": 1 << 64}), 'stg: value "0x10000000000000000" does not fit'),
        (lambda: vlan.encode({"stg": -1}), "-1 is negative"),
        (lambda: vlan.encode({"stg": 1.0}), "1.0 is not a number"),
        (lambda: vlan.encode({"sgt": 1}), "did you mean stg"),
        (lambda: vlan.encode({"stg": 1, "STG": 2}), "stg is given twice"),
        (lambda: vlan.encode({}, data[:32]), "give one entry"),
        (lambda: vlan.encode({"outsideFields": 1}), "bits inside fields"),
        (lambda: vlan.encode({"outsideFields": 1 << 128}), "does not fit; the field has 128 bits"),
        (lambda: ecc.encode({"eccData": 1 << 82}), "eccData: value .* does not fit"),
        (lambda: member.encode({"key": 0, "vlan": 1}), "key and vlan share bits"),
        (lambda: egress.encode({"portBitmap": [160]}), "no port 160; .* ports 0 to 159"),
        (lambda: egress.encode({"portBitmap": [True, False]}), "a row of 2 booleans; give one of 160"),
        (lambda: egress.encode({"portBitmap": [True] * 159 + [1]}), "numbers and booleans are mixed"),
        (lambda: egress.encode({"portBitmap": [3, 1, 3]}), "port 3 is given twice"),
        (lambda: egress.encode({"portBitmap": [-1]}), "port -1 is negative"),
        (lambda: groups.encode({"spTreePort": [1] * 159}), "159 values; give 160"),
        (lambda: groups.encode({"spTreePort": [4] * 160}), "spTreePort0: .* largest value is 3"),
        (lambda: groups.encode({"spTreePort0-161": 1}), "has no field"),
        (lambda: velmar.ranges([True, 2]), "numbers and booleans are mixed"),
        (lambda: egress.encode({"portBitmap": 3}), "3 is not ports"),
        (lambda: egress.encode({"portBitmap": "0-3"}), "'0-3' is not ports"),
        (lambda: vlan.address(1 << 32), "not a number of 32 bits"),
        (lambda: velmar.find(-1, 33), "not a number of 32 bits"),
        (lambda: vlan.select(data, "sgt=3"), "did you mean stg"),
        (lambda: vlan.select(data, ["stg=3", "stg~3"]), "stg is a number"),
        (lambda: vlan.select(data[:16], indexes="1-3"), "no entry with index 1-3"),
        (lambda: velmar.load("samples", "vlan", 33), "^samples: cannot open: Is a directory"),
        (lambda: velmar.load("samples/vlan-bcm56990.bin", "vlan", 33, stride=0), "stride 0"),
        (lambda: velmar.load("samples/vlan-bcm56990.bin", "vlan", 33, first=1), "from index 1 on end beyond VlanEntry"),
        (lambda: velmar.load("samples/vlan-bcm56990.bin", "vlan", 33, input="yaml"), '"yaml"'),
        (lambda: velmar.load("/dev/zero", "vlan", 33), "^/dev/zero: .* more than 64 MiB"),
        (lambda: velmar.identify(b""), "^empty"),
        (lambda: velmar.translate(vlan.select(data), "56999"), "unknown chip"),
        (lambda: velmar.layout("vlan\0", 33), "zero character"),
        (lambda: velmar.load("no-such-file", "vlan", 33), "^no-such-file: cannot open")):
    try:
        check(False, f"not refused: {message}: {call()}")
    except velmar.Error as error:
        check(re.search(message, str(error)), f"{error}, expected {message}")
check(velmar.find(0xffffffff, 33) == [], "an address without an entry")

with tempfile.NamedTemporaryFile("w") as file:
    file.write("1 2 3 4\n")
    file.flush()
    for call, place, choices in (
            (lambda: velmar.load(file.name, "VlanMpls", 33), f"{file.name}:1: ",
             {"hex_order": ("bytes", "words")}),
            (lambda: velmar.load("samples/vlan-bcm56990.bin", "vlan", 33, hex_order="int"),
             "samples/vlan-bcm56990.bin: ", {"hex_order": ()})):
        try:
            check(False, f"not refused: {place}: {call()}")
        except velmar.Error as error:
            check(str(error).startswith(place) and error.choices == choices and
                  (error.line == 1) == (":1" in place), f"{error}: {vars(error)}")
finish()
