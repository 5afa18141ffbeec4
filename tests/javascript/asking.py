"""Asks the JavaScript package in node, for the tests that compare it with the command."""

import json
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(sys.argv[1], "tests", "command"))
from command import build, source

folder = os.path.join(build, "js")


def ask(requests):
    """The answers to all requests, in one process."""
    here = os.path.join(source, "tests", "javascript", "answers.mjs")
    done = subprocess.run(["node", here, folder], input=json.dumps(requests).encode(), check=True,
                          stdout=subprocess.PIPE)
    return json.loads(done.stdout)
