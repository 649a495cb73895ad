-- Refuses a document that is neither an order nor an order template (ML012); null is none.
create function refuse_unknown_order(id integer) returns void
language sql as $$
    select refuse('ML012', refuse_unknown_order.id::text)
    where not exists (select from DODOBJEDNAVKA o where o.ID = refuse_unknown_order.id)
$$;
