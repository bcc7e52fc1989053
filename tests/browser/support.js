'use strict';
// Reports of scripts, and a browser to look at them.

const { spawnSync } = require('node:child_process');
const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');
const { pathToFileURL } = require('node:url');
const { chromium } = require('playwright-core');

const program = process.env.QUILLET_SCRIPT;

const launchBrowser = () => chromium.launch({
  executablePath: '/usr/bin/chromium',
  headless: true,
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});

// Runs quillet-script over scripts, which are names with their texts, and gives back what it says: the
// page, the last line of its messages and, from another run, an object a statement.
function report(scripts, ...options) {
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'quillet-report-'));
  const names = Object.keys(scripts);
  for (const name of names)
    fs.writeFileSync(path.join(folder, name), scripts[name]);
  const run = (...more) => spawnSync(program, [...names, ...options, ...more],
    { cwd: folder, encoding: 'utf8', maxBuffer: 1 << 30 });
  const made = run('--report', 'report.html', '-o', 'out');
  const json = run('--format', 'json').stdout;
  return {
    folder,
    page: pathToFileURL(path.join(folder, 'report.html')).href,
    summary: made.stderr.trim().split('\n').at(-1),
    statements: json.split('\n').filter((line) => line !== '').map((line) => JSON.parse(line)),
    remove: () => fs.rmSync(folder, { recursive: true }),
  };
}

// Opens a page. problems: what a browser says about errors; requests: what it asks for.
async function open(browser, address, options = {}) {
  const page = await browser.newPage({ viewport: { width: 1280, height: 900 }, ...options });
  page.problems = [];
  page.requests = [];
  page.on('console', (message) => page.problems.push(message.text()));
  page.on('pageerror', (error) => page.problems.push(String(error)));
  page.on('request', (request) => page.requests.push(request.url()));
  await page.goto(address);
  return page;
}

// The five outcomes of the line that ends a run's messages.
function numbersOf(summary) {
  const [, translated, warned, refused, wrong, copied] = summary.match(
    /^\d+ statements?: (\d+) translated \((\d+) with warnings\), (\d+) refused, (\d+) not understood, (\d+) copied/);
  return {
    translated: translated - warned, 'with-warnings': Number(warned), refused: Number(refused),
    'not-understood': Number(wrong), copied: Number(copied),
  };
}

function outcomeOf({ code, diagnostics, statement }) {
  if (code === -2)
    return 'not-understood';
  if (code !== 0)
    return 'refused';
  if (/^(create|set)/.test(statement))
    return 'copied';
  return diagnostics.some((each) => each.severity === 'warning') ? 'with-warnings' : 'translated';
}

const axeSource = fs.readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8');

// What of the page does not keep to the rules of accessibility.
async function violations(page) {
  await page.evaluate(axeSource);
  const { violations: found, passes } = await page.evaluate(() => window.axe.run(document, {
    runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'],
  }));
  return {
    checked: passes.length,
    found: found.map(({ id, nodes }) => `${id}: ${nodes.map((node) => node.html).join('; ').slice(0, 500)}`),
  };
}

module.exports = { launchBrowser, numbersOf, open, outcomeOf, report, violations };
