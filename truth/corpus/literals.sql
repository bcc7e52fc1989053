-- Literals in every form.
select 1
select -1
select 0
select 007
select 1.50
select 1.
select 0.1
select 1e5
select 1E5
select 1.5e+3
select 1.5e-10
select true
select false
select TRUE
select null
select 'text'
select 'two words'
select 'UPPER'
select 'é'
select '日本語'
select 'back\slash'
select 'a\nb'
select 'a\tb'
select 'a\\b'
select 'a\0b'
select 'C:\dir\new'
select '50\%'
select 'a\_b'
select '"double"'
select '`tick`'
select '-- no comment'
select '/* none */'
select 'semi;colon'
select '%'
select '_'
select ' '
select ''
select '  lead'
select 'trail  '
select '\x41'
select '\101'
select '\Z'
select '?'
select ':name'
select '$1'
select '#'
select 'a	b'
select '2005-01-31'
select 99999999999
select 9999999999999999999999
select 1.000000000000000000001
select date '2005-01-31'
select date '2004-02-29'
select date '2005-02-30'
select date '1999-01-08'
select date '20050131'
select date 'January 8, 1999'
select date '1/8/1999'
select date '2005-1-3'
select date 'infinity'
select time '10:20:30'
select time '10:20'
select time '04:05 PM'
select time '102030'
select time '10:20:30.5'
select time '24:00:00'
select time '25:00:00'
select timestamp '2005-01-31 10:20:30'
select timestamp '2005-01-31'
select timestamp '2005-01-31 10:20'
select timestamp '2005-01-31 10:20:30.123'
select timestamp '2005-01-31T10:20:30'
select timestamp 'epoch'
select timestamp '2005-01-31 10:20:30+05'
select integer '12'
select int4 '12'
select bigint '12'
select smallint '12'
select numeric '1.50'
select real '1.5'
select float8 '1.5'
select double precision '1.5'
select boolean 'true'
select boolean 'f'
select bool 'yes'
select bool '1'
select text 'abc'
select varchar 'abc'
select char 'a'
select char 'abc'
select interval '1 day'
select interval '2 hours'
select interval '1 day 2 hours'
select interval '30 minutes'
select interval '1 year 2 months'
select interval '1 month'
select interval '90 seconds'
select interval '01:30:00'
select interval '1'
select interval '-1 day'
select interval '1 week'
select interval '1.5 hours'
select timestamptz '2005-01-31 10:20:30+00'
select timestamp '2005-01-31 10:20:30' at time zone 'UTC'
select 1 /* a comment */
select /* in */ 2
select 'a' as "Mixed Name"
select 1 as one, 2 as two
select 'a' as a, 'b' as b
SELECT 'Upper' AS X
select 1 /* a comment */ + 1
select 1;
select all 1
select distinct 1
select "select" from "order"
select "Mixed Case" from "order" where "select" is not null
select o."select" as "from" from "order" as o
select "order".id from "order" order by "order".id
select timestamp '2005-01-31 10:59:59'
select timestamp '2005-01-31 10:60:00'
select timestamp '2005-01-31 10:20:61'
select time '10:60'
select time '23:59:60'
select id, n from kind where id < 5 order by n is null, n
select id, v from kind where id < 5 order by v is null, v
select id, n from kind where id < 5 order by n is null desc, n desc
