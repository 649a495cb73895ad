-- The rows with which the editor of a delivery note opens.

-- The prices of a row. Those that are carried over stay to the letter, save that totals belong to the quantity: a row
-- that comes without it has none. The price of a price list completes its row.
create function note_fill_prices(fill note_fill) returns line_prices
language plpgsql stable as $$
declare
    source DODAKPOL;
    carried line_prices;
begin
    if fill.SOURCEID is null then
        return recalculated_line(
            row(row(fill.CENA, null, null, null)::price_row, null, null, null)::line_prices, fill.MNOZSTVI,
            recalculation_vat_rate((select r.NAZEV from DPH r where r.ID = fill.DPHID)), recalculation_local_rate(),
            recalculation_discount(fill.SLEVA), 'unit', 'before', 'CENAB');
    end if;
    select p.* into source from DODAKPOL p where p.ID = fill.SOURCEID;
    carried.unit_before := row(source.JEDNCENABBEZSLEVY, source.JEDNDPHABEZSLEVY, source.JEDNDPHBBEZSLEVY,
                               source.JEDNCENASBEZSLEVY);
    carried.unit_after := row(source.JEDNCENABSESLEVOU, source.JEDNDPHASESLEVOU, source.JEDNDPHBSESLEVOU,
                              source.JEDNCENASSESLEVOU);
    if fill.MNOZSTVI is not null then
        carried.total_before := row(source.CENABBEZSLEVY, source.DPHABEZSLEVY, source.DPHBBEZSLEVY,
                                    source.CENASBEZSLEVY);
        carried.total_after := row(source.CENABSESLEVOU, source.DPHASESLEVOU, source.DPHBSESLEVOU,
                                   source.CENASSESLEVOU);
    end if;
    return carried;
end
$$;

-- The rows in the order of the array, for the note with the identifier.
create function note_rows(note integer, fills note_fill[]) returns setof note_row
language sql stable as $$
    select f.DOBSID, i.SKUPSPOL1, i.SKUPSPOL2, i.SKUPSPOL3, i.SKLADPOL, s.NAZEV, number_text(round(f.MNOZSTVI, 6)),
           r.NAZEV, number_text(round(f.SLEVA, 2)),
           number_text((p.unit_after).cenab), number_text((p.unit_after).dpha), number_text((p.unit_after).dphb),
           number_text((p.unit_after).cenas),
           number_text((p.unit_before).cenab), number_text((p.unit_before).dpha), number_text((p.unit_before).dphb),
           number_text((p.unit_before).cenas),
           total_text((p.total_after).cenab), total_text((p.total_after).dpha), total_text((p.total_after).dphb),
           total_text((p.total_after).cenas),
           total_text((p.total_before).cenab), total_text((p.total_before).dpha), total_text((p.total_before).dphb),
           total_text((p.total_before).cenas),
           date_text(d.DATUM + i.TRVANLIVOSTDNU)
    from unnest(fills) with ordinality f (DOBSID, SKLPID, SKLDID, DPHID, MNOZSTVI, SOURCEID, CENA, SLEVA, LINE)
    join DODAK d on d.ID = note
    join ITEM_V i on i.SKLPID = f.SKLPID
    join SKLAD s on s.ID = f.SKLDID
    left join DPH r on r.ID = f.DPHID
    cross join lateral note_fill_prices(row(f.DOBSID, f.SKLPID, f.SKLDID, f.DPHID, f.MNOZSTVI, f.SOURCEID, f.CENA,
                                            f.SLEVA)::note_fill) p
    order by f.LINE
$$;
