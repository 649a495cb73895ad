-- Why a delivery note cannot be the source of an order or order template: the code of the refusal, null when it can. An
-- identifier that is null, 0 or negative is none and restricts nothing.
--
-- `dodvid` is the note's supplier, `warehouse` and `supplier` those of the document which is filled.
create function note_fault_for_order(id integer, dodvid integer, document integer, warehouse integer, supplier integer)
returns text
language plpgsql stable as $$
begin
    return case
        when not exists (select from melvark.DODAK d where d.ID = $1) then 'ML021'
        when document > 0 and not exists (select from melvark.DODOBJEDNAVKA o where o.ID = document) then 'ML012'
        when dodvid > 0 and supplier > 0 and dodvid <> supplier then 'ML024'
        when warehouse > 0 and warehouse <> (select d.SKLDID from melvark.DODAK d where d.ID = $1)
            then 'ML025'
    end;
end
$$;
