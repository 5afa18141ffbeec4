#!/usr/bin/env python3
"""The exported catalogue fits its JSON Schema and holds the golden numbers, all of them and no others.

usage: catalogue_export.py SOURCE_DIR BUILD_DIR"""

import json
import os
import re

from command import Field, check, finish, golden_tables, run, source

types = {"object": dict, "array": list, "string": str, "integer": int, "boolean": bool}


def fit(schema, value, where, root):
    """Checks a value against the parts of JSON Schema that the schema uses; others are an error."""
    if "$ref" in schema:
        return fit(root["$defs"][schema["$ref"].rsplit("/", 1)[1]], value, where, root)
    known = {"type", "const", "enum", "pattern", "minimum", "maximum", "items", "properties",
             "required", "additionalProperties", "description", "title", "$schema", "$id", "$defs"}
    check(set(schema) <= known, f"{where}: unknown schema words {set(schema) - known}")
    if "type" in schema:
        wanted = types[schema["type"]]
        if not check(type(value) is wanted, f"{where}: {value!r} is no {schema['type']}"):
            return
    check(value == schema.get("const", value), f"{where}: {value!r}")
    check(value in schema.get("enum", [value]), f"{where}: {value!r}")
    if "pattern" in schema:
        check(re.search(schema["pattern"], value), f"{where}: {value!r}")
    if "minimum" in schema:
        check(value >= schema["minimum"], f"{where}: {value!r}")
    if "maximum" in schema:
        check(value <= schema["maximum"], f"{where}: {value!r}")
    if isinstance(value, list):
        for index, item in enumerate(value):
            fit(schema["items"], item, f"{where}[{index}]", root)
    if isinstance(value, dict):
        properties = schema.get("properties", {})
        others = schema.get("additionalProperties", False)
        check(set(schema.get("required", ())) <= set(value), f"{where}: members are missing")
        for name, item in value.items():
            if name in properties or others:
                fit(properties.get(name, others), item, f"{where}.{name}", root)
            else:
                check(False, f"{where}: unknown member {name}")


with open(os.path.join(source, "docs", "schema", "catalogue.schema.json"), encoding="utf-8") as file:
    schema = json.load(file)
code, text, errors = run("export")
check(code == 0 and errors == "", errors)
catalogue = json.loads(text)
fit(schema, catalogue, "catalogue", schema)
for wrong in ({}, {**catalogue, "version": 2}, {**catalogue, "extra": 1}):
    # The checker itself must be able to fail.
    from command import failures
    count = len(failures)
    fit(schema, wrong, "wrong", schema)
    found = len(failures) > count
    del failures[count:]
    check(found, "the schema takes a wrong document")

exported = {}
for table in catalogue["tables"]:
    kinds = {field["accessor"]: field["type"] for field in table["fields"]}
    for layout in table["layouts"]:
        count = layout["entries"] if table["kind"] == "table" else layout["arrayElements"]
        fields = {(name, place["offset"], place["width"]) for name, place in layout["fields"].items()}
        check(layout["fields"].keys() <= kinds.keys(), f"{table['name']}: unknown fields")
        exported[table["name"], layout["chip"]] = (
            layout["entryBytes"], count, int(layout["base"], 16), layout["accessType"],
            layout["block"], fields)
golden = {(table.name, table.chip):
          (table.entry_bytes, table.count, table.base, table.access, table.block,
           {(field.name, field.offset, field.width) for field in table.fields})
          for table in golden_tables()}
check(exported.keys() == golden.keys(), "other tables or chips than the golden ones")
for key in golden:
    check(exported.get(key) == golden[key], f"{key}: other numbers than the golden ones")

one = json.loads(run("export", "vlan", "--chip", "33")[1])
fit(schema, one, "one table", schema)
check([table["name"] for table in one["tables"]] == ["VlanEntry"] and
      len(one["tables"][0]["layouts"]) == 1, "export of one table on one chip")
finish()
