select 1;
select 'café; ÿ', été;
select 2;
