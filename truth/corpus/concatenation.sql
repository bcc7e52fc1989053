-- || with each kind of value.
select id, v || v from kind
select id, v || 'x' from kind
select id, 'x' || v from kind
select id, v || n from kind
select id, n || v from kind
select id, v || c from kind
select id, c || v from kind
select id, c || '!' from kind
select id, t || t from kind
select id, v || ok from kind
select id, v || day from kind
select id, v || ts from kind
select id, v || tm from kind
select id, v || d from kind
select id, v || f from kind
select id, v || null from kind
select id, null || v from kind
select id, v || '' from kind
select id, v || t || c from kind
select id, n || '-' || si from kind
select id, v || n + 1 from kind
select id, '' || d from kind
select id, '' || r from kind
select id, '' || f from kind
select id, '' || ok from kind
select id, '' || tz from kind
select id, upper(v) || lower(t) from kind
select id, v || ' ' || coalesce(t, 'none') from kind
select id, '(' || c || ')' from kind
select id, '(' || trim(c) || ')' from kind
select 'a' || 'b'
select 'a' || 1
select 1 || 'a'
select 'a' || 1.50
select 'a' || 1e2
select 'a' || true
select 'a' || null
select 'a' || 'b' || 'c'
select 'a' || ''
select '' || ''
select 'tab' || chr(9) || 'end'
select 'é' || 'ß'
select 'a' || 1 + 2
select 'x' || -1
select 'x' || 7 / 2
select 'x' || (1 = 1)
select 'x' || date '2005-01-31'
select 'x' || current_date - current_date
select length('a' || 'bc')
select 'a' || 'b' like 'a%'
select 'back\slash' || '!'
select 'percent%' || '_'
