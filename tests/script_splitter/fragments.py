"""Scripts out of lexical fragments, from a seed."""

import random
import re

# Any program that knows PostgreSQL's lexical rules splits these alike. For libpg_query a statement has a
# keyword, and as many "(" as ")". "⏎" is the end of a line.
_PLAIN = """
select | insert into t values | update | from | where | case when a then b else c end | and | limit
t | a.b | _x | x$1 | a$b$c | ünïcödé | "q" | "a;b" | "a ""b"" ;" | u&"\\0041;" | U&'d\\0061;t' | "$$"
1 | 1.5 | .5 | 1e10 | 1.e-5 | $1 | $2 | $12 | 0 | 1..5
'a' | 'it''s;' | ';' | '--' | '/*' | '*/' | '$$' | 'a⏎b;' | '' | '\\' | '\\\\'
E'a\\';b' | e'\\\\' | E'a''b;' | E'\\n;' | E'' | N'a;b' | n'\\' | B'01' | b';' | X'1F;' | x'a'
$$a;b$$ | $x$;$$;$x$ | $$ $x$ ; $$ | $a1$ ' ; $a1$ | $$$$ | $é$;$é$ | $$--$$ | $b$ $ $b $$ $b$
, | + | - | * | / | % | = | < | > | <> | <= | :: | := | . | [ | ] | [1:2] | @ | # | ~ | & | ^ | ! | ? | || | -> | ->> | @> | =>
(1) | (a;b) | ((;)) | f(x, ';')
/* c */ | /* ; */ | /* a /* ; */ b */ | /**/ | /***/ | /*/ */ | /* ' */ | -- c;
"""

_COMMENT_LINES = ["-- c\n", "-- ;\n", "-- '\n", "--\n", "-- /*\n", "-- c\r", "-- $$\n", "-- \\echo\n"]
_BLANKS = [" ", "\n", "\t", "  ", "\r\n", "\n\n", "\f"]
_CONTINUED = ["E'a'\n';b'", "E'a' -- ;\n '\\\\'", "E'a'\r\n\t--x\n--y\n';'", "'a'\n'b\\'", "E'a' '\\'", "E'a'\n/* */'\\'",
              "E'a'--x\r';'", "U&'a'\n'\\'"]
# psql reads line by line, and sees no escapes in the next line; libpg_query does.
_ESCAPES_IN_NEXT_LINE = ["E'a'\n'\\';", "E'a' -- ;\n '\\';'", "E'a'\r\n\t--x\n--y\n'\\';'"]
_RULES = ["create rule r as on insert to t do (select 1; select 2)", "create table t (a int)",
          "create function f() returns int language sql as $$ select 1; $$", "begin", "end", "commit"]
_PARENTHESES = ["(", ")", ");", "(;", ";"]
_UNENDED = ["'a", "E'a\\'", "\"a", "/* a", "/* /* */", "$$ a", "$x$ $$", "-- a"]

# psql alone knows these.
_COMMANDS = ["\\g\n", "\\gx\n", "\\g /dev/null\n", "\\;", " \\; ", "\\echo a;b\n", "\\echo 'a\\\\' \\\\ ",
             "\\echo 'it''s' \"q;\" \\\\", "\\set x 'a;b'\n", "\\set y 1 \\set z 2 \\\\", "\\r\n", "\\reset\n", "\\:", "a\\:\\:b",
             "\\! : ; \\\\ x\n", "\\echo `echo \\\\` \\\\ ", "\\bogus ; x\n", "\\\\ x\n", "\\gset\n", "\\gset x_ \\\\", "\\gdesc\n", "\\gexec\n",
             "\\p\n", "\\echo 'open \\\\ x\n", "\\echo \"open ; x\n", "\\unset x \\\\", "\\g | cat \\\\ x\n", "\\x \\x \\\\",
             "\\echo\n", "\\echo a\r\n", "\\t \\t \\g\n", "\\crosstabview\n"]
_COPIES = ["copy t from stdin;\n1;'\n$$\n\\.\n", "COPY t (a, b) FROM STDIN WITH (FORMAT csv);\r\na;b\r\n\\.\r\n",
           "copy t from stdin; -- ;\n\\.x\n \\.\n\\.\n", "\\copy t from stdin\n;'\"\n\\.\n", "copy t from stdin \\g\nx;\n\\.\n",
           "copy t from stdin;select 1;\nx;\n\\.\n", "copy t to stdout;\n", "copy t from 'stdin';\n", "\\copy t from 'stdin'\n",
           "copy (select 1 from stdin) to stdout;\n"]
_BODIES = ["create function f() returns int begin atomic select 1; select 2; end", "create or replace procedure p() begin atomic select case when a then b end; end",
           "create function f() begin atomic", "create foreign table f begin", "create policy p begin", "begin", "end", "case",
           "create function", "create or replace", "function", "procedure", "create function f() as $$ begin end; $$ language plpgsql",
           "create function f(begin int) returns int return 1", "create function \"begin\" begin \"end\" ; end"]
_JUNK = ["1a", "1E'a\\'", "1.5e'\\'", "$1a", "1a$$;$$", "0x1F", "1e+", "1_000", "$1$$;$$", ".5E'\\'"]
# How strings are read changes with the next line.
_STRINGS = [";\nset standard_conforming_strings = off;\n", ";\nset standard_conforming_strings to on;\n", "'a\\';'", "'\\\\'", "N'\\';'", "U&'\\'", "'a'\n'\\';'",
            "B'\\'", "U&'a'\n'\\'"]
_VARIABLES = [":a", ":'a'", ":\"a\"", ":'a;b'", ":::a", "a::b", ":=", ": a"]

_WORDS = [word for line in _PLAIN.strip().split("\n") for word in line.replace("⏎", "\n").split(" | ")]


def _plain(choice):
    kind = choice.random()
    if kind < 0.62:
        return choice.choice(_WORDS)
    if kind < 0.72:
        return choice.choice(_COMMENT_LINES)
    if kind < 0.78:
        return choice.choice(_CONTINUED)
    if kind < 0.81:
        return choice.choice(_RULES)
    return "; select "


def _of_psql(choice):
    kind = choice.random()
    if kind < 0.55:
        return _plain(choice)
    if kind < 0.6:
        return ";\n" + choice.choice(_COPIES)
    return choice.choice(choice.choice([_PARENTHESES, _COMMANDS, _COMMANDS, _BODIES, _BODIES, _JUNK, _STRINGS, _VARIABLES, _ESCAPES_IN_NEXT_LINE]))


def generate(seed, is_for_psql):
    choice = random.Random(f"{seed} {is_for_psql}")
    make = _of_psql if is_for_psql else _plain
    # Of a number and a name without a blank libpg_query makes something else than newer psqls.
    blanks = [*_BLANKS, ""] if is_for_psql else _BLANKS
    parts = ["select "]
    for _ in range(choice.randrange(1, 40)):
        parts += [make(choice), choice.choice(blanks)]
    if choice.random() < 0.1:
        parts.append(choice.choice(_UNENDED))
    script = "".join(parts)
    # psql forgets on \\r what comes before a \\; as well, and the server does not see a COPY after one.
    if "\\r" in script or "stdin" in script:
        script = re.sub(r"(?<!\\)\\;", ";", script)
    return script.encode()
