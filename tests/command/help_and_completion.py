#!/usr/bin/env python3
"""The help of every verb ends with examples that work; the shell completion and the manual page know
the same verbs, options and choices as the help; completion offers what the catalogue has.

usage: help_and_completion.py SOURCE_DIR BUILD_DIR"""

import os
import re
import subprocess
import tempfile

from command import build, check, finish, golden_tables, run, source

overview = run("--help")[1].decode()
verbs = re.findall(r"^  ([a-z]+) ", overview, re.M)
check({"decode", "encode", "identify"} <= set(verbs), f"verbs: {verbs}")
manual = run("__man")[1].decode()
with open(os.path.join(source, "tools", "velmar", "velmar.1"), encoding="utf-8") as file:
    check(file.read() == manual, "tools/velmar/velmar.1 is stale; to refresh it: cmake --build "
          "--preset release --target refresh")
manual = manual.replace("\\-", "-")


def completions(*words):
    return run("__complete", *words)[1].decode().split()


check(set(completions("")) == {*verbs, "help", "--help", "--version"}, "completion of verbs")
work = tempfile.TemporaryDirectory()  # the examples may write into the folder with the samples
os.symlink(os.path.join(source, "samples"), os.path.join(work.name, "samples"))
for verb in verbs:
    code, text, _ = run(verb, "--help")
    text = text.decode()
    whole = text.replace(" \\\n    ", " ")  # examples take several lines
    check(code == 0 and run("help", verb)[1].decode() == text, f"help of {verb}")
    check(max(map(len, text.splitlines())) <= 80, f"help of {verb}: width")
    options = set(re.findall(r"^  (?:-\w, )?(--[a-z-]+)", text, re.M))
    offered = {name for name in completions(verb, "-") if name[:6] not in ("--old-", "--new-")}
    check(offered == options, f"completion of {verb}: options")
    check(f".SS {verb}\n" in manual, f"manual page: {verb}")
    section = manual.split(f".SS {verb}\n")[1].split(".SS ")[0]
    for option in options - {"--help"}:
        check(option in section, f"manual page: {verb} {option}")
    choices = re.search(r"-f, --format.*?one of\s+([a-z,\s]+)\n  -", text, re.S)
    if choices:
        check(set(completions(verb, "--format", "")) == set(re.split(r",\s+", choices[1].strip())),
              f"completion of {verb}: formats")

    examples = re.findall(r"^  (velmar .*)$", whole.split("\nExamples:\n")[1], re.M)
    check(len(examples) in (2, 3), f"help of {verb}: {len(examples)} examples")
    for example in examples:
        path = os.path.join(build, "bin") + ":" + os.environ["PATH"]
        result = subprocess.run(["bash", "-o", "pipefail", "-c", example], timeout=30, cwd=work.name,
                                env=dict(os.environ, PATH=path), stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        allowed = (0, 1) if verb in ("diff", "compare") else (0,)
        check(result.returncode in allowed and result.stdout and not result.stderr,
              f"{example}: exit {result.returncode}, {result.stderr!r}")

tables = list(golden_tables())
check(set(completions("decode", "")) == {table.name for table in tables}, "completion of tables")
for table in tables[::9]:
    on_chip = {other.name for other in tables if other.chip == table.chip}
    check(set(completions("addr", "--chip", table.chip, "")) == on_chip, f"tables on {table.chip}")
    fields = {field.name for field in table.fields}
    words = (table.name, "--chip", table.chip)
    check(set(completions("decode", *words, "--fields", "")) == fields, f"fields of {words}")
    check(set(completions("encode", *words, "")) == {name + "=" for name in fields}, f"{words}")

check(completions("encode", "vlan", "-c", "33", "valid=") == ["valid=0", "valid=1"], "values")
check(completions("decode", "vlan", "--stride", "") == [], "no proposals for a number")
check(completions("chips", "") == [], "no proposals for a verb without arguments")
check(completions("decode", "vlan", "-c", "33", "sam") == [":files"], "file names")
check({"--old-first", "--new-first"} <= set(completions("diff", "--")), "options of one dump")

# The installed scripts, as the shells call them.
folder = os.path.join(source, "tools", "velmar", "completion")
environment = dict(os.environ, PATH=os.path.join(build, "bin") + ":" + os.environ["PATH"])


def shell(*command):
    result = subprocess.run(command, stdout=subprocess.PIPE, text=True, env=environment)
    return result.stdout.split()


for words, expected in ((("decode", "VlanEntry", "--chip", "BCM5698"), ["BCM56980_A0"]),
                        (("decode", "VlanEntry", "--chip", "=", "BCM5698"), ["BCM56980_A0"]),
                        (("encode", "vlan", "-c", "33", "valid", "="), ["0", "1"])):
    probe = (f"source '{folder}/velmar.bash'; COMP_WORDS=(velmar {' '.join(words)}); "
             f"COMP_CWORD={len(words)}; _velmar; echo \"${{COMPREPLY[@]}}\"")
    check(shell("bash", "-c", probe) == expected, f"bash: {words}: {shell('bash', '-c', probe)}")
for line, expected in (("velmar decode VlanEntry --chip BCM5698", ["BCM56980_A0"]),
                       ("velmar encode vlan -c 33 valid=", ["valid=0", "valid=1"])):
    probe = f"source '{folder}/velmar.fish'; complete -C '{line}'"
    check(shell("fish", "-c", probe) == expected, f"fish: {line}: {shell('fish', '-c', probe)}")
finish()
