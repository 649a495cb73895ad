-- Whether unsaved work on an order or order template may be taken up again: it exists and is open, and the work is not what
-- the session's save has brought. Refuses nothing.
--
-- in: a_DDOBID integer
-- out: a_OBNOVDATA

select exists (select 1 from DODOBJEDNAVKA where ID = :a_DDOBID and OTEVRENO = 1) and not is_saved('DODOBJEDNAVKA', :a_DDOBID) as a_OBNOVDATA;
