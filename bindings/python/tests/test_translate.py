"""A translation: its text, and its diagnostics with their places."""

import dataclasses

import pytest

import quillet
from places import check_places
from quillet import CannotTranslate, InvalidQuery, Severity, UnknownBuilder, translate


def test_mysql_is_the_default() -> None:
    assert translate("select a || b from t").text == "SELECT CONCAT(a, b) FROM t"
    assert translate("select a || b from t") == translate("select a || b from t", to="mysql")


@pytest.mark.parametrize(
    "to, text",
    [
        ("postgresql", "SELECT a || 1"),
        ("MySQL", "SELECT CONCAT(a, 1)"),
        ("TYPE_VIEW", "SELECT VARCHAR (  ( a )  || INT8 ( 1 )  ) "),
    ],
)
def test_builders_have_names_in_any_letter_case(to: str, text: str) -> None:
    assert translate("select a || 1", to).text == text


def test_builders() -> None:
    assert set(quillet.BUILDERS) == {"postgresql", "mysql", "tree", "type_view"}
    for name in quillet.BUILDERS:
        assert translate("select a", name).text


@pytest.mark.parametrize("name", ["", "oracle", "mysql ", "mysql\0", "mysql\udc80", "ｍｙｓｑｌ"])
def test_unknown_builder(name: str) -> None:
    with pytest.raises(UnknownBuilder, match="postgresql, mysql, tree, type_view") as raised:
        translate("select a", name)
    assert isinstance(raised.value, ValueError)


def test_success_without_remarks() -> None:
    assert translate("select a from t").diagnostics == ()


def test_warning_of_a_success() -> None:
    statement = "select name\nfrom shop\twhere a || b = '' and city = \"a`b\""
    made = translate(statement)
    (warning,) = [each for each in made.diagnostics if each.id == "name-backquote"]
    assert warning.severity is Severity.WARNING
    assert warning.code == 0
    assert warning.message and warning.hint
    assert statement[warning.offset : warning.offset + warning.length] == '"a`b"'
    assert (warning.line, warning.column) == (2, 40)
    check_places(made.diagnostics, statement)


def test_places_are_characters() -> None:
    statement = "select 'żółw 🐢',\r\n\t'ą𝄞' || initcap(\"łąka\"), btrim('é') from t"
    with pytest.raises(CannotTranslate) as raised:
        translate(statement)
    initcap, btrim = raised.value.diagnostics
    assert statement[initcap.offset :][: initcap.length] == 'initcap("łąka")'
    assert statement[btrim.offset :][: btrim.length] == "btrim('é')"
    assert (initcap.line, initcap.column) == (2, 10)
    assert (btrim.line, btrim.column) == (2, 27)
    check_places(raised.value.diagnostics, statement)


def test_unknown_character_of_several_bytes_is_one() -> None:
    statement = "select 'ż', 🐢"
    with pytest.raises(InvalidQuery) as raised:
        translate(statement)
    (found,) = raised.value.diagnostics
    assert (found.id, found.offset, found.length) == ("unknown-character", 12, 1)
    assert found.message == 'unknown character "🐢"'


def test_combining_characters_and_columns() -> None:
    statement = "select 'e\u0301\u0301', ?"
    with pytest.raises(InvalidQuery) as raised:
        translate(statement)
    assert (raised.value.offset, raised.value.column) == (14, 15)


def test_end_of_the_statement() -> None:
    statement = "select 'ż' from"
    with pytest.raises(InvalidQuery) as raised:
        translate(statement)
    (found,) = raised.value.diagnostics
    assert (found.offset, found.length) == (len(statement), 0)
    assert found.hint is None


def test_every_character_of_the_basic_plane_in_a_string() -> None:
    excluded = {0, ord("'"), ord("\\"), *range(0xD800, 0xE000)}
    text = "".join(chr(code) for code in range(0x10000) if code not in excluded)
    assert translate(f"select '{text}'", "postgresql").text == f"SELECT '{text}'"


def test_characters_of_a_name() -> None:
    assert translate('select "żółw🐢" from "ą"', "postgresql").text == 'SELECT "żółw🐢" FROM "ą"'


def test_the_statement_does_not_end_at_a_nul() -> None:
    with pytest.raises(InvalidQuery) as raised:
        translate("select a\0b")
    assert (raised.value.offset, raised.value.length) == (8, 1)
    assert raised.value.diagnostics[0].id == "unknown-character"


@pytest.mark.parametrize("statement", [b"select a", None, 1, bytearray(b"select a")])
def test_a_statement_is_a_str(statement: object) -> None:
    with pytest.raises(TypeError, match=f"a statement is a str, not {type(statement).__name__}"):
        translate(statement)  # type: ignore[arg-type]


def test_a_subclass_of_str_is_a_str() -> None:
    class Statement(str):
        pass

    assert translate(Statement("select a")).text == "SELECT a"


@pytest.mark.parametrize("surrogate", ["\ud800", "\udc80", "\udfff"])
def test_surrogate(surrogate: str) -> None:
    with pytest.raises(UnicodeEncodeError) as raised:
        translate(f"select 'a{surrogate}'")
    assert isinstance(raised.value, ValueError)
    assert raised.value.start == 9


def test_surrogate_pair_is_no_character() -> None:
    with pytest.raises(UnicodeEncodeError):
        translate("select '\ud83d\udc22'")


def test_empty_statement() -> None:
    with pytest.raises(InvalidQuery) as raised:
        translate("")
    assert (raised.value.offset, raised.value.line, raised.value.column) == (0, 1, 1)


def test_translations_are_immutable_values() -> None:
    made = translate("select cast(a as text)")
    assert hash(made) == hash(translate("select cast(a as text)"))
    assert made.diagnostics
    for value, name in [(made, "text"), (made.diagnostics[0], "message")]:
        with pytest.raises(dataclasses.FrozenInstanceError):
            setattr(value, name, "another")
    assert isinstance(made.diagnostics, tuple)


def test_a_translation_outlives_the_next_ones() -> None:
    made = translate("select cast(a as text) from first")
    shown = repr(made)
    for number in range(1000):
        translate(f"select cast(b as text), initial from t{number}")
    assert repr(made) == shown


def test_severities_are_ordered() -> None:
    assert Severity.NOTE < Severity.WARNING < Severity.REFUSAL < Severity.ERROR
    assert [str(each) for each in Severity] == ["note", "warning", "refusal", "error"]


REMARKED = 'select cast(a as text), "b`c"'  # a note and a warning


@pytest.mark.parametrize(
    "least, ids",
    [
        (Severity.NOTE, {"text-cast", "name-backquote"}),
        (Severity.WARNING, {"name-backquote"}),
        (Severity.REFUSAL, set()),
        (Severity.ERROR, set()),
    ],
)
def test_least_severity(least: Severity, ids: set[str]) -> None:
    made = translate(REMARKED, least_severity=least)
    assert made.text == translate(REMARKED).text
    assert {each.id for each in made.diagnostics} == ids


@pytest.mark.parametrize("least", Severity)
@pytest.mark.parametrize("statement", ["select initcap(a)", "select cast(initcap(a) as text)"])
def test_reasons_are_told_whatever_the_least_severity(statement: str, least: Severity) -> None:
    with pytest.raises(CannotTranslate) as raised:
        translate(statement, least_severity=least)
    assert [each.id for each in raised.value.reasons] == ["refused-initcap"]


@pytest.mark.parametrize(
    "limits, reason",
    [
        ({"text_limit": 100}, "text-too-large"),
        ({"tree_limit": 1000}, "tree-too-large"),
    ],
)
def test_limits(limits: dict[str, int], reason: str) -> None:
    statement = f"select {', '.join(['name'] * 100)}"
    with pytest.raises(CannotTranslate) as raised:
        translate(
            statement,
            text_limit=limits.get("text_limit", 0),
            tree_limit=limits.get("tree_limit", 0),
        )
    assert raised.value.diagnostics[0].id == reason
    assert translate(statement, text_limit=10_000, tree_limit=1_000_000) == translate(statement)


@pytest.mark.parametrize("limit", [2**63, 2**64 - 1, 2**64, 2**64 + 5, 2**100])
def test_limit_above_the_library_s_own(limit: int) -> None:
    assert translate("select name", text_limit=limit, tree_limit=limit).text == "SELECT name"


def test_negative_limit() -> None:
    with pytest.raises(ValueError, match="a limit is"):
        translate("select name", text_limit=-1)
    with pytest.raises(ValueError, match="a limit is"):
        translate("select name", tree_limit=-1)


def test_large_statement() -> None:
    columns = ", ".join(f"column_{number}" for number in range(300_000))
    assert translate(f"select {columns} from t").text == f"SELECT {columns} FROM t"


def test_many_places_in_a_large_statement() -> None:
    item = "'żółw' || initcap(a)"
    count = 20_000
    statement = f"select {', '.join([item] * count)}"
    with pytest.raises(CannotTranslate) as raised:
        translate(statement)
    reasons = raised.value.reasons
    assert len(reasons) == count
    assert all(statement.startswith("initcap(a)", each.offset) for each in reasons)
    assert {each.length for each in reasons} == {len("initcap(a)")}


def test_deep_statement() -> None:
    with pytest.raises(CannotTranslate) as raised:
        translate("select " + "case when a then " * 100_000)
    assert raised.value.diagnostics[0].id == "too-deep"


def test_public_names_are_listed_and_described() -> None:
    own = {
        name: value
        for name, value in vars(quillet).items()
        if getattr(value, "__module__", None) == "quillet" and not name.startswith("_")
    }
    assert set(quillet.__all__) == {*own, "BUILDERS"}
    assert all(value.__doc__ for value in own.values())
