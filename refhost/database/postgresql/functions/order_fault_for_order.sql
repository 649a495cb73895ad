-- Why an order or an order template cannot be the source of another: the code of the refusal, null when it can. Both
-- kinds have one sequence of identifiers, so that the same rules decide about either. An identifier that is null, 0 or
-- negative is none and restricts nothing.
--
-- `skldid` and `dodvid` are the source's, `warehouse` and `supplier` those of the document which is filled.
create function order_fault_for_order(id integer, skldid integer, dodvid integer, document integer, warehouse integer,
                                      supplier integer) returns text
language plpgsql stable as $$
begin
    return case
        when not exists (select from melvark.DODOBJEDNAVKA o where o.ID = $1) then 'ML021'
        when document > 0 and not exists (select from melvark.DODOBJEDNAVKA o where o.ID = document) then 'ML012'
        when $1 = document then 'ML027'
        when dodvid > 0 and supplier > 0 and dodvid <> supplier then 'ML024'
        when skldid > 0 and warehouse > 0 and skldid <> warehouse then 'ML025'
    end;
end
$$;
