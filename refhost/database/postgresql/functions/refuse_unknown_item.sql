-- Refuses a row without a stock item (ML042) or with one that does not exist (ML043).
create function refuse_unknown_item(name text) returns void
language sql as $$
    select refuse('ML042', 'Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte.') where name is null;

    select refuse('ML043', 'Skladová položka „' || shown(name) || '“ neexistuje. Vyberte jinou.')
    where not exists (select from SKLADPOL i where i.NAZEV = name)
$$;
