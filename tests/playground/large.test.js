'use strict';

const assert = require('node:assert/strict');
const { after, afterEach, before, beforeEach, test } = require('node:test');
const { isDone, launchBrowser, open, outcome, resultOf, serve } = require('./support');

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
afterEach(async () => {
    assert.deepEqual(page.problems, []);
    await page.close();
});

// Notes how long the page has stood still, frame after frame.
const watch = () =>
    page.evaluate(() => {
        window.longest = 0;
        let last = performance.now();
        const step = (now) => {
            window.longest = Math.max(window.longest, now - last);
            last = now;
            requestAnimationFrame(step);
        };
        requestAnimationFrame(step);
    });
const longestStill = async () => {
    const longest = await page.evaluate(() => {
        const found = window.longest;
        window.longest = 0;
        return found;
    });
    return Math.round(longest);
};

const most = 1000; // milliseconds that a page may stand still on a busy machine; quiet ones are far below

for (const name of ['A list of 100,000 members', 'A chain of 100,000 members']) {
    test(`${name}: each tab, while the page never stands still`, async (t) => {
        await watch();
        await page.selectOption('#example', { label: name });
        await isDone(page);
        assert.equal(await outcome(page), 'Translated');
        assert.match(await resultOf(page), /^SELECT a/);
        const still = { shown: await longestStill() };
        for (const tab of ['postgresql', 'types', 'tree']) {
            await page.click(`#tab-${tab}`);
            await isDone(page);
            still[tab] = await longestStill();
        }
        assert.ok((await page.locator('[role=treeitem]').count()) < 1000);
        await page.click('#unfold');
        await page.waitForTimeout(1000);
        still.unfolded = await longestStill();

        await page.click('#tab-mysql');
        await isDone(page);
        await longestStill();
        await page.locator('#editor .cm-content').focus();
        for (const key of [
            'Control+End',
            'x',
            'y',
            'z',
            'Backspace',
            'Control+Home',
            'ArrowRight',
            'Enter',
            'Backspace',
        ])
            await page.keyboard.press(key);
        await isDone(page);
        still.typed = await longestStill();
        t.diagnostic(JSON.stringify(still));
        for (const [when, time] of Object.entries(still))
            assert.ok(time < most, `${when}: ${time} ms`);
    });
}

test('of a hundred thousand messages the first are shown', async () => {
    await watch();
    const statement = `select ${Array(100000).fill('7/2').join(',')}`;
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    await page.evaluate((text) => navigator.clipboard.writeText(text), statement);
    await page.locator('#editor .cm-content').focus();
    await page.keyboard.press('Control+A');
    await page.keyboard.press('Control+V');
    await page.getByText('Translated, with 100,000 messages').waitFor({ timeout: 60000 });
    assert.equal(await page.locator('#diagnostics li').count(), 50);
    await page.click('#more-diagnostics');
    assert.equal(await page.locator('#diagnostics li').count(), 100);
    assert.equal(
        await page.evaluate(
            () =>
                document.activeElement.closest('li') ===
                document.querySelectorAll('#diagnostics li')[50],
        ),
        true,
    );
    const still = await longestStill();
    assert.ok(still < most, `${still} ms`);
});

test('more children come when they are asked for', async () => {
    await page.selectOption('#example', { label: 'A list of 100,000 members' });
    await isDone(page);
    await page.click('#tab-tree');
    await isDone(page);
    const more = page.locator('#tree-room .more').last();
    const before = await page.locator('[role=treeitem]').count();
    await more.locator('.node').click();
    await page.waitForFunction(
        (count) => document.querySelectorAll('[role=treeitem]').length > count,
        before,
    );
});

test('the latest statement wins, and one that takes long is given up', async (t) => {
    await page.evaluate(() => {
        window.workers = 0;
        const { Worker } = window;
        window.Worker = class extends Worker {
            constructor(...all) {
                super(...all);
                ++window.workers;
            }
        };
    });
    const long = `select ${Array(2000000).fill('a/b').join('+')}`;
    await page.context().grantPermissions(['clipboard-read', 'clipboard-write']);
    await page.evaluate((text) => navigator.clipboard.writeText(text), long);
    await page.locator('#editor .cm-content').focus();
    await page.keyboard.press('Control+A');
    await page.keyboard.press('Control+V');
    await page.getByText('Working…').waitFor();
    const began = performance.now();
    await page.keyboard.press('Control+A');
    await page.keyboard.type('select 7 || 2');
    await page.waitForFunction(() =>
        document.querySelector('#panel-mysql .cm-content').innerText.includes('CONCAT(7, 2)'),
    );
    t.diagnostic(`${(performance.now() - began).toFixed(0)} ms`);
    await page.waitForTimeout(2000);
    assert.equal(await resultOf(page), 'SELECT CONCAT(7, 2)');
    assert.ok((await page.evaluate(() => window.workers)) >= 1); // another one has begun
});
