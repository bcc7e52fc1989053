"""The warnings and notes of a builder, from the list in its room."""

import os
import re
from collections import namedtuple

LISTS = {"mysql": "lib/mysql/quillet_mysql_notices.def",
         "postgresql": "lib/postgresql/quillet_postgresql_notices.def"}

Notice = namedtuple("Notice", "builder severity id message hint")

STRINGS = r'(?:"[^"]*"\s*)+'
_ENTRY = re.compile(
    rf'^NOTICE\(\s*\w+,\s*QUILLET_(\w+),\s*"([^"]+)",\s*({STRINGS}),\s*(no_hint|{STRINGS})\)', re.MULTILINE
)


def joined(strings):
    return "".join(re.findall(r'"([^"]*)"', strings)) or None


def notices(builder):
    with open(LISTS[builder], encoding="utf-8") as file:
        text = file.read()
    found = [Notice(builder, entry[1].lower(), entry[2], joined(entry[3]), joined(entry[4]))
             for entry in _ENTRY.finditer(text)]
    if len(found) != len(re.findall(r"^NOTICE\(", text, re.MULTILINE)):
        raise SystemExit(f"truth/run: {LISTS[builder]} has an entry that cannot be read")
    return found
