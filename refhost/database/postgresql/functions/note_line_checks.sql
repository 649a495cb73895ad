-- The checks of a delivery-note row that is saved, one for each kind of cell. Texts come without blanks around them, null
-- for an empty cell.

-- The VAT rate of the name, null without one. Refusal ML110: there is none.
create function note_line_rate(name text) returns integer
language plpgsql as $$
declare
    rate constant integer := (select r.ID from DPH r where r.NAZEV = name);
begin
    if name is not null and rate is null then
        perform refuse('ML110', name);
    end if;
    return rate;
end
$$;

-- The order line that is delivered, null without one. Refusals: ML049 there is none, ML050 it is for another item.
create function note_line_order_line(id text, item integer) returns integer
language plpgsql as $$
declare
    ordered DODOBJPOL;
begin
    select p.* into ordered
    from DODOBJPOL p
    join DODOBJEDNAVKA o on o.ID = p.DDOBID and o.VZOR = 0
    where p.ID = as_integer(note_line_order_line.id);
    if note_line_order_line.id is not null and ordered.ID is null then
        perform refuse('ML049', note_line_order_line.id);
    elsif ordered.SKLPID <> item then
        perform refuse('ML050', note_line_order_line.id, (select i.NAZEV from SKLADPOL i where i.ID = item));
    end if;
    return ordered.ID;
end
$$;

-- Refuses a total that quantity times unit price does not give (ML052). Prices are rounded to their decimals, so that
-- both may differ by that much.
create function refuse_unbalanced_note_line(line DODAKPOL) returns void
language plpgsql as $$
declare
    unit_prices constant numeric[] := array[
        line.JEDNCENABSESLEVOU, line.JEDNDPHASESLEVOU, line.JEDNDPHBSESLEVOU, line.JEDNCENASSESLEVOU,
        line.JEDNCENABBEZSLEVY, line.JEDNDPHABEZSLEVY, line.JEDNDPHBBEZSLEVY, line.JEDNCENASBEZSLEVY];
    totals constant numeric[] := array[
        line.CENABSESLEVOU, line.DPHASESLEVOU, line.DPHBSESLEVOU, line.CENASSESLEVOU,
        line.CENABBEZSLEVY, line.DPHABEZSLEVY, line.DPHBBEZSLEVY, line.CENASBEZSLEVY];
    allowed constant numeric := 0.02 + abs(line.MNOZSTVI) * 0.000002;
begin
    for pair in 1..8 loop
        if abs(line.MNOZSTVI * unit_prices[pair] - totals[pair]) > allowed then
            perform refuse('ML052', total_text(totals[pair]), (select i.NAZEV from SKLADPOL i where i.ID = line.SKLPID),
                           number_text(line.MNOZSTVI), number_text(unit_prices[pair]));
        end if;
    end loop;
end
$$;
