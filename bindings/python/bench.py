"""What a statement of bench/statements.sql takes into MySQL from Python; sqlglot beside it, if it is there.

bindings/python/test makes the environment: build/wheel/environment/bin/python bindings/python/bench.py
"""

import argparse
import importlib
import logging
import platform
import re
import time
from collections.abc import Callable
from pathlib import Path
from statistics import median

import quillet
from quillet import Severity

STATEMENTS = Path(__file__).resolve().parents[2] / "bench/statements.sql"


def with_sqlglot() -> dict[str, Callable[[str], object]]:
    try:
        sqlglot = importlib.import_module("sqlglot")
    except ImportError:
        return {}
    logging.getLogger("sqlglot").setLevel(logging.CRITICAL)

    def translate(statement: str) -> object:
        tree = sqlglot.parse_one(statement, read="postgres")
        if isinstance(tree, sqlglot.exp.Command):  # kept as a text
            raise ValueError("not parsed")
        return tree.sql(dialect="mysql")

    return {f"sqlglot {sqlglot.__version__}": translate}


CONTENDERS: dict[str, Callable[[str], object]] = {
    "quillet": quillet.translate,
    "quillet without remarks": lambda statement: quillet.translate(
        statement, least_severity=Severity.REFUSAL
    ),
    **with_sqlglot(),
}


def accepts(translate: Callable[[str], object], statement: str) -> bool:
    try:
        translate(statement)
        return True
    except Exception:
        return False


def microseconds(
    translate: Callable[[str], object], statements: list[str], seconds: float
) -> float:
    count = 0
    begin = time.perf_counter()
    while (elapsed := time.perf_counter() - begin) < seconds:
        for statement in statements:
            translate(statement)
        count += len(statements)
    return elapsed * 1e6 / count


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--rounds", type=int, default=9, help="of each (%(default)s)")
    parser.add_argument("--seconds", type=float, default=0.5, help="a round (%(default)s)")
    options = parser.parse_args()

    statements = [part.strip() for part in re.split(r";\n", STATEMENTS.read_text()) if part.strip()]
    kept = [each for each in statements if all(accepts(by, each) for by in CONTENDERS.values())]
    times: dict[str, list[float]] = {name: [] for name in CONTENDERS}
    for _ in range(options.rounds):
        for name, by in CONTENDERS.items():
            times[name].append(microseconds(by, kept, options.seconds))

    size = sum(map(len, kept)) / len(kept)
    print(
        f"Python {platform.python_version()}, {len(kept)} of {len(statements)} statements that all"
    )
    print(f"accept, {size:.0f} characters on average; {options.rounds} rounds\n")
    print("| | µs a statement | least – most |")
    print("|---|---|---|")
    for name, found in times.items():
        print(f"| {name} | {median(found):.2f} | {min(found):.2f} – {max(found):.2f} |")


main()
