"""Translates SQL statements of the PostgreSQL dialect.

>>> import quillet
>>> quillet.translate("select a || b from t").text
'SELECT CONCAT(a, b) FROM t'
"""

import ctypes
from collections.abc import Iterable, Mapping, Sequence
from dataclasses import dataclass
from enum import IntEnum
from typing import ClassVar

from quillet import _library

__all__ = [
    "BUILDERS",
    "CannotTranslate",
    "Diagnostic",
    "InvalidQuery",
    "QuilletError",
    "Severity",
    "Translation",
    "TranslationError",
    "UnknownBuilder",
    "translate",
]

BUILDERS = tuple(_library.builder_names())
"""The names of the builders."""


class Severity(IntEnum):
    """How much a diagnostic matters, in rising order."""

    NOTE = 0  # the text may give something else, which only the database knows
    WARNING = 1  # the text gives something else, or is rejected
    REFUSAL = 2  # the builder has no equal for a construct
    ERROR = 3  # the statement is wrong, or too large

    def __str__(self) -> str:
        return self.name.lower()


@dataclass(frozen=True, slots=True)
class Diagnostic:
    """What there is to say about statement[offset:offset + length].

    As a text it is "line:column: severity: message [id]", and the hint in a line of its own.
    """

    severity: Severity  # how much it matters
    id: str  # stable, in words: "syntax-error", "refused-initcap"
    message: str  # one sentence
    hint: str | None  # what to write instead
    code: int  # of a refusal: the builder's own; otherwise 0
    offset: int  # characters before the construct
    length: int  # its characters; 0 at the statement's end
    line: int  # of its first character, from 1
    column: int  # likewise

    def __str__(self) -> str:
        text = f"{self.line}:{self.column}: {self.severity}: {self.message} [{self.id}]"
        return text if self.hint is None else f"{text}\nhint: {self.hint}"


@dataclass(frozen=True, slots=True)
class Translation:
    """A text, and the warnings and notes about it in the order of their places."""

    text: str  # the statement as the builder writes it
    diagnostics: tuple[Diagnostic, ...]  # without any refusal or error


class QuilletError(Exception):
    """What the errors of this module have in common."""


class UnknownBuilder(QuilletError, ValueError):
    """There is no builder of this name."""


class TranslationError(QuilletError):
    """The statement has no translation.

    The place is that of the first reason, and diagnostics has the warnings and notes, too. As a
    text it is all reasons, each as its diagnostic is.
    """

    code: ClassVar[int]  # of the C library

    def __init__(self, diagnostics: tuple[Diagnostic, ...]) -> None:
        super().__init__(diagnostics)
        self.diagnostics = diagnostics

    @property
    def reasons(self) -> tuple[Diagnostic, ...]:
        """The refusals and errors among the diagnostics; there is at least one."""
        return tuple(each for each in self.diagnostics if each.severity >= Severity.REFUSAL)

    @property
    def offset(self) -> int:
        """Characters before the first reason's construct."""
        return self.reasons[0].offset

    @property
    def length(self) -> int:
        """The characters of the first reason's construct."""
        return self.reasons[0].length

    @property
    def line(self) -> int:
        """The line of its first character, from 1."""
        return self.reasons[0].line

    @property
    def column(self) -> int:
        """The column of its first character, from 1."""
        return self.reasons[0].column

    def __str__(self) -> str:
        return "\n".join(map(str, self.reasons))


class InvalidQuery(TranslationError):
    """It is no statement of the dialect, or a construct lacks a part."""

    code = -2  # of the C library


class CannotTranslate(TranslationError):
    """The builder has no equal for a construct, or a limit or the memory was too small."""

    code = -3  # of the C library


def translate(
    sql: str,
    to: str = "mysql",
    *,
    text_limit: int = 0,
    tree_limit: int = 0,
    least_severity: Severity = Severity.NOTE,
) -> Translation:
    """Translates one statement by the builder named `to`, one of BUILDERS in any letter case.

    The limits are the bytes that the text and the tree may take; 0 is the library's own. Warnings
    and notes that matter less than least_severity are not looked for, which saves time.

    Raises InvalidQuery or CannotTranslate if the statement has no translation, UnknownBuilder, and
    UnicodeEncodeError, a ValueError, if the statement has a surrogate in it. Threads may call it
    at the same time.
    """
    if not isinstance(sql, str):
        raise TypeError(f"a statement is a str, not {type(sql).__name__}")
    statement = sql.encode()
    builder_id = _IDS.get(to)
    if builder_id is None:
        builder_id = _id_of(to)
    options = None
    if text_limit or tree_limit or least_severity:
        options = _options(text_limit, tree_limit, least_severity)

    made = _library.translate(statement, len(statement), builder_id, options)
    try:
        record = made.contents
        code: int = record.code
        text: bytes | None = record.text
        diagnostics: tuple[Diagnostic, ...] = ()
        if count := record.diagnostic_count:
            diagnostics = _diagnostics(record.diagnostics[:count], sql, statement)
    finally:
        _library.free(made)

    # A refusal within a cast leaves the code at success, with a text that lacks what was refused.
    if text is None or any(each.severity >= Severity.REFUSAL for each in diagnostics):
        raise _error(code, diagnostics)
    return Translation(text.decode(), diagnostics)


_IDS = {name: builder_id for builder_id, name in enumerate(BUILDERS)}
_SEVERITIES = tuple(Severity)
_SIZE_MAXIMUM = ctypes.c_size_t(-1).value
_LATER_BYTES = bytes(range(0x80, 0xC0))  # those of a character of UTF-8 but the first


def _id_of(name: str) -> int:
    builder_id = _IDS.get(name.lower())
    if builder_id is None:
        raise UnknownBuilder(f"no builder {name!r}: take one of {', '.join(BUILDERS)}")
    return builder_id


def _options(text_limit: int, tree_limit: int, least_severity: Severity) -> _library.OptionsRecord:
    if text_limit < 0 or tree_limit < 0:
        raise ValueError("a limit is a number of bytes, or 0")
    return _library.OptionsRecord(
        ctypes.sizeof(_library.OptionsRecord),
        min(text_limit, _SIZE_MAXIMUM),
        min(tree_limit, _SIZE_MAXIMUM),
        min(least_severity, Severity.REFUSAL),  # the reasons of a failure are always told
    )


def _error(code: int, diagnostics: tuple[Diagnostic, ...]) -> TranslationError:
    is_invalid = code == InvalidQuery.code or (
        code != CannotTranslate.code
        and any(each.severity == Severity.ERROR for each in diagnostics)
    )
    return InvalidQuery(diagnostics) if is_invalid else CannotTranslate(diagnostics)


def _diagnostics(
    records: Sequence[_library.DiagnosticRecord], sql: str, statement: bytes
) -> tuple[Diagnostic, ...]:
    characters: Sequence[int] | Mapping[int, int]  # by the bytes before them
    if len(sql) == len(statement):
        characters = range(len(statement) + 1)
    else:
        begins = [each.offset for each in records]
        ends = [each.offset + each.length for each in records]
        characters = _characters_before(statement, begins + ends)

    def diagnostic(of: _library.DiagnosticRecord) -> Diagnostic:
        offset = characters[of.offset]
        return Diagnostic(
            severity=_SEVERITIES[of.severity],
            id=of.id.decode(),
            message=of.message.decode(),
            hint=None if of.hint is None else of.hint.decode(),
            code=of.code,
            offset=offset,
            length=characters[of.offset + of.length] - offset,
            line=of.line,
            column=of.column,
        )

    return tuple(map(diagnostic, records))


def _characters_before(statement: bytes, positions: Iterable[int]) -> dict[int, int]:
    """The characters before each position, counted in one pass."""
    found = {}
    begin = count = 0
    for end in sorted(set(positions)):
        count += len(statement[begin:end].translate(None, _LATER_BYTES))
        found[end] = count
        begin = end
    return found
