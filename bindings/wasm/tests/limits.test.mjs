// Deep, large and many statements, too little memory, and what is never printed.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { test } from 'node:test';
import { Worker } from 'node:worker_threads';

import { loadSync } from 'quillet';

const file = createRequire(import.meta.url).resolve('quillet/quillet.wasm');
const MIB = 1024 * 1024;

// All instances of the module.
const instances = [];
WebAssembly.Instance = class extends WebAssembly.Instance {
    constructor(...given) {
        super(...given);
        instances.push(this);
    }
};
const sizeOfMemory = () => instances.at(-1).exports.memory.buffer.byteLength;

// The module with no more than so many pages of memory, of 64 KiB.
function withPages(bytes, pages) {
    const found = Buffer.from([0x05, 0x06, 0x01, 0x01]); // the section, its size, one memory with a maximum
    const section = bytes.indexOf(found);
    assert.ok(section > 0 && bytes.indexOf(found, section + 1) < 0);
    const changed = Buffer.from(bytes);
    assert.equal(changed.readUIntLE(section + 5, 3), 0x028080); // 32,768 in LEB128
    changed.set([0x80 | (pages & 0x7f), 0x80 | (pages >> 7), 0], section + 5);
    return changed;
}

const quillet = loadSync();
const { translate } = quillet;
const works = () => assert.equal(translate('select a || b').text, 'SELECT CONCAT(a, b)');
const idsOf = ({ diagnostics }) => diagnostics.map(({ id }) => id);

const nested = (depth) => [
    `select ${'upper('.repeat(depth)}a${')'.repeat(depth)}`,
    `select ${'case when a then '.repeat(depth)}1${' end'.repeat(depth)}`,
    `select ${'1 + ('.repeat(depth)}1${')'.repeat(depth)}`,
    `select ${'('.repeat(depth)}a${')'.repeat(depth)}`,
];

test('what is nested deeply is translated or refused', () => {
    for (const depth of [100, 200, 400, 800, 1600, 3200, 6400, 20_000, 200_000])
        for (const sql of nested(depth))
            for (const to of quillet.builders) {
                const made = translate(sql, { to, leastSeverity: 'refusal' });
                assert.ok(depth > 400 || made.code === 0);
                assert.ok(depth < 20_000 || made.code === -3);
                assert.deepEqual(idsOf(made), made.code === 0 ? [] : ['too-deep']);
                works();
            }
});

test('the same below many calls of JavaScript', () => {
    const below = (depth, work) => (depth === 0 ? work() : below(depth - 1, work));
    const [sql] = nested(400);
    const codes = new Set();
    let isOverflown = false;
    for (let depth = 0; !isOverflown; depth += 100) {
        try {
            const made = below(depth, () => translate(sql, { leastSeverity: 'refusal' }));
            codes.add(made.code);
            assert.deepEqual(idsOf(made), made.code === 0 ? [] : ['too-deep']);
        } catch (error) {
            assert.ok(error instanceof RangeError, error);
            isOverflown = true; // there was no room for the calls themselves
        }
        works();
    }
    assert.deepEqual(codes, new Set([0, -3]));
});

test('memory does not grow with the number of statements', () => {
    const statements = ["select a || 'żółw', initcap(b) from t", 'select from', 'select a + b * c as d from t where e like f', 'select ?'];
    const run = () => {
        for (let i = 0; i < 100_000; ++i)
            translate(statements[i % statements.length]);
    };
    quillet.releaseMemory();
    works();
    const before = [instances.length, sizeOfMemory()];
    run();
    assert.deepEqual([instances.length, sizeOfMemory()], before);
    assert.ok(sizeOfMemory() <= 4 * MIB);
});

test('memory is given back after a large statement', () => {
    const sql = `select ${'a, '.repeat(500_000)}a from t`;
    works();
    const before = instances.length;
    assert.equal(translate(sql, { leastSeverity: 'refusal' }).text.length, sql.length);
    assert.ok(sizeOfMemory() > 50 * MIB);
    works();
    assert.equal(instances.length, before + 1);
    assert.ok(sizeOfMemory() <= 4 * MIB);
});

test('memory is given back on demand', () => {
    works();
    const before = instances.length;
    quillet.releaseMemory();
    quillet.releaseMemory();
    works();
    assert.equal(instances.length, before + 1);
});

test('a statement of 100 MiB', () => {
    const sql = `select '${'ż'.repeat(50 * MIB)}' as b`;
    assert.equal(translate(sql, { to: 'postgresql', leastSeverity: 'refusal' }).text.length, sql.length);
    works();
});

test('a statement above the limit', () => {
    const made = translate(`select '${'a'.repeat(256 * MIB)}'`);
    assert.deepEqual({ code: made.code, ids: idsOf(made) }, { code: -3, ids: ['statement-too-large'] });
    works();
});

test('without memory', () => {
    const small = loadSync(withPages(readFileSync(file), 128));
    const outcomes = new Set();
    for (let columns = 1; columns < 2_000_000; columns = Math.ceil(columns * 1.5))
        for (const call of [(sql) => small.translate(sql), (sql) => small.translate(sql, { to: 'tree' }), small.inspect]) {
            const made = call(`select ${'a || b, '.repeat(columns)}a from t`);
            outcomes.add(made.code === 0 ? 'success' : idsOf(made).join());
            assert.equal(small.translate('select a').text, 'SELECT a');
        }
    assert.deepEqual(outcomes, new Set(['success', 'out-of-memory']));
});

test('nothing is printed, and no process ended', () => {
    const program = `
        const { translate, inspect } = require('quillet').loadSync();
        for (const sql of ['select a /* \\n\\n', 'select a ? b', 'select from', '', "'", '"', '""', 'select a -- \\n'])
            for (const to of ['mysql', 'tree']) translate(sql, { to }), inspect(sql);
        console.log('done');`;
    assert.equal(execFileSync(process.execPath, ['-e', program], { encoding: 'utf8', stdio: ['ignore', 'pipe', 'pipe'] }), 'done\n');
});

test('workers share what was compiled', async () => {
    const module = new WebAssembly.Module(readFileSync(file));
    const program = `
        const { parentPort, workerData } = require('node:worker_threads');
        const { translate } = require('quillet').loadSync(workerData);
        parentPort.postMessage(translate('select a || b').text);`;
    const texts = await Promise.all(Array.from({ length: 4 }, () => new Promise((resolve, reject) => {
        const worker = new Worker(program, { eval: true, workerData: module });
        worker.once('message', resolve).once('error', reject);
    })));
    assert.deepEqual(texts, Array(4).fill('SELECT CONCAT(a, b)'));
});
