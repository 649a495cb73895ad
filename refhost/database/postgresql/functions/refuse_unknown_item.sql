-- Refuses a row without a stock item (ML042) or with one that does not exist (ML043).
create function refuse_unknown_item(name text) returns void
language plpgsql as $$
begin
    if name is null then
        perform refuse('ML042');
    elsif not exists (select from SKLADPOL i where i.NAZEV = name) then
        perform refuse('ML043', name);
    end if;
end
$$;
