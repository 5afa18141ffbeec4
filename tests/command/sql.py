#!/usr/bin/env python3
"""Questions in SQL: random dumps on several chips against the same in plain Python, in the command and in
the extension; joins; statements that write; paths, files and placeholders that are wrong; many files.

usage: sql.py SOURCE_DIR BUILD_DIR"""

import json
import os
import random
import resource
import sqlite3
import subprocess
import tempfile

from command import bits, build, check, finish, golden_tables, program, run, source

work = tempfile.TemporaryDirectory(prefix="velmar 'sql' ")
os.chdir(work.name)
generator = random.Random(11)
golden = {(table.name, table.chip): table for table in golden_tables()}


def write(path, data):
    os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
    with open(path, "wb") as file:
        file.write(data)


def ask(statement, *arguments):
    """The rows that the command answers with, as dicts."""
    code, text, errors = run("sql", *arguments, "-f", "jsonl", statement)
    if not check(code == 0 and not errors, f"{statement}: {code} {errors}"):
        return []
    return [json.loads(line) for line in text.splitlines()]


def ranges(ports):
    groups = []
    for port in sorted(ports):
        if groups and groups[-1][1] == port - 1:
            groups[-1][1] = port
        else:
            groups.append([port, port])
    return ",".join(str(a) if a == b else f"{a}-{b}" for a, b in groups) or "none"


def value_of(entry, field):
    number = bits(entry, field)
    if "itmap" in field.type:
        return ranges(bit for bit in range(field.width) if number >> bit & 1)
    return number if field.width < 64 else hex(number)


# A fleet with chips of different layouts and dumps with gaps: its rows as Python reads them.
chips = ["BCM56990_B0", "BCM56980_A0", "BCM56960_A0"]
rows = []
for switch, chip in enumerate(chips * 2):
    for name in ("VlanEntry", "EgrVlanEntry"):
        if (name, chip) not in golden:
            continue
        table = golden[name, chip]
        lines = []
        for index in sorted(generator.sample(range(60), 40)):
            entry = generator.randbytes(table.entry_bytes)
            if generator.random() < 0.2:
                entry = bytes(table.entry_bytes)
            inside = sum((1 << field.width) - 1 << field.offset
                         for field in {(f.offset, f.width): f for f in table.fields}.values())
            lines.append(f"{index}: {entry.hex(' ')}\n")
            rows.append({"table": name, "switch": f"s {switch}'", "index": index, "chip": chip,
                         "address": table.base + index, "nonzero": int(any(entry)),
                         "reserved": int(bool(int.from_bytes(entry, "little") & ~inside)),
                         **{field.name: value_of(entry, field) for field in table.fields}})
        write(f"{name}-{switch}.txt", "".join(lines).encode())
    dumps = [f"{name}={name}-{switch}.txt" for name in ("VlanEntry", "EgrVlanEntry")
             if os.path.exists(f"{name}-{switch}.txt")]
    os.makedirs("fleet", exist_ok=True)
    code, _, errors = run("snapshot", f"fleet/s {switch}'", "--chip", chip, *dumps)
    check(code == 0, f"snapshot: {errors}")
fleet = ["--data", "fleet/{switch}/"]

for name in ("VlanEntry", "EgrVlanEntry"):
    of_table = [row for row in rows if row["table"] == name]
    columns = [row["name"] for row in ask(f"select name from pragma_table_info('{name}')", *fleet)]
    check(set(columns) - {"identifier"} == {key for row in of_table for key in row} - {"table", "chip"},
          f"columns of {name}: {columns}")
    short = name.replace("Entry", "").upper()
    answered = ask(f'select * from {short} order by switch, "index"', *fleet)
    expected = [{"identifier": 0, **{key: row.get(key) for key in columns if key != "identifier"}}
                for row in sorted(of_table, key=lambda row: (row["switch"], row["index"]))]
    check(answered == [{key: row[key] for key in columns} for row in expected], f"all of {name}")

vlans = [row for row in rows if row["table"] == "VlanEntry"]


def number(row, name):
    return row.get(name)


def matching(holds):
    return sorted((row["switch"], row["index"]) for row in vlans if holds(row))


# Conditions that the tables test themselves, and those that SQLite tests: one answer.
def compares(row, name, test):
    return row.get(name) is not None and test(row[name])


conditions = [
    ("stg = 7", lambda row: compares(row, "stg", lambda value: value == 7)),
    ("stg = '7'", lambda row: compares(row, "stg", lambda value: value == 7)),
    ("stg = 7.0", lambda row: compares(row, "stg", lambda value: value == 7)),
    ("stg < 7.5", lambda row: compares(row, "stg", lambda value: value < 7.5)),
    ("stg in (1, 7, null, 'x', 9)", lambda row: compares(row, "stg", lambda value: value in (1, 7, 9))),
    ("stg is null", lambda row: row.get("stg") is None),
    ("stg is not null and stg > 5 and stg <= 40", lambda row: compares(row, "stg", lambda v: 5 < v <= 40)),
    ("stg between 3 and -1", lambda row: False),
    ("stg > 9223372036854775807 or stg = -1", lambda row: False),
    ("\"index\" >= 10 and \"index\" < 20 and valid", lambda row: 10 <= row["index"] < 20 and row["valid"]),
    ("\"index\" > -5 and \"index\" <= 1", lambda row: row["index"] <= 1),
    ("\"index\" = 12 and switch = 's 0'''", lambda row: row["index"] == 12 and row["switch"] == "s 0'"),
    ("switch = 'S 0''' collate nocase", lambda row: row["switch"] == "s 0'"),
    ("switch = 'none'", lambda row: False), ("switch > 's 3'", lambda row: row["switch"] > "s 3"),
    ("nonzero = 0", lambda row: not row["nonzero"]), ("reserved", lambda row: row["reserved"]),
    ("address = 0x0c7c0005", lambda row: row["address"] == 0x0c7c0005),
    ("not valid or fidId % 2", lambda row: not row["valid"] or row["fidId"] % 2),
]
for text, holds in conditions:
    answer = ask(f'select switch, "index" from vlan where {text}', *fleet)
    check(sorted((row["switch"], row["index"]) for row in answer) == matching(holds), text)

# Orders and groups, which the tables give themselves where they are small, also with NULL.
for order in ("stg", "stg desc", "valid, stg desc", "stg desc, \"index\"", "stg, fidId, switch",
              "\"index\" desc, valid", "stg nulls last", "switch desc, stg"):
    ordered = ask(f'select switch, "index", valid, stg, fidId from vlan order by {order}', *fleet)
    shuffled = ask("select * from (select switch, \"index\", valid, stg, fidId from vlan "
                   f"order by random() limit 1000) order by {order}", *fleet)
    keys = [term.split()[0].strip('"') for term in order.split(", ")]
    check([[row[key] for key in keys] for row in ordered] == [[row[key] for key in keys] for row in shuffled]
          and len(ordered) == len(vlans), f"order by {order}")
for text, expected in (
        ("select count(distinct stg) as n from vlan", {row.get("stg") for row in vlans} - {None}),
        ("select count(*) as n from (select distinct stg from vlan)", {row.get("stg") for row in vlans}),
        ("select count(*) as n from (select distinct stg from vlan where valid)",
         {row.get("stg") for row in vlans if row["valid"]}),
        ("select count(*) as n from (select stg, valid from vlan group by valid, stg)",
         {(row["valid"], row.get("stg")) for row in vlans})):
    check(ask(text, *fleet) == [{"n": len(expected)}], text)

# Ports: bitmaps as texts and as bytes.
with_ports = [row for row in rows if row["table"] == "EgrVlanEntry" and row.get("portBitmap")]
for port in (0, 21, 500):
    for column in ("portBitmap", "portBitmap_blob"):
        holds = f"select count(*) as n from egrvlan where has_port({column}, {port})"
        each = f"select count(*) as n from egrvlan, ports({column}) where port = {port}"
        expected = sum(port in [int(p) for part in row["portBitmap"].split(",") if part != "none"
                                for p in range(int(part.split("-")[0]), int(part.split("-")[-1]) + 1)]
                       for row in with_ports)
        check(ask(holds, *fleet) == ask(each, *fleet) == [{"n": expected}], f"{holds}: {expected}")
check(ask("select sum(port_count(portBitmap)) - sum(port_count(portBitmap_blob)) as n from egrvlan",
          *fleet) == [{"n": 0}], "port_count")
lab = ["--data", os.path.join(source, "samples", "lab-bcm56990")]
for statement, expected in (
        ("select v.\"index\" from vlan v left join portbitmapprofile p on p.\"index\" = "
         "v.portBitmapProfilePtr where v.valid and p.nonzero = 0", [{"index": 99}]),
        ("select v.\"index\" from vlan v left join portbitmapprofile p on p.\"index\" = "
         "v.portBitmapProfilePtr where p.\"index\" is null", [{"index": 4094}]),
        ("select a.\"index\" as a, b.\"index\" as b from vlan a, vlan b where a.fidId = b.fidId and "
         "a.\"index\" < b.\"index\"", [{"a": 10, "b": 666}]),
        ("select spTreePort as t, spTreePort24 as a, has_port(spTreePort, 25) as b from vlanstg where \"index\" "
         "= 3", [{"t": "0: 0-23,26-135  3: 24  2: 25", "a": 3, "b": 1}]),
        ("select hex(255) as a, hex('a') as b, has_port(null, 1) as c, port_count('0-3,9') as d",
         [{"a": "0xff", "b": "61", "c": None, "d": 5}]),
        ("select count(*) as n from ports(null)", [{"n": 0}]),
        ("select 1.5 as a, null as b, x'00ff' as c, 9e999 as d", [{"a": 1.5, "b": None, "c": "00ff", "d": None}])):
    check(ask(statement, *lab) == expected, f"{statement}: {ask(statement, *lab)}")

# What only reads is answered; nothing else is.
before = sorted(os.listdir("."))
for statement in (
        "insert into vlan values (1)", "update vlan set stg = 1", "delete from vlan", "drop table vlan",
        "create table t(a)", "create temp table t(a)", "create view v as select 1", "attach 'x.db' as x",
        "vacuum into 'x.db'", "pragma writable_schema = 1", "pragma database_list", "begin", "savepoint a",
        "select load_extension('velmar')", "select velmar_data('fleet/')", "reindex", "analyze",
        "create virtual table t using velmar(0)", "alter table vlan rename to x",
        "with t as (select 1) insert into vlan select * from t", "explain drop table vlan"):
    code, text, errors = run("sql", *lab, statement)
    check(code == 2 and not text and "only read" in errors, f"{statement}: {code} {text} {errors}")
check(sorted(os.listdir(".")) == before, "a statement wrote a file")

# Faults: one line with a place or a file, and a remedy.
write("bad/s1/vlan.bin", bytes(17))
write("bad/s2/vlan.bin", bytes(32))
os.makedirs("bad/s3")
os.symlink("nowhere", "bad/s3/vlan.bin")
bad = ["--chip", "33", "--data", "vlan=bad/{switch}/vlan.bin"]
whole = os.path.join(source, "samples", "vlan-bcm56990.bin")
for words, part in (
        ([*lab, "select stgg from vlan"], "SQL:1:8: no such column: stgg; did you mean stg"),
        ([*lab, 'select 1 from vlan where "valld" = 1'], "no such column: valld; did you mean valid"),
        ([*lab, "select stg from vlanstg"], "it is a column of VlanEntry"),
        ([*lab, "select index from vlan"], 'write "index" in double quotes'),
        ([*lab, "select 1;\nselect\n  nope(1)"], "SQL:3:3: no such function"),
        ([*lab, "select * from vlann"], "the tables are VlanEntry"), ([*lab, "select"], "SQL"),
        ([*lab, "select stg, stg from vlan", "-f", "json"], "AS"),
        ([*lab, "select 1; select 2", "-f", "json"], "more than one statement"),
        ([*lab, "select has_port(stg, 1) from vlan"], "not ports"),
        ([*lab, "select has_port('5-x', 1)"], "not ports"), ([*lab, "select port_count('7-3')"], "not ports"),
        ([*lab, "select has_port('1', 'x')"], "not a port"), ([*lab, "select * from ports"], "give a bitmap"),
        ([*bad, "select count(*) from vlan"], "bad/s1/vlan.bin: 17 bytes"),
        (["--data", "none/", "select 1"], "none/snapshot.json: cannot open"),
        (["--data", "none/{x}.bin", "select 1"], "nothing to read"),
        (["--data", whole, "select 1"], "name its table"), (["--data", f"vlan={whole}", "select 1"], "--chip"),
        (["--data", "fleet/{index}/", "select 1"], "has the name of a column"),
        (["--data", "fleet/{switch", "select 1"], "placeholder"),
        (["--data", "{a}/{a}", "select 1"], "twice"), ([*lab, *lab, "select 1"], "is there already"),
        (["--chip", "33", "--data", "nope=x", "select 1"], "nope")):
    code, text, errors = run("sql", *words)
    check(code == 2 and part in errors and "; " in errors and errors.count("\n") == 1, f"{words}: {errors!r}")
code, text, errors = run("sql", *bad, "--skip-bad", "-f", "csv",
                         "select switch, count(*) as n from vlan group by switch")
check((code, text) == (0, b"switch,n\ns2,2\n") and "2 files skipped, the first is bad/s1/vlan.bin" in errors,
      f"--skip-bad: {text} {errors}")
check(run("sql", *lab, "-f", "csv", data=b"select 1 as a") == (0, b"a\n1\n", ""), "standard input")

# Ten thousand files, with 64 open at most.
for number in range(10000):
    write(f"many/{number % 100}/{number}.bin", number.to_bytes(2, "little") + bytes(14))
limit = lambda: resource.setrlimit(resource.RLIMIT_NOFILE, (64, 64))
done = subprocess.run([program, "sql", "--chip", "33", "--data", "vlan=many/{group}/{name}.bin", "-f", "csv",
                       "select count(*) as n, count(distinct name) as m, sum(nonzero) as s from vlan"],
                      capture_output=True, preexec_fn=limit)
check(done.stdout == b"n,m,s\n10000,10000,9999\n", f"many files: {done.stdout} {done.stderr}")

# The extension answers as the command does.
library = os.path.join(build, "lib", "velmar")
connection = sqlite3.connect(":memory:")
if os.path.exists(library + ".so") and hasattr(connection, "enable_load_extension"):
    connection.enable_load_extension(True)
    connection.execute("select load_extension(?)", (library,))
    check(connection.execute("select velmar_data('fleet/{switch}/')").fetchall() ==
          [("VlanEntry, EgrVlanEntry",)], "velmar_data")
    for text, holds in conditions:
        answer = connection.execute(f'select switch, "index" from vlan where {text}').fetchall()
        check(sorted(answer) == matching(holds), f"extension: {text}")
    for statement, part in (("select velmar_data('none/')", "none/snapshot.json: cannot open"),
                            ("select velmar_data('vlan=x')", "give chip"), ("select velmar_data('x', 'y')", "chip"),
                            ("select velmar_data('fleet/{switch}/')", "is there already"),
                            ("delete from vlan", "may not be modified"),
                            ("create virtual table t using velmar(7)", "velmar_data")):
        try:
            connection.execute(statement)
            check(False, f"extension: {statement}")
        except sqlite3.Error as error:
            check(part in str(error), f"extension: {statement}: {error}")
else:
    print("Python's sqlite3 loads no extension: the extension is not checked")
finish()
