-- From version 2 to 3: what changes in tables, constraints, indices and data. What else is new are procedures, functions
-- and views, which every upgrade makes anew from their own files.

create table ULOZENI (
    IDENTITA text primary key check (IDENTITA ~ '^[0-9a-f]{32}$'),
    UZIVATEL text not null,
    DRUH text check (DRUH in ('DODAK', 'DODOBJEDNAVKA')),
    DOKLAD integer,
    KDY timestamp not null default timezone('UTC', now()),
    check ((DRUH is null) = (DOKLAD is null))
);

create index ULOZENI_KDY on ULOZENI (KDY);
