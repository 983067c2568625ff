#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Who builds only what is to be run or installed gets all of it."""
import pathlib
import re
import subprocess
import sys

BUILD = pathlib.Path(sys.argv[1])


def files(target):
    """All that is made for a target, and what it is made from."""
    graph = subprocess.run(["ninja", "-C", BUILD, "-t", "graph", target], check=True, capture_output=True, text=True)
    return {BUILD / path for path in re.findall(r'label="(.+)"', graph.stdout)}


def named(script):
    return map(pathlib.Path, re.findall(f'"({re.escape(str(BUILD))}/[^"$]+)"', script.read_text()))


installed = {path for script in BUILD.rglob("cmake_install.cmake") for path in named(script) if path != script}
built = {path for path in files("all") if installed & {path, *path.parents}}
missing = sorted(map(str, built - files("tamsel_all")))
print("\n".join(f"tamsel_all does not build {path}" for path in missing) or f"{len(built)} files")
sys.exit(1 if missing or not built else 0)
