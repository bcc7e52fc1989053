WITH RECURSIVE tree(id, path) AS (
    SELECT id, name::text FROM nodes WHERE parent IS NULL
    UNION ALL
    SELECT n.id, t.path || '/;' || n.name FROM nodes n, tree t WHERE n.parent = t.id
), /* two */ totals AS (SELECT id, count(*) FROM leaves GROUP BY 1)
SELECT * FROM tree NATURAL LEFT JOIN totals ORDER BY path;

SELECT date_trunc('month', at)::date AS month,
       sum(amount) OVER (PARTITION BY kind ORDER BY at ROWS BETWEEN 1 PRECEDING AND CURRENT ROW),
       CASE WHEN amount < 0 THEN 'out;' WHEN amount > 0 THEN 'in;' END,
       amounts[1:2], json -> 'a' ->> 'b;', json #>> '{a,b}', x @> ARRAY[1, 2], y ? 'z'
  FROM movements
 WHERE at BETWEEN DATE '2020-01-01' AND '2020-12-31' AND note !~* '^;--/*' AND id <> ALL ('{1,2}');
SELECT 2 * -1, 2 - -1, 3 --1;
 , 4 */* ; */5, @ -5, |/ 25, 5 !=- 6, 7 %% 2;
