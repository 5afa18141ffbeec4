#!/usr/bin/env python3
"""What trace says of logs is what a plain model of entries says: random edits of random tables on random
chips, written in every shape; lines that are lost, doubled, swapped, cut or garbled; filters, the state at
the start and at the end; what is no log.

usage: traces.py SOURCE_DIR BUILD_DIR"""

import collections
import csv
import io
import json
import os
import random
import re
import subprocess
import tempfile

from command import check, finish, golden_tables, program, run

random.seed(30)
chips = collections.defaultdict(list)
for each in golden_tables():
    chips[each.chip].append(each)
work = tempfile.TemporaryDirectory()
Operation = collections.namedtuple("Operation", "time is_read address words")
array_names = {"IgmpMldPktControl", "ProtocolPktControl"}


def words_of(table):
    return table.entry_bytes // 4


def step_of(table):
    if table.name not in array_names:
        return 1
    return 1024 if re.match("BCM5699[0236]", table.chip) else 256


def number_of(words):
    return sum(word << 32 * i for i, word in enumerate(words))


def split_words(value, count):
    return [value >> 32 * i & 0xffffffff for i in range(count)]


class Model:
    """The entries of a chip, as far as they are known."""

    def __init__(self, chip):
        self.tables, self.known = chips[chip], {}

    def owners(self, address):
        for table in self.tables:
            index, rest = divmod(address - table.base, step_of(table))
            if not rest and 0 <= index < table.count:
                yield table, index

    def event(self, line, operation, named=()):
        owners = list(self.owners(operation.address))
        owners = [each for each in owners if each[0].name in named] or owners
        event = {"line": line, "time": operation.time, "op": "read" if operation.is_read else "write",
                 "address": f"{operation.address:#010x}", "table": None, "index": None, "element": None,
                 "fields": {}, "findings": set()}
        shown_words = [f"{word:#010x}" for word in operation.words]
        if not owners:
            return {**event, "words": shown_words, "findings": {"no-table"}}
        table, index = owners[0]
        event["table"] = table.name
        event["element" if table.name in array_names else "index"] = index
        if len(owners) > 1:
            event["findings"].add("shared-address")
            event["others"] = [owner.name for owner, _ in owners[1:]]
        if len(operation.words) != words_of(table):
            self.known.pop(operation.address, None)
            event["findings"].add("too-short" if len(operation.words) < words_of(table) else "too-long")
            return {**event, "words": shown_words}
        old, new = self.known.get(operation.address), number_of(operation.words)
        self.known[operation.address] = new
        differs = new ^ (old or 0)
        fields = [(field.name, (1 << field.width) - 1 << field.offset, field.offset)
                  for field in table.fields]
        reserved = (1 << 8 * table.entry_bytes) - 1
        for _, mask, _ in fields:
            reserved &= ~mask
        for name, mask, offset in fields + [("outsideFields", reserved, 0)]:
            if differs & mask:
                event["fields"][name] = (None if old is None else (old & mask) >> offset,
                                         (new & mask) >> offset)
        if new & reserved:
            event["findings"].add("reserved-bits")
        if old is not None and operation.is_read and differs:
            event["findings"].add("read-differs")
        if old is not None and not operation.is_read and not differs:
            event["findings"].add("unchanged")
        return event


def operations(chip, count, only_right=False):
    """Random transactions of a few entries."""
    model, result, clock = Model(chip), [], random.randrange(10**6)
    entries = []
    for table in random.sample(model.tables, 4) + [each for each in model.tables if "Profile2" in each.name]:
        entries += [(table, random.randrange(table.count)) for _ in range(2)]
    for _ in range(count):
        table, index = random.choice(entries)
        address = table.base + step_of(table) * index
        clock += random.randrange(1, 10**6)
        value = model.known.get(address, 0)
        kind = random.random()
        if kind < .6:
            field = random.choice(table.fields)
            mask = (1 << field.width) - 1 << field.offset
            value = value & ~mask | random.getrandbits(8 * table.entry_bytes) & mask
        elif kind < .7:
            value ^= 1 << random.randrange(8 * table.entry_bytes)
        elif kind < .73:
            value = 0
        words = split_words(value, words_of(table))
        if not only_right and kind > .96:
            words = words[:-1] or words * 2 if kind > .98 else words + [0]
        if not only_right and .94 < kind < .96:
            address += step_of(table) * table.count + (1 if step_of(table) > 1 else 0)
        operation = Operation(f"{clock // 10**6}.{clock % 10**6:06}", random.random() < .3, address, words)
        model.event(0, operation)
        result.append(operation)
    return result


def padded(words):
    return [f"{word:08x}" for word in words]


def plain(operation, form):
    """A transaction as lines."""
    time, letter = operation.time, "R" if operation.is_read else "W"
    name = "read" if operation.is_read else "write"
    address, words = f"{operation.address:08x}", padded(operation.words)
    short = [f"{word:x}" for word in operation.words]
    return {
        "plain": [f"{time} {letter} 0x{address} {' '.join(words)}"],
        "unpadded": [f"[ {time}] {name.title()} {operation.address:x}: {', '.join(short)}"],
        "arrows": [f"{time}: {letter.lower()} [0x{address}] {'->' if operation.is_read else '<-'} "
                   + "{" + ", ".join("0x" + word for word in words) + "}"],
        "labels": [f"{name.upper()} addr=0x{address} len={len(words)} data={' '.join(words)}"],
        "lines": [f"{time} {name} 0x{address} = {words[0]}"] + [
            "    " + " ".join(words[i:i + 4]) for i in range(1, len(words), 4)],
        "csv": [f"{time},{letter},0x{address},{' '.join(words)}"],
        "json": [json.dumps({"time": float(time), "op": name, "address": "0x" + address,
                             "words": words if len(words) % 2 else operation.words})],
        "own": [f"bus: at {time}; {letter} ({address}) to {','.join(words)} end"],
    }[form]


heads = {"csv": ["Time,op,Address,data"]}
own_line = "bus: at {time}; {op} ({address}) to {words} end"


def single(operation, word, form):
    """One word of a transaction as lines."""
    is_read, time = operation.is_read, operation.time
    name = "read" if is_read else "write"
    task = "  kworker/0:1-12  [000] d..1  "
    if form == "ftrace":
        return [f"{task}{time}: regmap_reg_{name}: spi0.0 reg={operation.address:x} val={word:x}"]
    if form == "mmio":
        value, address = f"val={word:#x}", f"addr={operation.address:#x}"
        first = f"width=32 {address}" if is_read else f"width=32 {value} {address}"
        return [f"{task}{time}: rwmmio_{name}: f+0x10/0x20 {first}",
                f"{task}{time}: rwmmio_post_{name}: f+0x10/0x20 width=32 {value} {address}"]
    if form == "mmiotrace":
        return [f"{name[0].upper()} 4 {time} 1 {operation.address:#x} {word:#x} 0x0 0"]
    return [f"77@{time}:memory_region_ops_{name} cpu 0 mr 0x55 addr {operation.address:#x} "
            f"value {word:#x} size 4 name 'bus'"]


def traced(chip, lines, *options):
    code, output, errors = run("trace", "--chip", chip, "-f", "jsonl", *options,
                               data="\n".join(lines).encode() + b"\n")
    return code, [shown(json.loads(line)) for line in output.splitlines()], errors


def shown(event):
    """An event of the command, as the model has them."""
    old_new = {name: tuple(value and int(value["hex"], 16) for value in (change["old"], change["new"]))
               for name, change in event["fields"].items()}
    rest = {name: value for name, value in event.items()
            if name not in ("chip", "variant", "identifier", "nearest")}
    check(("nearest" in event) == (event["table"] is None), f"nearest: {event}")
    return {**rest, "fields": old_new, "findings": set(event["findings"])}


def same(form, chip, got, expected, ignored=()):
    for ours, theirs in zip(got, expected):
        theirs = {name: value for name, value in theirs.items() if name not in ignored}
        ours = {name: value for name, value in ours.items() if name not in ignored}
        if not check(ours == theirs, f"{form} on {chip}: {ours}, expected {theirs}"):
            return False
    return check(len(got) == len(expected), f"{form} on {chip}: {len(got)} events, not {len(expected)}")


def state_in(folder, chip):
    """The entries of a snapshot by address."""
    with open(os.path.join(folder, "snapshot.json"), encoding="utf-8") as file:
        manifest = json.load(file)
    tables = {table.name: table for table in chips[chip]}
    state = {}
    for dump in manifest["tables"]:
        table = tables[dump["class"]]
        with open(os.path.join(folder, dump["file"]), encoding="utf-8") as file:
            for line in file:
                index, words = line.split(":")
                state[table.base + step_of(table) * int(index)] = number_of(
                    [int(word, 16) for word in words.split()])
    return state


def written(form, transactions):
    """The lines of a log, and the number of the first line of each transaction."""
    lines, numbers = list(heads.get(form, [])), []
    for operation in transactions:
        numbers.append(len(lines) + 1)
        lines += plain(operation, form)
    return lines, numbers


# Every shape gives the events and the final state of the model.
for number, chip in enumerate(chips):
    for form in ("plain", "unpadded", "arrows", "labels", "lines", "csv", "json", "own"):
        transactions = operations(chip, 120)
        lines, numbers = written(form, transactions)
        model = Model(chip)
        expected = [model.event(*each) for each in zip(numbers, transactions)]
        for event in expected:
            if form == "labels":
                event["time"] = None
            if form == "json":
                event["time"] = str(float(event["time"]))
        folder = os.path.join(work.name, f"{form}-{number}")
        options = ["--line", own_line] if form == "own" else []
        code, events, errors = traced(chip, lines, "--write-state", folder, *options)
        check(code == 0 and not errors, f"{form} on {chip}: {code} {errors}")
        if same(form, chip, events, expected):
            check(state_in(folder, chip) == model.known, f"{form} on {chip}: the state")
    for form in ("ftrace", "mmio", "mmiotrace", "emulator"):
        model, lines, expected = Model(chip), [], []
        for operation in operations(chip, 60, only_right=True):
            for word in operation.words:
                lines += single(operation, word, form)
            expected.append(model.event(0, operation))
        code, events, errors = traced(chip, lines, "--words-apart")
        check(code == 0 and not errors, f"{form} on {chip}: {code} {errors}")
        same(form, chip, events, expected, ("line",))

# Lines that are lost, doubled or swapped give what is right for the log as it stands; of what is cut or
# garbled nothing is believed.
unbelieved = 0
for chip in random.sample(sorted(chips), 6):
    for fault in ("lost", "doubled", "swapped", "cut", "garbled", "joined"):
        transactions = operations(chip, 60)
        at = random.sample(range(1, 58, 3), 8)
        for i in sorted(at, reverse=True):
            if fault == "lost":
                del transactions[i]
            if fault == "doubled":
                transactions.insert(i, transactions[i])
            if fault == "swapped":
                transactions[i:i + 2] = transactions[i:i + 2][::-1]
        lines, numbers = written("plain", transactions)
        for i in at:
            if fault == "cut":
                lines[i] = lines[i][:random.randrange(len(lines[i]) - 1)]
                if re.search(r"R 0x\w{8} ?$", lines[i]):  # it announces a read
                    lines[i] = lines[i][:-4]
            if fault == "garbled":
                place = random.choice([j for j, character in enumerate(lines[i]) if character != " "])
                lines[i] = lines[i][:place] + random.choice("gz?~\0\x80/;") + lines[i][place + 1:]
            if fault == "joined":
                lines[i] += lines[i]
        code, events, errors = traced(chip, lines, "--check")
        by_line = {event["line"]: event for event in events}
        model = Model(chip)
        for line, operation in zip(numbers, transactions):
            event = by_line.pop(line, None)
            if fault in ("cut", "garbled", "joined") and line - 1 in at:
                # A line that ends between two words, or lost its time, may be a transaction.
                words = re.split(r"0x\w+ ?", lines[line - 1])[-1].split()
                unbelieved += event is None
                if event is None:
                    continue
                operation = operation._replace(words=[int(word, 16) for word in words])
                check(fault == "cut" and all(len(word) == 8 for word in words),
                      f"{fault} on {chip}: {lines[line - 1]!r}: {event}")
            expected = model.event(line, operation)
            check(event == expected, f"{fault} on {chip}: {event}, expected {expected}")
        check(not by_line, f"{fault} on {chip}: {by_line}")
        told = re.search(r"(\d+) lines? (?:is|are) no transaction", errors)
        refused = len(lines) - len(events) - lines.count("")
        check((int(told[1]) if told else 0) == refused, f"{fault} on {chip}: {errors}")
check(unbelieved > 50, f"only {unbelieved} faulty lines")

# Filters show a part of the events; what comes before counts all the same.
for chip in random.sample(sorted(chips), 6):
    transactions = operations(chip, 150)
    lines, numbers = written("plain", transactions)
    model = Model(chip)
    events = [model.event(*each) for each in zip(numbers, transactions)]
    hit = random.choice([event for event in events if event["fields"]
                         and "outsideFields" not in event["fields"] and not event["findings"]])
    name = next(iter(hit["fields"]))
    value = hit["fields"][name][1]
    table = next(each for each in chips[chip] if each.name == hit["table"])
    field = next(each for each in table.fields if each.name == name)
    place = hit["index"] if hit["index"] is not None else hit["element"]
    middle, late = transactions[40].time, transactions[110].time
    cases = [
        (["--table", hit["table"]], lambda e: e["table"] == hit["table"]),
        (["--history", f"{hit['table']}:{place}"], lambda e: e["address"] == hit["address"]),
        (["--from", middle, "--until", late], lambda e: float(middle) <= float(e["time"]) <= float(late)),
        (["--table", hit["table"], "--where", f"changed {name}"],
         lambda e: e["table"] == hit["table"] and name in e["fields"])]
    if not field.type.endswith("itmap"):
        cases.append((["--table", hit["table"], "--where", f"changed {name} and {name}={value:#x}"],
                      lambda e: e["table"] == hit["table"] and e["fields"].get(name, "no")[1] == value))
    for options, keeps in cases:
        code, got, errors = traced(chip, lines, *options)
        check(code == 0 and not errors, f"{options} on {chip}: {code} {errors}")
        expected = [event for event in events if keeps(event)]
        ignored = ("findings", "others") if "shared-address" in str(expected) else ()
        same(str(options), chip, got, expected, ignored)
        # The end of a trace is the start of the next one.
    code, got, _ = traced(chip, lines, "--limit", "7")
    same("--limit", chip, got, events[:7])
    folder = os.path.join(work.name, f"half-{chip}")
    traced(chip, lines[:75], "--write-state", folder)
    code, got, _ = traced(chip, lines[75:], "--before", folder)
    same("--before", chip, got, events[75:], ("line",))
    stat = run("trace", "-c", chip, "--stat", "-f", "csv", data="\n".join(lines).encode())[1].decode()
    counts = collections.Counter()
    for event in events:
        if event["op"] == "write":
            counts.update((event["table"] or "", name) for name in ["", *event["fields"]])
    check({(row["table"], row["field"]): int(row["writes"]) for row in csv.DictReader(io.StringIO(stat))}
          == counts, f"--stat on {chip}")

# An address that two tables share is that of the one that is named, without the finding.
shared = b"W 0x20f80003 " + b" ".join([b"1"] * 18) + b"\n"
for options, table, findings in (([], "VlanProfile2Entry", {"shared-address"}),
                                 (["--table", "vfiprofile2"], "VfiProfile2Entry", set()),
                                 (["--table", "vlanprofile2"], "VlanProfile2Entry", set())):
    code, output, _ = run("trace", "-c", "33", "-f", "jsonl", "--check", *options, data=shared)
    event = json.loads(output)
    check((code, event["table"], set(event["findings"])) == (0, table, findings), f"{options}: {event}")

# Single logs: the lines, options, the exit code with --check, and what the events have to have.
small = "W 0x12001000 "
logs = [
    (["R 0x12001000", "R 0x12001000 -> 5"], [], 0, [("read", set())]),
    (["R 0x12001000", "W 0x12001000 5"], [], 1, [("write", set())]),
    (["R 0x12001000"] + ["W 0x12001400 5"] * 17 + ["R 0x12001000 5"], [], 1,
     [("write", set())] + [("write", {"unchanged"})] * 16 + [("read", set())]),
    (["W 0x12001000 5 access=17 block=1", "W 0x12001000 6 access=9 block=1"], [], 1,
     [("write", set()), ("write", {"access-code"})]),
    ([small + "5", small + "5"], [], 1, [("write", set()), ("write", {"unchanged"})]),
    ([small + "0", small + "0", "R 0x12001000 1"], [], 1,
     [("write", set()), ("write", {"unchanged"}), ("read", {"read-differs"})]),
    ([small + "00000005", small + "0000005", small + "000000005"], [], 1, [("write", set())]),
    (["W 0x12001000 len=2 5", "W 0x12001000 len=1 5"], [], 1, [("write", set())]),
    ([small + "5", "   6", "   what"], [], 1, [("write", {"too-long"})]),
    ([small + "5", "what", "   6"], [], 1, [("write", set())]),
    (["1.0 " + small + "5", small + "6", "0.5 " + small + "7"], [], 1,
     [("write", set()), ("write", set())]),
    ([small + "5", "  sh-1 [0] . 1.0: regmap_reg_write: a reg=12001000 val=5"], [], 1,
     [("write", set())]),
    (["W 0x0c7c0014 1", "W 0x0c7c0014 2", small + "1", "W 0x0c7c0014 3"], ["--words-apart"], 1,
     [("write", {"too-short"}), ("write", set()), ("write", {"too-short"})]),
    ([small + "5" * 70000, small + "5"], [], 1, [("write", set())]),
    ([small + " ".join(["5"] * 1025), small + "5"], [], 1, [("write", set())]),
    (["at,op,addr,data0,data1", "9,w,0x12001000,5,", "9,x,0x12001000,5,", '9,"w,0x12001000,5'], [], 1,
     [("write", set())]),
    (['{"op":"w","addr":301993984,"data":5}', '{"op":"w","addr":301993984,"data":4294967296}',
      '{"op":"w","op":"r","addr":301993984,"data":5}', '{"op":"w","addr":301993984,"data":[[5]]}',
      '{"op":"w","addr":301993984,"data":5} 6', "[" * 60000], [], 1, [("write", set())]),
]
for lines, options, code, expected in logs:
    got = traced("33", lines, "--check", *options)
    check((got[0], [(event["op"], event["findings"]) for event in got[1]]) == (code, expected),
          f"{lines[0][:60]}: {got}")
for lines, options, text in (
        ([""], [], "no line is a bus transaction"), (["what", "W 5"], [], "no line is a bus transaction"),
        (["W 4 35 1 0xfa000100 0x1 0x0 0"], [], "two shapes"), ([small + "5"], ["--from", "1"], "compare"),
        (["1:00:00 " + small + "5"], ["--until", "7.5"], "compare"),
        ([small + "5"], ["--from", "7.5", "--until", "7.25"], "is before --from"),
        ([small + "5"], ["--where", "stg=64"], "largest value"), ([small + "5"], ["--where", "no=1"], "no field"),
        ([small + "5"], ["--line", "{op} {words}"], "{address} is missing"),
        ([small + "5"], ["--history", "vlan:8192"], "0 to 8191"), ([small + "5"], ["--table", "vlan2"], "exist")):
    code, _, errors = traced("33", lines, *options)
    check(code == 2 and text in errors and "; " in errors, f"{lines} {options}: {code} {errors}")

# --follow shows what has come, also where more lines may belong to it, and the rest of a line later.
command = subprocess.Popen([program, "trace", "-c", "33", "--follow"], stdin=subprocess.PIPE,
                           stdout=subprocess.PIPE)
for piece, expected in ((b"W 0x12001000 5\nW 0x12", "element 0"), (b"001400 6\n", "element 1")):
    command.stdin.write(piece)
    command.stdin.flush()
    check(expected in command.stdout.readline().decode(), f"--follow: {expected}")
command.stdin.close()
check(b"2 transactions" in command.stdout.read() and command.wait(10) == 0, "--follow: the end")
finish()
