"""How long a process takes that translates one short statement."""

import os
import time
from statistics import median

from compare_contenders import BUILD, figure, table

RUNS = 200
PROGRAMS = {"/bin/true": ["/bin/true"], 'quillet "select 1"': [BUILD / "quillet", "select 1"]}


def wall_time(words):
    silence = [(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)]
    start = time.perf_counter()
    process = os.posix_spawn(words[0], words, os.environ, file_actions=silence)
    _, status = os.waitpid(process, 0)
    elapsed = time.perf_counter() - start
    if status:
        raise RuntimeError(f"{words} failed")
    return elapsed * 1e6


def section():
    times = {name: [] for name in PROGRAMS}
    for _ in range(RUNS):
        for name, words in PROGRAMS.items():
            times[name].append(wall_time(words))
    medians = [median(found) for found in times.values()]
    rows = [(f"`{name}`", figure(found)) for name, found in zip(times, medians)]
    rows.append(("difference", figure(medians[1] - medians[0])))
    return (
        "## Start-up\n\n"
        f"Wall time of a whole process, the median of {RUNS} runs of each program in turn.\n\n"
        + table(("", "µs"), rows)
    )
