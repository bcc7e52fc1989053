#!/usr/bin/env python3
"""Writes the guides and manual pages as plain pages, to stand beside the playground.

    guides.py folder    is run in the root of the project
"""

import html
import pathlib
import shutil
import sys

sys.path.insert(0, "docs/site")
from guides import all_pages  # noqa: E402

FRAME = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<title>{title}</title>
<link rel="icon" href="data:,">
<link rel="stylesheet" href="site.css">
<style>.guide a {{ text-decoration: underline; }}</style>
</head>
<body>
<header class="bar"><a class="name" href="index.html">Quillet</a><a href="../index.html">Playground</a></header>
<main><div class="guide"><h1>{title}</h1>
{contents}
{body}</div></main>
<nav id="contents" aria-label="Contents">{navigation}</nav>
</body>
</html>
"""


def main(folder: pathlib.Path) -> None:
    pages, groups, copied = all_pages()
    navigation = "".join(
        f"<h2>{group}</h2><ul>"
        + "".join(f'<li><a href="{page.file}">{html.escape(page.title)}</a></li>' for page in some)
        + "</ul>"
        for group, some in groups.items()
    )
    folder.mkdir(parents=True, exist_ok=True)
    for page in pages.values():
        body = page.body.replace("<th></th>", "<td></td>").replace("<pre>", '<pre tabindex="0">')
        text = FRAME.format(
            title=html.escape(page.title), contents=page.contents(), body=body, navigation=navigation
        )
        (folder / page.file).write_text(text)
    for name, path in copied.items():
        shutil.copy(path, folder / name)
    shutil.copy("docs/site/site.css", folder)


main(pathlib.Path(sys.argv[1]))
