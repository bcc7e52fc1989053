"""One pair of servers for all tests; each check makes databases of its own there."""

import json
from collections import namedtuple

import pytest

import check
import servers

Checked = namedtuple("Checked", "status outcomes queries tables text")


@pytest.fixture(scope="session")
def running():
    with servers.Servers("default") as started:
        yield started


@pytest.fixture
def run(running, tmp_path, capsys):
    """Runs a check with these options."""

    def run_check(*options):
        dump = tmp_path / "dump.json"
        status = check.check(check.arguments([*map(str, options), "--dump", str(dump)]), running)
        found = json.loads(dump.read_text())
        outcomes = [query["outcome"] for query in found["queries"]]
        tables = {table["name"]: table["outcome"] for table in found["tables"]}
        return Checked(status, outcomes, found["queries"], tables, capsys.readouterr().out)

    return run_check


@pytest.fixture
def run_texts(run, tmp_path):
    """Runs a check of a schema, one for MySQL and statements that are given as texts."""

    def run_check(schema, mysql_schema, statements, *options):
        given = []
        for option, text in (("schema", schema), ("mysql-schema", mysql_schema), ("statements", statements)):
            (tmp_path / f"{option}.sql").write_text(text)
            given += [f"--{option}", tmp_path / f"{option}.sql"]
        return run(*given, *options)

    return run_check
