-- Whether unsaved work on a delivery note may be taken up again: it exists and is open, and the work is not what
-- the session's save has brought. Refuses nothing.
create function MELVARKEDITORDodakObnovData(a_DODKID integer default null, out a_OBNOVDATA integer)
language sql stable as $$
    select (exists (select from DODAK where ID = a_DODKID and OTEVRENO = 1) and not is_saved('DODAK', a_DODKID))::integer
$$;
