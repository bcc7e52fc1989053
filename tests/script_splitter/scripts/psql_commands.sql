\set ON_ERROR_STOP off
\set name 'it''s; "one"'
\unset name
\echo begin; 'of the' "script;" `echo ;`
\pset format unaligned \pset tuples_only on
select 1 \g
select 2 \gx
select 3 \g (format=csv)
select 4 as x \gset p_
select 5 \; select 6 \; select 7;
select 8\;select 9\g
\if true
select 10;
\endif
select :name, :'name', :"name", a::text, b[1:2];
select 11 \echo inside; the statement
 + 12;
\p
select 14; \echo 'a \\ b' \\ select 15;
\! true; \\ not sql;
\timing off
\x \x
select '\g', "\g", $$\g$$, '
\g
';
select 1\:\:int;
select 16 \gdesc
\g
\copyright
select 17
\w /dev/null
;
\no such command; select 18;
select 19 -- \g
\g | cat >/dev/null ; \\ still;
