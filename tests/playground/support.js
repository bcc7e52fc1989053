'use strict';
// The playground, served from a folder of a server as it would be, and a browser to use it.

const fs = require('node:fs');
const http = require('node:http');
const path = require('node:path');
const { launchBrowser, open, violations } = require('../browser/support');

const work = path.resolve(__dirname, '../../build/playground');
const site = path.join(work, 'site');
const pictures = path.join(work, 'pictures');
fs.mkdirSync(pictures, { recursive: true });

const types = { '.html': 'text/html', '.css': 'text/css', '.js': 'text/javascript' };

// Serves the site below /a folder/.
async function serve() {
    const server = http.createServer((request, response) => {
        const { pathname } = new URL(request.url, 'http://localhost');
        const name = path.join(site, decodeURIComponent(pathname).replace(/^\/a folder\//, ''));
        if (!name.startsWith(site) || !fs.existsSync(name) || !fs.statSync(name).isFile()) {
            response.writeHead(404).end();
            return;
        }
        response.writeHead(200, {
            'content-type': types[path.extname(name)] ?? 'application/octet-stream',
        });
        fs.createReadStream(name).pipe(response);
    });
    await new Promise((done) => server.listen(0, '127.0.0.1', done));
    const origin = `http://127.0.0.1:${server.address().port}`;
    return { address: `${origin}/a%20folder/index.html`, origin, close: () => server.close() };
}

const fragment = (statement, tab = 'mysql') => `#${new URLSearchParams({ tab, sql: statement })}`;

// Until the page has shown what it has to show.
const isDone = (page) => page.locator('#result[data-is-busy=false]').waitFor({ timeout: 60000 });

const onOneLine = (text) => text.replace(/\s+/g, ' ').trim();
const statementOf = async (page) =>
    onOneLine(await page.locator('#editor .cm-content').innerText());

// Puts a short statement into the page as its address does.
async function show(page, statement, tab = 'mysql') {
    await page.evaluate(
        (to) => {
            location.hash = to;
        },
        fragment(statement, tab),
    );
    await page.waitForFunction(
        ([text, chosen]) => {
            const shown = document
                .querySelector('#editor .cm-content')
                .innerText.replace(/\s+/g, ' ')
                .trim();
            return (
                shown === text &&
                document.querySelector('[aria-selected=true]').id === `tab-${chosen}`
            );
        },
        [onOneLine(statement), tab],
    );
    await isDone(page);
}

const outcome = (page) => page.locator('#outcome').textContent();
const resultOf = async (page) =>
    onOneLine(await page.locator('[role=tabpanel]:visible .cm-content').innerText());
const ids = (page) => page.locator('#diagnostics a').allTextContents();

module.exports = {
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
};
