#!/usr/bin/env python3
"""What is installed works from any prefix: the Python module, its wheel, and the script that gdb loads
with the library, on a program and on its core dump.

usage: installed.py SOURCE_DIR BUILD_DIR CMAKE GDB_PROGRAM..."""

import os
import re
import shutil
import subprocess
import sys
import tempfile

from module import build, source  # finds the next one
from command import check, finish, run

cmake, programs = sys.argv[3], sys.argv[4:]

SHOWN = (
    ("print vlan", "VlanEntry BCM56990_B0 = {valid = 0, fidId = 100, .*stg = 5, .*"
                   "outsideFields = 0x80000000000000000000000000000000}"),
    ("print egress.view", "EgrVlanEntry BCM56980_A0 = {.*utPortBitmap = 0-3,17, portBitmap = none}"),
    ("print groups.view", "VlanStgEntry BCM56980_A0 = {spTreePort = {0: 0-4,6-159  3: 5}}"),
    ("print raw.view", "IngVpVlanMembershipEccEntry .*{eccData = 0x300000000000000000000, .*}"),
    ("print cut.view", "VlanEntry BCM56990_B0: the buffer has 8 bytes, not 16"),
    ("velmar-decode egress.bytes EgrVlan 56980", "EgrVlanEntry BCM56980_A0\n  valid = 0\n  stg = 0\n"
                                                 "  utPortBitmap = 0-3,17\n  portBitmap = none"),
    ("velmar-decode &bytes[0] vlan 33", "VlanEntry BCM56990_B0\n(.*\n)*  fidId = 100"),
    ("print port", r"{<(\(anonymous namespace\)::)?Named> = {id = 3}, view = VlanEntry BCM56990_B0 = {.*"
                   "stg = 5, .*}, number = 7}"),
    ("print ports", ".*of length 1.* = {.*view = VlanEntry BCM56990_B0 = {.*}, number = 7}}"),
    ("print vec", ".*of length 3.*VlanEntry .*stg = 5, .*BCM56990_B0: the buffer has 8 bytes, not 16.*"
                  "VlanEntry .*stg = 5, .*}"),
    ("print none", ".*of length 0"),
    ("print vec[2]", "VlanEntry BCM56990_B0 = {.*stg = 5, .*}"),
    ("print members", "3-4\n"),
    ("print many", "399\n"),
    ("info locals", "(.*\n)*vlan = VlanEntry BCM56990_B0 = {.*stg = 5, .*}\n"),
    ("frame function stop", ""),
    ("print vlan", "VlanEntry BCM56990_B0 = {.*stg = 5, .*"),
    ("print *base", "EgrVlanEntry BCM56980_A0 = {.*utPortBitmap = 0-3,17, .*}"),
)
REFUSED = (
    ("velmar-decode 8 vlan 33", "Cannot access memory at address 0x8"),
    ("velmar-decode base vlna 33", "unknown table \"vlna\"; did you mean VlanEntry"),
    ("velmar-decode nosuch vlan 33", 'No symbol "nosuch" in current context.'),
    ("velmar-decode base vlan", "give velmar-decode ADDRESS TABLE CHIP"),
    ("velmar-decode base vlan 33 one", "the variant one is not a number; give 0 to 255"),
    ("velmar-decode 'base vlan 33", "give velmar-decode ADDRESS TABLE CHIP"),
)


def gdb(program, prefix, commands, *more):
    """What gdb prints for each of the commands."""
    system = "/usr/share/gdb/auto-load"  # with the script of the C++ library
    scripts = f"{prefix}/share/gdb/auto-load:{system}"
    words = ["gdb", "-nx", "-batch", "-iex", f"set auto-load safe-path {prefix}:{system}:/usr/share/gcc",
             "-iex", f"set auto-load scripts-directory {scripts}", program, *more]
    for number, command in enumerate(commands):
        words += ["-ex", f"echo <{number}>\\n", "-ex", command]
    environment = dict(os.environ, LD_LIBRARY_PATH=f"{prefix}/lib",
                       PYTHONPATH=f"{prefix}/lib/python3/dist-packages")
    del environment["VELMAR_LIBRARY"]
    done = subprocess.run(words, env=environment, text=True, timeout=120, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return re.split(r"^<\d+>\n", done.stdout, flags=re.M)[1:]


def check_views(what, printed):
    for (command, expected), text in zip(SHOWN, printed):
        text = re.sub(r"^\$\d+ = (\(.*?&\) @0x\w+: )?", "", text)
        check(re.match(expected, text), f"{what}: {command}:\n{text}")
        check("Python" not in text and "Traceback" not in text, f"{what}: {command}: raw Python:\n{text}")
    check(len(printed) == len(SHOWN), f"{what}: {len(printed)} answers")


def check_gdb(program, prefix, work):
    commands = [command for command, _ in SHOWN]
    with open(f"{source}/tests/bindings/GdbProgram.cpp", encoding="utf-8") as file:
        constructed = next(i for i, line in enumerate(file, 1) if " vlan(" in line)
    core = os.path.join(work, "core")
    text = gdb(program, prefix, [f"break {constructed}", "run", "print vlan", "continue", f"gcore {core}"])
    check("not a view; it may not be constructed" in text[2], f"before construction: {text[2]}")
    check_views("core", gdb(program, prefix, ["frame function main"] + commands, core)[1:])
    stopped = gdb(program, prefix, ["run", "frame function main"] + commands +
                  [command for command, _ in REFUSED] + ["bt -2"])[2:]
    check_views("program", stopped[:len(SHOWN)])
    (text,) = gdb(program, "/nonexistent", [f"source {source}/bindings/gdb/velmar-gdb.py"])
    check("No module named 'velmar'; install python3-velmar" in text, f"no module: {text}")
    for (command, expected), text in zip(REFUSED, stopped[len(SHOWN):]):
        check(expected in text, f"{command}:\n{text}")
    check("vlan=VlanEntry BCM56990_B0 = {...}" in re.sub(r"\s+", " ", stopped[-1]),
          f"backtrace: {stopped[-1]}")


def check_import(what, folder, **environment):
    program = "import velmar; print(velmar.__version__, velmar.__file__)"
    done = subprocess.run([sys.executable, "-B", "-c", program], env=environment,
                          capture_output=True, text=True, cwd="/")
    check(done.stdout.split() == [version, f"{folder}/velmar/__init__.py"],
          f"{what}: {done.stdout}{done.stderr}")


version = run("--version")[1].decode().split()[-1]
with tempfile.TemporaryDirectory() as work:
    work = os.path.realpath(work)
    prefix = os.path.join(work, "prefix")
    subprocess.run([cmake, "--install", build, "--prefix", prefix], check=True,
                   stdout=subprocess.DEVNULL)
    folder = f"{prefix}/lib/python3/dist-packages"
    check_import("prefix", folder, PYTHONPATH=folder)
    for program in programs:
        check_gdb(program, prefix, work)

    for path in ("bindings/python", "include/Velmar"):
        shutil.copytree(os.path.join(source, path), os.path.join(work, path))
    done = subprocess.run([sys.executable, "-m", "pip", "wheel", "--quiet", "--no-deps",
                           "--no-build-isolation", "--wheel-dir", work, f"{work}/bindings/python"],
                          capture_output=True, text=True)
    wheel = f"{work}/velmar-{version}-py3-none-any.whl"
    check(os.path.exists(wheel), f"no {wheel}: {done.stdout}{done.stderr}")
    shutil.unpack_archive(wheel, f"{work}/wheel", "zip")
    check(os.path.exists(f"{work}/wheel/velmar/py.typed"), "the wheel has no py.typed")
    check_import("wheel", f"{work}/wheel", PYTHONPATH=f"{work}/wheel",
                 VELMAR_LIBRARY=os.environ["VELMAR_LIBRARY"])
finish()
