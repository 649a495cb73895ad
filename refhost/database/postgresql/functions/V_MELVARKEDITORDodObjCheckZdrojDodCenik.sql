-- 1 for a supplier whose price list can fill an order or order template: see price_list_fault. A price list has no
-- warehouse, so that the document's restricts nothing.
create function V_MELVARKEDITORDodObjCheckZdrojDodCenik(dodvid integer, document integer, warehouse integer,
                                                        supplier integer, moment text) returns integer
language plpgsql stable as $$
begin
    return (price_list_fault(dodvid, document, supplier, parse_moment(moment)) is null)::integer;
end
$$;
