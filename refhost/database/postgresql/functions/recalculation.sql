-- Recalculation of a delivery-note line: from one price, the truth, follow all others.
--
-- A price has a level ('unit' for one unit, 'total' for the quantity), a side ('before' or 'after' the discount) and a
-- kind ('CENAB' without VAT, 'DPHA' the VAT, 'DPHB' the local VAT, 'CENAS' with VAT). Rates and discounts are percents.
-- Null is an empty cell. Unit prices are rounded to 6 decimals, totals to 2, half away from zero.

-- The sixteen price cells of the editor's row by their keys.
create view RECALC_KEY (KEY, LEVEL, SIDE, KIND) as
values ('JEDNCENABBEZSLEVY', 'unit', 'before', 'CENAB'),
       ('JEDNDPHABEZSLEVY', 'unit', 'before', 'DPHA'),
       ('JEDNDPHBBEZSLEVY', 'unit', 'before', 'DPHB'),
       ('JEDNCENASBEZSLEVY', 'unit', 'before', 'CENAS'),
       ('JEDNCENABSESLEVOU', 'unit', 'after', 'CENAB'),
       ('JEDNDPHASESLEVOU', 'unit', 'after', 'DPHA'),
       ('JEDNDPHBSESLEVOU', 'unit', 'after', 'DPHB'),
       ('JEDNCENASSESLEVOU', 'unit', 'after', 'CENAS'),
       ('CENABSESLEVOU', 'total', 'after', 'CENAB'),
       ('DPHASESLEVOU', 'total', 'after', 'DPHA'),
       ('DPHBSESLEVOU', 'total', 'after', 'DPHB'),
       ('CENASSESLEVOU', 'total', 'after', 'CENAS'),
       ('CENABBEZSLEVY', 'total', 'before', 'CENAB'),
       ('DPHABEZSLEVY', 'total', 'before', 'DPHA'),
       ('DPHBBEZSLEVY', 'total', 'before', 'DPHB'),
       ('CENASBEZSLEVY', 'total', 'before', 'CENAS');

-- The exact quotient rounded once. The division operator keeps few decimals, and rounding its result would round twice.
create function rounded_quotient(dividend numeric, divisor numeric, decimals integer) returns numeric
language plpgsql immutable strict as $$
declare
    step numeric;
begin
    if divisor = 1 then
        return round(dividend, decimals);
    elsif divisor = 100 then
        return round(dividend * 0.01, decimals);
    end if;
    step := ('1e-' || decimals)::numeric;
    return sign(dividend) * sign(divisor) * step
           * div(2 * abs(dividend) + step * abs(divisor), 2 * step * abs(divisor));
end
$$;

create function rounded_price_row(prices price_row, decimals integer) returns price_row
language sql immutable as $$
    select row(round((prices).cenab, decimals), round((prices).dpha, decimals),
               round((prices).dphb, decimals), round((prices).cenas, decimals))::melvark.price_row
$$;

-- The prices from which the row of the kind is completed, each times multiplier / divisor: the price itself, and of a VAT
-- part all that its sum is made of.
create function carried_price_row(prices price_row, kind text, multiplier numeric, divisor numeric, decimals integer)
returns price_row
language plpgsql immutable as $$
declare
    carried melvark.price_row;
begin
    if kind = 'CENAS' then
        carried.cenas := melvark.rounded_quotient(prices.cenas * multiplier, divisor, decimals);
        return carried;
    end if;
    carried.cenab := melvark.rounded_quotient(prices.cenab * multiplier, divisor, decimals);
    if kind <> 'CENAB' then
        carried.dpha := melvark.rounded_quotient(prices.dpha * multiplier, divisor, decimals);
        carried.dphb := melvark.rounded_quotient(prices.dphb * multiplier, divisor, decimals);
    end if;
    return carried;
end
$$;

-- The row that follows from its price of the kind; from a VAT part and the prices beside it follows the sum.
create function completed_price_row(prices price_row, kind text, rate_a numeric, rate_l numeric, decimals integer)
returns price_row
language plpgsql immutable as $$
declare
    completed melvark.price_row := prices;
begin
    if kind = 'CENAS' then
        completed.cenab := melvark.rounded_quotient(prices.cenas * 100, 100 + rate_a + rate_l, decimals);
    end if;
    if kind = 'CENAS' and rate_a = 0 then
        completed.dphb := prices.cenas - completed.cenab;
    elsif kind in ('CENAB', 'CENAS') then
        completed.dphb := round(completed.cenab * rate_l * 0.01, decimals);
    end if;
    if kind = 'CENAS' then
        completed.dpha := prices.cenas - completed.cenab - completed.dphb;
    elsif kind = 'CENAB' then
        completed.dpha := round(completed.cenab * rate_a * 0.01, decimals);
    end if;
    completed.cenas := completed.cenab + completed.dpha + completed.dphb;
    return completed;
end
$$;

-- The row of a typed VAT part: the price and the other part beside it stay, what is empty of them is derived.
-- Refusal ML112: there is no price, and with a rate of 0 % none follows from the VAT.
create function price_row_of_vat_part(prices price_row, kind text, rate_a numeric, rate_l numeric, decimals integer)
returns price_row
language plpgsql immutable as $$
declare
    completed melvark.price_row := prices;
    part constant numeric := case kind when 'DPHA' then prices.dpha else prices.dphb end;
    rate constant numeric := case kind when 'DPHA' then rate_a else rate_l end;
begin
    if prices.cenab is null and rate = 0 then
        perform melvark.refuse('ML112');
    end if;
    completed.cenab := coalesce(prices.cenab, melvark.rounded_quotient(part * 100, rate, decimals));
    completed.dpha := coalesce(prices.dpha, round(completed.cenab * rate_a * 0.01, decimals));
    completed.dphb := coalesce(prices.dphb, round(completed.cenab * rate_l * 0.01, decimals));
    completed.cenas := completed.cenab + completed.dpha + completed.dphb;
    return completed;
end
$$;

-- One price of the line.
create function line_price(prices line_prices, price_level text, price_side text, kind text) returns numeric
language plpgsql immutable as $$
declare
    own constant melvark.price_row := case price_level || ' ' || price_side
        when 'unit before' then prices.unit_before
        when 'unit after' then prices.unit_after
        when 'total before' then prices.total_before
        else prices.total_after
    end;
begin
    return case kind
        when 'CENAB' then own.cenab
        when 'DPHA' then own.dpha
        when 'DPHB' then own.dphb
        else own.cenas
    end;
end
$$;

-- The line with every number rounded to its decimals, otherwise as it is.
create function rounded_line(prices line_prices) returns line_prices
language sql immutable as $$
    select row(melvark.rounded_price_row((prices).unit_before, 6), melvark.rounded_price_row((prices).unit_after, 6),
               melvark.rounded_price_row((prices).total_before, 2),
               melvark.rounded_price_row((prices).total_after, 2))::melvark.line_prices
$$;

-- The line as it follows from its truth; with a truth that is null or empty, the line itself. A quantity of 0 or null is
-- none, a discount of null is 0.
create function recalculated_line(prices line_prices, quantity numeric, rate_a numeric, rate_l numeric,
                                  discount numeric, truth_level text, truth_side text, truth_kind text)
returns line_prices
language plpgsql immutable as $$
declare
    given constant melvark.line_prices := melvark.rounded_line(prices);
    -- unit before, unit after, total before, total after: the bits of (index - 1) are level and side.
    price_rows melvark.price_row[] := array[given.unit_before, given.unit_after, given.total_before, given.total_after];
    truth constant integer := 1 + case truth_level when 'total' then 2 else 0 end
                                + case truth_side when 'after' then 1 else 0 end;
    across constant integer := 1 + ((truth - 1) # 1);
    decimals constant integer[] := array[6, 6, 2, 2];
    kept constant numeric := 100 - coalesce(round(discount, 2), 0);
    amount constant numeric := nullif(round(quantity, 6), 0);
    vat_typed constant boolean := truth_kind in ('DPHA', 'DPHB');
    source integer;
    target integer;
    across_given boolean := true;
begin
    if melvark.line_price(given, truth_level, truth_side, truth_kind) is null then
        return given;
    end if;

    if vat_typed then
        price_rows[truth] := melvark.price_row_of_vat_part(price_rows[truth], truth_kind, rate_a, rate_l, decimals[truth]);
    else
        price_rows[truth] := melvark.completed_price_row(price_rows[truth], truth_kind, rate_a, rate_l, decimals[truth]);
    end if;

    -- The other side of the discount. Nothing leads back from 100 %: the price before it stays, where there is one.
    if truth_side = 'before' or kept <> 0 then
        price_rows[across] := melvark.completed_price_row(
            case truth_side
                when 'before' then melvark.carried_price_row(price_rows[truth], truth_kind, kept, 100, decimals[across])
                else melvark.carried_price_row(price_rows[truth], truth_kind, 100, kept, decimals[across])
            end, truth_kind, rate_a, rate_l, decimals[across]);
    elsif (truth_kind = 'CENAS' and price_rows[across].cenas is not null)
          or (truth_kind <> 'CENAS' and price_rows[across].cenab is not null) then
        price_rows[across] := melvark.completed_price_row(
            price_rows[across], case when vat_typed then 'CENAB' else truth_kind end, rate_a, rate_l, decimals[across]);
    else
        across_given := false;
    end if;

    -- The other level, each side from its own. Without a quantity, a total that nothing gave would belong to an older one.
    foreach source in array array[truth, across] loop
        target := 1 + ((source - 1) # 2);
        if amount is not null and (source = truth or across_given) then
            price_rows[target] := melvark.completed_price_row(
                case truth_level
                    when 'unit' then melvark.carried_price_row(price_rows[source], truth_kind, amount, 1, decimals[target])
                    else melvark.carried_price_row(price_rows[source], truth_kind, 1, amount, decimals[target])
                end, truth_kind, rate_a, rate_l, decimals[target]);
        elsif amount is null and truth_level = 'unit' then
            price_rows[target] := null;
        elsif amount is null and source = across and not across_given then
            price_rows[source] := null;
        end if;
    end loop;

    return row(price_rows[1], price_rows[2], price_rows[3], price_rows[4])::melvark.line_prices;
end
$$;

-- Which price is the truth after a change of `focus`: the price in focus itself, or else what the clerk fixed. The marks
-- of changed cells (keys, each closed by ";") choose level, side and kind; the first price that is not empty counts,
-- sought from that choice on. All null when the row has none.
create function recalculation_truth(prices line_prices, quantity numeric, changed text, focus text,
                                    out truth_level text, out truth_side text, out truth_kind text)
language plpgsql stable as $$
declare
    marks constant text[] := coalesce(string_to_array(changed, ';'), '{}');
    marked text[];
    chosen_level text := 'unit';
    chosen_side text := 'before';
    chosen_kind text := 'CENAB';
begin
    select KEYS.LEVEL, KEYS.SIDE, KEYS.KIND into truth_level, truth_side, truth_kind
    from RECALC_KEY as KEYS where KEYS.KEY = focus;
    if found then
        return;
    end if;

    select coalesce(array_agg(concat_ws(' ', KEYS.LEVEL, KEYS.SIDE, KEYS.KIND)), '{}') into marked
    from RECALC_KEY as KEYS where KEYS.KEY = any (marks);
    if quantity <> 0 and exists (select from unnest(marked) as MARK where MARK like 'total %')
       and not exists (select from unnest(marked) as MARK where MARK like 'unit %') then
        chosen_level := 'total';
    end if;
    if exists (select from unnest(marked) as MARK where MARK like chosen_level || ' after %')
       and not exists (select from unnest(marked) as MARK where MARK like chosen_level || ' before %') then
        chosen_side := 'after';
    end if;
    if concat_ws(' ', chosen_level, chosen_side, 'CENAS') = any (marked)
       and concat_ws(' ', chosen_level, chosen_side, 'CENAB') <> all (marked) then
        chosen_kind := 'CENAS';
    end if;

    select KEYS.LEVEL, KEYS.SIDE, KEYS.KIND into truth_level, truth_side, truth_kind
    from RECALC_KEY as KEYS
    where KEYS.KIND in ('CENAB', 'CENAS') and line_price(prices, KEYS.LEVEL, KEYS.SIDE, KEYS.KIND) is not null
    order by KEYS.LEVEL <> chosen_level, KEYS.SIDE <> chosen_side, KEYS.KIND <> chosen_kind
    limit 1;
end
$$;

-- The percentage of a VAT rate by its name; 0 without one. Refusal ML110: there is no such rate.
create function recalculation_vat_rate(rate_name text) returns numeric
language plpgsql stable as $$
declare
    percentage numeric := 0;
begin
    if typed(rate_name) is not null then
        select RATE.SAZBA into percentage from DPH as RATE where RATE.NAZEV = typed(rate_name);
        if not found then
            perform refuse('ML110', typed(rate_name));
        end if;
    end if;
    return percentage;
end
$$;

-- The percentage of the local VAT; 0 unless the company has it on.
create function recalculation_local_rate() returns numeric
language plpgsql stable as $$
begin
    return coalesce((select round(parse_number(RATE.HODNOTA), 2)
                     from GLOBALPARAM as RATE
                     join GLOBALPARAM as SWITCH on SWITCH.SEKCE = 'DPH' and SWITCH.NAZEV = 'DPHBLIC'
                     where RATE.SEKCE = 'DPH' and RATE.NAZEV = 'SAZBADPHB' and SWITCH.HODNOTA = '1'), 0);
end
$$;

-- Null is none and passes for one.
create function is_discount(discount numeric) returns boolean
language sql immutable as $$
    select discount between 0 and 100
$$;

-- The discount as it counts; 0 without one. It is judged as it was typed: 100.001 is refused although it would round to
-- 100. Refusal ML111: outside 0 to 100.
create function recalculation_discount(discount numeric) returns numeric
language plpgsql stable as $$
begin
    if not melvark.is_discount(discount) then
        perform melvark.refuse('ML111', melvark.number_text(discount));
    end if;
    return coalesce(round(discount, 2), 0);
end
$$;
