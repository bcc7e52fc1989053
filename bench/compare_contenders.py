"""The contenders of bench/compare, how they are run, and tables in Markdown."""

import math
import signal
import subprocess
import tempfile
from pathlib import Path
from typing import NamedTuple

BUILD = Path("build/compare")
OPTIMISED_BUILD = Path("build/compare-optimized")
NPM = BUILD / "npm"
TIMEOUT = 60


class Contender(NamedTuple):
    runs: str  # where it runs
    words: list  # the command


def native(program, build=BUILD):
    return Contender("native", [build / "bench" / program])


def sqlglot(dialect):
    program = "bench/contenders/sqlglot_contender.py"
    return Contender("Python", ["/usr/bin/python3", "-B", program, dialect])


def node(package):
    return Contender("Node", ["node", "bench/contenders/node_contender.js", package])


CONTENDERS = {
    "Quillet to PostgreSQL": native("quillet_to_postgresql"),
    "Quillet to MySQL": native("quillet_to_mysql"),
    "Quillet to PostgreSQL, optimised build": native("quillet_to_postgresql", OPTIMISED_BUILD),
    "Quillet to MySQL, optimised build": native("quillet_to_mysql", OPTIMISED_BUILD),
    "libpg_query, raw parse": native("pg_query_parse"),
    "libpg_query, parse and deparse": native("pg_query_deparse"),
    "sqlglot to PostgreSQL": sqlglot("postgres"),
    "sqlglot to MySQL": sqlglot("mysql"),
    "Quillet in Node, to PostgreSQL": node("quillet-to-postgresql"),
    "Quillet in Node, to MySQL": node("quillet-to-mysql"),
    "polyglot to PostgreSQL": node("polyglot-to-postgresql"),
    "polyglot to MySQL": node("polyglot-to-mysql"),
    "sqlparser-rs, parse and format": node("sqlparser-rs"),
    "pgsql-parser, parse and deparse": node("pgsql-parser"),
    "node-sql-parser to PostgreSQL": node("node-sql-parser-to-postgresql"),
    "node-sql-parser to MySQL": node("node-sql-parser-to-mysql"),
}
IN_NODE = [name for name, contender in CONTENDERS.items() if contender.runs == "Node"]
YARDSTICK = "libpg_query, raw parse"


class Failure(Exception):
    """A contender that did not translate; the text says why."""


def run(contender, command, statements, *arguments):
    """The numbers that a contender prints about the statements."""
    with tempfile.NamedTemporaryFile("w") as file:
        file.write("\0".join(statements))
        file.flush()
        words = [*CONTENDERS[contender].words, command, file.name, *map(str, arguments)]
        try:
            ended = subprocess.run(words, stdout=subprocess.PIPE, text=True, timeout=TIMEOUT)
        except subprocess.TimeoutExpired:
            raise Failure(f"over {TIMEOUT} s") from None
    if ended.returncode < 0:
        raise Failure(f"crash ({signal.Signals(-ended.returncode).name})")
    if ended.returncode == 1:
        raise Failure("refused")
    ended.check_returncode()
    return [float(number) for number in ended.stdout.split()]


def figure(number):
    """Three digits that count."""
    digits = 2 - math.floor(math.log10(number)) if number > 0 else 0
    return f"{number:,.{max(digits, 0)}f}"


def table(heading, rows, texts=1):
    """The first columns are texts, the others numbers."""
    rule = ["---"] * texts + ["---:"] * (len(heading) - texts)
    return "".join(f"| {' | '.join(map(str, row))} |\n" for row in [heading, rule, *rows])
