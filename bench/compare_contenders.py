"""The contenders of bench/compare, how they are run, and tables in Markdown."""

import math
import signal
import subprocess
import tempfile
from pathlib import Path

BUILD = Path("build/compare")
TIMEOUT = 60
SQLGLOT = ["/usr/bin/python3", "-B", "bench/contenders/sqlglot_contender.py"]

CONTENDERS = {
    "Quillet to PostgreSQL": [BUILD / "bench/quillet_to_postgresql"],
    "Quillet to MySQL": [BUILD / "bench/quillet_to_mysql"],
    "libpg_query, raw parse": [BUILD / "bench/pg_query_parse"],
    "libpg_query, parse and deparse": [BUILD / "bench/pg_query_deparse"],
    "sqlglot to PostgreSQL": [*SQLGLOT, "postgres"],
    "sqlglot to MySQL": [*SQLGLOT, "mysql"],
}
YARDSTICK = "libpg_query, raw parse"


class Failure(Exception):
    """A contender that did not translate; the text says why."""


def run(contender, command, statements, *arguments):
    """The numbers that a contender prints about the statements."""
    with tempfile.NamedTemporaryFile("w") as file:
        file.write("\0".join(statements))
        file.flush()
        words = [*CONTENDERS[contender], command, file.name, *map(str, arguments)]
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
