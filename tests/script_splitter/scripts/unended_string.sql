select 1;
select 'it's; select 'it';
select 2;
