-- Refuses a save whose source document does not exist any more (ML055); null, 0 and negative identifiers
-- are none.
create function refuse_unknown_source(note integer, source_order integer) returns void
language sql as $$
    select refuse('ML055', 'Zdrojový doklad s identifikátorem ' || s.ID || ' neexistuje. Zvolte zdroj znovu.')
    from (select note as ID where note > 0 and note not in (select d.ID from DODAK d)
          union all
          select source_order
          where source_order > 0 and source_order not in (select o.ID from DODOBJEDNAVKA o)) s
$$;
