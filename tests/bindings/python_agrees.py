#!/usr/bin/env python3
"""For every class on every chip: what the Python module decodes, encodes and finds different in random
entries agrees with the command. What cannot be right is refused.

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
    decoded = layout.decode(dump)
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
    back = b"".join(map(layout.encode, decoded))
    check(back == dump and len(decoded) == len(document["entries"]), f"{where}: encode of decode")


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
rows = velmar.compare("56275_A0", "56175_A0", "vlan")
check([row["part"] for row in rows] == ["vfi", "l3Iif"], f"compare: {rows}")

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
        (lambda: vlan.encode({"stg": 1 << 64}), "stg: value 0x10000000000000000 does not fit"),
        (lambda: vlan.encode({"stg": -1}), "-1 is negative"),
        (lambda: vlan.encode({"stg": 1.0}), "1.0 is not a number"),
        (lambda: vlan.encode({"sgt": 1}), "did you mean stg"),
        (lambda: vlan.encode({"stg": 1, "STG": 2}), "stg is given twice"),
        (lambda: vlan.encode({}, data[:32]), "give one entry"),
        (lambda: vlan.encode({"outsideFields": 1}), "bits inside fields"),
        (lambda: vlan.encode({"outsideFields": 1 << 128}), "beyond the entry"),
        (lambda: ecc.encode({"eccData": 1 << 82}), "eccData: value .* does not fit"),
        (lambda: member.encode({"key": 0, "vlan": 1}), "key and vlan share bits"),
        (lambda: egress.encode({"portBitmap": [160]}), "no port 160; .* ports 0 to 159"),
        (lambda: egress.encode({"portBitmap": [True, False]}), "True is not a port"),
        (lambda: egress.encode({"portBitmap": 3}), "3 is not ports"),
        (lambda: egress.encode({"portBitmap": "0-3"}), "'0-3' is not ports"),
        (lambda: vlan.address(1 << 32), "not a number of 32 bits"),
        (lambda: velmar.find(-1, 33), "not a number of 32 bits"),
        (lambda: velmar.layout("vlan\0", 33), "zero character"),
        (lambda: velmar.load("no-such-file", "vlan", 33), "^no-such-file: cannot open")):
    try:
        check(False, f"not refused: {message}: {call()}")
    except velmar.Error as error:
        check(re.search(message, str(error)), f"{error}, expected {message}")
check(velmar.find(0xffffffff, 33) == [], "an address without an entry")

for command in "/nonexistent/velmar", "/bin/true":
    os.environ["VELMAR_COMMAND"] = command
    for call in lambda: velmar.compare(33, 6), lambda: velmar.load("samples/vlan-bcm56990.bin", "vlan", 33):
        try:
            check(False, f"{command}: {call()}")
        except velmar.Error as error:
            check("VELMAR_COMMAND" in str(error), f"{command}: {error}")
finish()
