-- one;
--two;
--
---- three ';
/* four; */ /* five /* six; /* seven; */ */ */ select 1 /* eight; */; -- nine;
/**/select/**/2/**/;/**/
/***/select 3/*/**/*/;
/* unlike 'this */ select 4 /* ' */;
select 5 -- ten ' " $$ /*
;
select '-- eleven', "/* twelve", $$ -- /* $$;
/* -- */ select 6; -- /* thirteen
select 7 --
--
;
/* *//* *//* / * */select 8;
