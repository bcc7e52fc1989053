-- What is there, and what comes and goes.
select sku, stock > 10 as plenty from item order by sku;
select sku from item where name = 'teapot';
select sku, name from item order by stock desc, sku offset 2;
update item set stock = stock - 70, listed = stock > 70 where sku = 'A-200';
insert into sale (sku, quantity, sold) values ('A-200', 3, '2005-12-27 10:00:00');
delete from item where stock is null;
