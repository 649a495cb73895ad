-- Checks one row of an order or template and keeps it for the closing call. Texts come as they stand in the editor's
-- cells; a row without any is ignored. An empty warehouse or supplier is the document's own.
--
-- Refusals: ML040, ML041 no save is under way; ML042, ML043 item; ML044 warehouse; ML045 supplier; ML001, ML005, ML006
-- quantities; ML048 a quantity without a unit, ML047 a unit that is not the item's.
--
-- answer: may come later
-- after failure: staging refused

create function MELVARKEDITORDodObjInsertToTemp(
    a_SKLADPOL text default null,
    a_SKLAD text default null,
    a_DODAVATEL text default null,
    a_SKPLID text default null,
    a_MNOZSTVI text default null,
    a_JEDNOTKY text default null,
    a_SKPLIDV1 text default null,
    a_MNOZSTVIV1 text default null,
    a_JEDNOTKYV1 text default null,
    a_SKPLIDV2 text default null,
    a_MNOZSTVIV2 text default null,
    a_JEDNOTKYV2 text default null,
    a_POPIS text default null,
    a_KOMENTAR text default null)
returns void
language plpgsql as $$
declare
    -- Names are read once, not again for each row that they are compared with.
    item_name constant text := typed(a_SKLADPOL);
    warehouse_name constant text := typed(a_SKLAD);
    supplier_name constant text := typed(a_DODAVATEL);
    -- Mostly one slot has something: no function is called for what is empty.
    unit_ids constant text[] := array[
        case when a_SKPLID is not null then typed_id(a_SKPLID) end,
        case when a_SKPLIDV1 is not null then typed_id(a_SKPLIDV1) end,
        case when a_SKPLIDV2 is not null then typed_id(a_SKPLIDV2) end];
    unit_names constant text[] := array[typed(a_JEDNOTKY), typed(a_JEDNOTKYV1), typed(a_JEDNOTKYV2)];
    quantities numeric[];
    units text[];
    item integer;
    warehouse integer;
    supplier integer;
    is_open boolean;
begin
    -- All that a good row needs is looked up at once; what was not found is looked at again, for its refusal. Joined, for a
    -- subquery of each own costs more.
    select i.ID, s.ID, v.ID, t.IS_OPEN into item, warehouse, supplier, is_open
    from (values (null)) one_row
    left join SKLADPOL i on i.NAZEV = item_name
    left join SKLAD s on s.NAZEV = warehouse_name
    left join DODAVATEL v on v.JMENO = supplier_name
    left join STAGING_TABLE t on t.NAME = 'order_staged';
    if is_open is not true then
        perform refuse_closed_staging();
    end if;
    if item_name is null
       and typed(concat(a_SKLAD, a_DODAVATEL, array_to_string(unit_ids, ''), a_MNOZSTVI, a_JEDNOTKY, a_MNOZSTVIV1,
                        a_JEDNOTKYV1, a_MNOZSTVIV2, a_JEDNOTKYV2, a_POPIS, a_KOMENTAR)) is null then
        return;
    end if;

    if item is null or (warehouse is null and warehouse_name is not null)
       or (supplier is null and supplier_name is not null) then
        perform refuse_unknown_item(item_name);
        perform refuse_unknown_warehouse(warehouse_name);
        perform refuse_unknown_supplier_name(supplier_name);
    end if;

    quantities := array[
        case when a_MNOZSTVI is not null then parse_number(typed(a_MNOZSTVI), 'Množství', 6) end,
        case when a_MNOZSTVIV1 is not null
             then parse_number(typed(a_MNOZSTVIV1), 'Množství ve vedlejší jednotce 1', 6) end,
        case when a_MNOZSTVIV2 is not null
             then parse_number(typed(a_MNOZSTVIV2), 'Množství ve vedlejší jednotce 2', 6) end];
    -- Mostly each slot that has something names a unit of the item in full; only the others need the closer look. The
    -- item's units are few and read whole: counting those that fit, or a condition on them, costs more.
    units := array(select concat(u.ID, ' ', u.NAZEV) from SKPL u where u.SKLPID = item);
    if not array_remove(array[order_slot_unit(unit_ids[1], unit_names[1], quantities[1]),
                              order_slot_unit(unit_ids[2], unit_names[2], quantities[2]),
                              order_slot_unit(unit_ids[3], unit_names[3], quantities[3])], null) <@ units then
        perform refuse_wrong_unit(item, item_name, quantities, unit_ids, unit_names);
    end if;

    for slot in 1..3 loop
        if quantities[slot] <> 0 then
            insert into pg_temp.ORDER_STAGED (SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI, POPIS, KOMENTAR)
            values (item, as_integer(unit_ids[slot]), warehouse, supplier, quantities[slot], typed(a_POPIS),
                    typed(a_KOMENTAR));
        end if;
    end loop;
end
$$;
