select 1; /* a /* b */ ; select 2;
select 3;
