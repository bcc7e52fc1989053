-- Every cast target, from each kind of value, in both spellings.
select id, n::bigint from kind where id != 5 and id != 6
select id, si::bigint from kind where id != 5 and id != 6
select id, b::bigint from kind where id != 5 and id != 6
select id, d::bigint from kind where id != 5 and id != 6
select id, f::bigint from kind where id != 5 and id != 6
select id, r::bigint from kind where id != 5 and id != 6
select id, v::bigint from kind where id = 7
select id, t::bigint from kind where id = 7
select id, c::bigint from kind where id = 7
select cast('7' as bigint)
select cast('-7.6' as bigint)
select cast(7 as bigint)
select cast(7.5 as bigint)
select cast(2.5 as bigint)
select cast(-2.5 as bigint)
select cast(1e2 as bigint)
select cast('abc' as bigint)
select cast('' as bigint)
select cast(' 7 ' as bigint)
select cast('true' as bigint)
select cast('f' as bigint)
select cast(1 as bigint)
select cast(0 as bigint)
select cast(null as bigint)
select cast('2005-01-31' as bigint)
select cast('2005-01-31 10:20:30' as bigint)
select cast('10:20:30' as bigint)
select cast('1 day' as bigint)
select cast('2005-1-3' as bigint)
select cast('20050131' as bigint)
select id, n::int8 from kind where id != 5 and id != 6
select id, d::int8 from kind where id != 5 and id != 6
select id, v::int8 from kind where id = 7
select cast('7' as int8)
select cast('-7.6' as int8)
select cast(7 as int8)
select cast(7.5 as int8)
select cast(2.5 as int8)
select id, n::integer from kind where id != 5 and id != 6
select id, si::integer from kind where id != 5 and id != 6
select id, b::integer from kind where id != 5 and id != 6
select id, d::integer from kind where id != 5 and id != 6
select id, f::integer from kind where id != 5 and id != 6
select id, r::integer from kind where id != 5 and id != 6
select id, ok::integer from kind where id != 5 and id != 6
select id, v::integer from kind where id = 7
select id, t::integer from kind where id = 7
select id, c::integer from kind where id = 7
select cast('7' as integer)
select cast('-7.6' as integer)
select cast(7 as integer)
select cast(7.5 as integer)
select cast(2.5 as integer)
select cast(-2.5 as integer)
select cast(1e2 as integer)
select cast('abc' as integer)
select cast('' as integer)
select cast(' 7 ' as integer)
select cast('true' as integer)
select cast('f' as integer)
select cast(true as integer)
select cast(1 as integer)
select cast(0 as integer)
select cast(null as integer)
select cast('2005-01-31' as integer)
select cast('2005-01-31 10:20:30' as integer)
select cast('10:20:30' as integer)
select cast('1 day' as integer)
select cast('2005-1-3' as integer)
select cast('20050131' as integer)
select id, n::int from kind where id != 5 and id != 6
select id, d::int from kind where id != 5 and id != 6
select id, v::int from kind where id = 7
select cast('7' as int)
select cast('-7.6' as int)
select cast(7 as int)
select cast(7.5 as int)
select cast(2.5 as int)
select id, n::int4 from kind where id != 5 and id != 6
select id, d::int4 from kind where id != 5 and id != 6
select id, v::int4 from kind where id = 7
select cast('7' as int4)
select cast('-7.6' as int4)
select cast(7 as int4)
select cast(7.5 as int4)
select cast(2.5 as int4)
select id, n::smallint from kind where id != 5 and id != 6
select id, si::smallint from kind where id != 5 and id != 6
select id, b::smallint from kind where id != 5 and id != 6
select id, d::smallint from kind where id != 5 and id != 6
select id, f::smallint from kind where id != 5 and id != 6
select id, r::smallint from kind where id != 5 and id != 6
select id, v::smallint from kind where id = 7
select id, t::smallint from kind where id = 7
select id, c::smallint from kind where id = 7
select cast('7' as smallint)
select cast('-7.6' as smallint)
select cast(7 as smallint)
select cast(7.5 as smallint)
select cast(2.5 as smallint)
select cast(-2.5 as smallint)
select cast(1e2 as smallint)
select cast('abc' as smallint)
select cast('' as smallint)
select cast(' 7 ' as smallint)
select cast('true' as smallint)
select cast('f' as smallint)
select cast(1 as smallint)
select cast(0 as smallint)
select cast(null as smallint)
select cast('2005-01-31' as smallint)
select cast('2005-01-31 10:20:30' as smallint)
select cast('10:20:30' as smallint)
select cast('1 day' as smallint)
select cast('2005-1-3' as smallint)
select cast('20050131' as smallint)
select id, n::int2 from kind where id != 5 and id != 6
select id, d::int2 from kind where id != 5 and id != 6
select id, v::int2 from kind where id = 7
select cast('7' as int2)
select cast('-7.6' as int2)
select cast(7 as int2)
select cast(7.5 as int2)
select cast(2.5 as int2)
select id, n::boolean from kind where id != 5 and id != 6
select id, ok::boolean from kind where id != 5 and id != 6
select cast('7' as boolean)
select cast('-7.6' as boolean)
select cast(7 as boolean)
select cast('abc' as boolean)
select cast('' as boolean)
select cast(' 7 ' as boolean)
select cast('true' as boolean)
select cast('f' as boolean)
select cast(true as boolean)
select cast(1 as boolean)
select cast(0 as boolean)
select cast(null as boolean)
select cast('2005-01-31' as boolean)
select cast('2005-01-31 10:20:30' as boolean)
select cast('10:20:30' as boolean)
select cast('1 day' as boolean)
select cast('2005-1-3' as boolean)
select cast('20050131' as boolean)
select id, n::bool from kind where id != 5 and id != 6
select cast('7' as bool)
select cast('-7.6' as bool)
select cast(7 as bool)
select id, n::varchar from kind where id != 5 and id != 6
select id, si::varchar from kind where id != 5 and id != 6
select id, b::varchar from kind where id != 5 and id != 6
select id, d::varchar from kind where id != 5 and id != 6
select id, f::varchar from kind where id != 5 and id != 6
select id, r::varchar from kind where id != 5 and id != 6
select id, ok::varchar from kind where id != 5 and id != 6
select id, v::varchar from kind where id != 5 and id != 6
select id, t::varchar from kind where id != 5 and id != 6
select id, c::varchar from kind where id != 5 and id != 6
select id, day::varchar from kind where id != 5 and id != 6
select id, tm::varchar from kind where id != 5 and id != 6
select id, ts::varchar from kind where id != 5 and id != 6
select id, tz::varchar from kind where id != 5 and id != 6
select cast('7' as varchar)
select cast('-7.6' as varchar)
select cast(7 as varchar)
select cast(7.5 as varchar)
select cast(2.5 as varchar)
select cast(-2.5 as varchar)
select cast(1e2 as varchar)
select cast('abc' as varchar)
select cast('' as varchar)
select cast(' 7 ' as varchar)
select cast('true' as varchar)
select cast('f' as varchar)
select cast(true as varchar)
select cast(1 as varchar)
select cast(0 as varchar)
select cast(null as varchar)
select cast('2005-01-31' as varchar)
select cast('2005-01-31 10:20:30' as varchar)
select cast('10:20:30' as varchar)
select cast('1 day' as varchar)
select cast('2005-1-3' as varchar)
select cast('20050131' as varchar)
select id, n::char from kind where id != 5 and id != 6
select id, si::char from kind where id != 5 and id != 6
select id, b::char from kind where id != 5 and id != 6
select id, d::char from kind where id != 5 and id != 6
select id, f::char from kind where id != 5 and id != 6
select id, r::char from kind where id != 5 and id != 6
select id, ok::char from kind where id != 5 and id != 6
select id, v::char from kind where id != 5 and id != 6
select id, t::char from kind where id != 5 and id != 6
select id, c::char from kind where id != 5 and id != 6
select id, day::char from kind where id != 5 and id != 6
select id, tm::char from kind where id != 5 and id != 6
select id, ts::char from kind where id != 5 and id != 6
select id, tz::char from kind where id != 5 and id != 6
select cast('7' as char)
select cast('-7.6' as char)
select cast(7 as char)
select cast(7.5 as char)
select cast(2.5 as char)
select cast(-2.5 as char)
select cast(1e2 as char)
select cast('abc' as char)
select cast('' as char)
select cast(' 7 ' as char)
select cast('true' as char)
select cast('f' as char)
select cast(true as char)
select cast(1 as char)
select cast(0 as char)
select cast(null as char)
select cast('2005-01-31' as char)
select cast('2005-01-31 10:20:30' as char)
select cast('10:20:30' as char)
select cast('1 day' as char)
select cast('2005-1-3' as char)
select cast('20050131' as char)
select id, n::character from kind where id != 5 and id != 6
select id, d::character from kind where id != 5 and id != 6
select id, v::character from kind where id != 5 and id != 6
select id, ts::character from kind where id != 5 and id != 6
select cast('7' as character)
select cast('-7.6' as character)
select cast(7 as character)
select cast(7.5 as character)
select cast(2.5 as character)
select id, n::text from kind where id != 5 and id != 6
select id, si::text from kind where id != 5 and id != 6
select id, b::text from kind where id != 5 and id != 6
select id, d::text from kind where id != 5 and id != 6
select id, f::text from kind where id != 5 and id != 6
select id, r::text from kind where id != 5 and id != 6
select id, ok::text from kind where id != 5 and id != 6
select id, v::text from kind where id != 5 and id != 6
select id, t::text from kind where id != 5 and id != 6
select id, c::text from kind where id != 5 and id != 6
select id, day::text from kind where id != 5 and id != 6
select id, tm::text from kind where id != 5 and id != 6
select id, ts::text from kind where id != 5 and id != 6
select id, tz::text from kind where id != 5 and id != 6
select cast('7' as text)
select cast('-7.6' as text)
select cast(7 as text)
select cast(7.5 as text)
select cast(2.5 as text)
select cast(-2.5 as text)
select cast(1e2 as text)
select cast('abc' as text)
select cast('' as text)
select cast(' 7 ' as text)
select cast('true' as text)
select cast('f' as text)
select cast(true as text)
select cast(1 as text)
select cast(0 as text)
select cast(null as text)
select cast('2005-01-31' as text)
select cast('2005-01-31 10:20:30' as text)
select cast('10:20:30' as text)
select cast('1 day' as text)
select cast('2005-1-3' as text)
select cast('20050131' as text)
select id, day::date from kind where id != 5 and id != 6
select id, ts::date from kind where id != 5 and id != 6
select id, tz::date from kind where id != 5 and id != 6
select cast('7' as date)
select cast('-7.6' as date)
select cast('abc' as date)
select cast('' as date)
select cast(' 7 ' as date)
select cast('true' as date)
select cast('f' as date)
select cast(null as date)
select cast('2005-01-31' as date)
select cast('2005-01-31 10:20:30' as date)
select cast('10:20:30' as date)
select cast('1 day' as date)
select cast('2005-1-3' as date)
select cast('20050131' as date)
select id, tm::time from kind where id != 5 and id != 6
select id, ts::time from kind where id != 5 and id != 6
select id, tz::time from kind where id != 5 and id != 6
select cast('7' as time)
select cast('-7.6' as time)
select cast('abc' as time)
select cast('' as time)
select cast(' 7 ' as time)
select cast('true' as time)
select cast('f' as time)
select cast(null as time)
select cast('2005-01-31' as time)
select cast('2005-01-31 10:20:30' as time)
select cast('10:20:30' as time)
select cast('1 day' as time)
select cast('2005-1-3' as time)
select cast('20050131' as time)
select id, day::timestamp from kind where id != 5 and id != 6
select id, ts::timestamp from kind where id != 5 and id != 6
select id, tz::timestamp from kind where id != 5 and id != 6
select cast('7' as timestamp)
select cast('-7.6' as timestamp)
select cast('abc' as timestamp)
select cast('' as timestamp)
select cast(' 7 ' as timestamp)
select cast('true' as timestamp)
select cast('f' as timestamp)
select cast(null as timestamp)
select cast('2005-01-31' as timestamp)
select cast('2005-01-31 10:20:30' as timestamp)
select cast('10:20:30' as timestamp)
select cast('1 day' as timestamp)
select cast('2005-1-3' as timestamp)
select cast('20050131' as timestamp)
select id, tm::interval from kind where id != 5 and id != 6
select cast('7' as interval)
select cast('-7.6' as interval)
select cast('abc' as interval)
select cast('' as interval)
select cast(' 7 ' as interval)
select cast('true' as interval)
select cast('f' as interval)
select cast(null as interval)
select cast('2005-01-31' as interval)
select cast('2005-01-31 10:20:30' as interval)
select cast('10:20:30' as interval)
select cast('1 day' as interval)
select cast('2005-1-3' as interval)
select cast('20050131' as interval)
select id, n::float8 from kind where id != 5 and id != 6
select id, si::float8 from kind where id != 5 and id != 6
select id, b::float8 from kind where id != 5 and id != 6
select id, d::float8 from kind where id != 5 and id != 6
select id, f::float8 from kind where id != 5 and id != 6
select id, r::float8 from kind where id != 5 and id != 6
select id, v::float8 from kind where id = 7
select id, t::float8 from kind where id = 7
select id, c::float8 from kind where id = 7
select cast('7' as float8)
select cast('-7.6' as float8)
select cast(7 as float8)
select cast(7.5 as float8)
select cast(2.5 as float8)
select cast(-2.5 as float8)
select cast(1e2 as float8)
select cast('abc' as float8)
select cast('' as float8)
select cast(' 7 ' as float8)
select cast('true' as float8)
select cast('f' as float8)
select cast(1 as float8)
select cast(0 as float8)
select cast(null as float8)
select cast('2005-01-31' as float8)
select cast('2005-01-31 10:20:30' as float8)
select cast('10:20:30' as float8)
select cast('1 day' as float8)
select cast('2005-1-3' as float8)
select cast('20050131' as float8)
select id, n::float from kind where id != 5 and id != 6
select id, d::float from kind where id != 5 and id != 6
select id, v::float from kind where id = 7
select cast('7' as float)
select cast('-7.6' as float)
select cast(7 as float)
select cast(7.5 as float)
select cast(2.5 as float)
select id, n::real from kind where id != 5 and id != 6
select id, si::real from kind where id != 5 and id != 6
select id, b::real from kind where id != 5 and id != 6
select id, d::real from kind where id != 5 and id != 6
select id, f::real from kind where id != 5 and id != 6
select id, r::real from kind where id != 5 and id != 6
select id, v::real from kind where id = 7
select id, t::real from kind where id = 7
select id, c::real from kind where id = 7
select cast('7' as real)
select cast('-7.6' as real)
select cast(7 as real)
select cast(7.5 as real)
select cast(2.5 as real)
select cast(-2.5 as real)
select cast(1e2 as real)
select cast('abc' as real)
select cast('' as real)
select cast(' 7 ' as real)
select cast('true' as real)
select cast('f' as real)
select cast(1 as real)
select cast(0 as real)
select cast(null as real)
select cast('2005-01-31' as real)
select cast('2005-01-31 10:20:30' as real)
select cast('10:20:30' as real)
select cast('1 day' as real)
select cast('2005-1-3' as real)
select cast('20050131' as real)
select id, n::numeric from kind where id != 5 and id != 6
select id, si::numeric from kind where id != 5 and id != 6
select id, b::numeric from kind where id != 5 and id != 6
select id, d::numeric from kind where id != 5 and id != 6
select id, f::numeric from kind where id != 5 and id != 6
select id, r::numeric from kind where id != 5 and id != 6
select id, v::numeric from kind where id = 7
select id, t::numeric from kind where id = 7
select id, c::numeric from kind where id = 7
select cast('7' as numeric)
select cast('-7.6' as numeric)
select cast(7 as numeric)
select cast(7.5 as numeric)
select cast(2.5 as numeric)
select cast(-2.5 as numeric)
select cast(1e2 as numeric)
select cast('abc' as numeric)
select cast('' as numeric)
select cast(' 7 ' as numeric)
select cast('true' as numeric)
select cast('f' as numeric)
select cast(1 as numeric)
select cast(0 as numeric)
select cast(null as numeric)
select cast('2005-01-31' as numeric)
select cast('2005-01-31 10:20:30' as numeric)
select cast('10:20:30' as numeric)
select cast('1 day' as numeric)
select cast('2005-1-3' as numeric)
select cast('20050131' as numeric)
select id, n::decimal from kind where id != 5 and id != 6
select id, d::decimal from kind where id != 5 and id != 6
select id, v::decimal from kind where id = 7
select cast('7' as decimal)
select cast('-7.6' as decimal)
select cast(7 as decimal)
select cast(7.5 as decimal)
select cast(2.5 as decimal)
select id, ts::timestamptz from kind where id != 5 and id != 6
select cast('7' as timestamptz)
select cast('-7.6' as timestamptz)
select id, cast(n as text) || 'x' from kind where id != 5 and id != 6
select id, n::text::integer from kind where id != 5 and id != 6
select id, v::text || t::text from kind where id != 5 and id != 6
select id, cast(d as integer) + 1 from kind where id != 5 and id != 6
select id, d::integer / 2 from kind where id != 5 and id != 6
select id, (d * 2)::integer from kind where id != 5 and id != 6
select id, cast(n as numeric) / 2 from kind where id != 5 and id != 6
select id, n::float8 / 2 from kind where id != 5 and id != 6
select id, cast(n as real) / 2 from kind where id != 5 and id != 6
select id, cast(ts as date) - cast(day as date) from kind where id != 5 and id != 6
select id, cast(ts as time) from kind where id != 5 and id != 6
select id, cast(day as timestamp) from kind where id != 5 and id != 6
select id, '12'::integer + 1 from kind where id != 5 and id != 6
select id, cast('12' as integer) * 2 from kind where id != 5 and id != 6
select id, n + si::numeric from kind where id != 5 and id != 6
select id, cast(cast(d as integer) as text) from kind where id != 5 and id != 6
select id, (n > 0)::integer from kind where id != 5 and id != 6
select id, (n > 0)::text from kind where id != 5 and id != 6
select id, ok::integer + 1 from kind where id != 5 and id != 6
select id, c::text || '!' from kind where id != 5 and id != 6
select id, c::varchar || '!' from kind where id != 5 and id != 6
select id, lower(n::text) from kind where id != 5 and id != 6
select id, upper(v::text) from kind where id != 5 and id != 6
select id, cast(v as varchar) from kind where id != 5 and id != 6
select id, n / cast(id + 1 as numeric) from kind where id < 3
select id, n / cast((id + 1) as numeric) from kind where id < 3
select id, cast(id + 1 as numeric) * 2 from kind where id < 3
select id, cast(id + 1 as numeric) from kind where id < 3
