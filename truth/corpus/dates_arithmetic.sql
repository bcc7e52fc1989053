-- Sums, differences, products and quotients of dates, times and intervals.
select id, d + interval '1 day' from moment
select id, d - interval '1 day' from moment
select id, ts + interval '1 day' from moment
select id, ts - interval '1 day' from moment
select id, fine + interval '1 day' from moment
select id, fine - interval '1 day' from moment
select id, tz + interval '1 day' from moment
select id, tz - interval '1 day' from moment
select id, interval '1 day' + ts from moment
select id, tm + interval '1 day' from kind
select id, tm - interval '1 day' from kind
select date '2005-01-31' + interval '1 day'
select timestamp '2004-02-29 12:00:00' + interval '1 day'
select timestamp '2004-02-29 12:00:00' - interval '1 day'
select time '10:20:30' + interval '1 day'
select - interval '1 day'
select interval '1 day' * 2
select 2 * interval '1 day'
select interval '1 day' / 2
select interval '1 day' + interval '1 hour'
select interval '1 day' - interval '1 hour'
select id, d + interval '1 month' from moment
select id, d - interval '1 month' from moment
select id, ts + interval '1 month' from moment
select id, ts - interval '1 month' from moment
select id, fine + interval '1 month' from moment
select id, fine - interval '1 month' from moment
select id, tz + interval '1 month' from moment
select id, tz - interval '1 month' from moment
select id, interval '1 month' + ts from moment
select id, tm + interval '1 month' from kind
select id, tm - interval '1 month' from kind
select date '2005-01-31' + interval '1 month'
select timestamp '2004-02-29 12:00:00' + interval '1 month'
select timestamp '2004-02-29 12:00:00' - interval '1 month'
select time '10:20:30' + interval '1 month'
select - interval '1 month'
select interval '1 month' * 2
select 2 * interval '1 month'
select interval '1 month' / 2
select interval '1 month' + interval '1 hour'
select interval '1 month' - interval '1 hour'
select id, d + interval '1 year' from moment
select id, d - interval '1 year' from moment
select id, ts + interval '1 year' from moment
select id, ts - interval '1 year' from moment
select id, fine + interval '1 year' from moment
select id, fine - interval '1 year' from moment
select id, tz + interval '1 year' from moment
select id, tz - interval '1 year' from moment
select id, interval '1 year' + ts from moment
select id, tm + interval '1 year' from kind
select id, tm - interval '1 year' from kind
select date '2005-01-31' + interval '1 year'
select timestamp '2004-02-29 12:00:00' + interval '1 year'
select timestamp '2004-02-29 12:00:00' - interval '1 year'
select time '10:20:30' + interval '1 year'
select interval '1 year'
select - interval '1 year'
select interval '1 year' * 2
select 2 * interval '1 year'
select interval '1 year' / 2
select interval '1 year' + interval '1 hour'
select interval '1 year' - interval '1 hour'
select id, d + interval '2 hours' from moment
select id, d - interval '2 hours' from moment
select id, ts + interval '2 hours' from moment
select id, ts - interval '2 hours' from moment
select id, fine + interval '2 hours' from moment
select id, fine - interval '2 hours' from moment
select id, tz + interval '2 hours' from moment
select id, tz - interval '2 hours' from moment
select id, interval '2 hours' + ts from moment
select id, tm + interval '2 hours' from kind
select id, tm - interval '2 hours' from kind
select date '2005-01-31' + interval '2 hours'
select timestamp '2004-02-29 12:00:00' + interval '2 hours'
select timestamp '2004-02-29 12:00:00' - interval '2 hours'
select time '10:20:30' + interval '2 hours'
select - interval '2 hours'
select interval '2 hours' * 2
select 2 * interval '2 hours'
select interval '2 hours' / 2
select interval '2 hours' + interval '1 hour'
select interval '2 hours' - interval '1 hour'
select id, d + interval '30 minutes' from moment
select id, d - interval '30 minutes' from moment
select id, ts + interval '30 minutes' from moment
select id, ts - interval '30 minutes' from moment
select id, fine + interval '30 minutes' from moment
select id, fine - interval '30 minutes' from moment
select id, tz + interval '30 minutes' from moment
select id, tz - interval '30 minutes' from moment
select id, interval '30 minutes' + ts from moment
select id, tm + interval '30 minutes' from kind
select id, tm - interval '30 minutes' from kind
select date '2005-01-31' + interval '30 minutes'
select timestamp '2004-02-29 12:00:00' + interval '30 minutes'
select timestamp '2004-02-29 12:00:00' - interval '30 minutes'
select time '10:20:30' + interval '30 minutes'
select - interval '30 minutes'
select interval '30 minutes' * 2
select 2 * interval '30 minutes'
select interval '30 minutes' / 2
select interval '30 minutes' + interval '1 hour'
select interval '30 minutes' - interval '1 hour'
select id, d + interval '90 seconds' from moment
select id, d - interval '90 seconds' from moment
select id, ts + interval '90 seconds' from moment
select id, ts - interval '90 seconds' from moment
select id, fine + interval '90 seconds' from moment
select id, fine - interval '90 seconds' from moment
select id, tz + interval '90 seconds' from moment
select id, tz - interval '90 seconds' from moment
select id, interval '90 seconds' + ts from moment
select id, tm + interval '90 seconds' from kind
select id, tm - interval '90 seconds' from kind
select date '2005-01-31' + interval '90 seconds'
select timestamp '2004-02-29 12:00:00' + interval '90 seconds'
select timestamp '2004-02-29 12:00:00' - interval '90 seconds'
select time '10:20:30' + interval '90 seconds'
select - interval '90 seconds'
select interval '90 seconds' * 2
select 2 * interval '90 seconds'
select interval '90 seconds' / 2
select interval '90 seconds' + interval '1 hour'
select interval '90 seconds' - interval '1 hour'
select id, d + interval '1 week' from moment
select id, d - interval '1 week' from moment
select id, ts + interval '1 week' from moment
select id, ts - interval '1 week' from moment
select id, fine + interval '1 week' from moment
select id, fine - interval '1 week' from moment
select id, tz + interval '1 week' from moment
select id, tz - interval '1 week' from moment
select id, interval '1 week' + ts from moment
select id, tm + interval '1 week' from kind
select id, tm - interval '1 week' from kind
select date '2005-01-31' + interval '1 week'
select timestamp '2004-02-29 12:00:00' + interval '1 week'
select timestamp '2004-02-29 12:00:00' - interval '1 week'
select time '10:20:30' + interval '1 week'
select - interval '1 week'
select interval '1 week' * 2
select 2 * interval '1 week'
select interval '1 week' / 2
select interval '1 week' + interval '1 hour'
select interval '1 week' - interval '1 hour'
select id, d + interval '-1 day' from moment
select id, d - interval '-1 day' from moment
select id, ts + interval '-1 day' from moment
select id, ts - interval '-1 day' from moment
select id, fine + interval '-1 day' from moment
select id, fine - interval '-1 day' from moment
select id, tz + interval '-1 day' from moment
select id, tz - interval '-1 day' from moment
select id, interval '-1 day' + ts from moment
select id, tm + interval '-1 day' from kind
select id, tm - interval '-1 day' from kind
select date '2005-01-31' + interval '-1 day'
select timestamp '2004-02-29 12:00:00' + interval '-1 day'
select timestamp '2004-02-29 12:00:00' - interval '-1 day'
select time '10:20:30' + interval '-1 day'
select - interval '-1 day'
select interval '-1 day' * 2
select 2 * interval '-1 day'
select interval '-1 day' / 2
select interval '-1 day' + interval '1 hour'
select interval '-1 day' - interval '1 hour'
select id, d + interval '13 months' from moment
select id, d - interval '13 months' from moment
select id, ts + interval '13 months' from moment
select id, ts - interval '13 months' from moment
select id, fine + interval '13 months' from moment
select id, fine - interval '13 months' from moment
select id, tz + interval '13 months' from moment
select id, tz - interval '13 months' from moment
select id, interval '13 months' + ts from moment
select id, tm + interval '13 months' from kind
select id, tm - interval '13 months' from kind
select date '2005-01-31' + interval '13 months'
select timestamp '2004-02-29 12:00:00' + interval '13 months'
select timestamp '2004-02-29 12:00:00' - interval '13 months'
select time '10:20:30' + interval '13 months'
select interval '13 months'
select - interval '13 months'
select interval '13 months' * 2
select 2 * interval '13 months'
select interval '13 months' / 2
select interval '13 months' + interval '1 hour'
select interval '13 months' - interval '1 hour'
select id, d + interval '1 day 2 hours' from moment
select id, d - interval '1 day 2 hours' from moment
select id, ts + interval '1 day 2 hours' from moment
select id, ts - interval '1 day 2 hours' from moment
select id, fine + interval '1 day 2 hours' from moment
select id, fine - interval '1 day 2 hours' from moment
select id, tz + interval '1 day 2 hours' from moment
select id, tz - interval '1 day 2 hours' from moment
select id, interval '1 day 2 hours' + ts from moment
select id, tm + interval '1 day 2 hours' from kind
select id, tm - interval '1 day 2 hours' from kind
select date '2005-01-31' + interval '1 day 2 hours'
select timestamp '2004-02-29 12:00:00' + interval '1 day 2 hours'
select timestamp '2004-02-29 12:00:00' - interval '1 day 2 hours'
select time '10:20:30' + interval '1 day 2 hours'
select - interval '1 day 2 hours'
select interval '1 day 2 hours' * 2
select 2 * interval '1 day 2 hours'
select interval '1 day 2 hours' / 2
select interval '1 day 2 hours' + interval '1 hour'
select interval '1 day 2 hours' - interval '1 hour'
select id, d + interval '1 year 2 months 3 days' from moment
select id, d - interval '1 year 2 months 3 days' from moment
select id, ts + interval '1 year 2 months 3 days' from moment
select id, ts - interval '1 year 2 months 3 days' from moment
select id, fine + interval '1 year 2 months 3 days' from moment
select id, fine - interval '1 year 2 months 3 days' from moment
select id, tz + interval '1 year 2 months 3 days' from moment
select id, tz - interval '1 year 2 months 3 days' from moment
select id, interval '1 year 2 months 3 days' + ts from moment
select id, tm + interval '1 year 2 months 3 days' from kind
select id, tm - interval '1 year 2 months 3 days' from kind
select date '2005-01-31' + interval '1 year 2 months 3 days'
select timestamp '2004-02-29 12:00:00' + interval '1 year 2 months 3 days'
select timestamp '2004-02-29 12:00:00' - interval '1 year 2 months 3 days'
select time '10:20:30' + interval '1 year 2 months 3 days'
select interval '1 year 2 months 3 days'
select - interval '1 year 2 months 3 days'
select interval '1 year 2 months 3 days' * 2
select 2 * interval '1 year 2 months 3 days'
select interval '1 year 2 months 3 days' / 2
select interval '1 year 2 months 3 days' + interval '1 hour'
select interval '1 year 2 months 3 days' - interval '1 hour'
select id, d + interval '01:30:00' from moment
select id, d - interval '01:30:00' from moment
select id, ts + interval '01:30:00' from moment
select id, ts - interval '01:30:00' from moment
select id, fine + interval '01:30:00' from moment
select id, fine - interval '01:30:00' from moment
select id, tz + interval '01:30:00' from moment
select id, tz - interval '01:30:00' from moment
select id, interval '01:30:00' + ts from moment
select id, tm + interval '01:30:00' from kind
select id, tm - interval '01:30:00' from kind
select date '2005-01-31' + interval '01:30:00'
select timestamp '2004-02-29 12:00:00' + interval '01:30:00'
select timestamp '2004-02-29 12:00:00' - interval '01:30:00'
select time '10:20:30' + interval '01:30:00'
select - interval '01:30:00'
select interval '01:30:00' * 2
select 2 * interval '01:30:00'
select interval '01:30:00' / 2
select interval '01:30:00' + interval '1 hour'
select interval '01:30:00' - interval '1 hour'
select id, d + 1 from moment
select id, d - 1 from moment
select id, 1 + d from moment
select id, d + 30 from moment
select id, d - 365 from moment
select id, d + id from moment
select id, d - id from moment
select id, d - date '2005-01-01' from moment
select id, ts - ts from moment
select id, ts - timestamp '2005-01-01 00:00:00' from moment
select id, d - d from moment
select id, ts - d from moment
select id, d - ts from moment
select id, d + time '10:00:00' from moment
select id, d + time '24:00:00' from moment
select id, fine - ts from moment
select id, tz - ts from moment
select id, tz - tz from moment
select id, ts - interval '1 month' - interval '1 day' from moment
select id, d + interval '1 month' + interval '1 day' from moment
select id, d + interval '1 day' * 2 from moment
select id, ts + interval '1 hour' * id from moment
select id, d + 1 > d from moment
select id, d + interval '1 day' > ts from moment
select id, d + 1 = ts from moment
select id, ts - time '01:00:00' from moment
select id, (d + 1) - d from moment
select id, d + (2 + 1) from moment
select id, d + 2 + 1 from moment
select id, d - 1 - 1 from moment
select id, cast(ts as date) - d from moment
select id, ts + (ts - d) from moment
select id, - (ts - d) from moment
select id, d::timestamp - ts from moment
select id, ts + null from moment
select id, date_trunc('month', ts) + interval '1 month' - interval '1 day' from moment
select id, date_trunc('month', ts) + interval '1 month' from moment
select id, extract(day from date_trunc('month', ts) + interval '1 month' - interval '1 day') from moment
select id, d < date '2005-01-31' from moment
select id, d + 7 > date '2005-01-31' from moment
select id, ts > timestamp '2005-01-01 00:00:00' - interval '1 year' from moment
select id, d = '2005-01-31' from moment
select id, ts = d from moment
select id, ts between d and d + 1 from moment
select date '2005-01-31' - date '2004-12-31'
select date '2005-01-31' + 1
select date '2005-01-31' - 31
select date '2004-03-01' - 1
select date '2005-03-01' - date '2004-03-01'
select timestamp '2005-01-31 10:00:00' - timestamp '2005-01-30 09:00:00'
select timestamp '2005-01-31 10:00:00' - date '2005-01-30'
select time '10:00:00' - time '09:30:00'
select time '23:00:00' + interval '2 hours'
select time '01:00:00' - interval '2 hours'
select date '2005-01-31' + time '10:20:30'
select date '2004-12-31' + 366
select date '9999-12-31' + 1
select date '2004-02-29' + interval '1 year'
select date '2004-02-29' - interval '1 year'
select timestamp '2005-03-31 00:00:00' - interval '1 month'
select interval '1 day' > interval '23 hours'
select interval '1 day' = interval '24 hours'
select interval '1 month' = interval '30 days'
select interval '1 day' * 1.5
select interval '1 hour' / 3
select interval '2 hours' - interval '30 minutes'
select timestamp '2005-01-31 00:00:00' + interval '1 second'
select timestamp '2005-01-31 23:59:59' + interval '1 second'
select '2005-01-31'::date + 1
select cast('2005-01-31' as date) - 1
select '2005-01-31'::timestamp + interval '1 day'
select timestamp '1970-01-01 00:00:00' + interval '1000000 seconds'
select (date '2005-01-01', date '2005-02-01') overlaps (date '2005-01-15', date '2005-03-01')
select not (date '2005-01-01', date '2005-02-01') overlaps (date '2005-01-15', date '2005-03-01')
select (date '2005-01-01', date '2005-02-01') overlaps (date '2005-02-01', date '2005-03-01')
select not (date '2005-01-01', date '2005-02-01') overlaps (date '2005-02-01', date '2005-03-01')
select (date '2005-02-01', date '2005-01-01') overlaps (date '2005-01-15', date '2005-01-20')
select not (date '2005-02-01', date '2005-01-01') overlaps (date '2005-01-15', date '2005-01-20')
select (date '2005-01-01', interval '10 days') overlaps (date '2005-01-05', interval '1 day')
select not (date '2005-01-01', interval '10 days') overlaps (date '2005-01-05', interval '1 day')
select (timestamp '2005-01-01 00:00:00', timestamp '2005-01-02 00:00:00') overlaps (timestamp '2005-01-01 12:00:00', interval '1 hour')
select not (timestamp '2005-01-01 00:00:00', timestamp '2005-01-02 00:00:00') overlaps (timestamp '2005-01-01 12:00:00', interval '1 hour')
select (time '10:00:00', time '12:00:00') overlaps (time '11:00:00', time '13:00:00')
select not (time '10:00:00', time '12:00:00') overlaps (time '11:00:00', time '13:00:00')
select (date '2005-01-01', date '2005-01-01') overlaps (date '2005-01-01', date '2005-01-02')
select not (date '2005-01-01', date '2005-01-01') overlaps (date '2005-01-01', date '2005-01-02')
select (date '2005-01-01', null) overlaps (date '2005-01-01', date '2005-01-02')
select not (date '2005-01-01', null) overlaps (date '2005-01-01', date '2005-01-02')
select id, (d, d + 30) overlaps (date '2005-01-15', date '2005-02-15') from moment
select id from moment where (d, d + 30) overlaps (date '2005-01-15', date '2005-02-15')
select id, (ts, interval '1 month') overlaps (timestamp '2005-01-15 00:00:00', interval '1 day') from moment
select id from moment where (ts, interval '1 month') overlaps (timestamp '2005-01-15 00:00:00', interval '1 day')
select id, (d, ts) overlaps (date '2005-01-01', date '2005-12-31') from moment
select id from moment where (d, ts) overlaps (date '2005-01-01', date '2005-12-31')
select id, (ts, ts) overlaps (d, d) from moment
select id from moment where (ts, ts) overlaps (d, d)
select a.id, b.id from account a, account b where (a.opened, coalesce(a.closed, date '2010-01-01')) overlaps (b.opened, coalesce(b.closed, date '2010-01-01')) and a.id < b.id
