"""What bench/compare runs on, and what it runs."""

import datetime
import json
import os
import re
import subprocess
from pathlib import Path

from compare_contenders import BUILD, NPM, table


def output(*words):
    return subprocess.run(words, stdout=subprocess.PIPE, text=True, check=True).stdout.strip()


def cached(name):
    """A value of CMake's cache."""
    cache = (BUILD / "CMakeCache.txt").read_text()
    return re.search(rf"^{name}:\w+=(.*)$", cache, re.MULTILINE)[1]


def debian(package):
    return output("dpkg-query", "--show", "--showformat=${Package} ${Version}", package)


def npm(package):
    """The version of a package from npm."""
    found = json.loads((NPM / "node_modules" / package / "package.json").read_text())
    return f"{package} {found['version']}"


def caches():
    """The processor's caches for data, each core's own first; nothing where the system does not say."""
    folders = sorted(Path("/sys/devices/system/cpu/cpu0/cache").glob("index*"))
    read = [
        [(folder / name).read_text().strip() for name in ("level", "type", "size")]
        for folder in folders
    ]
    return ", ".join(f"L{level} {size}" for level, kind, size in read if kind != "Instruction")


def section():
    model = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())
    processor = model[1] if model else os.uname().machine
    system = output("sh", "-c", '. /etc/os-release; echo "$PRETTY_NAME"')
    compiler = output(cached("CMAKE_CXX_COMPILER"), "--version").splitlines()[0]
    flags = cached("CMAKE_CXX_FLAGS_RELEASE")
    rows = [
        ("date", datetime.date.today()),
        ("processor", f"{processor}, {os.cpu_count()} cores"),
        ("caches of a core", caches()),
        ("load when the run began", f"{os.getloadavg()[0]:.1f}"),
        ("system", f"{system}, Linux {'.'.join(os.uname().release.split('.')[:2])}"),
        ("compiler", f"{compiler}, `{flags}`"),
        ("Quillet", cached("CMAKE_PROJECT_VERSION")),
        ("libpg_query", debian("libpg-query-dev")),
        ("sqlglot", f"{debian('python3-sqlglot')}, {debian('python3')}"),
        ("Node", output("node", "--version")),
        ("polyglot", npm("@polyglot-sql/sdk")),
        ("sqlparser-rs", npm("@guanmingchiu/sqlparser-ts")),
        ("pgsql-parser", f"{npm('pgsql-parser')}, {npm('libpg-query')}, {npm('pgsql-deparser')}"),
        ("node-sql-parser", npm("node-sql-parser")),
    ]
    return "## The machine\n\n" + table(("what", "which"), rows, texts=2)
