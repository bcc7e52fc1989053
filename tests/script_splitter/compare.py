"""Compares where statements begin and end with what psql sends and with what libpg_query finds.

  tests/script_splitter/compare [--scripts COUNT] [--seed NUMBER] [FILE...]

Without a FILE the scripts of tests/script_splitter/scripts are compared, and COUNT generated ones for
either of the two.

psql: each of its queries must be a statement of ours, byte by byte, with nothing before it but blanks
and comments, and nothing after it but those and the semicolon. psql takes its own commands out of a
query, and the backslashes of \\; and \\: as well. A query of several statements is expected where a
\\; stands between them; one without any is none.

libpg_query: each of its statements must be one of ours, both without the blanks and comments that they
begin and end with. Where it differs from psql, psql is right. So these scripts are left out:

  with what psql alone knows: its commands, COPY's data, BEGIN ATOMIC
  with a backslash in a string that goes on in another line: psql reads line by line and has no escapes
  there, libpg_query has those of E'...'
  with a statement that does not begin with a word, which is none for libpg_query
  with a byte order mark, or without the end of a parenthesis
  that its scanner gives up, as it does where something has no end
"""

import argparse
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from blanks import without_begin
from fragments import generate
from server import Server

FOLDER = Path(__file__).parent
BUILD = Path("build/compare/tests/script_splitter")
BATCH = 400
SEPARATOR = b"SET standard_conforming_strings TO on;"
ESCAPE_IN_NEXT_LINE = re.compile(
    rb"'[ \t\f]*(?:--[^\n\r]*)?[\n\r](?:[ \t\n\r\f]|--[^\n\r]*[\n\r])*'[^']*\\", re.DOTALL)
# What makes a script psql's alone.
PSQL_ONLY = re.compile(rb"^\s*\\[a-z]|\\[;:]|\\(?:g|r|reset)\s|begin\s+atomic|from\s+stdin|standard_conforming", re.IGNORECASE)

BLANK_BYTES = (b" ", b"\t", b"\n", b"\r", b"\f")


class Statement:
    def __init__(self, script, begin, end, commands):
        self.begin = begin
        self.end = end
        self.text = script[begin:end]
        for command_begin, command_end in reversed(commands):
            self.text = self.text[:command_begin - begin] + self.text[command_end - begin:]
        self.has_companion = False  # a query of psql goes on after it

    def taken_from(self, query):
        """What a query has after the statement; None if it does not begin with it. Where psql takes a
        command or an empty line out, it leaves blanks or not: they are not compared."""
        at = 0
        for byte, following in zip(self.text, self.text[1:] + b" "):
            if byte in b" \t\n\r\f":
                continue
            while query[at:at + 1] in BLANK_BYTES:
                at += 1
            if query[at:at + 1] == bytes([byte]):
                at += 1
            elif byte != ord("\\") or following not in b";:":
                return None
        return query[at:]


SENDERS = ("\\g", "\\gx", "\\gset", "\\gexec", "\\gdesc", "\\crosstabview")


def is_followed_by_separator(script, at, between):
    """Whether the next thing that is no command is a \\;."""
    while True:
        at = len(script) - len(without_begin(script[at:]))
        if at not in between:
            return script.startswith(b"\\;", at)
        at = between[at]


def our_pieces(files):
    """For each file its statements, and whether one of psql's commands sends the last query again."""
    scripts = {}
    found = None
    output = subprocess.run([BUILD / "script_pieces", *files], stdout=subprocess.PIPE, check=True).stdout
    for line in output.decode().splitlines() + ["file end"]:
        what, _, rest = line.partition(" ")
        where = [rest] if what == "file" else rest.split()
        if what == "file":
            for statement in (each for each in (found or []) if each != "again"):
                statement.has_companion = is_followed_by_separator(script, statement.end, between)
            if where[0] == "end":
                break
            found = scripts[where[0]] = []
            script = Path(where[0]).read_bytes()
            if script.startswith(b"\xef\xbb\xbf"):
                script = script[3:]
            commands = []
            between = {}
            is_sent = False
            continue
        if what == "sent":
            is_sent = True
            continue
        begin, end = map(int, where)
        if what == "inside":
            commands.append((begin, end))
        elif what == "statement":
            found.append(Statement(script, begin, end, commands))
            commands = []
        elif what in ("command", "copy"):
            between[begin] = end
        if what == "command":
            if not is_sent and script[begin:end].decode(errors="replace").split(maxsplit=1)[0] in SENDERS:
                found.append("again")
            is_sent = False
    return scripts


def psql_queries(files, scratch, server):
    """For each file what psql sends of it."""
    separator = Path(scratch, "separator.sql")
    separator.write_bytes(SEPARATOR)
    words = ["psql", "--no-psqlrc", "--quiet", "-h", scratch, "-U", "someone", "-d", "anything"]
    for file in files:
        words += ["-f", separator, "-f", file]
    subprocess.run(words, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                   env={**os.environ, "PGCLIENTENCODING": "UTF8", "LC_ALL": "C.UTF-8"}, timeout=300)
    scripts = []
    for query in server.take_queries():
        if query == SEPARATOR:
            scripts.append([])
        else:
            scripts[-1].append(query)
    if len(scripts) != len(files):
        raise SystemExit(f"psql ran {len(scripts)} scripts of {len(files)}")
    return dict(zip(files, scripts))


def fault_of_queries(queries, pieces):
    """What is different; None for nothing."""
    pieces = list(pieces)
    last = None
    for query in queries:
        if query.startswith(b"COPY  "):
            continue  # psql makes it of \\copy
        rest = without_begin(query)
        while rest.startswith(b";") and rest != b";":  # it was \\;
            rest = without_begin(rest[1:])
        if rest.strip(b"; \t\r\n\f") == b"" and not any(isinstance(each, Statement) for each in pieces[:1]):
            if pieces and pieces[0] == "again":
                pieces.pop(0)
            continue
        if rest in (b"", b";"):
            continue
        if pieces and pieces[0] == "again":
            pieces.pop(0)
            if query == last:
                continue
        last = query
        while True:
            while pieces and pieces[0] == "again":
                pieces.pop(0)
            if not pieces:
                return f"psql sends one more: {query!r}"
            ours = pieces.pop(0)
            after = ours.taken_from(rest)
            if after is None:
                return f"psql sends {rest!r}, where we have {ours.text!r}"
            after = without_begin(after)
            while ours.has_companion and after.startswith(b";"):
                after = without_begin(after[1:])
                if not after:
                    break
            if after in (b"", b";"):
                break
            if not ours.has_companion:
                return f"psql sends {rest!r}, of which we have {ours.text!r} alone"
            rest = after
    left = [each for each in pieces if each != "again"]
    return f"psql does not send {left[0].text!r}" if left else None


def is_for_pg_query(name, pieces):
    script = Path(name).read_bytes()
    return (not script.startswith(b"\xef\xbb\xbf") and not name.endswith("unended_parenthesis.sql") and
            not PSQL_ONLY.search(script) and not ESCAPE_IN_NEXT_LINE.search(script) and
            all(re.match(rb"[a-zA-Z]{3}", each.text) for each in pieces if each != "again"))


def pg_query_statements(files):
    """For each file the statements as pairs of places; None if there is an error."""
    scripts = {}
    output = subprocess.run([BUILD / "pg_query_statements", *files], stdout=subprocess.PIPE, check=True).stdout
    for line in output.decode().splitlines():
        what, _, rest = line.partition(" ")
        where = [rest] if what == "file" else rest.split()
        if what == "file":
            name = where[0]
            scripts[name] = []
        elif what == "error":
            scripts[name] = None
        else:
            scripts[name].append(tuple(map(int, where)))
    return scripts


def fault_of_statements(script, found, pieces):
    theirs = [without_begin(script[begin:end]) for begin, end in found]
    theirs = [text for text in theirs if text]
    ours = [each.text for each in pieces if each != "again"]
    for index in range(max(len(theirs), len(ours))):
        their = theirs[index] if index < len(theirs) else None
        our = ours[index] if index < len(ours) else None
        if their is None or our is None or not their.startswith(our) or without_begin(their[len(our):]):
            return f"libpg_query has {their!r}, where we have {our!r}"
    return None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--scripts", type=int, default=4000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("FILE", nargs="*")
    asked = parser.parse_args()

    with tempfile.TemporaryDirectory(prefix="scripts.") as scratch:
        server = Server(scratch)
        own = asked.FILE or sorted(map(str, FOLDER.glob("scripts/*.sql")))
        generated = {True: [], False: []}
        for is_for_psql in (() if asked.FILE else (True, False)):
            for index in range(asked.scripts):
                name = os.path.join(scratch, f"{'psql' if is_for_psql else 'plain'}{index}.sql")
                Path(name).write_bytes(generate(f"{asked.seed} {index}", is_for_psql))
                generated[is_for_psql].append(name)
        everything = own + generated[True] + generated[False]
        for_both = own + generated[False]

        faults = []
        statements = 0
        pieces = {}
        for at in range(0, len(everything), BATCH):
            batch = everything[at:at + BATCH]
            pieces.update(our_pieces(batch))
            queries = psql_queries(batch, scratch, server)
            for name in batch:
                statements += sum(each != "again" for each in pieces[name])
                faults.append((name, fault_of_queries(queries[name], pieces[name])))
        print(f"psql: {len(everything)} scripts, {statements} statements")

        compared = given_up = statements = 0
        for_both = [name for name in for_both if is_for_pg_query(name, pieces[name])]
        for at in range(0, len(for_both), BATCH):
            for name, found in pg_query_statements(for_both[at:at + BATCH]).items():
                if found is None:
                    given_up += 1
                    continue
                compared += 1
                statements += len(found)
                faults.append((name, fault_of_statements(Path(name).read_bytes(), found, pieces[name])))
        print(f"libpg_query: {compared} scripts, {statements} statements; {given_up} it gives up")

        faults = [(name, fault) for name, fault in faults if fault]
        for name, fault in faults[:10]:
            print(f"\n{name}: {fault}\n{Path(name).read_bytes()!r}")
        print(f"{len(faults)} differences")
        sys.exit(1 if faults or compared == 0 else 0)


if __name__ == "__main__":
    main()
