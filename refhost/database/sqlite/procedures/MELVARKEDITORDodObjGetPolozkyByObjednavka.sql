-- The rows with which the editor of an order or template opens: the lines of an order or of a template in their order,
-- or, without a source, each item once, from the latest three other orders of the same supplier, newest first, as its
-- latest line has it.
--
-- a_DDOBID is the source, null for the latest orders.
--
-- Refusals: ML012 the document does not exist, ML021 the source does not exist, ML027 it is the document itself.
--
-- in: a_DDOBIDMASTER integer
-- in: a_DDOBID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal;
select refuse_own_order(:a_DDOBIDMASTER, :a_DDOBID) as refusal;

select refuse('ML021', 'Objednávka', :a_DDOBID) as refusal
where :a_DDOBID > 0 and not exists (select 1 from DODOBJEDNAVKA where ID = :a_DDOBID);

insert into ORDER_FILL (ITEMID, SKLDID, DODVID, UNITID, MNOZSTVI, POPIS, KOMENTAR)
with LATEST as (
    select other.ID, other.OBJEDNANIDC
    from DODOBJEDNAVKA other
    join DODOBJEDNAVKA master on master.ID = :a_DDOBIDMASTER and master.DODVID = other.DODVID and master.ID <> other.ID
    where coalesce(:a_DDOBID, 0) <= 0 and other.VZOR = 0
    order by other.OBJEDNANIDC desc, other.ID desc
    limit 3
),
TEMPLATE as (
    select p.ID,
           row_number() over (partition by p.SKLPID order by l.OBJEDNANIDC desc, l.ID desc, p.PORADI desc) as AGE,
           row_number() over (order by l.OBJEDNANIDC desc, l.ID desc, p.PORADI) as PLACE
    from LATEST l
    join DODOBJPOL p on p.DDOBID = l.ID
),
SOURCE as (
    select ID, PORADI as PLACE from DODOBJPOL where DDOBID = :a_DDOBID
    union all
    select ID, PLACE from TEMPLATE where AGE = 1
)
select p.SKLPID, p.SKLDID, coalesce(p.DODVID, o.DODVID, master.DODVID), p.SKPLID, p.MNOZSTVI, p.POPIS, p.KOMENTAR
from SOURCE s
join DODOBJPOL p on p.ID = s.ID
join DODOBJEDNAVKA o on o.ID = p.DDOBID
join DODOBJEDNAVKA master on master.ID = :a_DDOBIDMASTER
order by s.PLACE;

-- include: order-fill
