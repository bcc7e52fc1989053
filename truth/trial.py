"""Runs one statement and its texts, and says what became of each text."""

from collections import namedtuple

from rows import Answer, Comparison, is_ordered, tie_groups
from sessions import Failure
from values import DIFFERS, OTHERWISE, SAME, shape

REFUSED, REJECTED, INVALID = "refused", "rejected", "invalid"
OUTCOMES = (SAME, OTHERWISE, REFUSED, REJECTED, DIFFERS, INVALID)
BUILDERS = ("postgresql", "mysql")

SAMPLE_LENGTH = 70

# detail: how it is written otherwise, the code of a refusal, the server's error, or the two samples.
# says: the ids of the diagnostics, each with its severity. text: the library's.
Result = namedtuple("Result", "outcome detail says text")


def is_right(result):
    return result.outcome in (SAME, OTHERWISE)


def is_wrong(result):
    return result.outcome in (DIFFERS, REJECTED)


def is_announced(result):
    return any(said.severity in ("note", "warning", "refusal") for said in result.says)


def is_warned(result):
    return any(said.severity in ("note", "warning") for said in result.says)


class Trials:
    def __init__(self, library, postgresql, mariadb):
        self._library = library
        self._sessions = {"postgresql": postgresql, "mysql": mariadb}
        self._postgresql, self._mariadb = postgresql, mariadb

    def run(self, statement, is_volatile=False):
        """The results by builder. Of volatile values only what they look like is compared."""
        made = {builder: self._library.translate(statement, builder) for builder in BUILDERS}
        return self.judge(statement, made, is_volatile)

    def judge(self, statement, made, is_volatile=False):
        """The results of translations, by the builders they are of."""
        self._mariadb.pin_clock(not is_volatile)
        original = self.ask("postgresql", statement)
        groups = None
        if isinstance(original, Answer) and not is_volatile and is_ordered(statement):
            groups = groups_of(statement, original, self._postgresql)
        our_kinds = original.kinds if is_volatile and isinstance(original, Answer) else None
        if our_kinds:
            original = shapes(original, our_kinds)
        results = {}
        for builder, translation in made.items():
            outcome, detail = self._judge(original, translation, builder, groups, our_kinds)
            results[builder] = Result(outcome, detail, translation.says, translation.text)
        return results

    def ask(self, builder, text):
        """The answer of a builder's server, or its failure."""
        try:
            return self._sessions[builder].ask(text)
        except Failure as failure:
            return failure

    def _judge(self, original, made, builder, groups, our_kinds):
        if isinstance(original, Failure) and not original.is_of_values:
            return INVALID, shortened(str(original))
        if made.text is None:
            return REFUSED, f"code {made.code}"
        answer = self.ask(builder, made.text)
        if our_kinds:
            answer = shapes(answer, our_kinds)
        if isinstance(answer, Failure):
            if isinstance(original, Failure) and answer.is_of_values:
                return SAME, "an error in both"
            return REJECTED, shortened(str(answer))
        if isinstance(original, Failure):
            first = sample(answer.rows[0]) if answer.rows else "no row"
            return DIFFERS, f"{shortened(str(original))} but {first}"
        comparison = Comparison(original, answer, groups)
        if comparison.first:
            return DIFFERS, both(comparison)
        return comparison.outcome, ", ".join(comparison.how) or None


def groups_of(statement, original, postgresql):
    """The groups of places of an ordered statement's rows, as tie_groups tells them."""
    try:
        return tie_groups(statement, len(original.kinds), lambda text: postgresql.ask(text).rows)
    except Failure:
        return [(i, i + 1, [row]) for i, row in enumerate(original.rows)]


def shapes(answer, our_kinds):
    """What the values of an answer look like."""
    if isinstance(answer, Failure) or len(answer.kinds) != len(our_kinds):
        return answer
    return Answer([tuple(map(shape, row, our_kinds)) for row in answer.rows], ["text"] * len(our_kinds))


def shortened(text, length=SAMPLE_LENGTH * 2):
    text = "".join(c if c.isprintable() else c.encode("unicode_escape").decode() for c in text)
    return text if len(text) <= length else text[: length - 3] + "..."


def sample(row):
    if isinstance(row, str):
        return row
    return shortened("(" + ", ".join("NULL" if v is None else f"'{v}'" for v in row) + ")")


def both(comparison):
    """The two rows; of long ones only the first column and those that are not alike."""
    ours, theirs = comparison.first
    if isinstance(ours, tuple) and isinstance(theirs, tuple) and len(ours) == len(theirs) > 3:
        keep = sorted({0, *comparison.differing_columns(ours, theirs)})
        ours = tuple(ours[i] for i in keep)
        theirs = tuple(theirs[i] for i in keep)
    return f"{sample(ours)} but {sample(theirs)}"
