"""Starts a PostgreSQL and a MariaDB of the test's own, on Unix sockets in a scratch folder, and stops
them. The machine's own servers, their folders and their ports are not touched.

Run by root, each runs as the user that its Debian package makes; run by anyone else, as that user.
"""

import contextlib
import os
import pwd
import shutil
import signal
import subprocess
import tempfile
import time

import psycopg2
import psycopg2.extensions
import pymysql

POSTGRESQL = "/usr/lib/postgresql/15/bin"
POSTGRESQL_USER, MARIADB_USER = "truth", "root"
# Far from UTC, so that what reads a time in the session's zone shows; without summer time.
POSTGRESQL_ZONE = "Etc/GMT-2"
MARIADB_ZONE = "+02:00"
STATEMENT_SECONDS = 5
START_SECONDS = 60

# Data that need not survive need not be on the disk.
POSTGRESQL_SETTINGS = {
    "listen_addresses": "",
    "fsync": "off",
    "synchronous_commit": "off",
    "full_page_writes": "off",
    "autovacuum": "off",
    "max_parallel_workers_per_gather": "0",
    "timezone": POSTGRESQL_ZONE,
    "datestyle": "ISO, MDY",
    "intervalstyle": "postgres",
    "statement_timeout": f"{STATEMENT_SECONDS}s",
}
MARIADB_SETTINGS = [
    "--skip-networking",
    "--innodb-flush-log-at-trx-commit=0",
    "--innodb-flush-method=nosync",
    "--innodb-buffer-pool-size=64M",
    "--innodb-log-file-size=16M",
    "--skip-log-bin",
    "--character-set-server=utf8mb4",
    f"--default-time-zone={MARIADB_ZONE}",
    f"--max-statement-time={STATEMENT_SECONDS}",
]

# Additions to MariaDB's default sql_mode, and the collation of tables and literals.
SETTINGS = {
    "default": ("", "utf8mb4_general_ci"),
    "recommended": (",NO_BACKSLASH_ESCAPES,SIMULTANEOUS_ASSIGNMENT", "utf8mb4_nopad_bin"),
}


def _as_user(*names):
    """How a process becomes the first user of these that there is: not at all unless root starts it."""
    if os.geteuid() != 0:
        return {}
    for name in names:
        with contextlib.suppress(KeyError):
            user = pwd.getpwnam(name)
            return {"user": user.pw_uid, "group": user.pw_gid, "extra_groups": []}
    raise SystemExit(f"truth/run: there is no user {names[0]}")


class _Server:
    """A process with a folder of its own."""

    def __init__(self, scratch, name, users):
        self.name = name
        self.user = _as_user(*users)
        self.folder = os.path.join(scratch, name)
        self.log = os.path.join(scratch, name + ".log")
        self.process = None
        os.mkdir(self.folder, 0o700)
        if self.user:
            os.chown(self.folder, self.user["user"], self.user["group"])

    def _start(self, command, **how):
        """A session of its own keeps Ctrl-C from the servers: they are stopped in order."""
        with open(self.log, "ab") as log:
            return subprocess.Popen(
                command,
                stdin=subprocess.DEVNULL,
                stdout=log,
                stderr=log,
                cwd=self.folder,
                start_new_session=True,
                **self.user,
                **how,
            )

    def run(self, command):
        process = self._start(command)
        try:
            if process.wait() != 0:
                self.fail(f"{command[0]} failed")
        except BaseException:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)  # with the processes that a script has started
            process.wait()
            raise

    def serve(self, command, connect):
        self.process = self._start(command)
        end = time.monotonic() + START_SECONDS
        while True:
            try:
                connect().close()
                return
            except (psycopg2.OperationalError, pymysql.err.OperationalError) as error:
                if self.process.poll() is not None or time.monotonic() > end:
                    self.fail(f"{self.name} does not start: {error}")
            time.sleep(0.05)

    def stop(self, how):
        if self.process and self.process.poll() is None:
            self.process.send_signal(how)
            try:
                self.process.wait(timeout=20)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()

    def fail(self, what):
        with open(self.log, errors="replace") as log:
            raise SystemExit(f"truth/run: {what}\n" + "".join(log.readlines()[-20:]))


class Servers:
    def __init__(self, settings):
        self._settings = settings
        self._scratch = None
        self._started = []

    def __enter__(self):
        try:
            # The path of a socket may have about 107 bytes: the build tree's may be too long.
            self._scratch = tempfile.mkdtemp(prefix="truth.")
            os.chmod(self._scratch, 0o711)
            self._start_postgresql()
            self._start_mariadb()
            return self
        except BaseException:
            self.__exit__()
            raise

    def __exit__(self, *_):
        usual = {stop: signal.signal(stop, signal.SIG_IGN) for stop in (signal.SIGINT, signal.SIGTERM)}
        for server, how in reversed(self._started):
            server.stop(how)
        if self._scratch:
            shutil.rmtree(self._scratch, ignore_errors=True)
        for stop, handler in usual.items():
            signal.signal(stop, handler)

    def _server(self, name, users, how):
        server = _Server(self._scratch, name, users)
        self._started.append((server, how))
        return server

    def _start_postgresql(self):
        server = self._server("postgresql", ["postgres"], signal.SIGINT)
        data = os.path.join(server.folder, "data")
        self.postgresql_socket = server.folder
        server.run([f"{POSTGRESQL}/initdb", "--pgdata", data, "--username", POSTGRESQL_USER, "--auth=trust",
                    "--encoding=UTF8", "--locale=C.UTF-8", "--no-sync"])
        settings = {**POSTGRESQL_SETTINGS, "unix_socket_directories": server.folder}
        if server.user:
            os.chmod(server.folder, 0o711)
        server.serve([f"{POSTGRESQL}/postgres", "-D", data]
                     + [f"--{name}={value}" for name, value in settings.items()], self.postgresql)

    def _start_mariadb(self):
        server = self._server("mariadb", ["mysql", "nobody"], signal.SIGTERM)
        data = os.path.join(server.folder, "data")
        self.mariadb_socket = os.path.join(server.folder, "socket")
        server.run(["mariadb-install-db", "--no-defaults", f"--datadir={data}", "--skip-test-db",
                    "--auth-root-authentication-method=normal", "--skip-name-resolve"])
        os.chmod(server.folder, 0o711)
        mode, collation = SETTINGS[self._settings]
        server.serve(["mariadbd", "--no-defaults", f"--datadir={data}",
                      f"--socket={self.mariadb_socket}", f"--collation-server={collation}",
                      f"--pid-file={server.folder}/pid", *MARIADB_SETTINGS], self.mariadb)

    def postgresql(self, database="postgres"):
        return psycopg2.connect(host=self.postgresql_socket, user=POSTGRESQL_USER, dbname=database)

    def mariadb(self, database=None):
        """A connection that hands values over as their texts."""
        mode, collation = SETTINGS[self._settings]
        return pymysql.connect(
            unix_socket=self.mariadb_socket,
            user=MARIADB_USER,
            database=database,
            charset="utf8mb4",
            conv=pymysql.converters.encoders,
            init_command=f"SET NAMES utf8mb4 COLLATE {collation}, "
            f"sql_mode = CONCAT(@@global.sql_mode, '{mode}')",
        )
