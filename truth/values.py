"""Tells whether two servers mean the same by a value: `same`, `otherwise` (the same, written otherwise)
or `differs`. Both hand values over as their texts, None for NULL."""

import re
from collections import namedtuple
from decimal import Decimal, InvalidOperation

# What a column holds; of PostgreSQL by the type's name, of MariaDB by the protocol's code.
POSTGRESQL_KINDS = {
    16: "boolean",
    17: "bytes",
    20: "integer", 21: "integer", 23: "integer",
    700: "real", 701: "double",
    1700: "numeric",
    1042: "char",
    1082: "date", 1083: "time", 1266: "time", 1114: "timestamp", 1184: "timestamp",
    1186: "interval",
}
MARIADB_KINDS = {
    1: "integer", 2: "integer", 3: "integer", 8: "integer", 9: "integer",
    4: "real", 5: "double",
    246: "numeric",
    10: "date", 11: "time", 7: "timestamp", 12: "timestamp",
}
NUMBERS = {"integer", "numeric", "double", "real"}
MOMENTS = {"date", "timestamp", "time"}

SAME, OTHERWISE, DIFFERS = "same", "otherwise", "differs"
Verdict = namedtuple("Verdict", "outcome how")
_same = Verdict(SAME, None)
_differs = Verdict(DIFFERS, None)

# A quotient has this many decimals in MariaDB, where PostgreSQL has more.
FEWEST_ROUNDED = 4
DOUBLE_DIGITS, REAL_DIGITS = Decimal("1e-12"), Decimal("1e-5")
NEARLY_ZERO = Decimal("1e-15")


def compare(ours, theirs, our_kind, their_kind):
    """Compares PostgreSQL's value with the one of either server."""
    if ours == theirs:
        return _same
    if ours is None or theirs is None:
        return _differs
    if our_kind == "boolean":
        return _compare_booleans(ours, theirs)
    if our_kind in NUMBERS:
        return _compare_numbers(ours, theirs, our_kind, their_kind)
    if our_kind in MOMENTS:
        return _compare_moments(ours, theirs)
    if our_kind == "interval":
        return _compare_intervals(ours, theirs)
    if our_kind == "bytes" and text_of_bytes(bytes.fromhex(ours.removeprefix("\\x"))) == theirs:
        return Verdict(OTHERWISE, "bytes")
    if our_kind == "char" and ours.rstrip(" ") == theirs.rstrip(" "):
        return Verdict(OTHERWISE, "trailing blanks of char")
    return _differs


def rough(value, kind):
    """A value to sort by: a number before any text; True is 1."""
    if value is None:
        return 0, 0.0, ""
    if kind in NUMBERS:
        return 0, float(value), ""
    if value.lower() in ("t", "f", "true", "false"):
        return 0, float(value[0] in "tT"), ""
    return 1, 0.0, value


def text_of_bytes(value):
    """A value of a binary type as a text; what is no text is shown as it is."""
    return value.decode("utf-8", errors="backslashreplace")


def _compare_booleans(ours, theirs):
    number, word = ("1", "true") if ours == "t" else ("0", "false")
    if theirs == number:
        return Verdict(OTHERWISE, "truth value as 1 or 0")
    if theirs.lower() == word:
        return Verdict(OTHERWISE, "truth value as a word")
    return _differs


def _compare_numbers(ours, theirs, our_kind, their_kind):
    try:
        a, b = Decimal(ours), Decimal(theirs)
    except InvalidOperation:
        return _differs
    if not a.is_finite() or not b.is_finite():
        return _differs
    if a == b:
        if "e" in ours.lower() or "e" in theirs.lower():
            return Verdict(OTHERWISE, "exponent")
        return Verdict(OTHERWISE, "number of decimals")
    kinds, largest = {our_kind, their_kind}, max(abs(a), abs(b))
    if kinds & {"double", "real"}:
        tolerance = REAL_DIGITS if "real" in kinds else DOUBLE_DIGITS
        if abs(a - b) <= tolerance * largest or largest < NEARLY_ZERO:
            return Verdict(OTHERWISE, "float digits")
    decimals = min(_decimals(a), _decimals(b))
    if decimals >= FEWEST_ROUNDED and abs(a - b) <= Decimal(1).scaleb(-decimals):
        return Verdict(OTHERWISE, f"rounded to {decimals} decimals")
    return _differs


def _decimals(number):
    return max(0, -number.as_tuple().exponent)


_MOMENT = re.compile(
    r"(?P<date>\d{4}-\d\d-\d\d)?"
    r"(?:(?:^|(?<=\d) )(?P<time>\d\d:\d\d:\d\d)(?P<fraction>\.\d+)?(?P<zone>[+-]\d\d(?::\d\d)?)?)?"
)


def _compare_moments(ours, theirs):
    a, b = _MOMENT.fullmatch(ours), _MOMENT.fullmatch(theirs)
    if not a or not b or a["date"] != b["date"]:
        return _differs
    how = []
    if (a["time"] or "00:00:00") != (b["time"] or "00:00:00"):
        return _differs
    if (a["time"] is None) != (b["time"] is None):
        how.append("date with midnight" if b["time"] else "midnight as a date")
    if (a["fraction"] or ".").rstrip("0") != (b["fraction"] or ".").rstrip("0"):
        return _differs
    if a["fraction"] != b["fraction"]:
        how.append("fraction of zeros")
    if a["zone"] != b["zone"]:
        if a["zone"] and b["zone"]:
            return _differs
        how.append("without the zone" if a["zone"] else "with a zone")
    return Verdict(OTHERWISE, ", ".join(how))


_INTERVAL_PART = re.compile(r"(-?\+?\d+) (year|mon|day)s?")
_CLOCK = re.compile(r"(?P<sign>[+-])?(?P<h>\d+):(?P<m>\d\d):(?P<s>\d\d(?:\.\d+)?)")


def _seconds(clock):
    parts = _CLOCK.fullmatch(clock)
    if not parts:
        return None
    count = int(parts["h"]) * 3600 + int(parts["m"]) * 60 + Decimal(parts["s"])
    return -count if parts["sign"] == "-" else count


def _compare_intervals(ours, theirs):
    """MariaDB has times, also longer ones than a day, and no months."""
    total, rest = Decimal(0), ours
    for count, unit in _INTERVAL_PART.findall(ours):
        if unit != "day":
            return _differs
        total += int(count) * 86400
    rest = _INTERVAL_PART.sub("", ours).strip()
    seconds = _seconds(rest) if rest else Decimal(0)
    others = _seconds(theirs)
    if seconds is None or others is None or total + seconds != others:
        return _differs
    return Verdict(OTHERWISE, "interval as a time")


def shape(value, our_kind):
    """What a value looks like, for those that are others at every run."""
    if value is None:
        return None
    if our_kind == "boolean" and value.lower() in ("t", "f", "1", "0", "true", "false"):
        return "truth value"
    for name, pattern in _SHAPES:
        if re.fullmatch(pattern, value):
            return name
    return "text"


_SHAPES = [
    ("number", r"-?\d+(\.\d+)?(e[+-]?\d+)?"),
    ("date", r"\d{4}-\d\d-\d\d"),
    ("timestamp", r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d(\.\d+)?([+-]\d\d)?"),
    ("time", r"\d\d:\d\d:\d\d(\.\d+)?([+-]\d\d)?"),
]
