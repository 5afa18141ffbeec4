#!/usr/bin/env python3
"""The exported catalogue has exactly the golden numbers.

usage: catalogue_export.py SOURCE_DIR BUILD_DIR"""

import json

from command import check, finish, golden_tables, rows, run


def exported(*arguments):
    code, text, errors = run("export", *arguments)
    check(code == 0 and errors == "", errors)
    return json.loads(text)


spelling = {"raw128": "Raw128", "bitmap": "Oru::PerUnitBitmap"}
golden = {(table.name, table.chip): {
    (field.name, field.hardware_name, field.id, spelling.get(field.type, field.type), field.offset,
     field.width) for field in table.fields} for table in golden_tables()}
shared = {(table.name, table.chip, one.name): {
    other.name for other in table.fields if other != one and
    one.offset < other.offset + other.width and other.offset < one.offset + one.width}
    for table in golden_tables() for one in table.fields}
families = {(row["class"], row["accessor"]): {
    "prefix": row["accessor"].removesuffix(str(row["port"])), "number": row["port"]}
    for row in rows("fields.tsv") if row["port"] is not None}
layouts = {}
for table in exported()["tables"]:
    for field in table["fields"]:
        family = families.get((table["name"], field["accessor"]))
        check(field.get("family") == family, f"{table['name']} {field['accessor']}: not {family}")
        check(field["overlaps"] == any(
            shared.get((table["name"], layout["chip"], field["accessor"]))
            for layout in table["layouts"]), f"{table['name']} {field['accessor']}: overlaps")
    about = {field["accessor"]: (field["accessor"], field["hardwareName"], field["id"], field["type"])
             for field in table["fields"]}
    for layout in table["layouts"]:
        layouts[table["name"], layout["chip"]] = {
            (*about[name], place["offset"], place["width"])
            for name, place in layout["fields"].items()}
        for name, place in layout["fields"].items():
            others = shared[table["name"], layout["chip"], name]
            check(set(place.get("sharesBitsWith", [])) == others, f"{table['name']} {name}: {others}")
check(layouts == golden, "other tables, chips or fields than the golden ones")
one = exported("vlan", "--chip", "33")
check([table["name"] for table in one["tables"]] == ["VlanEntry"] and
      len(one["tables"][0]["layouts"]) == 1, "export of one table on one chip")
finish()
