-- The checks of a delivery-note row that is saved, one for each kind of cell. Texts come without blanks around them, null
-- for an empty cell.

-- Refuses a VAT rate that does not exist (ML110); null is none and passes.
create function refuse_unknown_rate(name text) returns void
language plpgsql as $$
begin
    if name is not null and not exists (select from DPH r where r.NAZEV = name) then
        perform refuse('ML110', name);
    end if;
end
$$;

-- The order line that is delivered. Refusals: ML049 there is none, ML050 it is for another item.
create function note_line_order_line(id text, item integer) returns integer
language plpgsql as $$
declare
    ordered_line integer;
    ordered_item integer;
begin
    select p.ID, p.SKLPID into ordered_line, ordered_item
    from melvark.DODOBJPOL p
    join melvark.DODOBJEDNAVKA o on o.ID = p.DDOBID and o.VZOR = 0
    where p.ID = melvark.as_integer($1);
    if ordered_line is null then
        perform melvark.refuse('ML049', $1);
    elsif ordered_item <> item then
        perform melvark.refuse('ML050', $1, (select i.NAZEV from melvark.SKLADPOL i where i.ID = item));
    end if;
    return ordered_line;
end
$$;

-- The numbers of a row, null for an empty cell, from its texts: 1 the quantity, 2 the discount, 3 to 6 the unit prices
-- after the discount, 7 to 10 those before it, 11 to 14 the totals after it, 15 to 18 those before it. Refusals: ML001,
-- ML005, ML006.
create function note_line_numbers(texts text[]) returns numeric[]
language plpgsql as $$
declare
    labels constant text[] := array_cat(array['Množství', 'Sleva'],
        array_cat(array_fill('Jednotková cena'::text, array[8]), array_fill('Celková cena'::text, array[8])));
    decimals constant integer[] := array_cat(array[6, 2], array_cat(array_fill(6, array[8]), array_fill(2, array[8])));
    numbers numeric[];
begin
    for place in 1..18 loop
        numbers[place] := parse_number(typed(texts[place]), labels[place], decimals[place]);
    end loop;
    return numbers;
end
$$;

-- Whether every text that is not null is so plain a number that it can be read without a closer look: digits, perhaps a
-- minus before and one point or comma between them, as many as the tables hold. Said of all of them at once, for asked one
-- by one they cost most of a row's time. Stable as array_to_string is: else the planner would not put it into the caller's
-- expression.
create function are_plain_numbers(texts text[]) returns boolean
language sql stable as $$
    select array_to_string(texts, ';', '0') || ';' ~ '^(?:-?[0-9]{1,15}(?:[.,][0-9]{1,6})?;)*$'
$$;

-- Whether numbers that were read so are one for each text of a row, and its discount and totals have the decimals of
-- note_line_numbers. A text with a semicolon was read as more than one.
create function fit_note_line(numbers numeric[]) returns boolean
language sql immutable as $$
    select cardinality(numbers) = 18
       and coalesce(greatest(scale(numbers[2]), scale(numbers[11]), scale(numbers[12]), scale(numbers[13]),
                             scale(numbers[14]), scale(numbers[15]), scale(numbers[16]), scale(numbers[17]),
                             scale(numbers[18])) <= 2, true)
$$;

-- How far a total may be from quantity times unit price: both prices are rounded to their decimals.
create function note_line_tolerance(quantity numeric) returns numeric
language sql immutable as $$
    select 0.02 + abs(quantity) * 0.000002
$$;

-- Whether no total is further from quantity times unit price than that; prices that are not given do not count. `numbers`
-- are those of note_line_numbers.
create function is_balanced_note_line(numbers numeric[]) returns boolean
language sql immutable as $$
    select coalesce(
        greatest(abs(numbers[1] * numbers[3] - numbers[11]), abs(numbers[1] * numbers[4] - numbers[12]),
                 abs(numbers[1] * numbers[5] - numbers[13]), abs(numbers[1] * numbers[6] - numbers[14]),
                 abs(numbers[1] * numbers[7] - numbers[15]), abs(numbers[1] * numbers[8] - numbers[16]),
                 abs(numbers[1] * numbers[9] - numbers[17]), abs(numbers[1] * numbers[10] - numbers[18]))
        <= melvark.note_line_tolerance(numbers[1]), true)
$$;

-- Refuses the first total that is further from it (ML052).
create function refuse_unbalanced_note_line(item integer, numbers numeric[]) returns void
language plpgsql as $$
begin
    for pair in 1..8 loop
        if abs(numbers[1] * numbers[pair + 2] - numbers[pair + 10]) > note_line_tolerance(numbers[1]) then
            perform refuse('ML052', total_text(numbers[pair + 10]), (select i.NAZEV from SKLADPOL i where i.ID = item),
                           number_text(numbers[1]), number_text(numbers[pair + 2]));
        end if;
    end loop;
end
$$;
