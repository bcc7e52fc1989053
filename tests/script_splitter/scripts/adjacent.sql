select'a'from"t"where"b"='c;'and(d)in(1,2)or$1=$$e;$$;select 1as"x;",'y'::text||'z';select(1);select"a"."b;"from c;
select E'\';'||E'\'';select case when'a'='b'then';'end;select-1,+1,*from t;select u&"a;",u&'b;',u & 'c;';select xe'\';select 1;
