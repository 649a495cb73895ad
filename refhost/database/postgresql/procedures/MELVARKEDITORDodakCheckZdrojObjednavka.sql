-- Checks an order as the source of a delivery note and returns its identifier. a_CISLO is what the clerk typed, a_DDOBID
-- what he picked, null for none.
--
-- Refusals: ML010 the note does not exist; ML020 to ML023 what is named; ML024 another supplier, ML025 another warehouse,
-- ML026 nothing is left to deliver.

create function MELVARKEDITORDodakCheckZdrojObjednavka(
    a_DODKIDMASTER integer default null,
    a_CISLO text default null,
    a_DDOBID integer default null)
returns table (ID integer)
language sql stable as $$
    select refuse_unknown_master_note(a_DODKIDMASTER);

    select source_choice('Objednávka', typed(a_CISLO), picked_id(a_DDOBID), null, array(
        select row(s._ID, s.CISLO, s.CISLO = typed(a_CISLO),
                   order_fault_for_note(s._ID, s._SKLDID, s._DODVID, d.ID, d.DODVID, s._DODANO))::source_candidate
        from DODOBJEDNAVKA_NORMAL_V s
        left join DODAK d on d.ID = a_DODKIDMASTER
        where s._ID = any (picked_id(a_DDOBID) || array(
            select n.ID from DODOBJEDNAVKA n where n.VZOR = 0 and n.CISLO = typed(a_CISLO) and picked_id(a_DDOBID) is null))))
$$;
