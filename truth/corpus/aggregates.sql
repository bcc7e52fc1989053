-- Aggregates, GROUP BY and HAVING.
select ok, count(n) from kind group by ok order by ok
select ok, min(n) from kind group by ok
select count(n) from kind where id != 5 and id != 6
select count(si) from kind where id != 5 and id != 6
select count(d) from kind where id != 5 and id != 6
select count(f) from kind where id != 5 and id != 6
select count(r) from kind where id != 5 and id != 6
select count(ok) from kind where id != 5 and id != 6
select count(v) from kind where id != 5 and id != 6
select count(t) from kind where id != 5 and id != 6
select count(c) from kind where id != 5 and id != 6
select count(day) from kind where id != 5 and id != 6
select count(tm) from kind where id != 5 and id != 6
select count(ts) from kind where id != 5 and id != 6
select count(distinct n) from kind where id != 5 and id != 6
select count(all n) from kind where id != 5 and id != 6
select count(n) from kind where id = 99
select count(n) from kind where id = 4
select ok, count(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select count(distinct d) from kind where id != 5 and id != 6
select count(all d) from kind where id != 5 and id != 6
select count(d) from kind where id = 99
select count(d) from kind where id = 4
select ok, count(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select count(distinct ok) from kind where id != 5 and id != 6
select count(all ok) from kind where id != 5 and id != 6
select count(ok) from kind where id = 99
select count(ok) from kind where id = 4
select ok, count(ok) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select sum(n) from kind where id != 5 and id != 6
select sum(si) from kind where id != 5 and id != 6
select sum(d) from kind where id != 5 and id != 6
select sum(f) from kind where id != 5 and id != 6
select sum(r) from kind where id != 5 and id != 6
select sum(tm) from kind where id != 5 and id != 6
select sum(distinct n) from kind where id != 5 and id != 6
select sum(all n) from kind where id != 5 and id != 6
select sum(n) from kind where id = 99
select sum(n) from kind where id = 4
select ok, sum(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select sum(distinct d) from kind where id != 5 and id != 6
select sum(all d) from kind where id != 5 and id != 6
select sum(d) from kind where id = 99
select sum(d) from kind where id = 4
select ok, sum(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select avg(n) from kind where id != 5 and id != 6
select avg(si) from kind where id != 5 and id != 6
select avg(d) from kind where id != 5 and id != 6
select avg(f) from kind where id != 5 and id != 6
select avg(r) from kind where id != 5 and id != 6
select avg(tm) from kind where id != 5 and id != 6
select avg(distinct n) from kind where id != 5 and id != 6
select avg(all n) from kind where id != 5 and id != 6
select avg(n) from kind where id = 99
select avg(n) from kind where id = 4
select ok, avg(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select avg(distinct d) from kind where id != 5 and id != 6
select avg(all d) from kind where id != 5 and id != 6
select avg(d) from kind where id = 99
select avg(d) from kind where id = 4
select ok, avg(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select min(n) from kind where id != 5 and id != 6
select min(si) from kind where id != 5 and id != 6
select min(d) from kind where id != 5 and id != 6
select min(f) from kind where id != 5 and id != 6
select min(r) from kind where id != 5 and id != 6
select min(v) from kind where id != 5 and id != 6
select min(t) from kind where id != 5 and id != 6
select min(c) from kind where id != 5 and id != 6
select min(day) from kind where id != 5 and id != 6
select min(tm) from kind where id != 5 and id != 6
select min(ts) from kind where id != 5 and id != 6
select min(distinct n) from kind where id != 5 and id != 6
select min(all n) from kind where id != 5 and id != 6
select min(n) from kind where id = 99
select min(n) from kind where id = 4
select ok, min(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select min(distinct d) from kind where id != 5 and id != 6
select min(all d) from kind where id != 5 and id != 6
select min(d) from kind where id = 99
select min(d) from kind where id = 4
select ok, min(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select max(n) from kind where id != 5 and id != 6
select max(si) from kind where id != 5 and id != 6
select max(d) from kind where id != 5 and id != 6
select max(f) from kind where id != 5 and id != 6
select max(r) from kind where id != 5 and id != 6
select max(v) from kind where id != 5 and id != 6
select max(t) from kind where id != 5 and id != 6
select max(c) from kind where id != 5 and id != 6
select max(day) from kind where id != 5 and id != 6
select max(tm) from kind where id != 5 and id != 6
select max(ts) from kind where id != 5 and id != 6
select max(distinct n) from kind where id != 5 and id != 6
select max(all n) from kind where id != 5 and id != 6
select max(n) from kind where id = 99
select max(n) from kind where id = 4
select ok, max(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select max(distinct d) from kind where id != 5 and id != 6
select max(all d) from kind where id != 5 and id != 6
select max(d) from kind where id = 99
select max(d) from kind where id = 4
select ok, max(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select stddev(n) from kind where id != 5 and id != 6
select stddev(si) from kind where id != 5 and id != 6
select stddev(d) from kind where id != 5 and id != 6
select stddev(f) from kind where id != 5 and id != 6
select stddev(r) from kind where id != 5 and id != 6
select stddev(distinct n) from kind where id != 5 and id != 6
select stddev(all n) from kind where id != 5 and id != 6
select stddev(n) from kind where id = 99
select stddev(n) from kind where id = 4
select ok, stddev(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select stddev(distinct d) from kind where id != 5 and id != 6
select stddev(all d) from kind where id != 5 and id != 6
select stddev(d) from kind where id = 99
select stddev(d) from kind where id = 4
select ok, stddev(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select variance(n) from kind where id != 5 and id != 6
select variance(si) from kind where id != 5 and id != 6
select variance(d) from kind where id != 5 and id != 6
select variance(f) from kind where id != 5 and id != 6
select variance(r) from kind where id != 5 and id != 6
select variance(distinct n) from kind where id != 5 and id != 6
select variance(all n) from kind where id != 5 and id != 6
select variance(n) from kind where id = 99
select variance(n) from kind where id = 4
select ok, variance(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select variance(distinct d) from kind where id != 5 and id != 6
select variance(all d) from kind where id != 5 and id != 6
select variance(d) from kind where id = 99
select variance(d) from kind where id = 4
select ok, variance(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select bit_and(n) from kind where id != 5 and id != 6
select bit_and(si) from kind where id != 5 and id != 6
select bit_and(distinct n) from kind where id != 5 and id != 6
select bit_and(all n) from kind where id != 5 and id != 6
select bit_and(n) from kind where id = 99
select bit_and(n) from kind where id = 4
select ok, bit_and(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select bit_or(n) from kind where id != 5 and id != 6
select bit_or(si) from kind where id != 5 and id != 6
select bit_or(distinct n) from kind where id != 5 and id != 6
select bit_or(all n) from kind where id != 5 and id != 6
select bit_or(n) from kind where id = 99
select bit_or(n) from kind where id = 4
select ok, bit_or(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select bool_and(ok) from kind where id != 5 and id != 6
select bool_and(distinct ok) from kind where id != 5 and id != 6
select bool_and(all ok) from kind where id != 5 and id != 6
select bool_and(ok) from kind where id = 99
select bool_and(ok) from kind where id = 4
select ok, bool_and(ok) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select bool_or(ok) from kind where id != 5 and id != 6
select bool_or(distinct ok) from kind where id != 5 and id != 6
select bool_or(all ok) from kind where id != 5 and id != 6
select bool_or(ok) from kind where id = 99
select bool_or(ok) from kind where id = 4
select ok, bool_or(ok) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select every(ok) from kind where id != 5 and id != 6
select every(distinct ok) from kind where id != 5 and id != 6
select every(all ok) from kind where id != 5 and id != 6
select every(ok) from kind where id = 99
select every(ok) from kind where id = 4
select ok, every(ok) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select stddev_pop(n) from kind where id != 5 and id != 6
select stddev_pop(si) from kind where id != 5 and id != 6
select stddev_pop(d) from kind where id != 5 and id != 6
select stddev_pop(f) from kind where id != 5 and id != 6
select stddev_pop(r) from kind where id != 5 and id != 6
select stddev_pop(distinct n) from kind where id != 5 and id != 6
select stddev_pop(all n) from kind where id != 5 and id != 6
select stddev_pop(n) from kind where id = 99
select stddev_pop(n) from kind where id = 4
select ok, stddev_pop(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select stddev_pop(distinct d) from kind where id != 5 and id != 6
select stddev_pop(all d) from kind where id != 5 and id != 6
select stddev_pop(d) from kind where id = 99
select stddev_pop(d) from kind where id = 4
select ok, stddev_pop(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select var_samp(n) from kind where id != 5 and id != 6
select var_samp(si) from kind where id != 5 and id != 6
select var_samp(d) from kind where id != 5 and id != 6
select var_samp(f) from kind where id != 5 and id != 6
select var_samp(r) from kind where id != 5 and id != 6
select var_samp(distinct n) from kind where id != 5 and id != 6
select var_samp(all n) from kind where id != 5 and id != 6
select var_samp(n) from kind where id = 99
select var_samp(n) from kind where id = 4
select ok, var_samp(n) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select var_samp(distinct d) from kind where id != 5 and id != 6
select var_samp(all d) from kind where id != 5 and id != 6
select var_samp(d) from kind where id = 99
select var_samp(d) from kind where id = 4
select ok, var_samp(d) from kind where id != 5 and id != 6 and ok is not null group by ok order by ok
select count(*) from kind where n > 0
select count(*), count(n), count(distinct n) from kind
select sum(n + 1) from kind where id != 5 and id != 6
select sum(n) / count(n) from kind where id != 5 and id != 6
select avg(n) + 1 from kind where id != 5 and id != 6
select round(avg(d), 2) from kind where id != 5 and id != 6
select min(w) from word
select max(w) from word
select count(distinct w) from word
select count(distinct v) from kind
select sum(n * d) from kind where id != 5 and id != 6
select sum(case when ok then 1 else 0 end) from kind
select max(ts) - min(ts) from kind
select max(day) - min(day) from kind
select avg(n / 2) from kind where id != 5 and id != 6
select sum(quantity * price) from purchase
select max(n) > 5 from kind where id != 5 and id != 6
select count(null) from kind
select sum(b) from kind where id != 5 and id != 6
select avg(b) from kind where id != 5 and id != 6
select w, count(*) from word group by w
select lower(w) as l, count(*) from word group by l
select status, count(*) from purchase group by status
select status, count(*) from purchase group by status having count(*) > 1
select category, count(*) from product group by category order by category
select category, sum(price) from product group by category having sum(price) > 100
select category, avg(price) from product group by category order by avg(price) desc
select city, count(*) from customer group by city order by city
select country, city, count(*) from customer group by country, city order by country, city
select category, min(price), max(price) from product group by category order by 1
select customer_id, sum(quantity * price) as total from purchase group by customer_id order by total desc
select customer_id, sum(quantity * price) as total from purchase group by customer_id having sum(quantity * price) > 50
select level, count(*) from logline group by level order by level
select c, count(*) from kind group by c
select ok, sum(n) from kind where id != 5 and id != 6 group by ok having ok is not null
select vip, count(*), sum(credit) from customer group by vip order by vip
select level, avg(ms) from logline group by level having avg(ms) > 10 order by level
select discontinued, avg(price) from product group by discontinued order by discontinued
select status from purchase group by status order by status
select customer_id, count(distinct product_id) from purchase group by customer_id order by customer_id
select w from word group by w having count(*) = 1 order by w
select extract(year from ordered) as y, count(*) from purchase group by y order by y
select count(*) as n from purchase group by customer_id having max(price) > 100 or min(quantity) = 1
select category as kind, count(*) from product group by kind order by kind
select name, category, price from product group by id order by id
