"""The last part of docs/migrating.md: what to write instead of what is refused or not read.

truth/refusals.txt has the statements and says how it is written."""

import os
import re
from collections import namedtuple

from notices import STRINGS, joined
from rows import Answer
from sections import LONGEST_ANSWER, SERVERS, all_rows, answer_text, are_same, plain
from sessions import changed_table

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "refusals.txt")
REASONS = os.path.join("lib", "mysql", "quillet_mysql_errors.def")
README = "README.md"
PAGE = os.path.join("docs", "migrating.md")
BEGIN = "## Refusals, one by one\n"

OTHER_ROWS, MYSQL_ALONE, BY_HAND = MARKS = "(other rows)", "(MySQL alone)", "(by hand)"
NOTES = {"": "", **{mark: f" -- {mark[1:-1]}" for mark in MARKS}}
INVALID_QUERY = -2
WIDTH = 12

Reason = namedtuple("Reason", "id message hint")
# was: the statement of the rewrites, or None.
Rewrite = namedtuple("Rewrite", "was statements mark")
Example = namedtuple("Example", "name refused rewrites advice")

_ENTRY = re.compile(rf'^ERROR\((\w+),\s*(-?\d+),\s*({STRINGS}),\s*(no_hint|{STRINGS})\)', re.MULTILINE)


def reasons():
    """The reasons of refusals, by their ids."""
    with open(REASONS, encoding="utf-8") as file:
        text = file.read()
    found = _ENTRY.findall(text)
    if len(found) != len(re.findall(r"^ERROR\(", text, re.MULTILINE)):
        raise SystemExit(f"truth/run: {REASONS} has an entry that cannot be read")
    made = [Reason("refused-" + name.lower().replace("_", "-"), joined(message), joined(hint))
            for name, code, message, hint in found if int(code)]
    return {reason.id: reason for reason in made}


def unread():
    """What README.md lists as not read."""
    with open(README, encoding="utf-8") as file:
        table = re.search(r"^\| not read \|.*\n\|-.*\n((?:\|.*\n)+)", file.read(), re.MULTILINE)[1]
    return [name for name in re.findall(r"^\| ([^|]*) \|", table, re.MULTILINE) if name.strip()]


def examples():
    """Those of truth/refusals.txt, by their names."""
    found, example = {}, None
    with open(EXAMPLES, encoding="utf-8") as file:
        for line in file.read().splitlines():
            if not line or line.startswith("--"):
                continue
            if not line.startswith(" "):
                if line in found:
                    raise SystemExit(f"{EXAMPLES} has {line} twice")
                example = found[line] = Example(line, [], [], [])
                continue
            sign, text = line.strip().split(" ", 1)
            if sign == "<":
                example.refused.append(text)
            elif sign == "=":
                example.advice.append(text)
            else:
                mark = next((mark for mark in MARKS if text.startswith(mark)), "")
                was = example.refused[-1] if example.refused else None
                example.rewrites.append(Rewrite(was, text.removeprefix(mark).strip().split("; "), mark))
    return found


class Refusals:
    def __init__(self, library):
        self._library = library
        self._examples = examples()
        self._blocks = {}
        self._failures = []
        names = [*reasons(), *unread()]
        self._failures += [f"{name} has no example" for name in names if name not in self._examples]
        self._failures += [f"{name} is an example of nothing" for name in self._examples if name not in names]

    def gather(self, trials):
        for example in self._examples.values():
            self._blocks[example.name] = self._gather(example, trials)

    def failures(self):
        return self._failures

    def _gather(self, example, trials):
        blocks, shown = [], set()
        for rewrite in example.rewrites:
            self._check(example, rewrite, trials)
            lines = []
            if rewrite.was and rewrite.was not in shown:
                lines = self._refused(example, rewrite.was, trials)
            shown.add(rewrite.was)
            blocks.append("\n".join(lines + self._lines(example, rewrite, trials)))
        alone = [statement for statement in example.refused if statement not in shown]
        blocks += ["\n".join(self._refused(example, statement, trials)) for statement in alone]
        if not example.advice and (alone or not example.rewrites):
            self._fail(example, "says nothing of what to do")
        return "\n\n".join(blocks)

    def _fail(self, example, what):
        self._failures.append(f"{example.name} {what}")

    def _refused(self, example, statement, trials):
        """The lines of a statement without a text, which is checked."""
        made = self._library.translate(statement, "mysql")
        if made.text is not None:
            self._fail(example, f"is shown with what has a text: {statement}")
        is_said = any(said.id == example.name for said in made.says)
        if not (is_said if example.name in reasons() else made.code == INVALID_QUERY):
            self._fail(example, f"is no reason for: {statement}")
        return [statement, self._line(example, "postgresql", statement, statement, trials)]

    def _texts(self, rewrite):
        """What runs on MariaDB; None for each that has no text."""
        if rewrite.mark == BY_HAND:
            return rewrite.statements
        return [self._library.translate(statement, "mysql").text for statement in rewrite.statements]

    def _check(self, example, rewrite, trials):
        told = "; ".join(rewrite.statements)
        texts = self._texts(rewrite)
        if None in texts:
            self._fail(example, f"has a rewrite without a text: {told}")
            return
        ours = all_rows([trials.ask("postgresql", statement) for statement in rewrite.statements])
        theirs = all_rows([trials.ask("mysql", text) for text in texts])
        original = trials.ask("postgresql", rewrite.was) if rewrite.was else ours
        if rewrite.mark == MYSQL_ALONE and isinstance(ours, Answer):
            self._fail(example, f"has a rewrite that PostgreSQL takes, too: {told}")
        if rewrite.mark in (MYSQL_ALONE, BY_HAND):
            ours = original
        if not _is_clock(told) and not are_same(ours, theirs):
            self._fail(example, f"has a rewrite with other rows on MariaDB: {told}")
        if isinstance(original, Answer) and are_same(original, ours) == (rewrite.mark == OTHER_ROWS):
            self._fail(example, f"has other rows than its statement, or is wrongly said to: {told}")

    def _lines(self, example, rewrite, trials):
        lines = []
        note = NOTES[rewrite.mark]
        for statement, text in zip(rewrite.statements, self._texts(rewrite)):
            lines.append(statement + note)
            if rewrite.mark not in (MYSQL_ALONE, BY_HAND):
                lines.append(self._line(example, "postgresql", statement, statement, trials))
            if rewrite.mark != BY_HAND:
                lines.append(text or "")
            lines.append(self._line(example, "mysql", statement, text or "", trials))
        return lines

    def _line(self, example, server, statement, text, trials):
        """A server's answer: of a changed table the rows that are new in it, and no time of the day."""
        answer = trials.ask(server, text)
        table = changed_table(text)
        if isinstance(answer, Answer) and table:
            before = trials.ask(server, f"SELECT * FROM {table}")
            answer = Answer([row for row in answer.rows if row not in before.rows], answer.kinds)
        told = "the time now" if _is_clock(statement) else answer_text(answer, statement)
        if len(told) > LONGEST_ANSWER and isinstance(answer, Answer):
            self._fail(example, f"is shown with a long answer: {statement}")
        return f"    {SERVERS[server]:<{WIDTH}}{told}"

    def page(self, recorded):
        """The page: what is written by hand stays."""
        told = [self._section(name, f"{reason.message}." + (f" Hint: {reason.hint}." if reason.hint else ""))
                for name, reason in reasons().items()]
        told += ["## What is not read, one by one\n", *(self._section(name, "") for name in unread())]
        return recorded.partition(BEGIN)[0] + "\n".join([BEGIN, *told]).rstrip("\n") + "\n"

    def _section(self, name, said):
        example = self._examples.get(name, Example(name, [], [], []))
        lines = [f"### {name}", ""]
        if said:
            lines += [plain(said), ""]
        if self._blocks.get(name):
            lines += ["```text", self._blocks[name], "```", ""]
        for advice in example.advice:
            lines += [advice, ""]
        return "\n".join(lines)


def _is_clock(statement):
    return "timeofday" in statement or "now()" in statement

