-- A day in the shop: new stock, labels, sales.
\set ON_ERROR_STOP on
begin;

create table item (
    sku   text primary key, -- as on the label
    name  text not null,
    price numeric(8, 2),
    stock integer default 0
);

copy item (sku, name, price, stock) from stdin with (format csv);
A-100,Teapot,24.90,12
A-200,Cup; white,6.50,80
\.

/* New articles, /* each with its price */ from the buyer. */
insert into item (sku, name, price, stock)
values ('B-100', 'Baker''s apron', 19.00, 5);
insert into item (sku, name, price) values ('B-200', E'Sign\n"Baker\'s"', 45.00);
insert into item (sku, name, price) values ('B-300', $$Label "it's fresh"$$, 0.10);
update item set stock = stock + 20 where sku = 'A-100';

-- The labels of the shelf.
select sku || ': ' || name as label, price
  from item
 where stock > 0 -- nothing that is sold out
 order by name;
select initcap(name) as title from item where name ~* '^tea';
select name, 500 / 12 as dozens from item where stock >= 500;

-- What the year has brought.
select name, sum(quantity * price) as total, count(*) as sales
  from sale natural join item
 where sold between date '2005-01-01' and date '2005-12-31'
 group by name
having sum(quantity) > 10
 order by total desc limit 12 offset 12;
with best as (select sku from sale) select * from best;

delete from item where name ilike '%cup%' and stock = 0;
commit;
