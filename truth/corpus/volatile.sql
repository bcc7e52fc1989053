-- Values that are others at every run: compared by their shape.
select now()
select current_date
select current_time
select current_timestamp
select localtime
select localtimestamp
select random()
select timeofday()
select now()::date
select cast(now() as date)
select current_date + 1
select current_date - 1
select now() + interval '1 day'
select now() - interval '1 hour'
select extract(year from now())
select extract(epoch from now())
select date_part('month', current_date)
select date_trunc('day', now())
select date_trunc('month', current_date)
select to_char(now(), 'YYYY-MM-DD')
select to_char(now(), 'HH24:MI:SS')
select current_date - date '2005-01-01'
select now() - timestamp '2005-01-01 00:00:00'
select current_timestamp > timestamp '2005-01-01 00:00:00'
select random() * 10
select floor(random() * 10)
select random() + 1
select current_time(0)
select current_timestamp(0)
select localtimestamp(3)
select now()::text
select current_date::text
select age(now())
select age(timestamp '2005-01-01 00:00:00')
select now() = now()
select random() < 1
select current_date = now()::date
select clock_timestamp()
select extract(dow from current_date)
select length(timeofday()) > 5
select now() || ''
select random() is not null
select coalesce(null, now())
select to_char(current_timestamp, 'YYYY')
select CURRENT_DATE
select Now()
select localtime - localtime
select current_timestamp - current_timestamp
select id, random() from parent
select id from customer where joined < current_date
select id from customer where joined > current_date - interval '1 year'
select id from purchase where ordered < now() - interval '30 days'
insert into made (id, day) values (9, current_date)
update made set day = current_date where id = 1
insert into made (id, note) values (9, now())
insert into moment (id, ts) values (20, now())
update moment set tz = current_timestamp
delete from purchase where ordered < now()
select id from word order by random() limit 3
select count(*) from word where random() < 2
select md5(random()::text)
select current_date - joined from customer where joined is not null
