#!/usr/bin/env python3
"""Conditions on entries select the entries that plain Python selects: a table of expressions, and
random ones over random entries of several tables; what is no condition is refused.

usage: conditions.py SOURCE_DIR BUILD_DIR"""

import operator
import random
import re
import sys

from command import bits, check, failures, finish, golden_tables, run

random.seed(24)
tables = {(table.name, table.chip): table for table in golden_tables()}
signs = {"=": operator.eq, "==": operator.eq, "!=": operator.ne, "<": operator.lt,
         "<=": operator.le, ">": operator.gt, ">=": operator.ge}
largest = 1 << 128


class Sample:
    """A table on a chip with entries from some index on; values are small, so that they meet."""

    def __init__(self, name, chip, first, count=48):
        self.table, self.first = tables[name, chip], first
        self.entries = [self.entry(number) for number in range(count)]
        self.bitmaps = [field for field in self.table.fields if "itmap" in field.type]
        self.numbers = [field for field in self.table.fields if field not in self.bitmaps]
        self.families = {}
        for field in self.numbers:
            prefix = re.fullmatch(r"(\w*?[a-z])\d+", field.name)
            if prefix:
                self.families.setdefault(prefix[1], []).append(field)
        self.families = {name: members for name, members in self.families.items()
                         if len(members) > 8 and len({field.width for field in members}) == 1}

    def entry(self, number):
        size = self.table.entry_bytes
        if number % 6 == 0:
            return bytes(size)
        value = random.getrandbits(8 * size) & random.getrandbits(8 * size)
        return (value & (random.getrandbits(8 * size) if number % 2 else ~0)).to_bytes(size, "little")

    def selected(self, holds):
        return [self.first + number for number, entry in enumerate(self.entries)
                if holds(self.first + number, entry)]

    def command(self, *conditions):
        words = [word for condition in conditions for word in ("--where", condition)]
        code, output, errors = run(
            "decode", self.table.name, "-c", self.table.chip, "--input", "raw", "--first",
            str(self.first), "-f", "csv", "--fields", self.table.fields[0].name, *words,
            data=b"".join(self.entries))
        return code, [int(line.split(b",")[0]) for line in output.splitlines()[1:]], errors

    def reserved(self):
        mask = (1 << 8 * self.table.entry_bytes) - 1
        for field in self.table.fields:
            mask &= ~((1 << field.width) - 1 << field.offset)
        return mask


vlan = Sample("VlanEntry", "BCM56990_B0", 100)
stg = Sample("VlanStgEntry", "BCM56980_A0", 0)
egress = Sample("EgrVlanEntry", "BCM56980_A0", 4000)
samples = (vlan, stg, egress)


def value(sample, name):
    field = next(field for field in sample.table.fields if field.name == name)
    return lambda entry: bits(entry, field)


s, v, f = value(vlan, "stg"), value(vlan, "valid"), value(vlan, "fidId")
p12 = value(stg, "spTreePort12")
ports = [value(stg, field.name) for field in stg.families["spTreePort"]]
members = value(egress, "portBitmap")


def port(*numbers):
    return sum(1 << number for number in numbers)


# A sample, a condition, and whether it holds for an entry with its index.
expressions = [
    (vlan, "stg=2-5,9", lambda i, e: 2 <= s(e) <= 5 or s(e) == 9),
    (vlan, "stg != 2-5 , 9", lambda i, e: not (2 <= s(e) <= 5 or s(e) == 9)),
    (vlan, "stg=32-", lambda i, e: s(e) >= 32),
    (vlan, "STG == 0x0,0x10-0x1f", lambda i, e: s(e) == 0 or 16 <= s(e) < 32),
    (vlan, "fid-id>=0x100", lambda i, e: f(e) >= 256),
    (vlan, "FID_ID<256", lambda i, e: f(e) < 256),
    (vlan, "90<=255", lambda i, e: f(e) <= 255),
    (vlan, "0x5a > 255", lambda i, e: f(e) > 255),
    (vlan, "stg<0", lambda i, e: False),
    (vlan, "index=103-110,120-", lambda i, e: 103 <= i <= 110 or i >= 120),
    (vlan, "Index!=103", lambda i, e: i != 103),
    (vlan, "index>=0x70", lambda i, e: i >= 112),
    (vlan, "nonzero", lambda i, e: any(e)),
    (vlan, "not nonzero", lambda i, e: not any(e)),
    (vlan, "reserved", lambda i, e: int.from_bytes(e, "little") & vlan.reserved()),
    (vlan, "NOT Reserved And NonZero", lambda i, e: any(e) and not
     int.from_bytes(e, "little") & vlan.reserved()),
    (vlan, "not valid=1 and stg<8", lambda i, e: v(e) != 1 and s(e) < 8),
    (vlan, "not (valid=1 and stg<8)", lambda i, e: not (v(e) == 1 and s(e) < 8)),
    (vlan, "not not valid=1", lambda i, e: v(e) == 1),
    (vlan, "valid=1 or stg=0 and fidId=0", lambda i, e: v(e) == 1 or s(e) == 0 and f(e) == 0),
    (vlan, "(valid=1 or stg=0) and fidId=0", lambda i, e: (v(e) == 1 or s(e) == 0) and f(e) == 0),
    (vlan, "valid=1 or stg=0; fidId=0", lambda i, e: (v(e) == 1 or s(e) == 0) and f(e) == 0),
    (vlan, "valid=0;stg=1-;index<130", lambda i, e: v(e) == 0 and s(e) > 0 and i < 130),
    (vlan, "valid=0 and(stg=1)or(stg=2)", lambda i, e: v(e) == 0 and s(e) == 1 or s(e) == 2),
    (vlan, "(valid=1; stg>1) or stg=0", lambda i, e: v(e) == 1 and s(e) > 1 or s(e) == 0),
    (stg, "any spTreePort = 2", lambda i, e: any(p(e) == 2 for p in ports)),
    (stg, "all spTreePort = 0", lambda i, e: all(p(e) == 0 for p in ports)),
    (stg, "all SP_TREE_PORT != 3", lambda i, e: all(p(e) != 3 for p in ports)),
    (stg, "any sp-tree-port != 0", lambda i, e: any(p(e) != 0 for p in ports)),
    (stg, "not any spTreePort = 1,3", lambda i, e: not any(p(e) in (1, 3) for p in ports)),
    (stg, "any spTreePort0-5=3", lambda i, e: any(p(e) == 3 for p in ports[:6])),
    (stg, "spTreePort0-1<2", lambda i, e: all(p(e) < 2 for p in ports[:2])),
    (stg, "any spTreePort*>2", lambda i, e: any(p(e) > 2 for p in ports)),
    (stg, "spTreePort12 = 2", lambda i, e: p12(e) == 2),
    (egress, "portBitmap=none", lambda i, e: members(e) == 0),
    (egress, "portBitmap!=none and portBitmap!~0-9",
     lambda i, e: members(e) and not members(e) & 0x3ff),
    (egress, "portBitmap ~ 1,2", lambda i, e: members(e) & 6 == 6),
    (egress, "portBitmap!~20-22, 25", lambda i, e: not members(e) & port(20, 21, 22, 25)),
    (egress, "portBitmap~0x3", lambda i, e: members(e) & 3 == 3),
]

# What is no condition: the sample, the text, and a part of the message.
refusals = [
    (vlan, "stg", "give stg=VALUE"), (vlan, "=3", "give FIELD=VALUE"), (vlan, "stg=", "a value is"),
    (vlan, "stg=3,", "a value is missing"), (vlan, "stg=5-2", "runs backwards"),
    (vlan, "stg=-1", "from 0 to 63"), (vlan, "stg=64", "largest value is 63"),
    (vlan, "stg=2-64", "largest value is 63"), (vlan, "stg<2,3", "one number"),
    (vlan, "stg<2-3", "not a number"), (vlan, "stg~3", "is a number"),
    (vlan, "index~3", "is a number"), (vlan, "stg=1 valid=1", '"and", "or" or ";"'),
    (vlan, "stg=1 && valid=1", '"and", "or" or ";"'), (vlan, "(stg=1", '")" is missing'),
    (vlan, "stg=1)", "remove it"), (vlan, "stg=1 and", "give FIELD=VALUE"),
    (vlan, "stg=1;", "give FIELD=VALUE"), (vlan, "not", "give FIELD=VALUE"),
    (vlan, "and stg=1", "no field"), (vlan, "nonzero=1", "takes no value"),
    (vlan, "any reserved", "no field"), (vlan, "-stg=1", "no field"),
    (vlan, "stgg=1", "did you mean stg"), (vlan, "(" * 200 + "stg=1", "make it simpler"),
    (vlan, "not " * 200 + "stg=1", "make it simpler"),
    (stg, "spTreePort=2", "any spTreePort or all spTreePort"),
    (egress, "portBitmap<3", "is a bitmap"), (egress, "portBitmap~none", "portBitmap=none"),
    (egress, "portBitmap=,3", "a value is missing"), (egress, "portBitmap=1 2", '"and"'),
    (egress, "portBitmap~9999", "there is no port 9999"),
]


def spelled(name):
    """A name in one of the ways in which people type it."""
    snake = re.sub(r"(?<=[a-z])(?=[A-Z0-9])", random.choice("_-"), name)
    return random.choice((name, name, snake.upper(), name.lower(), snake))


def number_text(number):
    return random.choice((str(number), f"{number:#x}"))


def value_list(most, seen):
    """A list of numbers and ranges as text, and its ranges; values of the entries come often."""
    ranges, texts = [], []
    for _ in range(random.choice((1, 1, 2, 3))):
        first = random.choice(seen) if random.random() < .7 else random.randint(0, most)
        kind = random.random()
        last = first if kind < .6 else largest if kind < .7 else random.randint(first, most)
        ranges.append((first, last))
        texts.append(number_text(first) + ("" if last == first and kind < .6 else
                                           "-" if last == largest else "-" + number_text(last)))
    return random.choice((",", ", ", " ,")).join(texts), ranges


def among(number, ranges):
    return any(first <= number <= last for first, last in ranges)


def of_number(name, most, seen, read):
    """A condition on one number: read() gives those that it is about."""
    sign = random.choice(list(signs))
    text, ranges = value_list(most, seen)
    if sign not in ("=", "==", "!="):
        ranges = [(random.choice(seen),) * 2]
        text = number_text(ranges[0][0])
    blank = random.choice(("", " "))

    def holds(number):
        if sign == "!=":
            return not among(number, ranges)
        return among(number, ranges) if sign in ("=", "==") else signs[sign](number, ranges[0][0])
    return name + blank + sign + blank + text, holds


def simple(sample):
    kind = random.randrange(8)
    if kind == 0:
        return random.choice((("nonzero", lambda i, e: any(e)), ("RESERVED", lambda i, e: bool(
            int.from_bytes(e, "little") & sample.reserved()))))
    if kind == 1:
        text, holds = of_number("index", 5000, list(range(sample.first, sample.first + 48)), None)
        return text, lambda i, e: holds(i)
    if kind in (2, 3) and sample.families:
        name, fields = random.choice(list(sample.families.items()))
        quantifier, function = random.choice((("any", any), ("ALL", all)))
        fields = fields if random.random() < .5 else fields[:random.randrange(2, 6)]
        name = (name if len(fields) > 8 else
                fields[0].name + "-" + re.search(r"\d+$", fields[-1].name)[0])
        text, holds = of_number(f"{quantifier} {name}", (1 << fields[0].width) - 1,
                                [bits(entry, field) for entry in sample.entries for field in fields],
                                None)
        return text, lambda i, e: function(holds(bits(e, field)) for field in fields)
    if kind in (4, 5) and sample.bitmaps:
        field = random.choice(sample.bitmaps)
        mask = (bits(random.choice(sample.entries), field) & random.getrandbits(field.width) &
                random.getrandbits(field.width)) or 1 << random.randrange(field.width)
        text = random.choice((hex(mask), ",".join(
            str(bit) for bit in range(field.width) if mask >> bit & 1)))
        sign = random.choice(("~", "!~", "=", "!="))
        tests = {"~": lambda number: number & mask == mask, "!~": lambda number: not number & mask,
                 "=": lambda number: number == mask, "!=": lambda number: number != mask}
        return spelled(field.name) + sign + text, lambda i, e: tests[sign](bits(e, field))
    field = random.choice(sample.numbers)
    text, holds = of_number(random.choice((spelled(field.name), str(field.id))),
                            (1 << field.width) - 1,
                            [bits(entry, field) for entry in sample.entries], None)
    return text, lambda i, e: holds(bits(e, field))


def expression(sample, depth):
    """A random condition, bracketed so that its parts bind as they were made."""
    if depth == 0:
        return simple(sample)
    kind = random.randrange(4)
    left, left_holds = expression(sample, depth - 1)
    if kind == 0:
        return f"not ({left})", lambda i, e: not left_holds(i, e)
    right, right_holds = expression(sample, depth - 1)
    if kind == 1:
        return f"({left}) or ({right})", lambda i, e: left_holds(i, e) or right_holds(i, e)
    word = random.choice((" and ", " AND ", " ; ", ";"))
    return f"({left}){word}({right})", lambda i, e: left_holds(i, e) and right_holds(i, e)


def compare(sample, texts, holds):
    expected = sample.selected(holds)
    code, indexes, errors = sample.command(*texts)
    if "--show" in sys.argv:
        print(sample.table.name, texts, "->", ",".join(map(str, indexes)) or "none")
    check(code == 0 and indexes == expected and ("no entry" in errors) == (not expected),
          f"{sample.table.name} {texts}: {code} {indexes} {errors}, expected {expected}")


for sample, text, holds in expressions:
    compare(sample, [text], holds)
for number in range(400):
    sample = random.choice(samples)
    parts = [expression(sample, random.choice((0, 0, 1, 2, 3))) for _ in range(1 + number % 2)]
    compare(sample, [text for text, _ in parts],
            lambda i, e, parts=parts: all(holds(i, e) for _, holds in parts))
for sample, text, message in refusals:
    code, indexes, errors = sample.command(text)
    check(code == 2 and not indexes and message in errors, f"{text}: {code} {errors}")
words = {"index", "nonzero", "reserved", "any", "all", "and", "or", "not"}
check(not words & {field.name.lower() for table in tables.values() for field in table.fields},
      "a field has the name of a word of conditions")
finish()
