"""Shared by the tests of the Python module: the module of this source, the library of this build."""

import os
import sys

source, build = sys.argv[1:3]
sys.dont_write_bytecode = True
os.environ["VELMAR_LIBRARY"] = os.path.join(build, "lib", "libvelmar.so.0")
os.environ["PYTHONPATH"] = os.path.join(source, "bindings", "python")
sys.path[:0] = [os.environ["PYTHONPATH"], os.path.join(source, "tests", "command")]
