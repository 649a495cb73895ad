-- Refuses a delivery note that does not exist (ML010) or is closed (ML011).
create function MELVARKEDITORDodakCheckMaster(a_DODKID integer default null) returns void
language sql stable as $$
    select refuse_closed_note(a_DODKID)
$$;
