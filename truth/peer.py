"""What others make of a statement, to compare with: sqlglot of Debian's package, and polyglot from npm."""

import json
import logging
import os
import subprocess

import sqlglot

from library import Diagnostic, Translation

NPM = os.path.join("build", "truth", "npm", "node_modules")
REFUSED = Translation("error", None, [Diagnostic("refusal", "error")])


class _Ear(logging.Handler):
    """Hears what sqlglot says of what it cannot write."""

    def __init__(self):
        super().__init__()
        self.has_heard = False

    def emit(self, record):
        self.has_heard = True


class Sqlglot:
    NAME = f"sqlglot {sqlglot.__version__}"

    def __init__(self):
        self._ear = _Ear()
        logger = logging.getLogger("sqlglot")
        logger.addHandler(self._ear)
        logger.propagate = False

    def translate(self, statement):
        self._ear.has_heard = False
        try:
            text = sqlglot.transpile(statement, read="postgres", write="mysql")[0]
        except (sqlglot.errors.SqlglotError, RecursionError):
            return REFUSED
        says = [Diagnostic("warning", "logged")] if self._ear.has_heard else []
        return Translation(0, text, says)


def _version(package):
    with open(os.path.join(NPM, package, "package.json"), encoding="utf-8") as file:
        return json.load(file)["version"]


class Polyglot:
    NAME = f"polyglot {_version('@polyglot-sql/sdk')}"

    def __init__(self):
        self._node = subprocess.Popen(
            ["node", "truth/polyglot.js"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
            encoding="utf-8", env={**os.environ, "NODE_PATH": os.path.abspath(NPM)},
        )

    def translate(self, statement):
        self._node.stdin.write(json.dumps(statement) + "\n")
        self._node.stdin.flush()
        text = json.loads(self._node.stdout.readline())
        return REFUSED if text is None else Translation(0, text, [])


PEERS = (Sqlglot, Polyglot)
