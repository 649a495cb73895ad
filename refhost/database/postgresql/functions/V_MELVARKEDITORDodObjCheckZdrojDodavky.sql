-- 1 for a supplier whose deliveries can fill an order or order template: see deliveries_fault. The number of months may
-- come as a text or as an integer.
create function V_MELVARKEDITORDodObjCheckZdrojDodavky(dodvid integer, document integer, warehouse integer,
                                                       supplier integer, moment text, months text) returns integer
language plpgsql stable as $$
begin
    return (deliveries_fault(dodvid, document, warehouse, supplier, parse_moment(moment), months) is null)::integer;
end
$$;

create function V_MELVARKEDITORDodObjCheckZdrojDodavky(dodvid integer, document integer, warehouse integer,
                                                       supplier integer, moment text, months integer) returns integer
language plpgsql stable as $$
begin
    return V_MELVARKEDITORDodObjCheckZdrojDodavky(dodvid, document, warehouse, supplier, moment, months::text);
end
$$;
