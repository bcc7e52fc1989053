-- Operators that compare, with each kind of value.
select id, n = 7 from kind where id < 3 or id > 4
select id, d = n from kind where id < 3 or id > 4
select id, f = d from kind where id < 3 or id > 4
select id, v = 'abc' from kind where id < 3 or id > 4
select id, c = 'ab' from kind where id < 3 or id > 4
select id, c = 'ab   ' from kind where id < 3 or id > 4
select id, t = v from kind where id < 3 or id > 4
select id, c = v from kind where id < 3 or id > 4
select id, ok = true from kind where id < 3 or id > 4
select id, day = date '2005-01-31' from kind where id < 3 or id > 4
select id, day = '2005-01-31' from kind where id < 3 or id > 4
select id, ts = day from kind where id < 3 or id > 4
select id, ts = timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id, tm = time '12:00:00' from kind where id < 3 or id > 4
select id, tz = '2005-01-01 00:00:00' from kind where id < 3 or id > 4
select id, n = null from kind where id < 3 or id > 4
select id, v = null from kind where id < 3 or id > 4
select id, n = '7' from kind where id < 3 or id > 4
select id, r = 1.5 from kind where id < 3 or id > 4
select id, b = n from kind where id < 3 or id > 4
select id, n = 7 from kind
select id, v = 'abc' from kind where id = 4
select id, n != 7 from kind where id < 3 or id > 4
select id, d != n from kind where id < 3 or id > 4
select id, f != d from kind where id < 3 or id > 4
select id, v != 'abc' from kind where id < 3 or id > 4
select id, c != 'ab' from kind where id < 3 or id > 4
select id, c != 'ab   ' from kind where id < 3 or id > 4
select id, t != v from kind where id < 3 or id > 4
select id, c != v from kind where id < 3 or id > 4
select id, ok != true from kind where id < 3 or id > 4
select id, day != date '2005-01-31' from kind where id < 3 or id > 4
select id, day != '2005-01-31' from kind where id < 3 or id > 4
select id, ts != day from kind where id < 3 or id > 4
select id, ts != timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id, tm != time '12:00:00' from kind where id < 3 or id > 4
select id, tz != '2005-01-01 00:00:00' from kind where id < 3 or id > 4
select id, n != null from kind where id < 3 or id > 4
select id, v != null from kind where id < 3 or id > 4
select id, n != '7' from kind where id < 3 or id > 4
select id, r != 1.5 from kind where id < 3 or id > 4
select id, b != n from kind where id < 3 or id > 4
select id, n != 7 from kind
select id, v != 'abc' from kind where id = 4
select id, n < 7 from kind where id < 3 or id > 4
select id, d < n from kind where id < 3 or id > 4
select id, f < d from kind where id < 3 or id > 4
select id, v < 'abc' from kind where id < 3 or id > 4
select id, c < 'ab' from kind where id < 3 or id > 4
select id, c < 'ab   ' from kind where id < 3 or id > 4
select id, t < v from kind where id < 3 or id > 4
select id, c < v from kind where id < 3 or id > 4
select id, ok < true from kind where id < 3 or id > 4
select id, day < date '2005-01-31' from kind where id < 3 or id > 4
select id, day < '2005-01-31' from kind where id < 3 or id > 4
select id, ts < day from kind where id < 3 or id > 4
select id, ts < timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id, tm < time '12:00:00' from kind where id < 3 or id > 4
select id, tz < '2005-01-01 00:00:00' from kind where id < 3 or id > 4
select id, n < null from kind where id < 3 or id > 4
select id, v < null from kind where id < 3 or id > 4
select id, n < '7' from kind where id < 3 or id > 4
select id, r < 1.5 from kind where id < 3 or id > 4
select id, b < n from kind where id < 3 or id > 4
select id, n < 7 from kind
select id, v < 'abc' from kind where id = 4
select id, n > 7 from kind where id < 3 or id > 4
select id, d > n from kind where id < 3 or id > 4
select id, f > d from kind where id < 3 or id > 4
select id, v > 'abc' from kind where id < 3 or id > 4
select id, c > 'ab' from kind where id < 3 or id > 4
select id, c > 'ab   ' from kind where id < 3 or id > 4
select id, t > v from kind where id < 3 or id > 4
select id, c > v from kind where id < 3 or id > 4
select id, ok > true from kind where id < 3 or id > 4
select id, day > date '2005-01-31' from kind where id < 3 or id > 4
select id, day > '2005-01-31' from kind where id < 3 or id > 4
select id, ts > day from kind where id < 3 or id > 4
select id, ts > timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id, tm > time '12:00:00' from kind where id < 3 or id > 4
select id, tz > '2005-01-01 00:00:00' from kind where id < 3 or id > 4
select id, n > null from kind where id < 3 or id > 4
select id, v > null from kind where id < 3 or id > 4
select id, n > '7' from kind where id < 3 or id > 4
select id, r > 1.5 from kind where id < 3 or id > 4
select id, b > n from kind where id < 3 or id > 4
select id, n > 7 from kind
select id, v > 'abc' from kind where id = 4
select id, n <= 7 from kind where id < 3 or id > 4
select id, d <= n from kind where id < 3 or id > 4
select id, f <= d from kind where id < 3 or id > 4
select id, v <= 'abc' from kind where id < 3 or id > 4
select id, c <= 'ab' from kind where id < 3 or id > 4
select id, c <= 'ab   ' from kind where id < 3 or id > 4
select id, t <= v from kind where id < 3 or id > 4
select id, c <= v from kind where id < 3 or id > 4
select id, ok <= true from kind where id < 3 or id > 4
select id, day <= date '2005-01-31' from kind where id < 3 or id > 4
select id, day <= '2005-01-31' from kind where id < 3 or id > 4
select id, ts <= day from kind where id < 3 or id > 4
select id, ts <= timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id, tm <= time '12:00:00' from kind where id < 3 or id > 4
select id, tz <= '2005-01-01 00:00:00' from kind where id < 3 or id > 4
select id, n <= null from kind where id < 3 or id > 4
select id, v <= null from kind where id < 3 or id > 4
select id, n <= '7' from kind where id < 3 or id > 4
select id, r <= 1.5 from kind where id < 3 or id > 4
select id, b <= n from kind where id < 3 or id > 4
select id, n <= 7 from kind
select id, v <= 'abc' from kind where id = 4
select id, n >= 7 from kind where id < 3 or id > 4
select id, d >= n from kind where id < 3 or id > 4
select id, f >= d from kind where id < 3 or id > 4
select id, v >= 'abc' from kind where id < 3 or id > 4
select id, c >= 'ab' from kind where id < 3 or id > 4
select id, c >= 'ab   ' from kind where id < 3 or id > 4
select id, t >= v from kind where id < 3 or id > 4
select id, c >= v from kind where id < 3 or id > 4
select id, ok >= true from kind where id < 3 or id > 4
select id, day >= date '2005-01-31' from kind where id < 3 or id > 4
select id, day >= '2005-01-31' from kind where id < 3 or id > 4
select id, ts >= day from kind where id < 3 or id > 4
select id, ts >= timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id, tm >= time '12:00:00' from kind where id < 3 or id > 4
select id, tz >= '2005-01-01 00:00:00' from kind where id < 3 or id > 4
select id, n >= null from kind where id < 3 or id > 4
select id, v >= null from kind where id < 3 or id > 4
select id, n >= '7' from kind where id < 3 or id > 4
select id, r >= 1.5 from kind where id < 3 or id > 4
select id, b >= n from kind where id < 3 or id > 4
select id, n >= 7 from kind
select id, v >= 'abc' from kind where id = 4
select id, n is distinct from 7 from kind
select id from kind where n = 7
select id, d is distinct from n from kind
select id from kind where d = n
select id, f is distinct from d from kind
select id from kind where f = d
select id, v is distinct from 'abc' from kind
select id from kind where v = 'abc'
select id, c is distinct from 'ab' from kind
select id from kind where c = 'ab'
select id, c is distinct from 'ab   ' from kind
select id from kind where c = 'ab   '
select id, t is distinct from v from kind
select id from kind where t = v
select id, c is distinct from v from kind
select id from kind where c = v
select id, ok is distinct from true from kind
select id from kind where ok = true
select id, day is distinct from date '2005-01-31' from kind
select id from kind where day = date '2005-01-31'
select id, day is distinct from '2005-01-31' from kind
select id from kind where day = '2005-01-31'
select id, ts is distinct from day from kind
select id from kind where ts = day
select id, ts is distinct from timestamp '2005-01-31 10:20:30' from kind
select id from kind where ts = timestamp '2005-01-31 10:20:30'
select id, tm is distinct from time '12:00:00' from kind
select id from kind where tm = time '12:00:00'
select id, tz is distinct from '2005-01-01 00:00:00' from kind
select id from kind where tz = '2005-01-01 00:00:00'
select id, n is distinct from null from kind
select id from kind where n = null
select id, v is distinct from null from kind
select id from kind where v = null
select id, n is distinct from '7' from kind
select id from kind where n = '7'
select id, r is distinct from 1.5 from kind
select id from kind where r = 1.5
select id, b is distinct from n from kind
select id from kind where b = n
select id from word where w = 'anna'
select id from word where w = ''
select id from word where w = 'a '
select a.id, b.id from word a, word b where a.w = b.w
select id from word where w = 'zoe'
select id from word where w = 'b'
select id from word where w != 'anna'
select id from word where w != ''
select id from word where w != 'a '
select a.id, b.id from word a, word b where a.w != b.w
select id from word where w != 'zoe'
select id from word where w != 'b'
select id from word where w < 'anna'
select id from word where w < ''
select id from word where w < 'a '
select a.id, b.id from word a, word b where a.w < b.w
select id from word where w < 'zoe'
select id from word where w < 'b'
select id from word where w > 'anna'
select id from word where w > ''
select id from word where w > 'a '
select a.id, b.id from word a, word b where a.w > b.w
select id from word where w > 'zoe'
select id from word where w > 'b'
select id from word where w <= 'anna'
select id from word where w <= ''
select id from word where w <= 'a '
select a.id, b.id from word a, word b where a.w <= b.w
select id from word where w <= 'zoe'
select id from word where w <= 'b'
select id from word where w >= 'anna'
select id from word where w >= ''
select id from word where w >= 'a '
select a.id, b.id from word a, word b where a.w >= b.w
select id from word where w >= 'zoe'
select id from word where w >= 'b'
select id from word where w <> 'anna'
select id from word where w <> ''
select id from word where w <> 'a '
select a.id, b.id from word a, word b where a.w <> b.w
select id from word where w <> 'zoe'
select id from word where w <> 'b'
select id, n between 0 and 10 from kind where id < 3 or id > 4
select id from kind where n between 0 and 10
select id, n not between 0 and 10 from kind where id < 3 or id > 4
select id from kind where n not between 0 and 10
select id, n between 10 and 0 from kind where id < 3 or id > 4
select id from kind where n between 10 and 0
select id, d between -1.5 and 1.5 from kind where id < 3 or id > 4
select id from kind where d between -1.5 and 1.5
select id, v between 'a' and 'b' from kind where id < 3 or id > 4
select id from kind where v between 'a' and 'b'
select id, day between '2000-01-01' and '2004-12-31' from kind where id < 3 or id > 4
select id from kind where day between '2000-01-01' and '2004-12-31'
select id, ts between timestamp '2000-01-01 00:00:00' and timestamp '2005-01-31 10:20:30' from kind where id < 3 or id > 4
select id from kind where ts between timestamp '2000-01-01 00:00:00' and timestamp '2005-01-31 10:20:30'
select id, tm between time '00:00:00' and time '12:00:00' from kind where id < 3 or id > 4
select id from kind where tm between time '00:00:00' and time '12:00:00'
select id, n between null and 10 from kind where id < 3 or id > 4
select id from kind where n between null and 10
select id, null between 1 and 2 from kind where id < 3 or id > 4
select id from kind where null between 1 and 2
select id, n between si and b from kind where id < 3 or id > 4
select id from kind where n between si and b
select id, f not between 0 and 1 from kind where id < 3 or id > 4
select id from kind where f not between 0 and 1
select id, day not between date '2000-01-01' and date '2004-12-31' from kind where id < 3 or id > 4
select id from kind where day not between date '2000-01-01' and date '2004-12-31'
select id, c between 'a' and 'b' from kind where id < 3 or id > 4
select id from kind where c between 'a' and 'b'
select id from word where w between 'a' and 'b'
select id from word where w not between 'A' and 'Z'
select id from word where w between 'anna' and 'zoe'
select id, n is null from kind
select id, n is not null from kind
select id, n isnull from kind
select id, n notnull from kind
select id, v is null from kind
select id, v is not null from kind
select id, v isnull from kind
select id, v notnull from kind
select id, t is null from kind
select id, t is not null from kind
select id, t isnull from kind
select id, t notnull from kind
select id, ok is null from kind
select id, ok is not null from kind
select id, ok isnull from kind
select id, ok notnull from kind
select id, day is null from kind
select id, day is not null from kind
select id, day isnull from kind
select id, day notnull from kind
select id, c is null from kind
select id, c is not null from kind
select id, c isnull from kind
select id, c notnull from kind
select id, f is null from kind
select id, f is not null from kind
select id, f isnull from kind
select id, f notnull from kind
select id, ok is true from kind
select id from kind where ok is true
select id, ok is false from kind
select id from kind where ok is false
select id, ok is not true from kind
select id from kind where ok is not true
select id, ok is not false from kind
select id from kind where ok is not false
select id, n > 0 is true from kind
select id from kind where n > 0 is true
select id, n > 0 is not false from kind
select id from kind where n > 0 is not false
select id, n = 7 is false from kind
select id from kind where n = 7 is false
select id, null is true from kind
select id from kind where null is true
select id, null is not true from kind
select id from kind where null is not true
select id, (v = 'abc') is true from kind
select id from kind where (v = 'abc') is true
select id, (ok and n > 0) is not true from kind
select id from kind where (ok and n > 0) is not true
select id, ok is null is false from kind
select id from kind where ok is null is false
select id, ok from kind
select id, ok from kind where id < 3 or id > 4
select id from kind where ok
select id, not ok from kind
select id, not ok from kind where id < 3 or id > 4
select id from kind where not ok
select id, ok and n > 0 from kind
select id, ok and n > 0 from kind where id < 3 or id > 4
select id from kind where ok and n > 0
select id, ok or n > 0 from kind
select id, ok or n > 0 from kind where id < 3 or id > 4
select id from kind where ok or n > 0
select id, ok and null from kind
select id, ok and null from kind where id < 3 or id > 4
select id from kind where ok and null
select id, ok or null from kind
select id, ok or null from kind where id < 3 or id > 4
select id from kind where ok or null
select id, not ok or ok from kind
select id, not ok or ok from kind where id < 3 or id > 4
select id from kind where not ok or ok
select id, not (ok and n > 0) from kind
select id, not (ok and n > 0) from kind where id < 3 or id > 4
select id from kind where not (ok and n > 0)
select id, not n > 0 from kind
select id, not n > 0 from kind where id < 3 or id > 4
select id from kind where not n > 0
select id, ok = (n > 0) from kind
select id, ok = (n > 0) from kind where id < 3 or id > 4
select id from kind where ok = (n > 0)
select id, ok != true from kind
select id from kind where ok != true
select id, ok = false from kind
select id, ok = false from kind where id < 3 or id > 4
select id from kind where ok = false
select id, true from kind
select id, true from kind where id < 3 or id > 4
select id from kind where true
select id, false from kind
select id, false from kind where id < 3 or id > 4
select id from kind where false
select id, not null from kind
select id, not null from kind where id < 3 or id > 4
select id from kind where not null
select id, null and true from kind
select id, null and true from kind where id < 3 or id > 4
select id from kind where null and true
select id, null or true from kind
select id, null or true from kind where id < 3 or id > 4
select id from kind where null or true
select id, true and false from kind
select id, true and false from kind where id < 3 or id > 4
select id from kind where true and false
select id, n > 0 and d > 0 or ok from kind
select id, n > 0 and d > 0 or ok from kind where id < 3 or id > 4
select id from kind where n > 0 and d > 0 or ok
select id, n > 0 or d > 0 and ok from kind
select id, n > 0 or d > 0 and ok from kind where id < 3 or id > 4
select id from kind where n > 0 or d > 0 and ok
select id, not ok and not ok from kind
select id, not ok and not ok from kind where id < 3 or id > 4
select id from kind where not ok and not ok
select id, 1 = 1 from kind
select id, 1 = 1 from kind where id < 3 or id > 4
select id from kind where 1 = 1
select id, 1 = 2 from kind
select id, 1 = 2 from kind where id < 3 or id > 4
select id from kind where 1 = 2
select id, n = n from kind
select id, n = n from kind where id < 3 or id > 4
select id from kind where n = n
select id, ok is distinct from null from kind
select id, ok is distinct from null from kind where id < 3 or id > 4
select id from kind where ok is distinct from null
select id, ok > false from kind
select id, ok > false from kind where id < 3 or id > 4
select id from kind where ok > false
select id, true = ok from kind
select id, true = ok from kind where id < 3 or id > 4
select id from kind where true = ok
select id, ok = 't' from kind
select id, ok = 't' from kind where id < 3 or id > 4
select id from kind where ok = 't'
select id, ok = 'yes' from kind
select id, ok = 'yes' from kind where id < 3 or id > 4
select id from kind where ok = 'yes'
select 'a' = 'A'
select 'a' = 'a '
select 'a' < 'B'
select 'é' = 'e'
select 'ß' = 'ss'
select '' = ' '
select 'a' > null
select '10' < '9'
select 10 < 9
select 'abc' < 'abd'
select 'Z' < 'a'
select '_' < 'a'
select '-' < 'A'
select 1 = 1.0
select 1 = 1e0
select 0.1 = 0.1e0
select 0.1 + 0.2 = 0.3
select 0.1e0 + 0.2e0 = 0.3e0
select true = false
select true > false
select date '2005-01-31' < date '2005-02-01'
select '2005-1-31' = '2005-01-31'
select date '2005-1-31' = date '2005-01-31'
select 1 is distinct from null
select null is distinct from null
select 'a' is distinct from 'A'
select null = null
select null != null
select 1 <> 2
select '1' = 1
select 1 between 1 and 2
select 'b' between 'A' and 'C'
select 3 not between 1 and 2
select time '24:00:00' > time '23:59:59'
select date '0001-01-01' < date '9999-12-31'
select 2 > 1 is true
select 'a' || 'b' = 'ab'
select 1 + 1 = 2 and 2 + 2 = 4
select not 1 = 2
select not true
select not not true
select - 1 = -1
