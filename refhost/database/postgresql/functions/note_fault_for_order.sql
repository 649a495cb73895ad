-- Why a delivery note cannot be the source of an order or order template: the code of the refusal, null when it can. An
-- identifier that is null, 0 or negative is none and restricts nothing.
--
-- `dodvid` is the note's supplier, `warehouse` and `supplier` those of the document which is filled.
create function note_fault_for_order(id integer, dodvid integer, document integer, warehouse integer, supplier integer)
returns text
language sql stable as $$
    select case
        when not exists (select from DODAK d where d.ID = note_fault_for_order.id) then 'ML021'
        when document > 0 and not exists (select from DODOBJEDNAVKA o where o.ID = document) then 'ML012'
        when dodvid > 0 and supplier > 0 and dodvid <> supplier then 'ML024'
        when warehouse > 0 and warehouse <> (select d.SKLDID from DODAK d where d.ID = note_fault_for_order.id)
            then 'ML025'
    end
$$;
