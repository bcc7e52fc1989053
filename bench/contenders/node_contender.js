// A contender of bench/compare from npm; contender.h says what the arguments after its name mean.
// Each package is called as its README recommends.
'use strict';

const fs = require('node:fs');

const REFUSED = 1;
const MISUSED = 2;

// Each loads its package and gives a function from a statement to a text, which throws what it refuses.
const CONTENDERS = {
  'quillet-to-postgresql': () => quillet('postgresql'),
  'quillet-to-mysql': () => quillet('mysql'),

  'polyglot-to-postgresql': () => polyglot('postgresql'),
  'polyglot-to-mysql': () => polyglot('mysql'),

  'sqlparser-rs': async () => {
    const { init, format } = require('@guanmingchiu/sqlparser-ts');
    await init();
    return (statement) => format(statement, 'postgresql');
  },

  'pgsql-parser': async () => {
    const { loadModule, parseSync, deparseSync } = require('pgsql-parser');
    await loadModule();
    return (statement) => deparseSync(parseSync(statement));
  },

  'node-sql-parser-to-postgresql': () => nodeSqlParser('Postgresql'),
  'node-sql-parser-to-mysql': () => nodeSqlParser('MySQL'),
};

// Without notes and warnings, as the others.
function quillet(builder) {
  const { translate } = require('quillet').loadSync();
  return (statement) => {
    const { text, diagnostics } = translate(statement, { to: builder, leastSeverity: 'refusal' });
    if (text === null)
      throw new Error(diagnostics[0].message);
    return text;
  };
}

async function polyglot(dialect) {
  const { init, transpile } = require('@polyglot-sql/sdk');
  await init();
  return (statement) => {
    const { success, sql, error } = transpile(statement, 'postgresql', dialect);
    if (!success)
      throw new Error(error);
    return sql[0];
  };
}

function nodeSqlParser(dialect) {
  const { Parser } = require('node-sql-parser/build/postgresql');
  const parser = new Parser();
  return (statement) =>
    parser.sqlify(parser.astify(statement, { database: 'Postgresql' }), { database: dialect });
}

function accepts(translate, statements) {
  return statements.map((statement) => {
    try {
      translate(statement);
      return 1;
    } catch {
      return 0;
    }
  });
}

// Seconds of the processor that this thread has had, and that V8's own threads have had.
function threadSeconds() {
  return parseInt(fs.readFileSync(`/proc/self/task/${process.pid}/schedstat`, 'utf8')) / 1e9;
}

function helperSeconds() {
  const { user, system } = process.cpuUsage();
  return (user + system) / 1e6 - threadSeconds();
}

// Microseconds a statement.
function repeat(translate, statements, seconds) {
  const start = threadSeconds();
  let count = 0;
  let elapsed = 0;
  let passes = 1;
  do {
    for (let pass = 0; pass < passes; ++pass)
      for (const statement of statements)
        translate(statement);
    count += passes * statements.length;
    const before = elapsed;
    elapsed = threadSeconds() - start;
    if (elapsed - before < seconds / 100)
      passes *= 2;
  } while (elapsed < seconds);
  return elapsed * 1e6 / count;
}

// V8 compiles what runs often in threads of its own: when they are idle, all is optimised.
function warmUp(translate, statements) {
  const end = threadSeconds() + 3;
  for (let idle = 0; idle < 2 && threadSeconds() < end;) {
    const before = helperSeconds();
    repeat(translate, statements, 0.1);
    idle = helperSeconds() - before < 0.02 ? idle + 1 : 0;
  }
}

function times(translate, statements, seconds) {
  warmUp(translate, statements);
  return [repeat(translate, statements, seconds)];
}

function peakMemory() {
  return fs.readFileSync('/proc/self/status', 'utf8').match(/^VmHWM:\s+(\d+)/m)[1];
}

function once(translate, statements) {
  const start = threadSeconds();
  for (const statement of statements)
    translate(statement);
  return [(threadSeconds() - start) * 1e6, peakMemory()];
}

const COMMANDS = { accepts, times, once };

async function main([name, command, path, seconds]) {
  const load = CONTENDERS[name];
  const measure = COMMANDS[command];
  if (!load || !measure)
    process.exit(MISUSED);
  const translate = await load();
  const statements = fs.readFileSync(path, 'utf8').split('\0');
  try {
    fs.writeSync(1, measure(translate, statements, seconds).join('\n') + '\n');
  } catch {
    process.exit(REFUSED);
  }
}

main(process.argv.slice(2)).catch((error) => {
  console.error(error);
  process.exit(MISUSED);
});
