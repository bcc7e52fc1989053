select id, email, display_name from account where id = 42;

select * from session where token = 'b5f0c1d2e3a4' and expires_at > now();

insert into page_view (path, referrer, seen_at) values ('/pricing', 'https://example.org/', now());

update account set last_seen = now() where id = 42;

delete from session where expires_at < now();

select count(*) from invoice where paid is not true;

select title, body, published_at from article where slug = 'spring-cleaning' and published_at <= now() limit 1;

update cart_line set quantity = quantity + 1, changed_at = now() where cart_id = 8812 and article_id = 177;

select name, price * 1.19 as gross from article where price > 10 and discontinued is null order by price desc limit 20 offset 40;

insert into audit_log (account_id, action, object_type, object_id, happened_at, remark) values (17, 'update', 'invoice', 99321, now(), 'changed the due date, see ticket 4711');

select a.id, a.title, a.published_at, u.display_name as author, count(c.id) as comments
from article as a
join account as u on u.id = a.author_id
left join comment as c on c.article_id = a.id
where a.published_at is not null and a.language = 'en'
group by a.id, a.title, a.published_at, u.display_name
order by a.published_at desc
limit 25;

select o.id, o.placed_at, c.name, c.city, sum(l.quantity * l.unit_price) as net, sum(l.quantity * l.unit_price * l.tax_rate) as tax
from orders as o
join customer as c on c.id = o.customer_id
join order_line as l on l.order_id = o.id
where o.status = 'shipped' and o.placed_at >= timestamp '2005-01-01 00:00:00' and o.placed_at < timestamp '2005-04-01 00:00:00'
group by o.id, o.placed_at, c.name, c.city
having sum(l.quantity * l.unit_price) > 100
order by net desc, o.placed_at;

select upper(last_name) || ', ' || first_name as name, extract(year from hired_at) as since, salary / 12 as monthly
from employee
where department_id = 7 and (hired_at > date '1999-12-31' or salary > 54000) and left_at is null
order by last_name, first_name;

select case when score >= 90 then 'A' when score >= 80 then 'B' when score >= 70 then 'C' when score >= 60 then 'D' else 'F' end as grade, student_id, course_id, score
from exam_result
where term = '2004/2' and score is not null
order by score desc;

update invoice
set reminder_level = reminder_level + 1, reminded_at = current_date, due_at = due_at + interval '14 days'
where paid is false and due_at < current_date and reminder_level < 3 and customer_id <> 1;

select p.sku, p.title, s.quantity, s.quantity * p.cost as bound_capital, w.code as warehouse
from stock as s
join product as p on p.sku = s.sku
join warehouse as w on w.id = s.warehouse_id
where w.in_use is true and s.quantity > 0 and s.quantity < s.reorder_level * 2;

insert into shipment (order_id, carrier, tracking_code, weight, packed_by, packed_at, insured, remark)
values (70113, 'parcel', 'JD014600003883910021', 2.75, 31, timestamp '2005-03-14 09:26:53', true, null);

select t.id, t.subject, t.priority, t.opened_at, a.display_name as assignee, r.display_name as reporter, p.name as project
from ticket as t
left join account as a on a.id = t.assignee_id
inner join account as r on r.id = t.reporter_id
inner join project as p on p.id = t.project_id
where t.closed_at is null and t.priority <= 2 and (t.assignee_id = 12 or t.assignee_id is null) and p.archived is not true
order by t.priority, t.opened_at
limit 50;

select distinct lower(trim(both ' ' from email)) as email, length(email) as size from newsletter_subscriber where confirmed is true and bounced < 3 and email like '%@example.%' order by size desc;

delete from password_reset where (used_at is not null or requested_at < now()) and account_id <> 0;

select sensor_id, min(value) as lowest, max(value) as highest, avg(value) as mean, count(*) as readings, sum(value) / count(value) as checked_mean
from reading
where taken_at >= timestamp '2005-02-01 00:00:00' and taken_at < timestamp '2005-03-01 00:00:00' and quality > 0.8 and value is not null
group by sensor_id
having count(*) > 100
order by mean desc;

select first_name || ' ' || coalesce(middle_name, '') || ' ' || last_name as full_name, street || ' ' || house_number as street, zip || ' ' || city as town from customer where country = 'SE' and zip like '41%' order by city, street limit 500;

insert into customer (name, contact, street, zip, city, country, phone, fax, email, vat_number, discount, blocked, created_at)
values ('Lindberg & Co', 'Maja Lindberg', 'Storgatan 12', '411 38', 'Goteborg', 'SE', '+46 31 123 45 67', null, 'maja@example.se', 'SE556677889901', 0.05, false, now());

select a.number, a.currency, sum(b.amount) as balance, max(b.booked_at) as last_booking
from bank_account as a
left join booking as b on b.account_number = a.number
where a.closed_at is null and a.branch = 4 and b.booked_at between date '2004-01-01' and date '2004-12-31'
group by a.number, a.currency
order by balance desc, a.number;

update product
set price = round(price * 1.035, 2), cost = cost * 1.02, changed_by = 'import', changed_at = current_timestamp, remark = 'spring list' || ' ' || '2005', active = true
where supplier_id = 93 and price > 0 and (category = 'tools' or category = 'garden' or category = 'paint') and discontinued_at is null;

select r.room_number, r.beds, r.rate, b.guest_name, b.arrival, b.departure, b.departure - b.arrival as nights
from room as r
left join booking as b on b.room_id = r.id and b.cancelled_at is null
where r.hotel_id = 5 and (b.arrival, b.departure) overlaps (date '2005-07-01', date '2005-07-15')
order by r.room_number, b.arrival;

select lower(country) as country, count(*) as customers, sum(case when blocked is true then 1 else 0 end) as blocked, avg(discount) as discount
from customer
where phone is not null and length(phone) > 6
group by country
having count(*) > 5
order by customers desc
limit 100;

select v.id, v.license_plate, v.make || ' ' || v.model as vehicle, d.name as driver, max(f.odometer) - min(f.odometer) as distance, sum(f.litres) as litres, sum(f.litres) * 100 / (max(f.odometer) - min(f.odometer)) as consumption, sum(f.litres * f.price_per_litre) as cost
from vehicle as v
join fuelling as f on f.vehicle_id = v.id
left join driver as d on d.id = v.driver_id
where f.fuelled_at >= date '2005-01-01' and f.fuelled_at < date '2006-01-01' and v.sold_at is null
group by v.id, v.license_plate, v.make, v.model, d.name
having max(f.odometer) > min(f.odometer)
order by consumption desc;

select id, name, latitude, longitude, sqrt((latitude - 57.7) ^ 2 + (longitude - 11.97) ^ 2) as distance from place where abs(latitude - 57.7) < 0.5 and abs(longitude - 11.97) < 0.5 and kind <> 'closed' order by distance limit 10;

delete from notification where account_id = 88 and read_at is not null and (kind = 'mention' or kind = 'reply' or kind = 'like') and created_at < timestamp '2004-12-31 23:59:59';

select m.id, m.sent_at, m.subject, s.address as sender, r.address as recipient, char_length(m.body) as size, m.has_attachment
from mail as m
inner join address as s on s.id = m.sender_id
inner join mail_recipient as mr on mr.mail_id = m.id
inner join address as r on r.id = mr.address_id
where (m.subject ilike '%invoice%' or m.body ilike '%invoice%') and m.deleted_at is null and m.folder_id = 3 and s.blocked is not true
order by m.sent_at desc
limit 100 offset 200;

insert into reading (sensor_id, taken_at, value, quality, unit, raw) values (1044, timestamp '2005-02-17 12:45:00', 21.375, 0.98, 'C', '0x155F');

update task set position = position - 1 where board_id = 9 and list_id = 4 and position > 7;

select e.id, e.title, e.starts_at, e.ends_at, v.name as venue, v.city, count(t.id) as sold, v.capacity - count(t.id) as free, sum(t.price) as revenue
from event as e
inner join venue as v on v.id = e.venue_id
left join ticket as t on t.event_id = e.id and t.refunded_at is null
where e.starts_at > now() and e.cancelled is false and (v.city = 'Lund' or v.city = 'Malmo') and e.category <> 'private'
group by e.id, e.title, e.starts_at, e.ends_at, v.name, v.city, v.capacity
having v.capacity > count(t.id)
order by e.starts_at, e.title
limit 30;

select isbn, title, coalesce(subtitle, '') as subtitle, pages, published, cast(price as numeric) as price, pages / 2 as sheets from book where (title like 'The %' or title like 'A %') and pages > 100 and pages < 900 and language <> 'la' order by published desc, title;

select g.name as genre, count(distinct f.id) as films, avg(r.stars) as rating, min(f.released) as first_release, max(f.released) as latest_release
from film as f
join film_genre as fg on fg.film_id = f.id
join genre as g on g.id = fg.genre_id
left join rating as r on r.film_id = f.id
where f.country = 'SE' and f.minutes > 60 and r.stars between 1 and 5
group by g.name
having count(distinct f.id) >= 3
order by rating desc, films desc;

insert into flight (number, origin, destination, departs_at, arrives_at, aircraft, seats, gate, status, codeshare)
values ('SK1417', 'GOT', 'CPH', timestamp '2005-06-24 07:10:00', timestamp '2005-06-24 07:55:00', 'A320', 168, 'B12', 'scheduled', null);

select p.id, p.birth_date, p.last_name, p.first_name, d.code, d.description, v.admitted_at, v.discharged_at, w.name as ward, case when v.discharged_at is null then 'in house' when v.outcome = 'transfer' then 'transferred' else 'discharged' end as state
from patient as p
inner join visit as v on v.patient_id = p.id
inner join diagnosis as d on d.visit_id = v.id
left join ward as w on w.id = v.ward_id
where v.admitted_at >= timestamp '2005-01-01 00:00:00' and d.code like 'J1%' and (p.birth_date < date '1940-01-01' or v.urgent is true) and p.deceased_at is null
order by v.admitted_at desc, p.last_name, p.first_name
limit 200;

update employee set salary = salary * 1.025 + 250, reviewed_at = date '2005-04-01', next_review = date '2005-04-01' + 365, grade = case when grade < 5 then grade + 1 else grade end where department_id = 12 and hired_at < date '2004-10-01' and left_at is null and on_leave is not true;

select k.name, k.value, k.changed_at from setting as k where k.scope = 'global' or k.scope = 'site' and k.site_id = 3 order by k.name;

select s.region, s.product_line, sum(s.units) as units, sum(s.amount) as turnover, sum(s.amount - s.cost) as margin, sum(s.amount - s.cost) * 100 / sum(s.amount) as margin_percent, sum(case when s.channel = 'web' then s.amount else 0 end) as web, sum(case when s.channel = 'shop' then s.amount else 0 end) as shop, sum(case when s.channel = 'phone' then s.amount else 0 end) as phone
from sale as s
inner join calendar as c on c.day = s.sold_on
where c.year = 2004 and c.quarter >= 2 and s.returned is false and s.amount > 0
group by s.region, s.product_line
having sum(s.amount) > 10000
order by turnover desc, s.region, s.product_line
limit 1000;

select address, replace(address, 'Street', 'St.') as short, position('Lane' in address) as lane, char_length(address) as size, upper(trim(both ' ' from address)) as label from parcel where address is not null and zip between '40000' and '42999' order by address;

delete from tag_use where tag_id = 311 and (article_id < 1000 or article_id > 250000) and created_by <> 4;

select u.id, u.display_name, u.email, max(l.happened_at) as last_login, count(l.id) as logins, count(distinct l.address) as addresses from account as u left join login as l on l.account_id = u.id and l.success is true where u.disabled_at is null group by u.id, u.display_name, u.email having count(l.id) > 0 order by last_login desc limit 100;

insert into payment (invoice_id, method, amount, currency, received_at, reference, fee, net, booked) values (55120, 'card', 1249.50, 'SEK', timestamp '2005-03-03 16:20:11', 'PX-' || '20050303' || '-0017', 1249.50 * 0.014 + 1.80, 1249.50 - (1249.50 * 0.014 + 1.80), false);

select c.id, c.parent_id, c.body, c.created_at, u.display_name, u.avatar, c.score, c.score > 10 and c.flags = 0 as promoted from comment as c join account as u on u.id = c.account_id where c.article_id = 5501 and c.deleted_at is null and not u.banned is true order by c.score desc, c.created_at limit 200;

select team, played, won, drawn, lost, goals_for, goals_against, goals_for - goals_against as difference, won * 3 + drawn as points, cast(won as float8) / played as quota from standing where season = '2004/05' and league = 'premier' and played > 0 order by points desc, difference desc, goals_for desc, team;

select host, path, status, count(*) as hits, sum(bytes) as traffic, avg(duration) as mean_duration, max(duration) as slowest, sum(case when status >= 500 then 1 else 0 end) as failures, sum(case when status >= 400 and status < 500 then 1 else 0 end) as refusals from access_log where seen_at >= timestamp '2005-05-01 00:00:00' and seen_at < timestamp '2005-05-02 00:00:00' and not (path like '/static/%' or path like '/favicon%' or agent ilike '%bot%') group by host, path, status having count(*) > 10 order by hits desc limit 100;

update subscription set renews_at = renews_at + interval '1 month', failures = 0, state = 'active', changed_at = now() where id = 20417 and state <> 'cancelled';

select b.id, b.name, b.address, r.rent, r.square_metres, r.rent / r.square_metres as rent_per_metre, t.last_name || ', ' || t.first_name as tenant, t.since, date '2005-12-31' - t.since as days from building as b inner join flat as r on r.building_id = b.id left join tenant as t on t.flat_id = r.id where b.owner_id = 61 and r.square_metres > 25.5 and (t.id is null or t.notice_given is true) order by rent_per_metre desc, b.name, r.rent;

select q.id, q.title, q.asked_at, q.views, q.votes, a.id as answer_id, a.votes as answer_votes, u.display_name as asker, w.display_name as answerer, q.votes * 5 + a.votes * 10 + q.views / 100 as weight
from question as q
left join answer as a on a.question_id = q.id and a.accepted is true
inner join account as u on u.id = q.account_id
left join account as w on w.id = a.account_id
where q.closed_at is null and q.votes > 2 and (q.title ilike '%grammar%' or q.title ilike '%parser%' or q.body ilike '%lalr%') and q.asked_at > date '2004-01-01'
order by weight desc, q.asked_at desc
limit 20;

select day, to_days, open, high, low, close, volume, (high + low + close) / 3 as typical, (high - low) / open * 100 as swing, volume * (high + low + close) / 3 as flow from quote where symbol = 'ABC' and day >= date '2005-01-01' and volume > 0 order by day;

insert into ledger (entry_date, account, contra_account, debit, credit, text, document, cost_centre, entered_by, entered_at) values (date '2005-03-31', '4010', '1930', 8250.00, 0, 'Rent, second quarter', 'V-2005-0331', 100, 'ml', now());

select pl.name as playlist, tr.title, ar.name as artist, al.title as album, tr.seconds / 60 as minutes, tr.seconds % 60 as seconds, pe.position from playlist as pl join playlist_entry as pe on pe.playlist_id = pl.id join track as tr on tr.id = pe.track_id join artist as ar on ar.id = tr.artist_id left join album as al on al.id = tr.album_id where pl.account_id = 7 and pl.deleted_at is null and tr.seconds < 600 order by pl.name, pe.position;

update order_line set unit_price = 12.95, discount = 0.10, total = 12.95 * quantity * (1 - 0.10), changed_at = now(), changed_by = 31 where order_id = 70113 and line_number = 4;

select x.id, x.kind, x.payload, x.attempts, x.run_at from job as x where x.locked_by is null and x.run_at <= now() and x.attempts < 5 and (x.queue = 'mail' or x.queue = 'default') order by x.priority desc, x.run_at limit 10;

select c.name as country, count(distinct o.customer_id) as customers, count(o.id) as orders, sum(o.total) as turnover, sum(o.total) / count(o.id) as basket, sum(case when o.status = 'returned' then o.total else 0 end) as returned, sum(case when o.coupon is not null then o.discount else 0 end) as discounts, min(o.placed_at) as first_order, max(o.placed_at) as last_order, avg(case when o.delivered_at is not null then extract(day from o.delivered_at) - extract(day from o.placed_at) else 0 end) as days_to_deliver
from orders as o
inner join customer as cu on cu.id = o.customer_id
inner join country as c on c.code = cu.country_code
left join voucher as vo on vo.id = o.voucher_id and vo.valid_until >= date '2005-01-01'
left join campaign as ca on ca.id = vo.campaign_id
where o.placed_at >= timestamp '2004-01-01 00:00:00' and o.placed_at < timestamp '2005-01-01 00:00:00'
and (o.status = 'shipped' or o.status = 'delivered' or o.status = 'returned')
and o.test_order is not true
and (ca.name is null or not ca.name ilike 'internal%')
and (cu.group_code = 'retail' or cu.group_code = 'trade' and cu.discount < 0.25)
group by c.name, c.region, c.currency
having count(o.id) >= 10 and sum(o.total) > 1000
order by turnover desc, customers desc, country
limit 250 offset 0;

select i.number, i.issued_at, i.due_at, c.name, c.contact, c.street, c.zip || ' ' || c.city as town, c.country, i.net, i.net * i.tax_rate as tax, i.net + i.net * i.tax_rate as gross, coalesce(p.received, 0) as received, i.net + i.net * i.tax_rate - coalesce(p.received, 0) as open, case when i.due_at < current_date - 60 then 'third' when i.due_at < current_date - 30 then 'second' when i.due_at < current_date - 14 then 'first' else 'none' end as reminder, upper(c.name) as heading, 'INV-' || i.number || '/' || i.revision as reference, i.currency, i.exchange_rate, round(i.net * i.exchange_rate, 2) as net_home, s.last_name || ', ' || s.first_name as salesman, s.commission * i.net as commission
from invoice as i
inner join customer as c on c.id = i.customer_id
left join payment_total as p on p.invoice_id = i.id
left join salesman as s on s.id = c.salesman_id
where i.cancelled is false and i.issued_at >= date '2004-07-01' and i.issued_at <= date '2005-06-30'
and (p.received is null or p.received < i.net + i.net * i.tax_rate - 0.01)
and (c.dunning_block is null or c.dunning_block < current_date)
and not (c.country = 'XX' or c.name ilike '%test%' or i.number like 'TMP%')
and (s.region = 'north' or s.region = 'west' or s.id is null)
and i.currency <> 'ITL' and i.exchange_rate > 0
order by reminder desc, open desc, i.due_at, c.name, i.number
limit 500;

select d.day, d.week, d.month, s.name as shop, s.city, sum(t.items) as items, count(distinct t.receipt_number) as receipts, sum(t.amount) as turnover, sum(t.amount) / count(distinct t.receipt_number) as basket, sum(case when t.payment = 'cash' then t.amount else 0 end) as cash, sum(case when t.payment = 'debit' then t.amount else 0 end) as debit, sum(case when t.payment = 'credit' then t.amount else 0 end) as credit, sum(case when t.payment = 'voucher' then t.amount else 0 end) as voucher, sum(case when t.hour >= 6 and t.hour < 10 then t.amount else 0 end) as morning, sum(case when t.hour >= 10 and t.hour < 14 then t.amount else 0 end) as noon, sum(case when t.hour >= 14 and t.hour < 18 then t.amount else 0 end) as afternoon, sum(case when t.hour >= 18 and t.hour < 22 then t.amount else 0 end) as evening, avg(t.amount) as mean_receipt, max(t.amount) as largest_receipt, sum(t.discount) as discounts, sum(t.discount) * 100 / (sum(t.amount) + sum(t.discount)) as discount_percent, s.target - sum(t.amount) as missing, s.target * 0.85 > sum(t.amount) as alarming, upper(s.code) || '/' || lower(s.region) as label
from till_receipt as t
inner join shop as s on s.id = t.shop_id
inner join calendar as d on d.day = t.sold_on
left join holiday as h on h.day = d.day and (h.region = s.region or h.region is null)
left join campaign as c on c.id = t.campaign_id and c.kind <> 'internal'
where t.sold_on >= date '2005-11-01' and t.sold_on <= date '2005-12-31'
and t.cancelled is false and t.training is not true
and (s.closed_on is null or s.closed_on > date '2005-12-31')
and (h.name is null or h.open is true)
and (c.name is null or c.name ilike '%advent%' or c.name ilike '%christmas%' or c.name like 'X-%')
and not (t.cashier = 'test' or t.cashier like 'demo%')
and (s.format = 'city' or s.format = 'mall' and s.square_metres > 120.5 or s.format = 'station')
group by d.day, d.week, d.month, s.name, s.city, s.target, s.code, s.region
having sum(t.amount) > 0 and count(distinct t.receipt_number) >= 5
order by d.day, s.region, turnover desc, s.name
limit 5000;

insert into measurement (station_id, run_id, taken_at, depth, temperature, salinity, oxygen, ph, turbidity, chlorophyll, remark, checked) values (17, 20050317, timestamp '2005-03-17 08:30:00', 12.5, 4.81, 24.75, 7.92, 8.05, 1.2, 0.85, 'ice at the shore, buoy 3 missing', null);
