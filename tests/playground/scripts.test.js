'use strict';

const assert = require('node:assert/strict');
const { spawnSync } = require('node:child_process');
const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');
const { after, afterEach, before, beforeEach, test } = require('node:test');
const { isDone, launchBrowser, open, pictures, serve, site, violations } = require('./support');

const examples = path.resolve(__dirname, '../../examples');
const shop = path.join(examples, 'shop.sql');

let browser;
let server;
let page;
let folder;
before(async () => {
    browser = await launchBrowser();
    server = await serve();
    folder = fs.mkdtempSync(path.join(os.tmpdir(), 'quillet-playground-'));
});
after(async () => {
    await browser.close();
    server.close();
    fs.rmSync(folder, { recursive: true });
});
beforeEach(async () => {
    page = await open(browser, server.address);
    await isDone(page);
});
afterEach(async () => {
    assert.deepEqual(page.problems, []);
    const own = server.address.replace('index.html', '');
    assert.deepEqual(
        page.requests.filter(
            (each) => !each.startsWith(own) && !each.startsWith(`blob:${server.origin}/`),
        ),
        [],
    );
    await page.close();
});

// What the program itself makes of files: the text, the summary, and the report with the page's links.
function native(files, ...options) {
    const run = spawnSync(
        process.env.QUILLET_SCRIPT,
        [
            ...options,
            '--notes',
            '-o',
            path.join(folder, 'text'),
            '--report',
            path.join(folder, 'report'),
            '--docs',
            server.address.replace('index.html', 'docs'),
            ...files.map((file) => path.basename(file)),
        ],
        { cwd: path.dirname(files[0]), encoding: 'utf8' },
    );
    assert.ok(run.status < 2, run.stderr);
    return {
        text: fs.readFileSync(path.join(folder, 'text'), 'utf8'),
        summary: run.stderr.trim().split('\n').at(-1),
        report: fs
            .readFileSync(path.join(folder, 'report'), 'utf8')
            .replaceAll(/("link":"[^"#]*)\.md/g, '$1.html'),
    };
}

// Drops files as a hand does.
async function drop(files, isReleased = true) {
    const session = await page.context().newCDPSession(page);
    const data = { items: [], files, dragOperationsMask: 1 };
    for (const type of ['dragEnter', 'dragOver', ...(isReleased ? ['drop'] : [])])
        await session.send('Input.dispatchDragEvent', { type, x: 300, y: 250, data });
    await session.detach();
}

const status = () => page.locator('#script-status').textContent();
const hasResult = () => page.locator('#script-result').waitFor({ timeout: 60000 });

async function download(id) {
    const [saved] = await Promise.all([page.waitForEvent('download'), page.click(id)]);
    return { name: saved.suggestedFilename(), text: fs.readFileSync(await saved.path(), 'utf8') };
}

test('a dropped file becomes the text and the report of quillet-script, to the byte', async () => {
    await drop([shop], false);
    assert.equal(await page.locator('#drop').isVisible(), true);
    await drop([shop]);
    await hasResult();
    assert.equal(await page.locator('#drop').isVisible(), false);
    const expected = native([shop]);
    assert.equal(await status(), expected.summary);
    assert.deepEqual(await download('#script-text'), {
        name: 'shop.mysql.sql',
        text: expected.text,
    });
    assert.deepEqual(await download('#script-report'), {
        name: 'shop.html',
        text: expected.report,
    });
    assert.match(await page.locator('#editor .cm-content').innerText(), /^select name/); // and not the file
});

test('its report can be used where it is shown, and links to the guides', async () => {
    await drop([shop]);
    await hasResult();
    const report = page.frames()[1];
    await report.getByRole('heading', { name: '14 statements for mysql' }).waitFor();
    await report.selectOption('#outcome', 'refused');
    assert.equal(await report.locator('#count').textContent(), '1 of 15 shown');
    const links = await report.locator('#ids a').evaluateAll((all) => all.map((each) => each.href));
    assert.ok(links.length > 5);
    for (const link of links) {
        const { pathname, hash } = new URL(link);
        const guide = fs.readFileSync(
            path.join(site, decodeURIComponent(pathname).replace('/a folder/', '')),
            'utf8',
        );
        assert.ok(hash === '' || guide.includes(`id="${hash.slice(1)}"`), link);
    }
    assert.deepEqual((await violations(page)).found, []);
    assert.deepEqual((await violations(report)).found, []);
    await page.screenshot({ path: path.join(pictures, 'script.png'), fullPage: true });
});

test('the builder and the placeholders can be chosen, before and after', async () => {
    const file = path.join(examples, 'placeholders.sql');
    await page.selectOption('#script-placeholders', 'auto');
    await drop([file]);
    await hasResult();
    assert.equal(
        (await download('#script-text')).text,
        native([file], '--placeholders', 'auto').text,
    );
    await page.selectOption('#script-to', 'postgresql');
    await page
        .locator('#script-result')
        .waitFor({ state: 'hidden' })
        .catch(() => {});
    await hasResult();
    assert.deepEqual(await download('#script-text'), {
        name: 'placeholders.postgresql.sql',
        text: native([file], '--placeholders', 'auto', '--to', 'postgresql').text,
    });
});

test('several files come one after the other', async () => {
    const files = [shop, path.join(examples, 'placeholders.sql')];
    await drop(files);
    await hasResult();
    const expected = native(files);
    assert.equal(await status(), expected.summary);
    assert.deepEqual(await download('#script-text'), {
        name: 'scripts.mysql.sql',
        text: expected.text,
    });
});

test('odd files and names', async () => {
    const write = (name, content) => {
        fs.writeFileSync(path.join(folder, name), content);
        return path.join(folder, name);
    };
    await drop([write('empty.sql', '')]);
    await hasResult();
    assert.match(await status(), /^0 statements/);
    await drop([write('-o', 'select 1;')]);
    await page.getByText('1 statement: 1 translated').waitFor();
    await drop([write('ключ 日本語 <b>.sql', 'select 1; select 2;')]);
    await page.getByText('2 statements: 2 translated').waitFor();
    assert.equal((await download('#script-text')).name, 'ключ 日本語 _b_.mysql.sql');
    await drop([write('sixteen.sql', Buffer.from('\ufeffselect 1;', 'utf16le'))]);
    await page.getByText('sixteen.sql: is UTF-16; a script is UTF-8').waitFor();
    assert.equal(await page.locator('#script-result').isVisible(), false);
});

test('a large file is translated while the page goes on, and says how far it is', async (t) => {
    const large = path.join(folder, 'large.sql');
    fs.writeFileSync(large, fs.readFileSync(shop).toString().repeat(3000));
    const began = performance.now();
    await drop([large]);
    await page.waitForFunction(() => document.getElementById('script-progress').value > 0.1, null, {
        timeout: 60000,
    });
    await page.locator('#editor .cm-content').click();
    await page.keyboard.press('Control+A');
    await page.keyboard.type('select 7 / 2');
    await page.getByText('Translated, with 1 warning').waitFor();
    await hasResult();
    t.diagnostic(`42,000 statements in ${(performance.now() - began).toFixed(0)} ms`);
    assert.match(await status(), /^42000 statements/);
    await page.frameLocator('#report').getByText('42,000 statements for mysql').first().waitFor();
});

test('it can be cancelled', async () => {
    const large = path.join(folder, 'larger.sql');
    fs.writeFileSync(large, fs.readFileSync(shop).toString().repeat(10000));
    await drop([large]);
    await page.waitForFunction(() => document.getElementById('script-progress').value > 0, null, {
        timeout: 60000,
    });
    await page.click('#script-cancel');
    assert.equal(await status(), 'Cancelled.');
    assert.equal(await page.locator('#script-running').isVisible(), false);
    await drop([shop]);
    await hasResult();
    assert.match(await status(), /^14 statements/);
});
