-- ORDER BY, LIMIT, OFFSET and DISTINCT.
select id, n from kind order by n
select id, n from kind order by n desc
select n from kind where n is not null order by n asc, id desc
select distinct n from kind order by n
select id from kind where n is not null order by n desc limit 2
select distinct n from kind
select id, d from kind order by d
select id, d from kind order by d desc
select d from kind where d is not null order by d asc, id desc
select distinct d from kind order by d
select id from kind where d is not null order by d desc limit 2
select distinct d from kind
select id, f from kind order by f
select id, f from kind order by f desc
select f from kind where f is not null order by f asc, id desc
select distinct f from kind order by f
select id from kind where f is not null order by f desc limit 2
select distinct f from kind
select id, v from kind order by v
select id, v from kind order by v desc
select v from kind where v is not null order by v asc, id desc
select distinct v from kind order by v
select id from kind where v is not null order by v desc limit 2
select distinct v from kind
select id, t from kind order by t
select id, t from kind order by t desc
select t from kind where t is not null order by t asc, id desc
select distinct t from kind order by t
select id from kind where t is not null order by t desc limit 2
select distinct t from kind
select id, c from kind order by c
select id, c from kind order by c desc
select c from kind where c is not null order by c asc, id desc
select distinct c from kind order by c
select id from kind where c is not null order by c desc limit 2
select distinct c from kind
select id, ok from kind order by ok
select id, ok from kind order by ok desc
select ok from kind where ok is not null order by ok asc, id desc
select distinct ok from kind order by ok
select id from kind where ok is not null order by ok desc limit 2
select distinct ok from kind
select id, day from kind order by day
select id, day from kind order by day desc
select day from kind where day is not null order by day asc, id desc
select distinct day from kind order by day
select id from kind where day is not null order by day desc limit 2
select distinct day from kind
select id, tm from kind order by tm
select id, tm from kind order by tm desc
select tm from kind where tm is not null order by tm asc, id desc
select distinct tm from kind order by tm
select id from kind where tm is not null order by tm desc limit 2
select distinct tm from kind
select id, ts from kind order by ts
select id, ts from kind order by ts desc
select ts from kind where ts is not null order by ts asc, id desc
select distinct ts from kind order by ts
select id from kind where ts is not null order by ts desc limit 2
select distinct ts from kind
select id, si from kind order by si
select id, si from kind order by si desc
select si from kind where si is not null order by si asc, id desc
select distinct si from kind order by si
select id from kind where si is not null order by si desc limit 2
select distinct si from kind
select id, b from kind order by b
select id, b from kind order by b desc
select b from kind where b is not null order by b asc, id desc
select distinct b from kind order by b
select id from kind where b is not null order by b desc limit 2
select distinct b from kind
select id, r from kind order by r
select id, r from kind order by r desc
select r from kind where r is not null order by r asc, id desc
select distinct r from kind order by r
select id from kind where r is not null order by r desc limit 2
select distinct r from kind
select id, tz from kind order by tz
select id, tz from kind order by tz desc
select tz from kind where tz is not null order by tz asc, id desc
select distinct tz from kind order by tz
select id from kind where tz is not null order by tz desc limit 2
select distinct tz from kind
select id, w from word order by w
select id, w from word where w is not null order by w limit 5
select id, w from word order by w desc
select id, w from word where w is not null order by w desc limit 5
select id, w from word order by lower(w)
select id, w from word where w is not null order by lower(w) limit 5
select id, w from word order by length(w), w
select id, w from word where w is not null order by length(w), w limit 5
select id, w from word order by w || pattern
select id, w from word where w is not null order by w || pattern limit 5
select id, w from word order by upper(w) desc, id
select id, w from word where w is not null order by upper(w) desc, id limit 5
select id, w from word order by w, pattern
select id, w from word where w is not null order by w, pattern limit 5
select id, w from word order by substr(w, 1, 1), id
select id, w from word where w is not null order by substr(w, 1, 1), id limit 5
select id, w from word order by w = 'anna', id
select id, w from word where w is not null order by w = 'anna', id limit 5
select id, w from word order by w is null, w
select id, w from word where w is not null order by w is null, w limit 5
select id, w from word order by coalesce(w, '')
select id, w from word where w is not null order by coalesce(w, '') limit 5
select id, w from word order by 2
select id, w from word where w is not null order by 2 limit 5
select id, w from word order by 2 desc
select id, w from word where w is not null order by 2 desc limit 5
select id, w from word order by 1
select id, w from word where w is not null order by 1 limit 5
select id, w from word order by - id
select id, w from word where w is not null order by - id limit 5
select id, w from word order by id % 3, id
select id, w from word where w is not null order by id % 3, id limit 5
select id, w from word order by ascii(w)
select id, w from word where w is not null order by ascii(w) limit 5
select id, w from word order by case when w = '' then 0 else 1 end, id
select id, w from word where w is not null order by case when w = '' then 0 else 1 end, id limit 5
select id from word order by id limit 3
select id, w from word where w is not null order by w limit 3
select id from word order by id limit 3 offset 2
select id, w from word where w is not null order by w limit 3 offset 2
select id from word order by id limit 0
select id, w from word where w is not null order by w limit 0
select id from word order by id limit all
select id, w from word where w is not null order by w limit all
select id from word order by id offset 2
select id, w from word where w is not null order by w offset 2
select id from word order by id limit all offset 2
select id, w from word where w is not null order by w limit all offset 2
select id from word order by id limit 100
select id, w from word where w is not null order by w limit 100
select id from word order by id limit 3 offset 100
select id, w from word where w is not null order by w limit 3 offset 100
select id from word order by id limit 1 offset 0
select id, w from word where w is not null order by w limit 1 offset 0
select id from word order by id limit 9223372036854775807 offset 20
select id, w from word where w is not null order by w limit 9223372036854775807 offset 20
select distinct w from word
select distinct lower(w) from word
select distinct status from purchase
select distinct status, customer_id from purchase
select all status from purchase
select distinct on (status) status, id from purchase order by status, id
select distinct on (category) category, name from product order by category, price
select distinct ok is true from kind
select id as nr from word order by nr desc
select n + 1 as m from kind where n is not null and id != 5 order by m
select id, n as d from kind order by d
select lower(w) as w, id from word where id < 4 order by w, id
select customer_id, ordered from purchase order by ordered desc limit 3
select id from kind order by ok desc, id
select id from kind where ok is not null order by ok, id
select * from purchase order by customer_id, id desc limit 4
select status, count(*) from purchase group by status order by count(*) desc, status limit 2
select max(id) from kind order by 1
select name from customer order by credit
select name from customer where credit is not null order by credit desc limit 2 offset 1
select id from word order by w asc, id desc limit 4 offset 3
select id from moment order by ts
select id from moment order by d desc limit 3
select id from moment where d is not null order by extract(month from d), id
select id, label from child order by weight, id
select distinct c from kind order by c desc
select w from word where w is not null order by w
select distinct w from word where w is not null order by w
