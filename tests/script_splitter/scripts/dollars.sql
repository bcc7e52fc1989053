select $$$$, $$;$$, $a$;$a$, $A$;$a$;$A$, $a1_$;$a1_$;
select $$'$$, $$"$$, $$--$$, $$/*$$, $$\$$;
select $a$ $b$ ; $b$ $a$, $a$$b$;$a$, $$ $a$ ; $$;
select $é$;$é$, $_$;$_$, $名$;$名$;
select a$b, a$$, a$b$ from t$; select $1, $2::int, $3+$4;
select $x$
;
-- $x
$ x$ $y$
$x$;
select $a$$a$||$a$;$a$;
