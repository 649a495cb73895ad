-- The rows with which the editor of an order or template opens: the items that a supplier delivered in the months before
-- the document's moment that the company's parameter POCETMESICUDODAVEK gives, by the groups' names, the item's name and
-- its identifier; with quantities, each with that of its latest delivery, in the main unit.
--
-- Refusals: ML012 the document does not exist, ML021 the supplier does not exist, ML070 the parameter is no number of
-- months.
--
-- in: a_DDOBIDMASTER integer
-- in: a_DODVID integer
-- in: a_PRENESMNOZSTVI boolean

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal;

select refuse_unknown_supplier_id(:a_DODVID) as refusal;

insert into ORDER_FILL (ITEMID, SKLDID, DODVID, UNITID, MNOZSTVI)
with DELIVERED as (
    select v.SKLPID, v.MNOZSTVI,
           row_number() over (partition by v.SKLPID order by v.DATUM desc, v.DODKID desc, v.PORADI desc) as AGE
    from DELIVERY_V v
    where v.DODVID = :a_DODVID
      and v.DATUM between
          (select deliveries_since(order_moment(:a_DDOBIDMASTER), V_GetGlobalParam('SKLAD', 'POCETMESICUDODAVEK')))
          and (select date(order_moment(:a_DDOBIDMASTER)))
)
select i.SKLPID, o.SKLDID, :a_DODVID, i.SKPLIDHL, iif(:a_PRENESMNOZSTVI, v.MNOZSTVI, null)
from DELIVERED v
join ITEM_V i on i.SKLPID = v.SKLPID
join DODOBJEDNAVKA o on o.ID = :a_DDOBIDMASTER
where v.AGE = 1
order by i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, i.SKLPID;

-- include: order-fill
