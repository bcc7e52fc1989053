"""Measures quillet-script on several cores; bench/scale builds it first and starts this."""

import argparse
import json
import math
import os
import re
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from statistics import median
from threading import Thread

from compare_contenders import table

PAGE = Path("docs/scale.md")
BEGIN = "<!-- bench/scale --update writes what follows -->\n"
END = "<!-- up to here -->\n"
BUILD = Path("build/scale").resolve()
JOBS = (1, 2)
FILES = 40
BILLION = 1_000_000_000
HOURS = (1, 8, 24)

# As the page shows them; parallel's --jobs is added.
IN_FILES = "find scripts -name '*.sql' | parallel quillet-script {} -o {.}.mysql"
IN_LINES = "parallel --keep-order --pipepart --block -1 -a statements.jsonl quillet-script --input json"
RUNS = {
    "scripts": IN_FILES,
    "scripts, `--warn none`": f"{IN_FILES} --warn none",
    "JSON lines": IN_LINES,
    "JSON lines, `--warn none`": f"{IN_LINES} --warn none",
}
PIPE = ["sh", "-c", "quillet-script --input json --warn none || [ $? -eq 1 ]"]


def arguments():
    parser = argparse.ArgumentParser(prog="bench/scale")
    parser.add_argument("--rounds", type=int, default=7, help="of every run (%(default)s)")
    parser.add_argument("--copies", type=int, default=4000, help="of 60 statements (%(default)s)")
    parser.add_argument("--update", action="store_true", help=f"write the tables into {PAGE}")
    return parser.parse_args()


def environment():
    return {**os.environ, "PATH": f"{BUILD}:{os.environ['PATH']}"}


def line_of(number, statement):
    return json.dumps({"id": number, "statement": statement})


def write_input(directory, copies):
    """Writes the same statements as scripts and as lines; returns them."""
    text = Path("bench/statements.sql").read_text()
    statements = [part.strip() for part in re.split(r";\n", text) if part.strip()]
    scripts = directory / "scripts"
    scripts.mkdir()
    for number in range(FILES):
        (scripts / f"{number}.sql").write_text(f"{text}\n" * (copies // FILES))
    with open(directory / "statements.jsonl", "w") as lines:
        for number in range(copies // FILES * FILES):
            for at, statement in enumerate(statements):
                print(line_of(number * len(statements) + at, statement), file=lines)
    return statements


def seconds_of(command, jobs, directory):
    words = command.replace("parallel", f"parallel --will-cite --jobs {jobs}", 1)
    with open(directory / "output", "wb") as output:
        start = time.perf_counter()
        subprocess.run(
            words, shell=True, check=True, cwd=directory, env=environment(),
            stdout=output, stderr=subprocess.DEVNULL,
        )
        return time.perf_counter() - start


def check_output(command, directory, statements):
    """Whether everything has been translated, and lines are in their order."""
    if command.startswith("find"):
        made = sorted((directory / "scripts").glob("*.mysql"))
        count = sum(path.read_text().count(";\n") for path in made)
        wrong = len(made) != FILES
    else:
        with open(directory / "output") as lines:
            found = [json.loads(line) for line in lines]
        count = sum(each["code"] == 0 for each in found)
        wrong = any(each["id"] != number for number, each in enumerate(found))
    if wrong or count != statements:
        sys.exit(f"{command}: {count} of {statements} statements")


def measure(directory, rounds, statements):
    times = {(name, jobs): [] for name in RUNS for jobs in JOBS}
    for number in range(rounds):
        print(f"Round {number + 1} of {rounds}", file=sys.stderr)
        for name, command in RUNS.items():
            for jobs in JOBS:
                times[name, jobs].append(seconds_of(command, jobs, directory))
                check_output(command, directory, statements)
    return times


def pipe(partition, command):
    """What a cluster's pipe step does with a partition: lines in, lines out, and the status."""
    program = subprocess.Popen(
        command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
        env={"PATH": f"{BUILD}:/usr/bin:/bin"},
    )

    def write():
        with program.stdin as lines:
            for line in partition:
                lines.write(f"{line}\n".encode())

    writer = Thread(target=write)
    writer.start()
    found = [line.rstrip(b"\n").decode() for line in program.stdout]
    writer.join()
    return found, program.wait()


def check_pipe(statements):
    """Whether quillet-script is such a step; returns how many lines went through it."""
    bad = [line_of(None, "select initcap('zażółć')"), line_of(None, "select from"), "no object", "[]"]
    partitions = [
        [line_of(number, statements[number % len(statements)]) for number in range(begin, end)] + more
        for begin, end, more in [(0, 20000, []), (20000, 50000, bad), (0, 0, []), (50000, 50001, bad)]
    ]
    with ThreadPoolExecutor(max_workers=2) as executors:
        answers = list(executors.map(lambda each: pipe(each, PIPE), partitions))
    for partition, (lines, status) in zip(partitions, answers):
        ids = [json.loads(line)["id"] for line in lines]
        numbers = [json.loads(line)["id"] for line in partition if line.startswith('{"id"')]
        if status or len(ids) != len(partition) or ids[: len(numbers)] != numbers:
            sys.exit(f"a partition of {len(partition)} lines: {len(ids)} lines, status {status}")
    for words, expected in [(PIPE[2].split("||")[0], 1), (PIPE[2].replace("json", "xml"), 1)]:
        if (status := pipe(bad, ["sh", "-c", words])[1]) != expected:
            sys.exit(f"{words}: status {status}")
    return sum(map(len, partitions))


def thousands(number):
    return f"{number:,.0f}"


def section(times, rounds, statements, piped, load):
    speeds = {run: statements / median(found) for run, found in times.items()}
    ratios = {
        name: [one / two for one, two in zip(times[name, 1], times[name, 2])] for name in RUNS
    }
    measured = [
        (
            name,
            thousands(round(speeds[name, 1], -2)),
            thousands(round(speeds[name, 2], -2)),
            f"{median(ratios[name]):.2f}",
            f"{min(ratios[name]):.2f} – {max(ratios[name]):.2f}",
        )
        for name in RUNS
    ]
    computed = [
        (
            name,
            f"{BILLION / speeds[name, 2] / 3600:.1f}",
            *(math.ceil(BILLION / speeds[name, 2] / 3600 / hours) for hours in HOURS),
        )
        for name in RUNS
    ]
    hours = [f"in {hours} h" for hours in HOURS]
    return (
        f"{thousands(statements)} statements, {rounds} runs of each in turn; load when the run began "
        f"{load:.1f}. Statements a second:\n\n"
        + table(("", "1 job", "2 jobs", "ratio", "least – most"), measured)
        + "\nA billion statements by the speed of 2 jobs, in machines of 2 cores:\n\n"
        + table(("", "hours of one machine", *hours), computed)
        + f"\n{thousands(piped)} lines went through the pipe step.\n"
    )


def update(text):
    page = PAGE.read_text()
    if page.count(BEGIN) != 1 or page.count(END) != 1:
        sys.exit(f"{PAGE} has not one pair of marks")
    before, rest = page.split(BEGIN)
    PAGE.write_text(f"{before}{BEGIN}\n{text}\n{END}{rest.split(END)[1]}")


def main():
    options = arguments()
    load, *_ = os.getloadavg()
    with tempfile.TemporaryDirectory() as name:
        directory = Path(name)
        statements = write_input(directory, options.copies)
        count = len(statements) * (options.copies // FILES * FILES)
        piped = check_pipe(statements)
        times = measure(directory, options.rounds, count)
    text = section(times, options.rounds, count, piped, load)
    print(text, end="")
    if options.update:
        update(text)


sys.exit(main())
