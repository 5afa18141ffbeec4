#!/usr/bin/env python3
"""Every JSON document conforms to its JSON Schema, which allows no member that it does not name. On a
terminal of any width the same names, chips, addresses and bit ranges stand there unbroken.

usage: documents.py SOURCE_DIR BUILD_DIR"""

import fcntl
import glob
import json
import os
import re
import struct
import subprocess
import tempfile
import termios

import jsonschema

from command import check, finish, program, run, source

os.chdir(source)
work = tempfile.TemporaryDirectory()
changed = os.path.join(work.name, "changed.bin")
run("encode", "vlan", "--chip", "33", "--base", "samples/vlan-bcm56990.bin", "--index", "20-22",
    "stg=7", "-f", "raw", "-o", changed)
cut = os.path.join(work.name, "cut.bin")
with open("samples/vlan-bcm56990.bin", "rb") as whole, open(cut, "wb") as part:
    part.write(whole.read(16 * 4000))
other = os.path.join(work.name, "other")
run("snapshot", other, "--chip", "33", f"vlan={changed}")
odd = os.path.join(work.name, "odd.log")
with open(odd, "w", encoding="utf-8") as log:
    log.write("W 0x20f80000 1 2\nW 0x12001003 1\nW 0x0c7c0014 0 0 0 ffffffff\nR 0x12001000 0\n")
commands = [line.split() for line in f"""
chips
tables
tables --chip BCM56470_A0
fields bitmap
fields --table VlanStgEntry --chip 56980
layout VlanEntry --chip 33
layout VlanStg --chip 33
layout IngVpVlanMembership --chip 56470
layout IgmpMldPktControl --chip 56980
compare --chip 56980 --chip 33
compare VlanStg --chip 56275 --chip 56980
addr IgmpMldPktControl --chip 33 --array 0-3
addr --find 0x0c7c0064 --find 0x0c7c0065
identify samples/vlan-profile-bcm56870.bin
decode vlan --chip 33 samples/vlan-bcm56990.bin --nonzero
decode vlan --chip 33 samples/vlan-bcm56990.bin --index 20 --plain
decode EgrVlan --chip 56980 samples/egr-vlan-bcm56980.bin
decode EgrVlan --chip 56980 samples/egr-vlan-bcm56980.bin --plain
decode vlanstg --chip 56980 samples/vlan-stg-bcm56980.bin
decode vlanstg --chip 56980 samples/vlan-stg-bcm56980.bin --compact
decode IngVpVlanMembershipEcc --chip 56470 samples/ing-vp-vlan-membership-ecc-bcm56470.bin --plain
decode vlan --chip 33 --check {changed}
diff vlan --chip 33 samples/vlan-bcm56990.bin {changed}
diff vlan --chip 33 {cut} {changed}
diff vlan --chip 33 {cut} {changed} --stat
diff samples/lab-bcm56990 {other}
diff vlan samples/lab-bcm56990 {other}
trace --chip 33 samples/agent-bcm56990.log
trace --chip 33 {odd}
trace --chip 33 samples/agent-bcm56990.log --stat
translate VlanProfile --from 56870 --to 56980 samples/vlan-profile-bcm56870.bin
""".strip().splitlines()]


def strict(schema):
    """The schema, with only the members allowed that it names."""
    if isinstance(schema, list):
        return [strict(each) for each in schema]
    if not isinstance(schema, dict):
        return schema
    inner = {name: strict(each) for name, each in schema.items()}
    return {"additionalProperties": False, **inner} if "properties" in inner else inner


schemas = {}
for path in glob.glob("docs/schema/*.schema.json"):
    with open(path, encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(strict(schema))
    schemas[schema["properties"]["format"]["const"]] = validator


def on_terminal(columns, *arguments):
    """What the command prints on a terminal of so many columns."""
    try:
        primary, secondary = os.openpty()
    except OSError:
        return None  # the system has no terminal to give
    fcntl.ioctl(secondary, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    done = subprocess.Popen([program, *arguments], stdout=secondary, stdin=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL, env=dict(os.environ, NO_COLOR="1"))
    os.close(secondary)
    text = b""
    try:
        while piece := os.read(primary, 65536):
            text += piece
    except OSError:
        pass  # the command has ended
    os.close(primary)
    done.wait()
    return text.decode().replace("\r", "")


def words(value):
    """What one would copy from a document: names, chips, addresses, bit ranges."""
    if isinstance(value, dict):
        return {word for name, each in value.items() for word in words(each)
                if name not in ("reason", "purpose", "meaning", "addressRule", "type", "hex")}
    if isinstance(value, list):
        return {word for each in value for word in words(each)}
    return {value} if isinstance(value, str) and re.fullmatch(r"[\w:]+", value) else set()


used = set()
for command in commands + [["export"]]:
    more = [] if command == ["export"] else ["--format", "json"]
    code, text, errors = run(*command, *more)
    check(code in (0, 1) and not errors, f"{command}: exit {code}, {errors}")
    document = json.loads(text)
    used.add(document["format"])
    for error in schemas[document["format"]].iter_errors(document):
        check(False, f"{command}: {error.json_path}: {error.message[:200]}")
    if command == ["export"] or command[-1] in ("--plain", "--compact") or command[0] == "translate":
        continue
    whole = run(*command)[1].decode()
    expected = {word for word in words(document) if re.search(rf"(?<!\w){word}(?!\w)", whole)}
    for columns in (60, 80, 120):
        shown = on_terminal(columns, *command)
        if shown is None:
            print("no terminal: widths are not checked")
            break
        lost = [word for word in expected if not re.search(rf"(?<!\w){word}(?!\w)", shown)]
        check(not lost, f"{command} at {columns} columns: {lost[:5]}")
        wide = [line for line in shown.splitlines() if len(line) > columns and " " in line.strip()
                and not re.search(r"0x[0-9a-f]{20}", line)]
        check(not wide, f"{command} at {columns} columns: {wide[:2]}")
code, text, errors = run("sql", "--data", "samples/lab-bcm56990/", "-f", "json",
                         "select *, 1.5, null, x'00' from vlan")
document = json.loads(text)
used.add(document["format"])
for error in schemas[document["format"]].iter_errors(document):
    check(False, f"sql: {error.json_path}: {error.message[:200]}")
# The manifest of a snapshot.
with open("samples/lab-bcm56990/snapshot.json", encoding="utf-8") as file:
    document = json.load(file)
used.add(document["format"])
for error in schemas[document["format"]].iter_errors(document):
    check(False, f"manifest: {error.json_path}: {error.message[:200]}")
# Faults, with the place and the remedies that the text has.
faults = [
    (("decode", "vlan", "-c", "33", "-f", "json"), b"0: 00 11\n", {"line": 1}, []),
    (("decode", "vlan", "-c", "33", "--format=jsonl"), b"00010203 04050607\n0001 0203\n", {}, None),
    (("decode", "vlanmpls", "-c", "56980", "-fjson"), b"00000000: 0180 8281\n00000004: 8483 8685\n", {},
     [{"option": "--hex-order", "choices": ["bytes", "words"]}]),
    (("decode", "vlan", "-c", "33", "-f", "json", "--where", "stg=64"), b"", {"field": "stg"}, []),
    (("encode", "vlan", "-c", "33", "-f", "json", "nope=1"), b"", {}, []),
    (("addr", "nope", "-c", "33", "--index", "0", "-f", "json"), b"", {}, []),
    (("chips", "extra", "-f", "json"), b"", {}, []),
    (("decode", "vlan", "-c", "33", "-f", "json", "no \xff such"), b"", {}, []),
]
for arguments, data, place, remedies in faults:
    code, text, errors = run(*arguments, data=data)
    check(code == 2 and not text and errors.count("\n") == 1, f"{arguments}: {code} {errors}")
    document = json.loads(errors)
    used.add(document["format"])
    for error in schemas[document["format"]].iter_errors(document):
        check(False, f"{arguments}: {error.json_path}: {error.message[:200]}")
    check(place.items() <= document["place"].items(), f"{arguments}: {document}, expected {place}")
    check(remedies is None or document["remedies"] == remedies, f"{arguments}: {document}")
    plain = [word for word in arguments if "json" not in word and word not in ("-f", "--format")]
    check(run(*plain, data=data)[2] == f"velmar: {document['text']}\n", f"{plain}: {document}")

# The command prints losses as text; tests/bindings validates this document.
of_libraries = {"velmar-translation"}
check(used == set(schemas) - of_libraries, f"schemas without a document: {set(schemas) - used}")

for verb in re.findall(r"^  ([a-z]+) ", run("--help")[1].decode(), re.M):
    if on_terminal(60, "--help") is None:
        break
    text = on_terminal(60, verb, "--help")
    check(max(map(len, text.splitlines())) <= 60, f"help of {verb} at 60 columns")
    check([word for word in text.split() if word != "\\"] ==
          [word for word in on_terminal(80, verb, "--help").split() if word != "\\"],
          f"help of {verb}: words are broken")
finish()
