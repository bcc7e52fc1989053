// What a statement of bench/statements.sql takes into MySQL from JavaScript.
//
//   node bindings/wasm/bench.mjs [--rounds N] [--seconds S]
//
// bindings/wasm/build makes the package that it measures.

import { readFileSync } from 'node:fs';
import { parseArgs } from 'node:util';

import { loadSync } from '../../build/wasm/package/node.mjs';

const { values: options } = parseArgs({
    options: {
        rounds: { type: 'string', default: '9' }, // of each
        seconds: { type: 'string', default: '0.5' }, // a round
    },
});
const text = readFileSync(new URL('../../bench/statements.sql', import.meta.url), 'utf8');
const statements = text.split(/;\n/).map((part) => part.trim()).filter((part) => part !== '');
const { translate } = loadSync();

const contenders = {
    quillet: (sql) => translate(sql),
    'quillet without remarks': (sql) => translate(sql, { leastSeverity: 'refusal' }),
};

function microseconds(work) {
    const begin = performance.now();
    const end = begin + 1000 * Number(options.seconds);
    let count = 0;
    let now = begin;
    for (; now < end; now = performance.now()) {
        for (const statement of statements)
            work(statement);
        count += statements.length;
    }
    return (1000 * (now - begin)) / count;
}

const times = Object.fromEntries(Object.keys(contenders).map((name) => [name, []]));
for (let round = 0; round < Number(options.rounds); ++round)
    for (const [name, work] of Object.entries(contenders))
        times[name].push(microseconds(work));

const size = statements.reduce((sum, { length }) => sum + length, 0) / statements.length;
console.log(`Node ${process.versions.node}, ${statements.length} statements, ${size.toFixed(0)} characters on average;`);
console.log(`${options.rounds} rounds\n`);
console.log('| | µs a statement | least – most |');
console.log('|---|---|---|');
for (const [name, found] of Object.entries(times)) {
    found.sort((a, b) => a - b);
    const median = found[found.length >> 1];
    console.log(`| ${name} | ${median.toFixed(2)} | ${found[0].toFixed(2)} – ${found.at(-1).toFixed(2)} |`);
}
