#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a program says about its options, its manual page and its completions name the same ones."""
import pathlib
import re
import subprocess
import sys

PACKAGING, PROGRAMS = map(pathlib.Path, sys.argv[1:])
PAGES = {name.stem: name for name in (PACKAGING / "man").iterdir()}


def in_help(program):
    said = subprocess.run([PROGRAMS / program, "--help"], capture_output=True, text=True, check=True).stdout
    return set(re.findall(r"^ +--([a-z-]+)", said, re.MULTILINE))


def in_page(program):
    return set(re.findall(r"^\.It Fl -([a-z-]+)", PAGES[program].read_text(), re.MULTILINE))


def completed(program):
    folder = PACKAGING / "completions"
    return {
        "bash": set(re.findall(r"--([a-z-]+)(?=['\s])", (folder / f"{program}.bash").read_text())),
        "zsh": set(re.findall(r"--([a-z-]+)\[", (folder / f"_{program}").read_text())),
        "fish": set(re.findall(r" -l ([a-z-]+)", (folder / f"{program}.fish").read_text())),
    }


def faults():
    for program in PAGES:
        documented = in_page(program)
        for shell, options in completed(program).items():
            if options != documented:
                yield f"{program}: {shell} and the manual page differ in {sorted(options ^ documented)}"
        if in_help(program) != documented:
            yield f"{program}: the help and the manual page differ in {sorted(in_help(program) ^ documented)}"


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
