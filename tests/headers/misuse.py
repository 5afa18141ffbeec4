#!/usr/bin/env python3
"""What the headers for owned entries and generic reads refuse does not compile, and the error says why.

usage: misuse.py SOURCE_DIR COMPILER"""

import subprocess
import sys

source, compiler = sys.argv[1:]
OWN_CLASS = "give the view by its own class, such as VlanEntry"
VIEW_CLASS = "Entry takes a view class, such as Entry<VlanEntry>"

# Statements of a function with a view, its base and an entry; a sentence of the error, or None.
CASES = [
    ("toText(view); toText(entry); field64(mine, 1); differences(view, entry);", None),
    ("translate(*entry, view); states(view); for (U32 word : entry.words()) use(word);", None),
    ("toText(base);", OWN_CLASS),
    ("field64(base, 1);", OWN_CLASS),
    ("forEachField(base, use);", OWN_CLASS),
    ("differences(view, base);", OWN_CLASS),
    ("translate(base, base);", OWN_CLASS),
    ("Entry<AsicUtils::BcmAsicBase> other(BCM56990_B0);", VIEW_CLASS),
    ("Entry<U32> other(BCM56990_B0);", VIEW_CLASS),
    ("const VlanEntry fixed = view; translate(view, fixed);", "translate"),
    ("toText(5);", "toText"),
]
PROGRAM = """#include "Velmar/Generic.h"
#include "Velmar/VlanEntry.h"
using namespace Velmar;
struct Mine : VlanEntry { using VlanEntry::VlanEntry; };
void use(U32);
void test(VlanEntry& view, const Mine& mine, AsicUtils::BcmAsicBase& base, Entry<VlanEntry>& entry) {
  STATEMENTS
  (void)mine; (void)base; (void)entry; (void)view;
}
"""


def errors(text, standard="c++17"):
    return subprocess.run(
        [compiler, f"-std={standard}", "-fsyntax-only", f"-I{source}/include",
         f"-I{source}/platform/include", "-x", "c++", "-"],
        input=text, capture_output=True, text=True, check=False).stderr


failures = []
for statements, sentence in CASES:
    said = errors(PROGRAM.replace("STATEMENTS", statements))
    if (sentence not in said) if sentence else said:
        failures.append(f"{statements}\n{said[:1000]}")
for header in ("Entry.h", "Generic.h"):
    if "needs C++17" not in errors(f'#include "Velmar/{header}"\n', "c++14"):
        failures.append(f"{header} with C++14")
if errors('#include "Velmar/MetaInfo.h"\n', "c++14"):
    failures.append("MetaInfo.h with C++14")
print("\n".join(failures) or f"{len(CASES)} cases as expected")
sys.exit(bool(failures))
