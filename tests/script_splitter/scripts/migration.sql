BEGIN;
-- 0001: names; first and last
ALTER TABLE users ADD COLUMN first_name varchar(50) NOT NULL DEFAULT '', ADD COLUMN last_name text;
UPDATE users SET first_name = split_part(name, ' ', 1), last_name = split_part(name, ' ', 2);
CREATE UNIQUE INDEX CONCURRENTLY IF NOT EXISTS users_name ON users (lower(last_name), first_name) WHERE last_name <> ';';
-- 0002
CREATE TYPE mood AS ENUM ('sad;', 'it''s ok', '"happy"');
CREATE TABLE moods (at timestamptz DEFAULT now(), m mood, PRIMARY KEY (at));
DROP VIEW IF EXISTS v CASCADE;
CREATE VIEW v AS SELECT 1 AS "a;", ';' AS b;
COMMENT ON COLUMN moods.m IS $c$The mood; it's $m$one$m$ of three$c$;
GRANT SELECT, INSERT ON moods TO PUBLIC;
COMMIT;
