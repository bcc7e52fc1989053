"""Reads scripts by quillet-script, and fills their placeholders."""

import json
import os
import subprocess
import sys
from collections import namedtuple
from decimal import Decimal

# What is said of how a script is written, not of what its statement gives.
OF_SCRIPTS = {"copied", "comment-dropped"}

# diagnostics: as quillet-script writes them. canonical: the statement as Quillet writes it for PostgreSQL.
# parameters, canonical_parameters: for each placeholder of text, of canonical, the one of the script.
Query = namedtuple("Query", "file line column statement text code diagnostics parameters "
                            "canonical canonical_parameters")


def place(query):
    return f"{query.file}:{query.line}:{query.column}"


def is_copied(query):
    return any(said["id"] == "copied" for said in query.diagnostics)


def announcements(query):
    """The warnings and notes that may tell why the text gives something else."""
    return [said for said in query.diagnostics
            if said["severity"] in ("note", "warning") and said["id"] not in OF_SCRIPTS]


def _lines(program, builder, options, files, given):
    # Both drivers put values in place of %s.
    command = [program, "--format", "json", "--to", builder, "--placeholders-out", "format", *options, "--"]
    made = subprocess.run(command + files, input=given, capture_output=True, check=False)
    if made.returncode not in (0, 1):
        raise SystemExit(made.stderr.decode(errors="replace").rstrip())
    return [json.loads(line) for line in made.stdout.splitlines()]


def queries(program, files, options=()):
    """The statements of the files, with their texts for MySQL."""
    given = sys.stdin.buffer.read() if "-" in files else b""
    translated = _lines(program, "mysql", options, files, given)
    canonical = _lines(program, "postgresql", options, files, given)
    return [
        Query(ours["file"], ours["line"], ours["column"], ours["statement"], ours["text"], ours["code"],
              ours["diagnostics"], ours["parameters"], theirs["text"], theirs["parameters"])
        for ours, theirs in zip(translated, canonical, strict=True)
    ]


class Values:
    """What placeholders stand for: an object of JSON. A name has the value of each placeholder of this
    name; the place of a statement, such as "orders.sql:12", an array for its numbered placeholders or an
    object for its named ones. The place may have the column, too."""

    def __init__(self, file=None):
        self._given = {}
        if file:
            self._given = self._read(file)

    @staticmethod
    def _read(file):
        try:
            with open(file, encoding="utf-8") as opened:
                given = json.load(opened, parse_float=Decimal)
        except OSError as error:
            raise SystemExit(f"truth/check: {file}: {error.strerror}") from None
        except ValueError as error:
            raise SystemExit(f"truth/check: {file} is no JSON: {error}") from None
        if not isinstance(given, dict):
            raise SystemExit(f"truth/check: {file} holds no object")
        return given

    def of(self, query, parameters):
        """The values of the parameters. Raises LookupError, which says what is missing."""
        return [self._value(query, parameter) for parameter in parameters]

    def _value(self, query, parameter):
        short = f"{os.path.basename(query.file)}:{query.line}"
        keys = [place(query), f"{query.file}:{query.line}", f"{short}:{query.column}", short]
        own = next((self._given[key] for key in keys if key in self._given), {})
        try:
            value = own[parameter - 1] if isinstance(parameter, int) else own[parameter]
        except (LookupError, TypeError):
            if isinstance(parameter, int) or parameter not in self._given:
                example = '[...]' if isinstance(parameter, int) else f'{{"{parameter}": ...}}'
                raise LookupError(f'no value for its placeholder {parameter}: write "{short}": {example} '
                                  "in the file of --values") from None
            value = self._given[parameter]
        if isinstance(value, (dict, list)):
            raise LookupError(f"the value of its placeholder {parameter} is neither a number nor a string, "
                              "true, false or null")
        return value
