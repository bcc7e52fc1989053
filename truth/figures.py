"""The figures at the top of docs/differences.md: ours and others' outcomes on the corpus."""

import re
from collections import Counter

import servers
from peer import PEERS
from trial import OUTCOMES, is_announced, is_right, is_wrong

MEANINGS = {
    "same": "the same rows",
    "otherwise": "the same values written otherwise",
    "refused": "no text",
    "rejected": "the server rejects the text",
    "differs": "other rows",
}
SILENT = "rejected or differs, without a word"
COLUMNS = [(whose, settings) for settings in servers.SETTINGS
           for whose in ("Quillet", *(peer.NAME for peer in PEERS))]
PATTERNS = {"ILIKE": r"\bilike\b", "`~*`": r"~\*"}


class Figures:
    def __init__(self):
        self._peers = [peer() for peer in PEERS]
        self._counts = {column: Counter() for column in COLUMNS}
        self._right = {settings: set() for settings in servers.SETTINGS}
        self._wrong = {settings: set() for settings in servers.SETTINGS}

    def add(self, settings, statement, is_volatile, trials):
        ours = trials.run(statement, is_volatile)["mysql"]
        self._count("Quillet", settings, ours)
        for peer in self._peers:
            made = {"mysql": peer.translate(statement)}
            self._count(peer.NAME, settings, trials.judge(statement, made, is_volatile)["mysql"])
        if is_right(ours):
            self._right[settings].add(statement)
        if is_wrong(ours):
            self._wrong[settings].add(statement)

    def _count(self, whose, settings, result):
        count = self._counts[whose, settings]
        count[result.outcome] += 1
        if is_wrong(result) and not is_announced(result):
            count[SILENT] += 1

    def text(self):
        return "\n".join([self._table(), self._advice()])

    def _table(self):
        total = sum(self._counts[COLUMNS[0]][outcome] for outcome in OUTCOMES)
        lines = [
            "## Figures",
            "",
            f"What became of the {total:,} statements of `truth/corpus` on MariaDB: as text of the builder `mysql`,",
            f"and as {' and '.join(peer.NAME for peer in PEERS)} write them from PostgreSQL to MySQL; a warning that",
            "sqlglot logs counts as a word, and polyglot is told to refuse what it knows MySQL to lack. Both write",
            "for newer versions of MySQL, of which MariaDB has most, but not all. The statements are such as Quillet",
            "reads, many of them made to show differences.",
            "",
            "| | " + " | ".join(f"{whose}, {settings} settings" for whose, settings in COLUMNS) + " |",
            "|---" + "|---:" * len(COLUMNS) + "|",
        ]
        for name, title in [*((outcome, f"{outcome}: {MEANINGS[outcome]}") for outcome in MEANINGS),
                            (SILENT, f"of those, {SILENT}")]:
            cells = " | ".join(f"{self._counts[column][name]:,}" for column in COLUMNS)
            lines.append(f"| {title} | {cells} |")
        return "\n".join(lines) + "\n"

    def _advice(self):
        mode, collation = servers.SETTINGS["recommended"]
        better = self._wrong["default"] & self._right["recommended"]
        worse = self._right["default"] & self._wrong["recommended"]
        return f"""\
## Settings

Under these settings of MariaDB, the columns `recommended`, {len(better):,} of the
{len(self._wrong["default"]):,} texts that are rejected or differ are right:

```sql
ALTER DATABASE shop CHARACTER SET utf8mb4 COLLATE {collation}; -- before its tables are made
SET NAMES utf8mb4 COLLATE {collation};                         -- in each session
SET sql_mode = CONCAT(@@sql_mode, '{mode}');
```

{self._losses(worse)}
"""

    @staticmethod
    def _losses(worse):
        if not worse:
            return "No text gets worse."
        kinds = {name: sorted(s for s in worse if re.search(pattern, s, re.IGNORECASE))
                 for name, pattern in PATTERNS.items()}
        kinds["other operators"] = sorted(worse - {s for found in kinds.values() for s in found})
        told = [f"{len(found)} with {name}, such as `{min(found, key=len)}`"
                for name, found in kinds.items() if found]
        return (f"{len(worse)} texts get worse under them: ILIKE and `~*` become LIKE and REGEXP, which this collation\n"
                "makes exact, and LIKE has no escape but one of its ESCAPE:\n\n- " + "\n- ".join(told))
