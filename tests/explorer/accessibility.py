#!/usr/bin/env python3
"""axe-core has no serious finding in any view of the explorer, light and dark.

usage: accessibility.py SOURCE_DIR BUILD_DIR AXE_SCRIPT"""

import os
import sys

sys.path.insert(0, os.path.join(sys.argv[1], "tests", "command"))
from browser import browser
from command import build, check, finish, source

with open(sys.argv[3], encoding="utf-8") as file:
    axe = file.read()
sample = os.path.join(source, "samples", "vlan-bcm56990.bin")
entry = "06001400" * 4
views = ("#", "#VlanEntry/BCM56990_B0", f"#VlanEntry/BCM56990_B0/stg?hex={entry}&order=bytes",
         "#VlanStgEntry/BCM56990_B0", "#NoTable", "#compare/BCM56980_A0/BCM56990_B0",
         "#compare/BCM56980_A0/BCM56990_B0/VlanEntry", "#dumps", "#dumps/VlanEntry/BCM56990_B0",
         "#dumps/VlanEntry/BCM56990_B0?index=20")
with browser(os.path.join(build, "explorer.html")) as shown:
    for theme in ("light", "dark"):
        shown.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
            "features": [{"name": "prefers-color-scheme", "value": theme}]})
        for view in views:
            shown.open(view)
            if "?index" in view:
                shown.choose_file(sample)
                shown.wait("return document.querySelector('tr[data-index]')")
            # The driver runs it in the page, whatever the policy of the page.
            shown.run(axe)
            found = shown.driver.execute_async_script("axe.run().then((one) => arguments[0]([one.violations, one.passes.length]))")
            violations, passes = found
            check(passes > 5, f"{theme} {view}: {passes} rules are met")
            for one in violations:
                where = "; ".join(node["target"][0] for node in one["nodes"][:3])
                check(one["impact"] not in ("serious", "critical"), f"{theme} {view}: {one['help']}: {where}")
finish()
