#!/usr/bin/env python3
"""The package as npm packs it: small, complete, found by its name in node, with types that name what it
gives.

usage: package.py SOURCE_DIR BUILD_DIR"""

import json
import os
import re
import shutil
import subprocess
import tarfile
import tempfile

from asking import folder, source  # finds the next one
from command import check, finish

program = """
import * as velmar from "velmar";
const {layout, read, compare, identify} = velmar;
const vlan = layout("VlanEntry", "BCM56990_B0");
const bytes = vlan.encode([{stg: 2}, {stg: 5}]);
const dump = read(vlan, bytes, {input: "raw"});
const found = [vlan.decode(dump.bytes)[1].stg, dump.select("stg=2").length, compare("56980_a0", "56990_b0").length > 0,
               identify(bytes)[0].table !== undefined];
dump.free();
console.log(JSON.stringify([found, Object.keys(velmar), Object.keys(vlan), Object.keys(dump),
  ...[vlan, dump].map((one) => Object.getOwnPropertyNames(Object.getPrototypeOf(one)))]));
"""

with tempfile.TemporaryDirectory() as work:
    if shutil.which("npm"):
        done = subprocess.run(["npm", "pack", "--silent", "--offline", "--pack-destination", work, folder],
                              check=True, stdout=subprocess.PIPE, text=True)
        archive = os.path.join(work, done.stdout.split()[-1])
    else:  # npm packs these files, under this folder
        archive = os.path.join(work, "velmar.tgz")
        with tarfile.open(archive, "w:gz") as made:
            made.add(folder, "package")
    size = os.path.getsize(archive)
    print(f"the package has {size} bytes, the module {os.path.getsize(os.path.join(folder, 'velmar.wasm'))}")
    check(size <= 350_000, f"the package has {size} bytes")
    with tarfile.open(archive) as packed:
        packed.extractall(work, filter="data") if hasattr(tarfile, "data_filter") else packed.extractall(work)
    os.mkdir(os.path.join(work, "node_modules"))
    shutil.move(os.path.join(work, "package"), os.path.join(work, "node_modules", "velmar"))
    with open(os.path.join(work, "program.mjs"), "w", encoding="utf-8") as file:
        file.write(program)
    done = subprocess.run(["node", "program.mjs"], cwd=work, stdout=subprocess.PIPE, check=True)
    # The example of the README, and what it says that it prints.
    with open(os.path.join(source, "README.md"), encoding="utf-8") as file:
        example = re.search(r"```js\n(.*?)```", file.read(), re.S)[1]
    os.symlink(os.path.join(source, "samples"), os.path.join(work, "samples"))
    with open(os.path.join(work, "example.mjs"), "w", encoding="utf-8") as file:
        file.write(example)
    shown = subprocess.run(["node", "example.mjs"], cwd=work, stdout=subprocess.PIPE, check=True, text=True).stdout
    check(shown.splitlines() == re.findall(r"\); *// (.*)", example), f"the example prints {shown}")
found, exports, *members = json.loads(done.stdout)
check(found == [5, 1, True, True], f"the program gives {found}")
with open(os.path.join(folder, "velmar.d.ts"), encoding="utf-8") as file:
    types = file.read()
declared = set(re.findall(r"^export (?:function|class|interface|type|const) (\w+)", types, re.M))
check(set(exports) <= declared, f"without types: {set(exports) - declared}")
for own, name in zip((members[0] + members[2], members[1] + members[3]), ("Layout", "Dump")):
    block = re.search(rf"^export interface {name} {{(.*?)^}}", types, re.M | re.S)
    typed = set(re.findall(r"^  (?:readonly )?(\w+)\??[(:<]", block[1] if block else "", re.M))
    check(typed == set(own) - {"constructor", "handle"}, f"{name}: {typed ^ (set(own) - {'constructor', 'handle'})}")
finish()
