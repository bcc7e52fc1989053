-- INSERT, UPDATE and DELETE: what the table holds afterwards.
insert into made values (9, 'new', 5, 1.50, true, '2005-01-31', 'x')
insert into made (id) values (9)
insert into made (id, label) values (9, 'new')
insert into made (id, label, n) values (9, default, default)
insert into made values (9, default, default, default, default, default, default)
insert into made (id, note) values (9, null)
insert into made (id, n) values (9, 7 / 2)
insert into made (id, n) values (9, 5 / 2.0)
insert into made (id, n) values (9, 2.5)
insert into made (id, n) values (9, 3.5e0)
insert into made (id, n) values (9, '12')
insert into made (id, n) values (9, 'abc')
insert into made (id, n) values (9, '')
insert into made (id, n) values (9, 3000000000)
insert into made (id, price) values (9, 1.005)
insert into made (id, price) values (9, 1.239)
insert into made (id, price) values (9, 12345678.9)
insert into made (id, price) values (9, '1.5')
insert into made (id, ok) values (9, true)
insert into made (id, ok) values (9, false)
insert into made (id, ok) values (9, null)
insert into made (id, ok) values (9, 't')
insert into made (id, ok) values (9, 'true')
insert into made (id, ok) values (9, 1 = 1)
insert into made (id, day) values (9, '2005-02-28')
insert into made (id, day) values (9, date '2005-02-28')
insert into made (id, day) values (9, '2005-02-30')
insert into made (id, day) values (9, date '2005-02-28' + 1)
insert into made (id, day) values (9, timestamp '2005-02-28 10:00:00')
insert into made (id, day) values (9, '20050228')
insert into made (id, day) values (9, '')
insert into made (id, label) values (9, null)
insert into made (id, label) values (9, '')
insert into made (id, label) values (9, 'a label that is much too long')
insert into made (id, label) values (9, 'trailing blanks        ')
insert into made (id, label) values (9, 'Zoë')
insert into made (id, label) values (9, 'back\slash')
insert into made (id, label) values (9, 'a\nb')
insert into made (id, note) values (9, 'a' || 'b')
insert into made (id, note) values (9, 1 || 'b')
insert into made (id, note) values (9, 15)
insert into made (id, note) values (9, 1.50)
insert into made (id, note) values (9, true)
insert into made (id, note) values (9, date '2005-01-31')
insert into made (id, note) values (9, upper('x'))
insert into made (id, note) values (9, 'semi;colon')
insert into made (id, note) values (9, '50% "off"')
insert into made (id) values (1)
insert into made (id, label) values (null, 'x')
insert into made (label) values ('no id')
insert into made (id, n) values (- 9, - 9)
insert into made (id, n) values (9, null)
insert into made (id, n) values (9, 2 + 3 * 4)
insert into made (id, n) values (9, length('abc'))
insert into made (id, n) values (9, cast('12' as integer))
insert into made (id, n) values (9, case when true then 1 else 2 end)
insert into made (id, n) values (9, 7 % 3)
insert into made (id, n) values (9, 2 ^ 3)
INSERT INTO made (ID, Label) VALUES (9, 'caps')
insert into kind (id, si) values (20, 40000)
insert into kind (id, si) values (20, -32768)
insert into kind (id, c) values (20, 'ab')
insert into kind (id, c) values (20, 'abcdefgh')
insert into kind (id, c) values (20, 'ab      ')
insert into kind (id, f) values (20, 0.1)
insert into kind (id, f) values (20, 1e300)
insert into kind (id, r) values (20, 0.1)
insert into kind (id, r) values (20, 16777217)
insert into kind (id, d) values (20, 1.23456)
insert into kind (id, d) values (20, 0.00005)
insert into kind (id, tm) values (20, '10:20')
insert into kind (id, tm) values (20, '10:20:30.7')
insert into kind (id, tm) values (20, time '10:20:30' + interval '1 hour')
insert into kind (id, ts) values (20, '2005-01-31')
insert into kind (id, ts) values (20, '2005-01-31 10:20:30.7')
insert into kind (id, ts) values (20, timestamp '2005-01-31 10:20:30' + interval '1 day')
insert into kind (id, ts) values (20, date '2005-01-31')
insert into kind (id, tz) values (20, '2005-01-31 10:20:30')
insert into kind (id, tz) values (20, timestamp '2005-01-31 10:20:30')
insert into kind (id, b) values (20, 9223372036854775807)
insert into kind (id, b) values (20, 9223372036854775808)
insert into kind (id, t) values (20, repeat('ab', 20))
insert into kind (id, v) values (20, repeat('ab', 30))
insert into "order" values (9, 8, 'quoted')
insert into "order" (id, "select", "Mixed Case") values (9, 8, 'quoted')
update made set n = 5
update made set n = n + 1
update made set n = n + 1 where n is not null
update made set n = null where id = 1
update made set n = 7 / 2 where id = 1
update made set n = n / 2
update made set price = price * 1.1
update made set price = price * 1.1 where price is not null
update made set price = n, n = 4 where id < 3
update made set n = id, id = id + 100
update made set id = id + 1
update made set id = id + 10
update made set label = upper(label)
update made set label = label || '!'
update made set label = label || note
update made set label = label || id
update made set label = null where id = 1
update made set label = 'x' where label = 'third'
update made set label = 'x' where label like 'third'
update made set label = 'x' where label like 'T%'
update made set label = 'x' where label ilike 't%'
update made set label = 'x' where note = ''
update made set label = 'x' where note is null
update made set ok = not ok
update made set ok = true where ok is null
update made set ok = n > 1
update made set ok = false where ok
update made set day = day + 1
update made set day = day + interval '1 month'
update made set day = date '2005-02-28' where id = 2
update made set day = day - 365 where day is not null
update made set note = n
update made set note = price
update made set note = ok
update made set note = day
update made set note = 'a\b' where id = 1
update made set note = trim(note)
update made set note = coalesce(note, 'none')
update made set note = case when n > 1 then 'many' else 'few' end
update made set n = 3 where made.id = 1
update made set n = length(label)
update made set n = 2.5
update made set n = 3.5
update made set n = 2.5e0
update made set n = '8'
update made set price = 1.005
update made set price = 1e7
update made set label = 'a label that is much too long'
update made set n = 5 where id between 1 and 2
update made set n = 5 where not ok
update made set n = 5 where id = 1 or id = 3
update made set n = 5 where false
update made set n = 5 where label > 'f'
update made set label = note, note = label
update made set n = n + 1, price = n
update account set balance = balance - 100 where id = 1
update account set balance = balance * (1 + rate)
update account set closed = opened + 30 where closed is null
update account set pin = '7'
update account set pin = pin || 'x' where id = 2
update account set rate = 0.1
update account set rate = rate / 3
update account set owner = lower(owner), pin = null where not active
update customer set vip = credit > 100
update customer set email = lower(email)
update customer set name = upper(substr(name, 1, 1)) || substr(name, 2)
update customer set joined = joined + interval '1 year' where country = 'GB'
update customer set city = 'London' where city = 'london'
update customer set credit = coalesce(credit, 0) + 10
update product set stock = stock - 1 where stock > 0
update product set price = round(price * 1.19, 2)
update product set price = trunc(price), weight = weight * 1000
update product set code = replace(code, '-', '_')
update product set discontinued = true where stock = 0 or stock is null
update purchase set status = 'closed' where status = 'open'
update purchase set status = lower(status)
update purchase set ordered = ordered - interval '1 day'
update purchase set ordered = date_trunc('month', ordered)
update word set w = upper(w)
update word set w = trim(w) where w != ''
update word set w = 'x' where w = 'a'
update word set w = 'x' where w ~ '^[a-z]'
update word set w = replace(w, 'a', 'A')
update word set w = w || w
update kind set n = b where id < 4
update kind set si = n
update kind set c = v where id = 1
update kind set v = c || '|'
update kind set f = n, n = f where id < 3
update kind set ts = day
update kind set day = ts
update kind set tm = ts::time
update kind set d = f where id < 5
update kind set n = d where id < 5 or id > 6
update kind set n = f where id < 5 or id > 6
update kind set t = n
update kind set ok = n = 7
delete from made
delete from made where id = 1
delete from made where label = 'third'
delete from made where label = 'Third'
delete from made where label like 't%'
delete from made where ok
delete from made where not ok
delete from made where ok is not true
delete from made where note = ''
delete from made where note is null
delete from made where n > 1 or price > 2
delete from made where day < date '2005-01-01'
delete from made where day < '2005-01-01'
delete from made where id % 2 = 0
delete from made where id / 2 = 1
delete from made where made.id = 1
delete from made where label || 'x' = 'firstx'
delete from made where n = '1'
delete from word where w = 'a'
delete from word where w = ''
delete from word where w like '%a'
delete from word where w ilike 'a%'
delete from word where w ~ 'nn'
delete from word where w ~* 'NN'
delete from word where w > 'a'
delete from word where w is null or w = 'ANNA'
delete from word where w like '%\%'
delete from word where length(w) > 5
delete from purchase where ordered < timestamp '2005-01-01 00:00:00'
delete from purchase where status = 'open'
delete from purchase where extract(year from ordered) = 2005
delete from purchase where quantity * price < 20
delete from logline where happened < timestamp '2005-02-01 00:00:00' - interval '10 days'
delete from logline where level = 'info' and ms < 50
delete from account where balance < 0
delete from account where closed is not null and not active
delete from transfer where made < '2005-01-11 00:00:00'
delete from "order" where "select" > 5
delete from customer where email = ''
delete from customer where email like '%_adams%'
delete from product p where p.stock = 0
delete from product where stock = 0;
update product p set stock = 1 where p.id = 4
update product as p set stock = 1 where p.id = 4
delete from child where weight is distinct from 0
