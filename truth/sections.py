"""A section of docs/differences.md for each warning and note: its example on both servers."""

from examples import examples
from notices import LISTS, notices
from rows import Answer, Comparison, is_ordered
from sessions import Failure, changed_table
from trial import is_right, sample, shortened
from values import DIFFERS

LONGEST_ANSWER = 110
SERVERS = {"mysql": "MariaDB", "postgresql": "PostgreSQL"}
WIDTH = 16


def answer_text(answer, statement):
    """An answer in a line."""
    if isinstance(answer, Failure):
        return "error: " + shortened(str(answer))
    rows = [sample(row) for row in answer.rows]
    if not is_ordered(statement) or changed_table(statement):
        rows.sort()
    return " ".join(rows) or "no row"


def all_rows(answers):
    """The rows of some statements together, or the first failure."""
    failure = next((answer for answer in answers if isinstance(answer, Failure)), None)
    return failure or Answer([row for answer in answers for row in answer.rows], answers[0].kinds)


def are_same(ours, theirs):
    if isinstance(ours, Failure) or isinstance(theirs, Failure):
        return False
    return Comparison(ours, theirs).outcome != DIFFERS


class Sections:
    def __init__(self, library):
        self._library = library
        self._examples = examples()
        self._bodies = {}  # by builder and id, the lines of the example
        self._failures = []

    def gather(self, settings, trials):
        known = {(notice.builder, notice.id): notice for builder in LISTS for notice in notices(builder)}
        if settings == "default":
            for key in known.keys() - self._examples.keys():
                self._fail(key, "has no example")
            for key in self._examples.keys() - known.keys():
                self._fail(key, "is an example of nothing")
        for key, example in self._examples.items():
            if key not in known:
                continue
            if settings == "default":
                self._gather(known[key], example, trials)
            elif example.has_settings:
                self._gather_settings(key, example, trials)

    def failures(self):
        return self._failures

    def _fail(self, key, what):
        self._failures.append(f"{' '.join(key)} {what}")

    def _gather(self, notice, example, trials):
        key = notice.builder, notice.id
        result = trials.run(example.statement)[notice.builder]
        if not any(said.id == notice.id for said in result.says):
            self._fail(key, f"is not said of: {example.statement}")
        if result.text is None:
            self._fail(key, f"has an example without a text: {example.statement}")
            return
        if is_right(result):
            self._fail(key, f"has an example that gives the same: {example.statement}")
        original = trials.ask("postgresql", example.statement)
        self._bodies[key] = self._lines(notice.builder, [example.statement], trials)
        for statements in example.rewrites:
            self._check_rewrite(key, statements, original, trials)
            self._bodies[key] += ["", *self._lines(notice.builder, statements, trials)]
        if bool(notice.hint) != bool(example.rewrites or example.has_settings):
            self._fail(key, "has a hint that its example does not show" if notice.hint
                       else "has a rewrite and no hint")

    def _check_rewrite(self, key, statements, original, trials):
        builder, told = key[0], "; ".join(statements)
        made = [self._library.translate(statement, builder) for statement in statements]
        if any(said.id == key[1] for each in made for said in each.says):
            self._fail(key, f"is said of its rewrite, too: {told}")
        if any(each.text is None for each in made):
            self._fail(key, f"has a rewrite without a text: {told}")
            return
        if len(statements) == 1:
            result = trials.run(statements[0])[builder]
            if not is_right(result):
                self._fail(key, f"has a rewrite that is {result.outcome}: {told}: {result.detail}")
        ours = all_rows([trials.ask("postgresql", statement) for statement in statements])
        theirs = all_rows([trials.ask(builder, each.text) for each in made])
        if not are_same(ours, theirs):
            self._fail(key, f"has a rewrite with other rows: {told}")
        if isinstance(original, Answer) and not are_same(original, ours):
            self._fail(key, f"has a rewrite with other rows than its example: {told}")

    def _gather_settings(self, key, example, trials):
        result = trials.run(example.statement)[key[0]]
        if not is_right(result):
            self._fail(key, f"is not mended by the recommended settings: {result.detail}")
        answer = trials.ask(key[0], result.text)
        line = self._line("recommended", answer, example.statement, key)
        self._bodies[key].insert(4, line)

    def _lines(self, builder, statements, trials):
        lines = []
        for statement in statements:
            text = self._library.translate(statement, builder).text
            lines += [statement, self._line("PostgreSQL", trials.ask("postgresql", statement), statement),
                      text or "no text"]
            if text:
                lines.append(self._line(SERVERS[builder], trials.ask(builder, text), statement))
        return lines

    def _line(self, who, answer, statement, key=()):
        text = answer_text(answer, statement)
        if len(text) > LONGEST_ANSWER and isinstance(answer, Answer):
            self._fail(key, f"is shown with a long answer: {statement}")
        return f"    {who:<{WIDTH - 4}}{text}"

    def text(self, notice):
        """The section of a warning or note."""
        key = notice.builder, notice.id
        title = notice.id if notice.builder == "mysql" else f"{notice.builder} {notice.id}"
        message = notice.message[0].upper() + notice.message[1:]
        lines = [f"### {title}", "", f"**{notice.severity.capitalize()}.** {plain(message)}."]
        if notice.hint:
            lines[-1] += f" Instead: {plain(notice.hint)}."
        lines += ["", "```text", *self._bodies.get(key, ["no example"]), "```", ""]
        return "\n".join(lines)


def plain(text):
    """A text in which no character is a mark."""
    return "".join("\\" + c if c in "|*_<[`" else c for c in text)
