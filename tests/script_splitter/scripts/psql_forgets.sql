select 1 + \r
select 2;
select (3; /* a */ \reset
select 4; -- b
\r
select 5 -- c
\r select 6;
select 7;
