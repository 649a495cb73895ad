-- Takes the rows of this session over into an order or template: each quantity becomes a line in its unit, in the order of
-- the rows. A template keeps all lines with their suppliers. An order without a supplier takes that of the first line that
-- has one; lines of other suppliers go into new orders of theirs, with this order's moment and warehouse. The sources are
-- recorded. Without such rows nothing changes.
--
-- a_DDOBID_ZDROJ, a_DDOBIDVZOR_ZDROJ, a_DODKID_ZDROJ: the order, template or note that the rows were taken from, null for
-- none.
--
-- Refusals: ML040, ML041 no save is under way; ML012, ML013 the document is gone or closed; ML027 it is its own
-- source; ML055 a source is gone.
--
-- in: a_DDOBID integer
-- in: a_DDOBID_ZDROJ integer
-- in: a_DDOBIDVZOR_ZDROJ integer
-- in: a_DODKID_ZDROJ integer
-- after failure: staging refused

select refuse_closed_staging() as refusal;

-- A save that was given up, or has come before, is over.
select refuse('ML041') as refusal
where exists (select 1 from ULOZENI u join SAVE_IDENTITY s on s.IDENTITA = u.IDENTITA);

insert into ULOZENI (IDENTITA, UZIVATEL, DRUH, DOKLAD)
select IDENTITA, current_user_name(), 'DODOBJEDNAVKA', coalesce(:a_DDOBID, 0) from SAVE_IDENTITY where IDENTITA is not null;

-- include: note-save

select refuse_closed_order(:a_DDOBID) as refusal;
select refuse_own_order(:a_DDOBID, :a_DDOBID_ZDROJ) as refusal;
select refuse_own_order(:a_DDOBID, :a_DDOBIDVZOR_ZDROJ) as refusal;

select refuse_unknown_source(null, :a_DDOBID_ZDROJ) as refusal;
select refuse_unknown_source(null, :a_DDOBIDVZOR_ZDROJ) as refusal;
select refuse_unknown_source(:a_DODKID_ZDROJ, null) as refusal;

update DODOBJEDNAVKA
set DODVID = (select DODVID from ORDER_STAGED where DODVID is not null order by PLACE limit 1)
where ID = :a_DDOBID and VZOR = 0 and DODVID is null and exists (select 1 from ORDER_STAGED where DODVID is not null);

-- Where each supplier's lines go: a template keeps them all, an order those of its own supplier and those without one.
delete from ORDER_TARGET;

insert into ORDER_TARGET (DODVID, DDOBID)
select distinct l.DODVID, o.ID
from ORDER_STAGED l
join DODOBJEDNAVKA o on o.ID = :a_DDOBID
where o.VZOR = 1 or l.DODVID is null or l.DODVID = o.DODVID;

insert into ORDER_TARGET (DODVID, DDOBID)
select DODVID, (select max(seq) from sqlite_sequence where name = 'DODOBJEDNAVKA') + row_number() over (order by min(PLACE))
from ORDER_STAGED
where DODVID is not null and DODVID not in (select DODVID from ORDER_TARGET where DODVID is not null)
group by DODVID
order by min(PLACE);

-- A new order's number follows its identifier; one that somebody gave out elsewhere is passed over for the next free one.
insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, DODVID, SKLDID)
with recursive
    made (ID, DODVID, PLACE) as materialized (
        select DDOBID, DODVID, row_number() over (order by DDOBID) from ORDER_TARGET where DDOBID <> :a_DDOBID),
    serial (N, ISFREE, FREEBEFORE) as (
        select min(ID) - 1, 0, 0 from made
        union all
        select s.N + 1,
               not exists (select 1 from DODOBJEDNAVKA x
                           where x.VZOR = 0 and x.CISLO = order_number(o.OBJEDNANIDC, s.N + 1)),
               s.FREEBEFORE + s.ISFREE
        from serial s
        join DODOBJEDNAVKA o on o.ID = :a_DDOBID
        where s.FREEBEFORE + s.ISFREE < (select count(*) from made))
select m.ID, 0, order_number(o.OBJEDNANIDC, s.N), o.OBJEDNANIDC, m.DODVID, o.SKLDID
from made m
join serial s on s.ISFREE = 1 and s.FREEBEFORE + 1 = m.PLACE
join DODOBJEDNAVKA o on o.ID = :a_DDOBID;

-- Only a template's lines keep a supplier of their own: an order's lines have the order's. New orders have no line yet.
insert into DODOBJPOL (DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI, POPIS, KOMENTAR)
select t.DDOBID,
       iif(t.DDOBID = :a_DDOBID, (select coalesce(max(PORADI), 0) from DODOBJPOL where DDOBID = :a_DDOBID), 0)
           + row_number() over (partition by t.DDOBID order by l.PLACE),
       l.SKLPID, l.UNITID, coalesce(l.SKLDID, o.SKLDID), iif(o.VZOR = 1, l.DODVID, null), l.MNOZSTVI, l.POPIS, l.KOMENTAR
from ORDER_STAGED l
join ORDER_TARGET t on t.DODVID is l.DODVID
join DODOBJEDNAVKA o on o.ID = :a_DDOBID
order by l.PLACE;

insert into DODOBJZDROJ (DDOBID, DODKIDZDROJ, DDOBIDZDROJ)
select t.DDOBID, s.DODKID, s.DDOBID
from (select distinct DDOBID from ORDER_TARGET) t
join (select :a_DODKID_ZDROJ as DODKID, null as DDOBID
      union all select null, :a_DDOBID_ZDROJ
      union all select null, :a_DDOBIDVZOR_ZDROJ) s
    on coalesce(s.DODKID, s.DDOBID) > 0
where true
on conflict do nothing;

insert into ORDER_CREATED (ID)
select DDOBID from ORDER_TARGET where DDOBID <> :a_DDOBID;

-- The save is over for all that the session had checked, of either kind of document.
delete from ORDER_STAGED;

delete from NOTE_STAGED;
