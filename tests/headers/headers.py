#!/usr/bin/env python3
"""The comments of the derived headers agree with the golden data for every field, and a header that
differs from tables/ is refused in one line.

usage: headers.py SOURCE_DIR BUILD_DIR"""

import collections
import os
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "command"))
from command import build, check, finish, golden_tables, source

headers = os.path.join(source, "include", "Velmar")
SAID = re.compile(r"\. ([A-Z0-9_]+): (?:(\d+) bits?(.*?); )?on (.*)\.$")


def documented(name):
    """(comment, declaration) of each member of a header, the comment joined to one line."""
    comment = []
    with open(os.path.join(headers, name + ".h"), encoding="utf-8") as file:
        for line in map(str.strip, file):
            if line.startswith("///"):
                comment.append(line[3:].strip())
            else:
                yield " ".join(comment), line
                comment = []


def fields_said(name):
    """(accessor, hardware name, chip, width) for each field of a header on each of its chips."""
    chips = []
    for comment, line in documented(name):
        if line.startswith("class "):
            chips = re.search(r"first byte\. On ([^:]*):", comment)[1].split(", ")
        getter, said = re.search(r" (\w+)\(\) const;", line), SAID.search(comment)
        if not getter or not said:
            continue
        hardware_name, width, changes, where = said.groups()
        listed = re.sub("^all chips( but )?", "", where).split(", ")
        steps = {chip: bits for bits, chip in re.findall(r", (\d+) from (\w+)", changes or "")}
        for chip in chips:
            width = steps.get(chip, width)
            if (chip in listed) != where.startswith("all chips"):
                yield getter[1], hardware_name, chip, int(width)


def refusal(name, before, after):
    """Exit code and message of the check for headers in which one text is replaced."""
    with tempfile.TemporaryDirectory() as directory:
        copy = shutil.copytree(headers, os.path.join(directory, "Velmar"))
        path = os.path.join(copy, name)
        with open(path, encoding="utf-8") as file:
            text = file.read()
        check(before in text, f"{name} has no {before}")
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace(before, after, 1))
        done = subprocess.run([os.path.join(build, "bin", "velmar-headers"), "check", copy],
                              capture_output=True, text=True, check=False)
        return done.returncode, done.stderr


golden = collections.defaultdict(set)
for table in golden_tables():
    golden[table.name] |= {(field.name, field.hardware_name, table.chip, field.width)
                           for field in table.fields}
for name, expected in golden.items():
    said = set(fields_said(name))
    check(said == expected, f"{name}.h: {sorted(said ^ expected)[:3]}")

for fault in (("VlanEntry.h", "  void stgIs(U16 value);\n", ""),
              ("VlanEntry.h", "U16 stg() const", "U8 stg() const"),
              ("VlanEntry.h", "12 bits, 13 from", "12 bits, 14 from"),
              ("FieldId.h", "VFI = 617", "VFI = 618"),
              ("MetaInfo.h", "#include \"Velmar/VlanEntry.h\"\n", "")):
    code, said = refusal(*fault)
    check(code == 1 and said.count("\n") == 1 and f"{fault[0]} is stale" in said and
          "--target refresh" in said, f"{fault}: {code} {said}")
finish()
