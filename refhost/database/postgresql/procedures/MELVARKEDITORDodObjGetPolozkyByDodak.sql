-- The rows with which the editor of an order or template opens: the lines of a delivery note in their order, with what was
-- delivered in the main unit.
--
-- Refusals: ML012 the document does not exist, ML021 the note does not exist.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodObjGetPolozkyByDodak(
    a_DDOBIDMASTER integer default null,
    a_DODKID integer default null)
returns setof order_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_order(a_DDOBIDMASTER);

    perform refuse('ML021', 'Dodací list', a_DODKID::text)
    where not exists (select from DODAK where ID = a_DODKID);

    return query
    select r.*
    from order_rows(array(
        select row(p.SKLPID, p.SKLDID, d.DODVID, i.SKPLIDHL, p.MNOZSTVI, null, null)::order_fill
        from DODAKPOL p
        join DODAK d on d.ID = p.DODKID
        join ITEM_V i on i.SKLPID = p.SKLPID
        where p.DODKID = a_DODKID
        order by p.PORADI)) r;
end
$$;
