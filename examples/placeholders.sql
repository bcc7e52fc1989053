-- Statements as programs keep them, each with the placeholders of its library.
select name, price from item where sku = ? and price < ?;
select name from item where price < :most and stock > :least limit :count offset :first;
insert into sale (sku, quantity, sold) values ($1, $2, current_date);
select strpos(name, $2) from item where sku = $1;
select name, stock %% 12 as rest from item where name like %(start)s || '%%';
