"""Writes what became of the tables and queries."""

import json
import unicodedata
from collections import Counter

from trial import is_right

from own.comparing import COPIED, OUTCOMES, is_silent, is_uncertain, is_without_text, is_wrong
from own.queries import announcements, place
from values import DIFFERS

LONGEST_CELL = 30
FEW_COLUMNS = 3
INDENT = "    "


def write_tables(tables):
    for table in tables:
        if table.outcome == DIFFERS:
            print(f"table {table.name}: differs: {table.detail}")
        elif table.outcome is None:
            print(f"table {table.name}: not compared: {table.detail}")


def write_finding(finding, most_rows):
    """The query's place and outcome, and if that is not right all that helps."""
    query = finding.query
    told = finding.outcome
    if is_wrong(finding):
        told += ", announced" if announcements(query) else ", without a word"
    print(f"{place(query)}: {told}" + (f": {finding.detail}" if finding.detail else ""))
    if is_right(finding) or finding.outcome == COPIED:
        return
    for text in (query.statement, query.text):
        print("\n".join(INDENT + line for line in (text or "").splitlines()), end="\n" if text else "")
    if finding.comparison:
        _write_rows(finding, most_rows)
    _write_diagnostics(query)
    print()


def _write_diagnostics(query):
    """What announced it: each id once, where it is said first."""
    told = set()
    for said in query.diagnostics:
        is_reason = said in announcements(query) or said["severity"] in ("refusal", "error")
        if is_reason and said["id"] not in told:
            told.add(said["id"])
            where = f"{said['line']}:{said['column']}"
            print(f"{INDENT}{where}: {said['severity']}: {said['message']} [{said['id']}]")
            if said["hint"]:
                print(f"{INDENT}hint: {said['hint']}")


def _write_rows(finding, most_rows):
    """The rows that differ, PostgreSQL's on the left and MariaDB's on the right."""
    unlike = finding.comparison.unlike[:most_rows]
    if not unlike:
        print(f"{INDENT}{finding.comparison.first[0]} but {finding.comparison.first[1]}")
        return
    keep = _columns_to_show(finding.comparison, unlike, len(finding.names))
    names = [_cell(finding.names[i]) for i in keep]
    columns = [_block([names, *(_cells(row, keep) for row in side)], len(names)) for side in zip(*unlike)]
    width = max(map(_width, ["PostgreSQL", *columns[0]]))
    for ours, theirs in zip(["PostgreSQL", *columns[0]], ["MariaDB", *columns[1]]):
        print(f"{INDENT}{_padded(ours, width)}  |  {theirs}".rstrip())
    more = len(finding.comparison.unlike) - len(unlike)
    if more:
        print(f"{INDENT}and {more} more row{'s' * (more != 1)}")


def _columns_to_show(comparison, pairs, count):
    """All of a few; of many the first one and those that differ."""
    alone = any(ours is None or theirs is None or len(ours) != len(theirs) for ours, theirs in pairs)
    if count <= FEW_COLUMNS or alone:
        return range(count)
    return sorted({0}.union(*(comparison.differing_columns(*pair) for pair in pairs)))


def _cells(row, keep):
    return row and ["NULL" if row[i] is None else _cell(row[i]) for i in keep if i < len(row)]


def _cell(value):
    text = "".join(c if c.isprintable() else c.encode("unicode_escape").decode() for c in value)
    return text if len(text) <= LONGEST_CELL else text[: LONGEST_CELL - 3] + "..."


def _block(rows, count):
    """Rows of cells as lines; a missing one is a dash."""
    widths = [max((_width(row[i]) for row in rows if row and i < len(row)), default=0) for i in range(count)]
    return ["  ".join(map(_padded, row, widths)).rstrip() if row else "no such row" for row in rows]


def _width(text):
    return sum(1 + (unicodedata.east_asian_width(c) in "WF") for c in text if not unicodedata.combining(c))


def _padded(text, width):
    return text + " " * (width - _width(text))


def write_summary(findings):
    """How many queries of each file have which outcome."""
    counts = {}
    for finding in findings:
        counts.setdefault(finding.query.file, Counter())[finding.outcome] += 1
    counts["all"] = sum(counts.values(), Counter())
    shown = [outcome for outcome in OUTCOMES if counts["all"][outcome]]
    width = max(map(_width, counts))
    print(" " * width + "".join(f"{name:>11}" for name in shown))
    for name, count in counts.items():
        print(_padded(name, width) + "".join(f"{count[outcome]:>11}" for outcome in shown))


def verdict(tables, findings, is_strict):
    """What fails, and what else is not right."""
    silent = sum(map(is_silent, findings))
    announced = sum(map(is_wrong, findings)) - silent
    counts = {
        "with other rows": (sum(table.outcome == DIFFERS for table in tables), "table", True),
        "wrong without a word": (silent, "query", True),
        "that could not be compared": (sum(map(is_uncertain, findings)), "query", True),
        "wrong as announced": (announced, "query", is_strict),
        "without a text": (sum(map(is_without_text, findings)), "query", is_strict),
    }
    failures, rest = ([f"{_count(number, what)} {told}" for told, (number, what, fails) in counts.items()
                       if number and fails is wanted] for wanted in (True, False))
    return failures, rest


def _count(number, what):
    plural = {"query": "queries"}.get(what, what + "s")
    return f"{number} {what if number == 1 else plural}"


def dump(name, tables, findings):
    with open(name, "w", encoding="utf-8") as file:
        json.dump({
            "tables": [table._asdict() for table in tables],
            "queries": [{
                "file": finding.query.file, "line": finding.query.line, "statement": finding.query.statement,
                "text": finding.query.text, "outcome": finding.outcome, "detail": finding.detail,
                "rows": finding.comparison.unlike if finding.comparison else [],
                "diagnostics": finding.query.diagnostics,
            } for finding in findings],
        }, file, indent=1)
