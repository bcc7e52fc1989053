select 1a;select 1E'\';select 1.5e'\';select 1a$$;select $1a;select $1$$;$$;
select 0x1F, 1_000, 1e+, 1.5.6, 1..5, $1$a$;$a$;
