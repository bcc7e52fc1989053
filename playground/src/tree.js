// The parse tree as WAI-ARIA describes one: the arrow keys go and fold, Home and End go to the
// ends. Of a node's children some are there at first, and more when they are asked for.

import { count, element, shortened } from './dom';

const step = 100; // children that come at a time

export class TreeView {
    // askChildren(id, from, count) promises nodes; pointed(node) is called with the node that
    // lights up, or null.
    constructor(room, { askChildren, pointed }) {
        this.room = room;
        this.askChildren = askChildren;
        this.pointed = pointed;
        this.nodes = new WeakMap();
        room.addEventListener('keydown', (event) => this.#key(event));
        room.addEventListener('click', (event) => {
            const item = event.target.closest('[role=treeitem]');
            if (item) {
                this.#focus(item);
                this.#open(item);
            }
        });
        const show = (event) => {
            const item = event.target.closest('[role=treeitem]');
            this.#light(item);
        };
        room.addEventListener('mouseover', show);
        room.addEventListener('focusin', show);
        room.addEventListener('mouseleave', () =>
            this.#light(room.querySelector('[role=treeitem]:focus')),
        );
        room.addEventListener('focusout', () => this.#light(null));
    }

    show(root, statement) {
        this.statement = statement;
        if (!root) {
            this.room.replaceChildren();
            return;
        }
        const tree = element('ul', { role: 'tree', 'aria-label': 'Parse tree' });
        tree.append(this.#item(root, 1, 1, 1));
        this.room.replaceChildren(tree);
        tree.firstElementChild.tabIndex = 0;
    }

    foldAll() {
        for (const item of this.room.querySelectorAll('[aria-expanded=true]'))
            item.setAttribute('aria-expanded', 'false');
        const first = this.room.querySelector('[role=treeitem]');
        if (first) this.#makeReachable(first);
    }

    #item(node, level, place, size) {
        const item = element('li', {
            role: 'treeitem',
            tabindex: -1,
            'aria-level': level,
            'aria-posinset': place,
            'aria-setsize': size,
            'aria-expanded': node.size === 0 ? null : node.children ? 'true' : 'false',
        });
        const piece = shortened(this.statement.slice(node.start, node.end), 40);
        item.append(
            element(
                'span',
                { class: 'node' },
                element('span', { class: 'kind' }, node.kind.replaceAll('_', ' ')),
                node.label ? element('b', {}, node.label) : null,
                node.type ? element('span', { class: 'type' }, node.type) : null,
                piece && piece !== node.label ? element('code', {}, piece) : null,
            ),
        );
        this.nodes.set(item, node);
        if (node.children) item.append(this.#group(item, node.children, level + 1));
        return item;
    }

    #group(item, children, level) {
        const group = element('ul', { role: 'group' });
        this.#append(item, group, children, level);
        return group;
    }

    #append(item, group, children, level) {
        const { size } = this.nodes.get(item) ?? {};
        const have = group.querySelectorAll(':scope > :not(.more)').length;
        group.querySelector(':scope > .more')?.remove();
        for (const [index, child] of children.entries())
            group.append(this.#item(child, level, have + index + 1, size));
        const left = size - have - children.length;
        if (left > 0)
            group.append(
                element(
                    'li',
                    {
                        role: 'treeitem',
                        class: 'more',
                        tabindex: -1,
                        'aria-level': level,
                        'aria-posinset': have + children.length + 1,
                        'aria-setsize': size,
                    },
                    element(
                        'span',
                        { class: 'node' },
                        `${count(Math.min(left, step))} more of ${count(left)}`,
                    ),
                ),
            );
    }

    #light(item) {
        this.pointed(item && !item.classList.contains('more') ? this.nodes.get(item) : null);
    }

    #makeReachable(item) {
        for (const other of this.room.querySelectorAll('[role=treeitem][tabindex="0"]'))
            other.tabIndex = -1;
        item.tabIndex = 0;
    }

    #focus(item) {
        this.#makeReachable(item);
        item.focus({ preventScroll: true });
        item.querySelector('.node').scrollIntoView({ block: 'nearest' });
    }

    // Folds, unfolds or fetches more.
    async #open(item, isOpen = item.getAttribute('aria-expanded') !== 'true') {
        if (item.classList.contains('more')) return this.#more(item);
        if (!item.hasAttribute('aria-expanded')) return undefined;
        const node = this.nodes.get(item);
        if (isOpen && !item.querySelector(':scope > [role=group]')) {
            const children = await this.askChildren(node.id, 0, step);
            if (!children || item.querySelector(':scope > [role=group]')) return undefined;
            item.append(this.#group(item, children, Number(item.getAttribute('aria-level')) + 1));
        }
        item.setAttribute('aria-expanded', isOpen);
        return undefined;
    }

    async #more(item) {
        const group = item.parentElement;
        const parent = group.parentElement;
        const have = group.children.length - 1;
        const children = await this.askChildren(this.nodes.get(parent).id, have, step);
        if (!children || !item.isConnected) return;
        this.#append(parent, group, children, Number(item.getAttribute('aria-level')));
        this.#focus(group.children[have]);
    }

    #shown() {
        return [...this.room.querySelectorAll('[role=treeitem]')].filter(
            (item) => !item.parentElement.closest('[aria-expanded=false]'),
        );
    }

    #key(event) {
        const item = event.target.closest('[role=treeitem]');
        if (!item || event.altKey || event.ctrlKey || event.metaKey) return;
        const expanded = item.getAttribute('aria-expanded');
        const parent = item.parentElement.closest('[role=treeitem]');
        const beside = (by) => {
            const shown = this.#shown();
            return shown[shown.indexOf(item) + by];
        };
        const does = {
            ArrowDown: () => beside(1),
            ArrowUp: () => beside(-1),
            ArrowRight: () => (expanded === 'true' ? beside(1) : void this.#open(item, true)),
            ArrowLeft: () => (expanded === 'true' ? void this.#open(item, false) : parent),
            Home: () => this.#shown()[0],
            End: () => this.#shown().at(-1),
            Enter: () => void this.#open(item),
            ' ': () => void this.#open(item),
        }[event.key];
        if (!does) return;
        event.preventDefault();
        const next = does();
        if (next) this.#focus(next);
    }
}
