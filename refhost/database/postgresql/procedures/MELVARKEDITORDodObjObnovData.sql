-- Whether unsaved work on an order or order template may be taken up again: it exists and is open, and the work is not what
-- the session's save has brought. Refuses nothing.
create function MELVARKEDITORDodObjObnovData(a_DDOBID integer default null, out a_OBNOVDATA integer)
language sql stable as $$
    select (exists (select from DODOBJEDNAVKA where ID = a_DDOBID and OTEVRENO = 1) and not is_saved('DODOBJEDNAVKA', a_DDOBID))::integer
$$;
