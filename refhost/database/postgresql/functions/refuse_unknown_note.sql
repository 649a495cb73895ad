-- Refuses a delivery note that does not exist (ML010); null is none.
create function refuse_unknown_note(id integer) returns void
language sql as $$
    select refuse('ML010', refuse_unknown_note.id::text)
    where not exists (select from DODAK d where d.ID = refuse_unknown_note.id)
$$;
