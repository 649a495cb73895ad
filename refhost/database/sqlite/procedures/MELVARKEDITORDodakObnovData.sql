-- Whether unsaved work on a delivery note may be taken up again: it exists and is open. Refuses nothing.
--
-- in: a_DODKID integer
-- out: a_OBNOVDATA

select exists (select 1 from DODAK where ID = :a_DODKID and OTEVRENO = 1) as a_OBNOVDATA;
