"""The errors: their classes, texts and places."""

import copy
import pickle

import pytest

import quillet
from quillet import CannotTranslate, InvalidQuery, QuilletError, TranslationError, translate


def error_of(statement: str, to: str = "mysql") -> TranslationError:
    with pytest.raises(TranslationError) as raised:
        translate(statement, to)
    return raised.value


@pytest.mark.parametrize(
    "error", [InvalidQuery, CannotTranslate, TranslationError, quillet.UnknownBuilder]
)
def test_what_they_have_in_common(error: type[Exception]) -> None:
    assert issubclass(error, QuilletError)
    assert error.__module__ == "quillet"


def test_codes_are_those_of_the_library() -> None:
    assert (InvalidQuery.code, CannotTranslate.code) == (-2, -3)


def test_text_of_a_syntax_error() -> None:
    error = error_of("select a,\n from t")
    assert isinstance(error, InvalidQuery)
    assert str(error) == '2:2: error: syntax error at or near "from" [syntax-error]'
    assert (error.line, error.column, error.offset, error.length) == (2, 2, 11, 4)


def test_text_of_refusals_is_all_of_them() -> None:
    error = error_of("select initcap(name), btrim(city) from shop")
    assert isinstance(error, CannotTranslate)
    assert str(error) == (
        "1:8: refusal: INITCAP function not implemented in MySQL backend [refused-initcap]\n"
        "hint: write upper(substr(x, 1, 1)) || lower(substr(x, 2)) for one word\n"
        "1:23: refusal: BTRIM function not implemented in MySQL backend [refused-btrim]\n"
        "hint: write trim(x), or trim(both 'c' from x) for a single character c"
    )
    assert [each.code for each in error.reasons] == [-11, -8]
    assert (error.line, error.column, error.offset, error.length) == (1, 8, 7, 13)


def test_refusal_within_a_cast_is_an_error() -> None:
    error = error_of("select cast(initcap(name) as text) from shop")
    assert type(error) is CannotTranslate
    assert [each.id for each in error.reasons] == ["refused-initcap"]
    assert error.column == 13


def test_missing_part_within_a_cast_is_an_error() -> None:
    error = error_of("select cast(strpos(a) as int)")
    assert type(error) is InvalidQuery
    assert [each.id for each in error.reasons] == ["missing-part"]


def test_the_same_statement_where_it_is_no_failure() -> None:
    statement = "select cast(initcap(name) as text)"
    assert translate(statement, "postgresql").text == "SELECT CAST(initcap(name) AS TEXT)"


def test_open_comment_before_the_reason() -> None:
    error = error_of("select /* the comment does not end")
    assert [each.id for each in error.diagnostics] == ["unended-comment", "syntax-error"]
    assert [each.id for each in error.reasons] == ["syntax-error"]
    assert error.offset == len("select /* the comment does not end")
    assert "unended-comment" not in str(error)


@pytest.mark.parametrize("statement", ["select from", "select initcap(a), cast(b as text)"])
def test_errors_and_translations_go_through_pickle(statement: str) -> None:
    error = error_of(statement)
    for same in (pickle.loads(pickle.dumps(error)), copy.copy(error), copy.deepcopy(error)):
        assert type(same) is type(error)
        assert same.diagnostics == error.diagnostics
        assert str(same) == str(error)
    made = translate("select cast(b as text)")
    assert pickle.loads(pickle.dumps(made)) == made
