-- 1 for an order that can be the source of a delivery note: see order_fault_for_note.
create function V_MELVARKEDITORDodakCheckZdrojObjednavka(id integer, skldid integer, dodvid integer, note integer,
                                                         supplier integer, delivered integer) returns integer
language plpgsql stable as $$
begin
    return (order_fault_for_note(id, skldid, dodvid, note, supplier, delivered) is null)::integer;
end
$$;
