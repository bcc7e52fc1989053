'use strict';
// The scripts that reports are made of.

const deep = `select ${'coalesce('.repeat(30)}x / 2${', 0)'.repeat(30)} from t`;

const shop = `
create table orders (id integer, customer text);
select 1;
select 'ключ 日本語 😀' || name, id / 2, initcap(name) from item;
select 'é😀', 7 / 2 as half;
select "ö😀", initcap('😀' || a) || to_hex(b / 2) from t;
select from where;
select '😀' as a, é from t;
update item set price = price + 1 where id = 7 / 2;
${deep};
`;

const stock = `
select initcap(customer) from orders;
select 7 / 2, 'C:\\data';
select 8 / 3, 9 / 2;
set work_mem = '1MB';
select (1;
`;

const psql = '\\d orders\n';

const lines = [...Array(60).keys()].map((line) => `  column_${line} / 2 as half_${line}`);
const long = `select\n${lines.join(',\n')}\nfrom t;\nselect 1;\n`;

const hostile = [
  '</script><script>window.broken = 1</script>',
  '<!-- <script>window.broken = 2</script> -->',
  '<img src="x" onerror="window.broken = 3">',
  '<svg onload=window.broken=4>',
  '"><a href="javascript:window.broken=5">',
  '&lt;b&gt; &amp; "quotes" `${window.broken = 6}` \\u003c',
  'line\u2028paragraph\u2029nel\u0085 zero\u200b bom\ufeff',
  'control \u0001\u0008\u001f\u007f',
  ']]> --> */ <![CDATA[',
];
const hostileScript = hostile.map((each) => `select '${each}' as a, initcap("${each.replaceAll('"', "'")}");\n`);

// Ten thousand statements in three files, the last of which has the fewest.
function large(most = 10000) {
  const statements = [
    (n) => `select id, customer_${n}, total * ${n} from orders where id > ${n} and name like 'a%'`,
    (n) => `select a / ${n}, initcap(name) from item_${n} where stock > ${n}`,
    (n) => `select ${n} / 7, 'é' || name from item`,
    (n) => `update item set price = price + ${n}, changed = now() where id = ${n}`,
    (n) => `select from_${n} where`,
    (n) => `create table made_${n} (id integer primary key, name text)`,
    (n) => `select t.a_${n}\n  , t.b\n  , upper(t.c)\nfrom t\n  join u on t.id = u.id\nwhere t.a is not null`,
    (n) => `delete from item where id = ${n}`,
  ];
  const text = (from, to) => [...Array(to - from).keys()]
    .map((n) => `${statements[n % statements.length](from + n)};\n`).join('');
  return { 'a.sql': text(0, 7000), 'b.sql': text(7000, most - 20), 'c.sql': text(most - 20, most) };
}

module.exports = { hostile, hostileScript, large, long, psql, shop, stock };
