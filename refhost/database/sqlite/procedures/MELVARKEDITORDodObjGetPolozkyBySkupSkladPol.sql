-- The rows with which the editor of an order or template opens: the active items of the chosen stock groups, by the
-- groups' names, the item's name and its identifier. A level that is left empty restricts nothing.
--
-- Refusals: ML012 the document does not exist; ML033, ML030, ML034 the choice of groups.
--
-- in: a_DDOBIDMASTER integer
-- in: a_SSP1ID integer
-- in: a_SSP2ID integer
-- in: a_SSP3ID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal;

select refuse_groups(:a_SSP1ID, :a_SSP2ID, :a_SSP3ID) as refusal;

insert into ORDER_FILL (ITEMID, SKLDID, DODVID)
select i.SKLPID, o.SKLDID, o.DODVID
from ITEM_V i
join DODOBJEDNAVKA o on o.ID = :a_DDOBIDMASTER
where i.AKTIVNI = 1
  and (coalesce(:a_SSP1ID, 0) <= 0 or i.SSP1ID = :a_SSP1ID)
  and (coalesce(:a_SSP2ID, 0) <= 0 or i.SSP2ID = :a_SSP2ID)
  and (coalesce(:a_SSP3ID, 0) <= 0 or i.SSP3ID = :a_SSP3ID)
order by i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, i.SKLPID;

-- include: order-fill
