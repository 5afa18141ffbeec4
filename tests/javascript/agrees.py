#!/usr/bin/env python3
"""For every class on every chip: what the JavaScript package says of random entries agrees with the
command; so do the comparisons of all pairs of chips. What cannot be right is refused.

usage: agrees.py SOURCE_DIR BUILD_DIR"""

import json
import os
import random
import tempfile

from asking import ask  # finds the next one
from command import check, finish, golden_tables, run

random.seed(26)
requests, expectations = [], []


def expect(what, expected, call, table=None, **rest):
    """Asks for a call and keeps what it must give."""
    requests.append({"call": call, **({} if table is None else {"table": table.name, "chip": table.chip}), **rest})
    expectations.append((what, expected))


def velmar(*arguments, data=b""):
    code, text, errors = run(*arguments, data=data)
    check(code in (0, 1), f"{arguments}: {errors}")
    return text


def of_width(number, width):
    return number if width <= 53 else {"big": hex(number)}


def value_of(field, number):
    if field.type.endswith("itmap"):
        return [port for port in range(field.width) if number >> port & 1]
    return of_width(number, field.width)


def array_of(width):
    return next((name for bits, name in ((32, "Uint32Array"), (53, "Float64Array"), (64, "BigUint64Array"))
                 if width <= bits), "Array")


def all_of(table):
    where, target, raw = f"{table.name} on {table.chip}", (table.name, "--chip", table.chip), ("--input", "raw")
    count = min(3, table.count)
    dump = random.randbytes(count * table.entry_bytes)
    document = velmar("decode", *target, *raw, "-f", "json", "-", data=dump)
    entries = json.loads(document)["entries"]
    numbers = [{name: int(value["hex"], 16) for name, value in entry["fields"].items()} for entry in entries]
    decoded = [{field.name: value_of(field, entry[field.name]) for field in table.fields} for entry in numbers]
    for entry, row in zip(decoded, entries):
        if "outsideFields" in row:
            entry["outsideFields"] = {"big": row["outsideFields"]}
    expect(f"{where}: decode", decoded, "decode", table, bytes=dump.hex())
    expect(f"{where}: encode of decode", dump.hex(), "again", table, bytes=dump.hex())
    expect(f"{where}: columns",
           {field.name: [array_of(field.width), [of_width(entry[field.name], field.width) for entry in numbers]]
            for field in table.fields}, "columns", table, bytes=dump.hex())
    expect(f"{where}: JSON", document.decode(), "json", table, bytes=dump.hex())
    expect(f"{where}: CSV", velmar("decode", *target, *raw, "-f", "csv", "-", data=dump).decode(),
           "csv", table, bytes=dump.hex())
    listed = json.loads(velmar("addr", "--chip", table.chip, "--find", hex(table.base), "-f", "json"))["addresses"]
    expect(f"{where}: address", [{"table": place["table"], "identifier": place["identifier"], "index":
                                  place["index"] if place["element"] is None else place["element"]}
                                 for place in listed], "at", on=table.chip, address=table.base)
    edits(where, target, table, dump)


def edits(where, target, table, dump):
    """Fields that share no bits are set; what changed is found again."""
    chosen = []
    for field in random.sample(table.fields, min(5, len(table.fields))):
        if all(field.offset >= one.offset + one.width or one.offset >= field.offset + field.width for one in chosen):
            chosen.append(field)
    values = {field.name: hex(random.getrandbits(field.width)) for field in chosen}
    entry = dump[:table.entry_bytes]
    changed = velmar("encode", *target, "--base", "-", "--input", "raw", "--index", "0", "-f", "raw",
                     *(f"{name}={value}" for name, value in values.items()), data=entry)
    expect(f"{where}: encode {values}", changed.hex(), "encode", table, values=values, base=entry.hex())
    now = changed + dump[table.entry_bytes:]
    name, value = random.choice(list(values.items()))
    condition = f"{name}={value} or index>=2"
    with tempfile.NamedTemporaryFile() as file:
        file.write(dump)
        file.flush()
        for options in ((), ("--where", condition)):
            text = velmar("diff", *target, file.name, "-", "--input", "raw", "-f", "json", *options, data=now).decode()
            differing = [row["index"] for row in json.loads(velmar(
                "diff", *target, file.name, "-", "--input", "raw", "-f", "json", data=now))["entries"]]
            expect(f"{where}: diff {options}", [text, differing], "diff", table, before=dump.hex(), after=now.hex(),
                   where=list(options[1:]))
    found = velmar("decode", *target, "--input", "raw", "--where", condition, "-f", "json", "-", data=now)
    expect(f"{where}: {condition}", [entry["index"] for entry in json.loads(found)["entries"]],
           "select", table, bytes=now.hex(), where=[condition])
    found = json.loads(velmar("identify", "--input", "raw", "--table", table.name, "--chip", table.chip,
                              "-f", "json", "-", data=now))["fits"]
    expect(f"{where}: identify", found, "identify", table, bytes=now.hex())


def refusals():
    """What cannot be right, with its code and what is said of it."""
    table = next(one for one in golden_tables() if (one.name, one.chip) == ("VlanEntry", "BCM56990_B0"))
    for call, rest, code, text in (
            ("encode", {"values": {"stg": 64}}, "value", "does not fit"),
            ("encode", {"values": {"stg": -1}}, "value", "not a number"),
            ("encode", {"values": {"stg": 1.5}}, "value", "not a number"),
            ("encode", {"values": {"stg": None}}, "value", "is null"),
            ("encode", {"values": {"stg": {"hex": "0x1", "decimal": 2}}}, "value", "stg"),
            ("encode", {"values": {"stg": "1\0"}}, "value", "zero character"),
            ("encode", {"values": {"nonsense": 1}}, "unknown", "no field"),
            ("encode", {"values": [{}, {}], "base": "00" * 16}, "size", "16 bytes"),
            ("decode", {"bytes": "00" * 15}, "size", "15 bytes"),
            ("columns", {"bytes": "00" * 17}, "size", "17 bytes"),
            ("select", {"bytes": "00" * 16, "where": ["stg=="]}, "value", ""),
            ("read", {"path": os.devnull}, "input", ""),
            ("read", {"path": __file__, "options": {"hexorder": "bytes"}}, "option", "hexorder"),
            ("read", {"path": __file__, "options": {"input": "nonsense"}}, "option", "nonsense")):
        expect(f"{call} {rest}", (code, text), call, table, **rest)
    expect("no chip", ("unknown", "unknown chip"), "compare", before="BCM56990_B0", after="BCM1")


tables = list(golden_tables())
chips = sorted({table.chip for table in tables})
for one in tables:
    all_of(one)
for before in chips:
    for after in chips:
        expect(f"compare {before} {after}",
               json.loads(velmar("compare", "--chip", before, "--chip", after, "-f", "json"))["differences"],
               "compare", before=before, after=after)
refusals()
for (where, expected), answer in zip(expectations, ask(requests)):
    if isinstance(expected, tuple):
        refusal = answer.get("refusal", {})
        check(refusal.get("code") == expected[0] and expected[1] in refusal["text"], f"{where}: {answer}")
    else:
        check(answer.get("result") == expected, f"{where}: {str(answer)[:300]}, not {str(expected)[:300]}")
finish()
