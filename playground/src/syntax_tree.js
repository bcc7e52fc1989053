// A tree that stays where it was made: what is shown of it is handed out in pieces. No walk
// recurses, as a chain of operators may be as deep as it is long.

const isTyped = (node) => node.kind === 'expression' && node.type !== null;

export class SyntaxTree {
    constructor(root) {
        this.root = root;
        this.given = []; // nodes by their ids
        this.ids = new Map();
    }

    #facts(node) {
        let id = this.ids.get(node);
        if (id === undefined) {
            id = this.given.push(node) - 1;
            this.ids.set(node, id);
        }
        const { kind, label, start, end, type, children } = node;
        return { id, kind, label, start, end, type, size: children.length };
    }

    // The first nodes, level by level, with up to so many of them and down to so many levels.
    outline(most, depth, widest = 50) {
        const first = this.#facts(this.root);
        let level = [first];
        let left = most;
        for (let at = 1; at < depth && level.length > 0 && left > 0; ++at) {
            const next = [];
            for (const facts of level) {
                if (facts.size === 0 || left <= 0) continue;
                facts.children = this.children(facts.id, 0, Math.min(widest, left));
                left -= facts.children.length;
                next.push(...facts.children);
            }
            level = next;
        }
        return first;
    }

    children(id, from, count) {
        return this.given[id].children.slice(from, from + count).map((child) => this.#facts(child));
    }

    // The innermost expression that has a character, or null.
    expressionAt(index) {
        let found = null;
        const isIn = (node) => node.start <= index && index < node.end;
        for (let at = this.root; at; at = at.children.find(isIn)) if (isTyped(at)) found = at;
        return found && this.#facts(found);
    }

    // The expressions from one on, in the order of their beginnings, the outer ones first; and how
    // many there are.
    expressions(from, count) {
        const left = [this.root];
        const found = [];
        let all = 0;
        while (left.length > 0) {
            const node = left.pop();
            if (isTyped(node)) {
                if (all >= from && found.length < count) found.push(this.#facts(node));
                ++all;
            }
            for (let at = node.children.length; at-- > 0;) left.push(node.children[at]);
        }
        return { found, all };
    }
}
