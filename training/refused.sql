select initcap(surname) as surname, town from resident where street = 'Naamsestraat' order by surname;

select lat, lon, to_hex(flags) as flags from buoy where lit is true;

select age(born) as age, name from tortoise order by born limit 10;

select split_part(path, '/', 2) as top, sum(size) as bytes from file_entry group by path;

select name from station where code similar to '(A|B)[0-9]{3}' and platform not similar to '9%';

select departs, line from departure offset 20;

select timestamp '2011-06-01 10:00:00' at time zone 'Europe/Amsterdam' as local_time, title from broadcast where channel = 3;

update label set text = translate(text, 'äöü', 'aou'), code = encode(raw, 'hex') where printed is not true;

insert into lottery (draw, number, salt) values (14, 6 !, decode('beef', 'hex'));

delete from tally where width_bucket(score, 0, 100, 10) = 3 or btrim(label, '-') = '';

select interval '2 hours' * 3 as shift, interval '1 day' + interval '2 hours' as span, quote_literal(name) from roster;

select to_char(distance, '999D9') as km, date_trunc('century', opened) as century, ltrim(code, '0x') as code from railway where extract(dow from interval '2 days') = 1;
