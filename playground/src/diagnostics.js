// What there is to say about a statement: underlined in the editor, and as a list.

import { count, counted, element, find } from './dom';
import { explanationOf } from './places';

const step = 50; // that come at a time

const underlines = { note: 'info', warning: 'warning', refusal: 'error', error: 'error' };

const link = (diagnostic, builder) =>
    element(
        'a',
        {
            href: explanationOf(diagnostic, builder),
            target: '_blank',
            'aria-label': `More on ${diagnostic.id}`,
        },
        diagnostic.id,
    );

const hint = (diagnostic) =>
    diagnostic.hint && element('p', { class: 'hint' }, `Instead: ${diagnostic.hint}`);

export class Diagnostics {
    constructor(editor) {
        this.editor = editor;
        this.list = find('diagnostics');
        this.more = find('more-diagnostics');
        this.more.addEventListener('click', () => {
            const first = this.list.children.length;
            this.#showMore();
            this.list.children[first].querySelector('button').focus();
        });
    }

    show(diagnostics, found, builder) {
        this.diagnostics = diagnostics;
        this.found = found;
        this.builder = builder;
        this.list.replaceChildren();
        find('said').hidden = diagnostics.length === 0;
        this.#showMore();
        this.editor.underline(
            diagnostics.map((each) => ({
                from: each.offset,
                to: each.offset + each.length,
                severity: underlines[each.severity],
                markClass: `said said-${each.severity}`,
                message: each.message,
                renderMessage: () =>
                    element(
                        'div',
                        { class: 'tip' },
                        element(
                            'p',
                            {},
                            element(
                                'span',
                                { class: 'severity', 'data-severity': each.severity },
                                each.severity,
                            ),
                            ` ${each.message}`,
                        ),
                        hint(each),
                        element('p', {}, link(each, builder)),
                    ),
            })),
        );
    }

    #showMore() {
        const shown = this.list.children.length;
        this.list.append(
            ...this.diagnostics.slice(shown, shown + step).map((each) => this.#item(each)),
        );
        const now = this.list.children.length;
        this.more.hidden = now === this.diagnostics.length;
        this.more.textContent = `More of ${counted(this.diagnostics.length, 'message')}`;
        if (this.found > this.diagnostics.length && this.more.hidden)
            this.list.append(
                element(
                    'li',
                    { class: 'quiet' },
                    `${count(this.found - this.diagnostics.length)} more are not shown.`,
                ),
            );
    }

    #item(diagnostic) {
        const { offset, length, severity, message } = diagnostic;
        const { line, column } = this.editor.placeOf(offset);
        const place = element(
            'button',
            { type: 'button', class: 'place' },
            element('span', { class: 'unseen' }, 'Go to '),
            `${line}:${column}`,
        );
        place.addEventListener('click', () => this.editor.goTo(offset, offset + length));
        return element(
            'li',
            {},
            place,
            element('span', { class: 'severity', 'data-severity': severity }, severity),
            element('span', { class: 'message' }, message),
            link(diagnostic, this.builder),
            hint(diagnostic),
        );
    }
}
