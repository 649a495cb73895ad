-- Refuses a warehouse that does not exist (ML044); null is none and passes.
create function refuse_unknown_warehouse(name text) returns void
language plpgsql as $$
begin
    if name is not null and not exists (select from SKLAD s where s.NAZEV = name) then
        perform refuse('ML044', name);
    end if;
end
$$;
