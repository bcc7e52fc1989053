-- Statements as the application keeps them.
select name, price from item where price < :most and stock > :least order by price, sku limit :count;
select id, quantity from sale where sku = $1 and sold >= $2 order by id;
