-- Checks another delivery note as the source of a delivery note and returns its identifier. a_DODAKCISLO is what the
-- clerk typed, a_DODKID what he picked, null for none.
--
-- Refusals: ML010 the note does not exist; ML020 to ML023 what is named; ML027 the note itself, ML024 another supplier.

create function MELVARKEDITORDodakCheckZdrojDodak(
    a_DODKIDMASTER integer default null,
    a_DODAKCISLO text default null,
    a_DODKID integer default null)
returns table (ID integer)
language sql stable as $$
    select refuse_unknown_master_note(a_DODKIDMASTER);

    select source_choice('Dodací list', typed(a_DODAKCISLO), picked_id(a_DODKID), null, array(
        select row(s._ID, s.CISLO, s.CISLO = typed(a_DODAKCISLO),
                   note_fault_for_note(s._ID, s._DODVID, d.ID, d.DODVID))::source_candidate
        from DODAK_NORMAL_V s
        left join DODAK d on d.ID = a_DODKIDMASTER
        where s._ID = any (picked_id(a_DODKID) || array(
            select n.ID from DODAK n where n.CISLO = typed(a_DODAKCISLO) and picked_id(a_DODKID) is null))))
$$;
