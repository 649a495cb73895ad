-- The company's tables on the embedded engine. The other engine keeps the same tables and columns.
--
-- Decimals are canonical decimal texts ("-0.5": point, no needless zeros), never floating point; are_decimals(n, …) holds
-- them to that and to n decimals at most. Dates are ISO texts
-- ("2027-02-01"), moments "2027-02-01 13:45:00". Flags are 0 or 1. Names sort by Czech rules because their columns say so.

-- By which version of the sorting rules the indices over names were written; the server notes that itself.
create table RAZENI (
    NAZEV text primary key,
    VERZE text not null
) strict;

create table UZIVATEL (
    ID integer primary key autoincrement,
    JMENO text not null collate CZECH unique check (JMENO <> '')
) strict;

create table SKLAD (
    ID integer primary key autoincrement,
    NAZEV text not null collate CZECH unique check (NAZEV <> '')
) strict;

create table DODAVATEL (
    ID integer primary key autoincrement,
    JMENO text not null collate CZECH unique check (JMENO <> ''),
    MESTO text collate CZECH
) strict;

-- A rate keeps its name for ever: a percentage that returns after years is the same row with its validity moved.
create table DPH (
    ID integer primary key autoincrement,
    NAZEV text not null collate CZECH unique check (NAZEV <> ''),
    SAZBA text not null check (are_decimals(2, SAZBA) and cast(SAZBA as real) between 0 and 100),
    PLATIOD text not null,
    PLATIDO text check (PLATIDO >= PLATIOD)
) strict;

-- The company's parameters. Section DPH: DPHBLIC (1 when local VAT is on), SAZBADPHB (its rate in percent). Section
-- SKLAD: POCETMESICUDODAVEK (how many months back a delivery counts as recent).
create table GLOBALPARAM (
    SEKCE text not null,
    NAZEV text not null,
    HODNOTA text,
    primary key (SEKCE, NAZEV)
) strict;

create table SKUPSPOL1 (
    ID integer primary key autoincrement,
    NAZEV text not null collate CZECH unique check (NAZEV <> '')
) strict;

create table SKUPSPOL2 (
    ID integer primary key autoincrement,
    SSP1ID integer not null references SKUPSPOL1 (ID),
    NAZEV text not null collate CZECH check (NAZEV <> ''),
    unique (SSP1ID, NAZEV)
) strict;

create table SKUPSPOL3 (
    ID integer primary key autoincrement,
    SSP2ID integer not null references SKUPSPOL2 (ID),
    NAZEV text not null collate CZECH check (NAZEV <> ''),
    unique (SSP2ID, NAZEV)
) strict;

create table SKLADPOL (
    ID integer primary key autoincrement,
    NAZEV text not null collate CZECH unique check (NAZEV <> ''),
    SSP3ID integer not null references SKUPSPOL3 (ID),
    DPHID integer not null references DPH (ID),
    TRVANLIVOSTDNU integer check (TRVANLIVOSTDNU between 0 and 36500),
    AKTIVNI integer not null default 1 check (AKTIVNI in (0, 1))
) strict;
create index SKLADPOL_SSP3ID on SKLADPOL (SSP3ID);

-- The units of a stock item: 0 the main one, 1 and 2 the secondary ones. FAKTOR is how many main units make one of it.
create table SKPL (
    ID integer primary key autoincrement,
    SKLPID integer not null references SKLADPOL (ID),
    PORADI integer not null check (PORADI in (0, 1, 2)),
    NAZEV text not null collate CZECH check (NAZEV <> ''),
    FAKTOR text not null
        check (are_decimals(6, FAKTOR) and cast(FAKTOR as real) > 0 and (PORADI <> 0 or FAKTOR = '1')),
    unique (SKLPID, PORADI),
    unique (SKLPID, NAZEV),
    unique (ID, SKLPID)
) strict;

-- The unit price is without VAT, before the discount; both days of the validity belong to it.
create table DODCENIK (
    ID integer primary key autoincrement,
    DODVID integer not null references DODAVATEL (ID),
    SKLPID integer not null references SKLADPOL (ID),
    PLATIOD text not null,
    PLATIDO text check (PLATIDO >= PLATIOD),
    CENA text not null check (are_decimals(6, CENA)),
    SLEVA text not null default '0' check (are_decimals(2, SLEVA) and cast(SLEVA as real) between 0 and 100)
) strict;
create index DODCENIK_DODVID on DODCENIK (DODVID, SKLPID, PLATIOD);

-- At any moment a supplier lists an item at most once. A trigger refuses with a key of the table of refusals.
create trigger DODCENIK_PREKRYV before insert on DODCENIK
when exists (select 1
             from DODCENIK c
             where c.DODVID = new.DODVID and c.SKLPID = new.SKLPID
               and c.PLATIOD <= coalesce(new.PLATIDO, '9999-12-31')
               and coalesce(c.PLATIDO, '9999-12-31') >= new.PLATIOD)
begin
    select raise(abort, 'ML901');
end;

create trigger DODCENIK_PREKRYV_ZMENA before update on DODCENIK
when exists (select 1
             from DODCENIK c
             where c.ID <> old.ID and c.DODVID = new.DODVID and c.SKLPID = new.SKLPID
               and c.PLATIOD <= coalesce(new.PLATIDO, '9999-12-31')
               and coalesce(c.PLATIDO, '9999-12-31') >= new.PLATIOD)
begin
    select raise(abort, 'ML901');
end;

-- Orders and order templates: one table, one id sequence. A template has a name and no moment of ordering. An order may
-- be without a supplier until its first lines bring one.
create table DODOBJEDNAVKA (
    ID integer primary key autoincrement,
    VZOR integer not null check (VZOR in (0, 1)),
    CISLO text not null collate CZECH check (CISLO <> ''),
    NAZEV text collate CZECH,
    OBJEDNANIDC text,
    DODVID integer references DODAVATEL (ID),
    SKLDID integer not null references SKLAD (ID),
    OTEVRENO integer not null default 1 check (OTEVRENO in (0, 1)),
    unique (VZOR, CISLO),
    check ((VZOR = 1) = (OBJEDNANIDC is null)),
    check ((VZOR = 1) = (NAZEV is not null))
) strict;
create index DODOBJEDNAVKA_DODVID on DODOBJEDNAVKA (DODVID, OBJEDNANIDC);

-- MNOZSTVI is in the line's unit, DODANO (delivered so far) in the item's main unit. KOMPLETNI: nothing more is expected.
-- DODVID is the line's own supplier; null is the document's.
create table DODOBJPOL (
    ID integer primary key autoincrement,
    DDOBID integer not null references DODOBJEDNAVKA (ID) on delete cascade,
    PORADI integer not null,
    SKLPID integer not null references SKLADPOL (ID),
    SKPLID integer not null,
    SKLDID integer not null references SKLAD (ID),
    DODVID integer references DODAVATEL (ID),
    MNOZSTVI text not null check (are_decimals(6, MNOZSTVI) and MNOZSTVI <> '0'),
    DODANO text not null default '0' check (are_decimals(6, DODANO)),
    KOMPLETNI integer not null default 0 check (KOMPLETNI in (0, 1)),
    POPIS text,
    KOMENTAR text,
    unique (DDOBID, PORADI),
    foreign key (SKPLID, SKLPID) references SKPL (ID, SKLPID)
) strict;

create table DODAK (
    ID integer primary key autoincrement,
    CISLO text not null collate CZECH check (CISLO <> ''),
    DATUM text not null,
    DODVID integer not null references DODAVATEL (ID),
    SKLDID integer not null references SKLAD (ID),
    OTEVRENO integer not null default 1 check (OTEVRENO in (0, 1)),
    unique (DODVID, CISLO)
) strict;
create index DODAK_DODVID on DODAK (DODVID, DATUM);
create index DODAK_CISLO on DODAK (CISLO);

-- Quantities are in the item's main unit; a negative one is a return. A price that is not known is null.
create table DODAKPOL (
    ID integer primary key autoincrement,
    DODKID integer not null references DODAK (ID) on delete cascade,
    PORADI integer not null,
    SKLPID integer not null references SKLADPOL (ID),
    SKLDID integer not null references SKLAD (ID),
    DPHID integer references DPH (ID),
    MNOZSTVI text not null check (are_decimals(6, MNOZSTVI) and MNOZSTVI <> '0'),
    SLEVA text check (are_decimals(2, SLEVA) and cast(SLEVA as real) between 0 and 100),
    JEDNCENABBEZSLEVY text,
    JEDNDPHABEZSLEVY text,
    JEDNDPHBBEZSLEVY text,
    JEDNCENASBEZSLEVY text,
    JEDNCENABSESLEVOU text,
    JEDNDPHASESLEVOU text,
    JEDNDPHBSESLEVOU text,
    JEDNCENASSESLEVOU text,
    CENABSESLEVOU text,
    DPHASESLEVOU text,
    DPHBSESLEVOU text,
    CENASSESLEVOU text,
    CENABBEZSLEVY text,
    DPHABEZSLEVY text,
    DPHBBEZSLEVY text,
    CENASBEZSLEVY text,
    TRVANLIVOST text,
    DOBSID integer references DODOBJPOL (ID) on delete set null,
    unique (DODKID, PORADI),
    check (are_decimals(6, JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY,
                        JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU)),
    check (are_decimals(2, CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU,
                        CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY))
) strict;
create index DODAKPOL_DOBSID on DODAKPOL (DOBSID);

-- Where a document's lines were taken from; each row names one source.
create table DODAKZDROJ (
    ID integer primary key autoincrement,
    DODKID integer not null references DODAK (ID) on delete cascade,
    DODKIDZDROJ integer references DODAK (ID) on delete cascade,
    DDOBIDZDROJ integer references DODOBJEDNAVKA (ID) on delete cascade,
    check ((DODKIDZDROJ is null) <> (DDOBIDZDROJ is null)),
    check (DODKIDZDROJ <> DODKID),
    unique (DODKID, DODKIDZDROJ),
    unique (DODKID, DDOBIDZDROJ)
) strict;

create table DODOBJZDROJ (
    ID integer primary key autoincrement,
    DDOBID integer not null references DODOBJEDNAVKA (ID) on delete cascade,
    DODKIDZDROJ integer references DODAK (ID) on delete cascade,
    DDOBIDZDROJ integer references DODOBJEDNAVKA (ID) on delete cascade,
    check ((DODKIDZDROJ is null) <> (DDOBIDZDROJ is null)),
    check (DDOBIDZDROJ <> DDOBID),
    unique (DDOBID, DODKIDZDROJ),
    unique (DDOBID, DDOBIDZDROJ)
) strict;

-- Named column settings of the item editors. A shared one is listed for everybody and changed by its owner only.
create table EDITORNASTAVENI (
    ID integer primary key autoincrement,
    UZIVID integer not null references UZIVATEL (ID),
    TYPEDITACE integer not null,
    NAZEV text not null collate CZECH check (length(NAZEV) between 1 and 100),
    KOMENTAR text,
    SDILENE integer not null default 0 check (SDILENE in (0, 1)),
    DATA text,
    unique (UZIVID, TYPEDITACE, NAZEV)
) strict;

-- The setting with which a user's next editor of a type starts.
create table EDITORNASTAVENIDEF (
    UZIVID integer not null references UZIVATEL (ID),
    TYPEDITACE integer not null,
    NASTAVENIID integer references EDITORNASTAVENI (ID) on delete set null,
    primary key (UZIVID, TYPEDITACE)
) strict;

create table EDITOROKNO (
    UZIVID integer not null references UZIVATEL (ID),
    TYPEDITACE integer not null,
    DATA text,
    primary key (UZIVID, TYPEDITACE)
) strict;

-- Closing calls of saves that bore an identity, written in the same transaction as what they saved. One without a kind
-- was given up before its closing call had come: it never saves anything. Rows of a month ago are dropped by later saves.
create table ULOZENI (
    IDENTITA text not null primary key check (length(IDENTITA) = 32 and IDENTITA not glob '*[^0-9a-f]*'),
    UZIVATEL text not null,
    DRUH text check (DRUH in ('DODAK', 'DODOBJEDNAVKA')),
    DOKLAD integer,
    KDY text not null default (datetime('now')),
    check ((DRUH is null) = (DOKLAD is null))
) strict;

create index ULOZENI_KDY on ULOZENI (KDY);
