copy t from stdin;
1;
'
$$
/*
--
\.
COPY t (a, "b;") FROM STDIN WITH (FORMAT csv, DELIMITER ';');
"a;b";1
"\\.";2
\.
copy u -- b
from
stdin;
\N
\.
copy t from stdin; -- behind; it
1
\.
copy u from stdin; select 1;
2;
\.
copy t from stdin \g
3;
\.
\copy t from stdin
4;
\.
\copy t (a, b) from stdin with (format csv)
5;'
\.
copy t to stdout;
copy (select ';' from stdin) to stdout;
copy t from '/dev/null';
copy t from program 'cat; stdin';
select 2 from stdin;
copy u from stdin;
\.
copy t from stdin;
the last; to the end
