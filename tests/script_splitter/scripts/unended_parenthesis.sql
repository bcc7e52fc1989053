select 1; select (2; select 3;
select 4;
