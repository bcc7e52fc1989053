-- What the labels of the shelf say.
select sku || ': ' || name as label, price
  from item
 where stock > 0
 order by sku;
select upper(substr(name, 1, 1)) || lower(substr(name, 2)) as title from item where sku = 'A-300';
select name, trunc(stock / cast(12 as numeric)) as dozens from item where listed order by sku;
select sku as "key", name as value from item order by sku;
