"""sqlglot, to the dialect of the first argument; contender.h says what the others mean."""

import logging
import sys
import time

import sqlglot

logging.getLogger("sqlglot").setLevel(logging.CRITICAL)


def translate(statement, dialect):
    tree = sqlglot.parse_one(statement, read="postgres")
    # What it does not understand it may keep as a text.
    if isinstance(tree, sqlglot.exp.Command):
        raise sqlglot.ParseError("not parsed")
    return tree.sql(dialect=dialect)


def accepted(statement, dialect):
    try:
        translate(statement, dialect)
        return True
    except (sqlglot.errors.SqlglotError, RecursionError):
        return False


def accepts(statements, dialect):
    for statement in statements:
        print(int(accepted(statement, dialect)))


def times(statements, dialect, seconds):
    for statement in statements:
        if not accepted(statement, dialect):
            sys.exit(1)
    count = 0
    start = time.thread_time()
    elapsed = 0
    while elapsed < float(seconds):
        for statement in statements:
            translate(statement, dialect)
        count += len(statements)
        elapsed = time.thread_time() - start
    print(f"{elapsed * 1e6 / count:.4f}")


def peak_memory():
    with open("/proc/self/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmHWM:"))


def once(statements, dialect):
    start = time.thread_time()
    if not all([accepted(statement, dialect) for statement in statements]):
        sys.exit(1)
    print(f"{(time.thread_time() - start) * 1e6:.4f} {peak_memory()}")


dialect, command, path, *seconds = sys.argv[1:]
with open(path) as file:
    statements = file.read().split("\0")
{"accepts": accepts, "times": times, "once": once}[command](statements, dialect, *seconds)
