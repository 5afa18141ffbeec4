#!/usr/bin/env python3
"""The exported catalogue fits its JSON Schema and holds the golden numbers, all of them and no others.

usage: catalogue_export.py SOURCE_DIR BUILD_DIR"""

import json
import os

import jsonschema

from command import check, finish, golden_tables, run, source


def without_others(schema):
    """The schema with no members allowed but those that it names."""
    if isinstance(schema, list):
        return [without_others(each) for each in schema]
    if not isinstance(schema, dict):
        return schema
    strict = {name: without_others(each) for name, each in schema.items()}
    return {"additionalProperties": False, **strict} if "properties" in strict else strict


with open(os.path.join(source, "docs", "schema", "catalogue.schema.json"), encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(without_others(schema))


def exported(*arguments):
    """What export prints, which has to fit the schema."""
    code, text, errors = run("export", *arguments)
    check(code == 0 and errors == "", errors)
    document = json.loads(text)
    for error in validator.iter_errors(document):
        check(False, f"{error.json_path}: {error.message}")
    return document


catalogue = exported()
layouts = {}
for table in catalogue["tables"]:
    accessors = {field["accessor"] for field in table["fields"]}
    for layout in table["layouts"]:
        count = layout["entries"] if table["kind"] == "table" else layout["arrayElements"]
        fields = {(name, place["offset"], place["width"]) for name, place in layout["fields"].items()}
        check(layout["fields"].keys() <= accessors, f"{table['name']}: unknown fields")
        layouts[table["name"], layout["chip"]] = (
            layout["entryBytes"], count, int(layout["base"], 16), layout["accessType"],
            layout["block"], fields)
golden = {(table.name, table.chip):
          (table.entry_bytes, table.count, table.base, table.access, table.block,
           {(field.name, field.offset, field.width) for field in table.fields})
          for table in golden_tables()}
for key in golden.keys() | layouts.keys():
    check(layouts.get(key) == golden.get(key), f"{key}: other numbers than the golden ones")

one = exported("vlan", "--chip", "33")
check([table["name"] for table in one["tables"]] == ["VlanEntry"] and
      len(one["tables"][0]["layouts"]) == 1, "export of one table on one chip")
finish()
