-- Whether unsaved work on a delivery note may be taken up again: it exists and is open, and the work is not what
-- the session's save has brought. Refuses nothing.
--
-- in: a_DODKID integer
-- out: a_OBNOVDATA

select exists (select 1 from DODAK where ID = :a_DODKID and OTEVRENO = 1) and not is_saved('DODAK', :a_DODKID) as a_OBNOVDATA;
