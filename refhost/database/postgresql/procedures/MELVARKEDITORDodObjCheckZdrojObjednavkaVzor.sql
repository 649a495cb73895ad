-- Checks an order template as the source of an order or order template and returns its identifier. a_CISLO is what
-- the clerk typed, a_DDOBID what he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML020 to ML023 what is named; ML027 the document itself, ML024 another
-- supplier, ML025 another warehouse.

create function MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(
    a_DDOBIDMASTER integer default null,
    a_CISLO text default null,
    a_DDOBID integer default null)
returns table (ID integer)
language sql stable as $$
    select refuse_unknown_master_order(a_DDOBIDMASTER);

    select source_choice('Vzor objednávky', typed(a_CISLO), picked_id(a_DDOBID), null, array(
        select row(s._ID, s.CISLO, s.CISLO = typed(a_CISLO),
                   order_fault_for_order(s._ID, s._SKLDID, s._DODVID, o.ID, o.SKLDID, o.DODVID))::source_candidate
        from DODOBJEDNAVKAVZOR_NORMAL_V s
        left join DODOBJEDNAVKA o on o.ID = a_DDOBIDMASTER
        where s._ID = any (picked_id(a_DDOBID) || array(
            select n.ID from DODOBJEDNAVKA n where n.VZOR = 1 and n.CISLO = typed(a_CISLO) and picked_id(a_DDOBID) is null))))
$$;
