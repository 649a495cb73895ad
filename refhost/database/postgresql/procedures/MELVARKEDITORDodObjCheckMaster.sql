-- Refuses an order or order template that does not exist (ML012) or is closed (ML013).
create function MELVARKEDITORDodObjCheckMaster(a_DDOBID integer default null) returns void
language sql stable as $$
    select refuse_closed_order(a_DDOBID)
$$;
