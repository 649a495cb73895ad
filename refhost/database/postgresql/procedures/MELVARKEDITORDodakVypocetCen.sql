-- Recalculates the prices of one delivery-note line while the clerk edits it. Nothing is stored.
--
-- a_ZMENENEBUNKY: keys of the cells that the clerk changed, each closed by ";". a_PREPOCETCEN: whether to recalculate;
-- without it the row only gets its canonical texts. a_FOCUS: the key of the cell that was just changed. One row comes
-- back, its columns named by the keys.
--
-- Refusals: ML110 unknown VAT rate, ML111 discount outside 0 to 100, ML112 VAT typed where no price follows from it, and
-- a text that is no number.

create function MELVARKEDITORDodakVypocetCen(
    a_ZMENENEBUNKY text default null,
    a_PREPOCETCEN boolean default null,
    a_FOCUS text default null,
    a_JEDNCENABBEZSLEVY text default null,
    a_JEDNDPHABEZSLEVY text default null,
    a_JEDNDPHBBEZSLEVY text default null,
    a_JEDNCENASBEZSLEVY text default null,
    a_JEDNCENABSESLEVOU text default null,
    a_JEDNDPHASESLEVOU text default null,
    a_JEDNDPHBSESLEVOU text default null,
    a_JEDNCENASSESLEVOU text default null,
    a_CENABSESLEVOU text default null,
    a_DPHASESLEVOU text default null,
    a_DPHBSESLEVOU text default null,
    a_CENASSESLEVOU text default null,
    a_CENABBEZSLEVY text default null,
    a_DPHABEZSLEVY text default null,
    a_DPHBBEZSLEVY text default null,
    a_CENASBEZSLEVY text default null,
    a_DPH text default null,
    a_SLEVA text default null,
    a_MNOZSTVI text default null)
returns table (
    JEDNCENABBEZSLEVY text, JEDNDPHABEZSLEVY text, JEDNDPHBBEZSLEVY text, JEDNCENASBEZSLEVY text,
    JEDNCENABSESLEVOU text, JEDNDPHASESLEVOU text, JEDNDPHBSESLEVOU text, JEDNCENASSESLEVOU text,
    CENABSESLEVOU text, DPHASESLEVOU text, DPHBSESLEVOU text, CENASSESLEVOU text,
    CENABBEZSLEVY text, DPHABEZSLEVY text, DPHBBEZSLEVY text, CENASBEZSLEVY text,
    DPH text, SLEVA text, MNOZSTVI text)
language plpgsql stable as $$
declare
    unit_before constant price_row := row(
        parse_number(a_JEDNCENABBEZSLEVY, 'Jednotková cena'), parse_number(a_JEDNDPHABEZSLEVY, 'Jednotková cena'),
        parse_number(a_JEDNDPHBBEZSLEVY, 'Jednotková cena'), parse_number(a_JEDNCENASBEZSLEVY, 'Jednotková cena'));
    unit_after constant price_row := row(
        parse_number(a_JEDNCENABSESLEVOU, 'Jednotková cena'), parse_number(a_JEDNDPHASESLEVOU, 'Jednotková cena'),
        parse_number(a_JEDNDPHBSESLEVOU, 'Jednotková cena'), parse_number(a_JEDNCENASSESLEVOU, 'Jednotková cena'));
    total_after constant price_row := row(
        parse_number(a_CENABSESLEVOU, 'Celková cena'), parse_number(a_DPHASESLEVOU, 'Celková cena'),
        parse_number(a_DPHBSESLEVOU, 'Celková cena'), parse_number(a_CENASSESLEVOU, 'Celková cena'));
    total_before constant price_row := row(
        parse_number(a_CENABBEZSLEVY, 'Celková cena'), parse_number(a_DPHABEZSLEVY, 'Celková cena'),
        parse_number(a_DPHBBEZSLEVY, 'Celková cena'), parse_number(a_CENASBEZSLEVY, 'Celková cena'));
    discount constant numeric := parse_number(a_SLEVA, 'Sleva');
    quantity constant numeric := round(parse_number(a_MNOZSTVI, 'Množství'), 6);
    line line_prices := rounded_line(row(unit_before, unit_after, total_before, total_after)::line_prices);
    truth record;
begin
    if a_PREPOCETCEN then
        truth := recalculation_truth(line, quantity, a_ZMENENEBUNKY, a_FOCUS);
        -- An emptied price in focus leaves the row alone, whatever its rate and discount are.
        if truth.truth_level is null
           or line_price(line, truth.truth_level, truth.truth_side, truth.truth_kind) is not null then
            line := recalculated_line(line, quantity, recalculation_vat_rate(a_DPH), recalculation_local_rate(),
                                      recalculation_discount(discount),
                                      truth.truth_level, truth.truth_side, truth.truth_kind);
        end if;
    end if;
    return query select
        number_text((line.unit_before).cenab), number_text((line.unit_before).dpha),
        number_text((line.unit_before).dphb), number_text((line.unit_before).cenas),
        number_text((line.unit_after).cenab), number_text((line.unit_after).dpha),
        number_text((line.unit_after).dphb), number_text((line.unit_after).cenas),
        total_text((line.total_after).cenab), total_text((line.total_after).dpha),
        total_text((line.total_after).dphb), total_text((line.total_after).cenas),
        total_text((line.total_before).cenab), total_text((line.total_before).dpha),
        total_text((line.total_before).dphb), total_text((line.total_before).cenas),
        a_DPH, number_text(round(discount, 2)), number_text(quantity);
end
$$;
