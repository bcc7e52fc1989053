-- CASE, COALESCE, NULLIF, GREATEST and LEAST.
select id, case when n > 0 then 'plus' when n < 0 then 'minus' else 'zero' end from kind
select id, case n when 7 then 'seven' when 0 then 'zero' end from kind
select id, case ok when true then 'yes' when false then 'no' else '?' end from kind
select id, case when ok then 1 else 0 end from kind
select id, case when not ok then 1 end from kind
select id, case v when 'abc' then 1 when 'ABC' then 2 end from kind
select id, case c when 'ab' then 1 when 'ab  ' then 2 else 3 end from kind
select id, case when n is null then 0 else n end from kind
select id, case when n > 0 then 1 else 2.5 end from kind
select id, case when n > 0 then 1 else 0.5e0 end from kind
select id, case when n > 0 then day else date '2000-01-01' end from kind
select id, case when ok then null else n end from kind
select id, case n when null then 1 else 2 end from kind
select id, case when v like 'a%' then case when n > 0 then 'a' else 'b' end else 'c' end from kind
select id, case when ok then ok else n > 0 end from kind
select id, case when n / 2 = 3 then 'three' else 'other' end from kind
select id, coalesce(n, 0) from kind
select id, coalesce(n, si, 0) from kind
select id, coalesce(v, 'none') from kind
select id, coalesce(d, 0) from kind
select id, coalesce(ok, false) from kind
select id, coalesce(day, date '2000-01-01') from kind
select id, coalesce(ts, timestamp '2000-01-01 00:00:00') from kind
select id, coalesce(null, n) from kind
select id, coalesce(f, n) from kind
select id, coalesce(c, 'x') from kind
select id, coalesce(n, 1.5) from kind
select id, nullif(n, 0) from kind
select id, nullif(n, 7) from kind
select id, nullif(v, '') from kind
select id, nullif(v, 'abc') from kind
select id, nullif(ok, true) from kind
select id, nullif(d, 1.5) from kind
select id, nullif(c, 'ab') from kind
select id, nullif(day, '2005-01-31') from kind
select id, greatest(n, 0) from kind
select id, least(n, 0) from kind
select id, greatest(v, 'b') from kind
select id, greatest(n, d, f) from kind
select id, least(day, date '2005-01-01') from kind
select id, greatest(ok, false) from kind
select id, coalesce(nullif(v, ''), 'empty') from kind
select id, 1 / coalesce(nullif(n, 0), 1) from kind
select id, coalesce(v, t, c) from kind
select case when 1 = 1 then 'a' end
select case when null then 1 else 2 end
select case 'a' when 'A' then 1 else 2 end
select case 'a' when 'a ' then 1 else 2 end
select case when 1 = 2 then 1 end
select coalesce(null, null, 3)
select nullif(1, 1)
select nullif('a', 'A')
select nullif(1, 2)
select coalesce('a', 'b')
select case 1 when 1.0 then 'x' else 'y' end
select coalesce(1, 2.5)
select case when true then 1 else 2 end
select case when false then 1 end
select greatest('a', 'B')
select least('a', 'B')
select greatest(1, 2.5)
select nullif('', ' ')
