#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What stands in the project is written for its readers: it names no planning papers, no machine's paths and no
download hosts, neither in files nor in commit messages."""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(sys.argv[1])
# Taken apart, so that this file does not find itself.
WORDS = [r"\bparts? [0-9]+\.[0-9]", r"\bspecific" + "ation\\b", r"\bspec" + r"\.md\b", r"\bthe " + r"spec\b",
         "/wo" + "rk/", "/ro" + "ot/", r"\.lib" + "rary/", r"\bsha" + "red/(spec|design|style|hosts|hooks)",
         '"resol' + 'ved": *"http', "registry" + r"\.npm", "farm" + "-(studio|bench)"]
RULE = re.compile("|".join(WORDS), re.IGNORECASE)


def git(*arguments):
    return subprocess.run(["git", "-C", str(ROOT), *arguments], capture_output=True, text=True)


def files():
    listed = git("ls-files", "-z", "--cached", "--others", "--exclude-standard")
    if listed.returncode == 0:
        return [ROOT / name for name in listed.stdout.split("\0") if name]
    skipped = {"build", "node_modules", ".git"}
    return [path for path in ROOT.rglob("*") if not skipped & set(path.relative_to(ROOT).parts)]


def faults():
    for path in files():
        if not path.is_file() or path.suffix in (".png", ".otf"):
            continue
        for number, line in enumerate(path.read_text(errors="replace").splitlines(), 1):
            if RULE.search(line):
                yield f"{path.relative_to(ROOT)}:{number}: {line.strip()[:120]}"
    for line in git("log", "--format=%h %s%n%b").stdout.splitlines():
        if RULE.search(line):
            yield f"commit message: {line[:120]}"


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
