"""Checks of a user's own tables and queries: what becomes of each, and the status."""

import io
import json
import pathlib
import time

import pytest

import sessions

SHOP = pathlib.Path(__file__).parents[2] / "examples" / "shop"
ITEM = "create table item (id integer primary key, name varchar(20), size integer);"
ROWS = "insert into item values (1, 'one', 7), (2, 'two', 20), (3, null, null);"


def shop(run, folder, *options):
    return run("--schema", SHOP / "schema.sql", "--mysql-schema", SHOP / "schema.mysql.sql",
               "--statements", *sorted((SHOP / folder).glob("*.sql")),
               "--placeholders", "auto", "--values", SHOP / "values.json", *options)


def by_file(checked):
    found = {}
    for query in checked.queries:
        found.setdefault(pathlib.Path(query["file"]).stem, []).append(query["outcome"])
    return found


def test_every_outcome_in_the_shop(run):
    checked = shop(run, "queries")
    assert by_file(checked) == {
        "application": ["same", "same"],
        "labels": ["same", "refused", "differs", "rejected"],
        "sales": ["refused", "same", "refused", "not read", "same"],
        "stock": ["differs", "differs", "refused", "differs", "same", "otherwise"],
    }
    assert checked.tables == {"item": "otherwise", "sale": "same"}
    assert checked.status == 0


def test_the_rewritten_shop_differs_by_settings_alone(run):
    checked = shop(run, "rewritten")
    wrong = {query["text"] for query in checked.queries if query["outcome"] == "differs"}
    assert wrong == {"SELECT sku FROM item WHERE name = 'teapot'",
                     "UPDATE item SET stock = stock - 70, listed = stock > 70 WHERE sku = 'A-200'"}
    assert set(checked.outcomes) == {"same", "otherwise", "differs"}


def test_what_is_announced_fails_when_strict(run_texts):
    texts = ITEM + ROWS, ITEM, "select id, size / 2 as half from item order by id;"
    checked = run_texts(*texts)
    assert (checked.status, checked.outcomes) == (0, ["differs"])
    assert run_texts(*texts, "--strict").status == 1
    assert run_texts(ITEM, ITEM, "select initcap(name) from item", "--strict").status == 1


def test_the_rows_that_differ_stand_side_by_side(run_texts):
    checked = run_texts(ITEM + ROWS, ITEM, "select id, size / 2 as half from item order by id;")
    assert """\
    PostgreSQL  |  MariaDB
    id  half    |  id  half
    1   3       |  1   3.5000
""" in checked.text
    assert "[division]\n    hint: write trunc(a / cast(b as numeric)) for integers" in checked.text


def test_a_missing_table_is_silent(run_texts):
    checked = run_texts(ITEM + "create table sale (id integer);", ITEM, "select id from sale;")
    assert (checked.status, checked.outcomes) == (1, ["rejected"])
    assert "rejected, without a word: MariaDB: 1146" in checked.text


def test_a_table_that_cannot_hold_the_rows_fails(run_texts):
    checked = run_texts("create table item (id integer, price numeric(8,2)); insert into item values (1, 2.5);",
                        "create table item (id integer, price integer);", "select id from item;")
    assert (checked.status, checked.outcomes) == (1, ["same"])
    assert checked.tables == {"item": "differs"}
    assert "table item: differs: ('1', '2.50') but ('1', '3')" in checked.text


def test_a_table_without_a_column_fails(run_texts):
    checked = run_texts(ITEM, "create table item (id integer, name text);", "select id from item;")
    assert (checked.status, checked.tables) == (1, {"item": "differs"})


def test_rows_of_the_schema_for_mysql_stay(run_texts):
    checked = run_texts(ITEM + "insert into item values (1, 'one', 7);",
                        ITEM + "insert into item values (1, 'uno', 7);", "select name from item;")
    assert (checked.status, checked.tables) == (1, {"item": "differs"})


def test_values_of_every_kind_are_copied(run_texts):
    checked = run_texts(
        "create table kind (b boolean, t timestamptz, y bytea, d date, n numeric, s text, i integer, u uuid);"
        r"insert into kind values (true, '2005-01-01 10:00:00+00', '\x00ff41', '2005-01-01', 1.50,"
        r"'it''s 100%, C:\dir, %s, Zoë', 0, 'a0eebc99-9c0b-4ef8-bb6d-6bb9bd380a11');"
        "insert into kind (s) values (null);",
        "create table kind (u char(36), i integer, s text, n numeric(8,2), d date, y blob, t timestamp null,"
        "b boolean);",
        "select s, i, u from kind; select b, t, d, n, y from kind;")
    assert (checked.status, checked.tables) == (0, {"kind": "otherwise"})
    assert checked.outcomes == ["same", "otherwise"]


def test_a_change_stays_for_nobody(run_texts):
    schema = "create table sale (id {}, name varchar(20));"
    checked = run_texts(
        schema.format("serial primary key") + "insert into sale (name) values ('a');",
        schema.format("integer auto_increment primary key"),
        "insert into sale (name) values ('b'); begin; insert into sale (name) values ('c'); commit;"
        "update sale set name = 'd'; delete from sale where id = 1; select id, name from sale;")
    assert checked.outcomes == ["same", "copied", "same", "copied", "same", "same", "same"]
    assert checked.status == 0


def test_changed_tables_may_have_their_columns_in_another_order(run_texts):
    checked = run_texts('create table "My Item" (a integer, b integer); insert into "My Item" values (1, 2);',
                        "create table `My Item` (b integer, a integer);",
                        'update "My Item" set a = 5 where b = 2;')
    assert (checked.status, checked.outcomes) == (0, ["same"])


def test_what_postgresql_rejects_fails(run_texts):
    checked = run_texts(ITEM, ITEM, "select nothing from item;")
    assert (checked.status, checked.outcomes) == (1, ["invalid"])
    assert 'PostgreSQL: column "nothing" does not exist' in checked.text


def test_an_error_of_one_server_differs_and_of_both_is_the_same(run_texts):
    checked = run_texts(ITEM + ROWS, ITEM,
                        "select 1 / (size - 7) from item; insert into item (id) values (1);")
    assert checked.outcomes == ["differs", "same"]
    assert "PostgreSQL: division by zero; MariaDB: no error" in checked.text


def test_other_values_at_every_run(run_texts):
    checked = run_texts(ITEM + ROWS, ITEM, "select now(), random() from item; select current_date;")
    assert checked.outcomes == ["otherwise", "same"]


def test_equal_keys_may_change_places(run_texts):
    checked = run_texts(ITEM + "insert into item values (1, 'b', 1), (2, 'a', 1), (3, 'c', 0);",
                        ITEM + "insert into item values (3, 'c', 0), (2, 'a', 1), (1, 'b', 1);",
                        "select id, -- in the order by size\n size from item order by size;"
                        "select name from item order by name;")
    assert (checked.status, checked.outcomes) == (0, ["same", "same"])


def test_many_rows(run_texts, monkeypatch):
    rows = "insert into item select n, 'n', n from generate_series(1, 3000) as n;"
    query = "select id, size / 2.0 as half from item; select id, case when size > 1 then size end from item;"
    assert run_texts(ITEM + rows, ITEM, query).outcomes == ["otherwise", "same"]
    monkeypatch.setattr(sessions, "LARGEST_ANSWER", 2999)
    checked = run_texts(ITEM + rows, ITEM, query)
    assert (checked.status, checked.outcomes) == (1, ["unchecked", "unchecked"])
    assert "unchecked: more than 2999 rows" in checked.text


def test_many_rows_in_another_order_are_written_otherwise(run_texts):
    schema = "create table item (name varchar(32) {}, size integer, ok boolean);"
    rows = "insert into item select md5(n::text), n, n % 2 = 0 from generate_series(1, 9000) as n;"
    begin = time.monotonic()
    checked = run_texts(schema.format("primary key") + rows, schema.format("primary key"),
                        "select size / 2.0, ok from item; select name, size / 2 from item;")
    assert checked.outcomes == ["otherwise", "differs"]
    assert time.monotonic() - begin < 60


def test_a_statement_may_not_take_for_ever(run_texts):
    checked = run_texts(ITEM + ROWS, ITEM, "select pg_sleep(30) from item;", "--seconds", "1")
    assert (checked.status, checked.outcomes) == (1, ["unchecked"])


@pytest.mark.parametrize("style, marks, values", [
    ("dollar", ("$2", "$1"), ["it's 5%", 2]),
    ("question", ("?", "?"), [2, "it's 5%"]),
    ("named", (":id", ":name"), {"id": 2, "name": "it's 5%"}),
    ("format", ("%s", "%s"), [2, "it's 5%"]),
    ("pyformat", ("%(id)s", "%(name)s"), {"id": 2, "name": "it's 5%"}),
])
def test_placeholders_take_values(run_texts, tmp_path, style, marks, values):
    given = tmp_path / "values.json"
    given.write_text(json.dumps({"statements.sql:1": values}))
    schema = ITEM + "insert into item values (1, 'it''s 5%', 1), (2, 'it''s 5%', 2);"
    checked = run_texts(schema, ITEM, f"select name from item where id = {marks[0]} and name = {marks[1]};",
                        "--placeholders", style, "--values", given)
    assert (checked.status, checked.outcomes) == (0, ["same"])


def test_a_placeholder_without_a_value_is_told(run_texts, tmp_path):
    given = tmp_path / "values.json"
    given.write_text('{"size": [1], "statements.sql:2": [1]}')
    checked = run_texts(ITEM, ITEM, "select id from item where size = :size;\n"
                        "select id from item where id = ? and size = ?;\nselect id from item where id = :id",
                        "--placeholders", "auto", "--values", given)
    assert (checked.status, checked.outcomes) == (1, ["unchecked"] * 3)
    assert "the value of its placeholder size is neither a number nor a string" in checked.text
    assert 'no value for its placeholder 2: write "statements.sql:2": [...] in the file' in checked.text
    assert 'no value for its placeholder id: write "statements.sql:3": {"id": ...} in the file' in checked.text


def test_values_by_the_column_too(run_texts, tmp_path):
    given = tmp_path / "values.json"
    given.write_text('{"statements.sql:1": [1], "statements.sql:1:37": [2]}')
    query = "select name from item where id = ?; select name from item where id = ?"
    checked = run_texts(ITEM + ROWS, ITEM, query,
                        "--placeholders", "auto", "--values", given, "--all")
    assert checked.outcomes == ["same", "same"]
    assert "statements.sql:1:37: same" in checked.text


def test_nothing_to_compare_fails(run_texts):
    assert run_texts(ITEM, ITEM, "").status == 1
    assert run_texts(ITEM, ITEM, "begin; commit;").status == 1


def test_queries_of_standard_input(run, tmp_path, monkeypatch):
    (tmp_path / "schema.sql").write_text(ITEM)
    monkeypatch.setattr("sys.stdin", io.TextIOWrapper(io.BytesIO(b"select id from item; select ;")))
    checked = run("--schema", tmp_path / "schema.sql", "--mysql-schema", tmp_path / "schema.sql",
                  "--statements", "-")
    assert checked.outcomes == ["same", "not read"]
    assert "<stdin>:1:22: not read" in checked.text


def test_without_the_option_a_placeholder_is_not_read(run_texts):
    checked = run_texts(ITEM, ITEM, "select id from item where size = ?;")
    assert checked.outcomes == ["not read"]
    assert "choose --placeholders=question" in checked.text


@pytest.mark.parametrize("schema, mysql_schema, said", [
    ("create table item (", ITEM, r"schema\.sql cannot be loaded:\n.*syntax error"),
    (ITEM + "alter table item owner to shop;", ITEM, "hint: dump it by pg_dump --no-owner"),
    (ITEM, "create table item (", r"(?s)mysql-schema\.sql cannot be loaded:\n.*ERROR 1064"),
    (ITEM, "create table item (id integer) engine=MyISAM;", "item for MySQL has the engine MyISAM"),
    (ITEM + ROWS, "create table item (id integer, name varchar(2), size integer);", "Data too long"),
])
def test_schemas_that_cannot_be_used(run_texts, schema, mysql_schema, said):
    with pytest.raises(SystemExit, match=said):
        run_texts(schema, mysql_schema, "select id from item;")


@pytest.mark.parametrize("text", ["[]", "{", ""])
def test_values_that_cannot_be_used(run_texts, tmp_path, text):
    given = tmp_path / "values.json"
    given.write_text(text)
    with pytest.raises(SystemExit, match="values.json"):
        run_texts(ITEM, ITEM, "select id from item;", "--values", given)


def test_options_of_scripts_that_cannot_be_used(run_texts):
    with pytest.raises(SystemExit, match="curly"):
        run_texts(ITEM, ITEM, "select id from item;", "--placeholders", "curly")
