// Translations, their diagnostics, and what is no statement.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { test } from 'node:test';

import { load, loadSync } from 'quillet';

const { builders, translate, version } = await load();
const require = createRequire(import.meta.url);
const bytes = readFileSync(require.resolve('quillet/quillet.wasm'));

test('a translation', () => {
    assert.deepEqual(translate('select a, b from t'), { code: 0, text: 'SELECT a, b FROM t', diagnostics: [] });
});

test('builders', () => {
    assert.deepEqual(builders, ['postgresql', 'mysql', 'tree', 'type_view']);
    assert.equal(translate('select a || b', { to: 'postgresql' }).text, 'SELECT a || b');
    assert.equal(translate('select a || b', { to: undefined }).text, 'SELECT CONCAT(a, b)');
    for (const to of ['oracle', '', 'MySQL', 1, null])
        assert.throws(() => translate('select a', { to }), {
            name: 'RangeError',
            message: `to is ${String(to)}, and not one of postgresql, mysql, tree, type_view`,
        });
});

test('the version is that of the package', () => {
    assert.equal(version, require('quillet/package.json').version);
});

test('a diagnostic with all its fields', () => {
    assert.deepEqual(translate('select a,\n initcap(b)'), {
        code: -3,
        text: null,
        diagnostics: [
            {
                severity: 'refusal',
                code: -11,
                id: 'refused-initcap',
                message: 'INITCAP function not implemented in MySQL backend',
                hint: 'write upper(substr(x, 1, 1)) || lower(substr(x, 2)) for one word',
                offset: 11,
                length: 10,
                line: 2,
                column: 2,
            },
        ],
    });
});

test('places are those of the string', () => {
    const sql = "select 'żółw', '🐢🐢', initcap('🐢'), btrim(b, 'ż') from t -- 🐢";
    const { diagnostics } = translate(sql);
    const refusals = diagnostics.filter(({ severity }) => severity === 'refusal');
    assert.deepEqual(
        refusals.map(({ offset, length }) => sql.slice(offset, offset + length)),
        ["initcap('🐢')", "btrim(b, 'ż')"]);
    assert.deepEqual(refusals.map(({ column }) => column), [22, 36]);
});

test('the end of a statement is a place', () => {
    for (const sql of ['select', "select 'żółw🐢' +"]) {
        const { code, diagnostics } = translate(sql);
        assert.equal(code, -2);
        assert.deepEqual(diagnostics.map(({ id, hint, offset, length }) => ({ id, hint, offset, length })),
            [{ id: 'syntax-error', hint: null, offset: sql.length, length: 0 }]);
    }
});

test('what matters less is left out', () => {
    const sql = 'select a || b, cast(c as boolean), initcap(d) from t order by a';
    const severities = (leastSeverity) =>
        new Set(translate(sql.replace('initcap', 'upper'), { leastSeverity }).diagnostics.map(({ severity }) => severity));
    assert.deepEqual(severities(undefined), new Set(['note', 'warning']));
    assert.deepEqual(severities('note'), new Set(['note', 'warning']));
    assert.deepEqual(severities('warning'), new Set(['warning']));
    assert.deepEqual(severities('refusal'), new Set());
    assert.equal(translate(sql, { leastSeverity: 'error' }).code, -3);
    for (const leastSeverity of ['hint', 2, null])
        assert.throws(() => translate(sql, { leastSeverity }), RangeError);
});

test('limits', () => {
    const ids = (options) => translate('select a, b, c from t', options).diagnostics.map(({ id }) => id);
    assert.deepEqual(ids({ textLimit: 5 }), ['text-too-large']);
    assert.deepEqual(ids({ treeLimit: 100 }), ['tree-too-large']);
    assert.deepEqual(ids({ textLimit: 0, treeLimit: 0 }), []);
    assert.deepEqual(ids({ textLimit: Number.MAX_SAFE_INTEGER, treeLimit: 2 ** 32 }), []);
    for (const limit of [-1, 0.5, NaN, '5', null])
        assert.throws(() => ids({ textLimit: limit }), RangeError);
});

test('what is no text is refused', () => {
    for (const sql of [undefined, null, 1, Buffer.from('select a'), ['select a']])
        assert.throws(() => translate(sql), TypeError);
    for (const half of ['\ud800', '\udc00', '\udc00\ud800'])
        assert.throws(() => translate(`select '${half}'`), { name: 'TypeError', message: 'sql has half of a character at 8' });
    assert.equal(translate("select '\ufffd'").text, "SELECT '\ufffd'");
});

test('any other characters', () => {
    assert.equal(translate('').code, -2);
    assert.equal(translate("select '\u00a0\ufeff\u2028'").text, "SELECT '\u00a0\ufeff\u2028'");
    const { code, diagnostics } = translate('select a\0, b');
    assert.equal(code, -2);
    assert.deepEqual(diagnostics.map(({ id, message, offset }) => ({ id, message, offset })),
        [{ id: 'unknown-character', message: 'unknown character "\\x00"', offset: 8 }]);
});

test('other sources than the file of the package', async () => {
    const module = await WebAssembly.compile(bytes);
    const response = new Response(bytes, { headers: { 'content-type': 'application/wasm' } });
    const url = `data:application/wasm;base64,${bytes.toString('base64')}`;
    for (const source of [bytes, new Uint8Array(bytes).buffer, module, response, url, new URL(url), Promise.resolve(module)]) {
        const other = await load(source);
        assert.notEqual(other, loadSync());
        assert.equal(other.translate('select 1').text, 'SELECT 1');
    }
    for (const source of [bytes, module])
        assert.equal(loadSync(source).translate('select 1').text, 'SELECT 1');
    await assert.rejects(load(new Response('', { status: 404 })));
    await assert.rejects(load(new Uint8Array(8)), WebAssembly.CompileError);
});
