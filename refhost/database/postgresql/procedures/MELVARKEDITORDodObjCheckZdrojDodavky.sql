-- Checks a supplier whose deliveries are to fill an order or order template and returns his identifier: he has to have
-- delivered something in the months before the document's moment that the company's parameter POCETMESICUDODAVEK gives.
-- a_JMENO is what the clerk typed, in any case of letters, a_DODVID whom he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML020 to ML023 who is named; ML029 no deliveries; ML070 the parameter is
-- no number of months.

create function MELVARKEDITORDodObjCheckZdrojDodavky(
    a_DDOBIDMASTER integer default null,
    a_JMENO text default null,
    a_DODVID integer default null)
returns table (ID integer)
language sql stable as $$
    select refuse_unknown_master_order(a_DDOBIDMASTER);

    select source_choice('Dodavatel', typed(a_JMENO), picked_id(a_DODVID), null, array(
        select row(v.ID, v.JMENO, lower(v.JMENO) = lower(typed(a_JMENO) collate CZECH),
                   deliveries_fault(v.ID, a_DDOBIDMASTER, null, null, null,
                                    V_GetGlobalParam('SKLAD', 'POCETMESICUDODAVEK')))::source_candidate
        from DODAVATEL v
        where v.ID = picked_id(a_DODVID)
           or (picked_id(a_DODVID) is null and lower(v.JMENO) = lower(typed(a_JMENO) collate CZECH))))
$$;
