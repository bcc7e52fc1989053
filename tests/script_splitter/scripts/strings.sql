select '', '''', '''''', 'a''', '''a', 'a''''b';
select ';', '";', '$$;', '--;', '/*;', '\;';
select 'a'
 'b;', 'c'   -- ;
 'd';
select E'', E'\'', E'\\', E'\\\';', E'a\
b;', e';';
select n'a;', N'b', b'0', B'1', x'a', X'B;';
select U&'\0061;', U&'d!0061' UESCAPE '!', u&';';
select 'it''s', "it's", "it""s;", U&"a\0062;", U&"c!0062" UESCAPE '!';
select 'é;ü€', 'emoji 😀;', "naïve;", naïve, 名前 from 表;
select '
;
', "
;
", E'
;
';
