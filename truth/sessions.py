"""One session on each server, with the tables in it. What a statement changes is rolled back."""

import os
import re

import psycopg2
import psycopg2.extensions
import pymysql

import values
from rows import Answer

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "schema")
LARGEST_ANSWER = 10000
BOILERPLATE = (
    "You have an error in your SQL syntax; check the manual that corresponds to your MariaDB server "
    "version for the right syntax to use near"
)
PINNED_CLOCK = 1110000000  # 2005-03-05 05:20:00 in UTC

CHANGE = re.compile(r'\s*(?:insert\s+into|update|delete\s+from)\s+([`"]?)(\w+)\1', re.IGNORECASE)


class Failure(Exception):
    """A server's error. Only one that comes of the values could have been an answer."""

    def __init__(self, message, is_of_values):
        first = str(message).strip().splitlines()[0]
        super().__init__(first)
        self.is_of_values = is_of_values


def _read(name):
    with open(os.path.join(FOLDER, name), encoding="utf-8") as file:
        return file.read()


def changed_table(statement):
    found = CHANGE.match(statement)
    return found[2] if found else None


class _Session:
    def ask(self, statement):
        """The statement's answer; that of a changing one is what its table holds afterwards."""
        try:
            with self._connection.cursor() as cursor:
                cursor.execute(statement)
                table = changed_table(statement)
                if table:
                    cursor.execute("SELECT * FROM " + self.quoted(table))
                rows = cursor.fetchmany(LARGEST_ANSWER)
                return Answer(self._rows(rows), self._kinds(cursor.description))
        except self._errors as error:
            raise self._failure(error) from None
        finally:
            self._connection.rollback()


class PostgreSQL(_Session):
    _errors = psycopg2.Error

    def __init__(self, servers):
        self._connection = servers.postgresql()
        with self._connection.cursor() as cursor:
            cursor.execute("SELECT oid FROM pg_type")
            every_type = tuple(row[0] for row in cursor.fetchall())
            as_text = psycopg2.extensions.new_type(every_type, "AS_TEXT", lambda text, _: text)
            psycopg2.extensions.register_type(as_text, self._connection)
            cursor.execute(_read("postgresql.sql"))
            cursor.execute(_read("rows.sql"))
            cursor.execute("ANALYZE")
        self._connection.commit()

    @staticmethod
    def quoted(table):
        return f'"{table}"'

    @staticmethod
    def _rows(rows):
        return [tuple(row) for row in rows]

    @staticmethod
    def _kinds(description):
        return [values.POSTGRESQL_KINDS.get(column.type_code, "text") for column in description]

    @staticmethod
    def _failure(error):
        # Classes of SQLSTATE: 21 cardinality, 22 data, 23 constraints.
        return Failure(error, (error.pgcode or "")[:2] in ("21", "22", "23"))


class MariaDB(_Session):
    _errors = pymysql.err.Error

    # Errors of a text that MariaDB cannot even begin with: syntax, unknown names, wrong arguments.
    _of_text = {1046, 1047, 1052, 1054, 1055, 1056, 1060, 1064, 1066, 1109, 1111, 1115, 1128, 1146, 1149,
                1221, 1235, 1241, 1247, 1267, 1270, 1271, 1273, 1305, 1318, 1370, 1582, 1583, 1584, 1630,
                4078}

    def __init__(self, servers):
        connection = servers.mariadb()
        with connection.cursor() as cursor:
            cursor.execute("SET sql_mode = CONCAT(@@sql_mode, ',ANSI_QUOTES,NO_BACKSLASH_ESCAPES')")
            cursor.execute("CREATE DATABASE truth")
            cursor.execute("USE truth")
            for statement in (_read("mariadb.sql") + "\n" + _read("rows.sql")).split(";\n"):
                if statement.strip():
                    cursor.execute(statement)
        connection.commit()
        connection.close()
        self._connection = servers.mariadb("truth")

    def pin_clock(self, is_pinned):
        """Today and now enter where a time becomes a date; they must be the same at every run."""
        with self._connection.cursor() as cursor:
            cursor.execute(f"SET timestamp = {PINNED_CLOCK if is_pinned else 'DEFAULT'}")

    @staticmethod
    def quoted(table):
        return f"`{table}`"

    @staticmethod
    def _rows(rows):
        return [tuple(_text(value) for value in row) for row in rows]

    @staticmethod
    def _kinds(description):
        return [values.MARIADB_KINDS.get(column[1], "text") for column in description]

    @classmethod
    def _failure(cls, error):
        code, message = error.args[0], str(error.args[-1]).replace(BOILERPLATE, "syntax error near")
        return Failure(f"{code} {message}", code not in cls._of_text)


def _text(value):
    """A value of a binary type comes as bytes; those that are no text are shown as they are."""
    if isinstance(value, bytes):
        return value.decode("utf-8", errors="backslashreplace")
    return value
