-- The rows with which the editor of an order or template opens: the items that a supplier delivered in the months before
-- the document's moment that the company's parameter POCETMESICUDODAVEK gives, by the groups' names, the item's name and
-- its identifier; with quantities, each with that of its latest delivery, in the main unit.
--
-- Refusals: ML012 the document does not exist, ML021 the supplier does not exist, ML070 the parameter is no number of
-- months.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodObjGetPolozkyByDodavky(
    a_DDOBIDMASTER integer default null,
    a_DODVID integer default null,
    a_PRENESMNOZSTVI boolean default null)
returns setof order_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_order(a_DDOBIDMASTER);

    perform refuse_unknown_supplier_id(a_DODVID);

    return query
    with DELIVERED as (
        select v.SKLPID, v.MNOZSTVI,
               row_number() over (partition by v.SKLPID order by v.DATUM desc, v.DODKID desc, v.PORADI desc) as AGE
        from DELIVERY_V v
        where v.DODVID = a_DODVID
          and v.DATUM between
              (select deliveries_since(order_moment(a_DDOBIDMASTER), V_GetGlobalParam('SKLAD', 'POCETMESICUDODAVEK')))
              and (select order_moment(a_DDOBIDMASTER)::date)
    )
    select r.*
    from order_rows(array(
        select row(i.SKLPID, o.SKLDID, a_DODVID, i.SKPLIDHL, case when a_PRENESMNOZSTVI then v.MNOZSTVI end, null,
                   null)::order_fill
        from DELIVERED v
        join ITEM_V i on i.SKLPID = v.SKLPID
        join DODOBJEDNAVKA o on o.ID = a_DDOBIDMASTER
        where v.AGE = 1
        order by i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, i.SKLPID)) r;
end
$$;
