"""Makes a database on each server from a user's schemas, and fills the tables for MySQL from PostgreSQL's."""

import contextlib
import itertools
import os
import subprocess
from collections import namedtuple

import psycopg2
import pymysql

from rows import Comparison
from servers import MARIADB_USER, POSTGRESQL_USER
from sessions import Failure, MariaDB, PostgreSQL
from trial import both, shortened
from values import DIFFERS

BATCH = 500
NO_TABLE = 1146

# How a value that is no plain text goes from PostgreSQL to MySQL: what is read of it, what is written.
CONVERSIONS = {
    "boolean": ("{}::integer", "%s"),
    "timestamp with time zone": ("{}::timestamp", "%s"),
    "time with time zone": ("{}::time", "%s"),
    "bytea": ("encode({}, 'hex')", "unhex(%s)"),
}

_numbers = itertools.count(1)

Column = namedtuple("Column", "name type")
Table = namedtuple("Table", "name outcome detail")


def quoted(name):
    """A name for PostgreSQL."""
    return '"' + name.replace('"', '""') + '"'


def backquoted(name):
    """A name for MySQL."""
    return "`" + name.replace("`", "``") + "`"


class _Contents:
    """Of changed tables the columns that both have are looked at, in PostgreSQL's order."""

    def know(self, table, columns):
        names = ", ".join(self.quoted(column.name) for column in columns)
        self._known[table] = f"SELECT {names} FROM {self.quoted(table)}"

    def contents(self, table):
        """What asks for a table of this name."""
        return self._known[table]

    def _contents(self, table):
        return self._known.get(self._name(table)) or super()._contents(table)


class OwnPostgreSQL(_Contents, PostgreSQL):
    quoted = staticmethod(quoted)

    def __init__(self, connection):
        super().__init__(connection)
        self._known = {}

    @staticmethod
    def _name(table):
        """The name that a statement means: without quotes in small letters."""
        return table[1:-1].replace('""', '"') if table[0] == '"' else table.lower()

    def filled(self, text, values):
        """A text with its placeholders %s replaced by literals, if it has any."""
        with self._connection.cursor() as cursor:
            return cursor.mogrify(text, values).decode() if values else text

    def settle(self, text):
        """Does what is to stay."""
        with self._connection.cursor() as cursor:
            cursor.execute(text)
        self._connection.commit()

    def parts(self, text):
        """The rows in parts, of which one is in memory."""
        with self._connection.cursor("parts") as cursor:
            cursor.execute(text)
            while rows := cursor.fetchmany(BATCH):
                yield rows

    def tables(self):
        found = self.ask("SELECT table_name FROM information_schema.tables"
                         " WHERE table_schema = 'public' AND table_type = 'BASE TABLE' ORDER BY 1")
        return [name for (name,) in found.rows]

    def columns(self, table):
        with self._connection.cursor() as cursor:
            cursor.execute(
                "SELECT column_name, data_type FROM information_schema.columns"
                " WHERE table_schema = 'public' AND table_name = %s ORDER BY ordinal_position", (table,))
            return list(itertools.starmap(Column, cursor.fetchall()))

    def reset_numbers(self, table):
        """Makes the next number of a serial column the one after the largest, for no rollback does it."""
        with self._connection.cursor() as cursor, contextlib.suppress(psycopg2.Error):
            cursor.execute(
                "SELECT attname, pg_get_serial_sequence(%s, attname) FROM pg_attribute"
                " WHERE attrelid = %s::regclass AND attnum > 0 AND NOT attisdropped", (table, table))
            for column, sequence in cursor.fetchall():
                if sequence:
                    cursor.execute(f"SELECT setval(%s, coalesce(max({quoted(column)}), 0) + 1, false)"
                                   f" FROM {table}", (sequence,))
        self._connection.commit()


class OwnMariaDB(_Contents, MariaDB):
    quoted = staticmethod(backquoted)

    def __init__(self, connection):
        super().__init__(connection)
        self._known = {}

    @staticmethod
    def _name(table):
        return table[1:-1].replace("``", "`") if table[0] == "`" else table

    def filled(self, text, values):
        with self._connection.cursor() as cursor:
            return cursor.mogrify(text, values) if values else text

    def all_rows(self, text, values=None):
        with self._connection.cursor() as cursor:
            cursor.execute(text, values)
            return self._rows(cursor.fetchall())

    def columns(self, table):
        """Whether each takes values, by its name."""
        return {name: takes == "1" for name, takes in self.all_rows(
            "SELECT column_name, coalesce(generation_expression, '') = '' FROM information_schema.columns"
            " WHERE table_schema = database() AND table_name = %s", (table,))}

    def insert(self, table, columns, rows):
        """Inserts rows for good, whatever the order of the tables."""
        names = ", ".join(backquoted(column.name).replace("%", "%%") for column in columns)
        marks = ", ".join(CONVERSIONS.get(column.type, ("", "%s"))[1] for column in columns)
        table = backquoted(table).replace("%", "%%")
        with self._connection.cursor() as cursor:
            cursor.execute("SET foreign_key_checks = 0, @mode = @@sql_mode,"
                           " sql_mode = CONCAT(@@sql_mode, ',NO_AUTO_VALUE_ON_ZERO')")
            cursor.executemany(f"INSERT INTO {table} ({names}) VALUES ({marks})", rows)
            cursor.execute("SET foreign_key_checks = DEFAULT, sql_mode = @mode")
        self._connection.commit()

    def reset_numbers(self, table):
        with self._connection.cursor() as cursor, contextlib.suppress(pymysql.err.Error):
            cursor.execute(f"ALTER TABLE {table} AUTO_INCREMENT = 1")


class Databases:
    """A session on each server, in which a statement may take so many seconds, and what became of the
    tables."""

    def __init__(self, servers, schemas, mysql_schemas, seconds):
        self._servers = servers
        self._name = f"check{next(_numbers)}"
        self._on_both(f"CREATE DATABASE {self._name}")
        for file in schemas:
            self._load_postgresql(file)
        for file in mysql_schemas:
            self._load_mariadb(file)
        self.postgresql = OwnPostgreSQL(servers.postgresql(self._name))
        self.mariadb = OwnMariaDB(servers.mariadb(self._name))
        self._limit(0)
        self._refuse_engines()
        self.postgresql.settle("ANALYZE")
        self.tables = [self._fill(name) for name in self.postgresql.tables()]
        self._limit(seconds)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.postgresql.close()
        self.mariadb.close()
        self._on_both(f"DROP DATABASE {self._name}")

    def _limit(self, seconds):
        self.postgresql.settle(f"SET statement_timeout = '{seconds}s'")
        self.mariadb.all_rows(f"SET max_statement_time = {seconds}")

    def _on_both(self, statement):
        for connection in (self._servers.postgresql(), self._servers.mariadb()):
            connection.autocommit = True  # as PostgreSQL makes no database within a transaction
            with connection.cursor() as cursor:
                cursor.execute(statement)
            connection.close()

    def _load_postgresql(self, file):
        self._load(file, ["psql", "--no-psqlrc", "--quiet", "--set", "ON_ERROR_STOP=1", "--file", "-",
                          "--host", self._servers.postgresql_socket, "--username", POSTGRESQL_USER,
                          "--dbname", self._name],
                   PGOPTIONS="--statement_timeout=0 --client_min_messages=warning")

    def _load_mariadb(self, file):
        self._load(file, ["mariadb", "--no-defaults", "--batch", f"--socket={self._servers.mariadb_socket}",
                          f"--user={MARIADB_USER}", "--default-character-set=utf8mb4",
                          "--init-command=SET max_statement_time = 0", self._name])

    @staticmethod
    def _load(file, command, **environment):
        try:
            with open(file, "rb") as script:
                made = subprocess.run(command, stdin=script, stdout=subprocess.DEVNULL, check=False,
                                      stderr=subprocess.PIPE, env={**os.environ, **environment})
        except OSError as error:
            raise SystemExit(f"truth/check: {file}: {error.strerror}") from None
        if made.returncode:
            said = made.stderr.decode(errors="replace").strip().replace("psql:<stdin>", file)
            hint = ("\nhint: dump it by pg_dump --no-owner --no-privileges"
                    if "role" in said and "does not exist" in said else "")
            raise SystemExit(f"truth/check: {file} cannot be loaded:\n{said}{hint}")

    def _refuse_engines(self):
        others = self.mariadb.all_rows(
            "SELECT table_name, engine FROM information_schema.tables WHERE table_schema = database()"
            " AND table_type = 'BASE TABLE' AND engine <> 'InnoDB'")
        for name, engine in others:
            raise SystemExit(f"truth/check: the table {name} for MySQL has the engine {engine}, which takes "
                             "no change back: make it InnoDB")

    def _fill(self, name):
        """Copies a table's rows if the one for MySQL has none, and compares them."""
        takes = self.mariadb.columns(name)
        if not takes:
            return Table(name, None, "not in the schema for MySQL")
        every = self.postgresql.columns(name)
        columns = [column for column in every if column.name in takes]
        if not self.mariadb.all_rows(f"SELECT 1 FROM {backquoted(name)} LIMIT 1"):
            self._copy(name, [column for column in columns if takes[column.name]])
        for session in (self.postgresql, self.mariadb):
            session.know(name, columns)
        missing = [column.name for column in every if column not in columns]
        if missing:
            return Table(name, DIFFERS, f"the one for MySQL has no {', '.join(missing)}")
        return self._compare(name)

    def _copy(self, name, columns):
        shown = ", ".join(CONVERSIONS.get(column.type, ("{}::text", ""))[0].format(quoted(column.name))
                          for column in columns)
        try:
            for rows in self.postgresql.parts(f"SELECT {shown} FROM {quoted(name)}"):
                self.mariadb.insert(name, columns, rows)
        except pymysql.err.Error as error:
            raise SystemExit(f"truth/check: the table {name} for MySQL does not take PostgreSQL's rows: "
                             f"{error.args[-1]}") from None

    def _compare(self, name):
        try:
            ours, theirs = (each.ask(each.contents(name)) for each in (self.postgresql, self.mariadb))
        except Failure as failure:
            return Table(name, None if failure.is_of_limit else DIFFERS, shortened(str(failure)))
        comparison = Comparison(ours, theirs)
        if comparison.first:
            return Table(name, DIFFERS, both(comparison))
        return Table(name, comparison.outcome, ", ".join(comparison.how) or None)
