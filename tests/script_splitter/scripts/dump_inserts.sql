SET default_tablespace = '';
INSERT INTO public.files VALUES (1, 'C:\Program Files\', '\x6465');
INSERT INTO public.files VALUES (2, 'a;b
c''d
-- e', NULL);
INSERT INTO public.files VALUES (3, U&'d\0061t\+000061;', B'0101');
INSERT INTO public.files VALUES (4, E'\\;\'', X'1F;');
INSERT INTO public.files VALUES (5, '', '''');
