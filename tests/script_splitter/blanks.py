"""Blanks and comments of a script."""

import re

BLANKS = re.compile(rb"(?:[ \t\n\r\f\v]+|--[^\n\r]*)*")
COMMENT_MARK = re.compile(rb"/\*|\*/")


def without_begin(text):
    """A text without the blanks and comments that it begins with."""
    while True:
        text = text[BLANKS.match(text).end():]
        if not text.startswith(b"/*"):
            return text
        depth = 0
        for mark in COMMENT_MARK.finditer(text):
            depth += 1 if mark[0] == b"/*" else -1
            if depth == 0:
                text = text[mark.end():]
                break
        else:
            return b""
