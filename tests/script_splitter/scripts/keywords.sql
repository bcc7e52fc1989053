begin; commit; end; start transaction; rollback; savepoint s; release s;
create foreign table begin (a int) server s; create publication p; select 1;
create function_x; create or drop; create or replace view v as select 1; create procedural language x;
select begin, "end", case when a then 'end' end from function; call p(); close f; select 2;
create temp function f() begin; select 3; create table if not exists begin (end int); end;
prepare q (int) as select $1; execute q (1); declare c cursor for select ';'; fetch all from c;
explain (analyze, format json) select 1; set search_path to "a;", 'b;'; notify n, 'it''s;';
