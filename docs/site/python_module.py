"""The public names of a Python module as a page, read from its source."""

import ast
import html
import re
import sys


class Module:
    def __init__(self, path):
        self.path = path
        source = open(path, encoding="utf-8").read()
        self.lines = source.split("\n")
        self.tree = ast.parse(source)
        self.wrong = False

    def page(self):
        """The title and the body."""
        public = next(ast.literal_eval(node.value) for node in self.tree.body if names_of(node) == ["__all__"])
        found = {name: node for node in self.tree.body for name in names_of(node) if name in public}
        said = ast.get_docstring(self.tree)
        body = shown(said) + "".join(self.entry(name, found[name], self.tree.body) for name in sorted(public, key=str.lower))
        if self.wrong:
            sys.exit(1)
        return f"The module {self.path.split('/')[-2]}", body

    def entry(self, name, node, among):
        code = f"<h2><code>{html.escape(name)}</code></h2><pre><code>{html.escape(signature(node))}</code></pre>"
        text = code + shown(self.said(name, node, among))
        if isinstance(node, ast.ClassDef):
            rows = [self.row(node, each) for each in node.body if any(not name.startswith("_") for name in names_of(each))]
            if rows:
                text += "<table><tbody>" + "".join(rows) + "</tbody></table>"
        return text

    def row(self, of, node):
        said = self.said(f"{of.name}.{names_of(node)[0]}", node, of.body)
        return f"<tr><td><code>{html.escape(signature(node))}</code></td><td>{html.escape(said)}</td></tr>"

    def said(self, name, node, among):
        """A docstring, in it or after it, or the comment at the end of its line."""
        if isinstance(node, (ast.ClassDef, ast.FunctionDef)):
            said = ast.get_docstring(node)
        else:
            after = among[among.index(node) + 1:][:1]
            is_text = after and isinstance(after[0], ast.Expr) and isinstance(after[0].value, ast.Constant)
            comment = re.search(r"  # (.*)", self.lines[node.end_lineno - 1])
            said = after[0].value.value if is_text else comment and comment[1]
        if not said:
            self.wrong = True
            print(f"{self.path}:{node.lineno}: {name} is not described", file=sys.stderr)
        return said or ""


def names_of(node):
    if isinstance(node, (ast.ClassDef, ast.FunctionDef)):
        return [node.name]
    targets = node.targets if isinstance(node, ast.Assign) else [node.target] if isinstance(node, ast.AnnAssign) else []
    return [target.id for target in targets if isinstance(target, ast.Name)]


def signature(node):
    if isinstance(node, ast.ClassDef):
        return f"class {node.name}({', '.join(map(ast.unparse, node.bases))})".removesuffix("()")
    if isinstance(node, ast.FunctionDef):
        result = f" -> {ast.unparse(node.returns)}" if node.returns else ""
        if any(isinstance(each, ast.Name) and each.id == "property" for each in node.decorator_list):
            return f"{node.name}: {ast.unparse(node.returns)}"
        return f"{node.name}({ast.unparse(node.args)}){result}"
    return ast.unparse(node)


def shown(text):
    """Paragraphs, and examples as they are."""
    parts = (html.escape(part, quote=False) for part in text.split("\n\n") if part)
    examples = (re.sub(r"(^|\n)((?:&gt;&gt;&gt;|\.\.\.).*(?:\n.+)*)", r"</p><pre><code>\2</code></pre><p>", part) for part in parts)
    return re.sub(r"`([^`]*)`", r"<code>\1</code>", "".join(f"<p>{part}</p>" for part in examples)).replace("<p></p>", "")
