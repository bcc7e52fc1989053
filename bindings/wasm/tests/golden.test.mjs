// The golden cases give the same texts and codes through the package.

import assert from 'node:assert/strict';
import { test } from 'node:test';

import { load } from 'quillet';

import { cases, titleCount } from './golden_cases.mjs';

const { builders, translate } = await load();

for (const builder of builders)
    test(`all cases of ${builder}`, () => {
        for (const each of cases.filter((one) => one.builder === builder)) {
            const made = translate(each.statement, { to: builder });
            assert.deepEqual({ code: made.code, text: made.text }, { code: each.code, text: each.text }, each.name);
            if (made.code !== 0)
                assert.ok(made.diagnostics.some(({ severity }) => severity === 'refusal' || severity === 'error'), each.name);
            for (const { offset, length } of made.diagnostics)
                assert.ok(offset >= 0 && length >= 0 && offset + length <= each.statement.length, each.name);
        }
    });

test('all cases are read', () => {
    const titles = new Set(cases.map(({ name }) => name.slice(0, name.lastIndexOf('/'))));
    assert.equal(titles.size, titleCount);
    assert.ok(titleCount > 1000);
    assert.deepEqual(new Set(cases.map(({ builder }) => builder)), new Set(builders));
});
