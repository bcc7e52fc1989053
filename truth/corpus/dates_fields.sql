-- Every field of EXTRACT, date_part and date_trunc.
select id, extract(century from d) from moment
select id, extract(century from ts) from moment
select id, extract(century from fine) from moment
select id, extract(century from tz) from moment
select id, date_part('century', ts) from moment
select id, date_part('century', d) from moment
select id, date_part('century', fine) from moment
select extract(century from interval '1 year 2 months 3 days 4 hours')
select extract(century from interval '90 minutes')
select date_part('century', interval '40 days')
select extract(century from timestamp '2005-01-31 10:20:30')
select extract(century from date '2004-12-31')
select extract(century from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('century', ts) from moment
select id, date_trunc('century', d) from moment
select id, date_trunc('century', fine) from moment
select id, date_trunc('century', tz) from moment
select date_trunc('century', timestamp '2005-05-17 10:20:30')
select date_trunc('century', interval '2 days 3 hours 40 minutes')
select id, extract(day from d) from moment
select id, extract(day from ts) from moment
select id, extract(day from fine) from moment
select id, extract(day from tz) from moment
select id, date_part('day', ts) from moment
select id, date_part('day', d) from moment
select id, date_part('day', fine) from moment
select extract(day from interval '1 year 2 months 3 days 4 hours')
select extract(day from interval '90 minutes')
select date_part('day', interval '40 days')
select extract(day from timestamp '2005-01-31 10:20:30')
select extract(day from date '2004-12-31')
select extract(day from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('day', ts) from moment
select id, date_trunc('day', d) from moment
select id, date_trunc('day', fine) from moment
select id, date_trunc('day', tz) from moment
select date_trunc('day', timestamp '2005-05-17 10:20:30')
select date_trunc('day', interval '2 days 3 hours 40 minutes')
select id, extract(decade from d) from moment
select id, extract(decade from ts) from moment
select id, extract(decade from fine) from moment
select id, extract(decade from tz) from moment
select id, date_part('decade', ts) from moment
select id, date_part('decade', d) from moment
select id, date_part('decade', fine) from moment
select extract(decade from interval '1 year 2 months 3 days 4 hours')
select extract(decade from interval '90 minutes')
select date_part('decade', interval '40 days')
select extract(decade from timestamp '2005-01-31 10:20:30')
select extract(decade from date '2004-12-31')
select extract(decade from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('decade', ts) from moment
select id, date_trunc('decade', d) from moment
select id, date_trunc('decade', fine) from moment
select id, date_trunc('decade', tz) from moment
select date_trunc('decade', timestamp '2005-05-17 10:20:30')
select date_trunc('decade', interval '2 days 3 hours 40 minutes')
select id, extract(dow from d) from moment
select id, extract(dow from ts) from moment
select id, extract(dow from fine) from moment
select id, extract(dow from tz) from moment
select id, date_part('dow', ts) from moment
select id, date_part('dow', d) from moment
select id, date_part('dow', fine) from moment
select extract(dow from timestamp '2005-01-31 10:20:30')
select extract(dow from date '2004-12-31')
select id, date_trunc('dow', ts) from moment
select id, date_trunc('dow', d) from moment
select id, date_trunc('dow', fine) from moment
select id, date_trunc('dow', tz) from moment
select date_trunc('dow', timestamp '2005-05-17 10:20:30')
select date_trunc('dow', interval '2 days 3 hours 40 minutes')
select id, extract(doy from d) from moment
select id, extract(doy from ts) from moment
select id, extract(doy from fine) from moment
select id, extract(doy from tz) from moment
select id, date_part('doy', ts) from moment
select id, date_part('doy', d) from moment
select id, date_part('doy', fine) from moment
select extract(doy from timestamp '2005-01-31 10:20:30')
select extract(doy from date '2004-12-31')
select id, date_trunc('doy', ts) from moment
select id, date_trunc('doy', d) from moment
select id, date_trunc('doy', fine) from moment
select id, date_trunc('doy', tz) from moment
select date_trunc('doy', timestamp '2005-05-17 10:20:30')
select date_trunc('doy', interval '2 days 3 hours 40 minutes')
select id, extract(epoch from d) from moment
select id, extract(epoch from ts) from moment
select id, extract(epoch from fine) from moment
select id, extract(epoch from tz) from moment
select id, date_part('epoch', ts) from moment
select id, date_part('epoch', d) from moment
select id, date_part('epoch', fine) from moment
select id, extract(epoch from tm) from kind
select extract(epoch from interval '1 year 2 months 3 days 4 hours')
select extract(epoch from interval '90 minutes')
select date_part('epoch', interval '40 days')
select extract(epoch from timestamp '2005-01-31 10:20:30')
select extract(epoch from date '2004-12-31')
select extract(epoch from time '10:20:30')
select extract(epoch from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('epoch', ts) from moment
select id, date_trunc('epoch', d) from moment
select id, date_trunc('epoch', fine) from moment
select id, date_trunc('epoch', tz) from moment
select date_trunc('epoch', timestamp '2005-05-17 10:20:30')
select date_trunc('epoch', interval '2 days 3 hours 40 minutes')
select id, extract(hour from ts) from moment
select id, extract(hour from fine) from moment
select id, extract(hour from tz) from moment
select id, date_part('hour', ts) from moment
select id, date_part('hour', d) from moment
select id, date_part('hour', fine) from moment
select id, extract(hour from tm) from kind
select extract(hour from interval '1 year 2 months 3 days 4 hours')
select extract(hour from interval '90 minutes')
select date_part('hour', interval '40 days')
select extract(hour from timestamp '2005-01-31 10:20:30')
select extract(hour from time '10:20:30')
select extract(hour from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('hour', ts) from moment
select id, date_trunc('hour', d) from moment
select id, date_trunc('hour', fine) from moment
select id, date_trunc('hour', tz) from moment
select date_trunc('hour', timestamp '2005-05-17 10:20:30')
select date_trunc('hour', interval '2 days 3 hours 40 minutes')
select id, extract(isodow from d) from moment
select id, extract(isodow from ts) from moment
select id, extract(isodow from fine) from moment
select id, extract(isodow from tz) from moment
select id, date_part('isodow', ts) from moment
select id, date_part('isodow', d) from moment
select id, date_part('isodow', fine) from moment
select extract(isodow from timestamp '2005-01-31 10:20:30')
select extract(isodow from date '2004-12-31')
select id, date_trunc('isodow', ts) from moment
select id, date_trunc('isodow', d) from moment
select id, date_trunc('isodow', fine) from moment
select id, date_trunc('isodow', tz) from moment
select date_trunc('isodow', timestamp '2005-05-17 10:20:30')
select date_trunc('isodow', interval '2 days 3 hours 40 minutes')
select id, extract(isoyear from d) from moment
select id, extract(isoyear from ts) from moment
select id, extract(isoyear from fine) from moment
select id, extract(isoyear from tz) from moment
select id, date_part('isoyear', ts) from moment
select id, date_part('isoyear', d) from moment
select id, date_part('isoyear', fine) from moment
select extract(isoyear from timestamp '2005-01-31 10:20:30')
select extract(isoyear from date '2004-12-31')
select id, date_trunc('isoyear', ts) from moment
select id, date_trunc('isoyear', d) from moment
select id, date_trunc('isoyear', fine) from moment
select id, date_trunc('isoyear', tz) from moment
select date_trunc('isoyear', timestamp '2005-05-17 10:20:30')
select date_trunc('isoyear', interval '2 days 3 hours 40 minutes')
select id, extract(microseconds from ts) from moment
select id, extract(microseconds from fine) from moment
select id, extract(microseconds from tz) from moment
select id, date_part('microseconds', ts) from moment
select id, date_part('microseconds', d) from moment
select id, date_part('microseconds', fine) from moment
select id, extract(microseconds from tm) from kind
select extract(microseconds from interval '1 year 2 months 3 days 4 hours')
select extract(microseconds from interval '90 minutes')
select date_part('microseconds', interval '40 days')
select extract(microseconds from timestamp '2005-01-31 10:20:30')
select extract(microseconds from time '10:20:30')
select extract(microseconds from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('microseconds', ts) from moment
select id, date_trunc('microseconds', d) from moment
select id, date_trunc('microseconds', fine) from moment
select id, date_trunc('microseconds', tz) from moment
select date_trunc('microseconds', timestamp '2005-05-17 10:20:30')
select date_trunc('microseconds', interval '2 days 3 hours 40 minutes')
select id, extract(millennium from d) from moment
select id, extract(millennium from ts) from moment
select id, extract(millennium from fine) from moment
select id, extract(millennium from tz) from moment
select id, date_part('millennium', ts) from moment
select id, date_part('millennium', d) from moment
select id, date_part('millennium', fine) from moment
select extract(millennium from interval '1 year 2 months 3 days 4 hours')
select extract(millennium from interval '90 minutes')
select date_part('millennium', interval '40 days')
select extract(millennium from timestamp '2005-01-31 10:20:30')
select extract(millennium from date '2004-12-31')
select extract(millennium from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('millennium', ts) from moment
select id, date_trunc('millennium', d) from moment
select id, date_trunc('millennium', fine) from moment
select id, date_trunc('millennium', tz) from moment
select date_trunc('millennium', timestamp '2005-05-17 10:20:30')
select date_trunc('millennium', interval '2 days 3 hours 40 minutes')
select id, extract(milliseconds from ts) from moment
select id, extract(milliseconds from fine) from moment
select id, extract(milliseconds from tz) from moment
select id, date_part('milliseconds', ts) from moment
select id, date_part('milliseconds', d) from moment
select id, date_part('milliseconds', fine) from moment
select id, extract(milliseconds from tm) from kind
select extract(milliseconds from interval '1 year 2 months 3 days 4 hours')
select extract(milliseconds from interval '90 minutes')
select date_part('milliseconds', interval '40 days')
select extract(milliseconds from timestamp '2005-01-31 10:20:30')
select extract(milliseconds from time '10:20:30')
select extract(milliseconds from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('milliseconds', ts) from moment
select id, date_trunc('milliseconds', d) from moment
select id, date_trunc('milliseconds', fine) from moment
select id, date_trunc('milliseconds', tz) from moment
select date_trunc('milliseconds', timestamp '2005-05-17 10:20:30')
select date_trunc('milliseconds', interval '2 days 3 hours 40 minutes')
select id, extract(minute from ts) from moment
select id, extract(minute from fine) from moment
select id, extract(minute from tz) from moment
select id, date_part('minute', ts) from moment
select id, date_part('minute', d) from moment
select id, date_part('minute', fine) from moment
select id, extract(minute from tm) from kind
select extract(minute from interval '1 year 2 months 3 days 4 hours')
select extract(minute from interval '90 minutes')
select date_part('minute', interval '40 days')
select extract(minute from timestamp '2005-01-31 10:20:30')
select extract(minute from time '10:20:30')
select extract(minute from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('minute', ts) from moment
select id, date_trunc('minute', d) from moment
select id, date_trunc('minute', fine) from moment
select id, date_trunc('minute', tz) from moment
select date_trunc('minute', timestamp '2005-05-17 10:20:30')
select date_trunc('minute', interval '2 days 3 hours 40 minutes')
select id, extract(month from d) from moment
select id, extract(month from ts) from moment
select id, extract(month from fine) from moment
select id, extract(month from tz) from moment
select id, date_part('month', ts) from moment
select id, date_part('month', d) from moment
select id, date_part('month', fine) from moment
select extract(month from interval '1 year 2 months 3 days 4 hours')
select extract(month from interval '90 minutes')
select date_part('month', interval '40 days')
select extract(month from timestamp '2005-01-31 10:20:30')
select extract(month from date '2004-12-31')
select extract(month from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('month', ts) from moment
select id, date_trunc('month', d) from moment
select id, date_trunc('month', fine) from moment
select id, date_trunc('month', tz) from moment
select date_trunc('month', timestamp '2005-05-17 10:20:30')
select date_trunc('month', interval '2 days 3 hours 40 minutes')
select id, extract(quarter from d) from moment
select id, extract(quarter from ts) from moment
select id, extract(quarter from fine) from moment
select id, extract(quarter from tz) from moment
select id, date_part('quarter', ts) from moment
select id, date_part('quarter', d) from moment
select id, date_part('quarter', fine) from moment
select extract(quarter from interval '1 year 2 months 3 days 4 hours')
select extract(quarter from interval '90 minutes')
select date_part('quarter', interval '40 days')
select extract(quarter from timestamp '2005-01-31 10:20:30')
select extract(quarter from date '2004-12-31')
select extract(quarter from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('quarter', ts) from moment
select id, date_trunc('quarter', d) from moment
select id, date_trunc('quarter', fine) from moment
select id, date_trunc('quarter', tz) from moment
select date_trunc('quarter', timestamp '2005-05-17 10:20:30')
select date_trunc('quarter', interval '2 days 3 hours 40 minutes')
select id, extract(second from ts) from moment
select id, extract(second from fine) from moment
select id, extract(second from tz) from moment
select id, date_part('second', ts) from moment
select id, date_part('second', d) from moment
select id, date_part('second', fine) from moment
select id, extract(second from tm) from kind
select extract(second from interval '1 year 2 months 3 days 4 hours')
select extract(second from interval '90 minutes')
select date_part('second', interval '40 days')
select extract(second from timestamp '2005-01-31 10:20:30')
select extract(second from time '10:20:30')
select extract(second from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('second', ts) from moment
select id, date_trunc('second', d) from moment
select id, date_trunc('second', fine) from moment
select id, date_trunc('second', tz) from moment
select date_trunc('second', timestamp '2005-05-17 10:20:30')
select date_trunc('second', interval '2 days 3 hours 40 minutes')
select id, extract(week from d) from moment
select id, extract(week from ts) from moment
select id, extract(week from fine) from moment
select id, extract(week from tz) from moment
select id, date_part('week', ts) from moment
select id, date_part('week', d) from moment
select id, date_part('week', fine) from moment
select extract(week from timestamp '2005-01-31 10:20:30')
select extract(week from date '2004-12-31')
select id, date_trunc('week', ts) from moment
select id, date_trunc('week', d) from moment
select id, date_trunc('week', fine) from moment
select id, date_trunc('week', tz) from moment
select date_trunc('week', timestamp '2005-05-17 10:20:30')
select id, extract(year from d) from moment
select id, extract(year from ts) from moment
select id, extract(year from fine) from moment
select id, extract(year from tz) from moment
select id, date_part('year', ts) from moment
select id, date_part('year', d) from moment
select id, date_part('year', fine) from moment
select extract(year from interval '1 year 2 months 3 days 4 hours')
select extract(year from interval '90 minutes')
select date_part('year', interval '40 days')
select extract(year from timestamp '2005-01-31 10:20:30')
select extract(year from date '2004-12-31')
select extract(year from ts - timestamp '2000-01-01 00:00:00') from moment
select id, date_trunc('year', ts) from moment
select id, date_trunc('year', d) from moment
select id, date_trunc('year', fine) from moment
select id, date_trunc('year', tz) from moment
select date_trunc('year', timestamp '2005-05-17 10:20:30')
select date_trunc('year', interval '2 days 3 hours 40 minutes')
select id, extract(julian from d) from moment
select id, extract(julian from ts) from moment
select id, extract(julian from fine) from moment
select id, extract(julian from tz) from moment
select id, date_part('julian', ts) from moment
select id, date_part('julian', d) from moment
select id, date_part('julian', fine) from moment
select extract(julian from timestamp '2005-01-31 10:20:30')
select extract(julian from date '2004-12-31')
select id, date_trunc('julian', ts) from moment
select id, date_trunc('julian', d) from moment
select id, date_trunc('julian', fine) from moment
select id, date_trunc('julian', tz) from moment
select date_trunc('julian', timestamp '2005-05-17 10:20:30')
select date_trunc('julian', interval '2 days 3 hours 40 minutes')
select id, extract(timezone from tz) from moment
select id, extract(timezone_hour from tz) from moment
select id, extract(timezone_minute from tz) from moment
select id, extract(YEAR from ts) from moment
select id, EXTRACT(Month FROM ts) from moment
select id, date_part('YEAR', ts) from moment
select id, date_trunc('Month', ts) from moment
select id, extract(year from ts) + 1 from moment
select id, extract(month from ts) * 100 + extract(day from ts) from moment
select id, extract(year from d) = 2005 from moment
select id, extract(dow from ts) = 0 or extract(dow from ts) = 6 from moment
select id, date_trunc('month', ts) = timestamp '2005-01-01 00:00:00' from moment
select id, date_trunc('day', ts) = d from moment
select id, extract(year from d + 1) from moment
select id, extract(epoch from ts) / 60 from moment
select id, extract(hour from ts) || ':' || extract(minute from ts) from moment
select id, cast(extract(year from ts) as integer) / 10 from moment
select id, date_part('year', ts) / 10 from moment
select id, extract(second from fine) * 1000 from moment
select id, date_part('dow', d) + 1 from moment
select id, to_char(date_trunc('month', ts), 'YYYY-MM-DD') from moment
select id, date_trunc('hour', ts) + interval '30 minutes' from moment
select id, isfinite(d) from moment
select id, isfinite(ts) from moment
select id, age(ts, timestamp '2000-01-01 00:00:00') from moment
select id, age(d, date '2000-01-01') from moment
select id, timezone('UTC', ts) from moment
select id, timezone('UTC', tz) from moment
select id, to_date('2005-01-31', 'YYYY-MM-DD') from moment
select id, to_timestamp('2005-01-31 10:20:30', 'YYYY-MM-DD HH24:MI:SS') from moment
select id, to_number('12.5', '99.9') from moment
select id, to_timestamp(0) from moment
select id, make_date(2005, 1, id) from moment
