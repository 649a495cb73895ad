-- 1 for an order or order template that can be the source of another: see order_fault_for_order.
create function V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(id integer, skldid integer, dodvid integer,
                                                              document integer, warehouse integer, supplier integer)
returns integer
language plpgsql stable as $$
begin
    return (order_fault_for_order(id, skldid, dodvid, document, warehouse, supplier) is null)::integer;
end
$$;
