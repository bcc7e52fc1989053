select 1; select $a$ ; $b$ $$ ; $A$
select 2;
