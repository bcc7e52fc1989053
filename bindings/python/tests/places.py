"""What holds of every diagnostic, whatever the statement."""

from collections.abc import Sequence

from quillet import Diagnostic, Severity


def check_places(diagnostics: Sequence[Diagnostic], statement: str) -> None:
    for each in diagnostics:
        assert 0 <= each.offset <= each.offset + each.length <= len(statement)
        assert each.length > 0 or each.offset == len(statement)
        before = statement[: each.offset]
        assert each.line == before.count("\n") + 1
        assert each.column == len(before) - (before.rfind("\n") + 1) + 1
        assert each.id and each.message and each.hint != ""
        assert each.code == 0 or each.severity == Severity.REFUSAL
    offsets = [each.offset for each in diagnostics]
    assert offsets == sorted(offsets)
