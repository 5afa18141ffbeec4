#!/usr/bin/env python3
"""Every dump of the command's test of notations gives the same in the JavaScript package: the same entries,
or a refusal with the same code, place and choices.

usage: reads.py SOURCE_DIR BUILD_DIR [--table]   prints a line for each notation"""

import collections
import json
import os
import re
import sys
import tempfile

from asking import ask  # finds the next ones
from command import check, finish, run
from notations import dumps, notations, targets


def of_command(table, text):
    code, result, error = run("decode", table.name, "--chip", table.chip, "-f", "json", "-", data=text)
    if code != 0:
        fault = json.loads(error)
        remedies = {}
        for each in fault["remedies"]:
            option = re.sub("-(.)", lambda m: m[1].upper(), each["option"][2:])
            remedies.setdefault(option, []).extend(each["choices"])
        return {"refusal": [fault["code"], fault["place"].get("line"), remedies]}
    places = {field.name: field.offset for field in table.fields}
    entries = []
    for entry in json.loads(result)["entries"]:
        number = int(entry.get("outsideFields", "0"), 16)
        for name, value in entry["fields"].items():
            number |= int(value["hex"], 16) << places[name]
        entries.append([entry["index"], number.to_bytes(table.entry_bytes, "little").hex()])
    return {"result": entries}


def of_package(answer):
    if "refusal" not in answer:
        return answer
    return {"refusal": [answer["refusal"][key] for key in ("code", "line", "choices")]}


cells = []
with tempfile.TemporaryDirectory() as folder:
    for name, (_, notation) in notations.items():
        for table in targets:
            for kind, dump in dumps(table.entry_bytes).items():
                text = notation(dump, table)
                if text is not None:
                    path = os.path.join(folder, str(len(cells)))
                    with open(path, "wb") as file:
                        file.write(text)
                    cells.append((name, table, kind, path, text))
    answers = ask([{"call": "read", "table": table.name, "chip": table.chip, "path": path}
                   for _, table, _, path, _ in cells])
counts = collections.defaultdict(collections.Counter)
for (name, table, kind, _, text), answer in zip(cells, answers):
    expected, found = of_command(table, text), of_package(answer)
    counts[name]["read" if "result" in expected else "refused"] += 1
    where = f"{name}, {table.name} on {table.chip}, {kind}"
    check(found == expected, f"{where}: {str(found)[:200]}, the command has {str(expected)[:200]}")
if "--table" in sys.argv:
    for name, count in counts.items():
        print(f"{name}\t{count['read']} read\t{count['refused']} refused")
check(len(cells) > 1000, f"cells are lost: {len(cells)}")
finish()
