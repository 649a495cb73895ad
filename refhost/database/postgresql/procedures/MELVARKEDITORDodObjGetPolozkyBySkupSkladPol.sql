-- The rows with which the editor of an order or template opens: the active items of the chosen stock groups, by the
-- groups' names, the item's name and its identifier. A level that is left empty restricts nothing.
--
-- Refusals: ML012 the document does not exist; ML033, ML030, ML034 the choice of groups.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodObjGetPolozkyBySkupSkladPol(
    a_DDOBIDMASTER integer default null,
    a_SSP1ID integer default null,
    a_SSP2ID integer default null,
    a_SSP3ID integer default null)
returns setof order_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_order(a_DDOBIDMASTER);

    perform refuse_groups(a_SSP1ID, a_SSP2ID, a_SSP3ID);

    return query
    select r.*
    from ITEM_V i
    join GROUP_PLACE_V g on g.SSP3ID = i.SSP3ID
    join DODOBJEDNAVKA o on o.ID = a_DDOBIDMASTER
    join SKLAD s on s.ID = o.SKLDID
    left join DODAVATEL v on v.ID = o.DODVID
    cross join order_row_of(i, s.NAZEV, v.JMENO, null, null, null, null) r
    where i.AKTIVNI = 1
      and (coalesce(a_SSP1ID, 0) <= 0 or i.SSP1ID = a_SSP1ID)
      and (coalesce(a_SSP2ID, 0) <= 0 or i.SSP2ID = a_SSP2ID)
      and (coalesce(a_SSP3ID, 0) <= 0 or i.SSP3ID = a_SSP3ID)
    order by g.PLACE, i.SKLADPOL, i.SKLPID;
end
$$;
