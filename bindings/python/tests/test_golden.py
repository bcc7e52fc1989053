"""The golden cases give the same texts and failures through Python."""

import pytest

import quillet
from golden_cases import BUILDERS, GoldenCase, count_all, read_all
from places import check_places
from quillet import CannotTranslate, InvalidQuery, Severity, TranslationError, translate

CASES = read_all()
UNSCANNABLE = {"unknown-character", "unended-string", "unended-name", "empty-name"}

# The library's code is success, and its text lacks what fails within a cast.
FAILING_WITHIN_A_CAST: dict[str, type[TranslationError]] = {
    "mysql_casts/a refused operand leaves a gap/mysql": CannotTranslate,
    "mysql_casts/a refused operand behind colons/mysql": CannotTranslate,
    "mysql_casts/a refused operand as an interval/mysql": CannotTranslate,
    "mysql_casts/a refused operand of a boolean cast/mysql": CannotTranslate,
    "mysql_casts/a refused operand inside a sum/mysql": CannotTranslate,
    "mysql_refusals/several with a cast forgets a refusal/mysql": CannotTranslate,
    "mysql_refusals/several with a cast forgets a missing part/mysql": InvalidQuery,
    "mysql_to_char/value refused inside a cast is forgotten/mysql": CannotTranslate,
}


@pytest.mark.parametrize("case", CASES, ids=[case.name for case in CASES])
def test_golden_case(case: GoldenCase) -> None:
    if case.outcome:
        check_failure(case)
    elif case.name in FAILING_WITHIN_A_CAST:
        with pytest.raises(TranslationError) as raised:
            translate(case.statement, case.builder)
        assert type(raised.value) is FAILING_WITHIN_A_CAST[case.name]
    else:
        made = translate(case.statement, case.builder)
        assert made.text == case.text
        assert all(each.severity < Severity.REFUSAL for each in made.diagnostics)
        check_places(made.diagnostics, case.statement)


def check_failure(case: GoldenCase) -> None:
    with pytest.raises(TranslationError) as raised:
        translate(case.statement, case.builder)
    error = raised.value
    ids = {each.id for each in error.reasons}
    assert error.code == case.code
    assert bool(ids & UNSCANNABLE) == case.is_unscannable
    assert ("syntax-error" in ids) == case.is_syntax_error
    if case.detail is not None:
        assert case.detail in {each.code for each in error.reasons}
    check_places(error.diagnostics, case.statement)


def test_all_cases_are_read() -> None:
    titles = {case.name.rpartition("/")[0] for case in CASES}
    assert len(titles) == count_all() > 1000
    assert {case.builder for case in CASES} == set(BUILDERS) == set(quillet.BUILDERS)


def test_failures_within_a_cast_are_cases() -> None:
    assert set(FAILING_WITHIN_A_CAST) <= {case.name for case in CASES}
