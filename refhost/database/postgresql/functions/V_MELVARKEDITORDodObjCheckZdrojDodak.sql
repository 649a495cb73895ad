-- 1 for a delivery note that can be the source of an order or order template: see note_fault_for_order.
create function V_MELVARKEDITORDodObjCheckZdrojDodak(id integer, dodvid integer, document integer, warehouse integer,
                                                     supplier integer) returns integer
language plpgsql stable as $$
begin
    return (note_fault_for_order(id, dodvid, document, warehouse, supplier) is null)::integer;
end
$$;
