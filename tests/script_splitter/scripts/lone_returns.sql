select 1; -- aselect 2;/* b */select 3;select 'a;';-- c
-- d-- e
select 4;
select E'a''\';';select 5;
