-- The tables of schema.sql as they are in MySQL.
create table item (
    sku varchar(20) not null primary key,
    name varchar(100) not null,
    price numeric(8,2),
    stock integer default 0,
    listed boolean default true,
    added date
);

create table sale (
    id integer not null auto_increment primary key,
    sku varchar(20) not null,
    quantity integer not null,
    sold datetime not null,
    note text,
    foreign key (sku) references item (sku)
);
