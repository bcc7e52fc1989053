select * from hut;

select id, name from hut where id = 17;

select name from hut where altitude > 2400 order by name;

select count(*) from bee_colony;

select now();

insert into tide_log (port, level) values ('Vlissingen', 3.42);

insert into hive values (12, 'north slope', null, true);

update hut set beds = 24 where id = 17;

update lamp set burning = not burning;

delete from queue_entry where taken is true;

delete from draft where saved_at < current_date;

select 'ready' as state, 1 as version;

select max(altitude) as top, min(altitude) as bottom from hut where region = 'Engadin';

-- A key is looked up.
select title, call_number, shelf, on_loan
from volume
where call_number = 'QA 76.73 .S67';

select password_hash, salt, attempts, locked_until from member where login = 'h.vandermeer' and removed_at is null;

select distinct keeper from lighthouse where lit is not false order by keeper;

select species, ring, weight, wing from bird where ring ~ '^[A-Z]{2}[0-9]+$' limit 40;

select id, label from wine where label ilike 'ch\u00e2teau%' and vintage < 1990 limit 12 offset 36;

select a.title, b.name from opera a, composer b where a.composer_id = b.id and a.acts >= 3;

insert into observation (star, seen_at, magnitude, observer, sky)
values ('R Leonis', timestamp '2011-03-04 22:15:00', 6.7, 'vdm', 'thin cloud');

insert into loan (volume_id, member_id, lent_on, due_on, renewals, remark)
values (88213, 4410, current_date, current_date + 28, 0, null);

insert into tram_stop (code, name, latitude, longitude, fare_zone, roofed, accessible, opened_on)
values ('BZ04', 'Waisenhausplatz', 46.94941, 7.44393, 101, true, false, date '1912-08-01');

insert into vote (motion_id, seat, choice, cast_at) values (731, 44, default, now());

insert into "Order Log" ("Order Id", "Text", "When") values (9, 'first line
second line', timestamp '2014-11-09 08:00:00');

insert into letter (sender, receiver, town, written_on, body) values ('Zoë Müller', 'Søren Ågård', 'Łódź', date '1923-02-11', 'Für dich, mein Schatz: 木漏れ日 — grüße aus Übersee.');

update volume set on_loan = false, returned_at = now(), shelf = upper(shelf) where id = 88213 and on_loan is true;

update meter set reading = reading + 14.5, read_on = date '2012-12-31', estimated = true where street = 'Parkweg' and number between 10 and 28;

update team set points = points + 3, goals = goals + 2, played = played + 1 where season = 2013 and name = 'Ajax';

update beehive set queen_age = queen_age + 1, honey = round(honey * 0.85, 1), note = note || '; wintered' where apiary = 'Hinterwald' and (honey > 4.5 or fed is true) and lost_on is null;

update pensioner set allowance = case when years >= 40 then allowance * 1.04 when years >= 25 then allowance * 1.025 else allowance + 10 end, revised = current_date where retired < date '2003-01-01' and country <> 'FR';

delete from reservation where hut_id = 17 and night < current_date and (paid is not true or cancelled_at is not null);

delete from cache_line where key like 'geo:%' or bytes > 1048576;

delete from spool where printer = 'lp2' and pages * copies > 500 and not (owner = 'dean' or urgent is true);

select h.name, h.altitude, v.name as valley, count(r.id) as nights, sum(r.guests) as guests
from hut as h
join valley as v on v.id = h.valley_id
left join reservation as r on r.hut_id = h.id and r.cancelled_at is null
where h.open is true and h.altitude between 1800 and 3200
group by h.name, h.altitude, v.name
having count(r.id) > 10
order by guests desc, h.name
limit 50;

select l.name, l.height, l.range_nm, k.surname || ' ' || k.forename as keeper, l.first_lit, l.character as flash
from lighthouse as l
left outer join keeper as k on k.station_id = l.id and k.left_on is null
where l.country = 'NO' and (l.range_nm >= 15 or l.height > 30.5)
order by l.range_nm desc, l.name asc;

select w.grower, w.village, w.vintage, w.grape, b.bottles, b.bottles * w.price as worth, extract(year from current_date) - w.vintage as age_in_years
from wine as w
inner join bin as b on b.wine_id = w.id
where w.colour = 'red' and b.bottles > 0 and w.vintage <= 2005
order by worth desc, w.grower;

select s.code, s.name, d.weekday, min(d.leaves) as first_tram, max(d.leaves) as last_tram, count(d.run) as runs, count(distinct d.line) as lines
from tram_stop s
join departure d on d.stop_code = s.code
where s.fare_zone = 101 and d.valid_from <= current_date and (d.valid_to is null or d.valid_to > current_date)
group by s.code, s.name, d.weekday
order by s.code, d.weekday;

select c.surname, c.forename, r.name as role, r.voice, p.night, p.night + interval '3 hours' as ends
from casting as c
natural join role as r
cross join performance as p
where p.house = 'Staatsoper' and p.sold_out is not true;

select o.title, o.language, y.year, y.stagings from opera o join yearly y using (opera_id, house) where y.year >= 1990 and o.language <> 'it' order by y.stagings desc limit 25;

select f.field, f.crop, f.hectares, h.tonnes, h.tonnes / f.hectares as yield_per_hectare, round(h.moisture * 100, 1) as moisture
from field as f
full outer join harvest as h on h.field_id = f.id
where h.year = 2016 or h.year is null;

select m.surname, m.district, p.short_name from member_of_parliament m right join party p on p.id = m.party_id where p.dissolved_on is null order by p.seats desc, m.surname;

/* How the quarters compare. */
select quarter, sum(case when kind = 'gas' then units else 0 end) as gas,
       sum(case when kind = 'water' then units else 0 end) as water,
       sum(case when kind = 'power' then units else 0 end) as power,
       sum(case when kind = 'heat' then units * 0.86 else 0 end) as heat
from meter_reading -- the estimated ones, too
where year = 2012 and district >= 3
group by quarter
order by quarter;

select case station when 'AMS' then 'Amsterdam' when 'UTR' then 'Utrecht' when 'RTD' then 'Rotterdam' else station end as town, delay, case when delay > 30 then 'late' when delay > 5 then 'slightly late' when delay < 0 then 'early' else 'in time' end as judgement from arrival where day = date '2015-05-05';

select surname, forename, coalesce(nickname, forename) as called, nullif(phone, '') as phone, greatest(first_grade, second_grade) as better, least(first_grade, second_grade) as worse from pupil where form = '5b';

select upper(substr(code, 1, 2)) as land, lower(code) as code, length(trim(name)) as size, char_length(name) as letters, replace(name, 'Sankt', 'St.') as short from parish where position('Sankt' in name) > 0;

select trim(both '*' from title) as title, trim(leading '0' from number) as number, trim(trailing from remark) as remark, ltrim(shelf) as shelf, rtrim(room) as room from volume where catalogue = 'old';

select lpad(number, 8, '0') as number, rpad(name, 30, '.') as name, repeat('-', 12) as line, md5(name) as digest, ascii(initial) as code from artist;

select overlay(iban placing '****' from 5 for 4) as iban, substr(account, 3) as rest, strpos(owner, ' ') as blank_at from bank_account where closed is false;

select abs(latitude), ceil(distance), floor(distance), round(distance, 2), trunc(distance, 1), sign(offset_hours), mod(minutes, 60), sqrt(area), power(side, 3), exp(rate), ln(growth) from survey_point where quality > 3;

select sin(radians(azimuth)) * cos(radians(altitude)) as x, cos(radians(azimuth)) * cos(radians(altitude)) as y, sin(radians(altitude)) as z, degrees(atan2(dec, ra)) as angle, pi() / 180 as factor from star where magnitude < 6.5;

select random(), chr(65 + row_number_in_box), cbrt(volume), |/ area as side, ||/ volume as edge, @ balance as size, 2 ^ depth as leaves from crate;

select flags & 4 as urgent, flags | 8 as marked, flags # 3 as turned, ~ flags as inverse, flags << 2 as high, flags >> 1 as low, flags % 2 as odd from packet where flags & 16 = 0;

select date_trunc('month', read_at) as month, sum(units) as units from meter_reading group by month order by month;

select extract(day from due_on) as day, extract(month from due_on) as month, date_part('year', due_on) as year, date_part('hour', called_at) as hour, extract(dow from called_at) as weekday, extract(quarter from called_at) as quarter from call_back;

select to_char(timestamp '2010-07-14 19:30:00', 'YYYY-FMMM-DD HH24:MI') as begins, to_char(date '2010-07-14', 'FMDD. Month YYYY') as day from programme;

select date '2012-02-28' + 2 as spring, date '2012-12-24' - date '2012-02-28' as days, timestamp '2012-02-28 10:00:00' + interval '90 minutes' as done, date '2012-03-01' - interval '1 day' as leap_day;

select cast(amount as integer) as whole, cast(number as varchar) as text, cast(happened as date) as day, cast(happened as time) as hour, cast(happened as timestamp) as moment, cast(ratio as numeric) as ratio, amount::bigint as large, code::text as written from posting;

select name, rate::float8 * 100 as percent, (a + b)::int as total, cast(a || b as text) as pair from scale where rate::float8 > 0.5;

select (night, night + interval '1 day') overlaps (date '2013-08-01', date '2013-08-05') as clash, guest from reservation where hut_id = 9;

select bit_and(rights) as common, bit_or(rights) as anything, bool_and(paid) as all_paid, bool_or(overdue) as some_overdue, every(read) as all_read from membership where club = 'chess';

select stddev(seconds) as spread, variance(seconds) as square, avg(seconds) as mean, count(all lap) as laps, count(distinct rider) as riders, sum(distinct bonus) as bonus from lap_time where stage = 14;

select distinct on (rider) rider, stage, seconds from lap_time order by rider, seconds;

select all colour, count(*) as often from tile group by colour having count(*) >= 3 order by often desc;

select name from member where (joined between date '2001-01-01' and date '2001-12-31') and paid is true and name not like 'Test%' and mail not ilike '%@example.com';

select name, born from chess_player where name !~ '[0-9]' and name ~* 'ov$' and country !~* '^(nl|be)$' order by born desc limit 10;

select path from file_entry where path like '%.t!_t' escape '!' or path not like '/tmp/%' escape '\\';

select game, white, black, result from game where result is distinct from 'draw' and (white = 'Euwe' or black = 'Euwe') and year > 1930 order by year, game;

select isbn from book where sold isnull and printed notnull and price is not null and returned is null;

select paid is true as yes, paid is false as no, paid is not true as open_yet, paid is not false as maybe from dues where year = 1999;

select -amount as debit, amount as credit, - (a - b) as difference, not done as todo, (a + b) * (c - d) / (e + 1) % 7 as mixed from worksheet;

select 'it\'s', 'a "word"', 'tab	and blank', '', 'C:\\temp', 'slash / percent % under _' from constants;

select "Name", "select" as "from", t."Order No", t."größe" from "Weird Table" as t where t."Order No" > 10;

select 0, 7, 1234567890, 0.5, .5, 12., 1e10, 6.022e23, 1.6E-19, 'x', null, true, false from constants;

select a from t where a <> 1 and b != 2 and c <= 3 and d >= 4 and e < 5 and f > 6 and g = 7;

select a or b and not c or d as mixed, (a or b) and (c or d) as split, a = b and c <> d or e as compared from switchboard;

SELECT Title, Isbn, Pages FROM Book WHERE Pages > 300 AND Language = 'nl' ORDER BY Title ASC LIMIT 100;

SELECT D.NAME, COUNT(E.ID) AS STAFF, AVG(E.WAGE) AS MEAN_WAGE FROM DEPARTMENT AS D LEFT JOIN EMPLOYEE AS E ON E.DEPARTMENT_ID = D.ID GROUP BY D.NAME HAVING AVG(E.WAGE) > 3000 ORDER BY MEAN_WAGE DESC;

SELECT "p"."id", "p"."title", "p"."slug", "p"."created_at", "p"."updated_at", "p"."author_id" FROM "posts" AS "p" WHERE "p"."state" = 'published' AND "p"."blog_id" = 6 ORDER BY "p"."created_at" DESC LIMIT 11 OFFSET 0;

SELECT t0.id AS c0, t0.version AS c1, t0.title AS c2, t0.summary AS c3, t1.id AS c4, t1.name AS c5, t1.email AS c6, t2.id AS c7, t2.label AS c8 FROM article t0 INNER JOIN author t1 ON t0.author_id = t1.id LEFT JOIN category t2 ON t0.category_id = t2.id WHERE t0.id = 5519 AND t0.deleted = false;

INSERT INTO "sessions" ("session_key", "session_data", "expire_date", "user_id", "agent") VALUES ('k3j9x0q2m7', 'eyJsb2NhbGUiOiJubCJ9', timestamp '2016-02-29 23:59:59', 5081, 'Mozilla/5.0 (X11; Linux x86_64)');

UPDATE "users" SET "last_login" = now(), "login_count" = "login_count" + 1, "last_address" = '192.0.2.44', "locale" = 'nl_NL' WHERE "users"."id" = 5081;

DELETE FROM "sessions" WHERE "sessions"."expire_date" < now() AND "sessions"."user_id" IS NULL;

select station, hour, avg(pm10) as pm10, avg(pm25) as pm25, max(no2) as no2, max(o3) as ozone, count(*) as samples
from air_sample
where station = 'Valkenburglaan' and taken_at >= timestamp '2014-01-01 00:00:00' and taken_at < timestamp '2014-01-08 00:00:00' and valid is true and pm10 >= 0
group by station, hour
having count(*) >= 4
order by hour;

select rider.number, rider.surname, team.name as team, sum(stage_result.seconds) + sum(stage_result.penalty) - sum(stage_result.bonus) as total, count(stage_result.stage) as stages, min(stage_result.place) as best_place
from rider
inner join team on team.id = rider.team_id
inner join stage_result on stage_result.rider_id = rider.id
where stage_result.tour = 2009 and rider.gave_up_at is null
group by rider.number, rider.surname, team.name
order by total, best_place, rider.surname
limit 150;

select k.id, k.klant_naam, k.straat || ' ' || k.huisnummer || coalesce(k.toevoeging, '') as adres, k.postcode, k.plaats, f.factuurnummer, f.bedrag, f.bedrag * 0.21 as btw, f.bedrag * 1.21 as totaal, f.vervaldatum
from klant as k
join factuur as f on f.klant_id = k.id
where f.betaald is false and f.vervaldatum < date '2014-06-01' and (k.geblokkeerd is not true or f.bedrag > 2500.00)
order by f.vervaldatum, k.klant_naam;

select p.surname, p.forename, p.born, q.name as instrument, q.tuning, o.name as orchestra, o.city, e.since, e.until, e.chair
from player p
join engagement e on e.player_id = p.id
join orchestra o on o.id = e.orchestra_id
left join instrument q on q.id = e.instrument_id
where (q.family = 'strings' or q.family = 'brass' and q.tuning <> 'C') and e.until is null and o.city = 'Wien'
order by o.name, e.chair, p.surname;

select ship.imo, ship.name, ship.flag, voyage.number, port.name as next_port, voyage.eta, voyage.eta - interval '2 hours' as pilot_at, voyage.draught, berth.depth - voyage.draught as under_keel
from ship
join voyage on voyage.imo = ship.imo
join port on port.locode = voyage.destination
left join berth on berth.id = voyage.berth_id
where port.locode = 'NLRTM' and voyage.arrived_at is null and voyage.eta < timestamp '2018-10-03 12:00:00' and berth.depth - voyage.draught > 0.75
order by voyage.eta;

insert into voyage (imo, number, origin, destination, etd, eta, draught, cargo, tonnes, dangerous, agent, pilot, remark)
values ('9302140', '018W', 'DEHAM', 'NLRTM', timestamp '2018-10-02 04:00:00', timestamp '2018-10-03 09:30:00', 11.35, 'containers', 48210.5, false, 'Van Ommeren', true, 'tug at buoy 7; crew change');

insert into recipe (title, servings, minutes, method, source, vegetarian) values ('Rösti', 4, 35, 'Grate the potatoes of yesterday. Fry in butter, turn once.

Serve with an egg.', 'Grandmother', true);

insert into measurement values (17, 1.25, 1.5, 1.75, 2, 2.25, 2.5, 2.75, 3, 3.25, 3.5, 3.75, 4, 4.25, 4.5, 4.75, 5);

insert into posting (account, contra, amount, booked_on, text) values (1200, 8400, 119.00 / 1.19, date '2013-04-30', 'Invoice ' || '2013-0417' || ', ' || 'net');

insert into point_log (member_id, points, balance, reason, given_at) values (771, 15 * 2, 440 + 15 * 2, case when true then 'double week' else 'usual' end, current_timestamp);

insert into address (id, street, number, town, country) values (5, default, default, 'Gent', default);

update shipment set state = 'delivered', signed_by = 'K. de Wit', delivered_at = timestamp '2017-01-19 14:02:31', attempts = attempts + 1 where barcode = '3SDEVC982734651';

update parcel set weight = 2.350, price = case when weight <= 2 then 6.75 when weight <= 10 then 12.90 else 18.40 end, insured = price > 100 where barcode = '3SDEVC982734651' or barcode = '3SDEVC982734652';

update seat set held_by = null, held_until = null where performance_id = 310 and held_until < now() and sold is not true;

update exam set grade = round((written * 2 + oral) / 3, 1), passed = (written * 2 + oral) / 3 >= 5.5, judged_on = current_date where term = '2011-2' and oral is not null and written is not null;

update glossary set term = trim(both ' ' from term), meaning = replace(replace(meaning, '  ', ' '), ' ,', ','), sort_key = lower(substr(term, 1, 20)) where language = 'en';

update job set run_at = run_at + interval '15 minutes', attempts = attempts + 1, error = 'connection refused' where id = 40093;

delete from audit where happened_at < current_date - 90 and severity < 3 and actor <> 'root';

delete from basket_item where basket_id = 5519 and (quantity <= 0 or sku like 'OLD-%' or sku is null) and locked is not true;

delete from tile where x between 10 and 20 and layer = 3;

select date '2009-12-31' - born as days, name, extract(year from born) as year, to_char(cast(born as date), 'DD Mon YYYY') as written from person where born < date '1930-01-01';

select name || ' (' || town || ')' as label, lower(trim(name)) || '@' || domain as mail, substr(name, 1, 1) || '. ' || surname as short from contact where domain is not null and length(domain) > 4;

select price, price * 1.21, price - price * 0.10, (price + shipping) * 1.21, price / 12, price * quantity - discount from offer where price * quantity - discount > 1000 and quantity <> 0;

select a.id from article a where ((a.state = 'new' or a.state = 'open') and (a.owner is null or a.owner = 12)) or (a.state = 'shut' and a.shut_at > date '2015-01-01' and not (a.owner = 12 and a.private is true));

select x.k, x.v, y.v as other from pairs as x inner join pairs as y on x.k = y.k and x.id < y.id where x.v <> y.v order by x.k, x.id, y.id;

select count(*) as rows_in_all, count(mail) as with_mail, count(distinct town) as towns, min(joined) as oldest, max(joined) as newest, sum(dues) as dues, avg(dues) as mean from member;

select town, street, number, floor, surname from resident where town = 'Leuven' and street = 'Naamsestraat' and number >= 50 and number <= 90 order by number, floor, surname limit 200 offset 400;

select id, subject, sender, received, size_in_bytes / 1024 as kib, seen, flagged from message where folder = 'INBOX' and (subject like '%verslag%' or sender like '%@gemeente.example') and received > timestamp '2016-06-01 00:00:00' and deleted is not true order by received desc limit 50;

select p.name, p.price, s.name as supplier, s.delivery_days, c.path as category, i.quantity, i.quantity - i.reserved as available, case when i.quantity - i.reserved <= 0 then 'sold out' when i.quantity - i.reserved < i.minimum then 'few' else 'enough' end as state
from part p
join supplier s on s.id = p.supplier_id
join category c on c.id = p.category_id
left join inventory i on i.part_id = p.id and i.site = 'Gouda'
where p.discontinued is false and c.path like 'bike/wheel/%' and p.price between 5 and 250;

select n.id, n.title, n.teaser, n.published, r.name as ressort, a.name as author, n.words, n.words / 220 as minutes, n.reads * 10 + n.shares * 25 + n.comments * 5 as rank_value
from news n
join ressort r on r.id = n.ressort_id
join author a on a.id = n.author_id
where n.published <= now() and n.embargo is null and n.language = 'de' and (n.teaser ilike '%wahl%' or n.title ilike '%wahl%' or n.title ~* 'koalition(en)?') and n.reads > 100
order by rank_value desc, n.published desc
limit 15;

select f.tail, f.callsign, f.origin, f.destination, f.off_block, f.on_block, f.on_block - f.off_block as block_time, f.fuel_out - f.fuel_in as burnt, (f.fuel_out - f.fuel_in) / f.distance as per_mile, c.surname as captain, d.surname as first_officer
from leg as f
inner join crew as c on c.id = f.captain_id
inner join crew as d on d.id = f.officer_id
left join delay_code as x on x.code = f.delay_code
where f.day = date '2019-07-06' and f.cancelled is not true and (f.origin = 'BRU' or f.destination = 'BRU') and f.distance > 0
order by f.off_block;

select candidate.surname, party.short_name, district.name, result.votes, result.votes * 100.0 / district.turnout as share, result.votes > previous.votes as gained, coalesce(previous.votes, 0) as before
from result
join candidate on candidate.id = result.candidate_id
join party on party.id = candidate.party_id
join district on district.id = result.district_id
left outer join result as previous on previous.candidate_id = result.candidate_id and previous.election = 2010
where result.election = 2014 and district.turnout > 0 and candidate.withdrawn is false
order by district.name, result.votes desc;

select t.year, t.month, sum(t.kwh) as kwh, sum(t.kwh * t.tariff) as cost, sum(case when t.hour between 7 and 22 then t.kwh else 0 end) as by_day, avg(t.voltage) as voltage, max(t.peak) as peak, min(t.cos_phi) as cos_phi, count(*) / 4 as hours
from telemetry as t
where t.meter = '541448820045' and t.year >= 2015 and t.status & 7 = 0 and not (t.replaced is true or t.kwh < 0)
group by t.year, t.month
having sum(t.kwh) > 0
order by t.year desc, t.month desc
limit 36;

select b.barcode, v.title, a.surname || ', ' || a.forename as author, m.surname as reader, l.due_on, current_date - l.due_on as days_late, (current_date - l.due_on) * 0.15 as fine
from loan as l
join copy as b on b.id = l.copy_id
join volume as v on v.id = b.volume_id
left join author as a on a.id = v.author_id
join member as m on m.id = l.member_id
where l.returned_on is null and l.due_on < current_date and m.suspended is not true and (m.kind = 'adult' or l.renewals >= 2)
order by l.due_on, m.surname, v.title
limit 300;

select sample, depth, ph, 100 * (weight_wet - weight_dry) / weight_wet as water, sand + silt + clay as total, sand / (sand + silt + clay) as sand_part, ln(k) / ln(10) as log_k, case when ph < 5.5 then 'acid' when ph > 7.3 then 'alkaline' else 'neutral' end as reaction from soil where profile = 'Zeeland 14' and depth <= 120 and weight_wet > weight_dry order by sample, depth;

select player, opponent, sum(case when result = '1-0' then 1 when result = '0-1' then 0 else 0.5 end) as score, count(*) as games, avg(moves) as moves, max(elo) as elo from tournament_game where event = 'Hoogovens' and round <= 13 group by player, opponent having count(*) > 1 order by score desc, player;

select g.name, g.strength, g.founded, (g.strength * 7 + g.veterans * 3) / 10.0 as weight, s.sort, s.seed from guild g left join standing s on s.guild = g.id and s.year = 1999 where g.founded between 1500 and 1799;

select id, parent, depth, path, title, position_in_parent, visible, created, modified from page_node where site = 4 and (visible is true or owner = 31) and path like '/about/%' and depth <= 4 order by path, position_in_parent;

select i1, i2, i3, i4, i5, i6, i7, i8, i9, i10, i11, i12, i13, i14, i15, i16, i17, i18, i19, i20, i21, i22, i23, i24, i25, i26, i27, i28, i29, i30 from wide_table where key_part_1 = 15 and key_part_2 = 'K' and key_part_3 = 2001;

select 1 + 2 * 3 - 4 / 5 % 6 ^ 2, (1 + 2) * (3 - 4), ((((a)))), -(-b), a || b || c || d, not not x, a + b + c + d + e + f from sheet;

select coalesce(a, b, c, d, 'none') as any_value, concat(a, b) as joined, length(coalesce(name, '')) as size, upper(coalesce(nullif(trim(name), ''), 'UNKNOWN')) as name from patchwork where coalesce(x, y) > coalesce(y, x);

select my_function(a, b), geo_distance(lat1, lon1, lat2, lon2) as metres, levenshtein(lower(name), 'amstelveen') as edits, soundex(name) as sound from place where geo_distance(lat1, lon1, 52.3, 4.9) < 1500.0 order by metres limit 5;

select current_date, current_time, current_timestamp, localtime, localtimestamp, now(), extract(hour from current_time), date_trunc('day', now()) from clock;

select time '08:30:00' as opens, time '17:45:00' as shuts, timestamp '2016-02-29 12:00:00' as leap, interval '2 days 3 hours' as span, interval '1 month' as month, date '2016-02-29' + interval '1 year' as next_year from desk;

select created + interval '7 days' as expires, created - interval '1 month' as warned, due - 14 as reminded, due + 30 as dunned, due - created as span from bill where due + 30 < current_date and created > timestamp '2013-01-01 00:00:00';

select a.v as a, b.v as b, c.v as c, d.v as d, e.v as e from v a join v b on b.id = a.next join v c on c.id = b.next join v d on d.id = c.next join v e on e.id = d.next where a.id = 1;

select t.*, u.name from ticket_sale as t join usher as u on u.id = t.usher_id where t.row_letter = 'K' and t.seat between 1 and 14;

select u.*, count(*) from cinema, usher as u where cinema.id = u.cinema_id and cinema.screens > 4 group by u.id, u.name;

select exchange, ticker, day_high, day_low, closing, closing - opening as change, (closing - opening) / opening * 100 as change_percent, volume, volume * closing as turnover, closing > average_200 as bullish, sqrt(variance_30) * sqrt(252) as volatility from daily_quote where day = date '2008-09-15' and volume > 100000 and (exchange = 'AEX' or exchange = 'DAX' or exchange = 'CAC') and closing > 0 order by change_percent limit 30;

/* The night shift's list.
   It has a line for each ward. */
select w.ward, w.floor, count(b.id) as beds, count(b.patient_id) as taken, count(b.id) - count(b.patient_id) as free, sum(case when b.isolation is true then 1 else 0 end) as isolated -- behind glass
from ward as w -- all, the day clinic too
left join bed as b on b.ward_id = w.id and b.out_of_order is not true
where w.closed_on is null /* or later */ and w.kind <> 'store'
group by w.ward, w.floor
order by w.floor, w.ward;

select "a.b" from "c-d" where "a.b" = 'e';

select "náme", "größe", "цена", "値段" from "таблица" where "größe" > 5 and "цена" <= 1000 and "náme" <> 'žluťoučký kůň';

select a from t1 natural left join t2 natural join t3 cross join t4 left join t5 on t5.a = t1.a right outer join t6 using (a, b, c) where t1.a > 0;

select r.id, r.guest, r.night, h.name, h.altitude, h.phone, r.guests, r.half_board, r.guests * h.price + case when r.half_board is true then r.guests * 28.50 else 0 end as total, r.deposit, r.deposit >= (r.guests * h.price) * 0.2 as deposit_made
from reservation r inner join hut h on h.id = r.hut_id
where r.night >= current_date and r.night < current_date + 14 and r.cancelled_at is null and (h.section = 'Uto' or h.section = 'Bernina')
order by r.night, h.name, r.guest;

insert into event_log (source, level, code, message, context, happened_at, host, process, thread, user_name) values ('scheduler', 'warning', 4071, 'Job \'nightly-export\' took 3812 s; limit is 3600 s', '{"job": "nightly-export", "attempt": 1}', timestamp '2019-11-30 02:03:32', 'app-03.example.net', 22871, 'worker-5', null);

insert into contract (number, party_a, party_b, signed_on, begins_on, ends_on, notice_months, yearly_fee, currency, indexed, indexing_base, place, witness, annexes, text)
values ('2016/0337', 'Waterschap Rivierenland', 'Dijkbeheer Noord BV', date '2016-05-17', date '2016-06-01', date '2016-06-01' + 1460, 6, 118750.00, 'EUR', true, 100.7, 'Tiel', 'mr. P. Hoekstra', 3, 'Onderhoud van de primaire waterkering tussen Tiel en Gorinchem, met inbegrip van maaiwerk en inspectie na hoogwater.');

update machine set hours = hours + 7.75, last_service = case when hours + 7.75 > 500 then current_date else last_service end, next_service = current_date + 90, state = 'ready', operator_name = 'J. Peeters', oil = oil - 0.4 where plant = 'Genk' and line = 2 and serial like 'KX-%' and scrapped_on is null and hours < 20000;

update catalogue set title = upper(substr(title, 1, 1)) || substr(title, 2, 200), author = coalesce(author, 'anonymous'), year = extract(year from printed_on), century = (extract(year from printed_on) + 99) / 100, checked = true, checked_by = 'import', checked_at = now() where source = 'cards' and (title is not null and title <> '') and checked is not true;

delete from trace where (level = 'debug' and happened_at < now() - interval '1 day') or (level = 'info' and happened_at < now() - interval '7 days') or happened_at < now() - interval '90 days';

select year, (births - deaths) * 1000.0 / population as growth_rate, births * 1000.0 / population as birth_rate, deaths * 1000.0 / population as death_rate, arrivals - departures as migration, population + births - deaths + arrivals - departures as next_population from census where municipality = 'Ouder-Amstel' and year > 1950 and population > 0 order by year;

select pupil.number, pupil.surname, form.name as form, avg(mark.value * mark.weight) as mean, min(mark.value) as lowest, sum(case when mark.value < 5.5 then 1 else 0 end) as failed, sum(case when mark.subject = 'maths' then mark.value else 0 end) as maths, sum(case when mark.subject = 'latin' then mark.value else 0 end) as latin
from pupil
join form on form.id = pupil.form_id
left join mark on mark.pupil_id = pupil.id and mark.term = 2 and mark.cancelled is not true
where form.year = 2007 and pupil.left_on is null
group by pupil.number, pupil.surname, form.name
having avg(mark.value * mark.weight) < 6.0 or sum(case when mark.value < 5.5 then 1 else 0 end) >= 2
order by form, mean
limit 60;

select lower(host) as host, method, substr(url, 1, 60) as url, count(*) as hits, count(distinct client) as clients, sum(bytes_sent) / 1048576 as mib, avg(millis) as mean_ms, max(millis) as worst_ms
from request
where asked_at >= timestamp '2018-03-01 00:00:00' and status <> 404 and url not like '%.css' and url not like '%.js' and agent !~* '(bot|spider|crawl)'
group by host, method, url
order by hits desc
limit 250 offset 250;

select e.surname, e.forename, e.grade, s.monthly, s.monthly * 12.96 as yearly, s.monthly * 12.96 + coalesce(b.amount, 0) as with_bonus, case when e.grade >= 12 then 'staff' when e.grade >= 8 then 'senior' when e.grade >= 4 then 'regular' else 'trainee' end as band, extract(year from current_date) - extract(year from e.joined) as years
from employee as e
join salary as s on s.employee_id = e.id and s.valid_to is null
left join bonus as b on b.employee_id = e.id and b.year = 2017
where e.company = 3 and (e.office = 'Delft' or e.office = 'Breda') and e.left_on is null and s.monthly > 1995.50
order by yearly desc, e.surname, e.forename;

select lender.name, museum.city, work.title, work.year, work.technique, loan.insured_for, loan.insured_for * 1.15 as with_transport, loan.leaves_on, loan.returns_on, loan.returns_on - loan.leaves_on as days_away
from loan_contract as loan
join work on work.inventory = loan.inventory
join lender on lender.id = work.lender_id
join museum on museum.id = loan.museum_id
where (loan.leaves_on between date '2020-01-01' and date '2020-12-31') and work.technique ilike '%oil%' and loan.insured_for >= 250000.00 and lender.anonymous is false
order by loan.leaves_on, work.title;

select tank, style, original_gravity, final_gravity, (original_gravity - final_gravity) * 131.25 as alcohol, round((original_gravity - 1) * 1000 / 4, 1) as plato, brewed_on + 21 as ready_on from batch where final_gravity is not null and tank <> 'T9' and style ilike '%bock%' order by brewed_on desc limit 8;

insert into batch (tank, style, litres, original_gravity, yeast, brewed_on, brewer, note) values ('T4', 'Doppelbock', 1200, 1.076, 'W-34/70', date '2021-02-13', 'Annelies', 'decoction, 90 minutes; hops of the old lot');

update channel set title = 'Derde Programma', frequency = 104.25, mono = false, relay_of = null, changed_at = current_timestamp where frequency between 104 and 104.5;

delete from listener_mail where programme_id = 55 and (body = '' or body is null or sender ilike '%noreply%') and answered_at is null;
