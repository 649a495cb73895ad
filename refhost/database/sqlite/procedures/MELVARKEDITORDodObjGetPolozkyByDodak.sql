-- The rows with which the editor of an order or template opens: the lines of a delivery note in their order, with what was
-- delivered in the main unit.
--
-- Refusals: ML012 the document does not exist, ML021 the note does not exist.
--
-- in: a_DDOBIDMASTER integer
-- in: a_DODKID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal;

select refuse('ML021', 'Dodací list', :a_DODKID) as refusal
where not exists (select 1 from DODAK where ID = :a_DODKID);

insert into ORDER_FILL (ITEMID, SKLDID, DODVID, UNITID, MNOZSTVI)
select p.SKLPID, p.SKLDID, d.DODVID, i.SKPLIDHL, p.MNOZSTVI
from DODAKPOL p
join DODAK d on d.ID = p.DODKID
join ITEM_V i on i.SKLPID = p.SKLPID
where p.DODKID = :a_DODKID
order by p.PORADI;

-- include: order-fill
