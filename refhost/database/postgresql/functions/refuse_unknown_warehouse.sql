-- Refuses a warehouse that does not exist (ML044); null is none and passes.
create function refuse_unknown_warehouse(name text) returns void
language sql as $$
    select refuse('ML044', 'Sklad „' || shown(name) || '“ neexistuje. Vyberte sklad ze seznamu.')
    where name is not null and not exists (select from SKLAD s where s.NAZEV = name)
$$;
