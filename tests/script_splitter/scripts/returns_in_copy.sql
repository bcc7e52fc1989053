--
-- PostgreSQL database dump
--

\restrict a1b2

SET statement_timeout = 0;
SET client_encoding = 'UTF8';
SET standard_conforming_strings = on;
SELECT pg_catalog.set_config('search_path', '', false);

CREATE EXTENSION IF NOT EXISTS plpgsql WITH SCHEMA pg_catalog;


--
-- Name: people; Type: TABLE; Schema: public; Owner: owner
--

CREATE TABLE public.people (
    id integer NOT NULL,
    name text DEFAULT 'it''s; nobody'::text,
    "from" date,
    CONSTRAINT people_check CHECK ((name <> ';'::text))
);


--
-- Data for Name: people; Type: TABLE DATA; Schema: public; Owner: owner
--

COPY public.people (id, name, "from") FROM stdin;
1	Ann; the first	2020-01-01
2	It's Bob -- or not	\N
3	/* Carl	\N
4	$$Dora	2021-02-03
\.


SELECT pg_catalog.setval('public.people_id_seq', 4, true);

ALTER TABLE ONLY public.people
    ADD CONSTRAINT people_pkey PRIMARY KEY (id);

COMMENT ON TABLE public.people IS 'All of them; even Carl''s';

\unrestrict a1b2

--
-- PostgreSQL database dump complete
--

