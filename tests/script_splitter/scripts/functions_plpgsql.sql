CREATE OR REPLACE FUNCTION total(p_id integer, OUT sum numeric) AS $$
DECLARE
    r record; -- a row;
BEGIN
    FOR r IN SELECT * FROM t WHERE id = p_id LOOP
        IF r.kind = 'it''s; odd' THEN
            sum := sum + r.value;
        ELSE
            EXECUTE $q$ select $1; $q$ USING r.id;
        END IF;
    END LOOP;
    RETURN;
END;
$$ LANGUAGE plpgsql STABLE;

CREATE FUNCTION quoted() RETURNS text AS '
BEGIN
    RETURN ''; it''''s'';
END;
' LANGUAGE plpgsql;

CREATE FUNCTION tagged() RETURNS text LANGUAGE plpgsql AS $function$
BEGIN
    RETURN $body$ $function; $$ $ $body$;
END $function$;

DO $do$ BEGIN PERFORM 1; END $do$;
DO LANGUAGE plpgsql $_1$BEGIN RAISE NOTICE '$_2$;'; END$_1$;
SELECT total(1);
