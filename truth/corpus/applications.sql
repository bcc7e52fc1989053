-- What applications ask: a shop, its log, its accounts and its reports.
-- The shop.
select id, name, price from product where price < 100 order by price
select id, name from product where category = 'office' and stock > 0 order by name
select name, price * 1.25 as gross from product where discontinued = false
select name, round(price * 1.25, 2) as gross from product where not discontinued order by gross desc
select name, stock * price as value from product where stock is not null order by value desc
select category, count(*) as products, sum(stock) as pieces from product group by category order by category
select category, avg(price) from product where not discontinued group by category having count(*) > 1
select p.name, c.name, o.quantity from purchase o join customer c on c.id = o.customer_id join product p on p.id = o.product_id order by o.id
select c.name, sum(o.quantity * o.price) as spent from customer c join purchase o on o.customer_id = c.id group by c.name order by spent desc
select c.name, count(o.id) as orders from customer c left join purchase o on o.customer_id = c.id group by c.name order by orders desc, c.name
select c.name from customer c left join purchase o on o.customer_id = c.id where o.id is null order by c.name
select c.name || ' (' || c.country || ')' as label from customer c order by label
select name, coalesce(city, 'unknown') from customer order by name
select name, email from customer where email like '%@example.com'
select name, email from customer where email ilike '%@example.com'
select name from customer where lower(email) = 'bob@example.com'
select name from customer where upper(name) like '%BERG%'
select name from customer where name like 'Frank O_Hara'
select name from customer where email like '%\_%'
select name from customer where email like '%!%%' escape '!'
select name from customer where city = 'London'
select name from customer where lower(city) = 'london' order by name
select name from customer where vip and credit > 100
select name from customer where vip is not true
select name from customer where credit between 0 and 500 order by credit
select name from customer where joined >= date '2005-01-01' order by joined
select name from customer where extract(year from joined) = 2004
select name, extract(month from joined) as m from customer where joined is not null order by m, name
select name, to_char(joined, 'DD.MM.YYYY') from customer where joined is not null
select name, to_char(cast(joined as timestamp), 'DD.MM.YYYY') from customer where joined is not null
select name, joined + 30 as due from customer where joined is not null order by due
select name, joined + interval '1 year' as anniversary from customer where joined is not null
select a.name as customer, b.name as sponsor from customer a join customer b on a.referrer = b.id order by a.name
select a.name, coalesce(b.name, 'nobody') from customer a left join customer b on a.referrer = b.id order by a.id
select id, quantity * price as total from purchase where quantity * price > 100 order by total desc
select id, case when quantity >= 50 then price * 0.9 else price end as unit from purchase order by id
select id, quantity, quantity / 3 as boxes, quantity % 3 as rest from purchase order by id
select id, status from purchase where status = 'open' order by id
select id, lower(status) from purchase where status is not null order by id
select id, note from purchase where note is not null and note != '' order by id
select id from purchase where ordered between '2005-01-01' and '2005-03-31' order by id
select id from purchase where ordered >= timestamp '2005-01-01 00:00:00' and ordered < timestamp '2005-02-01 00:00:00'
select id, to_char(ordered, 'YYYY-MM-DD HH24:MI') from purchase order by id
select id, to_char(ordered, 'FMDay DD FMMonth YYYY') from purchase order by id
select id, date_trunc('month', ordered) as month from purchase order by month, id
select date_part('year', ordered) as year, sum(quantity * price) from purchase group by year order by year
select status, sum(quantity * price) as total, count(*) as orders from purchase group by status order by total desc
select p.name, sum(o.quantity) from product p join purchase o on o.product_id = p.id group by p.name having sum(o.quantity) > 10 order by p.name
select p.category, sum(o.quantity * o.price) as turnover from product p, purchase o where o.product_id = p.id group by p.category order by turnover desc limit 3
select distinct c.country from customer c join purchase o on o.customer_id = c.id order by c.country
select name, price from product order by price desc limit 3
select name, price from product order by price limit 2 offset 2
select name from product where code like 'OF-%'
select name from product where code like 'OF_%'
select name from product where code ~ '^[A-Z]{2}-[0-9]+$'
select substring(code from 1 for 2) as family, count(*) from product where code is not null group by family order by family
select name, substr(code, 4) as number from product where code is not null order by number
select name, position('-' in code) from product
select name, char_length(name) from product order by char_length(name) desc, name
select upper(substr(name, 1, 1)) || lower(substr(name, 2)) from product
select name from product where category = 'furniture' order by name
select name, weight / 1000 as tons from product where weight is not null order by tons
select name, weight * stock as total from product where stock > 0
select max(price) - min(price) as spread from product
select count(*), count(category), count(distinct category) from product
select name, case category when 'office' then 'O' when 'food' then 'F' else '-' end as mark from product order by id
select id, name from product where stock is null or stock = 0 order by id
insert into customer (id, name, email, city, country, joined) values (8, 'Hanna', 'hanna@example.com', 'Bergen', 'NO', '2005-07-01')
insert into customer (id, name) values (8, 'Ivan')
insert into product values (8, 'Lamp', 'office', 19.9, 12, 1.2, false, 'OF-003')
insert into purchase (id, customer_id, product_id, quantity, price, ordered, status) values (10, 1, 2, 3, 3.20, timestamp '2005-07-02 12:30:00', 'open')
update product set stock = stock - 3 where id = 2 and stock >= 3
update product set price = price * 1.05 where category = 'office'
update customer set credit = credit - 50, vip = false where credit < 100
update purchase set status = 'shipped', note = 'sent ' || note where status = 'open'
update purchase set price = price * 0.9 where ordered < '2005-01-01' and status != 'cancelled'
delete from purchase where status = 'cancelled' or status = 'returned'
delete from customer where credit is null and not vip
-- The log.
select level, count(*) from logline group by level order by count(*) desc, level
select id, message from logline where level = 'error' order by happened
select id, message from logline where lower(level) = 'info' order by id
select id, message from logline where message like 'GET %' order by id
select id, message from logline where message like '%100\%%'
select id, message from logline where message like '%100!%%' escape '!'
select id, message from logline where message ~ 'user[_=]' order by id
select id, message from logline where message ~* 'TIMEOUT|disk'
select id, message from logline where message !~ '^(GET|POST)' order by id
select id, message from logline where message like 'Disk full: C:\\data'
select id, ms / 1000 as seconds from logline where ms is not null order by id
select id, ms / 1000.0 as seconds from logline where ms is not null order by id
select source, avg(ms) as mean, max(ms) as worst from logline group by source order by source
select source, avg(ms) from logline where ms > 0 group by source having count(*) > 1
select date_trunc('hour', happened) as hour, count(*) from logline group by hour order by hour
select date_trunc('day', happened) as day, count(*) from logline group by day order by day
select cast(happened as date) as day, sum(ms) from logline group by day order by day
select extract(hour from happened) as h, count(*) from logline group by h order by h
select to_char(happened, 'YYYY-MM') as month, count(*) from logline group by month order by month
select to_char(happened, 'HH24:MI:SS') || ' ' || message from logline order by id
select id from logline where status >= 400 and status < 500 order by id
select status / 100 as class, count(*) from logline group by class order by class
select id, case when ms > 10000 then 'slow' when ms > 50 then 'fair' else 'fast' end from logline order by id
select id, coalesce(source, '?') || ': ' || message from logline order by id
select id, split_part(message, ' ', 1) from logline order by id
select id, substring(message from 1 for 10) || '...' from logline where char_length(message) > 10 order by id
select id, message || ' [' || ms || 'ms]' from logline where ms is not null order by id
select upper(level), id from logline where source = 'web' order by id desc limit 2
select a.id, b.id, b.happened - a.happened from logline a join logline b on b.id = a.id + 1 order by a.id
select min(happened), max(happened) from logline
select max(happened) - min(happened) from logline
select id from logline where happened > timestamp '2005-01-02 10:30:00' - interval '30 minutes' order by id
select id, extract(epoch from happened) from logline order by id
select id, happened + interval '1 hour' * 2 from logline order by id
select id from logline where status is distinct from 200 order by id
select id from logline where status is null order by id
select count(*) from logline where ms > 10 and (level = 'warn' or level = 'error')
select sum(case when status >= 500 then 1 else 0 end) as failed, count(status) as all_of_them from logline
select distinct source from logline order by source
select id, lpad(id::text, 5, '0') from logline order by id
select id, length(message), octet_length(message) from logline order by id
select id, strpos(message, ' ') from logline order by id
select id, replace(message, 'GET', 'get') from logline order by id
select id from logline order by level, happened desc limit 4
select level, sum(ms) from logline group by level order by sum(ms) desc
delete from logline where happened < date '2005-01-02'
update logline set level = lower(level)
update logline set message = substr(message, 1, 5) where char_length(message) > 5
insert into logline (id, happened, level, message) values (9, '2005-03-01 00:00:00', 'info', 'C:\temp\new')
insert into logline (id, happened, level, message) values (9, '2005-03-01 00:00:00', 'info', 'tab\there')
-- The accounts.
select owner, balance from account where balance < 0
select owner, balance * (1 + rate) as next from account order by id
select owner, balance / 12 as monthly from account order by id
select sum(balance) from account where active
select count(*), sum(balance), avg(balance) from account
select active, count(*), sum(balance) from account group by active order by active
select owner, pin from account where pin = '12'
select owner, '[' || pin || ']' from account where pin is not null order by id
select owner, length(pin) from account order by id
select owner, opened, closed - opened as days from account order by id
select owner, coalesce(closed, date '2006-01-01') - opened as days from account order by id
select owner from account where opened + interval '1 year' > date '2005-02-01' order by owner
select owner, extract(year from opened) from account where active order by id
select owner, to_char(cast(opened as timestamp), 'Mon YYYY') from account order by id
select owner, to_char(opened, 'Mon YYYY') from account order by id
select owner, abs(balance) from account where balance != 0 order by abs(balance)
select owner, sign(balance) from account order by id
select owner, trunc(balance), floor(balance), ceil(balance) from account order by id
select owner, cast(balance as integer) from account order by id
select owner, balance::integer % 10 from account order by id
select owner, balance::text || ' EUR' from account order by id
select owner, to_char(balance, '999999.99') from account order by id
select owner from account where rate = 0.02
select owner from account where rate = 0.015 or rate > 0.03
select owner from account order by owner
select owner from account order by lower(owner) desc
select owner, power(1 + rate, 10) from account order by id
select owner, balance * rate / 365 * 30 from account where active order by id
select a.owner, b.owner, t.amount from transfer t join account a on a.id = t.from_id join account b on b.id = t.to_id order by t.id
select from_id, sum(amount) from transfer group by from_id order by from_id
select a.owner, a.balance - sum(t.amount) as rest from account a join transfer t on t.from_id = a.id group by a.owner, a.balance order by a.owner
select id, amount from transfer where made >= '2005-01-12 00:00:00' order by made
select id, memo from transfer where memo ilike '%rent%' order by id
select id, memo from transfer where memo like '%rent%' order by id
select id, made from transfer order by made desc limit 2
select id, cast(made as date) from transfer order by id
select id, extract(day from made) from transfer order by id
select to_char(made, 'YYYY-MM'), sum(amount) from transfer group by made order by made
select date_trunc('month', made) as month, sum(amount) from transfer group by month order by month
select id from transfer where coalesce(memo, '') = '' order by id
select a.owner, count(t.id) from account a left join transfer t on a.id = t.from_id or a.id = t.to_id group by a.owner order by a.owner
select owner, case when balance is null then 'none' when balance < 0 then 'debt' when balance < 1000 then 'small' else 'large' end from account order by id
select owner, nullif(balance, 0) from account order by id
select owner, greatest(balance, 0) from account order by id
select owner, active and balance > 0 from account order by id
select owner, not active from account order by id
select owner from account where active = true and closed is null order by owner
update account set balance = balance - 20.00 where id = 1 and balance >= 20.00
update account set balance = balance + 20.00 where owner = 'eve' and balance is not null
update account set closed = date '2005-12-31', active = false where balance = 0
update account set pin = lpad(pin, 4, '0') where pin != ''
insert into account values (6, 'Frank', 10, 0.01, '2005-06-01', null, true, '1')
insert into transfer (id, from_id, to_id, amount, made, memo) values (6, 1, 2, 33.333, '2005-06-01 12:00:00', 'a third')
delete from account where active is null
