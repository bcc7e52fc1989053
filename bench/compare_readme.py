"""The lines of README.md that compare Quillet with its peers."""

import math
from pathlib import Path
from typing import NamedTuple

from compare_contenders import table

PAGE = Path("README.md")


class Line(NamedTuple):
    name: str
    contender: str
    ours: list  # what does the same
    strength: str


LINES = [
    Line(
        "sqlglot to MySQL, in Python",
        "sqlglot to MySQL",
        ["Quillet to MySQL"],
        "20 dialects, each into each; subqueries, WITH and DDL; changes and optimises trees; "
        "many users",
    ),
    Line(
        "libpg_query, parse and deparse, in C",
        "libpg_query, parse and deparse",
        ["Quillet to PostgreSQL"],
        "all of PostgreSQL's language, by PostgreSQL's own parser; fingerprints; bindings for many "
        "languages",
    ),
    Line(
        "polyglot to MySQL, in Node",
        "polyglot to MySQL",
        ["Quillet to MySQL", "Quillet in Node, to MySQL"],
        "more than 30 dialects, each into each; subqueries, WITH and DDL; builds queries, traces "
        "columns",
    ),
    Line(
        "sqlparser-rs, parse and format, in Node",
        "sqlparser-rs, parse and format",
        ["Quillet to PostgreSQL", "Quillet in Node, to PostgreSQL"],
        "16 dialects; subqueries, WITH and DDL; a tree with types; the parser of DataFusion, with "
        "many users",
    ),
]


def coarse(ratio):
    """Two digits that count."""
    digits = 1 - math.floor(math.log10(ratio))
    return f"{round(ratio, digits):,.{max(digits, 0)}f}"


def medians(page):
    """The microseconds of each contender, as the first table of statements in docs/performance.md
    has them."""
    statements = page.split("## Realistic statements\n")[1].split("\n## ")[0]
    rows = [line.strip("| ").split(" | ") for line in statements.splitlines() if " | " in line]
    return {name: float(time.replace(",", "")) for name, _, _, time, *_ in rows[2:]}


def section(page):
    found = medians(page)
    rows = []
    for line in LINES:
        native, *in_node = [coarse(found[line.contender] / found[ours]) for ours in line.ours]
        rows.append((line.name, native, *(in_node or [""]), line.strength))
    heading = ("", "times Quillet", "times Quillet in Node", "better at")
    return table(heading, rows, texts=4)
