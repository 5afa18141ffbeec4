"""The version stands in the header alone. To make a wheel: pip wheel --no-deps bindings/python"""

import pathlib
import re

from setuptools import setup

header = pathlib.Path(__file__).resolve().parents[2] / "include" / "Velmar" / "Version.h"
(version,) = re.findall(r'VELMAR_VERSION_STRING "(.*)"', header.read_text())
setup(version=version)
