"""How many statements of a script quillet-script translates in a second."""

import os
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from statistics import median

from compare_contenders import BUILD, OPTIMISED_BUILD, figure, table
from compare_startup import wall_time

PROGRAM = BUILD / "quillet-script"
OPTIMISED = OPTIMISED_BUILD / "quillet-script"
COPIES = 1000
RUNS = {
    "to MySQL, as without options": [PROGRAM],
    "`--warn none`": [PROGRAM, "--warn", "none"],
    "`--to postgresql`": [PROGRAM, "--to", "postgresql"],
    "`--to postgresql --warn none`": [PROGRAM, "--to", "postgresql", "--warn", "none"],
    "`--placeholders auto`": [PROGRAM, "--placeholders", "auto"],
    "`--format json`": [PROGRAM, "--format", "json"],
    "`--format json --warn none`": [PROGRAM, "--format", "json", "--warn", "none"],
    "to MySQL, optimised build": [OPTIMISED],
    "`--warn none`, optimised build": [OPTIMISED, "--warn", "none"],
}


def peak_memory(words):
    """The MiB of a run, looked at again and again: ru_maxrss knows the size of this program too."""
    kib = 0
    with subprocess.Popen(words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        while process.poll() is None:
            status = Path(f"/proc/{process.pid}/status").read_text()
            found = re.search(r"^Name:\s+quillet-script$.*^VmHWM:\s+(\d+)", status, re.M | re.S)
            kib = max(kib, int(found[1])) if found else kib
            time.sleep(0.005)
    return kib / 1024


def measure(script, rounds):
    """The seconds of each run, round by round."""
    found = {name: [] for name in RUNS}
    for number in range(rounds):
        print(f"Scripts, round {number + 1} of {rounds}", file=sys.stderr)
        for name, words in RUNS.items():
            found[name].append(wall_time([*words, script]) / 1e6)
    return found


def section(rounds):
    text = Path("bench/statements.sql").read_text()
    statements = text.count(";\n") * COPIES
    with tempfile.NamedTemporaryFile("w", suffix=".sql") as file:
        for _ in range(COPIES):
            file.write(text + "\n")
        file.flush()
        size = os.path.getsize(file.name)
        found = measure(file.name, rounds)
        memory = {name: peak_memory([*words, file.name]) for name, words in RUNS.items()}

    def a_second(seconds):
        return f"{round(statements / seconds, -2):,.0f}"

    rows = []
    for name, times in found.items():
        rows.append(
            (
                name,
                a_second(median(times)),
                f"{a_second(max(times))} – {a_second(min(times))}",
                figure(size / 1e6 / median(times)),
                figure(memory[name]),
            )
        )
    heading = ("", "statements a second", "least – most", "MB a second", "peak MiB")
    return (
        "## Whole scripts\n\n"
        f"A script of {statements:,} statements and {size / 1e6:.1f} MB; {rounds} runs each.\n\n"
        + table(heading, rows)
    )
