"""Checks the translations of a user's own queries; truth/check installs and builds first and starts this."""

import argparse
import os
import signal
import sys

import servers
from own import writing
from own.comparing import COPIED, Checks
from own.databases import Databases
from own.queries import Values, queries
from trial import is_right

PASSED, FAILED, UNUSABLE = 0, 1, 2


def arguments(given):
    parser = argparse.ArgumentParser(
        prog="truth/check",
        description="Runs queries on a PostgreSQL and their translations on a MariaDB, both started for this "
        "and stopped at the end, and shows where their rows differ.",
        epilog="Status: 0, or 1 if a text is rejected or gives other rows and no warning or note says so, "
        "if a table has other rows, or if a query could not be compared; 2 for what cannot be used.",
    )
    parser.add_argument("--schema", metavar="FILE", nargs="+", required=True,
                        help="tables and rows for PostgreSQL, such as pg_dump writes")
    parser.add_argument("--mysql-schema", metavar="FILE", nargs="+", required=True,
                        help="the tables for MySQL; those without rows get PostgreSQL's")
    parser.add_argument("--statements", metavar="FILE", nargs="+", required=True, help="scripts of queries")
    parser.add_argument("--placeholders", metavar="STYLE", help="as of quillet-script")
    parser.add_argument("--values", metavar="FILE", help="what placeholders stand for, as JSON")
    parser.add_argument("--settings", choices=servers.SETTINGS, default="default", help="of MariaDB")
    parser.add_argument("--strict", action="store_true", help="fail for what is announced or has no text, too")
    parser.add_argument("--all", action="store_true", help="show the queries that are right, too")
    parser.add_argument("--show", metavar="N", type=int, default=5,
                        help="so many rows of each that differs (%(default)s)")
    parser.add_argument("--seconds", metavar="N", type=int, default=servers.STATEMENT_SECONDS,
                        help="that a statement may take (%(default)s)")
    parser.add_argument("--dump", metavar="FILE", help="write every result there, as JSON")
    return parser.parse_args(given)


def check(options, running):
    """Checks on servers that run, writes what became of all, and returns the status."""
    values = Values(options.values)
    asked = queries(os.environ["QUILLET_SCRIPT"], options.statements,
                    ["--placeholders", options.placeholders] if options.placeholders else [])
    findings = []
    with Databases(running, options.schema, options.mysql_schema, options.seconds) as databases:
        checks = Checks(databases, values)
        writing.write_tables(databases.tables)
        for query in asked:
            finding = checks.run(query)
            findings.append(finding)
            if options.all or not (is_right(finding) or finding.outcome == COPIED):
                writing.write_finding(finding, options.show)
    writing.write_summary(findings)
    if options.dump:
        writing.dump(options.dump, databases.tables, findings)
    failures, rest = writing.verdict(databases.tables, findings, options.strict)
    if all(finding.outcome == COPIED for finding in findings):
        failures.append("no query to compare")
    if failures:
        print("FAILED: " + ", ".join(failures))
    if rest or not failures:
        print(("besides: " if failures else "passed: ") + (", ".join(rest) or "all gives the same"))
    return FAILED if failures else PASSED


def interrupted(*_):
    raise KeyboardInterrupt


def main():
    sys.stdout.reconfigure(encoding="utf-8")
    signal.signal(signal.SIGTERM, interrupted)
    options = arguments(sys.argv[1:])
    try:
        with servers.Servers(options.settings) as running:
            return check(options, running)
    except BrokenPipeError:  # its reader has seen enough
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
    except KeyboardInterrupt:
        print("truth/check: interrupted", file=sys.stderr)
    except SystemExit as told:
        print(told, file=sys.stderr)
    return UNUSABLE


if __name__ == "__main__":
    sys.exit(main())
