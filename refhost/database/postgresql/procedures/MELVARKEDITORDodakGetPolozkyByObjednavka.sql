-- The rows with which the editor of a delivery note opens: the lines of an order on which something is still to come, in
-- their order. The quantity is what is left, in the main unit; the price that of the supplier's list on the day of the
-- order, or, when he listed none, on the day of the note.
--
-- Refusals: ML010 the note does not exist, ML021 the order does not exist.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodakGetPolozkyByObjednavka(a_DODKID integer default null, a_DDOBID integer default null)
returns setof note_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_note(a_DODKID);

    perform refuse('ML021', 'Objednávka', a_DDOBID::text)
    where not exists (select from DODOBJEDNAVKA where ID = a_DDOBID and VZOR = 0);

    return query
    select r.*
    from note_rows(a_DODKID, array(
        select row(p.ID, p.SKLPID, p.SKLDID, i.DPHID, in_main_unit(p.MNOZSTVI, j.FAKTOR) - p.DODANO, null,
                   case when then_list.CENA is null then now_list.CENA else then_list.CENA end,
                   case when then_list.CENA is null then now_list.SLEVA else then_list.SLEVA end)::note_fill
        from DODOBJPOL p
        join DODOBJEDNAVKA o on o.ID = p.DDOBID
        join DODAK d on d.ID = a_DODKID
        join SKLADPOL i on i.ID = p.SKLPID
        join SKPL j on j.ID = p.SKPLID
        left join lateral (
            select c.CENA, c.SLEVA
            from PRICE_V c
            where c.DODVID = d.DODVID and c.SKLPID = p.SKLPID
              and o.OBJEDNANIDC::date between c.FIRSTDAY and c.LASTDAY
            limit 1) then_list on true
        left join lateral (
            select c.CENA, c.SLEVA
            from PRICE_V c
            where then_list.CENA is null and c.DODVID = d.DODVID and c.SKLPID = p.SKLPID
              and d.DATUM between c.FIRSTDAY and c.LASTDAY
            limit 1) now_list on true
        where p.DDOBID = a_DDOBID and p.KOMPLETNI = 0
        order by p.PORADI)) r;
end
$$;
