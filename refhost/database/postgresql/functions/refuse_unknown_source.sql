-- Refuses a save whose source document does not exist any more (ML055); null, 0 and negative identifiers are none. Until
-- the end of the save nobody deletes it.
create function refuse_unknown_source(note integer, source_order integer) returns void
language sql as $$
    select from DODAK where ID = note for key share;
    select from DODOBJEDNAVKA where ID = source_order for key share;

    select refuse('ML055', s.ID::text)
    from (select note as ID where note > 0 and not exists (select from DODAK d where d.ID = note)
          union all
          select source_order
          where source_order > 0 and not exists (select from DODOBJEDNAVKA o where o.ID = source_order)) s
$$;
