-- Checks one row of a delivery note and keeps it for the closing call. Texts come as they stand in the editor's cells; a
-- row without any is ignored, one without a quantity is checked only. An empty warehouse is the note's own, an empty VAT
-- rate none.
--
-- Refusals: ML040, ML041 no save is under way; ML042, ML043 item; ML044 warehouse; ML110 VAT rate; ML049, ML050 order
-- line; ML001, ML005, ML006 numbers; ML111 discount; ML002 shelf life; ML052 a total that its quantity and unit price
-- do not give.
--
-- answer: may come later
-- after failure: staging refused

create function MELVARKEDITORDodakInsertToTemp(
    a_DOBSID text default null,
    a_SKLADPOL text default null,
    a_SKLAD text default null,
    a_MNOZSTVI text default null,
    a_DPH text default null,
    a_SLEVA text default null,
    a_JEDNCENABSL text default null,
    a_JEDNDPHASL text default null,
    a_JEDNDPHBSL text default null,
    a_JEDNCENASSL text default null,
    a_JEDNCENAB text default null,
    a_JEDNDPHA text default null,
    a_JEDNDPHB text default null,
    a_JEDNCENAS text default null,
    a_CENABSL text default null,
    a_DPHASL text default null,
    a_DPHBSL text default null,
    a_CENASSL text default null,
    a_CENAB text default null,
    a_DPHA text default null,
    a_DPHB text default null,
    a_CENAS text default null,
    a_TRVANLIVOST text default null)
returns void
language plpgsql as $$
declare
    -- Names are read once, not again for each row that they are compared with.
    item_name constant text := typed(a_SKLADPOL);
    warehouse_name constant text := typed(a_SKLAD);
    rate_name constant text := typed(a_DPH);
    texts constant text[] := array[
        a_MNOZSTVI, a_SLEVA, a_JEDNCENABSL, a_JEDNDPHASL, a_JEDNDPHBSL, a_JEDNCENASSL,
        a_JEDNCENAB, a_JEDNDPHA, a_JEDNDPHB, a_JEDNCENAS, a_CENABSL, a_DPHASL, a_DPHBSL, a_CENASSL,
        a_CENAB, a_DPHA, a_DPHB, a_CENAS];
    order_line_id constant text := case when a_DOBSID is not null then typed_id(a_DOBSID) end;
    numbers numeric[];
    item integer;
    warehouse integer;
    rate integer;
    is_open boolean;
    order_line integer;
    shelf_life date;
    place integer;
begin
    -- All that a good row needs is looked up at once; what was not found is looked at again, for its refusal. Calls of
    -- other functions cost a row most of its time here.
    select (select i.ID from SKLADPOL i where i.NAZEV = item_name),
           (select s.ID from SKLAD s where s.NAZEV = warehouse_name),
           (select r.ID from DPH r where r.NAZEV = rate_name),
           (select t.IS_OPEN from STAGING_TABLE t where t.NAME = 'note_staged')
    into item, warehouse, rate, is_open;
    if is_open is not true then
        perform refuse_closed_staging();
    end if;
    place := set_config('melvark.last_row', (current_setting('melvark.last_row')::integer + 1)::text, false);
    if item_name is null
       and typed(concat(order_line_id, a_SKLAD, a_DPH, a_TRVANLIVOST, array_to_string(texts, ''))) is null then
        return;
    end if;

    if item is null or (warehouse is null and warehouse_name is not null)
       or (rate is null and rate_name is not null) then
        perform refuse_unknown_item(item_name);
        perform refuse_unknown_warehouse(warehouse_name);
        perform refuse_unknown_rate(rate_name);
    end if;
    if order_line_id is not null then
        order_line := note_line_order_line(order_line_id, item);
    end if;

    if are_plain_numbers(texts) then
        numbers := ('{' || translate(array_to_string(texts, ';', 'null'), ',;', '.,') || '}')::numeric[];
    end if;
    if numbers is null or not fit_note_line(numbers) then
        numbers := note_line_numbers(texts);
    end if;
    if not is_discount(numbers[2]) then
        perform recalculation_discount(numbers[2]);
    end if;
    if a_TRVANLIVOST is not null then
        shelf_life := parse_date(typed(a_TRVANLIVOST), 'Trvanlivost');
    end if;

    if numbers[1] <> 0 then
        if not is_balanced_note_line(numbers) then
            perform refuse_unbalanced_note_line(item, numbers);
        end if;
        insert into pg_temp.NOTE_STAGED (PLACE, DOBSID, SKLPID, SKLDID, DPHID, NUMBERS, TRVANLIVOST)
        values (place, order_line, item, warehouse, rate, numbers, shelf_life);
    end if;
end
$$;
