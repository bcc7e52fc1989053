"""How long the contenders take for realistic statements."""

import re
import sys
from pathlib import Path
from statistics import median

from compare_contenders import CONTENDERS, YARDSTICK, figure, run, table


def section(rounds, seconds):
    text = Path("bench/statements.sql").read_text()
    statements = [part.strip() for part in re.split(r";\n", text) if part.strip()]

    accepted = {}
    for contender in CONTENDERS:
        accepted[contender] = run(contender, "accepts", statements)
        if len(accepted[contender]) != len(statements):
            sys.exit(f"{contender}: no answer for statement {len(accepted[contender]) + 1}")
    kept = [s for s, *answers in zip(statements, *accepted.values()) if all(answers)]

    times = {contender: [] for contender in CONTENDERS}
    for number in range(rounds):
        print(f"Round {number + 1} of {rounds}", file=sys.stderr)
        for contender in CONTENDERS:
            times[contender] += run(contender, "times", kept, seconds)

    yardstick = median(times[YARDSTICK])
    rows = [
        (
            contender,
            f"{sum(accepted[contender]):.0f}",
            figure(median(found)),
            figure(median(found) / yardstick),
            f"{figure(min(found))} – {figure(max(found))}",
        )
        for contender, found in times.items()
    ]
    size = sum(map(len, kept)) / len(kept)
    return (
        "## Realistic statements\n\n"
        f"The {len(kept)} of {len(statements)} statements that all accept, of {size:.0f} "
        f"characters on average;\n{rounds} rounds of {seconds:g} s.\n\n"
        + table(("", "accepts", "µs a statement", "ratio", "least – most"), rows)
    )
