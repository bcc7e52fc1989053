// The playground: a statement, and what becomes of it while one types.

import { fragmentOf, readFragment } from './address';
import { Diagnostics } from './diagnostics';
import { counted, element, find, say, shortened } from './dom';
import { ReadText, StatementEditor } from './editor';
import { Engine } from './engine';
import { examples, statementOf } from './examples';
import { ScriptRoom } from './scripts';
import { Tabs } from './tabs';
import { TreeView } from './tree';

const names = { mysql: 'MySQL', postgresql: 'PostgreSQL' };
const pause = 80; // milliseconds without a key before a statement is translated
const rest = 500; // and before the address is changed, which some browsers allow only so often
const quiet = 300; // milliseconds before it is said that it takes long
const typesAtATime = 100;

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
const editor = new StatementEditor(find('editor'), {
    changed,
    moved: showTypeAtCursor,
    typeAt: typeTip,
});
const diagnostics = new Diagnostics(editor);
const tree = new TreeView(find('tree-room'), {
    askChildren: (id, from, count) => ask('children', { id, from, count }),
    pointed: (node) => editor.lightUp(node && { from: node.start, to: node.end }, true),
});

let shownStatement = ''; // which the worker has been told of
let turn = 0; // counts what is shown: an older one gives way

// The statement changes.

// No aria-busy, which would keep what is said from being read out.
const setBusy = (isBusy) => {
    find('result').dataset.isBusy = isBusy;
};

let waiting;
let addressWaiting;
function changed() {
    setBusy(true);
    find('copied').replaceChildren();
    find('example').value = '';
    clearTimeout(waiting);
    clearTimeout(addressWaiting);
    waiting = setTimeout(begin, pause);
    addressWaiting = setTimeout(() => keepAddress(false), rest);
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
    async types(isMine) {
        const [made, outcome] = await inspect(isMine);
        if (!outcome) return;
        const { found, all } = (await ask('expressions', { from: 0, count: typesAtATime })) ?? {};
        if (!found || !isMine()) return;
        showOutcome(made, outcome === 'Read' ? counted(all, 'typed expression') : outcome);
        find('types').hidden = all === 0;
        find('types').tBodies[0].replaceChildren(...found.map(typeRow));
        showMoreTypes(all);
        showTypeAtCursor(editor.cursor);
    },
    async tree(isMine) {
        const [made, outcome] = await inspect(isMine);
        if (!outcome) return;
        const root = await ask('outline', { nodes: 150, depth: 12 });
        if (!isMine()) return;
        showOutcome(made, outcome);
        tree.show(root, shownStatement);
    },
};

async function showText(name, isMine) {
    const made = await ask('translate', { to: name });
    if (!made || !isMine()) return;
    showOutcome(made, outcomeOf(made), name);
    texts[name].text = made.text ?? '';
    find('copy').hidden = made.text === null;
    find(`panel-${name}`).classList.toggle('is-empty', made.text === null && made.found > 0);
}

async function inspect(isMine) {
    find('copy').hidden = true;
    const made = await ask('inspect');
    return made && isMine() ? [made, made.code === 0 ? 'Read' : outcomeOf(made)] : [];
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

// Types.

const pieceOf = ({ start, end }) => shownStatement.slice(start, end);

function typeRow(node) {
    const place = element(
        'button',
        { type: 'button' },
        element('code', {}, shortened(pieceOf(node))),
    );
    place.addEventListener('click', () => editor.goTo(node.start, node.end));
    const row = element(
        'tr',
        {},
        element('td', {}, place),
        element('td', {}, element('code', { class: 'type' }, node.type)),
    );
    for (const event of ['mouseenter', 'focusin'])
        row.addEventListener(event, () => editor.lightUp({ from: node.start, to: node.end }));
    for (const event of ['mouseleave', 'focusout'])
        row.addEventListener(event, () => editor.lightUp(null));
    return row;
}

function showMoreTypes(all) {
    const left = all - find('types').tBodies[0].rows.length;
    find('more-types').hidden = left <= 0;
    find('more-types').textContent = counted(Math.min(left, typesAtATime), 'more expression');
}

find('more-types').addEventListener('click', async () => {
    const body = find('types').tBodies[0];
    const first = body.rows.length;
    const made = await ask('expressions', { from: first, count: typesAtATime });
    if (!made || body.rows.length !== first) return;
    body.append(...made.found.map(typeRow));
    showMoreTypes(made.all);
    body.rows[first].querySelector('button').focus();
});

async function typeTip(place) {
    const node = await ask('expressionAt', { index: place });
    return (
        node && {
            from: node.start,
            to: node.end,
            dom: element(
                'div',
                { class: 'tip' },
                element('code', {}, shortened(pieceOf(node))),
                ' is ',
                element('code', { class: 'type' }, node.type),
            ),
        }
    );
}

async function showTypeAtCursor(place) {
    if (tabs.name !== 'types') return;
    const node = await ask('expressionAt', { index: place });
    if (tabs.name !== 'types') return;
    say(
        find('type-at-cursor'),
        node ? `At the cursor: ${shortened(pieceOf(node))} is ${node.type}` : '',
    );
}

// The tree.

find('unfold').addEventListener('click', async () => {
    const root = await ask('outline', { nodes: 2000, depth: 100 });
    if (root) tree.show(root, shownStatement);
});
find('fold').addEventListener('click', () => tree.foldAll());

// The address.

// Tells whether the address has the statement, which may be too long for one.
let kept = 0;
async function keepAddress(isNew) {
    clearTimeout(addressWaiting);
    const mine = ++kept;
    const { fragment, isWhole } = await fragmentOf({ tab: tabs.name, statement: editor.text });
    if (mine === kept && fragment !== location.hash)
        history[isNew ? 'pushState' : 'replaceState'](null, '', fragment);
    return isWhole;
}

let read = 0;
async function readAddress() {
    setBusy(true);
    const mine = ++read;
    const { tab, statement } = (await readFragment(location.hash)) ?? {
        tab: '',
        statement: statementOf(examples[0]),
    };
    if (mine === read) showOther(tab, statement);
}

function showOther(tab, statement) {
    tabs.choose(tab);
    if (statement !== editor.text) editor.text = statement;
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
        const shown = element('textarea', { readonly: true, rows: 3 }, text);
        find('copied').replaceChildren(element('label', {}, `${what}: `, shown));
        shown.select();
    }
}

find('share').addEventListener('click', async () => {
    if (await keepAddress(false)) copy('The link', location.href);
    else find('copied').textContent = 'The statement is too long for a link.';
});
find('copy').addEventListener('click', () => copy('The text', texts[tabs.name].text));

// The examples.

const choose = find('example');
choose.append(element('option', { value: '' }, 'Choose…'));
for (const group of new Set(examples.map((each) => each.group)))
    choose.append(
        element(
            'optgroup',
            { label: group },
            examples
                .filter((each) => each.group === group)
                .map((each) => element('option', { value: examples.indexOf(each) }, each.name)),
        ),
    );
choose.addEventListener('change', () => {
    const { value } = choose;
    if (value === '') return;
    showOther(examples[value].tab ?? 'mysql', statementOf(examples[value]));
    choose.value = value;
    keepAddress(true);
});

new ScriptRoom();
readAddress();
