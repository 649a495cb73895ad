-- Refuses a source supplier that does not exist (ML021); null is none.
create function refuse_unknown_supplier_id(id integer) returns void
language sql as $$
    select refuse('ML021', 'Dodavatel „' || coalesce(refuse_unknown_supplier_id.id::text, 'NULL')
                               || '“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.')
    where not exists (select from DODAVATEL v where v.ID = refuse_unknown_supplier_id.id)
$$;
