"""How large Quillet and its peers are: what a program has to carry with it."""

import gzip
import subprocess
import tempfile
from pathlib import Path

from compare_contenders import BUILD, NPM, figure, table
from compare_machine import cached

MODULES = NPM / "node_modules"
PEER = Path(cached("pg_query"))
SQLGLOT = Path("/usr/lib/python3/dist-packages/sqlglot")

# What a program links or runs, without what debuggers need.
NATIVE = {
    "`libquillet.so`": BUILD / "lib/libquillet.so",
    "`libquillet.a`": BUILD / "lib/libquillet.a",
    "`quillet`": BUILD / "quillet",
    "`quillet-script`": BUILD / "quillet-script",
    "a program with `libquillet.a`": BUILD / "bench/quillet_to_mysql",
    "`libpg_query.so`": PEER.with_suffix(".so"),
    "`libpg_query.a`": PEER,
    "a program with `libpg_query.a`, parse and deparse": BUILD / "bench/pg_query_deparse",
}

# What a contender loads, and the packages that npm installs for it.
PACKAGES = {
    "Quillet in Node": (["quillet"], ["quillet/*.cjs", "quillet/quillet.wasm"]),
    "polyglot": (
        ["@polyglot-sql/sdk"],
        ["@polyglot-sql/sdk/dist/index.cjs", "@polyglot-sql/sdk/dist/polyglot_sql.wasm"],
    ),
    "sqlparser-rs": (
        ["@guanmingchiu/sqlparser-ts"],
        [
            "@guanmingchiu/sqlparser-ts/dist/index.cjs",
            "@guanmingchiu/sqlparser-ts/wasm/sqlparser_rs_wasm.js",
            "@guanmingchiu/sqlparser-ts/wasm/sqlparser_rs_wasm_bg.wasm",
        ],
    ),
    "pgsql-parser": (
        ["pgsql-parser", "libpg-query", "pgsql-deparser", "@pgsql"],
        [
            "pgsql-parser/index.js",
            "libpg-query/wasm/index.cjs",
            "libpg-query/wasm/libpg-query.js",
            "libpg-query/wasm/libpg-query.wasm",
            "@pgsql/*/*.js",
            "pgsql-deparser/*.js",
            "pgsql-deparser/utils/*.js",
            "pgsql-deparser/visitors/*.js",
        ],
    ),
    "node-sql-parser": (
        ["node-sql-parser", "big-integer", "@types/pegjs"],
        ["node-sql-parser/build/postgresql.js", "big-integer/BigInteger.js"],
    ),
}


def mebibytes(size):
    return figure(size / 2**20)


def stripped(path):
    with tempfile.NamedTemporaryFile() as file:
        words = ["strip", "--strip-debug" if path.suffix == ".a" else "--strip-all"]
        subprocess.run([*words, "-o", file.name, path], check=True)
        return Path(file.name).read_bytes()


def sizes(contents):
    """MiB as they are, and each compressed."""
    contents = list(contents)
    compressed = sum(len(gzip.compress(content)) for content in contents)
    return mebibytes(sum(map(len, contents))), mebibytes(compressed)


def files_of(package):
    return [path for path in (MODULES / package).rglob("*") if path.is_file()]


def loaded(patterns):
    for pattern in patterns:
        found = sorted(MODULES.glob(pattern))
        if not found:
            raise FileNotFoundError(pattern)
        yield from (path.read_bytes() for path in found)


def package_rows():
    for name, (packages, patterns) in PACKAGES.items():
        installed = sum(path.stat().st_size for package in packages for path in files_of(package))
        yield name, *sizes(loaded(patterns)), mebibytes(installed)
    modules = [path.read_bytes() for path in SQLGLOT.rglob("*.py")]
    yield "sqlglot, without Python", *sizes(modules), mebibytes(sum(map(len, modules)))


def section():
    native = [(name, *sizes([stripped(path)])) for name, path in NATIVE.items()]
    return "## Sizes\n\n" "In MiB. Libraries and programs, stripped:\n\n" + table(
        ("", "MiB", "gzipped"), native
    ) + "\nModules and packages: the files that a contender loads, and all that is installed:\n\n" + table(
        ("", "loaded", "gzipped", "installed"), package_rows()
    )
