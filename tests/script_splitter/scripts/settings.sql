select 'a\';
set standard_conforming_strings = off;
select 'a\';b', 'c''d', '\\', N'e\';f', E'g\';';
select B'\', U&'\', X'\';
set standard_conforming_strings to on;
select 'a\';
