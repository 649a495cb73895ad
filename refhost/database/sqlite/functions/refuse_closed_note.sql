-- Refuses a delivery note that does not exist (ML010) or is closed (ML011).
--
-- in: id

select refuse_unknown_note(:id);

select refuse('ML011', CISLO)
from DODAK
where ID = :id and OTEVRENO = 0;
