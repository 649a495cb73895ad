-- Refuses an order or order template as the source of its own lines (ML027).
--
-- in: document
-- in: source

select refuse('ML027', iif(VZOR, 'Vzor objednávky', 'Objednávka'), CISLO)
from DODOBJEDNAVKA
where ID = :document and ID = :source;
