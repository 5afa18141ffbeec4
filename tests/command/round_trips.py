#!/usr/bin/env python3
"""For every class on every chip: what decode prints of random, full and single-bit entries agrees with
the golden layout, and what it writes in each format is read back to the same bytes.

usage: round_trips.py SOURCE_DIR BUILD_DIR"""

import csv
import io
import json
import random
import re
import tempfile

from command import bits, check, finish, golden_tables, run

random.seed(20)
edits = random.Random(21)


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


def expanded(fields):
    """The fields of a compact entry with their values, those of families one by one."""
    for name, value in fields.items():
        if not isinstance(value, dict):
            yield name, value
            continue
        for each, numbers in value.items():
            for first, last in ((part.split("-") * 2)[:2] for part in numbers.split(",")):
                yield from ((f"{name}{number}", int(each)) for number in range(int(first), int(last) + 1))


def check_compact(where, table, text, entries):
    for line, entry in zip(text.splitlines(), entries):
        shown = list(expanded(json.loads(line)["fields"]))
        check(len(shown) == len(dict(shown)) == len(table.fields), f"{where}: compact fields")
        wrong = [field.name for field in table.fields if isinstance(dict(shown)[field.name], int) and
                 dict(shown)[field.name] != bits(entry, field)]
        check(not wrong, f"{where}: compact values of {wrong[:3]}")


def check_edit(table, target, dump, documents):
    """One value of an entry changes, in a field that shares bits where there is one: with the dump as the
    base all else stays, also with documents that lack fields."""
    def fields_at(bit):
        return [field for field in table.fields if field.offset <= bit < field.offset + field.width]

    # A bit of several fields, if there is one.
    covered = [bit for bit in range(8 * table.entry_bytes) if fields_at(bit)]
    bit = edits.choice([bit for bit in covered if len(fields_at(bit)) > 1] or covered)
    field = edits.choice(fields_at(bit))
    size, index = table.entry_bytes, edits.randrange(len(dump) // table.entry_bytes)
    entry = dump[index * size:(index + 1) * size]
    changed = (int.from_bytes(entry, "little") ^ 1 << bit).to_bytes(size, "little")
    value = bits(changed, field)
    expected = dump[:index * size] + changed + dump[(index + 1) * size:]
    where = f"{table.name} on {table.chip}, entry {index}, {field.name}={value:#x}"

    lines = list(csv.DictReader(io.StringIO(documents["csv"])))
    lines[index][field.name] = hex(value)
    texts = []
    for names in (lines[0].keys(), ("index", field.name)):
        text = io.StringIO()
        writer = csv.DictWriter(text, names, extrasaction="ignore", lineterminator="\n")
        writer.writeheader()
        writer.writerows(lines)
        texts.append(text.getvalue())
    plain = [json.loads(line) for line in documents["plain"].splitlines()]
    plain[index]["fields"][field.name] = hex(value)
    texts.append("\n".join(map(json.dumps, plain)))
    for text in texts:
        done = run("encode", *target, "--base", base_path, "--input", "raw", "@-", data=text.encode())
        check(done[:2] == (0, expected), f"{where}: {done[2] or text[:300]}")
    alone = json.dumps(plain[index]["fields"]).encode()
    done = run("encode", *target, "--base", base_path, "--input", "raw", "--index", str(index), "@-",
               data=alone)
    check(done[:2] == (0, expected), f"{where}, values alone: {done[2]}")
    # Without the base, what contradicts its twin is refused, and so is what lacks fields.
    whole = run("encode", *target, "@-", "-f", "raw", data=texts[0].encode())
    check("disagree" in whole[2] and "--base" in whole[2] if len(fields_at(bit)) > 1 else
          whole[:2] == (0, expected), f"{where} without the base: {whole[2]}")
    for text in texts[1], json.dumps({"fields": {field.name: hex(value)}}):
        part = run("encode", *target, "@-", data=text.encode())
        check(part[0] == 0 if len(table.fields) == 1 else part[1] == b"" and
              re.search(r"lacks the field .*--base", part[2]), f"{where}, one field: {part[2]}")


base_file = tempfile.NamedTemporaryFile()
base_path = base_file.name
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
    hexadecimal = run("encode", *target, "--base", "-", "--input", "raw", "-f", "hex", data=dump)[1]
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

    # A base is written in its own form.
    forms = {"json": ("json",), "jsonl": ("jsonl",), "csv": ("csv",), "plain": ("jsonl", "--plain"),
             "compact": ("jsonl", "--plain", "--compact"), "compact json": ("json", "--compact")}
    documents = {form: run("decode", *target, "-", "--input", "raw", "-f", *options, data=dump)[1].decode()
                 for form, options in forms.items()}
    for form, text in {**documents, "hex": hexadecimal.decode()}.items():
        same = run("encode", *target, "--base", "-", data=text.encode())
        check(same[:2] == (0, text.encode()), f"{where}: a base of {form} changes: {same[2]}")
    same = run("encode", *target, "--base", "-", "--input", "raw", data=dump)
    check(same[:2] == (0, dump), f"{where}: a raw base changes: {same[2]}")
    check_compact(where, table, documents["compact"], entries)
    with open(base_path, "wb") as file:
        file.write(dump)
    check_edit(table, target, dump, documents)
finish()
