-- Checks a delivery note as the source of an order or order template and returns its identifier. a_CISLO is what the
-- clerk typed, a_DODKID what he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML020 to ML023 what is named; ML024 another supplier, ML025 another
-- warehouse.

create function MELVARKEDITORDodObjCheckZdrojDodak(
    a_DDOBIDMASTER integer default null,
    a_CISLO text default null,
    a_DODKID integer default null)
returns table (ID integer)
language sql stable as $$
    select refuse_unknown_master_order(a_DDOBIDMASTER);

    select source_choice('Dodací list', typed(a_CISLO), picked_id(a_DODKID), null, array(
        select row(s._ID, s.CISLO, s.CISLO = typed(a_CISLO),
                   note_fault_for_order(s._ID, s._DODVID, o.ID, o.SKLDID, o.DODVID))::source_candidate
        from DODAK_NORMAL_V s
        left join DODOBJEDNAVKA o on o.ID = a_DDOBIDMASTER
        where s._ID = any (picked_id(a_DODKID) || array(
            select n.ID from DODAK n where n.CISLO = typed(a_CISLO) and picked_id(a_DODKID) is null))))
$$;
