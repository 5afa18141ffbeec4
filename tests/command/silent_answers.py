#!/usr/bin/env python3
"""Dumps that could be read in a wrong way without a word: each gives the entries that it holds, or one
message that names what is wrong, and the option that the message proposes gives the entries.

usage: silent_answers.py SOURCE_DIR BUILD_DIR"""

import collections
import csv
import gzip
import io
import json
import lzma
import os
import re
import tempfile

from command import check, finish, run

small, medium, large = (("VlanMplsEntry", "BCM56980_A0"), ("VlanEntry", "BCM56990_B0"),
                        ("VlanProfile2Entry", "BCM56990_B0"))
Row = collections.namedtuple("Row", "table text options entries refusal remedy")


def right(text, entries, *options, table=medium):
    return Row(table, text, options, entries, None, "")


def refused(text, pattern, *options, remedy="", gives=None, table=medium):
    """One message that has the pattern; the remedy, which it names, gives entries by their indexes."""
    return Row(table, text, options, gives, pattern, remedy)


def careful(text, entries, pattern, table=medium):
    """Either these entries or a message."""
    return Row(table, text, (), entries, pattern, None)


def entry(number, size=16, first=0x80, step=5):
    """Bytes that show as dots in a text column, and that are no decimal numbers."""
    return bytes(first + (16 * number + step * at) % 127 for at in range(size))


def groups(data, width=1, order="little"):
    return " ".join(f"{int.from_bytes(data[at:at + width], order):0{2 * width}x}"
                    for at in range(0, len(data), width))


def dump(leads, width=1, order="little", gap="", first=0x80):
    """A line for each lead, with an entry, and with a text column after the gap if there is one."""
    lines = []
    for number, lead in enumerate(leads):
        data = entry(number, first=first)
        column = "".join(chr(byte) if 32 <= byte < 127 else "." for byte in data)
        lines.append(lead + groups(data, width, order) + (gap and gap + column))
    return "\n".join(lines) + "\n"


def indexed(*indexes, size=16, first=0x80):
    return {index: entry(number, size, first) for number, index in enumerate(indexes)}


a, b, c = (groups(entry(number)) for number in range(3))
words = groups(entry(0), 4)
offsets, hex_indexes = ["00000000: ", "00000010: ", "00000020: "], ["0x0: ", "0x10: ", "0x20: "]
pointers = ["0x7ffe1000: ", "0x7ffe1010: ", "0x7ffe1020: "]
boot = ["80001000: ", "80001010: ", "80001020: "]
printable = 0x20  # some bytes of each entry show in the text column
stamps = [f"2026-11-22T06:12:3{second}.123+00:00 host daemon[99]: " for second in range(3)]
big = [entry(number, 72) for number in range(9)]


def cut(lines, columns=80):
    return "".join(line[:columns] + "\n" for line in lines)


def folded(lines, columns=80):
    return "".join(line[start:start + columns] + "\n" for line in lines
                   for start in range(0, len(line), columns))


rows = {
    # What stands for entries that are not there.
    **{f"{mark} between": refused(f"{a}\n{mark}\n{b}\n", re.escape(mark)) for mark in ("*", "...", "--")},
    **{f"{mark} at the end": refused(f"{a}\n{b}\n{mark}\n", re.escape(mark)) for mark in ("*", "...", "--")},
    "* whose offset was cut": refused(f"000000 {a}\n*\n", r"\*"),
    "* whose offset follows": right(f"000000 {a}\n*\n000030\n", dict.fromkeys(range(3), entry(0))),
    "-- between words": refused(f"{words}\n--\n{words}\n", "--"),
    "rows of errors, ----": refused(f"0: {words}\n1: -------- --------\n", "1: -------- --------"),
    "rows of errors, xxxx": refused(f"0: {words}\n1: xxxxxxxx xxxxxxxx\n", "1: xxxxxxxx xxxxxxxx"),
    "rows of errors, a text": refused(f"0: {words}\n1: read error\n", "1: read error"),
    "rows of errors without index": refused(f"{words}\n-------- --------\n", "-------- --------"),
    "one line without index": refused(f"0: {a}\n{b}\n1: {c}\n", ":[23]:"),
    "one line with index": refused(f"{a}\n0: {b}\n", ":[12]:"),
    "an index twice": refused(f"0: {a}\n0: {b}\n", ":2:.*0"),

    # Orders that fit both.
    "xxd -e -g2, dots": refused(dump(offsets, 2, gap="  "), "--hex-order bytes or words",
                                remedy="--hex-order words", gives=indexed(0, 1, 2)),
    "xxd, dots": refused(dump(offsets, 2, "big", "  "), "--hex-order bytes or words",
                         remedy="--hex-order bytes", gives=indexed(0, 1, 2)),
    "xxd, text": right(dump(offsets, 2, "big", "  ", printable), indexed(0, 1, 2, first=printable)),
    "xxd -e -g2, text": right(dump(offsets, 2, "little", "  ", printable), indexed(0, 1, 2, first=printable)),
    "hexdump -C has bytes in any order": right(
        "".join(f"{16 * n:08x}  {groups(entry(n))}  |{16 * '.'}|\n" for n in range(3)), indexed(0, 1, 2),
        "--hex-order", "words"),
    "xxd, equal bytes": right(f"00000000: {' '.join(['8181'] * 8)}  {16 * '.'}\n", {0: b"\x81" * 16}),
    "md.w, dots": refused(dump(boot, 2, gap=4 * " "), "--hex-order bytes or words", "--origin", "0x80001000",
                          remedy="--hex-order words", gives=indexed(0, 1, 2)),
    "md.l, dots": refused(dump(boot, 4, gap=4 * " "), "--hex-order bytes or words", "--origin", "0x80001000",
                          remedy="--hex-order words", gives=indexed(0, 1, 2)),
    "md.l, text": right(dump(boot, 4, "little", 4 * " ", printable), indexed(0, 1, 2, first=printable),
                        "--origin", "0x80001000"),
    "md.l of a big-endian processor, text": right(
        dump(boot, 4, "big", 4 * " ", printable), indexed(0, 1, 2, first=printable),
        "--origin", "0x80001000"),

    # Indexes, offsets and addresses.
    "0x10: is an offset": refused(dump(hex_indexes), "--input", remedy="--input xxd", gives=indexed(0, 1, 2)),
    "0x10: is an index": refused(dump(hex_indexes), "--input", remedy="--input hex",
                                  gives=indexed(0, 16, 32)),
    "0x1: is an index": right(dump(["0x0: ", "0x1: ", "0x2: "]), indexed(0, 1, 2)),
    "address": refused(dump(pointers), "--origin", remedy="--origin 0x7ffe1000", gives=indexed(0, 1, 2)),
    "address, boot loader": refused(dump(boot, gap=4 * " "), "--origin", remedy="--origin 0x80001000",
                                    gives=indexed(0, 1, 2)),
    "address, later entries": right(dump(pointers), indexed(1, 2, 3), "--origin", "0x7ffe0ff0"),
    "address before the origin": refused(dump(pointers), "0x7ffe1000", "--origin", "0x7ffe1010"),
    "address within an entry": refused(dump(pointers), "0x7ffe1000", "--origin", "0x7ffe0ffc"),
    "addresses with a gap": refused(dump([pointers[0], pointers[2]]), ":2:", "--origin", "0x7ffe1000"),
    "symbols": right(dump(["0x4010 <table>:\t", "0x4020 <table+16>:\t"]), indexed(0, 1)),
    "symbols with a gap": refused(dump(["0x4010 <table>:\t", "0x4030 <table+32>:\t"]), ":2:"),
    "--origin without addresses": refused(f"{a}\n{b}\n", "--origin", "--origin", "0x7ffe1000"),
    "--origin of a raw dump": refused(entry(0, first=0), "--origin", "--origin", "0x1000", "--input", "raw"),
    "--first 0 of 0x10:": refused(dump(hex_indexes), "--first|--input", "--first", "0"),
    "--first 0 of indexes": refused(f"5: {a}\n", "--first", "--first", "0"),

    # Numbers that fit two sizes.
    "words that may be decimal": refused("1 20 300 4\n", "decimal"),
    "words not padded": right("1 2f 300 4\n", {0: bytes.fromhex("01000000 2f000000 00030000 04000000")}),
    "words or bytes": refused("1 a 3 4\n", "--hex-order", table=small),
    "a time or bytes": refused("12:34:56:78 aa bb cc dd\n", "12:34:56:78", table=small),

    # Lines that a terminal cut or folded: 27 bytes or 9 words of 72 bytes fit into 80 columns.
    "digits, cut": refused(cut(data.hex() for data in big), r"\b(80|40)\b", table=large),
    "digits, cut at 100": refused(cut([data.hex() for data in big] * 4, 100), r"\b(100|50)\b", table=large),
    "bytes, cut": refused(cut(data.hex(" ") for data in big[:8]), r"\b(80|27)\b", table=large),
    "words, cut": refused(cut(groups(data, 4) for data in big[:8]), r"\b(80|36|9)\b", table=large),
    "digits in lines of no meaning": refused(cut(entry(number, 10).hex() for number in range(8)),
                                             r"\b(20|10)\b"),
    "digits, folded": careful(folded(data.hex() for data in big), dict(enumerate(big)), r":\d+:|\b80\b",
                              large),
    "bytes, folded": careful(folded(data.hex(" ") for data in big), dict(enumerate(big)), r":\d+:|\b80\b",
                              large),

    # Logs, and what is not text.
    "log, text between": refused(f"{stamps[0]}{a}\n{stamps[1]}link is up\n{stamps[2]}{b}\n", "link is up"),
    "log, another prefix": refused(f"{stamps[0]}{a}\n[   12.345678] {b}\n", ":2:"),
    "log, a process is not an index": right(dump(stamps), indexed(0, 1, 2)),
    "log, a name with an index": right(dump([f"{stamp}vlan[{number}]: " for number, stamp in zip(
        (5, 7, 9), stamps)]), indexed(5, 7, 9)),
    "text between": refused(f"{a}\nlink is up on port 3\n{b}\n", "link is up on port 3"),
    "a log with one NUL": refused("boot\0 of the host is done: it is up\n", "NUL|0x00|boot|raw", table=small),
    "bytes with one NUL": careful("81 92 a3 b4\n91 a2 b3 c4\n\0ok\n", {
        0: bytes.fromhex("8192a3b4"), 1: bytes.fromhex("91a2b3c4")}, "NUL|0x00|raw", table=small),
    # Their lengths are multiples of four, so that they are raw dumps otherwise.
    **{name: refused(data + bytes(-len(data) % 4), f"{remedy} FILE", table=small) for name, data, remedy in (
        ("gzip", gzip.compress(bytes(64), mtime=0), "zcat"), ("xz", lzma.compress(bytes(64)), "xzcat"),
        ("zstd", b"\x28\xb5\x2f\xfd" + bytes(16), "zstdcat"))},
    "too large": refused(bytes((64 << 20) + 16), "64 MiB"),
}

# Documents of CSV, each with one cell, column or row changed.
document = run("decode", medium[0], "--chip", medium[1], "--input", "raw", "-f", "csv", "-",
               data=entry(0) + entry(1))[1].decode()


def changed(change):
    lines = list(csv.DictReader(io.StringIO(document)))
    lines = change(lines) or lines
    text = io.StringIO()
    writer = csv.DictWriter(text, lines[0].keys(), lineterminator="\n")
    writer.writeheader()
    writer.writerows(lines)
    return text.getvalue()


def csv_cell(column, value):
    return changed(lambda lines: lines[1].update({column: value}))


lines_of_json = [json.loads(line) for line in run(
    "decode", medium[0], "--chip", medium[1], "--input", "raw", "-f", "jsonl", "--plain", "-",
    data=entry(0) + entry(1))[1].splitlines()]


def json_text(lines):
    return "".join(json.dumps(line) + "\n" for line in lines)


def json_cell(name, value):
    line = lines_of_json[1]
    if name in line["fields"]:
        return json_text([lines_of_json[0], {**line, "fields": {**line["fields"], name: value}}])
    return json_text([lines_of_json[0], {**line, name: value}])


rows |= {
    "CSV": right(document, indexed(0, 1)),
    "CSV, other columns first": right(changed(lambda lines: [dict(reversed(line.items())) for line in lines]),
                                      indexed(0, 1)),
    "CSV, an entry without its neighbours": right(changed(lambda lines: lines[1:]), {1: entry(1)}),
    "CSV, an unknown column": refused(document.replace("fidId", "fidIdea"), "fidIdea"),
    "CSV, a missing column": refused(changed(lambda lines: [
        {name: value for name, value in line.items() if name != "fidId"} for line in lines]), "fidId"),
    "CSV, a missing cell": refused(document.rsplit(",", 1)[0] + "\n", ":3:"),
    "CSV, an index twice": refused(changed(lambda lines: lines + lines[:1]), ":4:"),
    "JSON": right(json_text(lines_of_json), indexed(0, 1)),
    "JSON, an index twice": refused(json_text(lines_of_json + lines_of_json[:1]), ":3:"),
    "JSON, an unknown member": refused(json_cell("note", "5"), ":2:.*note"),
    **{f"JSON, {character!r} in a name": refused(json_text(lines_of_json).replace('"stg', f'"stg{character}', 1),
                                                 ":1:.*quotation mark") for character in "\n\t\x1f"},
    "JSON, escapes": right(json_text(lines_of_json).replace('"stg"', '"\\u0073t\\u0067"'), indexed(0, 1)),
    "JSON, a missing field": refused(json_text([{**line, "fields": {"stg": 1}} for line in lines_of_json]),
                                     ":1:.*valid"),
    "JSON, a number in a text of ports": right(json_cell("fidId", str(lines_of_json[1]["fields"]["fidId"])),
                                               indexed(0, 1)),
    **{f"{notation}, {column} {value!r}": refused(cell(column, value), pattern)
       for notation, cell in (("CSV", csv_cell), ("JSON", json_cell))
       for column, value, pattern in (
           ("address", "0x0c7c0002", "0x0c7c0002"), ("accessType", "9", "accessType"),
           ("block", "2", "block"), ("index", "8192", "8192"), ("index", "one", "index"),
           ("fidId", "8192", "fidId"), ("fidId", "-", "fidId"), ("fidId", "", "fidId"),
           ("outsideFields", "0x1", "outsideFields"), ("chip", "BCM56980_A0", "chip"))
       if notation == "JSON" or column != "chip"},
}

# Compact JSON, whose families have each number once.
family_table = ("VlanStgEntry", "BCM56980_A0")
family_size = 48
for name, values, pattern in (
        ("whole", {"0": "0-9", "2": "10-159"}, None),
        ("a number without a value", {"0": "0-158"}, "spTreePort159"),
        ("a number twice", {"0": "0-159", "1": "7"}, "spTreePort7 is given twice"),
        ("a number that the chip lacks", {"0": "0-160"}, "spTreePort160"),
        ("a number far beyond", {"0": "0-159,999"}, "spTreePort999"),
        ("an open range", {"0": "0-"}, "spTreePort"), ("no number", {"0": "a"}, '"a"'),
        ("a value that does not fit", {"0": "0-158", "4": "159"}, "spTreePort159"),
        ("a date", {"0": "1-Mar"}, "1-Mar"), ("an empty list", {"0": "0-159", "1": ""}, '""')):
    text = json.dumps({"index": 1, "fields": {"spTreePort": values}})
    ports = sum(2 << 2 * port for port in range(10, 160)).to_bytes(family_size, "little")
    rows[f"family, {name}"] = refused(text, pattern, table=family_table) if pattern else right(
        text, {1: ports}, table=family_table)


def read(row, *options):
    """The exit code, entries by their indexes, and messages; both verbs must agree."""
    text = row.text if isinstance(row.text, bytes) else row.text.encode()
    target = (row.table[0], "--chip", row.table[1], *options)
    code, encoded, error = run("encode", *target, "--base", "-", "-f", "hex", data=text)
    decoded_code, decoded, decoded_error = run("decode", *target, "-f", "jsonl", "-", data=text)
    if code != decoded_code:
        return f"encode {code}, decode {decoded_code}", {}, f"{error}{decoded_error}"
    if code:
        return code, encoded + decoded, error
    entries = {int(index): bytes.fromhex(digits) for index, digits in re.findall(
        r"(?m)^(?:(\d+): )(.+)$", encoded.decode())}
    indexes = [json.loads(line)["index"] for line in decoded.splitlines()]
    return code, entries if list(entries) == indexes else indexes, error


for name, row in rows.items():
    code, entries, error = read(row, *row.options)
    if row.refusal is None or (row.remedy is None and code == 0):
        check((code, entries) == (0, row.entries), f"{name}: {code} {error or str(entries)[:200]}")
        continue
    check(code == 2 and entries == b"", f"{name}: {code} {str(entries)[:200]}, expected a refusal")
    check(error.count("\n") == 1 and "; " in error and "has no option" not in error and
          re.search(row.refusal, error),
          f"{name}: {error!r}, expected {row.refusal}")
    if row.remedy:
        option, value = row.remedy.split()
        check(re.search(rf"{option}\b.*\b({value}|ADDRESS)\b", error),
              f"{name}: {error!r} without {row.remedy}")
        code, entries, error = read(row, *row.options, option, value)
        check((code, entries) == (0, row.entries),
              f"{name}, {row.remedy}: {code} {error or str(entries)[:200]}")

# One digit that is lost anywhere is never an entry of other values. Bytes of letters have no zeros before
# them, which would show their width.
letters = [bytes(65 + (7 * at + number) % 26 for at in range(16)) for number in range(3)]
for name, form in (("bytes", lambda data: groups(data)), ("bytes,", lambda data: data.hex(",")),
                   ("index", lambda data: f"[{data[0] - 65}] {groups(data)}"),
                   ("xxd", lambda data: f"{16 * (data[0] - 65):08x}: {data.hex(' ', 2)}  {data.decode()}"),
                   ("hexdump -C", lambda data: f"{16 * (data[0] - 65):08x}  {groups(data)}  |{data.decode()}|")):
    text = "\n".join(map(form, letters)) + "\n"
    places = [found.start() for found in re.finditer(r"(?<![0x\[])[0-9a-f](?=[0-9a-f]*[ ,\n])", text)]
    for at in places[1::5]:
        code, entries, _ = read(Row(medium, text[:at] + text[at + 1:], (), None, None, ""))
        check(code == 2 and entries == b"", f"{name} without the digit at {at}: {code} {entries}")

# Edits: what loses something is refused, with a remedy; what a document does not give stays.
overlapping = ("IngVpVlanMembershipEntry", "BCM56470_A0")  # vlan and hashLsb share bits
twins = {"fields": {"vlan": 3, "hashLsb": 2}, "index": 1}
for name, table, base, arguments, text, pattern in (
        ("no value", medium, None, ["@-"], "{}", "no entry and no values"),
        ("no entry", medium, None, ["@-"], "[]", "no entry and no values"),
        ("an empty list of entries", medium, None, ["@-"], '{"entries": []}', "no entry and no values"),
        ("no field", medium, None, ["@-"], '{"fields": {}}', 'entry 0 lacks the field "valid"; .*--base'),
        ("a field missing", medium, None, ["@-"], json_text(lines_of_json).replace('"stg"', '"STG"'), None),
        ("two objects of values", medium, None, ["@-"], '{"stg": 1} {"stg": 2}', ":1:.*second object"),
        ("values, then an entry", medium, None, ["@-"], '{"stg": 1}' + json_text(lines_of_json), "values"),
        ("a field twice", medium, None, ["@-"], '{"stg": 1, "STG": 1}', "stg is given twice"),
        ("a column twice", medium, b"", ["@-"], "index,stg,STG\n0,1,1\n", "stg is given twice"),
        ("an entry without index", medium, b"", ["@-"], '{"fields": {"stg": 1}}', "without index"),
        ("an entry that the base lacks", medium, b"", ["@-"], '{"index": 99, "fields": {"stg": 1}}', "entry 99"),
        ("a number that the chip lacks", family_table, b"", ["@-"],
         '{"index": 0, "fields": {"spTreePort": {"3": "5,200"}}}', "spTreePort200"),
        ("both twins", overlapping, b"", ["@-"], json.dumps(twins), "disagree; give one of them"),
        ("typed twins", overlapping, b"", ["vlan=0", "hashLsb=1", "--index", "0"], "", "disagree"),
        ("twins of one document", overlapping, None, ["@-"], '{"vlan": 0, "hashLsb": 1}', "disagree"),
        ("a stride", medium, b"", ["stg=1", "--index", "0", "--stride", "32"], "", "--format raw"),
        ("a byte order", medium, b"", ["stg=1", "--index", "0", "--byte-order", "big"], "", "--format raw"),
        *((f"ports {ports}", ("EgrVlanEntry", "BCM56980_A0"), None, [f"portBitmap={ports}"], "",
           "spreadsheet.*; give ports such as 1-3")
          for ports in ("1-Mar", "01-Mar", "Mar-01", "Jan 3", "Jan 3, 2026", "3. Mrz", "01.03.2026", "1/3/26",
                        "2026-01-03", "2026-01-03 00:00:00"))):
    with tempfile.NamedTemporaryFile() as file:
        if base is not None:
            file.write(bytes(4 * 48))  # whole entries of each table
            file.flush()
            arguments = arguments + ["--base", file.name]
        code, encoded, error = run("encode", table[0], "--chip", table[1], *arguments, data=text.encode())
    check((code, error) == (0, "") if pattern is None else code == 2 and encoded == b"" and
          re.search(pattern, error) and "; " in error, f"{name}: {code} {encoded[:99]} {error!r}")

# CSV is a dump wherever one is taken.
with tempfile.TemporaryDirectory() as directory:
    path = os.path.join(directory, "v.csv")
    with open(path, "w", encoding="utf-8") as file:
        file.write(document)
    target = (medium[0], "--chip", medium[1])
    raw = entry(0) + entry(1)
    check(run("encode", *target, f"@{path}", "-f", "raw")[:2] == (0, raw), "encode @v.csv")
    check(run("encode", *target, "@-", "-f", "raw", data=document.encode())[:2] == (0, raw), "encode @-")
    check(run("diff", *target, path, "-", data=raw)[:2] == (0, b""), "diff of CSV and its bytes")
    check(run("diff", *target, path, "-", data=raw[:16] + raw[:16])[0] == 1, "diff of CSV and other bytes")
finish()
