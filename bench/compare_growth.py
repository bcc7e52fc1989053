"""What the contenders take for a statement that grows: time a member, and peak memory."""

import itertools
import subprocess
import sys
import time
from typing import NamedTuple

from compare_contenders import BUILD, CONTENDERS, Failure, figure, run, table

LISTS = (10, 100, 1000, 10000, 100000)
DEPTHS = (100, 1000, 9000)
SHAPES = {
    "columns": LISTS,
    "values": LISTS,
    "and": LISTS,
    "sum": LISTS,
    "when branches": LISTS,
    "parentheses": DEPTHS,
}
WARM = 1000  # members up to which a statement is translated again and again
ROUNDS = 5  # at least, and for at least the seconds of the span
SPAN = 2
SECONDS = 0.1
SLOW = 5e6  # microseconds from which once is enough


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


def race(contenders, shape, members):
    """The best cell of each contender, or why it has none."""
    statements = [statement_of(shape, members)]
    best = {}
    running = list(contenders)
    start = time.monotonic()
    for number in itertools.count():
        if not running or (number >= ROUNDS and time.monotonic() - start > SPAN):
            return best
        for contender in list(running):
            try:
                found = trial(contender, statements, members)
                best[contender] = min(found, best.get(contender, found))
                if best[contender].time * members > SLOW:
                    running.remove(contender)
            except Failure as failure:
                best[contender] = str(failure)
                running.remove(contender)


def measure():
    """The cell of every (contender, shape, members); why there is none; nothing after that."""
    cells = {}
    for shape, sizes in SHAPES.items():
        print(f"Growth of {shape}", file=sys.stderr)
        contenders = CONTENDERS
        for members in sizes:
            best = race(contenders, shape, members)
            cells |= {(contender, shape, members): cell for contender, cell in best.items()}
            contenders = [c for c, cell in best.items() if isinstance(cell, Cell)]
    return cells


def rows(cells, field):
    for shape, sizes in SHAPES.items():
        for members in sizes:
            row = [cells.get((contender, shape, members), "–") for contender in CONTENDERS]
            yield (
                shape,
                f"{members:,}",
                *(figure(getattr(cell, field)) if isinstance(cell, Cell) else cell for cell in row),
            )


def section(cells):
    heading = ("shape", "members", *CONTENDERS)
    return (
        f"## Growth\n\nMicroseconds a member, the least of {ROUNDS} rounds or more:\n\n"
        + table(heading, rows(cells, "time"))
        + "\nPeak memory of the process, in MiB:\n\n"
        + table(heading, rows(cells, "memory"))
    )
