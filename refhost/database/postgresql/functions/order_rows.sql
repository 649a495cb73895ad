-- The rows with which the editor of orders and templates opens, in the order of the array: the quantity stands in the
-- column of its unit. Planned for each array: how long it is decides how the rest is best found.
create function order_rows(fills order_fill[]) returns setof order_row
language plpgsql stable set search_path = melvark, pg_temp set plan_cache_mode = force_custom_plan as $$
declare
    separator constant text := decimal_separator();
begin
    return query
    select i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, s.NAZEV, v.JMENO,
           case f.UNITID when i.SKPLIDHL then written_number(f.MNOZSTVI, separator) end, i.JEDNOTKYHL, i.SKPLIDHL,
           case f.UNITID when i.SKPLIDV1 then written_number(f.MNOZSTVI, separator) end, i.JEDNOTKYV1, i.SKPLIDV1,
           case f.UNITID when i.SKPLIDV2 then written_number(f.MNOZSTVI, separator) end, i.JEDNOTKYV2, i.SKPLIDV2,
           f.POPIS, f.KOMENTAR
    from unnest(fills) with ordinality f (ITEMID, SKLDID, DODVID, UNITID, MNOZSTVI, POPIS, KOMENTAR, LINE)
    join ITEM_V i on i.SKLPID = f.ITEMID
    join SKLAD s on s.ID = f.SKLDID
    left join DODAVATEL v on v.ID = f.DODVID
    order by f.LINE;
end
$$;
