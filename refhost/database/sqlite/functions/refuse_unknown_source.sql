-- Refuses a save whose source document does not exist any more (ML055); null is none.
--
-- in: note
-- in: order

select refuse('ML055', 'Zdrojový doklad s identifikátorem ' || ID || ' neexistuje. Zvolte zdroj znovu.')
from (select :note as ID where :note is not null and :note not in (select ID from DODAK)
      union all
      select :order where :order is not null and :order not in (select ID from DODOBJEDNAVKA));
