-- Refuses an order or order template that does not exist (ML012) or is closed (ML013).
create function refuse_closed_order(id integer) returns void
language sql as $$
    select refuse_unknown_order(refuse_closed_order.id);

    select refuse('ML013', case o.VZOR
                      when 1 then 'Vzor objednávky „' || shown(o.CISLO) || '“ je uzavřený. Otevřete jej, nebo vyberte jiný.'
                      else 'Objednávka „' || shown(o.CISLO) || '“ je uzavřená. Otevřete ji, nebo vyberte jinou.'
                  end)
    from DODOBJEDNAVKA o
    where o.ID = refuse_closed_order.id and o.OTEVRENO = 0
$$;
