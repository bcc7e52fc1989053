"""A PostgreSQL server that does nothing: it takes note of what a client sends.

What psql makes of a script depends on the server in two things alone, which it does as PostgreSQL
does: it says that COPY ... FROM STDIN wants data, and how strings are read after SET
standard_conforming_strings. A COPY that \\g sends once more wants no data.
"""

import os
import re
import socket
import struct
import threading

from blanks import without_begin

_COPY = re.compile(rb"copy\s+[\w.]+\s*(?:\([^()]*\)\s*)?from\s+stdin\b", re.IGNORECASE)
_STRINGS = re.compile(rb"^\s*set\s+standard_conforming_strings\s*(?:=|to)\s*(on|off)\s*;?\s*$", re.IGNORECASE)


class Server:
    def __init__(self, folder):
        self.queries = []
        self._listening = socket.socket(socket.AF_UNIX)
        self._listening.bind(os.path.join(folder, ".s.PGSQL.5432"))
        self._listening.listen(1)
        threading.Thread(target=self._serve, daemon=True).start()

    def take_queries(self):
        taken = self.queries[:]
        self.queries.clear()
        return taken

    def _serve(self):
        while True:
            connection, _ = self._listening.accept()
            with connection:
                try:
                    _Session(connection, self.queries).run()
                except (ConnectionError, EOFError):
                    pass


class _Session:
    def __init__(self, connection, queries):
        self._connection = connection
        self._from = connection.makefile("rb")
        self._queries = queries

    def run(self):
        self._begin()
        while True:
            kind, content = self._read()
            if kind == b"X":
                return
            if kind == b"Q":
                self._answer(content.rstrip(b"\0"))
            elif kind == b"P":  # \gdesc asks what a statement would give
                self._queries.append(content.split(b"\0")[1])
                self._send(b"1", b"")
            elif kind == b"D":
                self._send(b"t", b"\0\0")
                self._send(b"n", b"")
            elif kind == b"S":
                self._send(b"Z", b"I")

    def _begin(self):
        while True:
            size = struct.unpack("!i", self._bytes(4))[0]
            code = struct.unpack("!i", self._bytes(4))[0]
            self._bytes(size - 8)
            if code == 196608:
                break
            self._connection.sendall(b"N")  # no encryption
        self._send(b"R", struct.pack("!i", 0))
        for name, value in (("server_version", "15.0"), ("client_encoding", "UTF8"),
                            ("server_encoding", "UTF8"), ("standard_conforming_strings", "on")):
            self._say(name, value)
        self._send(b"Z", b"I")

    def _answer(self, query):
        is_sent_again = self._queries[-1:] == [query] and not query.startswith(b"COPY  ")
        self._queries.append(query)
        first = without_begin(query)
        while first.startswith(b";"):
            first = without_begin(first[1:])
        if not is_sent_again and _COPY.match(first):
            self._send(b"G", b"\0\0\0")
            while self._read()[0] not in (b"c", b"f"):
                pass
        strings = _STRINGS.match(query)
        if strings:
            self._say("standard_conforming_strings", strings[1].decode().lower())
        self._send(b"C", b"DO\0")
        self._send(b"Z", b"I")

    def _say(self, name, value):
        self._send(b"S", f"{name}\0{value}\0".encode())

    def _send(self, kind, content):
        self._connection.sendall(kind + struct.pack("!i", len(content) + 4) + content)

    def _read(self):
        kind = self._bytes(1)
        size = struct.unpack("!i", self._bytes(4))[0]
        return kind, self._bytes(size - 4)

    def _bytes(self, count):
        got = self._from.read(count)
        if len(got) < count:
            raise EOFError
        return got
