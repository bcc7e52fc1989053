#!/usr/bin/env python3
"""Checks the finished site; what is wrong is printed, and makes it fail.

    check.py folder [library]    has html and xml in it; a shared library

Every page has a title and a heading, every link of the site leads to something, and every public name is
described on the page that the XML says. The names that the library exports are among these. Links to
other sites are listed.
"""

import html.parser
import pathlib
import subprocess
import sys
from urllib.parse import unquote, urlsplit

from names import public_names


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.anchors, self.links, self.texts, self.inside = [], [], {"title": "", "h1": ""}, []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.anchors += filter(None, [attributes.get("id")])
        self.links += filter(None, [attributes.get("href"), attributes.get("src")])
        if tag in self.texts:
            self.inside.append(tag)

    def handle_endtag(self, tag):
        if tag in self.inside:
            self.inside.remove(tag)

    def handle_data(self, data):
        for tag in self.inside:
            self.texts[tag] += data.strip()


def wrong_links(folder, pages, external):
    for name, page in pages.items():
        for link in page.links:
            parts = urlsplit(link)
            if parts.scheme:
                external.add(link)
                continue
            target = unquote(parts.path) or name
            if not (folder / target).is_file():
                yield f"{name}: nothing is at {link}"
            elif parts.fragment and unquote(parts.fragment) not in pages[target].anchors:
                yield f"{name}: no such place: {link}"


def wrong_pages(pages):
    for name, page in pages.items():
        yield from (f"{name}: no {tag}" for tag, text in page.texts.items() if not text)
        yield from (f"{name}: twice: {anchor}" for anchor in set(page.anchors) if page.anchors.count(anchor) > 1)


def wrong_names(names, pages, exported):
    for each in names:
        page, _, anchor = each.place.partition("#")
        if not each.said:
            yield f"{each.name} ({each.kind}) is not described"
        elif page not in pages or (anchor and anchor not in pages[page].anchors):
            yield f"{each.name} ({each.kind}) is not at {each.place}"
    known = {each.name for each in names}
    yield from (f"{name} is exported and has no description" for name in exported if name not in known)


def exported_names(library):
    command = ["nm", "--dynamic", "--defined-only", "--format=just-symbols", library]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.split()


def main(folder, *libraries):
    site = pathlib.Path(folder)
    pages = {path.name: Page(path) for path in sorted((site / "html").glob("*.html"))}
    names = list(public_names(site / "xml"))
    exported = [name for library in libraries for name in exported_names(library)]
    external = set()
    wrong = [*wrong_links(site / "html", pages, external), *wrong_pages(pages), *wrong_names(names, pages, exported)]
    if "index.html" not in pages or not names or (libraries and not exported):
        wrong.append("no pages, or no names")
    print(*(f"To another site: {link}" for link in sorted(external)), sep="\n")
    print(f"{len(pages)} pages, {sum(len(page.links) for page in pages.values())} links, {len(names)} names,",
          f"{len(exported)} of a library" if libraries else "no library to compare them with")
    print(*wrong, sep="\n", end="\n" if wrong else "", file=sys.stderr)
    return 1 if wrong else 0


sys.exit(main(*sys.argv[1:]))
