"""Reads truth/examples.txt, which says how it is written."""

import os
from collections import namedtuple

FILE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "examples.txt")
RECOMMENDED = "(recommended settings)"

# rewrites: for each a list of statements, whose rows belong together.
Example = namedtuple("Example", "statement rewrites has_settings")


def examples():
    """The examples by builder and id."""
    found, lines = {}, None
    with open(FILE, encoding="utf-8") as file:
        for text in file.read().splitlines():
            if not text or text.startswith("--"):
                continue
            if text.startswith(" "):
                lines.append(text.strip())
                continue
            key = tuple(text.split())
            if key in found:
                raise SystemExit(f"truth/examples.txt has {text} twice")
            lines = found[key] = []
    return {key: _example(key, lines) for key, lines in found.items()}


def _example(key, lines):
    if not lines:
        raise SystemExit(f"truth/examples.txt has no statement for {' '.join(key)}")
    rewrites = [line.split("; ") for line in lines[1:] if line != RECOMMENDED]
    return Example(lines[0], rewrites, RECOMMENDED in lines)
