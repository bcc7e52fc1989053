"""What bench/compare runs on, and what it runs."""

import datetime
import os
import re
import subprocess
from pathlib import Path

from compare_contenders import BUILD, table


def output(*words):
    return subprocess.run(words, stdout=subprocess.PIPE, text=True, check=True).stdout.strip()


def cached(name):
    """A value of CMake's cache."""
    cache = (BUILD / "CMakeCache.txt").read_text()
    return re.search(rf"^{name}:\w+=(.*)$", cache, re.MULTILINE)[1]


def debian(package):
    return output("dpkg-query", "--show", "--showformat=${Package} ${Version}", package)


def section():
    model = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())
    processor = model[1] if model else os.uname().machine
    system = output("sh", "-c", '. /etc/os-release; echo "$PRETTY_NAME"')
    compiler = output(cached("CMAKE_CXX_COMPILER"), "--version").splitlines()[0]
    flags = cached("CMAKE_CXX_FLAGS_RELEASE")
    rows = [
        ("date", datetime.date.today()),
        ("processor", f"{processor}, {os.cpu_count()} cores"),
        ("load when the run began", f"{os.getloadavg()[0]:.1f}"),
        ("system", f"{system}, Linux {'.'.join(os.uname().release.split('.')[:2])}"),
        ("compiler", f"{compiler}, `{flags}`"),
        ("Quillet", cached("CMAKE_PROJECT_VERSION")),
        ("libpg_query", debian("libpg-query-dev")),
        ("sqlglot", f"{debian('python3-sqlglot')}, {debian('python3')}"),
    ]
    return "## The machine\n\n" + table(("what", "which"), rows, texts=2)
