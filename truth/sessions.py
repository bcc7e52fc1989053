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

CHANGE = re.compile(
    r'\s*(?:insert\s+into|update|delete\s+from)\s+("(?:[^"]|"")+"|`(?:[^`]|``)+`|\w+)', re.IGNORECASE
)


class Failure(Exception):
    """A server's error. Only one that comes of the values could have been an answer; one of a limit says
    that nobody waited for the answer."""

    def __init__(self, message, is_of_values, is_of_limit=False):
        first = str(message).strip().splitlines()[0]
        super().__init__(first)
        self.is_of_values = is_of_values
        self.is_of_limit = is_of_limit


def _read(name):
    with open(os.path.join(FOLDER, name), encoding="utf-8") as file:
        return file.read()


def changed_table(statement):
    """The table as the statement writes it, or None if it changes nothing."""
    found = CHANGE.match(statement)
    return found[1] if found else None


class _Session:
    def ask(self, statement):
        """The statement's answer; that of a changing one is what its table holds afterwards."""
        try:
            with self._connection.cursor() as cursor:
                cursor.execute(statement)
                table = changed_table(statement)
                if table:
                    cursor.execute(self._contents(table))
                rows = cursor.fetchmany(LARGEST_ANSWER + 1)
                if len(rows) > LARGEST_ANSWER:
                    raise Failure(f"more than {LARGEST_ANSWER} rows", False, is_of_limit=True)
                names = [column[0] for column in cursor.description]
                return Answer(self._rows(rows), self._kinds(cursor.description), names)
        except self._errors as error:
            raise self._failure(error) from None
        finally:
            self._connection.rollback()

    def close(self):
        self._connection.close()

    def _contents(self, table):
        return "SELECT * FROM " + table


class PostgreSQL(_Session):
    _errors = psycopg2.Error

    def __init__(self, connection):
        """Takes the connection over, and all values as their texts from it."""
        self._connection = connection
        with connection.cursor() as cursor:
            cursor.execute("SELECT oid FROM pg_type")
            every_type = tuple(row[0] for row in cursor.fetchall())
            as_text = psycopg2.extensions.new_type(every_type, "AS_TEXT", lambda text, _: text)
            psycopg2.extensions.register_type(as_text, connection)
        connection.commit()

    @staticmethod
    def _rows(rows):
        return [tuple(row) for row in rows]

    @staticmethod
    def _kinds(description):
        return [values.POSTGRESQL_KINDS.get(column.type_code, "text") for column in description]

    @staticmethod
    def _failure(error):
        # Classes of SQLSTATE: 21 cardinality, 22 data, 23 constraints; 57014 is the time limit.
        code = error.pgcode or ""
        return Failure(error, code[:2] in ("21", "22", "23"), code == "57014")


class MariaDB(_Session):
    _errors = pymysql.err.Error

    # Errors of a text that MariaDB cannot even begin with: syntax, unknown names, wrong arguments.
    _of_text = {1046, 1047, 1052, 1054, 1055, 1056, 1060, 1064, 1066, 1109, 1111, 1115, 1128, 1146, 1149,
                1221, 1235, 1241, 1247, 1267, 1270, 1271, 1273, 1305, 1318, 1370, 1582, 1583, 1584, 1630,
                4078}

    _of_limit = {1969}

    def __init__(self, connection):
        """Takes the connection over."""
        self._connection = connection

    def pin_clock(self, is_pinned):
        """Today and now enter where a time becomes a date; they must be the same at every run."""
        self.set_clock(PINNED_CLOCK if is_pinned else "DEFAULT")

    def set_clock(self, seconds):
        with self._connection.cursor() as cursor:
            cursor.execute(f"SET timestamp = {seconds}")

    @staticmethod
    def _rows(rows):
        return [tuple(values.text_of_bytes(v) if isinstance(v, bytes) else v for v in row) for row in rows]

    @staticmethod
    def _kinds(description):
        return [values.MARIADB_KINDS.get(column[1], "text") for column in description]

    @classmethod
    def _failure(cls, error):
        code, message = error.args[0], str(error.args[-1]).replace(BOILERPLATE, "syntax error near")
        is_of_limit = code in cls._of_limit
        return Failure(f"{code} {message}", code not in cls._of_text and not is_of_limit, is_of_limit)


def with_tables(servers):
    """A session on each server, with the tables of truth/schema."""
    connection = servers.postgresql()
    with connection.cursor() as cursor:
        cursor.execute(_read("postgresql.sql"))
        cursor.execute(_read("rows.sql"))
        cursor.execute("ANALYZE")
    connection.commit()
    postgresql = PostgreSQL(connection)

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
    return postgresql, MariaDB(servers.mariadb("truth"))
