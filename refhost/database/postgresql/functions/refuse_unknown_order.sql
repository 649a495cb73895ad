-- Refuses a document that is neither an order nor an order template (ML012); null is none.
create function refuse_unknown_order(id integer) returns void
language sql as $$
    select refuse('ML012', 'Objednávka ani vzor objednávky s identifikátorem '
                               || coalesce(refuse_unknown_order.id::text, 'NULL')
                               || ' neexistuje. Obnovte seznam a vyberte jiný doklad.')
    where not exists (select from DODOBJEDNAVKA o where o.ID = refuse_unknown_order.id)
$$;
