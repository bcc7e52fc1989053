'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const path = require('node:path');
const { after, afterEach, before, beforeEach, describe, test } = require('node:test');
const { pathToFileURL } = require('node:url');
const {
    fragment,
    ids,
    isDone,
    launchBrowser,
    onOneLine,
    open,
    outcome,
    pictures,
    resultOf,
    serve,
    show,
    site,
    statementOf,
    violations,
} = require('./support');

let browser;
let server;
let page;
before(async () => {
    browser = await launchBrowser();
    server = await serve();
});
after(async () => {
    await browser.close();
    server.close();
});
beforeEach(async () => {
    page = await open(browser, server.address);
    await isDone(page);
});
afterEach(() => isFine(page));

// No script error, and no request but for the page's own files.
async function isFine(opened) {
    assert.deepEqual(opened.problems, []);
    const own = server.address.replace('index.html', '');
    assert.deepEqual(
        opened.requests.filter(
            (each) => !each.startsWith(own) && !each.startsWith(`blob:${server.origin}/`),
        ),
        [],
    );
    await opened.close();
}

const editor = (opened) => opened.locator('#editor .cm-content');

// What the cursor or a selection has in the editor.
const selected = (opened) => opened.evaluate(() => String(getSelection()));

// Until what the keyboard has typed has come to the page, which then has it in the address.
async function isTyped(opened, text) {
    await opened.waitForFunction((hash) => location.hash === hash, fragment(text));
    await isDone(opened);
}

async function type(opened, text) {
    await editor(opened).click();
    await opened.keyboard.press('Control+A');
    await opened.keyboard.type(text);
    await isTyped(opened, text);
}

const linkTarget = (link) => {
    const { pathname, hash } = new URL(link);
    const name = decodeURIComponent(pathname).replace('/a folder/', '');
    return { name, anchor: hash.slice(1), page: fs.readFileSync(path.join(site, name), 'utf8') };
};

describe('typing', () => {
    test('becomes MySQL', async () => {
        await type(page, 'select a || b from t limit 10 offset 5');
        assert.equal(await resultOf(page), 'SELECT CONCAT(a, b) FROM t LIMIT 5,10');
        await page.keyboard.type('0');
        await isTyped(page, 'select a || b from t limit 10 offset 50');
        assert.equal(await resultOf(page), 'SELECT CONCAT(a, b) FROM t LIMIT 50,10');
    });

    test('has colours, in the statement as in the text', async () => {
        await type(page, "select 'tea', 12 from t");
        for (const place of ['#editor', '#panel-mysql']) {
            const colours = await page
                .locator(`${place} .cm-line span`)
                .evaluateAll(
                    (all) => new Set(all.map((each) => getComputedStyle(each).color)).size,
                );
            assert.ok(colours >= 3, `${place}: ${colours}`);
        }
    });

    test('shows what there is to say, with sentence, hint and link, and underlines it', async () => {
        await type(page, "select 'é😀', initcap(name) || 500 / 12 from item");
        assert.equal(await outcome(page), 'Refused, for 1 reason');
        const [item] = await page.locator('#diagnostics li').all();
        assert.match(
            await item.innerText(),
            /refusal\s+INITCAP function not implemented in MySQL backend/,
        );
        assert.equal(
            await item.locator('.hint').innerText(),
            'Instead: write upper(substr(x, 1, 1)) || lower(substr(x, 2)) for one word',
        );
        assert.equal(await item.locator('a').innerText(), 'refused-initcap');
        assert.equal(await page.locator('#editor .said-refusal').innerText(), 'initcap(name)');

        await item.getByRole('button', { name: 'Go to 1:14' }).click();
        assert.equal(await selected(page), 'initcap(name)');

        await page.locator('#editor .said-refusal').first().hover();
        const tip = page.locator('.cm-tooltip .cm-diagnostic');
        await tip.waitFor();
        assert.match(
            await tip.innerText(),
            /refusal INITCAP function.*Instead: write upper.*refused-initcap/s,
        );
        assert.equal(
            linkTarget(await tip.locator('a').evaluate((each) => each.href)).anchor,
            'what-is-refused',
        );
    });

    test('says each severity', async () => {
        for (const [statement, severity] of [
            ['select 500 / 12', 'warning'],
            ['select a || b', 'note'],
            ['select (', 'error'],
        ]) {
            await type(page, statement);
            assert.equal(
                await page.locator('#diagnostics .severity').first().innerText(),
                severity,
            );
            assert.ok(
                (await page.locator(`#editor .said-${severity}, #editor .cm-lintPoint`).count()) >
                    0,
            );
        }
    });

    test('an empty statement is no failure', async () => {
        await type(page, ' ');
        assert.equal(await outcome(page), 'Write a statement, or choose an example.');
        assert.deepEqual(await ids(page), []);
    });

    test('keeps what was typed in the address, and copies the text', async () => {
        await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
        await type(page, 'select 1');
        await page.waitForFunction(() => location.hash === '#tab=mysql&sql=select+1');
        await page.click('#copy');
        await page.getByText('The text is copied.').waitFor();
        assert.equal(await page.evaluate(() => navigator.clipboard.readText()), 'SELECT 1');
    });
});

describe('tabs', () => {
    test('PostgreSQL: the canonical form, and what is said of it', async () => {
        await show(page, 'select  5! ,"A" from t');
        assert.deepEqual(await ids(page), ['refused-factorial']);
        await page.click('#tab-postgresql');
        await isDone(page);
        assert.equal(await resultOf(page), 'SELECT 5!, "A" FROM t');
        assert.deepEqual(await ids(page), ['factorial']);
        const link = await page.locator('#diagnostics a').evaluate((each) => each.href);
        assert.equal(linkTarget(link).anchor, 'postgresql-factorial');
    });

    test('types: by the mouse, at the cursor and as a list', async () => {
        await show(page, "select cast(price as bigint), date '2024-01-31' + 1 from item", 'types');
        const rows = await page
            .locator('#types tbody tr')
            .evaluateAll((all) => all.map((row) => row.innerText.split(/\s*\t\s*/)));
        assert.deepEqual(
            rows
                .find(([piece]) => piece.trim() === 'cast(price as bigint)')
                ?.map((each) => each.trim()),
            ['cast(price as bigint)', 'INT8'],
        );
        assert.ok(
            rows.some(
                ([piece, type]) =>
                    piece.trim() === "date '2024-01-31' + 1" && type.trim() === 'DATE',
            ),
            JSON.stringify(rows),
        );

        await page.locator('#editor .cm-line span', { hasText: 'cast' }).first().hover();
        const tip = page.locator('.cm-tooltip .tip');
        await tip.waitFor();
        assert.equal(await tip.innerText(), 'cast(price as bigint) is INT8');

        await editor(page).focus();
        await page.keyboard.press('Control+Home');
        for (let steps = 0; steps < 'select ca'.length; ++steps)
            await page.keyboard.press('ArrowRight');
        await page.getByText('At the cursor: cast(price as bigint) is INT8').waitFor();

        await page
            .locator('#types tbody button', { hasText: "date '2024-01-31' + 1" })
            .first()
            .hover();
        assert.equal(
            await page
                .locator('#editor .lit')
                .allInnerTexts()
                .then((all) => all.join('')),
            "date '2024-01-31' + 1",
        );
        await page
            .locator('#types tbody button', { hasText: "date '2024-01-31' + 1" })
            .first()
            .click();
        assert.equal(await selected(page), "date '2024-01-31' + 1");
    });

    test('tree: nodes light up, fold and unfold', async () => {
        await show(page, 'select name from item where price > 9.99', 'tree');
        const node = (text) => page.locator('#tree-room .node:visible', { hasText: text });
        assert.ok((await node('9.99').count()) > 0);
        await page
            .locator('#tree-room [role=treeitem]:not([aria-expanded]) > .node', { hasText: '9.99' })
            .last()
            .hover();
        assert.equal(
            await page
                .locator('#editor .lit')
                .allInnerTexts()
                .then((all) => all.join('')),
            '9.99',
        );

        const first = page.locator('#tree-room [role=treeitem]').first();
        await first.locator('> .node').click();
        assert.equal(await first.getAttribute('aria-expanded'), 'false');
        assert.equal(await page.locator('#tree-room .node:visible').count(), 1);
        await first.locator('> .node').click();
        const all = await page.locator('#tree-room .node:visible').count();
        assert.ok(all > 5);
        await page.click('#fold');
        assert.equal(await page.locator('#tree-room .node:visible').count(), 1);
        await page.click('#unfold');
        await page.waitForFunction(
            (count) =>
                [...document.querySelectorAll('#tree-room .node')].filter(
                    (each) => each.getClientRects().length > 0,
                ).length >= count,
            all,
        );
    });

    test('a statement that is not understood has neither', async () => {
        await show(page, 'select (', 'types');
        assert.equal(await outcome(page), 'Not understood');
        assert.deepEqual(await ids(page), ['syntax-error']);
        assert.equal(await page.locator('#types tbody tr').count(), 0);
        await page.click('#tab-tree');
        await isDone(page);
        assert.equal(await outcome(page), 'Not understood');
        assert.equal(await page.locator('[role=treeitem]').count(), 0);
    });
});

describe('examples', () => {
    const expected = {
        'A query': { outcome: 'Translated', ids: [] },
        'Times and patterns': { outcome: 'Translated', ids: [] },
        'A label': { outcome: 'Translated, with 2 notes', ids: ['text-form', 'null-order'] },
        'An update': {
            outcome: 'Translated, with 3 notes',
            ids: ['stored-value', 'overflow', 'text-comparison'],
        },
        'A division of integers': {
            outcome: 'Translated, with 1 warning',
            ids: ['integer-division'],
        },
        'Backslashes in a string': {
            outcome: 'Translated, with 1 warning',
            ids: ['string-backslash'],
        },
        'A refusal inside of a cast': {
            outcome: 'Translated, but a part is missing',
            ids: ['text-cast', 'refused-initcap'],
        },
        'A function without an equal': {
            outcome: 'Refused, for 1 reason',
            ids: ['refused-initcap'],
        },
        'Several reasons': {
            outcome: 'Refused, for 4 reasons',
            ids: ['refused-initcap', 'refused-to-hex', 'refused-btrim', 'refused-similar-to'],
        },
        'A syntax error': { outcome: 'Not understood', ids: ['syntax-error'] },
        'What is not read: WITH': { outcome: 'Not understood', ids: ['syntax-error'] },
        'A placeholder': { outcome: 'Not understood', ids: ['unknown-character'] },
        'A string without an end': { outcome: 'Not understood', ids: ['unended-string'] },
        'An INSERT that lacks a value': { outcome: 'Not understood', ids: ['missing-part'] },
        'Ten thousand parentheses': { outcome: 'Not translated', ids: ['too-deep'] },
        'A list of 100,000 members': { outcome: 'Translated', ids: [] },
        'A chain of 100,000 members': { outcome: 'Translated', ids: [] },
        'The canonical form': { outcome: 'Translated', ids: [], tab: 'postgresql' },
        'With a warning': {
            outcome: 'Translated, with 1 warning',
            ids: ['factorial'],
            tab: 'postgresql',
        },
        'Inferred types': { outcome: /^\d+ typed expressions$/, ids: [], tab: 'types' },
        'A tree': { outcome: 'Read', ids: [], tab: 'tree' },
    };

    test('have the outcomes that they are there for, each', async () => {
        const names = await page.locator('#example optgroup option').allTextContents();
        assert.deepEqual(names, Object.keys(expected));
        for (const [name, wanted] of Object.entries(expected)) {
            await page.selectOption('#example', { label: name });
            await isDone(page);
            const said = await outcome(page);
            if (wanted.outcome instanceof RegExp) assert.match(said, wanted.outcome, name);
            else assert.equal(said, wanted.outcome, name);
            assert.deepEqual(await ids(page), wanted.ids, name);
            assert.equal(
                await page.locator('[aria-selected=true]').getAttribute('id'),
                `tab-${wanted.tab ?? 'mysql'}`,
            );
            for (const link of await page
                .locator('#diagnostics a')
                .evaluateAll((all) => all.map((each) => each.href))) {
                const { anchor, page: target } = linkTarget(link);
                assert.ok(target.includes(`id="${anchor}"`), link);
            }
        }
    });
});

describe('differences', () => {
    test('each that the guide explains is said of its example, with a link to it', async () => {
        const guide = fs.readFileSync(path.resolve(__dirname, '../../docs/differences.md'), 'utf8');
        const [, mysql, postgresql] = guide.split(/^## The builder `.*`$/m);
        let count = 0;
        for (const [tab, part] of [
            ['mysql', mysql],
            ['postgresql', postgresql],
        ]) {
            for (const [, heading, statement] of part.matchAll(
                /^### (.*)\n[^]*?```text\n([^]*?)\n {4}PostgreSQL/gm,
            )) {
                const id = heading.replace('postgresql ', '');
                await show(page, statement, tab);
                const links = await page
                    .locator('#diagnostics a')
                    .evaluateAll((all) => all.map((each) => each.href));
                const targets = links.map(linkTarget);
                const anchor = heading.replaceAll(' ', '-');
                assert.ok(
                    targets.some(
                        (each) => each.name === 'docs/differences.html' && each.anchor === anchor,
                    ),
                    `${id}: ${statement}: ${links}`,
                );
                for (const target of targets)
                    assert.ok(target.page.includes(`id="${target.anchor}"`), target.anchor);
                ++count;
            }
        }
        assert.ok(count >= 60, String(count));
    });

    test('opens at its place', async () => {
        await show(page, 'select 500 / 12');
        const [guide] = await Promise.all([
            page.waitForEvent('popup'),
            page.locator('#diagnostics a').click(),
        ]);
        await guide.waitForLoadState();
        assert.equal(new URL(guide.url()).hash, '#integer-division');
        assert.equal(await guide.locator(':target').innerText(), 'integer-division');
        assert.deepEqual((await violations(guide)).found, []);
        await guide.close();
    });
});

describe('sharing', () => {
    beforeEach(() => page.context().grantPermissions(['clipboard-read', 'clipboard-write']));

    async function shared() {
        await page.click('#share');
        await page.getByText('The link is copied.').waitFor();
        return page.evaluate(() => navigator.clipboard.readText());
    }

    test('a link brings the statement and the tab', async () => {
        const statement = 'select \'é😀 + & # %\'\n  from "t" -- 100 %';
        await show(page, statement, 'postgresql');
        const link = await shared();
        assert.equal(link, page.url());
        const other = await open(browser, link);
        await isDone(other);
        assert.equal(await statementOf(other), onOneLine(statement));
        assert.equal(await other.locator('[aria-selected=true]').innerText(), 'PostgreSQL');
        assert.match(await resultOf(other), /^SELECT 'é😀 \+ & # %' FROM "t"$/);
        await isFine(other);
    });

    test('a long statement is compressed', async () => {
        await page.selectOption('#example', { label: 'A list of 100,000 members' });
        await isDone(page);
        const link = await shared();
        assert.ok(link.length < 3000, String(link.length));
        const other = await open(browser, link);
        await isDone(other);
        assert.equal(await outcome(other), 'Translated');
        assert.match(await resultOf(other), /^SELECT a, a, a/);
        await isFine(other);
    });

    test('back and forward', async () => {
        await page.selectOption('#example', { label: 'A syntax error' });
        await isDone(page);
        await page.click('#tab-tree');
        await isDone(page);
        await page.selectOption('#example', { label: 'A label' });
        await isDone(page);
        const at = async (text, tab) => {
            await page.waitForFunction(
                ([wanted, chosen]) =>
                    document.querySelector('#editor .cm-content').innerText.includes(wanted) &&
                    document.querySelector('[aria-selected=true]').innerText === chosen,
                [text, tab],
            );
            await isDone(page);
        };
        await at('as label', 'MySQL');
        await page.goBack();
        await at('9.99)', 'Tree');
        assert.equal(await outcome(page), 'Not understood');
        await page.goBack();
        await at('9.99)', 'MySQL');
        await page.goForward();
        await page.goForward();
        await at('as label', 'MySQL');
        assert.equal(await outcome(page), 'Translated, with 2 notes');
    });

    test('one that is too long even so is not shared', async () => {
        const noise = Array.from(
            { length: 60000 },
            (_, index) => `a${((index * 2654435761) % 4294967296).toString(36)}`,
        );
        await page.evaluate(
            (text) => navigator.clipboard.writeText(text),
            `select ${noise.join(', ')}`,
        );
        await editor(page).focus();
        await page.keyboard.press('Control+A');
        await page.keyboard.press('Control+V');
        await page.click('#share');
        await page.getByText('The statement is too long for a link.').waitFor();
        assert.equal(new URL(page.url()).hash, '#tab=mysql');
        await isDone(page);
    });

    test('an address that says nothing brings the first example', async () => {
        for (const wrong of [
            '#',
            '#x',
            '#tab=none',
            '#packed=%%%',
            '#packed=AAAA',
            '#tab=tree&packed=!',
        ]) {
            const other = await open(browser, server.address + wrong);
            await isDone(other);
            assert.match(await statementOf(other), /^select name, price from item/);
            assert.equal(await outcome(other), 'Translated');
            await isFine(other);
        }
    });

    test('what is in it stays text', async () => {
        const hostile = `select '</script><img src=x onerror="window.broken = 1">', initcap("<b>&amp;")`;
        const other = await open(browser, server.address + fragment(hostile, 'tree'));
        await isDone(other);
        for (const tab of ['mysql', 'postgresql', 'types', 'tree']) {
            await other.click(`#tab-${tab}`);
            await isDone(other);
        }
        assert.equal(await other.evaluate(() => window.broken), undefined);
        assert.equal(
            await other.locator('main img:not(.cm-widgetBuffer), main b:not(.node b)').count(),
            0,
        );
        await isFine(other);
    });
});

describe('keyboard alone', () => {
    const focused = (opened) =>
        opened.evaluate(() => {
            const at = document.activeElement;
            const shown =
                at.closest('.cm-editor') ??
                (at.getAttribute('role') === 'treeitem' ? at.querySelector('.node') : at);
            const style = getComputedStyle(shown);
            return {
                name: at.id || at.closest('[id]')?.id,
                isSeen: style.outlineStyle !== 'none' && parseFloat(style.outlineWidth) >= 2,
            };
        });
    async function tabTo(opened, name) {
        for (let steps = 0; steps < 60; ++steps) {
            await opened.keyboard.press('Tab');
            const at = await focused(opened);
            assert.ok(at.isSeen || at.name === 'result', `the focus on ${at.name} is not seen`);
            if (at.name === name) return;
        }
        assert.fail(`${name} is not reached`);
    }

    test('does everything', async () => {
        const shop = path.resolve(__dirname, '../../examples/shop.sql');
        page.once('filechooser', (chooser) => chooser.setFiles(shop));
        await page.evaluate(() => document.activeElement.blur());
        await page.keyboard.press('Tab');
        assert.equal(await page.evaluate(() => document.activeElement.className), 'skip');
        assert.ok((await page.locator('.skip').boundingBox()).x >= 0);

        await tabTo(page, 'example');
        await page.keyboard.type('What is not read');
        await isDone(page);
        assert.match(await statementOf(page), /^with best/);
        await tabTo(page, 'share');

        await tabTo(page, 'editor');
        await page.keyboard.press('Control+A');
        const statement = 'select initcap(a) || 1 from t where to_hex(b) = c';
        await page.keyboard.type(statement);
        await isTyped(page, statement);
        await page.keyboard.press('F8');
        const first = await selected(page);
        await page.keyboard.press('F8');
        assert.deepEqual([first, await selected(page)].sort(), ['initcap(a)', 'to_hex(b)']);
        await page.keyboard.press('Tab'); // to the link in the tip
        assert.equal(
            await page.evaluate(() => document.activeElement.closest('.cm-tooltip') !== null),
            true,
        );
        await page.keyboard.press('Tab'); // leaves the editor
        assert.equal(await page.evaluate(() => document.activeElement.textContent), 'Go to 1:8');
        await page.keyboard.press('Enter');
        assert.equal(await selected(page), 'initcap(a)');

        await tabTo(page, 'tab-mysql');
        for (const [key, tab] of [
            ['ArrowRight', 'postgresql'],
            ['ArrowRight', 'types'],
            ['ArrowLeft', 'postgresql'],
            ['End', 'tree'],
            ['ArrowRight', 'mysql'],
            ['ArrowLeft', 'tree'],
            ['Home', 'mysql'],
            ['End', 'tree'],
        ]) {
            await page.keyboard.press(key);
            assert.equal((await focused(page)).name, `tab-${tab}`);
            await page.locator(`#panel-${tab}`).waitFor(); // is seen
        }
        await isDone(page);

        await tabTo(page, 'unfold');
        await tabTo(page, 'tree-room');
        const level = () => page.evaluate(() => document.activeElement.getAttribute('aria-level'));
        assert.equal(await level(), '1');
        await page.keyboard.press('ArrowRight');
        assert.equal(await level(), '2');
        await page.keyboard.press('End');
        await page.keyboard.press('Home');
        assert.equal(await level(), '1');
        await page.keyboard.press('ArrowLeft');
        assert.equal(await page.locator('#tree-room .node:visible').count(), 1);
        await page.keyboard.press('Enter');
        await page.keyboard.press('ArrowDown');
        assert.equal(await level(), '2');
        assert.ok((await page.locator('#editor .lit').count()) > 0);
        await page.keyboard.press('ArrowLeft');
        await page.keyboard.press('ArrowLeft');
        assert.equal(await level(), '1');

        await tabTo(page, 'open');
        await page.keyboard.press('Enter');
        await page.locator('#script-result').waitFor({ timeout: 30000 });
        await tabTo(page, 'script-to');
        await tabTo(page, 'script-placeholders');
        await tabTo(page, 'script-text');
        await tabTo(page, 'script-report');
    });

    test('goes to types', async () => {
        await show(page, 'select 1 + 2, a from t', 'types');
        await page.locator('#tab-types').focus();
        await page.keyboard.press('Tab');
        assert.equal(
            await page.evaluate(() => document.activeElement.closest('table')?.id),
            'types',
        );
        assert.ok((await page.locator('#editor .lit').count()) > 0);
        await page.keyboard.press('Enter');
        assert.equal(await selected(page), '1 + 2');
    });
});

describe('looks', () => {
    const shade = () =>
        page.evaluate(() => {
            const [r, g, b] = getComputedStyle(document.body)
                .backgroundColor.match(/\d+/g)
                .map(Number);
            return (r + g + b) / 3;
        });

    for (const [colorScheme, isRight] of [
        ['light', (at) => at > 230],
        ['dark', (at) => at < 40],
    ]) {
        for (const width of [1280, 360]) {
            test(`${colorScheme}, ${width} pixels: accessible, and nothing wider than the window`, async () => {
                await page.emulateMedia({ colorScheme });
                await page.setViewportSize({ width, height: 900 });
                assert.ok(isRight(await shade()));
                for (const [tab, statement] of [
                    [
                        'mysql',
                        "select initcap(name), 500 / 12, sku || ': ' || name as label\n  from item -- what is left\n where stock > 0",
                    ],
                    [
                        'mysql',
                        `select ${'a'.repeat(300)} / 2, '${'x'.repeat(500)}' from t order by 1`,
                    ],
                    ['postgresql', 'select 5!, a.b from t a'],
                    ['types', "select cast(price as bigint), date '2024-01-31' + 1 from item"],
                    [
                        'tree',
                        "select name, sum(price) from item where sold > date '2005-01-01' group by name",
                    ],
                    ['mysql', 'select ('],
                ]) {
                    await show(page, statement, tab);
                    const rules = await violations(page);
                    assert.deepEqual(rules.found, [], `${tab}: ${statement}`);
                    assert.ok(rules.checked > 20);
                    const room = await page.evaluate(() => document.documentElement.scrollWidth);
                    assert.ok(room <= width, `${tab}: ${room} > ${width}`);
                }
                await show(
                    page,
                    "select name, 500 / 12 as dozens,\n       sku || ': ' || name as label\n  from item\n where stock >= 500",
                    'mysql',
                );
                await page.screenshot({
                    path: path.join(pictures, `${colorScheme}-${width}-mysql.png`),
                    fullPage: true,
                });
                await page.selectOption('#example', { label: 'A tree' });
                await isDone(page);
                await page.locator('#tree-room .node').nth(6).hover();
                await page.screenshot({
                    path: path.join(pictures, `${colorScheme}-${width}-tree.png`),
                    fullPage: true,
                });
                await page.selectOption('#example', { label: 'Inferred types' });
                await isDone(page);
                await page.screenshot({
                    path: path.join(pictures, `${colorScheme}-${width}-types.png`),
                    fullPage: true,
                });
            });
        }
    }

    test('a tip is accessible, too', async () => {
        for (const colorScheme of ['light', 'dark']) {
            await page.emulateMedia({ colorScheme });
            await show(page, 'select initcap(a), 7 / 2 from t');
            await page.locator('#editor .said-refusal').first().hover();
            await page.locator('.cm-tooltip .cm-diagnostic').first().waitFor();
            assert.deepEqual((await violations(page)).found, []);
            await page.mouse.move(0, 0);
        }
    });
});

test('on a telephone, with a finger', async () => {
    const phone = await open(
        browser,
        server.address + fragment('select initcap(name), 1 + 2 from item'),
        {
            viewport: { width: 360, height: 740 },
            isMobile: true,
            hasTouch: true,
        },
    );
    await isDone(phone);
    await phone.getByRole('button', { name: 'Go to 1:8' }).tap();
    assert.equal(await selected(phone), 'initcap(name)');
    await phone.tap('#tab-types');
    await phone.locator('#types tbody tr').first().waitFor();
    await isDone(phone);
    await phone.locator('#editor .cm-line').getByText('1', { exact: true }).tap();
    await phone.getByText(/^At the cursor: 1( \+ 2)? is INT8$/).waitFor();
    await phone.tap('#tab-tree');
    await isDone(phone);
    await phone.locator('#tree-room .node').first().tap();
    assert.equal(await phone.locator('#tree-room .node:visible').count(), 1);
    assert.ok((await phone.evaluate(() => document.documentElement.scrollWidth)) <= 360);
    await isFine(phone);
});

test('the licences of what is in it are beside it', () => {
    const licences = fs.readFileSync(path.join(site, 'licences.txt'), 'utf8');
    for (const name of [
        '@codemirror/view',
        '@lezer/lr',
        'libcli11-dev',
        'nlohmann-json3-dev',
        'emscripten',
    ])
        assert.match(
            licences,
            new RegExp(`^${name}( [\\d.]+)?\n\n.*(Copyright|MIT|Format)`, 'm'),
            name,
        );
});

test('no connection is allowed', async () => {
    const isRefused = (address) =>
        page.evaluate(
            (to) =>
                fetch(to).then(
                    () => false,
                    () => true,
                ),
            address,
        );
    assert.equal(await isRefused('style.css'), true);
    assert.equal(await isRefused('https://example.org/'), true);
    const refusals = page.problems.filter((each) =>
        /violates the following Content Security Policy/.test(each),
    );
    assert.equal(refusals.length, 2);
    page.problems.length = 0;
    assert.ok(!page.requests.some((each) => each.includes('example.org')));
});

test('opens as a file, without a server', async () => {
    const other = await open(
        browser,
        pathToFileURL(path.join(site, 'index.html')).href + fragment('select a || b from t'),
    );
    await isDone(other);
    assert.equal(await resultOf(other), 'SELECT CONCAT(a, b) FROM t');
    await other.setInputFiles('#files', {
        name: 'a.sql',
        mimeType: 'text/plain',
        buffer: Buffer.from('select 7 / 2;'),
    });
    await other.locator('#script-result').waitFor({ timeout: 30000 });
    await other.frameLocator('#report').getByText('1 statement for mysql').first().waitFor();
    assert.deepEqual(other.problems, []);
    assert.deepEqual(
        other.requests.filter((each) => !/^(file|blob):/.test(each)),
        [],
    );
    await other.close();
});
