// What polyglot makes of statements, for peer.py: a statement a line in, its text or null a line out, in JSON.
'use strict';

const readline = require('node:readline');
const { init, transpile } = require('@polyglot-sql/sdk');

async function main() {
  await init();
  for await (const line of readline.createInterface({ input: process.stdin })) {
    // What MySQL lacks is to be said, as far as polyglot knows it.
    const made = transpile(JSON.parse(line), 'postgresql', 'mysql', { unsupportedLevel: 'raise' });
    process.stdout.write(`${JSON.stringify(made.success ? made.sql[0] : null)}\n`);
  }
}

main();
