-- Refuses an order or order template that does not exist (ML012) or is closed (ML013).
--
-- in: id

select refuse_unknown_order(:id);

select refuse(iif(VZOR, 'ML013/template', 'ML013'), CISLO)
from DODOBJEDNAVKA
where ID = :id and OTEVRENO = 0;
