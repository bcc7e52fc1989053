// Parse trees with their places.

import assert from 'node:assert/strict';
import { test } from 'node:test';

import { load } from 'quillet';

import { cases } from './golden_cases.mjs';

const { inspect, translate } = await load();

// Each node below a node and itself, without recursion, with its parent.
function* walk(root) {
    const left = [[root, null]];
    while (left.length > 0) {
        const [node, parent] = left.pop();
        yield [node, parent];
        for (const child of node.children)
            left.push([child, node]);
    }
}

const shown = (sql) => {
    const lines = [];
    const show = ({ kind, label, type, start, end, children }, indentation) => {
        lines.push(`${indentation}${kind} ${label} ${type} [${sql.slice(start, end)}]`);
        for (const child of children)
            show(child, `${indentation}  `);
    };
    show(inspect(sql).root, '');
    return lines;
};

test('a tree', () => {
    assert.deepEqual(shown("select t.a || 'ż🐢' as x, 2 from t -- 🐢"), [
        "main null null [select t.a || 'ż🐢' as x, 2 from t]",
        "  select null null [select t.a || 'ż🐢' as x, 2 from t]",
        "    distinct_select_list null null [t.a || 'ż🐢' as x, 2]",
        "      select_list null null [t.a || 'ż🐢' as x, 2]",
        "        select_item null null [t.a || 'ż🐢' as x]",
        "          expression || VARCHAR [t.a || 'ż🐢']",
        '            expression null null [t.a]',
        '              column_reference null null [t.a]',
        '                identifier t null [t]',
        '                identifier a null [a]',
        "            expression null VARCHAR ['ż🐢']",
        "              const_generic null VARCHAR ['ż🐢']",
        "                const_string 'ż🐢' VARCHAR ['ż🐢']",
        '          identifier x null [x]',
        '        select_item null null [2]',
        '          expression null INT8 [2]',
        '            const_generic null INT8 [2]',
        '              const_integer 2 INT8 [2]',
        '    tables null null [t]',
        '      tables_list null null [t]',
        '        table null null [t]',
        '          identifier t null [t]',
    ]);
});

test('labels', () => {
    const labels = (sql, kind) => [...walk(inspect(sql).root)].filter(([node]) => node.kind === kind).map(([{ label }]) => label);
    for (const [expression, label] of [
        ['a + b', '+'], ['- a', '-'], ['a between b and c', 'BETWEEN AND'], ['a is not null', 'IS NOT NULL'],
        ["a like b escape 'c'", 'LIKE'], ['(a, b) overlaps (c, d)', 'OVERLAPS'], ['(a)', '()'], ['||/ a', '||/'], ['a <= b', '<='],
    ])
        assert.equal(inspect(`select ${expression}`).root.children[0].children[0].children[0].children[0].children[0].label, label);
    assert.deepEqual(labels('select null, true, unknow', 'const_generic'), [null, null, 'NULL']);
    assert.deepEqual(labels('select true, unknow', 'const_boolean'), ['UNKNOWN', 'TRUE']);
    assert.deepEqual(labels("select date '2005-01-01'", 'const_generic'), ['DATE']);
    assert.deepEqual(labels('select cast(a as integer)', 'cast_expression'), ['INT4']);
    assert.deepEqual(labels('select * from a natural left join b cross join c', 'join'), ['CROSS', 'NATURAL LEFT']);
    assert.deepEqual(labels('select a from t order by a, b desc', 'order_by_item'), ['DESC', 'ASC']);
    assert.deepEqual(labels('select *, t.*, a', 'select_item'), [null, '*', '*']);
    assert.deepEqual(labels('insert into t values (default, 1)', 'expression_or_default_item'), [null, 'DEFAULT']);
    assert.deepEqual(labels("select trim(leading from a)", 'trim_argument'), ['LEADING']);
    assert.deepEqual(labels('select count(*)', 'agregate_expression'), ['*']);
});

test('a statement that cannot be parsed', () => {
    const { code, root, diagnostics } = inspect('select a from from b');
    assert.deepEqual({ code, root, id: diagnostics[0].id, offset: diagnostics[0].offset },
        { code: -2, root: null, id: 'syntax-error', offset: 14 });
    assert.equal(inspect('').root, null);
    assert.throws(() => inspect(1), TypeError);
    assert.throws(() => inspect("'\ud800"), TypeError);
});

test('a statement that lacks a part has a tree', () => {
    const { code, root, diagnostics } = inspect('insert into t (a) values (1, 2)');
    assert.equal(code, -2);
    assert.equal(root.kind, 'main');
    assert.equal(diagnostics[0].id, 'missing-part');
});

test('nodes of all cases lie within those above them, and have the order of the statement', () => {
    let count = 0;
    for (const { name, statement } of cases.filter(({ builder }) => builder === 'postgresql' || builder === 'mysql')) {
        const { code, root, diagnostics } = inspect(statement);
        const view = translate(statement, { to: 'type_view' });
        assert.deepEqual({ code, diagnostics }, { code: view.code, diagnostics: view.diagnostics }, name);
        if (root === null)
            continue;
        for (const [node, parent] of walk(root)) {
            assert.ok(0 <= node.start && node.start < node.end && node.end <= statement.length, `${name}: ${node.kind}`);
            if (parent !== null)
                assert.ok(parent.start <= node.start && node.end <= parent.end, `${name}: ${node.kind}`);
            for (let i = 1; i < node.children.length; ++i)
                assert.ok(node.children[i - 1].start <= node.children[i].start, `${name}: ${node.kind}`);
            ++count;
        }
    }
    assert.ok(count > 10_000);
});

test('as many nodes as lines of the builder tree, but for the lists', () => {
    for (const { name, statement, code, text } of cases.filter(({ builder }) => builder === 'tree')) {
        if (code !== 0)
            continue;
        const kinds = (names) => names.filter((kind) => !kind.endsWith('_list')).sort();
        const lines = kinds(text.split('\n').map((line) => line.trim().replace(' [0]', '')).filter((line) => !/^\d*$/.test(line)));
        assert.deepEqual(kinds([...walk(inspect(statement).root)].map(([{ kind }]) => kind)), lines, name);
    }
});

test('100,000 members', () => {
    const members = Array.from({ length: 100_000 }, (_, i) => `c${i}`);
    const seconds = (work) => {
        const begin = performance.now();
        work();
        return (performance.now() - begin) / 1000;
    };
    const took = seconds(() => {
        const { root } = inspect(`select ${members.join(', ')} from t`);
        const list = root.children[0].children[0].children[0];
        assert.equal(list.kind, 'select_list');
        assert.equal(list.children.length, members.length);
    });
    const tookOfChain = seconds(() => {
        const nodes = [...walk(inspect(`select ${members.join(' + ')} from t`).root)];
        assert.ok(nodes.length > 3 * members.length);
    });
    assert.ok(took < 10, `${took} s`);
    assert.ok(tookOfChain < 10, `${tookOfChain} s`);
});
