CREATE FUNCTION add(a int, b int) RETURNS int RETURN a + b;
CREATE FUNCTION two() RETURNS SETOF int
BEGIN ATOMIC
    SELECT 1;
    SELECT 2; -- end;
END;
CREATE OR REPLACE PROCEDURE swap(INOUT a int, INOUT b int)
LANGUAGE SQL
BEGIN ATOMIC
    SELECT CASE WHEN a > b THEN CASE WHEN a = 1 THEN b END ELSE a END, 'end;';
    INSERT INTO log VALUES ($$end;$$, "end");
END;
CREATE FUNCTION beginning("begin" int DEFAULT 1) RETURNS int BEGIN ATOMIC SELECT (SELECT 1); END; SELECT 3;
BEGIN; SELECT 4; END;
create /* a */ or -- b
replace function f() returns int begin atomic; select 1; end; select 5;
create function g() begin atomic select 1\; select 2; end; select 6; end; select 7;
