-- Names: quoted, in capitals, reserved in one of the two.
select Id, N from kind
select ID from KIND
select K.id from kind k
select kind.id from Kind
select "id" from "kind"
select k."n" from "kind" as k
select n as "Value" from kind
select n as value from kind
select id as key from word
select id as rank from word
select id as row from word
select n as "a b" from kind
select id as index from word
select id as "group" from word
select id as system from word
select id as keys from word
select id as year from moment order by year
select id as div from word
select id as mod from word
select id as rlike from word
select id as signed from word
select id as "from" from word
select word.w as word from word
select w as read from word
select id as show from word
select id as float8 from word
select word.* from word
select w.w from word w
select w.id as "ID" from word w order by "ID"
select id as groups from word
select id as schema from word
select id as lock from word
select id as int2 from word
select id as xor from word
select id as interval from word
select id as condition from word
select id as change from word
select id as "dual" from word
select t.n as t from kind t
select o.id from "order" o
select "order".* from "order"
select MADE.id from made
select Made.id from made Made
select x.id from kind X
select id as a$b from word
select id as _x from word
