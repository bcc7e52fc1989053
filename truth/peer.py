"""What sqlglot of Debian's package makes of a statement, to compare with."""

import logging

import sqlglot

from library import Diagnostic, Translation

NAME = f"sqlglot {sqlglot.__version__}"


class _Ear(logging.Handler):
    """Hears what sqlglot says of what it cannot write."""

    def __init__(self):
        super().__init__()
        self.has_heard = False

    def emit(self, record):
        self.has_heard = True


class Peer:
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
            return Translation("error", None, [Diagnostic("refusal", "error")])
        says = [Diagnostic("warning", "logged")] if self._ear.has_heard else []
        return Translation(0, text, says)
