select 1; select "a; 
select 2;
