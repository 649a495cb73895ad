-- The rows with which the editor of a delivery note opens, in the order of the array, for the note with the identifier.
-- The prices of `source`, the delivery-note line whose prices are carried over, stay to the letter, save that totals belong
-- to the quantity: a row that comes without it has none. Without a source the price of a price list completes its row.
--
-- Planned for each array: how long it is decides how the rest is best found.
create function note_rows(note integer, fills note_fill[]) returns setof note_row
language plpgsql stable set search_path = melvark, pg_temp set plan_cache_mode = force_custom_plan as $$
declare
    local_rate constant numeric := recalculation_local_rate();
begin
    return query
    select f.DOBSID, i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, s.NAZEV, number_text(round(f.MNOZSTVI, 6)),
           r.NAZEV, number_text(round(f.SLEVA, 2)),
           number_text(coalesce(source.JEDNCENABSESLEVOU, (p.unit_after).cenab)),
           number_text(coalesce(source.JEDNDPHASESLEVOU, (p.unit_after).dpha)),
           number_text(coalesce(source.JEDNDPHBSESLEVOU, (p.unit_after).dphb)),
           number_text(coalesce(source.JEDNCENASSESLEVOU, (p.unit_after).cenas)),
           number_text(coalesce(source.JEDNCENABBEZSLEVY, (p.unit_before).cenab)),
           number_text(coalesce(source.JEDNDPHABEZSLEVY, (p.unit_before).dpha)),
           number_text(coalesce(source.JEDNDPHBBEZSLEVY, (p.unit_before).dphb)),
           number_text(coalesce(source.JEDNCENASBEZSLEVY, (p.unit_before).cenas)),
           total_text(coalesce(total.CENABSESLEVOU, (p.total_after).cenab)),
           total_text(coalesce(total.DPHASESLEVOU, (p.total_after).dpha)),
           total_text(coalesce(total.DPHBSESLEVOU, (p.total_after).dphb)),
           total_text(coalesce(total.CENASSESLEVOU, (p.total_after).cenas)),
           total_text(coalesce(total.CENABBEZSLEVY, (p.total_before).cenab)),
           total_text(coalesce(total.DPHABEZSLEVY, (p.total_before).dpha)),
           total_text(coalesce(total.DPHBBEZSLEVY, (p.total_before).dphb)),
           total_text(coalesce(total.CENASBEZSLEVY, (p.total_before).cenas)),
           date_text(d.DATUM + i.TRVANLIVOSTDNU)
    from unnest(fills) with ordinality f (DOBSID, SKLPID, SKLDID, DPHID, MNOZSTVI, SOURCEID, CENA, SLEVA, LINE)
    join DODAK d on d.ID = note
    join ITEM_V i on i.SKLPID = f.SKLPID
    join SKLAD s on s.ID = f.SKLDID
    left join DPH r on r.ID = f.DPHID
    left join DODAKPOL source on source.ID = f.SOURCEID
    left join DODAKPOL total on total.ID = f.SOURCEID and f.MNOZSTVI is not null
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
