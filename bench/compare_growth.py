"""What the contenders take for a statement that grows: time a member, and peak memory."""

import itertools
import subprocess
import sys
import time
from typing import NamedTuple

from compare_contenders import BUILD, Failure, figure, run, table

LISTS = (10, 100, 1000, 10_000, 100_000, 1_000_000)
WARM = 1000  # members up to which a statement is translated again and again
SECONDS = 0.1
LONG = 1e6  # microseconds: once is enough, and more members would be too many


class Field(NamedTuple):
    """Contenders, and what they run over."""

    contenders: list
    shapes: dict  # their sizes
    rounds: int  # at least, and for at least the seconds of the span
    span: float


NATIVE = Field(
    [
        "Quillet to PostgreSQL",
        "Quillet to MySQL",
        "libpg_query, raw parse",
        "libpg_query, parse and deparse",
        "sqlglot to PostgreSQL",
        "sqlglot to MySQL",
    ],
    {
        **dict.fromkeys(("columns", "values", "and", "sum", "when branches"), LISTS),
        "parentheses": (100, 1000, 9000),
    },
    rounds=3,
    span=1,
)
NODE = Field(
    [
        "Quillet in Node, to MySQL",
        "polyglot to MySQL",
        "sqlparser-rs, parse and format",
        "pgsql-parser, parse and deparse",
        "node-sql-parser to MySQL",
    ],
    {
        **dict.fromkeys(("columns", "values"), (100, 10_000, 100_000, 1_000_000)),
        "sum": (100, 1000, 10_000),
    },
    rounds=1,
    span=0,
)
STEADY = Field(
    ["Quillet to MySQL"],
    {shape: LISTS for shape, sizes in NATIVE.shapes.items() if sizes == LISTS},
    rounds=2,
    span=0,
)


class Cell(NamedTuple):
    time: float  # microseconds a member
    memory: float  # MiB


def statement_of(shape, members):
    words = [BUILD / "bench/quillet_statement", shape, str(members)]
    return subprocess.run(words, stdout=subprocess.PIPE, text=True, check=True).stdout


def trial(contender, statements, members):
    microseconds, memory = run(contender, "once", statements)
    if members <= WARM:
        [microseconds] = run(contender, "times", statements, SECONDS)
    return Cell(microseconds / members, memory / 1024)


def is_long(cell, members):
    return cell.time * members > LONG


def race(field, contenders, shape, members):
    """The best cell of each contender, or why it has none."""
    statements = [statement_of(shape, members)]
    best = {}
    running = list(contenders)
    start = time.monotonic()
    for number in itertools.count():
        if not running or (number >= field.rounds and time.monotonic() - start > field.span):
            return best
        for contender in list(running):
            try:
                found = trial(contender, statements, members)
                best[contender] = min(found, best.get(contender, found))
                if is_long(best[contender], members):
                    running.remove(contender)
            except Failure as failure:
                best[contender] = str(failure)
                running.remove(contender)


def measure(field):
    """The cell of every (contender, shape, members); why there is none; nothing after that."""
    cells = {}
    for shape, sizes in field.shapes.items():
        print(f"Growth of {shape}", file=sys.stderr)
        contenders = field.contenders
        for members in sizes:
            best = race(field, contenders, shape, members)
            cells |= {(contender, shape, members): cell for contender, cell in best.items()}
            contenders = [
                contender
                for contender, cell in best.items()
                if isinstance(cell, Cell) and not is_long(cell, members)
            ]
    return cells


def steady_times(shape, members):
    statements = [statement_of(shape, members)]
    for _ in range(STEADY.rounds):
        [microseconds] = run(*STEADY.contenders, "times", statements, SECONDS)
        yield microseconds / members


def text_of(cell, attribute):
    return figure(getattr(cell, attribute)) if isinstance(cell, Cell) else cell


def rows(field, cells, attribute):
    for shape, sizes in field.shapes.items():
        for members in sizes:
            row = [cells.get((name, shape, members), "–") for name in field.contenders]
            yield (shape, f"{members:,}", *(text_of(cell, attribute) for cell in row))


def tables(field, cells):
    heading = ("shape", "members", *field.contenders)
    rounds = f"the least of {field.rounds} rounds or more" if field.rounds > 1 else "of one round"
    return (
        f"Microseconds a member, {rounds}:\n\n"
        + table(heading, rows(field, cells, "time"))
        + "\nPeak memory of the process, in MiB:\n\n"
        + table(heading, rows(field, cells, "memory"))
    )


def steady_table():
    found = [
        (shape, *(figure(min(steady_times(shape, members))) for members in sizes))
        for shape, sizes in STEADY.shapes.items()
    ]
    return table(("shape", *(f"{members:,}" for members in LISTS)), found)


def section(native_cells):
    [steady] = STEADY.contenders
    return (
        "## Growth\n\n"
        + tables(NATIVE, native_cells)
        + f"\n{steady} again and again at every size, in microseconds a member:\n\n"
        + steady_table()
        + "\n### In Node\n\n"
        + tables(NODE, measure(NODE))
    )
