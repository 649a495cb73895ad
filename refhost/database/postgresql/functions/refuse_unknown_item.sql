-- Refuses a row without a stock item (ML042) or with one that does not exist (ML043).
create function refuse_unknown_item(name text) returns void
language plpgsql as $$
begin
    if name is null then
        perform refuse('ML042', 'Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte.');
    elsif not exists (select from SKLADPOL i where i.NAZEV = name) then
        perform refuse('ML043', 'Skladová položka „' || shown(name) || '“ neexistuje. Vyberte jinou.');
    end if;
end
$$;
