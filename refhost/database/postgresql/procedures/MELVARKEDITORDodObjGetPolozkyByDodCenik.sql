-- The rows with which the editor of an order or template opens: the items that a supplier lists at the document's moment,
-- by the groups' names, the item's name and its identifier.
--
-- Refusals: ML012 the document does not exist, ML021 the supplier does not exist.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodObjGetPolozkyByDodCenik(
    a_DDOBIDMASTER integer default null,
    a_DODVID integer default null)
returns setof order_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_order(a_DDOBIDMASTER);

    perform refuse_unknown_supplier_id(a_DODVID);

    return query
    select r.*
    from PRICE_V c
    join ITEM_V i on i.SKLPID = c.SKLPID
    join GROUP_PLACE_V g on g.SSP3ID = i.SSP3ID
    join DODOBJEDNAVKA o on o.ID = a_DDOBIDMASTER
    join SKLAD s on s.ID = o.SKLDID
    join DODAVATEL v on v.ID = c.DODVID
    cross join order_row_of(i, s.NAZEV, v.JMENO, null, null, null, null) r
    where c.DODVID = a_DODVID and (select order_moment(a_DDOBIDMASTER)::date) between c.FIRSTDAY and c.LASTDAY
    order by g.PLACE, i.SKLADPOL, i.SKLPID;
end
$$;
