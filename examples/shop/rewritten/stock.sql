-- What is there, and what comes and goes.
select sku, case when stock > 10 then true when not stock > 10 then false end as plenty from item order by sku;
select sku from item where name = 'teapot';
select sku, name from item order by stock is null desc, stock desc, sku limit 9223372036854775807 offset 2;
update item set stock = stock - 70, listed = stock > 70 where sku = 'A-200';
insert into sale (sku, quantity, sold) values ('A-200', 3, '2005-12-27 10:00:00');
delete from item where stock is null;
