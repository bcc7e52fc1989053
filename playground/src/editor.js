// The editor of the statement, and texts that are only to be read.

import { defaultKeymap, history, historyKeymap } from '@codemirror/commands';
import { MySQL, PostgreSQL, SQLDialect } from '@codemirror/lang-sql';
import { HighlightStyle, bracketMatching, syntaxHighlighting } from '@codemirror/language';
import { nextDiagnostic, previousDiagnostic, setDiagnostics } from '@codemirror/lint';
import { EditorState, StateEffect, StateField } from '@codemirror/state';
import {
    Decoration,
    EditorView,
    drawSelection,
    hoverTooltip,
    keymap,
    lineNumbers,
} from '@codemirror/view';
import { tags } from '@lezer/highlight';

const colours = HighlightStyle.define([
    { tag: tags.keyword, color: 'var(--keyword)' },
    { tag: [tags.typeName, tags.standard(tags.name)], color: 'var(--type)' },
    { tag: [tags.string, tags.special(tags.string)], color: 'var(--string)' },
    { tag: [tags.number, tags.bool, tags.null], color: 'var(--number)' },
    { tag: tags.comment, color: 'var(--muted)', fontStyle: 'italic' },
]);

const looks = EditorView.theme({
    '&': { backgroundColor: 'var(--code)', color: 'var(--text)' },
    '.cm-content': { fontFamily: 'var(--mono)', caretColor: 'var(--text)' },
    '.cm-cursor': { borderLeftColor: 'var(--text)', borderLeftWidth: '2px' },
    '&.cm-focused > .cm-scroller > .cm-selectionLayer .cm-selectionBackground, .cm-selectionBackground':
        {
            background: 'var(--selection)',
        },
    '.cm-gutters': { backgroundColor: 'var(--code)', color: 'var(--muted)', border: '0' },
    '.cm-tooltip': {
        backgroundColor: 'var(--card)',
        color: 'var(--text)',
        border: '1px solid var(--strong-line)',
    },
    '&.cm-focused .cm-matchingBracket': {
        backgroundColor: 'transparent',
        outline: '1px solid var(--strong-line)',
    },
});

// Quillet's dialect, whose words are put in by the build; a backslash escapes a quote.
const dialect = SQLDialect.define({
    ...PostgreSQL.spec,
    keywords: KEYWORDS,
    types: TYPES,
    backslashEscapes: true,
});

const goOn = [
    { key: 'F8', run: nextDiagnostic },
    { key: 'Shift-F8', run: previousDiagnostic },
];

const light = StateEffect.define();
const lit = StateField.define({
    create: () => Decoration.none,
    update(shown, transaction) {
        for (const effect of transaction.effects)
            if (effect.is(light))
                shown =
                    effect.value && effect.value.from < effect.value.to
                        ? Decoration.set(
                              Decoration.mark({ class: 'lit' }).range(
                                  effect.value.from,
                                  effect.value.to,
                              ),
                          )
                        : Decoration.none;
        return transaction.docChanged ? Decoration.none : shown;
    },
    provide: (field) => EditorView.decorations.from(field),
});

const common = (language, label) => [
    EditorView.lineWrapping,
    EditorView.contentAttributes.of({ 'aria-label': label, tabindex: '0' }),
    syntaxHighlighting(colours),
    language,
    looks,
];

// told.changed(text) is called when the user has changed the text, told.moved(place) when the
// cursor is elsewhere; told.typeAt(place) promises {from, to, dom}, or nothing.
export class StatementEditor {
    constructor(room, told) {
        this.view = new EditorView({
            parent: room,
            state: EditorState.create({
                extensions: [
                    lineNumbers(),
                    history(),
                    drawSelection(),
                    bracketMatching(),
                    lit,
                    keymap.of([...goOn, ...defaultKeymap, ...historyKeymap]),
                    ...common(dialect.extension, 'Statement in the PostgreSQL dialect'),
                    hoverTooltip(async (view, place) => {
                        const found = await told.typeAt(place);
                        return (
                            found && {
                                pos: found.from,
                                end: found.to,
                                above: true,
                                create: () => ({ dom: found.dom }),
                            }
                        );
                    }),
                    EditorView.updateListener.of((update) => {
                        if (update.docChanged) told.changed(update.state.doc.toString());
                        if (update.docChanged || update.selectionSet)
                            told.moved(update.state.selection.main.head);
                    }),
                ],
            }),
        });
    }

    get text() {
        return this.view.state.doc.toString();
    }
    get cursor() {
        return this.view.state.selection.main.head;
    }
    get length() {
        return this.view.state.doc.length;
    }

    set text(text) {
        this.view.dispatch({
            changes: { from: 0, to: this.length, insert: text },
            selection: { anchor: 0 },
        });
    }

    // Of a piece that is no longer there, nothing.
    clip(from, to) {
        return { from: Math.min(from, this.length), to: Math.min(to, this.length) };
    }

    underline(diagnostics) {
        this.view.dispatch(
            setDiagnostics(
                this.view.state,
                diagnostics.map((each) => ({
                    ...each,
                    ...this.clip(each.from, each.to),
                })),
            ),
        );
    }

    lightUp(piece, isShown = false) {
        const clipped = piece && this.clip(piece.from, piece.to);
        this.view.dispatch({
            effects: [
                light.of(clipped),
                ...(clipped && isShown
                    ? [EditorView.scrollIntoView(clipped.from, { y: 'nearest' })]
                    : []),
            ],
        });
    }

    goTo(from, to) {
        const piece = this.clip(from, to);
        this.view.focus();
        this.view.dispatch({
            selection: { anchor: piece.from, head: piece.to },
            scrollIntoView: true,
        });
    }

    placeOf(offset) {
        const at = this.clip(offset, offset).from;
        const line = this.view.state.doc.lineAt(at);
        const before = this.view.state.sliceDoc(line.from, at);
        return { line: line.number, column: Array.from(before).length + 1 };
    }
}

// A text that can be read, selected and copied.
export class ReadText {
    constructor(room, language, label) {
        this.view = new EditorView({
            parent: room,
            state: EditorState.create({
                extensions: [
                    EditorState.readOnly.of(true),
                    drawSelection(),
                    keymap.of(defaultKeymap),
                    ...common((language === 'mysql' ? MySQL : dialect).extension, label),
                ],
            }),
        });
    }

    get text() {
        return this.view.state.doc.toString();
    }

    set text(text) {
        this.view.dispatch({ changes: { from: 0, to: this.view.state.doc.length, insert: text } });
    }
}
