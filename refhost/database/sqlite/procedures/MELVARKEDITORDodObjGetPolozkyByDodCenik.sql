-- The rows with which the editor of an order or template opens: the items that a supplier lists at the document's moment,
-- by the groups' names, the item's name and its identifier.
--
-- Refusals: ML012 the document does not exist, ML021 the supplier does not exist.
--
-- in: a_DDOBIDMASTER integer
-- in: a_DODVID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal;

select refuse_unknown_supplier_id(:a_DODVID) as refusal;

insert into ORDER_FILL (ITEMID, SKLDID, DODVID)
select i.SKLPID, o.SKLDID, c.DODVID
from PRICE_V c
join ITEM_V i on i.SKLPID = c.SKLPID
join DODOBJEDNAVKA o on o.ID = :a_DDOBIDMASTER
where c.DODVID = :a_DODVID and (select date(order_moment(:a_DDOBIDMASTER))) between c.FIRSTDAY and c.LASTDAY
order by i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, i.SKLPID;

-- include: order-fill
