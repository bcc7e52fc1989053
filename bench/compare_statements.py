"""How long the contenders take for realistic statements."""

import re
import sys
from pathlib import Path
from statistics import median
from typing import NamedTuple

from compare_contenders import CONTENDERS, IN_NODE, YARDSTICK, figure, run, table


class Corpus(NamedTuple):
    title: str
    path: Path


CORPORA = [
    Corpus("Realistic statements", Path("bench/statements.sql")),
    Corpus("Short statements", Path("bench/short_statements.sql")),
]
TURNS_OF_NODE = 3  # one in so many rounds: to warm up takes them seconds


class Measured(NamedTuple):
    corpus: Corpus
    statements: list  # all of them
    kept: list  # those that all contenders accept
    accepted: dict  # how many each contender does
    times: dict  # microseconds a statement, of each contender's rounds

    def medians(self):
        return {contender: median(found) for contender, found in self.times.items()}


def measure(corpus, rounds, seconds):
    text = corpus.path.read_text()
    statements = [part.strip() for part in re.split(r";\n", text) if part.strip()]

    answers = {contender: run(contender, "accepts", statements) for contender in CONTENDERS}
    for contender, found in answers.items():
        if len(found) != len(statements):
            sys.exit(f"{contender}: no answer for statement {len(found) + 1}")
    kept = [statement for statement, *found in zip(statements, *answers.values()) if all(found)]
    accepted = {contender: sum(map(int, found)) for contender, found in answers.items()}

    times = {contender: [] for contender in CONTENDERS}
    for number in range(rounds):
        print(f"{corpus.title}, round {number + 1} of {rounds}", file=sys.stderr)
        for contender in CONTENDERS:
            if contender not in IN_NODE or number % TURNS_OF_NODE == 0:
                times[contender] += run(contender, "times", kept, seconds)
    return Measured(corpus, statements, kept, accepted, times)


def section(measured, rounds, seconds):
    corpus, statements, kept, accepted, times = measured
    medians = measured.medians()
    rows = [
        (
            contender,
            CONTENDERS[contender].runs,
            accepted[contender],
            figure(medians[contender]),
            figure(medians[contender] / medians[YARDSTICK]),
            f"{figure(min(found))} – {figure(max(found))}",
        )
        for contender, found in times.items()
    ]
    size = sum(map(len, kept)) / len(kept)
    heading = ("", "runs", "accepts", "µs a statement", "ratio", "least – most")
    return (
        f"## {corpus.title}\n\n"
        f"The {len(kept)} of {len(statements)} statements of `{corpus.path}` that all accept, of "
        f"{size:.0f} characters on\naverage; {rounds} rounds of {seconds:g} s, "
        f"{len(times[IN_NODE[0]])} in Node.\n\n" + table(heading, rows, texts=2)
    )
