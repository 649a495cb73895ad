-- Refuses a source supplier that does not exist (ML021); null is none.
create function refuse_unknown_supplier_id(id integer) returns void
language sql as $$
    select refuse('ML021', 'Dodavatel', refuse_unknown_supplier_id.id::text)
    where not exists (select from DODAVATEL v where v.ID = refuse_unknown_supplier_id.id)
$$;
