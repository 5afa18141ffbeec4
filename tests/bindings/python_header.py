#!/usr/bin/env python3
"""What the Python module declares for ctypes agrees with velmar.h: functions, structures, constants. A
library that is missing, or lacks a function, is an ImportError that says what to do.

usage: python_header.py SOURCE_DIR BUILD_DIR"""

import ctypes
import os
import re
import subprocess
import sys

import module
from velmar import _library
from command import check, finish

with open(os.path.join(module.source, "bindings", "c", "velmar.h"), encoding="utf-8") as file:
    text = re.sub(r"//.*", "", file.read())

NUMBERS = {"uint8_t": ctypes.c_uint8, "uint32_t": ctypes.c_uint32, "uint64_t": ctypes.c_uint64,
           "size_t": ctypes.c_size_t, "velmar_code": ctypes.c_int, "void": None}
# The module passes these as addresses: buffers of any kind, and layouts.
ADDRESSES = {"void", "uint8_t", "uint64_t", "velmar_layout", "velmar_dump"}
ARRAYS = {"words", "mask", "bytes", "indexes", "positions", "fields"}


def ctype(declaration):
    """The ctypes of a C declaration such as "const char* name" or "uint32_t* chip"."""
    kind, stars, name = re.fullmatch(r"(?:const )?(\w+)((?:[*]| const)*) ?(\w*)",
                                     declaration).groups()
    stars = stars.count("*")
    if kind == "char" and name in ("text", "losses"):  # the module frees it: it needs the address
        return ctypes.POINTER(ctypes.c_void_p) if stars == 2 else ctypes.c_void_p
    if kind == "char":
        return ctypes.POINTER(ctypes.c_char_p) if stars == 2 else ctypes.c_char_p
    if stars == 0:
        return NUMBERS[kind]
    if stars == 2:
        return ctypes.POINTER(ctypes.c_void_p)
    if kind in ADDRESSES or name in ARRAYS and kind in NUMBERS:
        return ctypes.c_void_p
    return ctypes.POINTER(NUMBERS.get(kind) or getattr(_library, kind))


functions = {}
for result, name, arguments in re.findall(r"VELMAR_API ([\w* ]+?) ?(velmar_\w+)\(([^)]*)\);", text):
    arguments = [" ".join(each.split()) for each in arguments.split(",")]
    functions[name] = result, [each for each in arguments if each != "void"]
with open(os.path.join(module.source, "bindings", "c", "velmar.map"), encoding="utf-8") as file:
    check(set(re.findall(r"velmar_\w+(?=;)", file.read())) == set(functions), "velmar.map has other names")
check(len(functions) > 20, f"functions are lost: {len(functions)}")
for name, (result, arguments) in _library.FUNCTIONS.items():
    expected = ctype(functions[name][0]), [ctype(each) for each in functions[name][1]]
    check((result, arguments) == expected, f"{name}: {result}, {arguments}; velmar.h has {expected}")

structures = dict(re.findall(r"typedef struct (\w+) {(.*?)}", text, re.S))
for name, members in structures.items():
    expected = [(re.search(r"\w+$", each)[0], ctype(re.sub(r" ?\w+$", "", each)))
                for each in (" ".join(line.split()) for line in members.split(";")) if each]
    check(getattr(_library, name)._fields_ == expected,
          f"{name}: {getattr(_library, name)._fields_}; velmar.h has {expected}")
check(len(structures) == 7, f"structures: {list(structures)}")

constants = {name: int(value) for name, value in re.findall(r"(VELMAR_\w+) = (\d+)", text)}
for name, value in (("NOT_ON_CHIP", _library.NOT_ON_CHIP), ("NO_ENTRY", _library.NO_ENTRY),
                    *((kind.upper(), i) for i, kind in enumerate(_library.TYPES)),
                    *((kind.upper().replace(" ", "_"), i) for i, kind in enumerate(_library.KINDS))):
    check(constants[f"VELMAR_{name}"] == value, f"{name}: {value}")
check(len(_library.TYPES) == 1 + constants["VELMAR_BITMAP"], "types are missing")

for library in ("/nonexistent/libvelmar.so.0", f"{module.build}/lib/libVelmarPlatform.so.0"):
    done = subprocess.run([sys.executable, "-c", "import velmar"], capture_output=True, text=True,
                          env=dict(os.environ, VELMAR_LIBRARY=library))
    check(re.search("ImportError: velmar: .*install libvelmar0, or .* VELMAR_LIBRARY$", done.stderr),
          f"{library}: {done.stderr}")
finish()
