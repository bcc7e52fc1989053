select 1;
create function f() begin atomic select 2; select case when 3 then 4 end; select 5;
