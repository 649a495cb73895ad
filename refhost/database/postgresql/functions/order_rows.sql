-- An item as the editor of orders and templates takes it: the quantity, a text, stands in the column of its unit. `item` is a
-- row of ITEM_V; the parameter does not say so, for an upgrade drops the views first. The planner puts this into the query
-- that asks for it.
create function order_row_of(item anyelement, warehouse text, supplier text, unit integer, quantity text, remark text,
                             comment text) returns setof order_row
language sql stable as $$
    select item.SKUPSPOL1, item.SKUPSPOL2, item.SKUPSPOL3, item.SKLADPOL, warehouse, supplier,
           case unit when item.SKPLIDHL then quantity end, item.JEDNOTKYHL, item.SKPLIDHL,
           case unit when item.SKPLIDV1 then quantity end, item.JEDNOTKYV1, item.SKPLIDV1,
           case unit when item.SKPLIDV2 then quantity end, item.JEDNOTKYV2, item.SKPLIDV2,
           remark, comment
$$;

-- The rows with which the editor of orders and templates opens, in the order of the array. Planned for each array: how long
-- it is decides how the rest is best found.
create function order_rows(fills order_fill[]) returns setof order_row
language plpgsql stable set search_path = melvark, pg_temp set plan_cache_mode = force_custom_plan as $$
declare
    separator constant text := decimal_separator();
begin
    return query
    select r.*
    from unnest(fills) with ordinality f (ITEMID, SKLDID, DODVID, UNITID, MNOZSTVI, POPIS, KOMENTAR, LINE)
    join ITEM_V i on i.SKLPID = f.ITEMID
    join SKLAD s on s.ID = f.SKLDID
    left join DODAVATEL v on v.ID = f.DODVID
    cross join order_row_of(i, s.NAZEV, v.JMENO, f.UNITID, written_number(f.MNOZSTVI, separator), f.POPIS, f.KOMENTAR) r
    order by f.LINE;
end
$$;
