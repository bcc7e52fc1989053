#!/usr/bin/env python3
"""Finishes the pages that Doxygen has made.

    finish.py folder    has html, xml and guides in it

Titles become headings, names in the guides lead to their descriptions, the search gets what it looks in,
and files that no page needs go.
"""

import json
import pathlib
import re
import shutil
import sys

from guides import API, text_of
from names import public_names

SITE = pathlib.Path(__file__).parent
LINKED = re.compile(r'(?:href|src)="([^"#?:]+)')


def with_heading(name, page):
    """Doxygen's titles are no headings, and its indexes have none of their own."""
    for title in (text for text, file in API.items() if file == name and '<div class="title">' not in page):
        page = with_names_as_links(page)
        page = page.replace("<main>", f'<main>\n<h1 class="title">{title}</h1>')
        page = re.sub("<title>.*?</title>", f"<title>{title}</title>", page)
    page = page.replace(" File Reference", "")
    page = re.sub(r'<div class="title">(.*?)\s*</div>', r'<h1 class="title">\1</h1>', page, flags=re.DOTALL)
    if 'id="nested-classes"' not in page:  # the only ones are private
        page = re.sub(r'<a href="#nested-classes">[^<]*</a> &#124;', "", page)
    return re.sub(r'\s*<a href="[^"]*">More\.\.\.</a>', "", page)


def with_names_as_links(page):
    """In Doxygen's indexes the header is the link, and there is a heading for each letter."""
    page = re.sub(r'<li>([\w()]+)&#160;:&#160;(<a class="el" [^>]*>).*?</a>', r"<li>\2\1</a>", page)
    return re.sub(r"(&#160;\s*)?<h3>.*?- \w -</h3>", "", page)


def with_description_first(page):
    """Puts what a header or a record is for before the list of what it has."""
    heading = '<a name="details" id="details"></a><h2 class="groupheader">Detailed Description</h2>'
    found = re.search(heading + r'(.*?)(?=<h2 class="groupheader">|<a id=|<hr/>|</div><!-- contents -->)', page, re.DOTALL)
    if not found:
        return page
    page = page.replace(found[0], "")
    return re.sub(r'(<div class="contents">\s*)<p>.*?</p>', lambda start: start[1] + found[1], page, count=1, flags=re.DOTALL)


def with_links(page, places):
    """Turns a name that stands alone as code into a link, unless it is one."""
    def turn(code):
        place = places.get(code[2].removesuffix("()"))
        return f'<a href="{place}">{code[0]}</a>' if place and not code[1] else code[0]
    return re.sub(r"(<a [^>]*>)?<code>([\w:]+(?:\(\))?)</code>", turn, page)


def search_entries(pages, names):
    """What the search looks in: a text, a place and what it is."""
    for name, page in pages.items():
        title = re.search(r'<h1 class="title">(.*?)</h1>', page, re.DOTALL)
        if '<div class="guide"' in page:
            yield text_of(title[1]), name, "guide"
            for place, text in re.findall(r'<h[23] id="([^"]*)">(.*?)</h[23]>', page):
                yield text_of(text), f"{name}#{place}", text_of(title[1])
    for each in names:
        yield each.name, each.place, each.said


def needed(html):
    """The files that can be reached from the first page."""
    found, to_look_at = set(), ["index.html"]
    while to_look_at:
        name = to_look_at.pop()
        if name in found or not (html / name).is_file():
            continue
        found.add(name)
        if name.endswith(".html"):
            to_look_at += LINKED.findall((html / name).read_text())
    return found


def finish(folder):
    html = folder / "html"
    names = list(public_names(folder / "xml"))
    places = {each.name: each.place for each in names if re.search("_|::", each.name) and each.kind != "file"}
    pages = {}
    for path in sorted(html.glob("*.html")):
        page = with_description_first(with_heading(path.name, path.read_text()))
        pages[path.name] = with_links(page, places) if '<div class="guide"' in page else page
        path.write_text(pages[path.name])

    shutil.copy(SITE / "site.css", html)
    shutil.copy(SITE / "search.js", html)
    for name in (folder / "guides" / "copied").read_text().split("\n")[:-1]:
        shutil.copy(folder / "guides" / name, html)
    kept = needed(html)
    entries = sorted(search_entries({name: pages[name] for name in pages if name in kept}, names))
    (html / "search-data.js").write_text(f"const searchEntries = {json.dumps(entries, ensure_ascii=False, indent=0)};\n")
    for path in html.iterdir():
        if path.name not in kept and path.name != "search-data.js":
            shutil.rmtree(path) if path.is_dir() else path.unlink()


finish(pathlib.Path(sys.argv[1]))
