select name form hut where altitude > 2000;

select id, name, from hut;

select name from hut where id in (1, 2, 3);

select count(*) from loan where volume_id = (select id from volume where shelf = 'B');

update hut set beds where id = 17;

insert into hut (id, name) values (1, 'Uto'), (2, 'Bernina');

delete hut where id = 17;

select (a + b * 2 from sheet order by a;

select name from hut order by altitude desc nulls last;

with open_hut as (select * from hut) select name from open_hut;

select name from hut where altitude between 1000 and 2000 or open is true and region = 'Engadin';

create table hut (id integer);

select sum(beds) over (partition by region) from hut;

select name from hut where name = 'Uto and id = 17;
