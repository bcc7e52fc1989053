-- What pg_dump --no-owner --no-privileges --inserts writes, in short.
SELECT pg_catalog.set_config('search_path', '', false);

CREATE TABLE public.item (
    sku text NOT NULL,
    name text NOT NULL,
    price numeric(8,2),
    stock integer DEFAULT 0,
    listed boolean DEFAULT true,
    added date
);

CREATE TABLE public.sale (
    id integer NOT NULL,
    sku text NOT NULL,
    quantity integer NOT NULL,
    sold timestamp without time zone NOT NULL,
    note text
);

CREATE SEQUENCE public.sale_id_seq AS integer OWNED BY public.sale.id;
ALTER TABLE public.sale ALTER COLUMN id SET DEFAULT nextval('public.sale_id_seq');

INSERT INTO public.item VALUES ('A-100', 'Teapot', 24.90, 12, true, '2004-11-02');
INSERT INTO public.item VALUES ('A-200', 'Cup', 6.50, 80, true, '2004-11-02');
INSERT INTO public.item VALUES ('A-300', 'teapot', 18.00, 1, true, '2005-01-31');
INSERT INTO public.item VALUES ('B-100', 'baker''s apron', 19.00, 5, true, '2005-02-28');
INSERT INTO public.item VALUES ('B-200', 'Tea tray', 45.00, NULL, false, '2005-03-01');
INSERT INTO public.item VALUES ('B-300', 'Label "it''s fresh"', 0.10, 500, NULL, NULL);

INSERT INTO public.sale VALUES (1, 'A-100', 2, '2005-01-03 09:15:00', NULL);
INSERT INTO public.sale VALUES (2, 'A-200', 12, '2005-01-03 09:15:00', 'gift');
INSERT INTO public.sale VALUES (3, 'A-200', 7, '2005-02-11 17:40:05', NULL);
INSERT INTO public.sale VALUES (4, 'B-100', 1, '2005-02-28 23:59:59', 'by post');
INSERT INTO public.sale VALUES (5, 'A-100', 1, '2005-03-05 10:00:00', 'Gift');
INSERT INTO public.sale VALUES (6, 'B-300', 100, '2005-12-24 12:30:00', NULL);

SELECT pg_catalog.setval('public.sale_id_seq', 6, true);
ALTER TABLE ONLY public.item ADD CONSTRAINT item_pkey PRIMARY KEY (sku);
ALTER TABLE ONLY public.sale ADD CONSTRAINT sale_pkey PRIMARY KEY (id);
ALTER TABLE ONLY public.sale ADD CONSTRAINT sale_sku_fkey FOREIGN KEY (sku) REFERENCES public.item(sku);
