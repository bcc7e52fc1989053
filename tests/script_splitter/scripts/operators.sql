select 1+1, 1-1, 1*1, 1/1, 1%1, 1^1, -1, +1, @1, ~1, !!1, |/1, ||/1;
select a<b, a>b, a<=b, a>=b, a<>b, a!=b, a=b, a=>b, a:=b, a::b;
select a||b, a&b, a|b, a#b, a<<b, a>>b, a&&b, a@@b, a->b, a->>b, a#>b, a#>>b, a?b, a?|b, a?&b, a@>b, a<@b;
select a~b, a~*b, a!~b, a!~*b, a~~b, a!~~*b, a OPERATOR(pg_catalog.+) b;
select a[1], a[1:2], a[:], (a).b, (a.b).*, a.*, b."c".d;
select 1.5, .5, 5., 1e5, 1.e+5, .5E-5, 0, 00, 1..2;
select -- a
+ 1, - /* b */ - 2;
create operator === (leftarg = int, rightarg = int, function = eq);
