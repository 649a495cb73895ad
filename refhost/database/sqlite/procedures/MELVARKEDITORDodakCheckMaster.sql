-- Refuses a delivery note that does not exist (ML010) or is closed (ML011).
--
-- in: a_DODKID integer

select refuse_closed_note(:a_DODKID) as refusal;
