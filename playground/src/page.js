// The playground: a statement, and what becomes of it while one types.

import { fragmentOf, readFragment } from './address';
import { Diagnostics } from './diagnostics';
import { counted, element, find, say } from './dom';
import { ReadText, StatementEditor } from './editor';
import { Engine } from './engine';
import { examples, statementOf } from './examples';
import { ScriptRoom } from './scripts';
import { Tabs } from './tabs';

const names = { mysql: 'MySQL', postgresql: 'PostgreSQL' };
const pause = 80; // milliseconds without a key before a statement is translated
const quiet = 300; // milliseconds before it is said that it takes long

const engine = new Engine(self.quilletWorkers.statement);
const tabs = new Tabs(document.querySelector('[role=tablist]'), () => {
    keepAddress(true);
    show();
});
const texts = Object.fromEntries(
    Object.keys(names).map((name) => [
        name,
        new ReadText(find(`panel-${name}`), name, `${names[name]} text`),
    ]),
);
const editor = new StatementEditor(find('editor'), { changed });
const diagnostics = new Diagnostics(editor);

let shownStatement = ''; // which the worker has been told of
let turn = 0; // counts what is shown: an older one gives way

// The statement changes.

const setBusy = (isBusy) => find('result').setAttribute('aria-busy', isBusy);

let waiting;
function changed() {
    setBusy(true);
    find('copied').replaceChildren();
    clearTimeout(waiting);
    waiting = setTimeout(() => {
        keepAddress(false);
        begin();
    }, pause);
}

function begin() {
    shownStatement = editor.text;
    engine.begin(shownStatement);
    show();
}

// A failure is one of this page.
async function ask(kind, wanted) {
    try {
        return await engine.ask(kind, wanted);
    } catch (error) {
        say(find('outcome'), `This page has failed: ${error.message}`);
        return null;
    }
}

// What the chosen tab shows.

async function show() {
    const mine = ++turn;
    const isMine = () => mine === turn;
    setBusy(true);
    const slow = setTimeout(() => isMine() && say(find('outcome'), 'Working…'), quiet);
    try {
        await shows[tabs.name](isMine);
    } finally {
        clearTimeout(slow);
        if (isMine()) setBusy(false);
    }
}

const shows = {
    mysql: (isMine) => showText('mysql', isMine),
    postgresql: (isMine) => showText('postgresql', isMine),
};

async function showText(name, isMine) {
    const made = await ask('translate', { to: name });
    if (!made || !isMine()) return;
    showOutcome(made, outcomeOf(made), name);
    texts[name].text = made.text ?? '';
    find('copy').hidden = made.text === null;
    find(`panel-${name}`).classList.toggle('is-empty', made.text === null && made.found > 0);
}

function outcomeOf({ code, diagnostics: said, found }) {
    if (shownStatement.trim() === '') return 'Write a statement, or choose an example.';
    const has = (severity) => said.filter((each) => each.severity === severity).length;
    if (code === -2) return 'Not understood';
    if (code !== 0)
        return has('refusal') > 0 ? `Refused, for ${counted(found, 'reason')}` : 'Not translated';
    if (has('refusal') > 0) return 'Translated, but a part is missing';
    if (said.length < found) return `Translated, with ${counted(found, 'message')}`;
    const counts = ['warning', 'note']
        .filter((each) => has(each) > 0)
        .map((each) => counted(has(each), each));
    return counts.length > 0 ? `Translated, with ${counts.join(' and ')}` : 'Translated';
}

function showOutcome({ code, diagnostics: said, found }, text, builder) {
    const gravest = ['error', 'refusal', 'warning', 'note'].find((severity) =>
        said.some((each) => each.severity === severity),
    );
    const isBlank = shownStatement.trim() === '';
    find('outcome').dataset.outcome = isBlank
        ? 'none'
        : (gravest ?? (code === 0 ? 'success' : 'error'));
    say(find('outcome'), text);
    diagnostics.show(isBlank ? [] : said, isBlank ? 0 : found, builder);
}

// The address.

let kept = 0;
async function keepAddress(isNew) {
    const mine = ++kept;
    const fragment = await fragmentOf({ tab: tabs.name, statement: editor.text });
    if (mine === kept && fragment !== location.hash)
        history[isNew ? 'pushState' : 'replaceState'](null, '', fragment);
}

async function readAddress() {
    setBusy(true);
    const wanted = (await readFragment(location.hash)) ?? {
        tab: '',
        statement: statementOf(examples[0]),
    };
    tabs.choose(wanted.tab);
    if (wanted.statement !== editor.text) editor.text = wanted.statement;
    find('example').value = '';
    clearTimeout(waiting);
    begin();
}
addEventListener('popstate', readAddress);

async function copy(what, text) {
    try {
        await navigator.clipboard.writeText(text);
        find('copied').textContent = `${what} is copied.`;
    } catch {
        // where a page may not
        find('copied').replaceChildren(
            element(
                'label',
                {},
                `${what}: `,
                element('textarea', { readonly: true, rows: 3 }, text),
            ),
        );
        find('copied').querySelector('textarea').select();
    }
}

find('share').addEventListener('click', async () => {
    await keepAddress(false);
    copy('The link', location.href);
});
find('copy').addEventListener('click', () => copy('The text', texts[tabs.name].text));

// The examples.

const choose = find('example');
choose.append(
    element('option', { value: '' }, 'Choose…'),
    ...[...new Set(examples.map((each) => each.group))].map((group) =>
        element(
            'optgroup',
            { label: group },
            examples
                .filter((each) => each.group === group)
                .map((each) => element('option', { value: examples.indexOf(each) }, each.name)),
        ),
    ),
);
choose.addEventListener('change', async () => {
    const example = examples[choose.value];
    if (!example) return;
    tabs.choose(example.tab ?? 'mysql');
    editor.text = statementOf(example);
    clearTimeout(waiting);
    await keepAddress(true);
    begin();
});

new ScriptRoom();
readAddress();
