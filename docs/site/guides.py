#!/usr/bin/env python3
"""Writes the guides and manual pages as pages for Doxygen, and the frame round all pages.

    guides.py folder    is run in the root of the project

A guide is turned by cmark-gfm, whose Markdown is GitHub's: Doxygen's own takes quotes and bars within
code for marks. Links between guides and to their headings hold as they do there.
"""

import html
import os
import pathlib
import re
import subprocess
import sys
from urllib.parse import urlsplit

from python_module import Module

GROUPS = {
    "Guides": ["README.md", "docs/*.md"],
    "Manual pages": ["docs/man/*.pod"],
    "Python": ["bindings/python/README.md", "bindings/python/src/quillet/__init__.py"],
    "JavaScript": ["bindings/wasm/README.md"],
    "Quillet from inside": ["CONTRIBUTING.md", "lib/README.md", "truth/README.md"],
}
API = {
    "quillet.h": "quillet_8h.html",
    "quillet.hpp": "quillet_8hpp.html",
    "All headers": "files.html",
    "All records": "annotated.html",
    "All functions": "globals_func.html",
    "All codes": "globals_eval.html",
}
NAMES = {
    "README.md": "index",
    "bindings/python/README.md": "python",
    "bindings/python/src/quillet/__init__.py": "python-module",
    "bindings/wasm/README.md": "javascript",
}


class Page:
    def __init__(self, path, copied):
        self.path = path
        self.copied = copied  # what the pages show or link besides: its file, by its place in the site
        folder = os.path.basename(os.path.dirname(path)) if path.endswith("README.md") else ""
        stem = os.path.basename(path).removesuffix(".md").removesuffix(".pod")
        self.name = NAMES.get(path) or (folder or stem).lower().replace(".", "-")
        self.file = self.name + ".html"
        self.title, self.body = READERS[os.path.splitext(path)[1]](path)

    def finish(self, pages):
        self.headings = []
        taken = {}

        def with_id(heading):
            level, inner = heading[1], heading[2]
            slug = re.sub(r"[^\w\- ]", "", text_of(inner).lower()).replace(" ", "-")
            taken[slug] = taken.get(slug, -1) + 1
            slug += f"-{taken[slug]}" if taken[slug] else ""
            self.headings.append((int(level), slug, inner))
            return f'<h{level} id="{slug}">{inner}</h{level}>'

        self.body = re.sub(r"<h([2-6])>(.*?)</h\1>", with_id, self.body)
        self.body = re.sub(r'(href|src)="([^"]*)"', lambda link: f'{link[1]}="{self.target(link[2], pages)}"', self.body)
        if self.path.endswith(".pod"):
            self.body = re.sub(r"([\w-]+)\((\d)\)", lambda name: self.reference(name, pages), self.body)
        self.body = re.sub(r"<table>.*?</table>", r'<div class="scroll">\g<0></div>', self.body, flags=re.DOTALL)

    def reference(self, name, pages):
        """Another manual page, such as quillet(1), as a link if there is one."""
        page = pages.get(f"docs/man/{name[1]}.{name[2]}.pod", self)
        return name[0] if page is self else f'<a href="{page.file}">{name[0]}</a>'

    def target(self, link, pages):
        """Where a link of the sources goes in the site."""
        parts = urlsplit(html.unescape(link))
        if parts.scheme or not parts.path:
            return link
        path = os.path.normpath(os.path.join(os.path.dirname(self.path), parts.path))
        if path in pages:
            return pages[path].file + (f"#{parts.fragment}" if parts.fragment else "")
        if not os.path.isfile(path):
            sys.exit(f"{self.path}: nothing is at {link}")
        self.copied[os.path.basename(path)] = path
        return os.path.basename(path)

    def contents(self):
        deepest = 3 if sum(level == 2 for level, *_ in self.headings) < 10 else 2
        shown = [each for each in self.headings if each[0] <= deepest]
        if len(shown) < 3:
            return ""
        items = "".join(f'<li class="level{level}"><a href="#{slug}">{inner}</a></li>' for level, slug, inner in shown)
        return f'<details class="toc"><summary>On this page</summary><ul>{items}</ul></details>'


def text_of(markup):
    return html.unescape(re.sub(r"<[^>]*>", "", markup))


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def guide(path):
    body = output_of("cmark-gfm", "--extension", "table", "--unsafe", path)
    title = re.match(r"<h1>(.*?)</h1>\n", body)
    if not title:
        sys.exit(f"{path}: no title")
    return text_of(title[1]), body[title.end():]


def manual_page(path):
    program = """my $pod = Pod::Simple::XHTML->new; $pod->html_header(''); $pod->html_footer('');
        $pod->complain_stderr(1); $pod->html_encode_chars('<>&"');
        $pod->output_fh(*STDOUT); $pod->parse_file($ARGV[0]); exit $pod->any_errata_seen"""
    body = output_of("perl", "-CO", "-MPod::Simple::XHTML", "-e", program, path)
    body = re.sub(r'<h([1-5]) id="[^"]*">', lambda heading: f"<h{int(heading[1]) + 1}>", body)
    body = re.sub(r"</h([1-5])>", lambda heading: f"</h{int(heading[1]) + 1}>", body)
    name, section = os.path.basename(path).removesuffix(".pod").rsplit(".", 1)
    return f"{name}({section})", body


READERS = {".md": guide, ".pod": manual_page, ".py": lambda path: Module(path).page()}


def all_pages():
    """The pages by their paths, and their groups."""
    copied, pages, groups = {}, {}, {}
    for group, patterns in GROUPS.items():
        paths = [str(path) for pattern in patterns for path in sorted(pathlib.Path().glob(pattern))]
        groups[group] = [pages.setdefault(path, Page(path, copied)) for path in paths]
    for page in pages.values():
        page.finish(pages)
    return pages, groups, copied


def navigation(groups):
    def section(title, links):
        items = "".join(f'<li><a href="{file}">{html.escape(text)}</a></li>' for text, file in links)
        return f"<h2>{title}</h2><ul>{items}</ul>"

    sections = [section(title, [(page.title, page.file) for page in pages]) for title, pages in groups.items() if pages]
    return "\n".join(sections[:1] + [section("The API", API.items())] + sections[1:])


def write(folder):
    pages, groups, copied = all_pages()
    folder.mkdir(parents=True, exist_ok=True)
    commands = []
    for page in pages.values():
        fragment = f'<div class="guide" data-page="{page.name}">{page.contents()}\n{page.body}</div>\n'
        (folder / f"{page.name}.inc").write_text(fragment)
        command = "@mainpage" if page.name == "index" else f"@page {page.name}"
        commands.append(f"/** {command} {page.title}\n@htmlinclude[block] {page.name}.inc\n*/\n")
    (folder / "pages.dox").write_text("".join(commands))
    for name, path in copied.items():
        (folder / name).write_bytes(pathlib.Path(path).read_bytes())

    here = pathlib.Path(__file__).parent
    (folder / "header.html").write_bytes((here / "header.html").read_bytes())
    footer = (here / "footer.html").read_text()
    (folder / "footer.html").write_text(footer.replace("<!-- navigation -->", navigation(groups)))
    (folder / "copied").write_text("".join(f"{name}\n" for name in copied))


if __name__ == "__main__":
    write(pathlib.Path(sys.argv[1]))
