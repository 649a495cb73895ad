-- Checks the stock groups of the three levels together, null for a level that is left empty.
--
-- Refusals: ML012 the document does not exist; ML033 no group at all; ML030 no such group; ML034 a group that does not
-- lie under the chosen one above it.

create function MELVARKEDITORDodObjCheckSkupSkladPol(
    a_DDOBIDMASTER integer default null,
    a_SSP1ID integer default null,
    a_SSP2ID integer default null,
    a_SSP3ID integer default null)
returns void
language sql stable as $$
    select refuse_unknown_master_order(a_DDOBIDMASTER);

    select refuse_groups(a_SSP1ID, a_SSP2ID, a_SSP3ID)
$$;
