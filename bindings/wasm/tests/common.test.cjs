// The package as a CommonJS module.
'use strict';

const assert = require('node:assert/strict');
const { test } = require('node:test');

const quillet = require('quillet');

test('loads at once', () => {
    const { translate } = quillet.loadSync();
    assert.equal(translate('select a || b from t', { to: 'mysql' }).text, 'SELECT CONCAT(a, b) FROM t');
});

test('is the same as the ES module', async () => {
    const module = await import('quillet');
    assert.equal(await quillet.load(), quillet.loadSync());
    assert.equal(await module.load(), quillet.loadSync());
});
