select initcap(last_name) || ', ' || initcap(first_name) as name, city from customer where customer_id = 8812;

select order_id, placed_at from orders where status = 'shipped' and placed_at > timestamp '2005-01-01 00:00:00' at time zone 'UTC' order by placed_at desc limit 50;

select id, title, to_hex(flags) as flags from article where published_at is not null and flags <> 0 order by id limit 20;

select c.name, age(c.created_at) as customer_for, count(o.id) as orders
from customer as c
left join orders as o on o.customer_id = c.id
where c.country = 'CH' and c.created_at > timestamp '2005-01-01 00:00:00'
group by c.name, c.created_at
order by orders desc;

select split_part(email, '@', 2) as domain, count(*) as accounts from account where email is not null group by domain order by accounts desc;

update account set display_name = btrim(display_name, '. '), changed_at = now() where display_name <> btrim(display_name, '. ');

select name, price from article where name similar to '(red|blue) %' and price between 10 and 20 order by price;

select s.name, sum(r.amount) as revenue, translate(s.region, 'NESW', '1234') as region
from shop as s
join receipt as r on r.shop_id = s.id
where r.taken_at >= timestamp '2005-03-01 00:00:00' and r.taken_at < timestamp '2005-04-01 00:00:00'
group by s.name, s.region
having sum(r.amount) > 1000
order by revenue desc
offset 10;
