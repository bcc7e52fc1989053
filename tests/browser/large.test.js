'use strict';

const assert = require('node:assert/strict');
const { after, before, test } = require('node:test');
const scripts = require('./scripts');
const { launchBrowser, open, outcomeOf, report, violations } = require('./support');

let browser;
let made;
before(async () => {
  browser = await launchBrowser();
  made = report(scripts.large());
  assert.equal(made.statements.length, 10000);
});
after(async () => {
  await browser.close();
  made.remove();
});

// Until what is done is on the screen.
const timeOf = (page, action) => page.evaluate(async (source) => {
  const painted = () => new Promise((done) => requestAnimationFrame(() => setTimeout(done)));
  const began = performance.now();
  new Function(source)();
  await painted();
  return performance.now() - began;
}, action);

test('ten thousand statements are loaded and filtered at once', async (t) => {
  const page = await open(browser, made.page);
  const load = await page.evaluate(() => performance.timing.loadEventEnd - performance.timing.navigationStart);
  t.diagnostic(`loaded in ${load} ms`);
  assert.ok(load > 0 && load < 5000);
  assert.ok(await page.locator('.statement').count() <= 200);

  for (const [name, wanted] of [
    ['refused', (each) => outcomeOf(each) === 'refused'],
    ['not-understood', (each) => outcomeOf(each) === 'not-understood'],
    ['', () => true],
  ]) {
    const time = await timeOf(page, `
      const select = document.getElementById('outcome');
      select.value = '${name}';
      select.dispatchEvent(new Event('change'));`);
    t.diagnostic(`filtered by "${name}" in ${time.toFixed(0)} ms`);
    assert.ok(time < 1000);
    const count = made.statements.filter(wanted).length.toLocaleString('en');
    assert.equal(await page.locator('#count').textContent(), `${count} of 10,000 shown`);
  }
  assert.deepEqual(page.problems, []);
  await page.close();
});

test('more of them come as one scrolls, up to the last one', async () => {
  const page = await open(browser, `${made.page}#file=b.sql&outcome=refused`);
  const wanted = made.statements.filter((each) => each.file === 'b.sql' && outcomeOf(each) === 'refused');
  let shown = await page.locator('.statement').count();
  assert.ok(shown > 0 && shown < wanted.length);
  while (shown < wanted.length) {
    await page.evaluate(() => scrollTo(0, document.documentElement.scrollHeight));
    await page.waitForFunction((before) => document.querySelectorAll('.statement').length > before, shown,
      { timeout: 10000 });
    shown = await page.locator('.statement').count();
  }
  const codes = await page.locator('.statement .sides > div:first-child code').allTextContents();
  assert.deepEqual(codes, wanted.map((each) => each.statement));
  assert.equal(await page.locator('#more').isVisible(), false);
  await page.close();
});

test('the last file is reached at once', async () => {
  const page = await open(browser, `${made.page}#file=c.sql`);
  assert.equal(await page.locator('.statement').count(), 20);
  assert.deepEqual((await violations(page)).found, []);
  await page.close();
});

test('all of them are printed', async (t) => {
  const page = await open(browser, made.page);
  const time = await timeOf(page, "dispatchEvent(new Event('beforeprint'));");
  t.diagnostic(`made ready to print in ${time.toFixed(0)} ms`);
  assert.equal(await page.locator('.statement').count(), 10000);
  await page.close();
});
