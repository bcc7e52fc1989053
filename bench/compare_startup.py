"""How long a process takes that translates one short statement."""

import os
import tempfile
import time
from statistics import median

from compare_contenders import BUILD, figure, table

RUNS = 200
PROGRAMS = {
    "/bin/true": ["/bin/true"],
    'quillet "select 1"': [BUILD / "quillet", "select 1"],
    "quillet-script one.sql": [BUILD / "quillet-script"],  # and the script
}


def wall_time(words):
    silence = [(os.POSIX_SPAWN_OPEN, fd, "/dev/null", os.O_WRONLY, 0) for fd in (1, 2)]
    start = time.perf_counter()
    process = os.posix_spawn(words[0], words, os.environ, file_actions=silence)
    _, status = os.waitpid(process, 0)
    elapsed = time.perf_counter() - start
    if status:
        raise RuntimeError(f"{words} failed")
    return elapsed * 1e6


def section():
    with tempfile.NamedTemporaryFile("w", suffix=".sql") as script:
        script.write("select 1;\n")
        script.flush()
        programs = dict(PROGRAMS)
        programs["quillet-script one.sql"] = [*PROGRAMS["quillet-script one.sql"], script.name]
        times = {name: [] for name in programs}
        for _ in range(RUNS):
            for name, words in programs.items():
                times[name].append(wall_time(words))
    least, *_ = medians = [median(found) for found in times.values()]
    rows = [
        (f"`{name}`", figure(found), figure(found - least) if found != least else "")
        for name, found in zip(times, medians)
    ]
    return (
        "## Start-up\n\n"
        f"Wall time of a whole process, the median of {RUNS} runs of each program in turn; "
        "`one.sql` has `select 1`.\n\n"
        + table(("", "µs", "more than the first"), rows)
    )
