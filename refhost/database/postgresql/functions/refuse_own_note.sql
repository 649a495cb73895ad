-- Refuses a delivery note as the source of its own lines (ML027).
create function refuse_own_note(note integer, source integer) returns void
language plpgsql as $$
begin
    if note = source then
        perform refuse('ML027', 'Dodací list', d.CISLO) from DODAK d where d.ID = note;
    end if;
end
$$;
