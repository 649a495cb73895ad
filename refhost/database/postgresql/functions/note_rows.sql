-- The rows with which the editor of a delivery note opens, in the order of the array, for the note with the identifier.
-- The prices of `source`, the delivery-note line whose prices are carried over, stay to the letter, save that totals belong
-- to the quantity: a row that comes without it has none. Without a source the price of a price list completes its row.
--
-- Planned for each array: how long it is decides how the rest is best found.
create function note_rows(note integer, fills note_fill[]) returns setof note_row
language plpgsql stable set search_path = melvark, pg_temp set plan_cache_mode = force_custom_plan as $$
declare
    local_rate constant numeric := recalculation_local_rate();
    separator constant text := decimal_separator();
begin
    return query
    select f.DOBSID, i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, s.NAZEV,
           written_number(round(f.MNOZSTVI, 6), separator), r.NAZEV, written_number(round(f.SLEVA, 2), separator),
           written_number(coalesce(source.JEDNCENABSESLEVOU, (p.unit_after).cenab), separator),
           written_number(coalesce(source.JEDNDPHASESLEVOU, (p.unit_after).dpha), separator),
           written_number(coalesce(source.JEDNDPHBSESLEVOU, (p.unit_after).dphb), separator),
           written_number(coalesce(source.JEDNCENASSESLEVOU, (p.unit_after).cenas), separator),
           written_number(coalesce(source.JEDNCENABBEZSLEVY, (p.unit_before).cenab), separator),
           written_number(coalesce(source.JEDNDPHABEZSLEVY, (p.unit_before).dpha), separator),
           written_number(coalesce(source.JEDNDPHBBEZSLEVY, (p.unit_before).dphb), separator),
           written_number(coalesce(source.JEDNCENASBEZSLEVY, (p.unit_before).cenas), separator),
           written_total(coalesce(source.CENABSESLEVOU, (p.total_after).cenab), total.MARK),
           written_total(coalesce(source.DPHASESLEVOU, (p.total_after).dpha), total.MARK),
           written_total(coalesce(source.DPHBSESLEVOU, (p.total_after).dphb), total.MARK),
           written_total(coalesce(source.CENASSESLEVOU, (p.total_after).cenas), total.MARK),
           written_total(coalesce(source.CENABBEZSLEVY, (p.total_before).cenab), total.MARK),
           written_total(coalesce(source.DPHABEZSLEVY, (p.total_before).dpha), total.MARK),
           written_total(coalesce(source.DPHBBEZSLEVY, (p.total_before).dphb), total.MARK),
           written_total(coalesce(source.CENASBEZSLEVY, (p.total_before).cenas), total.MARK),
           date_text(d.DATUM + i.TRVANLIVOSTDNU)
    from unnest(fills) with ordinality f (DOBSID, SKLPID, SKLDID, DPHID, MNOZSTVI, SOURCEID, CENA, SLEVA, LINE)
    join DODAK d on d.ID = note
    join ITEM_V i on i.SKLPID = f.SKLPID
    join SKLAD s on s.ID = f.SKLDID
    left join DPH r on r.ID = f.DPHID
    left join DODAKPOL source on source.ID = f.SOURCEID
    -- Where nothing can separate its decimals, a total has no text.
    cross join lateral (select case when f.MNOZSTVI is not null then separator end as MARK) total
    left join lateral (
        select list.*
        from recalculated_line(
                 row(row(f.CENA, null, null, null)::price_row, null, null, null)::line_prices, f.MNOZSTVI,
                 coalesce(r.SAZBA, 0), local_rate, recalculation_discount(f.SLEVA), 'unit', 'before', 'CENAB') list
        where source.ID is null
        offset 0) p on true -- the offset keeps it apart, so that it is computed for no row that has a source
    order by f.LINE;
end
$$;
