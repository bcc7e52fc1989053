"""Tells whether two answers have the same rows: in any order, unless the statement orders them."""

import re
from collections import Counter, namedtuple

from values import DIFFERS, OTHERWISE, SAME, Verdict, compare

# Rows are tuples of texts; kinds, one for each column.
Answer = namedtuple("Answer", "rows kinds")


def compare_rows(ours, theirs, our_kinds, their_kinds):
    """The verdict on one pair of rows."""
    if len(ours) != len(theirs):
        return Verdict(DIFFERS, None)
    how = []
    for verdict in map(compare, ours, theirs, our_kinds, their_kinds):
        if verdict.outcome == DIFFERS:
            return verdict
        if verdict.how and verdict.how not in how:
            how.append(verdict.how)
    return Verdict(OTHERWISE if how else SAME, how)


class Comparison:
    """The outcome for two answers, how they are written otherwise, and the first rows that differ."""

    def __init__(self, ours, theirs, groups=None):
        self.how, self.first = [], None
        self._ours, self._theirs = ours, theirs
        if groups is None:
            groups = [(0, max(len(ours.rows), len(theirs.rows)), ours.rows)]
        if len(ours.rows) != len(theirs.rows):
            self._match(ours.rows, theirs.rows)
            if not self.first:
                self.first = (f"{len(ours.rows)} rows", f"{len(theirs.rows)} rows")
        else:
            for begin, end, candidates in groups:
                self._match(candidates, theirs.rows[begin:end], ours.rows[begin:end])
                if self.first:
                    break
        self.outcome = DIFFERS if self.first else OTHERWISE if self.how else SAME

    def _match(self, candidates, rows, shown=None):
        """Takes a partner among the candidates for each row; the same one before one written otherwise."""
        left = list(candidates)
        strangers = []
        for row in rows:
            partner = row if row in left else next((c for c in left if self._fits(c, row)), None)
            if partner is None:
                strangers.append(row)
            else:
                left.remove(partner)
                self._note(partner, row)
        if strangers:
            left = [row for row in left if row in (shown or candidates)] or left
            alike = [row for row in left if row[0] == strangers[0][0]] or left
            self.first = (alike[0] if alike else "no row", strangers[0])
        elif left and len(candidates) > len(rows) and len(self._ours.rows) != len(self._theirs.rows):
            self.first = (left[0], "no row")

    def _fits(self, ours, theirs):
        verdict = compare_rows(ours, theirs, self._ours.kinds, self._theirs.kinds)
        return verdict.outcome != DIFFERS

    def differing_columns(self):
        """The places where the first rows are not alike."""
        ours, theirs = self.first
        verdicts = map(compare, ours, theirs, self._ours.kinds, self._theirs.kinds)
        return [i for i, verdict in enumerate(verdicts) if verdict.outcome == DIFFERS]

    def _note(self, ours, theirs):
        for how in compare_rows(ours, theirs, self._ours.kinds, self._theirs.kinds).how:
            if how not in self.how:
                self.how.append(how)


_STRINGS = re.compile(r"'(?:\\'|[^'])*'|\"[^\"]*\"")
_WINDOW = re.compile(r"\b(limit|offset)\b.*$", re.IGNORECASE | re.DOTALL)
_NUMBER_AFTER = r"\b{}\s+(\d+)"


def _bare(statement):
    """The statement with its strings blanked out, so that words are found in it."""
    return _STRINGS.sub(lambda string: "'" + " " * (len(string[0]) - 2) + "'", statement)


def is_ordered(statement):
    return re.search(r"\border\s+by\b", _bare(statement), re.IGNORECASE) is not None


def tie_groups(statement, width, run):
    """Groups of places whose rows may change places: (begin, end, candidates), counted within the window
    of LIMIT and OFFSET. run executes a statement and returns its rows.

    The statement is run with all columns as further keys, once ascending and once descending: where the
    first so many rows are the same ones in both, a group ends.
    """
    bare = _bare(statement.rstrip("; "))
    window = _WINDOW.search(bare)
    base = statement[: window.start()] if window else statement.rstrip("; ")
    keys = [str(i + 1) for i in range(width)]
    up = run(base + ", " + ", ".join(keys))
    down = run(base + ", " + ", ".join(key + " desc" for key in keys))
    first, count = 0, len(up)
    if window:
        offset = re.search(_NUMBER_AFTER.format("offset"), window[0], re.IGNORECASE)
        limit = re.search(_NUMBER_AFTER.format("limit"), window[0], re.IGNORECASE)
        first = int(offset[1]) if offset else 0
        count = int(limit[1]) if limit else count
    groups, begin, balance = [], 0, Counter()
    for place, (a, b) in enumerate(zip(up, down), 1):
        balance[a] += 1
        balance[b] -= 1
        if not any(balance.values()):
            shown = max(begin - first, 0), min(place - first, count)
            if shown[0] < shown[1]:
                groups.append((*shown, up[begin:place]))
            begin = place
    return groups
