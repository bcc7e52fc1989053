#!/usr/bin/env python3
"""Writes a public header as Doxygen reads it: Doxygen calls this for each.

The headers have plain comments and make families of declarations of the lists beside them. Here a
comment becomes that of the declaration which it stands before, or after in its line; a list is expanded
where it is included; what stands before the macros of a family is said of the header; and declarations in
lines that follow each other share the comment of the first.
In comments of macros <name> stands for the argument of that name, and <...> for the remaining ones.
"""

import pathlib
import re
import sys

COMMENT = re.compile(r"/\*(.*?)\*/", re.DOTALL)
ROW = re.compile(r"\s*([A-Z]+)\((.*)\)\s*(?:/\*(.*)\*/)?", re.DOTALL)
ARGUMENT = re.compile(r'((?:"(?:\\.|[^"])*"|\([^)]*\)|[^,"(])+)(?:,\s*|$)')
MACRO = re.compile(r"#define ([A-Z]+)\(([^)]*)\)(.*)", re.DOTALL)
LIST = re.compile(r'#include "(\w+\.def)"')
NAME = re.compile(r"\b(?:quillet|QUILLET)_\w*[^\W_]\b(?!\.(?:h|hpp|def)\b|[<*\\])")


def logical_lines(text):
    """Lines, joined where a comment or a backslash goes on."""
    lines = text.split("\n")
    while lines:
        taken = 1
        while lines[taken - 1].endswith("\\") or COMMENT.sub("", "\n".join(lines[:taken])).count("/*"):
            taken += 1
        yield "\n".join(lines[:taken])
        del lines[:taken]


class Comments:
    """Turns plain comments into Doxygen's."""

    def escaped(self, text):
        text = re.sub(r"([\\@<>#%&$])", r"\\\1", text)
        return NAME.sub(lambda name: name[0] if re.search("[a-z]_[A-Z]", name[0]) else f"#{name[0]}", text)

    def text(self, comment, repeat=False, of_family=False):
        """What a comment says: examples, which are set in by four blanks, stay as they are."""
        first, *rest = comment.split("\n")
        lines = [first.strip()] + [re.sub(r"^ ?\*? ?", "", line).rstrip() for line in rest]
        said, example = [], False
        for line in lines:
            if line and example != line.startswith("    ") and (example or not said[-1]):
                example = not example
                said.append("@code{.cpp}" if example else "@endcode")
            said.append(line if example else self.escaped(re.sub(r"^ +(?!- )", "", line)))
        text = "\n".join(said + ["@endcode"] * example).strip()
        if of_family:
            return text
        first = re.match(r".*?\.(?=\s)", text, re.DOTALL)
        return f"@brief {first[0] if first else text}" + f"\n\n{text}" * bool(first or repeat)

    def turned(self, code, repeat=False):
        """Code with its comments turned: after code in its line a comment is about that. What stands before it
        is repeated in its description if asked for: Doxygen takes the first sentence for the list alone."""
        def turn(comment):
            after = code[:comment.start()].rpartition("\n")[2].strip()
            return f"/**{'<' * bool(after)} {self.text(comment[1], repeat and not after)} */"
        return COMMENT.sub(turn, code)


class Families:
    """The macros of a header, and what they make of lists."""

    def __init__(self, folder, comments):
        self.folder = folder
        self.comments = comments
        self.macros = {}

    def define(self, name, parameters, body):
        code = re.sub(r"\s*\\\n", "\n", body).strip()
        self.macros[name] = [each.strip() for each in parameters.split(",")], self.comments.turned(code)

    def made_of(self, file):
        """The declarations that a list makes; it undefines its macros."""
        made, used, remark = [], set(), ""
        for line in logical_lines((self.folder / file).read_text()):
            row = ROW.fullmatch(line)
            if row:
                used.add(row[1])
                if row[1] in self.macros:
                    made.append(self.remarked(self.call(row[1], row[2]), f"{remark} {row[3] or ''}"))
            alone = COMMENT.fullmatch(line)
            remark = alone[1] if alone and "clang-format" not in line else ""
        for name in used & self.macros.keys():
            del self.macros[name]
        return " ".join(made)

    def remarked(self, code, remark):
        """Adds a row's remark to the comment of a record or an enumerator: it is not about functions."""
        remark = self.comments.escaped(" ".join(remark.split()))
        if remark and re.search(r"\{|,\s*(/\*|$)", COMMENT.sub("/*", code)):
            return code.replace("*/", f"{remark} */", 1)
        return code

    def call(self, name, arguments):
        parameters, body = self.macros[name]
        values = [value.strip() for value in ARGUMENT.findall(arguments)]
        given = dict(zip(parameters, values))
        if parameters[-1] == "...":
            given["..."] = ", ".join(values[len(parameters) - 1:])

        parts = re.split(r"(/\*.*?\*/)", body, flags=re.DOTALL)
        for at, part in enumerate(parts):
            for parameter, value in given.items():
                if at % 2:
                    part = part.replace(f"\\<{parameter}\\>", self.comments.escaped(value))
                elif parameter != "...":
                    part = re.sub(rf"(?<!\w){parameter}(?!\w)", value, part)
            parts[at] = part if at % 2 else re.sub(r"\s*##\s*", "", part)
        return re.sub(r"\b([A-Z]+)\((.*)\)", self.called_again, "".join(parts))

    def called_again(self, call):
        return self.call(call[1], call[2]) if call[1] in self.macros else call[0]


class Shared:
    """The comment of a declaration, for those in the lines that follow it."""

    def __init__(self):
        self.comment, self.margin, self.above = "", 0, ""

    def comment_of(self, line):
        margin = len(line) - len(line.lstrip())
        if not line or COMMENT.fullmatch(line.strip()):
            self.comment, self.margin = line.strip(), margin
        follows = self.above.endswith((";", "}", "*/")) or self.above.startswith("#define")
        shares = follows and not COMMENT.fullmatch(self.above.strip()) and margin == self.margin
        self.above = line
        return self.comment if shares and re.match(r"\s*(\w|#define)", line) else ""


def with_c_comments(text):
    """Turns // comments, of which those in lines that follow each other are one."""
    def turn(comment):
        return "/* " + re.sub(r"\n *// ?", "\n", comment[0][2:]).strip() + " */"
    return re.sub(r"//.*(\n *//.*)*", turn, text)


def written(header):
    comments = Comments()
    families = Families(header.parent, comments)
    shared = Shared()
    text = header.read_text()
    if header.suffix == ".hpp":
        text = with_c_comments(text)
    lines = list(logical_lines(text)) + [""]
    for at, line in enumerate(lines[:-1]):
        if macro := MACRO.fullmatch(line):
            families.define(*macro.groups())
            made = ""
        elif included := LIST.fullmatch(line):
            made = families.made_of(included[1])
        elif COMMENT.fullmatch(line) and (at == 0 or MACRO.fullmatch(lines[at + 1])):
            made = f"/** @file\n{comments.text(COMMENT.fullmatch(line)[1], repeat=True, of_family=at > 0)} */"
        else:
            leading = shared.comment_of(line)
            described = line if leading else lines[at + 1]
            made = comments.turned(f"{leading} {line}", re.match(r"enum|.*\); /\*", described))
        print(made)


written(pathlib.Path(sys.argv[1]))
