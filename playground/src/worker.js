// Translates in a thread of its own, one request after the other.

import { quillet } from './library';
import { SyntaxTree } from './syntax_tree';

const most = 1000; // diagnostics that are shown

let inspected = null;

function withFewer({ diagnostics, ...made }) {
    return { ...made, diagnostics: diagnostics.slice(0, most), found: diagnostics.length };
}

function treeOf(statement) {
    if (inspected?.statement !== statement) {
        const { code, root, diagnostics } = quillet.inspect(statement);
        inspected = { statement, code, diagnostics, tree: root && new SyntaxTree(root) };
    }
    return inspected;
}

const answers = {
    translate: ({ statement, to }) => withFewer(quillet.translate(statement, { to })),
    inspect({ statement }) {
        const { code, diagnostics } = treeOf(statement);
        return withFewer({ code, diagnostics });
    },
    outline: ({ statement, nodes, depth }) => treeOf(statement).tree?.outline(nodes, depth) ?? null,
    children: ({ statement, id, from, count }) => treeOf(statement).tree.children(id, from, count),
    expressions: ({ statement, from, count }) =>
        treeOf(statement).tree?.expressions(from, count) ?? { found: [], all: 0 },
    expressionAt: ({ statement, index }) => treeOf(statement).tree?.expressionAt(index) ?? null,
};

onmessage = ({ data }) => {
    try {
        postMessage({ answer: answers[data.kind](data) });
    } catch (error) {
        postMessage({ error: String(error) });
    }
};
