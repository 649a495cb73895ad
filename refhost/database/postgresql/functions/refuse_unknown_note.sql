-- Refuses a delivery note that does not exist (ML010); null is none.
create function refuse_unknown_note(id integer) returns void
language sql as $$
    select refuse('ML010', 'Dodací list s identifikátorem ' || coalesce(refuse_unknown_note.id::text, 'NULL')
                               || ' neexistuje. Obnovte seznam a vyberte jiný.')
    where not exists (select from DODAK d where d.ID = refuse_unknown_note.id)
$$;
