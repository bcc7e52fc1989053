'use strict';

const assert = require('node:assert/strict');
const fs = require('node:fs');
const path = require('node:path');
const { after, before, describe, test } = require('node:test');
const scripts = require('./scripts');
const { launchBrowser, numbersOf, open, outcomeOf, report, violations } = require('./support');

const docs = path.resolve(__dirname, '../../docs');

let browser;
let made;
before(async () => {
  browser = await launchBrowser();
  made = report({ 'shop.sql': scripts.shop, 'stock.sql': scripts.stock, 'psql.sql': scripts.psql },
    '--docs', docs);
});
after(async () => {
  await browser.close();
  made.remove();
});

const places = (page) => page.locator('.statement h3 .place').allTextContents();
const placeOf = ({ file, line, column }) => `${file}:${line}:${column}`;
const numberIn = (text) => Number(text.replaceAll(',', ''));

async function isFine(page, address) {
  assert.deepEqual(page.problems, []);
  assert.deepEqual(page.requests.map((each) => each.split('#')[0]), [address]);
}

describe('looks', () => {
  const shade = (page) => page.evaluate(() => {
    const [r, g, b] = getComputedStyle(document.body).backgroundColor.match(/\d+/g).map(Number);
    return (r + g + b) / 3;
  });

  for (const [colorScheme, isRight] of [['light', (at) => at > 230], ['dark', (at) => at < 40]]) {
    test(`${colorScheme}: no errors, no requests, accessible`, async () => {
      const page = await open(browser, made.page, { colorScheme });
      assert.ok(isRight(await shade(page)));
      const rules = await violations(page);
      assert.deepEqual(rules.found, []);
      assert.ok(rules.checked > 20);
      await isFine(page, made.page);
      await page.close();
    });
  }

  test('narrow: nothing is wider than the window, and it is accessible', async () => {
    const name = `${'long_name'.repeat(20)}.sql`;
    const wide = report({ [name]: `${scripts.shop}select '${'x'.repeat(500)}', ${'a'.repeat(300)} / 2;`,
      'other.sql': scripts.long });
    for (const width of [360, 320]) {
      const page = await open(browser, wide.page, { viewport: { width, height: 740 } });
      const room = await page.evaluate(() => document.documentElement.scrollWidth);
      assert.ok(room <= width, `${room} > ${width}`);
      const outside = await page.evaluate(() => [...document.querySelectorAll('main *')]
        .filter((each) => each.getClientRects().length > 0 && !each.closest('thead'))
        .filter((each) => each.getBoundingClientRect().right > innerWidth).length);
      assert.equal(outside, 0);
      assert.deepEqual((await violations(page)).found, []);
      await isFine(page, wide.page);
      await page.close();
    }
    wide.remove();
  });

  test('side by side in a wide window, one above the other in a narrow one', async () => {
    for (const [width, isBeside] of [[1280, true], [360, false]]) {
      const page = await open(browser, made.page, { viewport: { width, height: 740 } });
      const [source, text] = await page.locator('.sides').first().locator('> div').all();
      const [left, right] = [await source.boundingBox(), await text.boundingBox()];
      assert.equal(left.x + left.width <= right.x, isBeside);
      assert.equal(left.y + left.height <= right.y, !isBeside);
      await page.close();
    }
  });

  test('printed as a whole', async () => {
    const page = await open(browser, made.page);
    await page.evaluate(() => dispatchEvent(new Event('beforeprint')));
    await page.emulateMedia({ media: 'print' });
    assert.equal(await page.locator('#outcome').isVisible(), false);
    assert.equal(await page.locator('#more').isVisible(), false);
    await page.close();
  });
});

describe('numbers', () => {
  test('the chart has those of the summary', async () => {
    const page = await open(browser, made.page);
    const wanted = numbersOf(made.summary);
    assert.ok(Object.values(wanted).every((each) => each > 0), made.summary); // each outcome is there
    const shown = {};
    for (const button of await page.locator('#outcomes button').all())
      shown[await button.getAttribute('data-outcome')] = numberIn(await button.locator('.count').textContent());
    assert.deepEqual(shown, wanted);

    const all = Object.values(wanted).reduce((sum, each) => sum + each);
    assert.equal(await page.title(), `${all} statements for mysql`);
    for (const [key, number] of Object.entries(wanted)) {
      const [bar, room] = await page.locator(`#outcomes [data-outcome="${key}"] .bar`).evaluate((each) =>
        [each.firstElementChild.getBoundingClientRect().width, each.getBoundingClientRect().width]);
      assert.ok(Math.abs(bar / room - number / all) < 0.01);
    }
    await page.close();
  });

  test('the table has each id with its counts, sentence and hint', async () => {
    const wanted = new Map();
    for (const { diagnostics } of made.statements) {
      for (const { id, severity, message, hint } of diagnostics) {
        const row = wanted.get(id) ?? { severity, places: 0, statements: 0, messages: new Set(), hint };
        wanted.set(id, row);
        row.places += 1;
        row.messages.add(message);
      }
      for (const id of new Set(diagnostics.map((each) => each.id)))
        wanted.get(id).statements += 1;
    }
    assert.ok([...wanted.values()].some((row) => row.places > row.statements));
    const page = await open(browser, made.page);
    const seen = [];
    for (const row of await page.locator('#ids tbody tr').all()) {
      const [id, severity, number, statements, says] = await row.locator('td').allTextContents();
      if (id === 'psql-command') { // which is said between statements, and not in the JSON
        assert.deepEqual([severity, number, statements], ['note', '1', '1']);
        continue;
      }
      const expected = wanted.get(id);
      assert.deepEqual([severity, numberIn(number), numberIn(statements)],
        [expected.severity, expected.places, expected.statements], id);
      const [first] = expected.messages;
      assert.equal(says, (expected.messages.size > 1 ? `such as: ${first}` : first) +
        (expected.hint ? `Instead: ${expected.hint}` : ''));
      seen.push(id);
    }
    assert.deepEqual(seen.sort(), [...wanted.keys()].sort());
    await page.close();
  });

  test('each id links to where it is explained', async () => {
    const slug = (heading) => heading.toLowerCase().replace(/[^\w\- ]/g, '').replaceAll(' ', '-');
    const page = await open(browser, made.page);
    const pages = new Set();
    for (const row of await page.locator('#ids tbody tr').all()) {
      const id = await row.locator('.id').textContent();
      const link = new URL(await row.locator('a').evaluate((each) => each.href));
      const target = decodeURIComponent(link.pathname);
      const file = path.basename(target);
      pages.add(file);
      assert.equal(target, path.join(docs, file));
      if (['copied', 'psql-command'].includes(id)) {
        assert.equal(file, 'scripts.md');
        continue;
      }
      const headings = fs.readFileSync(path.join(docs, file), 'utf8').match(/^#+ .*$/gm)
        .map((each) => slug(each.replace(/^#+ /, '')));
      assert.ok(headings.includes(link.hash.slice(1)), `${id}: ${link.href}`);
      assert.equal(file === 'differences.md' && link.hash !== `#${id}`, false);
    }
    assert.deepEqual([...pages].sort(), ['differences.md', 'embedding.md', 'mysql.md', 'scripts.md']);
    await page.close();
  });

  test('the differences of the other builder have places of their own', async () => {
    const other = report({ 'a.sql': 'select current_date;' }, '--to', 'postgresql', '--docs', 'https://example.org/docs');
    const page = await open(browser, other.page);
    assert.deepEqual(await page.locator('#ids tbody a').evaluateAll((links) => links.map((each) => each.href)),
      ['https://example.org/docs/differences.md#postgresql-clock-call']);
    await isFine(page, other.page);
    await page.close();
    other.remove();
  });
});

describe('statements', () => {
  test('each stands beside its text', async () => {
    const page = await open(browser, made.page);
    for (const each of made.statements) {
      const item = page.locator('.statement', { has: page.getByText(placeOf(each), { exact: true }) });
      const [source, text] = await item.locator('.sides > div').all();
      assert.equal(await source.locator('code').textContent(), each.statement);
      if (each.text === null)
        assert.equal(await text.locator('.none').textContent(), 'No text.');
      else
        assert.equal(await text.locator('code').textContent(), each.text);
      assert.equal(await item.getAttribute('data-outcome'), outcomeOf(each));
    }
    await page.close();
  });

  test('the marks stand at the right characters', async () => {
    const page = await open(browser, made.page);
    let checked = 0;
    for (const each of made.statements) {
      const item = page.locator('.statement', { has: page.getByText(placeOf(each), { exact: true }) });
      const bytes = Buffer.from(each.statement);
      if (await item.locator('> button').count() > 0)
        await item.locator('> button').click();
      for (const [number, found] of each.diagnostics.entries()) {
        const shown = item.locator('.findings li').nth(number);
        await shown.hover();
        const [begin, text] = await item.locator('.sides code').first().evaluate((code) => {
          const marks = [...code.querySelectorAll('mark.shown')];
          const range = document.createRange();
          range.setStart(code, 0);
          range.setEndBefore(marks[0]);
          return [range.toString(), marks.map((mark) => mark.textContent).join('')];
        });
        assert.equal(begin, bytes.subarray(0, found.offset).toString());
        assert.equal(text, bytes.subarray(found.offset, found.offset + found.length).toString());
        const hint = found.hint ? `Instead: ${found.hint}` : '';
        assert.equal(await shown.textContent(),
          `${number + 1}${found.severity}${found.line}:${found.column}${found.message}[${found.id}]${hint}`);
        const mark = item.locator('mark.shown').first();
        assert.ok((await mark.getAttribute('title')).includes(`${number + 1}: ${found.severity}: ${found.message}`));
        checked += begin.length > 0 && /[^\0-\x7f]/.test(begin) ? 1 : 0;
      }
    }
    assert.ok(checked >= 5, `${checked} after characters of several bytes`);
    await page.close();
  });

  test('a mark is numbered where its finding begins, and has the gravest severity', async () => {
    const page = await open(browser, made.page);
    const { statement } = made.statements.find((each) => each.statement.includes('to_hex'));
    const item = page.locator('.statement').filter({ hasText: statement.slice(0, 20) }).filter({ hasText: 'to_hex' });
    const marks = await item.locator('mark').evaluateAll((all) => all.map((mark) =>
      [mark.textContent, mark.dataset.severity, mark.dataset.numbers]));
    assert.deepEqual(marks.find(([text]) => text.startsWith('initcap')).slice(1), ['refusal', '1']);
    assert.ok(marks.every(([, severity]) => severity === 'refusal'), JSON.stringify(marks)); // the division's note is within to_hex
    await page.close();
  });

  test('a place between two characters is marked as well', async () => {
    const ends = report({ 'a.sql': 'select (1' });
    assert.equal(ends.statements[0].diagnostics[0].length, 0);
    const page = await open(browser, ends.page);
    assert.deepEqual(await page.locator('mark').evaluateAll((all) => all.map((mark) =>
      [mark.textContent, mark.dataset.numbers])), [['', '1']]);
    assert.ok((await page.locator('mark').boundingBox()).width > 2);
    assert.equal(await page.locator('.sides code').first().textContent(), 'select (1');
    await page.close();
    ends.remove();
  });

  test('a long one is shown in part until one wants it all', async () => {
    const long = report({ 'long.sql': scripts.long });
    const page = await open(browser, long.page);
    const [first, second] = await page.locator('.statement').all();
    assert.equal(await second.locator('> button').count(), 0);
    const height = async () => (await first.boundingBox()).height;
    const before = await height();
    const button = first.locator('> button');
    assert.equal(await button.getAttribute('aria-expanded'), 'false');
    await button.click();
    assert.equal(await button.getAttribute('aria-expanded'), 'true');
    assert.ok(await height() > 2 * before);
    assert.ok(await first.locator('.findings li').last().isVisible());
    await button.click();
    assert.equal(await height(), before);
    await page.close();
    long.remove();
  });

  test('a text that --strict withholds is a refusal, and it says why', async () => {
    const strict = report({ 'a.sql': 'select 1;\nselect 7 / 2;\n' }, '--strict', '--no-warn=clock');
    const page = await open(browser, strict.page, {});
    assert.deepEqual(numbersOf(strict.summary).refused, 1);
    assert.match(await page.locator('[data-outcome="refused"].statement .none').textContent(), /--strict/);
    assert.match(await page.locator('#run').textContent(), /Settings--no-warn=clock --strict/);
    await page.close();
    strict.remove();
  });

  test('a statement that came with an id has it', async () => {
    const lines = report({ 'a.json': '{"id": "q-7", "statement": "select 1"}\n{"statement": "select 2"}\n' },
      '--input', 'json');
    const page = await open(browser, lines.page);
    assert.deepEqual(await places(page), ['a.json:1:1, id "q-7"', 'a.json:1:1']);
    await page.close();
    lines.remove();
  });
});

describe('filters', () => {
  const options = {
    outcome: ['translated', 'with-warnings', 'refused', 'not-understood', 'copied'],
    file: ['shop.sql', 'stock.sql'],
    id: ['refused-initcap', 'integer-division', 'syntax-error', 'copied'],
  };
  const holds = {
    outcome: (each, value) => outcomeOf(each) === value,
    file: (each, value) => each.file === value,
    id: (each, value) => each.diagnostics.some((found) => found.id === value),
  };

  async function check(page, chosen) {
    const wanted = made.statements.filter((each) =>
      Object.entries(chosen).every(([name, value]) => holds[name](each, value)));
    assert.deepEqual(await places(page), wanted.map(placeOf), JSON.stringify(chosen));
    const all = made.statements.length + 1; // psql's command
    assert.equal(await page.locator('#count').textContent(), `${wanted.length} of ${all} shown`);
    assert.equal(await page.locator('#count').getAttribute('role'), 'status'); // is read out
    assert.deepEqual(Object.fromEntries(new URLSearchParams(new URL(page.url()).hash.slice(1))), chosen);
    return wanted.length;
  }

  test('each alone', async () => {
    const page = await open(browser, made.page);
    assert.equal((await places(page)).length, made.statements.length + 1);
    for (const [name, values] of Object.entries(options)) {
      for (const value of values) {
        await page.selectOption(`#${name}`, value);
        assert.ok(await check(page, { [name]: value }) > 0);
      }
      await page.click('#filters button');
    }
    await isFine(page, made.page);
    await page.close();
  });

  test('all together', async () => {
    const page = await open(browser, made.page);
    const counts = new Set();
    for (const outcome of options.outcome) {
      for (const file of options.file) {
        for (const id of options.id) {
          await page.selectOption('#outcome', outcome);
          await page.selectOption('#file', file);
          await page.selectOption('#id', id);
          counts.add(await check(page, { outcome, file, id }));
        }
      }
    }
    assert.ok(counts.has(0) && counts.size > 1);
    await page.close();
  });

  test('by the chart and the table, which show what is chosen', async () => {
    const page = await open(browser, made.page);
    await page.click('#outcomes [data-outcome="refused"]');
    await check(page, { outcome: 'refused' });
    await page.click('#ids [data-id="refused-initcap"]');
    await check(page, { outcome: 'refused', id: 'refused-initcap' });
    assert.deepEqual(await page.locator('[aria-pressed="true"]').evaluateAll((all) =>
      all.map((each) => each.dataset.outcome ?? each.dataset.id)), ['refused', 'refused-initcap']);
    await page.click('#outcomes [data-outcome="refused"]');
    await check(page, { id: 'refused-initcap' });
    await page.close();
  });

  test('the address keeps them', async () => {
    const page = await open(browser, made.page);
    await page.selectOption('#outcome', 'refused');
    await page.selectOption('#file', 'stock.sql');
    const address = page.url();
    const other = await open(browser, address);
    await check(other, { outcome: 'refused', file: 'stock.sql' });
    assert.equal(await other.locator('#outcome').inputValue(), 'refused');
    await other.close();
    await page.goBack();
    await check(page, { outcome: 'refused' });
    await page.goBack();
    assert.equal((await places(page)).length, made.statements.length + 1);
    await page.close();

    const unknown = await open(browser, `${made.page}#outcome=none&id=%3Cb%3E&%%`);
    assert.equal((await places(unknown)).length, made.statements.length + 1);
    assert.deepEqual(unknown.problems, []);
    await unknown.close();
  });

  test('what stands between statements', async () => {
    const page = await open(browser, made.page);
    await page.selectOption('#outcome', 'between');
    assert.equal((await places(page)).length, 1);
    assert.equal(await page.locator('.statement code').textContent(), '\\d orders');
    await page.close();
  });
});

describe('hostile scripts', () => {
  test('what is in a script stays text', async () => {
    const name = '<img src=x onerror=window.broken=7>.sql';
    const script = Buffer.concat([Buffer.from(scripts.hostileScript.join('')),
      Buffer.from("select 'bad \xff\xfe', initcap('\xe9</script>');\n", 'latin1')]);
    const bad = report({ [name]: script }, '--docs', 'https://example.org/"><script>window.broken=8</script>');
    assert.ok(fs.readFileSync(path.join(bad.folder, 'report.html')).every((byte) => byte < 128));
    const page = await open(browser, bad.page);
    const codes = await page.locator('.statement .sides > div:first-child code').allTextContents();
    assert.deepEqual(codes, bad.statements.map((each) => each.statement));
    for (const [number, text] of scripts.hostile.entries())
      assert.ok(codes[number].includes(text), text);
    assert.equal(await page.evaluate(() => window.broken), undefined);
    assert.equal(await page.locator('script').count(), 2);
    assert.equal(await page.locator('img, svg, iframe, b').count(), 0);
    assert.ok((await page.locator('#run').textContent()).includes(name));
    assert.equal(await page.locator('a[href^="javascript:"]').count(), 0);
    await isFine(page, bad.page);
    await page.close();
    bad.remove();
  });
});

describe('keyboard', () => {
  const focused = (page) => page.evaluate(() => {
    const at = document.activeElement;
    const style = getComputedStyle(at);
    return { name: at.id || at.dataset.outcome || at.dataset.id || at.className || at.localName,
      isOutlined: style.outlineStyle !== 'none' && parseFloat(style.outlineWidth) >= 2 };
  });
  const tabTo = async (page, name) => {
    for (let steps = 0; steps < 100; ++steps) {
      await page.keyboard.press('Tab');
      const at = await focused(page);
      assert.ok(at.isOutlined, `the focus on ${at.name} is not seen`);
      if (at.name === name)
        return;
    }
    assert.fail(`${name} is not reached`);
  };

  test('does everything', async () => {
    const page = await open(browser, made.page);
    const all = made.statements.length + 1;
    const count = () => page.locator('#count').textContent();
    const refused = made.statements.filter((each) => outcomeOf(each) === 'refused');
    const initcaps = made.statements.filter((each) => each.diagnostics.some(({ id }) => id === 'refused-initcap'));

    await tabTo(page, 'skip');
    assert.ok((await page.locator('.skip').boundingBox()).x >= 0); // seen once it has the focus
    await tabTo(page, 'refused');
    await page.keyboard.press('Enter');
    assert.equal(await count(), `${refused.length} of ${all} shown`);
    await page.keyboard.press('Space');
    assert.equal(await count(), `${all} of ${all} shown`);
    await tabTo(page, 'refused-initcap');
    await page.keyboard.press('Enter');
    assert.equal(await count(), `${initcaps.length} of ${all} shown`);
    await page.keyboard.press('Enter');
    await tabTo(page, 'outcome');
    await page.keyboard.press('ArrowDown');
    assert.equal(await page.locator('#outcome').inputValue(), 'translated');
    assert.equal(await count(), `${numbersOf(made.summary).translated} of ${all} shown`);
    await tabTo(page, 'file');
    await tabTo(page, 'id');
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter'); // Show all
    assert.equal(await count(), `${all} of ${all} shown`);
    await page.close();
  });

  test('goes on to the statements, and keeps what is chosen', async () => {
    const page = await open(browser, `${made.page}#outcome=refused`);
    await page.keyboard.press('Tab');
    await page.keyboard.press('Enter');
    assert.equal((await focused(page)).name, 'statements');
    assert.match(page.url(), /#outcome=refused$/);
    await page.keyboard.press('Tab');
    assert.equal(await page.evaluate(() => document.activeElement.closest('.statement') !== null), true);
    await page.close();
  });

  test('opens a long statement', async () => {
    const long = report({ 'long.sql': scripts.long });
    const page = await open(browser, long.page);
    await page.locator('.statement > button').focus();
    await page.keyboard.press('Enter');
    assert.equal(await page.locator('.statement.is-short').count(), 0);
    await page.close();
    long.remove();
  });
});
