-- Refuses a delivery note that does not exist (ML010) or is closed (ML011).
create function refuse_closed_note(id integer) returns void
language sql as $$
    select refuse_unknown_note(refuse_closed_note.id);

    select refuse('ML011', d.CISLO)
    from DODAK d
    where d.ID = refuse_closed_note.id and d.OTEVRENO = 0
$$;
