"""Makes truth/corpus/pairs.sql: every two operators in a row without parentheses, so that it shows
whether a text groups them as PostgreSQL does.

A candidate has a column of the table operand for each operand, of every choice of kinds. Of those that
PostgreSQL takes and that the library reads, the one with the most different answers is kept.
"""

import itertools
import os

import corpus
from sessions import Failure

BEFORE = ["- ", "NOT ", "@ ", "|/ ", "||/ ", "~ "]
BETWEEN = [
    "*", "/", "%", "+", "-", "^", "<", ">", "<=", ">=", "=", "!=", "<<", ">>", "||", "&", "|", "#",
    "AND", "OR", "LIKE", "NOT LIKE", "ILIKE", "NOT ILIKE", "SIMILAR TO", "~", "~*", "!~", "!~*",
    "IS DISTINCT FROM",
]
AFTER = [" IS NULL", " IS NOT NULL", " IS TRUE", " IS NOT FALSE", "::integer", "::text"]
KINDS = "nbs"
INVALID_QUERY = -2
HEADER = "-- Written by truth/run --pairs; see truth/pairs.py.\n"


def _candidates():
    """Lists of expressions that belong to one pair."""
    for first, second in itertools.product(BETWEEN, BETWEEN):
        yield [f"{a}1 {first} {b}2 {second} {c}3" for a, b, c in itertools.product(KINDS, repeat=3)]
    for before, between in itertools.product(BEFORE, BETWEEN):
        yield [f"{before}{a}1 {between} {b}2" for a, b in itertools.product(KINDS, repeat=2)]
        yield [f"{a}1 {between} {before}{b}2" for a, b in itertools.product(KINDS, repeat=2)]
    for between, after in itertools.product(BETWEEN, AFTER):
        yield [f"{a}1 {between} {b}2{after}" for a, b in itertools.product(KINDS, repeat=2)]
        yield [f"{a}1{after} {between} {b}2" for a, b in itertools.product(KINDS, repeat=2)]
    for before, after in itertools.product(BEFORE, AFTER):
        yield [f"{before}{a}1{after}" for a in KINDS]
    for between in BETWEEN:
        yield [f"{a}1 BETWEEN {a}2 AND {a}3 {between} {b}1" for a, b in itertools.product(KINDS, repeat=2)]
        yield [f"{a}1 {between} {b}2 BETWEEN {c}2 AND {c}3" for a, b, c in itertools.product(KINDS, repeat=3)]


def write(library, postgresql):
    kept = []
    for candidates in _candidates():
        best = (0, None)
        for expression in candidates:
            statement = f"select id, {expression} from operand"
            if library.translate(statement, "postgresql").code == INVALID_QUERY:
                continue
            try:
                rows = postgresql.ask(statement).rows
            except Failure:
                continue
            best = max(best, (len({row[1] for row in rows}), statement), key=lambda found: found[0])
        if best[1]:
            kept.append(best[1])
    with open(os.path.join(corpus.FOLDER, "pairs.sql"), "w", encoding="utf-8") as file:
        file.write(HEADER + "\n".join(kept) + "\n")
    print(f"{len(kept)} statements")
