-- Refuses an order or order template that does not exist (ML012) or is closed (ML013).
--
-- in: id

select refuse_unknown_order(:id);

select refuse('ML013', case VZOR
                  when 1 then 'Vzor objednávky „' || shown(CISLO) || '“ je uzavřený. Otevřete jej, nebo vyberte jiný.'
                  else 'Objednávka „' || shown(CISLO) || '“ je uzavřená. Otevřete ji, nebo vyberte jinou.'
              end)
from DODOBJEDNAVKA
where ID = :id and OTEVRENO = 0;
