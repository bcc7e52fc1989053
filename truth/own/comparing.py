"""Runs one query on PostgreSQL and its text on MariaDB, and says what became of it."""

import time
from collections import namedtuple

from rows import Comparison, is_ordered
from sessions import Failure, changed_table
from trial import INVALID, REFUSED, REJECTED, groups_of, shapes, shortened
from values import DIFFERS, OTHERWISE, SAME

from own.queries import announcements, is_copied

COPIED, UNREAD, UNCHECKED = "copied", "not read", "unchecked"
OUTCOMES = (SAME, OTHERWISE, REFUSED, UNREAD, REJECTED, DIFFERS, INVALID, UNCHECKED, COPIED)

# detail: how it is written otherwise, a server's error, or why it was not compared. comparison: of two
# answers, whose columns have these names.
Finding = namedtuple("Finding", "query outcome detail comparison names", defaults=[None, None, ()])

NOT_TRANSLATABLE = -3


def is_wrong(finding):
    return finding.outcome in (DIFFERS, REJECTED)


def is_silent(finding):
    return is_wrong(finding) and not announcements(finding.query)


def is_uncertain(finding):
    """Whether nobody knows if the text is right."""
    return finding.outcome in (INVALID, UNCHECKED)


def is_without_text(finding):
    return finding.outcome in (REFUSED, UNREAD)


class Checks:
    def __init__(self, databases, values):
        self._postgresql, self._mariadb = databases.postgresql, databases.mariadb
        self._values = values

    def run(self, query):
        if is_copied(query):
            return Finding(query, COPIED)
        if query.text is None:
            return Finding(query, REFUSED if query.code == NOT_TRANSLATABLE else UNREAD)
        try:
            return self._compare(query, *self._texts(query))
        except LookupError as missing:
            return Finding(query, UNCHECKED, str(missing))
        except Failure as failure:
            return Finding(query, UNCHECKED, shortened(str(failure)))

    def _texts(self, query):
        """What runs on PostgreSQL, the same as Quillet writes it, and what runs on MariaDB."""
        canonical = self._postgresql.filled(
            query.canonical, self._values.of(query, query.canonical_parameters))
        text = self._mariadb.filled(query.text, self._values.of(query, query.parameters))
        return canonical if query.parameters else query.statement, canonical, text

    def _compare(self, query, statement, canonical, text):
        table = changed_table(canonical)
        if table:
            self._mariadb.reset_numbers(changed_table(text))
        self._mariadb.set_clock(time.time())
        original = self._original(statement, table)
        if isinstance(original, Failure) and not original.is_of_values:
            return Finding(query, INVALID, f"PostgreSQL: {shortened(str(original))}")
        answer = _ask(self._mariadb, text)
        if isinstance(answer, Failure):
            if isinstance(original, Failure) and answer.is_of_values:
                return Finding(query, SAME, "an error in both")
            return Finding(query, REJECTED, f"MariaDB: {shortened(str(answer))}")
        if isinstance(original, Failure):
            return Finding(query, DIFFERS, f"PostgreSQL: {shortened(str(original))}; "
                                           f"MariaDB: no error")
        groups = groups_of(canonical, original, self._postgresql) if is_ordered(canonical) else None
        comparison = Comparison(original, answer, groups)
        if not comparison.first:
            return Finding(query, comparison.outcome, ", ".join(comparison.how) or None)
        if _look_alike(original, answer) and self._original(statement, table) != original:
            return Finding(query, OTHERWISE, "other values at every run")
        return Finding(query, DIFFERS, None, comparison, original.names)

    def _original(self, statement, table):
        if table:
            self._postgresql.reset_numbers(table)
        return _ask(self._postgresql, statement)


def _look_alike(original, answer):
    return not Comparison(shapes(original, original.kinds), shapes(answer, original.kinds)).first


def _ask(session, text):
    """The answer, or a failure of the statement; that of a limit is raised."""
    try:
        return session.ask(text)
    except Failure as failure:
        if failure.is_of_limit:
            raise
        return failure
