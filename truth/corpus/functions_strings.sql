-- String functions, with each kind and form of argument.
select id, bit_length(w) from word
select id, bit_length(v) from kind
select id, bit_length(t) from kind
select id, bit_length(c) from kind
select bit_length('Abc')
select bit_length('')
select bit_length(null)
select bit_length('  x ')
select bit_length('Zoë straße')
select bit_length('a\b')
select id, char_length(w) from word
select id, char_length(v) from kind
select id, char_length(t) from kind
select id, char_length(c) from kind
select char_length('Abc')
select char_length('')
select char_length(null)
select char_length('  x ')
select char_length('Zoë straße')
select char_length('a\b')
select id, character_length(w) from word
select id, character_length(v) from kind
select id, character_length(t) from kind
select id, character_length(c) from kind
select character_length('Abc')
select character_length('')
select character_length(null)
select character_length('  x ')
select character_length('Zoë straße')
select character_length('a\b')
select id, lower(w) from word
select id, lower(v) from kind
select id, lower(t) from kind
select id, lower(c) from kind
select lower('Abc')
select lower('')
select lower(null)
select lower('  x ')
select lower('Zoë straße')
select lower('a\b')
select id, octet_length(w) from word
select id, octet_length(v) from kind
select id, octet_length(t) from kind
select id, octet_length(c) from kind
select octet_length('Abc')
select octet_length('')
select octet_length(null)
select octet_length('  x ')
select octet_length('Zoë straße')
select octet_length('a\b')
select id, upper(w) from word
select id, upper(v) from kind
select id, upper(t) from kind
select id, upper(c) from kind
select upper('Abc')
select upper('')
select upper(null)
select upper('  x ')
select upper('Zoë straße')
select upper('a\b')
select id, ascii(w) from word
select id, ascii(v) from kind
select id, ascii(t) from kind
select id, ascii(c) from kind
select ascii('Abc')
select ascii('')
select ascii(null)
select ascii('  x ')
select ascii('Zoë straße')
select ascii('a\b')
select id, btrim(w) from word
select id, btrim(v) from kind
select id, btrim(t) from kind
select id, btrim(c) from kind
select btrim('Abc')
select btrim('')
select btrim(null)
select btrim('  x ')
select btrim('Zoë straße')
select btrim('a\b')
select id, initcap(w) from word
select id, initcap(v) from kind
select id, initcap(t) from kind
select id, initcap(c) from kind
select initcap('Abc')
select initcap('')
select initcap(null)
select initcap('  x ')
select initcap('Zoë straße')
select initcap('a\b')
select id, length(w) from word
select id, length(v) from kind
select id, length(t) from kind
select id, length(c) from kind
select length('Abc')
select length('')
select length(null)
select length('  x ')
select length('Zoë straße')
select length('a\b')
select id, ltrim(w) from word
select id, ltrim(v) from kind
select id, ltrim(t) from kind
select id, ltrim(c) from kind
select ltrim('Abc')
select ltrim('')
select ltrim(null)
select ltrim('  x ')
select ltrim('Zoë straße')
select ltrim('a\b')
select id, md5(w) from word
select id, md5(v) from kind
select id, md5(t) from kind
select id, md5(c) from kind
select md5('Abc')
select md5('')
select md5(null)
select md5('  x ')
select md5('Zoë straße')
select md5('a\b')
select id, rtrim(w) from word
select id, rtrim(v) from kind
select id, rtrim(t) from kind
select id, rtrim(c) from kind
select rtrim('Abc')
select rtrim('')
select rtrim(null)
select rtrim('  x ')
select rtrim('Zoë straße')
select rtrim('a\b')
select id, trim(w) from word
select id, trim(v) from kind
select id, trim(t) from kind
select id, trim(c) from kind
select trim('Abc')
select trim('')
select trim(null)
select trim('  x ')
select trim('Zoë straße')
select trim('a\b')
select id, quote_ident(w) from word
select id, quote_ident(v) from kind
select id, quote_ident(t) from kind
select id, quote_ident(c) from kind
select quote_ident('Abc')
select quote_ident('')
select quote_ident(null)
select quote_ident('  x ')
select quote_ident('Zoë straße')
select quote_ident('a\b')
select id, quote_literal(w) from word
select id, quote_literal(v) from kind
select id, quote_literal(t) from kind
select id, quote_literal(c) from kind
select quote_literal('Abc')
select quote_literal('')
select quote_literal(null)
select quote_literal('  x ')
select quote_literal('Zoë straße')
select quote_literal('a\b')
-- Parts of strings.
select id, substring(w from 2) from word
select id, substring(w from 2 for 3) from word
select id, substring(w from 0 for 3) from word
select id, substring(w from -1 for 4) from word
select id, substring(w from 3 for 0) from word
select id, substring(w, 2) from word
select id, substring(w, 2, 3) from word
select id, substr(w, 2) from word
select id, substr(w, 2, 3) from word
select id, substr(w, 0) from word
select id, substr(w, 0, 2) from word
select id, substr(w, -2) from word
select id, substr(w, -1, 3) from word
select id, substr(w, 100) from word
select id, substr(w, id) from word
select id, substring(w from 'n+') from word
select id, substring(w from 'a#"n#"_%' for '#') from word
select id, substring(w from id) from word
select id, substring(w from 1 for id) from word
select id, position('n' in w) from word
select id, position('N' in w) from word
select id, position('' in w) from word
select id, position('ë' in w) from word
select id, position(w in 'banana') from word
select id, strpos(w, 'n') from word
select id, strpos(w, 'N') from word
select id, strpos(w, '') from word
select id, strpos('banana', w) from word
select id, overlay(w placing 'XX' from 2 for 1) from word
select id, overlay(w placing 'XX' from 2) from word
select id, overlay(w placing 'XX' from 2 for 0) from word
select id, overlay(w placing 'é' from 1 for 2) from word
select id, overlay(w placing '' from 2 for 2) from word
select id, overlay(w placing 'Z' from 50 for 2) from word
select id, split_part(w, ' ', 1) from word
select id, split_part(w, 'n', 2) from word
select id, reverse(w) from word
-- Trimming, filling, repeating, replacing.
select id, trim(both 'a' from w) from word where id != 99
select id, trim(leading 'a' from w) from word where id != 99
select id, trim(trailing 'a' from w) from word where id != 99
select id, trim(both from w) from word where id != 99
select id, trim(leading from w) from word where id != 99
select id, trim(trailing from w) from word where id != 99
select id, trim(from w) from word where id != 99
select id, trim(both 'an' from w) from word where id != 99
select id, trim(leading 'an' from w) from word where id != 99
select id, trim(trailing 'na' from w) from word where id != 99
select id, trim(both 'A' from w) from word where id != 99
select id, trim(both '' from w) from word where id != 99
select id, ltrim(w, 'a') from word where id != 99
select id, rtrim(w, 'a') from word where id != 99
select id, btrim(w, 'a') from word where id != 99
select id, ltrim(w, 'an') from word where id != 99
select id, rtrim(w, 'na') from word where id != 99
select id, btrim(w, 'an') from word where id != 99
select id, ltrim(w, ' ') from word where id != 99
select id, rtrim(w, ' ') from word where id != 99
select id, ltrim(w, 'A') from word where id != 99
select id, rtrim(w, '') from word where id != 99
select id, ltrim(w, pattern) from word where id != 99
select id, rtrim(w, pattern) from word where id != 99
select id, lpad(w, 6) from word where id != 99
select id, rpad(w, 6) from word where id != 99
select id, lpad(w, 6, '.') from word where id != 99
select id, rpad(w, 6, '.') from word where id != 99
select id, lpad(w, 2, '.') from word where id != 99
select id, rpad(w, 2, '.') from word where id != 99
select id, lpad(w, 10, 'xy') from word where id != 99
select id, rpad(w, 10, 'xy') from word where id != 99
select id, lpad(w, 0, 'x') from word where id != 99
select id, lpad(w, -1, 'x') from word where id != 99
select id, lpad(w, 6, '') from word where id != 99
select id, rpad(w, 6, 'é') from word where id != 99
select id, repeat(w, 2) from word where id != 99
select id, repeat(w, 0) from word where id != 99
select id, repeat(w, -1) from word where id != 99
select id, repeat('ab', id) from word where id != 99
select id, replace(w, 'a', 'b') from word where id != 99
select id, replace(w, 'A', 'b') from word where id != 99
select id, replace(w, 'nn', '') from word where id != 99
select id, replace(w, '', 'x') from word where id != 99
select id, replace(w, 'ß', 'ss') from word where id != 99
select id, replace(w, ' ', '_') from word where id != 99
select id, translate(w, 'an', 'xy') from word where id != 99
select id, translate(w, 'a', '') from word where id != 99
select id, translate(w, 'abc', 'x') from word where id != 99
select id, concat(w, '!') from word where id != 99
select id, concat(w, null, 'x') from word where id != 99
select id, md5(w) from word where id != 99
select id, to_hex(id) from word where id != 99
select id, encode('abc', 'hex') from word where id != 99
select id, encode('abc', 'base64') from word where id != 99
select id, decode('616263', 'hex') from word where id != 99
select id, decode('YWJj', 'base64') from word where id != 99
select id, chr(id + 64) from word where id != 99
select id, ascii(w) from word where id != 99
select id, chr(65) from word where id != 99
select id, chr(233) from word where id != 99
select id, chr(8364) from word where id != 99
select id, length(w || w) from word where id != 99
select id, upper(lower(w)) from word where id != 99
select id, initcap(w) from word where id != 99
select id, coalesce(w, '') from word where id != 99
select id, nullif(w, '') from word where id != 99
select id, nullif(w, 'ANNA') from word where id != 99
select id, nullif(w, 'a') from word where id != 99
select length('a ')
select char_length('日本')
select octet_length('日本')
select length('日本')
select bit_length('é')
select chr(10)
select ascii('é')
select repeat('ab', 3)
select lpad('7', 3, '0')
select rpad('7', 3, '0')
select substring('hello' from 2 for 3)
select substring('hello', 2, 3)
select position('l' in 'hello')
select overlay('Txxxxas' placing 'hom' from 2 for 4)
select upper('é')
select lower('É')
select initcap('hello big world')
select pg_client_encoding()
select quote_literal('O')
select quote_ident('Foo bar')
select translate('12345', '14', 'ax')
select length('a\nb')
select length('\\')
select strpos('high', 'ig')
select substr('alphabet', 3, 2)
select to_hex(255)
select to_hex(-1)
select trim('  x  ')
select trim(both 'x' from 'xxaxx')
select ltrim('zzzytest', 'xyz')
select btrim('xyxtrimyyx', 'xyz')
select UPPER('x')
select Length('x')
select id, lower(v) from kind where id != 5 and id != 6
select id, upper(c) from kind where id != 5 and id != 6
select id, length(n::text) from kind where id != 5 and id != 6
select id, length(c) from kind where id != 5 and id != 6
select id, lpad(n::text, 5, '0') from kind where id != 5 and id != 6
select id, substr(v, 1, n) from kind where id != 5 and id != 6
select id, repeat(v, si) from kind where id != 5 and id != 6
select id, replace(v, c, '-') from kind where id != 5 and id != 6
select id, position(c in v) from kind where id != 5 and id != 6
select id, lpad(v, si) from kind where id != 5 and id != 6
