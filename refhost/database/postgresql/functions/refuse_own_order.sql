-- Refuses an order or order template as the source of its own lines (ML027).
create function refuse_own_order(document integer, source integer) returns void
language plpgsql as $$
begin
    if document = source then
        perform refuse('ML027', case o.VZOR when 1 then 'Vzor objednávky' else 'Objednávka' end, o.CISLO)
        from DODOBJEDNAVKA o
        where o.ID = document;
    end if;
end
$$;
