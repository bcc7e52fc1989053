"""How long a process takes that translates one short statement."""

import os
import sys
import tempfile
import time
from statistics import median

from compare_contenders import BUILD, CONTENDERS, figure, table

STATEMENT = "select 1"
RUNS = 200
RUNS_OF_CONTENDERS = 11
RUNTIMES = {
    "`/bin/true`": ["/bin/true"],
    "Python alone": ["/usr/bin/python3", "-c", "0"],
    "Node alone": ["node", "-e", "0"],
}


def wall_time(words):
    silence = [(os.POSIX_SPAWN_OPEN, fd, "/dev/null", os.O_WRONLY, 0) for fd in (1, 2)]
    start = time.perf_counter()
    process = os.posix_spawnp(words[0], words, os.environ, file_actions=silence)
    _, status = os.waitpid(process, 0)
    elapsed = time.perf_counter() - start
    if status:
        raise RuntimeError(f"{words} failed")
    return elapsed * 1e6


def medians(programs, runs):
    """The median of each program's microseconds; the programs take turns."""
    times = {name: [] for name in programs}
    for _ in range(runs):
        for name, words in programs.items():
            times[name].append(wall_time(words))
    return {name: median(found) for name, found in times.items()}


def commands_table(script):
    found = medians(
        {
            "`/bin/true`": ["/bin/true"],
            f'`quillet "{STATEMENT}"`': [BUILD / "quillet", STATEMENT],
            "`quillet-script one.sql`": [BUILD / "quillet-script", script],
        },
        RUNS,
    )
    least = found["`/bin/true`"]
    rows = [
        (name, figure(time), figure(time - least) if time != least else "")
        for name, time in found.items()
    ]
    return table(("", "µs", "more than the first"), rows)


def contenders_table(file):
    programs = {name: [*one.words, "once", file] for name, one in CONTENDERS.items()}
    found = medians(RUNTIMES | programs, RUNS_OF_CONTENDERS)
    return table(("", "ms"), [(name, figure(time / 1e3)) for name, time in found.items()])


def section():
    print("Start-up", file=sys.stderr)
    with tempfile.TemporaryDirectory() as folder:
        script = os.path.join(folder, "one.sql")
        with open(script, "w") as file:
            file.write(f"{STATEMENT};\n")
        statement = os.path.join(folder, "statement")
        with open(statement, "w") as file:
            file.write(STATEMENT)
        return (
            "## Start-up\n\n"
            f"Wall time of a whole process, the median of {RUNS} runs of each program in turn; "
            f"`one.sql` has\n`{STATEMENT}`.\n\n"
            + commands_table(script)
            + f"\nA process of each contender that translates `{STATEMENT}`, the median of "
            f"{RUNS_OF_CONTENDERS} runs:\n\n" + contenders_table(statement)
        )
