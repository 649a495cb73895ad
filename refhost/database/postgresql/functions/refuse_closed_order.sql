-- Refuses an order or order template that does not exist (ML012) or is closed (ML013).
create function refuse_closed_order(id integer) returns void
language sql as $$
    select refuse_unknown_order(refuse_closed_order.id);

    select refuse(case o.VZOR when 1 then 'ML013/template' else 'ML013' end, o.CISLO)
    from DODOBJEDNAVKA o
    where o.ID = refuse_closed_order.id and o.OTEVRENO = 0
$$;
