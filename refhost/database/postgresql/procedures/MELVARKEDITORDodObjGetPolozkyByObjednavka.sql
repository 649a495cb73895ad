-- The rows with which the editor of an order or template opens: the lines of an order or of a template in their order,
-- or, without a source, each item once, from the latest three other orders of the same supplier, newest first, as its
-- latest line has it.
--
-- a_DDOBID is the source, null for the latest orders.
--
-- Refusals: ML012 the document does not exist, ML021 the source does not exist, ML027 it is the document itself.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodObjGetPolozkyByObjednavka(
    a_DDOBIDMASTER integer default null,
    a_DDOBID integer default null)
returns setof order_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_order(a_DDOBIDMASTER);
    perform refuse_own_order(a_DDOBIDMASTER, a_DDOBID);

    perform refuse('ML021', 'Objednávka', a_DDOBID::text)
    where a_DDOBID > 0 and not exists (select from DODOBJEDNAVKA where ID = a_DDOBID);

    return query
    with LATEST as (
        select other.ID, other.OBJEDNANIDC
        from DODOBJEDNAVKA other
        join DODOBJEDNAVKA master on master.ID = a_DDOBIDMASTER and master.DODVID = other.DODVID and master.ID <> other.ID
        where coalesce(a_DDOBID, 0) <= 0 and other.VZOR = 0
        order by other.OBJEDNANIDC desc, other.ID desc
        limit 3
    ),
    TEMPLATE as (
        select p as LINE,
               row_number() over (partition by p.SKLPID order by l.OBJEDNANIDC desc, l.ID desc, p.PORADI desc) as AGE,
               row_number() over (order by l.OBJEDNANIDC desc, l.ID desc, p.PORADI) as PLACE
        from LATEST l
        join DODOBJPOL p on p.DDOBID = l.ID
    ),
    SOURCE as (
        select p.*, p.PORADI as PLACE from DODOBJPOL p where p.DDOBID = a_DDOBID
        union all
        select (t.LINE).*, t.PLACE from TEMPLATE t where t.AGE = 1
    )
    select r.*
    from order_rows(array(
        select row(p.SKLPID, p.SKLDID, coalesce(p.DODVID, o.DODVID, master.DODVID), p.SKPLID, p.MNOZSTVI, p.POPIS,
                   p.KOMENTAR)::order_fill
        from SOURCE p
        join DODOBJEDNAVKA o on o.ID = p.DDOBID
        join DODOBJEDNAVKA master on master.ID = a_DDOBIDMASTER
        order by p.PLACE)) r;
end
$$;
