#!/usr/bin/env python3
"""For every class on every chip: what decode prints of random, full and single-bit entries agrees with
the golden layout, and what it writes in each format is read back to the same bytes.

usage: round_trips.py SOURCE_DIR BUILD_DIR"""

import json
import random

from command import bits, check, finish, golden_tables, run

random.seed(20)


def entries_of(table):
    size = table.entry_bytes
    single = 1 << random.randrange(8 * size)
    entries = [random.randbytes(size), bytes([255] * size), single.to_bytes(size, "little"),
               bytes(size), random.randbytes(size)]
    return entries[:table.count]


def check_field(where, field, value, entry):
    expected = bits(entry, field)
    check(value["hex"] == f"{expected:#x}", f"{where}: {value}, expected {expected:#x}")
    if field.type == "Oru::PerUnitBitmap" or field.type == "bitmap":
        ports = [port for port in range(field.width) if expected >> port & 1]
        check(value["ports"] == ports, f"{where}: {value}, expected ports {ports}")
    elif field.width <= 53:
        check(value["decimal"] == expected, f"{where}: {value}, expected {expected}")
    else:
        check("decimal" not in value, f"{where}: decimal of {field.width} bits")


def check_entry(table, index, decoded, entry):
    where = f"{table.name} on {table.chip}, entry {index}"
    check(decoded["index"] == index, where)
    if table.count > 1 and "Control" not in table.name:
        check(int(decoded["address"], 16) == table.base + index, f"{where}: address")
    check((decoded["accessType"], decoded["block"]) == (table.access, table.block), where)
    check(set(decoded["fields"]) == {field.name for field in table.fields}, f"{where}: fields")
    for field in table.fields:
        check_field(f"{where}, {field.name}", field, decoded["fields"][field.name], entry)
    covered = 0
    for field in table.fields:
        covered |= (1 << field.width) - 1 << field.offset
    outside = int.from_bytes(entry, "little") & ~covered
    check(int(decoded.get("outsideFields", "0x0"), 16) == outside, f"{where}: outside")


def xxd(data):
    lines = []
    for at in range(0, len(data), 16):
        piece = data[at:at + 16]
        groups = " ".join(piece[i:i + 2].hex() for i in range(0, len(piece), 2))
        text = "".join(chr(b) if 32 <= b < 127 else "." for b in piece)
        lines.append(f"{at:08x}: {groups:<39}  {text}\n")
    return "".join(lines).encode()


def number(entry):
    return f"{int.from_bytes(entry, 'little'):x}\n"


tables = list(golden_tables())
check(len(tables) > 200, "the golden data are cut short")
for table in tables:
    entries = entries_of(table)
    dump = b"".join(entries)
    target = (table.name, "--chip", table.chip)
    where = f"{table.name} on {table.chip}"

    code, document, errors = run("decode", *target, "-", "--input", "raw", "-f", "json", data=dump)
    check(code == 0 and errors == "", f"{where}: {errors}")
    decoded = json.loads(document)
    check(decoded["entryBytes"] == table.entry_bytes and decoded["chip"] == table.chip, where)
    for index, entry in enumerate(entries):
        check_entry(table, index, decoded["entries"][index], entry)

    lines = run("decode", *target, "-", "--input", "raw", "-f", "jsonl", data=dump)[1]
    hexadecimal = run("encode", *target, "--base", "-", "--input", "raw", data=dump)[1]
    words = run("encode", *target, "--base", "-", "--input", "raw", "-f", "words", data=dump)[1]
    numbers = "".join(number(entry) for entry in entries).encode()
    for name, text, options in (("json", document, ()), ("jsonl", lines, ()),
                                ("hex", hexadecimal, ()), ("words", words, ()),
                                ("xxd", xxd(dump), ()),
                                ("int", numbers, ("--hex-order", "int"))):
        back = run("encode", *target, "--base", "-", "-f", "raw", *options, data=text)
        check(back[:2] == (0, dump), f"{where}: {name} does not give the same bytes: {back[2]}")
    back = run("encode", *target, "@-", "-f", "raw", data=document)
    check(back[:2] == (0, dump), f"{where}: @- does not give the same bytes: {back[2]}")
finish()
