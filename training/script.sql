-- The association's year-end: what the office runs on the last of December.
\set ON_ERROR_STOP on
\timing off
set client_encoding = 'UTF8';
begin;

create table if not exists year_end (
    member_id integer not null references member (id), -- once a year
    year      smallint not null,
    dues      numeric(8, 2) default 0,
    note      text,
    primary key (member_id, year)
);
create index year_end_year on year_end (year);

/* Dues of those who joined in the summer,
   /* by half, as the meeting of 2009 said, */ and of all others. */
insert into year_end (member_id, year, dues, note) values (4410, 2014, 60.00 / 2, 'joined in July; pays half');
insert into year_end (member_id, year, dues, note) values (4411, 2014, 60.00, 'Maria''s brother');
insert into year_end (member_id, year, dues, note) values (4412, 2014, 60.00, E'see letter:\n\'no bank account\'\t(2013)');
insert into year_end (member_id, year, dues, note) values (4413, 2014, 60.00, $$says "it's paid"; check$$);
insert into year_end (member_id, year, dues, note) values (4414, 2014, 0, $why$honorary, 'since $$ 1984'$why$);
INSERT INTO "year_end" ("member_id", "year", "dues", "note") VALUES (4415, 2014, 60.00, 'Łukasz Żółć, Göteborg');

copy booking (id, member_id, amount, booked_on, text) from stdin;
1	4410	30.00	2014-02-01	dues; first half
2	4411	60.00	2014-02-03	dues
3	4413	60.00	2014-03-17	it's all
\.

update year_end set note = 'paid' where member_id = 4411 and year = 2014;
update member
   set balance = balance - 60.00, -- the dues
       reminded_on = null,
       letters = letters + 1
 where left_on is null and joined < date '2014-07-01' and kind <> 'honorary';
update booking set text = trim(both ' ' from text) || ' (checked)' where id = 3;

-- Those who still owe something.
select m.id, m.surname || ', ' || m.forename as name, m.town,
       sum(y.dues) as dues, count(y.year) as years
  from member m
  join year_end y on y.member_id = m.id
  left join booking b on b.member_id = m.id and b.amount >= y.dues
 where b.id is null and m.left_on is null /* they get a letter */
 group by m.id, m.surname, m.forename, m.town
having sum(y.dues) > 30
 order by name
 limit 100;

select town, count(*) as members, avg(extract(year from current_date) - extract(year from born)) as mean_age from member where left_on is null group by town order by members desc;
select surname, phone from member where mail is null and phone like '+31%' \gx
select initcap(surname) from member where forename ~* '^(jan|piet)' and left_on is null;
select id, total / 12 as monthly, total % 12 as rest from budget where year = 2014 and total > 0;
with late as (select member_id from booking) select * from late;
select case when balance < 0 then 'owes' when balance = 0 then 'even' else 'has' end as state, surname from member where id between 4000 and 4999;
select surname form member;

create function remind(id integer) returns void as $body$
begin
    update member set letters = letters + 1; -- not ours to translate
    perform send_letter(id, 'dues; please');
end
$body$ language plpgsql;

delete from reminder where sent_on < current_date - 365 and (answered is true or bounced is true);
delete from year_end where year < 2004;

select name, price from souvenir where price < ? and name ilike ?;
select name from souvenir where price < :most and stock > 0 limit :count;
insert into souvenir_sale (sku, quantity, sold) values ($1, $2, current_date);

commit;
\echo done
