-- One row for each kind of value, in a column for each type.
create table kind (
    id integer primary key, si smallint, n integer, b bigint, d numeric(12,4), r real,
    f double precision, c char(6), v varchar(40), t text, ok boolean, day date, tm time,
    ts timestamp, tz timestamptz
);
-- Operands for every pair of operators: numbers, truth values, strings.
create table operand (
    id integer primary key, n1 integer, n2 integer, n3 integer, b1 boolean, b2 boolean, b3 boolean,
    s1 varchar(20), s2 varchar(20), s3 varchar(20)
);
-- Strings at which databases disagree.
create table word (id integer primary key, w varchar(40), pattern varchar(40));
-- Days and moments at which calendars disagree.
create table moment (id integer primary key, d date, ts timestamp, fine timestamp, tz timestamptz);
-- Two lists to be joined, with rows on both sides that have no partner.
create table parent (id integer, label varchar(20), size integer);
create table child (id integer, parent_id integer, label varchar(20), weight numeric(8,2));
-- Columns with defaults.
create table made (
    id integer primary key, label varchar(20) default 'none' not null, n integer default 7,
    price numeric(8,2) default 9.99, ok boolean default true, day date default '2000-01-01', note text
);
-- An application: a shop, its log, and accounts.
create table customer (
    id integer primary key, name varchar(60) not null, email varchar(80), city varchar(40),
    country char(2), joined date, vip boolean default false, credit numeric(10,2), referrer integer
);
create table product (
    id integer primary key, name varchar(60), category varchar(30), price numeric(10,2), stock integer,
    weight double precision, discontinued boolean default false, code varchar(20)
);
create table purchase (
    id integer primary key, customer_id integer, product_id integer, quantity integer,
    price numeric(10,2), ordered timestamp, status varchar(12), note text
);
create table logline (
    id bigint primary key, happened timestamp, level varchar(8), source varchar(30), message text, ms integer,
    status smallint
);
create table account (
    id integer primary key, owner varchar(40), balance numeric(14,2), rate double precision, opened date,
    closed date, active boolean, pin char(4)
);
create table transfer (
    id integer primary key, from_id integer, to_id integer, amount numeric(14,2), made timestamptz,
    memo text
);
-- A name that must be quoted in both.
create table "order" (id integer primary key, "select" integer, "Mixed Case" varchar(20));
