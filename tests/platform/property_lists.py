#!/usr/bin/env python3
"""Random property lists for test_PropertyList, by an implementation that is not ours. "write FOLDER" makes them;
"check FOLDER" reads FILE.binary and FILE.preferred, what we made of each. Preferred is XML where that can hold all.
"""
import datetime
import pathlib
import plistlib
import random
import struct
import sys

COUNT = 150
NO_XML = "\r\0\1\x1f\ufffe"
LETTERS = "aé日😀<&>\"' \t\n\x7f\x85\u2028\ufeff" + NO_XML
EDGES = [sign * 2**bits + step for bits in (0, 7, 8, 15, 16, 31, 32, 63) for sign in (1, -1) for step in (-1, 0, 1)]
SCALARS = [
    lambda r: r.choice([True, False]),
    lambda r: r.choice([n for n in EDGES if n >= -2**63] + [2**64 - 1]),
    lambda r: struct.unpack(">d", r.randbytes(8))[0],
    lambda r: r.choice([0.0, -0.0, 60.0, 0.1, 5e-324, float("inf"), float("-inf"), float("nan")]),
    lambda r: text(r),
    lambda r: r.randbytes(r.choice([0, 1, 14, 15, 300])),
    lambda r: datetime.datetime(r.randint(1, 9999), r.randint(1, 12), 28, 23, 59, 58, r.choice([0, 0, 0, 500_000, 1])),
    lambda r: plistlib.UID(r.choice([0, 255, 65536, 2**64 - 1])),
]


def text(r):
    letters = LETTERS if r.random() < 0.2 else LETTERS[: -len(NO_XML)]
    return "".join(r.choices(letters, k=r.choice([0, 1, 3, 14, 15, 300])))


def tree(r, depth=0):
    if depth == 4 or depth and r.random() < 0.5:
        return r.choice(SCALARS)(r)
    children = [tree(r, depth + 1) for _ in range(r.choice([0, 1, 2, 3, 20]))]
    return {text(r): child for child in children} if r.random() < 0.6 else children


def scalars(value):
    """The tree with its scalars made comparable to the last bit, type included."""
    if isinstance(value, (list, dict)):
        items = enumerate(value) if isinstance(value, list) else value.items()
        return type(value), {key: scalars(item) for key, item in items}
    return type(value), struct.pack(">d", value) if isinstance(value, float) else value


def fits_xml(value):
    if isinstance(value, (list, dict)):
        return all(map(fits_xml, [*value, *value.values()] if isinstance(value, dict) else value))
    is_fraction = isinstance(value, datetime.datetime) and value.microsecond
    has_no_xml = isinstance(value, str) and set(value) & set(NO_XML)
    return not (is_fraction or has_no_xml or isinstance(value, plistlib.UID) or value != value)


def check(file):
    expected = plistlib.loads(file.read_bytes())
    for form in ("binary", "preferred"):
        made = pathlib.Path(f"{file}.{form}").read_bytes()
        assert scalars(plistlib.loads(made)) == scalars(expected), f"{file}.{form}"
        assert made.startswith(b"<?xml") == (form == "preferred" and fits_xml(expected)), f"{file}.{form}"


for number in range(COUNT):
    value = tree(random.Random(number))
    for suffix, kind in (("binary", plistlib.FMT_BINARY), ("xml", plistlib.FMT_XML)):
        file = pathlib.Path(sys.argv[2], f"{number}.{suffix}")
        if suffix == "binary" or fits_xml(value):
            check(file) if sys.argv[1] == "check" else file.write_bytes(plistlib.dumps(value, fmt=kind))
