#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Every text of the sources is there in every language, with all that is put into it, and none that is gone."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(sys.argv[1])
LANGUAGES = {"ar", "de", "es", "fr", "it", "ja", "nl", "pl", "pt_BR", "zh_CN"}


def texts(file):
    """(context, source) and translation; none while it is unfinished."""
    return {(context.find("name").text, message.find("source").text):
            None if message.find("translation").get("type") else message.find("translation").text
            for context in xml.parse(file).iter("context") for message in context.iter("message")}


def holes(text):
    """What a translation must have in common with its source: places for values, lines, whether it has a shortcut."""
    return sorted(re.findall(r"%\d|\n", text)), "&" in text


def faults(folder):
    subprocess.run([ROOT / "script/translate", folder], check=True, stdout=subprocess.DEVNULL)
    files = {file.stem.removeprefix("tamsel_"): file for file in folder.glob("*.ts")}
    if files.keys() - {"en"} != LANGUAGES:
        yield f"languages: {sorted(files)}"
    for language in sorted(files.keys() - {"en"}):
        kept = texts(ROOT / f"translations/tamsel_{language}.ts")
        needed = texts(files[language])
        for (context, source), text in needed.items():
            if not text or holes(text) != holes(source) or "Mac" in text:
                yield f"{language}: {context}: {source!r} is {text!r}"
        for context, source in kept.keys() - needed.keys():
            yield f"{language}: {context}: {source!r} is gone"
    macs = {key for key in needed if "Mac" in key[1]}
    for context, source in macs ^ texts(files["en"]).keys():
        yield f"en: {context}: {source!r}"


with tempfile.TemporaryDirectory() as copies:
    shutil.copytree(ROOT / "translations", copies, dirs_exist_ok=True)
    found = list(faults(pathlib.Path(copies)))
print("\n".join(found))
sys.exit(1 if found else 0)
