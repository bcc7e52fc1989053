// Statements to choose from, for each kind of outcome. The tests say what becomes of each.

const nested = (depth) => `select ${'('.repeat(depth)}1${')'.repeat(depth)}`;
const members = 100000;

export const examples = [
    {
        group: 'Translated',
        name: 'A query',
        statement: `select name, price
  from item
 where stock > 0 and price < 100
 limit 10 offset 20`,
    },
    {
        group: 'Translated',
        name: 'Times and patterns',
        statement:
            "select date_part('year', sold), trunc(price) from sale where sold > timestamp '2005-01-31 12:00:00'",
    },
    {
        group: 'Translated, with notes',
        name: 'A label',
        statement: `select sku || name as label
  from item
 order by name`,
    },
    {
        group: 'Translated, with notes',
        name: 'An update',
        statement: "update item set price = price * 1.1 where name ilike 'tea%'",
    },
    {
        group: 'Translated, with warnings',
        name: 'A division of integers',
        statement: 'select name, 500 / 12 as dozens from item where stock >= 500',
    },
    {
        group: 'Translated, with warnings',
        name: 'Backslashes in a string',
        statement: "select 'C:\\data'",
    },
    {
        group: 'Translated, with a gap',
        name: 'A refusal inside of a cast',
        statement: 'select cast(initcap(name) as text) from shop',
    },
    {
        group: 'Refused',
        name: 'A function without an equal',
        statement: "select initcap(name) as title from item where name ~* '^tea'",
    },
    {
        group: 'Refused',
        name: 'Several reasons',
        statement: `select initcap(name), to_hex(stock), btrim(city)
  from item
 where name similar to 'tea%'`,
    },
    {
        group: 'Not understood',
        name: 'A syntax error',
        statement: 'select name from item where price > 9.99)',
    },
    {
        group: 'Not understood',
        name: 'What is not read: WITH',
        statement: 'with best as (select sku from sale) select * from best',
    },
    {
        group: 'Not understood',
        name: 'A placeholder',
        statement: 'select name, city from shop where city = ?',
    },
    {
        group: 'Not understood',
        name: 'A string without an end',
        statement: "select name from item where name = 'tea",
    },
    {
        group: 'Not understood',
        name: 'An INSERT that lacks a value',
        statement: "insert into item (sku, name) values ('A-100')",
    },
    {
        group: 'Too deep',
        name: 'Ten thousand parentheses',
        statement: () => nested(10000),
    },
    {
        group: 'Long',
        name: 'A list of 100,000 members',
        statement: () => `select ${Array(members).fill('a').join(', ')} from t`,
    },
    {
        group: 'Long',
        name: 'A chain of 100,000 members',
        statement: () => `select a from t where ${Array(members).fill('b').join(' and ')}`,
    },
    {
        group: 'PostgreSQL',
        name: 'The canonical form',
        tab: 'postgresql',
        statement:
            'select  A."Name",b.price from item a join sale b using(sku) where not(b.price<1)order by 1',
    },
    {
        group: 'PostgreSQL',
        name: 'With a warning',
        tab: 'postgresql',
        statement: 'select 5!',
    },
    {
        group: 'Types',
        name: 'Inferred types',
        tab: 'types',
        statement: `select cast(price as bigint) * 2, date '2024-01-31' + 1,
       extract(year from now()), 'a' || 'b', 7 > 2
  from item`,
    },
    {
        group: 'Tree',
        name: 'A tree',
        tab: 'tree',
        statement: `select name, sum(price)
  from item natural join sale
 where sold between date '2005-01-01' and date '2005-12-31'
 group by name
having sum(quantity) > 10`,
    },
];

export const statementOf = ({ statement }) =>
    typeof statement === 'function' ? statement() : statement;
