"""The library that is tested, through its module for Python; truth/run says where both are."""

from collections import namedtuple

import quillet

Translation = namedtuple("Translation", "code text says")
Diagnostic = namedtuple("Diagnostic", "severity id")


def translate(statement, builder):
    """The text (None without one), the code, and what is said of the statement, each once."""
    try:
        made = quillet.translate(statement, builder)
    except quillet.TranslationError as error:
        return Translation(error.code, None, _said(error.diagnostics))
    return Translation(0, made.text, _said(made.diagnostics))


def _said(diagnostics):
    return sorted({Diagnostic(str(each.severity), each.id) for each in diagnostics})
