-- What the year has brought.
select to_char(sold, 'YYYY-MM') as month, sum(quantity) as pieces
  from sale
 group by month
 order by month;
select name, sum(quantity * item.price) as total
  from sale natural join item
 where sold between timestamp '2005-01-01 00:00:00' and timestamp '2005-06-30 23:59:59'
 group by name
having sum(quantity) > 1
 order by total desc;
select date_trunc('week', sold) as week, count(*) as sales
  from sale
 group by week
 order by week;
with best as (select sku, sum(quantity) as pieces from sale group by sku)
select sku from best where pieces > 10 order by sku;
select id, sold::date as day, note from sale where note ilike 'gift' order by id;
