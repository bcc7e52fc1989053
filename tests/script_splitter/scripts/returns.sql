-- Queries of a shop, as its program sends them.
SELECT o.id, o."Total", c.name
  FROM orders o JOIN customers c ON c.id = o.customer_id
 WHERE o.status = 'open; waiting' AND c.name ILIKE '%o''neil%' -- the customer; by name
 ORDER BY o.id DESC LIMIT 20 OFFSET 40;

/* Stock; by warehouse */
SELECT w.name, sum(s.amount) FILTER (WHERE s.amount > 0) AS "in;stock"
  FROM warehouses w LEFT JOIN stock s USING (warehouse_id)
 GROUP BY w.name HAVING count(*) > 1;
INSERT INTO log (at, what) VALUES (now(), E'It\'s done;\n'), (now(), 'C:\temp\');
UPDATE items SET price = price * 1.05, note = note || $$; raised$$ WHERE id IN (1, 2, 3) RETURNING id;
DELETE FROM carts WHERE touched < now() - interval '30 days';
