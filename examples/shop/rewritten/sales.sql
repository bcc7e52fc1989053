-- What the year has brought.
select extract(year from sold) as year, extract(month from sold) as month, sum(quantity) as pieces
  from sale
 group by year, month
 order by year, month;
select name, sum(quantity * item.price) as total
  from sale natural join item
 where sold between timestamp '2005-01-01 00:00:00' and timestamp '2005-06-30 23:59:59'
 group by name
having sum(quantity) > 1
 order by total desc;
select cast(sold as date) - (cast(extract(dow from sold) as integer) + 6) % 7 as week, count(*) as sales
  from sale
 group by week
 order by week;
select sku from sale group by sku having sum(quantity) > 10 order by sku;
select id, sold::date as day, note from sale where lower(note) = 'gift' order by id;
