"""Tells whether two answers have the same rows: in any order, unless the statement orders them."""

import itertools
import re
from collections import Counter, namedtuple

from values import DIFFERS, OTHERWISE, SAME, Verdict, compare, rough

# Rows are tuples of texts; kinds and names, one for each column.
Answer = namedtuple("Answer", "rows kinds names", defaults=[()])


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


ENOUGH_STRANGERS = 100
FEW_ROWS = 100


class Comparison:
    """The outcome for two answers, how they are written otherwise, and the rows that differ: the first two,
    and pairs of which one may be None."""

    def __init__(self, ours, theirs, groups=None):
        self.how, self.first, self.unlike = [], None, []
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
                if len(self.unlike) > ENOUGH_STRANGERS:
                    break
        self.outcome = DIFFERS if self.first else OTHERWISE if self.how else SAME

    def _match(self, candidates, rows, shown=None):
        """Takes a partner among the candidates for each row; the same one before one written otherwise."""
        common = Counter(candidates) & Counter(rows)
        left, others = _without(candidates, common), _without(rows, common)
        if len(others) > FEW_ROWS:  # each finds its partner among the first ones then
            left.sort(key=lambda row: _rough(row, self._ours.kinds))
            others.sort(key=lambda row: _rough(row, self._theirs.kinds))
        strangers = []
        for row in others:
            partner = next((c for c in left if self._fits(c, row)), None)
            if partner is None:
                strangers.append(row)
                if len(strangers) > ENOUGH_STRANGERS:
                    break
            else:
                left.remove(partner)
                self._note(partner, row)
        has_more = len(self._ours.rows) > len(self._theirs.rows)
        if strangers:
            wanted = set(shown or candidates)
            left = [row for row in left if row in wanted] or left
            alike = [row for row in left if row[0] == strangers[0][0]] or left
            self.first = self.first or (alike[0] if alike else "no row", strangers[0])
        elif left and has_more:
            self.first = self.first or (left[0], "no row")
        if strangers or has_more:
            self.unlike += _pairs(left, strangers, has_more)

    def _fits(self, ours, theirs):
        verdict = compare_rows(ours, theirs, self._ours.kinds, self._theirs.kinds)
        return verdict.outcome != DIFFERS

    def differing_columns(self, ours, theirs):
        """The places where two rows are not alike."""
        verdicts = map(compare, ours, theirs, self._ours.kinds, self._theirs.kinds)
        return [i for i, verdict in enumerate(verdicts) if verdict.outcome == DIFFERS]

    def _note(self, ours, theirs):
        for how in compare_rows(ours, theirs, self._ours.kinds, self._theirs.kinds).how:
            if how not in self.how:
                self.how.append(how)


def _rough(row, kinds):
    """A key by which the same values have about the same place, however they are written."""
    return [rough(value, kind) for value, kind in zip(row, kinds)]


def _without(rows, counts):
    """The rows but for so many of each."""
    counts, kept = Counter(counts), []
    for row in rows:
        if counts[row]:
            counts[row] -= 1
        else:
            kept.append(row)
    return kept


def _pairs(left, strangers, has_more):
    """Each stranger beside a row that begins likewise, as far as there is one; then what is left."""
    left, pairs, alone = list(left), [], []
    for row in strangers:
        partner = next((c for c in left if c[0] == row[0]), None)
        if partner is None:
            alone.append(row)
        else:
            left.remove(partner)
            pairs.append((partner, row))
    return pairs + list(itertools.zip_longest(left if has_more else left[: len(alone)], alone))


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
