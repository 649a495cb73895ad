-- Checks a stock group of level 2 and returns its identifier, null when the level is left empty. a_NAZEV is what the clerk
-- typed, in any case of letters, a_SSP2ID what he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML030 no such group, ML031 several have the name, ML032 the name is not that
-- of the picked one.

create function MELVARKEDITORDodObjCheckSkupSkladPol2(
    a_DDOBIDMASTER integer default null,
    a_NAZEV text default null,
    a_SSP2ID integer default null)
returns table (ID integer)
language sql stable as $$
    select refuse_unknown_master_order(a_DDOBIDMASTER);

    select group_choice(2, typed(a_NAZEV), picked_id(a_SSP2ID))
$$;
