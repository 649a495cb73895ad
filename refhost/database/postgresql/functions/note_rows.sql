-- The rows with which the editor of a delivery note opens.

-- The prices of a row. Those of `source`, the delivery-note line whose prices are carried over, stay to the letter, save
-- that totals belong to the quantity: a row that comes without it has none. Without a source the price of a price list
-- completes its row; `rate_a` and `rate_l` are percents, the discount is the list's.
create function note_fill_prices(source DODAKPOL, price numeric, discount numeric, quantity numeric, rate_a numeric,
                                 rate_l numeric) returns line_prices
language plpgsql stable as $$
declare
    carried melvark.line_prices;
begin
    if source.ID is null then
        return melvark.recalculated_line(
            row(row(price, null, null, null)::melvark.price_row, null, null, null)::melvark.line_prices, quantity, rate_a,
            rate_l, melvark.recalculation_discount(discount), 'unit', 'before', 'CENAB');
    end if;
    carried.unit_before := row(source.JEDNCENABBEZSLEVY, source.JEDNDPHABEZSLEVY, source.JEDNDPHBBEZSLEVY,
                               source.JEDNCENASBEZSLEVY);
    carried.unit_after := row(source.JEDNCENABSESLEVOU, source.JEDNDPHASESLEVOU, source.JEDNDPHBSESLEVOU,
                              source.JEDNCENASSESLEVOU);
    if quantity is not null then
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
language plpgsql stable as $$
declare
    local_rate constant numeric := recalculation_local_rate();
begin
    return query
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
    left join DODAKPOL source on source.ID = f.SOURCEID
    cross join lateral note_fill_prices(source, f.CENA, f.SLEVA, f.MNOZSTVI, coalesce(r.SAZBA, 0), local_rate) p
    order by f.LINE;
end
$$;
