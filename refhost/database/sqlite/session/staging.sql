-- The rows of a save that is under way. They belong to the session: a second connection of the same user has its own.

-- One row, the state of the save: 'closed' until its rows are emptied, then 'open'; 'refused' after a failure, until the
-- rows are emptied again. LASTROW is the place of the note's row that was sent last, counted from 0.
create temp table STAGING (STATE text not null, LASTROW integer not null);
insert into STAGING (STATE, LASTROW) values ('closed', -1);

-- One row: the identity of the save that the session is about, null for none.
create temp table SAVE_IDENTITY (IDENTITA text);
insert into SAVE_IDENTITY (IDENTITA) values (null);

-- The row of a delivery note as it was sent: blanks are gone, empty texts are null. The identifiers are those of its
-- names, null for a name that does not exist.
create temp table NOTE_SENT (
    ORDERLINEID integer, SKLPID integer, SKLDID integer, DPHID integer,
    DOBSID text, SKLADPOL text, SKLAD text, DPH text, MNOZSTVI text, SLEVA text,
    JEDNCENABSL text, JEDNDPHASL text, JEDNDPHBSL text, JEDNCENASSL text,
    JEDNCENAB text, JEDNDPHA text, JEDNDPHB text, JEDNCENAS text,
    CENABSL text, DPHASL text, DPHBSL text, CENASSL text,
    CENAB text, DPHA text, DPHB text, CENAS text,
    TRVANLIVOST text
);

-- Checked rows of a delivery note, in the order in which they came. The place counts every row that was sent, so that a
-- refusal of the closing call names the row that the editor sent.
create temp table NOTE_STAGED (
    PLACE integer primary key,
    DOBSID integer, SKLPID integer, SKLDID integer, DPHID integer, MNOZSTVI text, SLEVA text,
    JEDNCENABSESLEVOU text, JEDNDPHASESLEVOU text, JEDNDPHBSESLEVOU text, JEDNCENASSESLEVOU text,
    JEDNCENABBEZSLEVY text, JEDNDPHABEZSLEVY text, JEDNDPHBBEZSLEVY text, JEDNCENASBEZSLEVY text,
    CENABSESLEVOU text, DPHASESLEVOU text, DPHBSESLEVOU text, CENASSESLEVOU text,
    CENABBEZSLEVY text, DPHABEZSLEVY text, DPHBBEZSLEVY text, CENASBEZSLEVY text,
    TRVANLIVOST text
);

create index temp.NOTE_STAGED_DOBSID on NOTE_STAGED (DOBSID);

-- The rows that become lines: those with a quantity.
create temp view NOTE_LINE as
select * from NOTE_STAGED where MNOZSTVI <> '0';

-- The row that came last, and how far a total of it may be from quantity times unit price: both prices are rounded to
-- their decimals.
create temp view NOTE_LAST as
select *, dec_add('0.02', dec_mul(dec_abs(MNOZSTVI), '0.000002')) as TOLERANCE
from NOTE_STAGED
where PLACE = (select max(PLACE) from NOTE_STAGED);

-- Each of its unit prices beside the total that it has to give, in the order in which a clash is reported.
create temp view NOTE_PAIR (ORDINAL, SKLPID, MNOZSTVI, TOLERANCE, JEDNCENA, CENA) as
with PAIR (ORDINAL) as (values (1), (2), (3), (4), (5), (6), (7), (8))
select ORDINAL, SKLPID, MNOZSTVI, TOLERANCE,
       case ORDINAL
           when 1 then JEDNCENABSESLEVOU when 2 then JEDNDPHASESLEVOU when 3 then JEDNDPHBSESLEVOU
           when 4 then JEDNCENASSESLEVOU when 5 then JEDNCENABBEZSLEVY when 6 then JEDNDPHABEZSLEVY
           when 7 then JEDNDPHBBEZSLEVY else JEDNCENASBEZSLEVY
       end,
       case ORDINAL
           when 1 then CENABSESLEVOU when 2 then DPHASESLEVOU when 3 then DPHBSESLEVOU
           when 4 then CENASSESLEVOU when 5 then CENABBEZSLEVY when 6 then DPHABEZSLEVY
           when 7 then DPHBBEZSLEVY else CENASBEZSLEVY
       end
from NOTE_LAST cross join PAIR;

-- The row of an order or template as it was sent, likewise.
create temp table ORDER_SENT (
    SKLPID integer, SKLDID integer, DODVID integer, SKLADPOL text, SKLAD text, DODAVATEL text, POPIS text, KOMENTAR text
);

-- Its quantities with their units, in the order of the editor's columns; none for a slot without a text.
create temp table ORDER_SENT_QUANTITY (
    SLOT integer primary key, MNOZSTVI text, SKPLID text, JEDNOTKY text
);

-- Checked quantities that are not 0, each of which becomes a line, in the order in which they came.
create temp table ORDER_STAGED (
    PLACE integer primary key,
    SKLPID integer, UNITID integer, SKLDID integer, DODVID integer, MNOZSTVI text, POPIS text, KOMENTAR text
);

-- Into which order the lines of each supplier go; a null supplier is that of lines without one.
create temp table ORDER_TARGET (DODVID integer, DDOBID integer);

-- The orders that this session's saves have made beside the one that was saved, for the screen to name them.
create temp table ORDER_CREATED (ID integer primary key);

create temp view SCREEN_DODOBJ_CREATED_V as
select ID as _ID from ORDER_CREATED;
