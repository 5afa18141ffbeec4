#!/usr/bin/env python3
"""Joins the page of the layout explorer from its template, style sheet and code, and the library's module.

usage: join.py TEMPLATE STYLE CODE MODULE PAGE"""

import base64
import gzip
import sys

template, style, code, module, page = sys.argv[1:]


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read().strip()


with open(module, "rb") as file:
    packed = base64.b64encode(gzip.compress(file.read(), 9, mtime=0)).decode()
text = read(template)
for name, contents in (("style", read(style)), ("module", packed), ("code", read(code))):
    before, after = text.split(f"@{name}@")
    text = before + contents + after
with open(page, "w", encoding="utf-8") as file:
    file.write(text + "\n")
