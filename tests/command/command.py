"""Shared by the tests of the command: running it, golden layouts, collecting failures."""

import collections
import csv
import os
import re
import subprocess
import sys

source, build = sys.argv[1:3]
program = os.path.join(build, "bin", "velmar")
failures = []
checks = 0

Field = collections.namedtuple("Field", "name hardware_name id type offset width")
Table = collections.namedtuple("Table", "name chip entry_bytes count base access block fields")


def run(*arguments, data=b"", timeout=60, **options):
    """Runs velmar; returns the exit code, standard output and standard error."""
    result = subprocess.run([program, *arguments], input=data, capture_output=True,
                            timeout=timeout, **options)
    return result.returncode, result.stdout, result.stderr.decode(errors="replace")


def check(holds, what):
    global checks
    checks += 1
    if not holds:
        failures.append(what)
    return holds


def finish():
    print("\n".join(failures[:20]) or f"{checks} checks hold")
    sys.exit(1 if failures else 0)


def number(rule, port):
    """The value of a rule such as 2, 2n, 244+n or 2(n-136) for port n."""
    plus, times, minus = re.fullmatch(r"(?:(\d+)\+)?(\d*)(?:n|\(n-(\d+)\))", rule).groups("")
    return int(plus or 0) + int(times or 1) * (port - int(minus or 0))


def rows(name):
    """The rows of a golden file, one for each chip and port that a row stands for."""
    with open(os.path.join(source, "tests", "golden", name), encoding="utf-8") as file:
        for row in csv.DictReader((line for line in file if line[0] != "#"), delimiter="\t"):
            ports = re.search(r"{(\d+)\.\.(\d+)}", row.get("accessor", ""))
            for port in range(int(ports[1]), int(ports[2]) + 1) if ports else [None]:
                each = {title: re.sub(r"{.*}", str(port), cell) if "{" in cell else
                        str(number(cell, port)) if ports and "n" in cell and title in ("id", "offset")
                        else cell for title, cell in row.items()}
                for chip in row["chip"].split(","):
                    yield {**each, "chip": chip, "port": port}


def golden_tables():
    """Every class on every chip, from the golden data."""
    fields = collections.defaultdict(list)
    for row in rows("fields.tsv"):
        if row["offset"] == "-":  # the chip does not have the field
            continue
        fields[row["class"], row["chip"]].append(
            Field(row["accessor"], row["hardware_name"], int(row["id"]), row["type"],
                  int(row["offset"]), int(row["width"])))
    for row in rows("tables.tsv"):
        count = int(row["entries"]) if row["kind"] == "table" else int(row["array_elements"])
        yield Table(row["class"], row["chip"], 4 * int(row["words"]), count, int(row["base"], 16),
                    int(row["access_type"]), int(row["block"]), fields[row["class"], row["chip"]])


def bits(entry, field):
    return int.from_bytes(entry, "little") >> field.offset & (1 << field.width) - 1
