"""Writes docs/differences.md from the lists of warnings and notes, truth/examples.txt and the servers."""

import os

import corpus
import figures
import sections
from notices import LISTS, notices

FILE = os.path.join("docs", "differences.md")

HEAD = """\
# Where a text gives something else

Quillet says with a warning or a note where its text gives something else than the statement does on
PostgreSQL. A warning: it does, as written, or is rejected. A note: it may, which only the database knows.
`truth/run --page` writes this page from Quillet's lists and from what PostgreSQL 15 and MariaDB answer, and
`truth/run` fails where it is no longer true; [truth/README.md](../truth/README.md) tells how.
"""

TITLES = {
    "mysql": "## The builder `mysql`\n\n"
    "MariaDB answers with its default settings, unless it says *recommended*.\n",
    "postgresql": "## The builder `postgresql`\n\nHere both answers are PostgreSQL's.\n",
}


class Page:
    """Gathers what the page tells, one kind of settings after the other."""

    def __init__(self, library):
        self._figures = figures.Figures()
        self._sections = sections.Sections(library)

    def gather(self, settings, trials):
        for family in corpus.families():
            for statement in corpus.statements(family):
                self._figures.add(settings, statement, family == corpus.VOLATILE, trials)
        self._sections.gather(settings, trials)

    def text(self):
        parts = [HEAD, self._figures.text()]
        for builder in LISTS:
            parts += [TITLES[builder], *map(self._sections.text, notices(builder))]
        return "\n".join(parts)

    def failures(self):
        return self._sections.failures()


def read(name):
    try:
        with open(name, encoding="utf-8") as file:
            return file.read()
    except FileNotFoundError:
        return ""


def write(name, text):
    with open(name, "w", encoding="utf-8") as file:
        file.write(text)
