"""The statements: a family a file, a statement a line; lines that begin with -- are comments."""

import os

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "corpus")
VOLATILE = "volatile"  # the family whose values are others at every run


def families():
    return sorted(name[:-4] for name in os.listdir(FOLDER) if name.endswith(".sql"))


def statements(family):
    with open(os.path.join(FOLDER, family + ".sql"), encoding="utf-8") as file:
        lines = [line.rstrip("\n") for line in file]
    found = [line for line in lines if line.strip() and not line.startswith("--")]
    twice = {line for line in found if found.count(line) > 1}
    if twice:
        raise SystemExit(f"truth/corpus/{family}.sql has this twice: {sorted(twice)[0]}")
    return found
