-- Whether unsaved work on an order or order template may be taken up again: it exists and is open. Refuses nothing.
--
-- in: a_DDOBID integer
-- out: a_OBNOVDATA

select exists (select 1 from DODOBJEDNAVKA where ID = :a_DDOBID and OTEVRENO = 1) as a_OBNOVDATA;
